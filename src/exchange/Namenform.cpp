// How much of a name leaves the house.
#include "exchange/Namenform.h"

#include "overview/Gruppenplatz.h"
#include "overview/Platz.h"

namespace altardienst {
namespace {

Text Anfang(const Text &name)
{
    return name.empty() ? Text() : Links(name, 1) + ".";
}

} // namespace

Namengeber::Namengeber(Namenform form, const Plantabellen &tabellen)
    : form(form), gruppen(tabellen.Gruppen)
{
    if (form == Namenform::VornameUndBuchstabe)
        kurz.Neu(tabellen);
}

const Text &Namengeber::Von(const Text &vorname, const Text &nachname) const
{
    const auto [text, neu] = geformt.Eintragen(vorname, nachname);
    if (neu)
        text = Formen(vorname, nachname);
    return text;
}

Text Namengeber::Formen(const Text &vorname, const Text &nachname) const
{
    if (form == Namenform::Ganz || IstGruppe(gruppen, {vorname, nachname}))
        return VollerName(vorname, nachname);
    if (form == Namenform::Anfangsbuchstaben)
        return VollerName(Anfang(vorname), Anfang(nachname));
    if (vorname.empty())
        return Anfang(nachname);
    return form == Namenform::NurVorname ? vorname : kurz.Von(vorname, nachname);
}

} // namespace altardienst
