// From the name in a place to the record.
#include "overview/Namensregister.h"

namespace altardienst {

void Namensregister::Eintragen(const Text &vorname, const Text &nachname, int nr)
{
    const Namenszahlen zahlen(vorname, nachname);
    if (zahlen.IstLeer())
        return;
    const std::size_t fach = Fach(zahlen, vorname, nachname);
    nummern[fach] = static_cast<std::int16_t>(einträge[fach].Vorname ? Mehrdeutig : nr);
    einträge[fach] = {zahlen, &vorname, &nachname};
}

} // namespace altardienst
