// A plan for the tests of what is given away.
#pragma once

#include "overview/Platz.h"
#include "printing/Druckstand.h"

namespace altardienst {

/// Masses one day after the other from Sunday, 22.11.2026, filled with "Vor1 Nach1" and so on.
inline int VolleMesse(int diener, const Text &art = "Hochamt")
{
    const int i =
        MesseMitDienern(DatumAus({2026, 11, 22}) + static_cast<int>(Messe.Anzahl), diener);
    Messe.Messeart[i] = art;
    for (int slot = 1; slot <= diener; ++slot)
        Besetzen(Messe, Dienerplatznr(i, slot), "Vor" + std::to_string(slot),
                 "Nach" + std::to_string(slot));
    return i;
}

} // namespace altardienst
