// From the week pattern to the masses of the plan period: what button (1) does.
#pragma once

#include "values/Datum.h"

namespace altardienst {

/// The day `Konfig.VorlaufWochen` weeks from today, moved to the weekday `Konfig.StartWochentag` of
/// its week. Takes both settings as they stand.
Datum StartDatumRechnen();

/// The first day of the plan as proposed at the program's start. Brings `Konfig.StartWochentag` and
/// `Konfig.VorlaufWochen` into their ranges.
Datum StartDatumVorschlagen();

/// Button (1): empties the fixed entries, makes the masses, tells so and puts the cursor on the
/// first mass. Failure 9 if the period has more masses than the table has places.
void MessenNeuBestimmen();

/// Makes the masses of `Konfig.Tage` + 1 days from `Konfig.StartDatum` on, in place of all masses
/// there were. Failure 9 as above; `Konfig.StartDatum` then stays moved on.
void MessenBestimmen();

/// Empties the fixed entries.
void FesteEinträgeLeeren();

} // namespace altardienst
