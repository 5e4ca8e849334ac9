// Who belongs to a group.
#include "core/Gruppen.h"

#include "core/tables.h"

namespace altardienst {

bool IstInGruppe(int diener, const Text &gruppe)
{
    return !gruppe.empty() && Meßdiener.Gruppe[diener] == gruppe;
}

} // namespace altardienst
