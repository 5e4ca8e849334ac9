// Whole years of age and of membership.
#pragma once

#include "values/Datum.h"

namespace altardienst {

/// How often a calendar month begins between two dates; negative if `bis` is the earlier one. From
/// the 31st to the 1st counts as a month.
int Monatsgrenzen(Datum von, Datum bis);

/// Twelve month boundaries make a year and the remainder is dropped: a date 1 to 11 months ahead
/// gives 0, one 12 or more months ahead a negative number.
int GanzeJahre(Datum seit, Datum heute);

} // namespace altardienst
