// Rules of individual settings that take more than two limits.
#pragma once

#include "core/tables.h"

namespace altardienst {

/// The full band of heights in cm, kept within 2 to 100 as in a limited box: below 2 it becomes 2,
/// but above 100 it falls back to 50.
Single GrößendifferenzBegrenzt(Single band);

/// Stores half of the band in `Konfig.DiffGröße`, which is the tolerance on either side; an exact
/// half goes to the even neighbour.
void GrößendifferenzSetzen(Single band);

/// Stores postal code and town of the parish as the user leaves them in their box. Other code cuts
/// them at fixed positions, so a text that does not begin with five characters and a blank is
/// reported in a message and replaced by the stored one, an empty text by a town of its own. Only
/// length and blank are checked, so a stored text that is itself too short causes both messages.
void PlzOrtSetzen(Text plzOrt);

/// Stores the first day of the plan, which cannot be before today.
void StartDatumSetzen(Datum datum);

} // namespace altardienst
