// How a person is shown in a list box: "Nachname,Vorname".
#include "core/Namen.h"

namespace altardienst {

Text Listenname(const Text &nachname, const Text &vorname)
{
    return nachname + "," + vorname;
}

void NameTeilen(const Text &listenname, Text &nachname, Text &vorname)
{
    if (listenname.empty())
        nachname.clear();
    const std::size_t komma = listenname.find(',');
    if (komma != Text::npos && komma > 0)
        nachname = listenname.substr(0, komma);
    vorname = komma == Text::npos ? listenname : listenname.substr(komma + 1);
}

} // namespace altardienst
