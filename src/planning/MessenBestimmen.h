// From the week pattern to the masses of the plan period: what button (1) does.
#pragma once

#include "values/Datum.h"

namespace altardienst {

/// The day `Konfig.VorlaufWochen` weeks from today, moved to the weekday `Konfig.StartWochentag` of
/// its week. Takes both settings as they are.
Datum StartDatumRechnen();

/// The first day of the plan as proposed when the program starts. Brings `Konfig.StartWochentag`
/// and `Konfig.VorlaufWochen` within their ranges.
Datum StartDatumVorschlagen();

/// Button (1): empties the fixed entries, makes the masses, reports it and puts the cursor on the
/// first mass. Failure 9 if the period has more masses than the table has places.
void MessenNeuBestimmen();

/// Makes the masses of the `Konfig.Tage` + 1 days from `Konfig.StartDatum` on, replacing all
/// existing ones. Failure 9 as above; `Konfig.StartDatum` is then left at a later day.
void MessenBestimmen();

/// Empties the fixed entries.
void FesteEinträgeLeeren();

} // namespace altardienst
