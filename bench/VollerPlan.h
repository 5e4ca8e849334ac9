// A plan that is full to the brim, and the services in it counted the plain way.
#pragma once

#include "statistics/Dienstzählung.h"

namespace altardienst {

/// 400 servers and 603 masses of 21 slots, in which the servers of the table stand in turn.
void VollerPlan();

/// Compares every server with every slot of every mass.
Meßdienerzählung AlleMitAllen();

} // namespace altardienst
