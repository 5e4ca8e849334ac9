// From the name in a place to the record.
#include "overview/Namensregister.h"

#include <cstring>

namespace altardienst {
namespace {

template <class Zahl> std::uint64_t Lesen(const char *von)
{
    Zahl zahl;
    std::memcpy(&zahl, von, sizeof zahl);
    return zahl;
}

/// The beginning and the end of a name, where names differ.
std::uint64_t Enden(const Text &name)
{
    const std::size_t länge = name.size();
    const char *text = name.data();
    if (länge >= 8)
        return Lesen<std::uint64_t>(text) ^
               (Lesen<std::uint64_t>(text + länge - 8) * 0x9E3779B97F4A7C15U) ^ länge;
    if (länge >= 4)
        return (Lesen<std::uint32_t>(text) | Lesen<std::uint32_t>(text + länge - 4) << 32) ^ länge;
    if (länge == 0)
        return 0;
    return Lesen<std::uint8_t>(text) | Lesen<std::uint8_t>(text + länge / 2) << 8 |
           Lesen<std::uint8_t>(text + länge - 1) << 16 | länge << 24;
}

std::size_t Prüfzahl(const Text &vorname, const Text &nachname)
{
    std::uint64_t zahl = Enden(vorname) * 0xBF58476D1CE4E5B9U;
    zahl = (zahl ^ (zahl >> 29) ^ Enden(nachname)) * 0x94D049BB133111EBU;
    return zahl ^ (zahl >> 32);
}

} // namespace

int Namensregister::Finden(const Text &vorname, const Text &nachname) const
{
    if (vorname.empty() && nachname.empty())
        return Frei;
    const Eintrag &eintrag = einträge[Fach(vorname, nachname, Prüfzahl(vorname, nachname))];
    return eintrag.Vorname ? eintrag.Nr : Unbekannt;
}

void Namensregister::Leeren()
{
    einträge.fill({nullptr, nullptr, 0, Frei});
}

void Namensregister::Eintragen(const Text &vorname, const Text &nachname, int nr)
{
    if (vorname.empty() && nachname.empty())
        return;
    const std::size_t prüfzahl = Prüfzahl(vorname, nachname);
    Eintrag &eintrag = einträge[Fach(vorname, nachname, prüfzahl)];
    eintrag = {&vorname, &nachname, prüfzahl, eintrag.Vorname ? Mehrdeutig : nr};
}

std::size_t Namensregister::Fach(const Text &vorname, const Text &nachname,
                                 std::size_t prüfzahl) const
{
    std::size_t fach = prüfzahl % Fächer;
    while (einträge[fach].Vorname &&
           (einträge[fach].Prüfzahl != prüfzahl || *einträge[fach].Nachname != nachname ||
            *einträge[fach].Vorname != vorname))
        fach = (fach + 1) % Fächer;
    return fach;
}

} // namespace altardienst
