// Whole years of age and of membership.
#pragma once

#include "values/Datum.h"

namespace altardienst {

/// How often a calendar month begins between two dates; negative if `bis` is the earlier one. The
/// 31st to the 1st is a month.
int Monatsgrenzen(Datum von, Datum bis);

/// Twelve month boundaries are a year, the remainder is dropped: a date 1 to 11 months ahead gives
/// 0, from 12 months on the years are negative.
int GanzeJahre(Datum seit, Datum heute);

} // namespace altardienst
