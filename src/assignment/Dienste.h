// From the counts of a mass to the services of its slots.
#pragma once

#include "core/Plätze.h"

#include <array>

namespace altardienst {

/// Rewrites `Messe.DienerDienst` of all masses, including the blank one after the last: the wanted
/// services in their fixed order from index 0 on, everything else "Allgemein".
void DiensteVerteilen();

/// The same for the plain way, except that slots it does not reach stay as they are, and
/// "Weihrauch" and "Kreuzträger" are written twice as soon as one is wanted.
void LaufDiensteVerteilen();

/// One service per slot, starting with slot 1.
using Slotdienste = std::array<const Dienstart *, MesseTabelle::HöchsterSlot>;

/// The services that the slots of a mass get from `DiensteVerteilen`, whatever stands there now.
Slotdienste DiensteNachZahl(const MesseTabelle &messen, int messe);

/// The same for one slot, 1 to 20.
inline const Dienstart &DienstNachZahl(const MesseTabelle &messen, int messe, int n)
{
    return *DiensteNachZahl(messen, messe).at(static_cast<std::size_t>(n - 1));
}

} // namespace altardienst
