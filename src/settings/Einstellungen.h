// Rules of single settings that are more than two limits.
#pragma once

#include "core/tables.h"

namespace altardienst {

/// The whole band of heights in cm, 2 to 100, as a limited box keeps it: below 2 it becomes 2, but
/// above 100 it falls back to 50.
Single GrößendifferenzBegrenzt(Single band);

/// Stores half of the band in `Konfig.DiffGröße`, which is the tolerance on either side; an exact
/// half goes to the even neighbour.
void GrößendifferenzSetzen(Single band);

/// Stores postal code and town of the parish, as somebody leaves them in their box. Other places
/// cut them at fixed positions, so a text that does not begin with five characters and a blank is
/// told by a message and gives way to the stored one; an empty text to a town of its own. Only
/// length and blank are tested, so a stored text that is too short itself brings both messages.
void PlzOrtSetzen(Text plzOrt);

/// Stores the first day of the plan; the plan cannot begin before today.
void StartDatumSetzen(Datum datum);

} // namespace altardienst
