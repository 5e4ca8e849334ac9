// From the name in a place to the record.
#pragma once

#include "overview/Plantabellen.h"
#include "values/Text.h"

#include <array>
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

    struct Eintrag {
        const Text *Vorname; // null: the compartment is empty
        const Text *Nachname;
        std::size_t Prüfzahl;
        int Nr;
    };

    void Leeren();
    void Eintragen(const Text &vorname, const Text &nachname, int nr);
    /// The compartment of a name, or the empty one where it belongs.
    std::size_t Fach(const Text &vorname, const Text &nachname, std::size_t prüfzahl) const;

    std::array<Eintrag, Fächer> einträge{};
};

} // namespace altardienst
