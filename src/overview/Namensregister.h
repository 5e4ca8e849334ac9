// From the name in a place to the record.
#pragma once

#include "overview/Namenszahlen.h"
#include "overview/Plantabellen.h"
#include "values/Text.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace altardienst {

/// Places hold names, not record numbers. The register finds the record of a name in constant time
/// and takes no memory to do so.
class Namensregister {
  public:
    // What stands in a place that is no record.
    static constexpr int Frei = -1;
    static constexpr int Unbekannt = -2;
    static constexpr int Mehrdeutig = -3; // several records have the name

    /// Reads the names of servers or helpers; a record without a name is nobody.
    template <class Tabelle> void Neu(const Tabelle &personen)
    {
        Leeren();
        for (int j = 0; j < personen.Anzahl && j <= Tabelle::HöchsterIndex; ++j)
            Eintragen(personen.Vorname[j], personen.Nachname[j], j);
    }

    /// The record with these names, or one of the values above.
    int Finden(const Text &vorname, const Text &nachname) const;

  private:
    static constexpr std::size_t Fächer = 1024; // more than twice as many as there can be records

    /// As long as a cache line: whoever looks for a name reads one, as a rule.
    struct alignas(64) Eintrag {
        Namenszahlen Zahlen;
        const Text *Vorname = nullptr; // null: the compartment is empty
        const Text *Nachname = nullptr;
    };

    void Leeren() { einträge.fill({}); }
    void Eintragen(const Text &vorname, const Text &nachname, int nr);
    /// The compartment of a name, or the empty one where it belongs.
    std::size_t Fach(const Namenszahlen &zahlen, const Text &vorname, const Text &nachname) const;

    std::array<Eintrag, Fächer> einträge{};
    std::array<std::int16_t, Fächer> nummern{}; // of the records
};

inline int Namensregister::Finden(const Text &vorname, const Text &nachname) const
{
    const Namenszahlen zahlen(vorname, nachname);
    if (zahlen.IstLeer())
        return Frei;
    const std::size_t fach = Fach(zahlen, vorname, nachname);
    return einträge[fach].Vorname ? nummern[fach] : Unbekannt;
}

inline std::size_t Namensregister::Fach(const Namenszahlen &zahlen, const Text &vorname,
                                        const Text &nachname) const
{
    std::size_t fach = zahlen.Prüfzahl() >> (64 - std::bit_width(Fächer - 1));
    while (einträge[fach].Vorname &&
           !(einträge[fach].Zahlen == zahlen &&
             (zahlen.SagtAlles() ||
              (*einträge[fach].Nachname == nachname && *einträge[fach].Vorname == vorname))))
        fach = (fach + 1) % Fächer;
    return fach;
}

} // namespace altardienst
