// From the counts of a mass to the services of its slots.
#pragma once

#include "core/Plätze.h"

namespace altardienst {

/// Rewrites `Messe.DienerDienst` of all masses, including the blank one after the last: the wanted
/// services in their fixed order from index 0 on, everything else "Allgemein".
void DiensteVerteilen();

/// The same for the plain way, except that slots it does not reach stay as they are, and
/// "Weihrauch" and "Kreuzträger" are written twice as soon as one is wanted.
void LaufDiensteVerteilen();

/// The service that slot `n` (1 to 20) gets from `DiensteVerteilen`, whatever stands in it now.
const Dienstart &DienstNachZahl(const MesseTabelle &messen, int messe, int n);

} // namespace altardienst
