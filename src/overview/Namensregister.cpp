// From the name in a place to the record.
#include "overview/Namensregister.h"

#include <cstring>

namespace altardienst {
namespace {

constexpr std::size_t Wort = sizeof(std::uint64_t);

template <class Zahl> std::uint64_t Lesen(const char *von)
{
    Zahl zahl;
    std::memcpy(&zahl, von, sizeof zahl);
    return zahl;
}

} // namespace

Namensregister::Kurzform::Kurzform(const Text &name)
    : Länge(static_cast<std::uint32_t>(name.size()))
{
    constexpr std::size_t Halb = sizeof(std::uint32_t);
    const char *text = name.data();
    if (Länge >= Wort) {
        Anfang = Lesen<std::uint64_t>(text);
        Ende = Lesen<std::uint64_t>(text + Länge - Wort);
    } else if (Länge >= Halb) {
        Anfang = Lesen<std::uint32_t>(text);
        Ende = Lesen<std::uint32_t>(text + Länge - Halb);
    } else if (Länge > 0) {
        Anfang = Lesen<std::uint8_t>(text) | Lesen<std::uint8_t>(text + Länge / 2) << 8;
        Ende = Lesen<std::uint8_t>(text + Länge - 1);
    }
}

int Namensregister::Finden(const Text &vorname, const Text &nachname) const
{
    const Kurzform kurzVor(vorname);
    const Kurzform kurzNach(nachname);
    if (kurzVor.Länge == 0 && kurzNach.Länge == 0)
        return Frei;
    const std::size_t fach = Fach(vorname, nachname, kurzVor, kurzNach);
    return einträge[fach].Vorname ? nummern[fach] : Unbekannt;
}

void Namensregister::Eintragen(const Text &vorname, const Text &nachname, int nr)
{
    if (vorname.empty() && nachname.empty())
        return;
    const Kurzform kurzVor(vorname);
    const Kurzform kurzNach(nachname);
    const std::size_t fach = Fach(vorname, nachname, kurzVor, kurzNach);
    nummern[fach] = static_cast<std::int16_t>(einträge[fach].Vorname ? Mehrdeutig : nr);
    einträge[fach] = {&vorname, &nachname, kurzVor, kurzNach};
}

inline std::size_t Namensregister::Fach(const Text &vorname, const Text &nachname,
                                        const Kurzform &kurzVor, const Kurzform &kurzNach) const
{
    std::uint64_t prüfzahl =
        (kurzVor.Anfang ^ kurzVor.Ende * 0x9E3779B97F4A7C15U) * 0xBF58476D1CE4E5B9U;
    prüfzahl =
        (prüfzahl ^ (prüfzahl >> 29) ^ kurzNach.Anfang ^ kurzNach.Ende * 0x9E3779B97F4A7C15U) *
        0x94D049BB133111EBU;
    const auto gleich = [](const Kurzform &a, const Kurzform &b, const Text &x, const Text &y) {
        return a == b && (a.Länge <= 2 * Wort || x == y);
    };
    std::size_t fach = (prüfzahl ^ (prüfzahl >> 32)) % Fächer;
    while (einträge[fach].Vorname &&
           !(gleich(einträge[fach].KurzNach, kurzNach, *einträge[fach].Nachname, nachname) &&
             gleich(einträge[fach].KurzVor, kurzVor, *einträge[fach].Vorname, vorname)))
        fach = (fach + 1) % Fächer;
    return fach;
}

} // namespace altardienst
