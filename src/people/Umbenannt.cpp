// Who wants to know of a new name besides the tables.
#include "people/Umbenannt.h"

namespace altardienst {

std::function<void(const Personenname &alt, const Personenname &neu, bool helfer)> PersonUmbenannt;

void UmbenennungMelden(const Personenname &alt, const Personenname &neu, bool helfer)
{
    if (PersonUmbenannt && alt != neu && !alt.Vorname.empty() && !alt.Nachname.empty())
        PersonUmbenannt(alt, neu, helfer);
}

} // namespace altardienst
