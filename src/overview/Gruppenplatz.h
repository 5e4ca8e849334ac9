// A place that a fixed entry keeps for a whole group.
#pragma once

#include "overview/Platz.h"

#include <algorithm>

namespace altardienst {

/// In the tables it is a person whose first name is "Gruppe" and whose surname is the group.
inline bool IstGruppe(const GruppeTabelle &gruppen, Platzname name)
{
    if (name.Vorname != "Gruppe" || name.Nachname.empty())
        return false;
    for (int g = 0; g < std::min<int>(gruppen.Anzahl, GruppeTabelle::HöchsterIndex + 1); ++g)
        if (gruppen.Bezeichnung[g] == name.Nachname)
            return true;
    return false;
}

} // namespace altardienst
