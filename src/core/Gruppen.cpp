// Who belongs to a group.
#include "core/Gruppen.h"

namespace altardienst {

bool IstInGruppe(int diener, const Text &gruppe)
{
    return IstInGruppe(Meßdiener, diener, gruppe);
}

bool IstInGruppe(const MeßdienerTabelle &tabelle, int diener, const Text &gruppe)
{
    return !gruppe.empty() && tabelle.Gruppe[diener] == gruppe;
}

} // namespace altardienst
