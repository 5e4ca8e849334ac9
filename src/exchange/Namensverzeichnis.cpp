// Who is who.
#include "exchange/Namensverzeichnis.h"

namespace altardienst {
namespace {

constexpr const char *NurZeichen = " "; // of a name without a letter or digit

Text Ungefähr(const Personenname &name)
{
    return Vergleichsform(name.Vorname) + " " + Vergleichsform(name.Nachname);
}

} // namespace

Namensverzeichnis::Namensverzeichnis(Personenart art)
{
    for (int i = 0; i < Vorhandene(art); ++i)
        Eintragen({SpalteMit(art, SpalteVorname).Wert(i), SpalteMit(art, SpalteNachname).Wert(i)},
                  i);
}

void Namensverzeichnis::Eintragen(const Personenname &name, int nummer)
{
    genau[{name.Vorname, name.Nachname}].push_back(nummer);
    ungefähr.try_emplace(Ungefähr(name), Fund{name, nummer});
}

const std::vector<int> &Namensverzeichnis::Finden(const Personenname &name) const
{
    static const std::vector<int> niemand;
    const auto stelle = genau.find({name.Vorname, name.Nachname});
    return stelle == genau.end() ? niemand : stelle->second;
}

Namensverzeichnis::Fund Namensverzeichnis::Ähnlicher(const Personenname &name) const
{
    const Text form = Ungefähr(name);
    const auto stelle = form == NurZeichen ? ungefähr.end() : ungefähr.find(form);
    return stelle == ungefähr.end() ? Fund{{}, 0} : stelle->second;
}

} // namespace altardienst
