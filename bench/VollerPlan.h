// A completely full plan, and its services counted the plain way.
#pragma once

#include "statistics/Dienstzählung.h"

namespace altardienst {

/// 400 servers and 603 masses of 21 slots, filled with the servers of the table in turn.
void VollerPlan();

/// Compares every server with every slot of every mass.
Meßdienerzählung AlleMitAllen();

} // namespace altardienst
