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

    /// A name as numbers: its beginning, its end, and its length. For a name of up to 16 bytes that
    /// is all of it, so that comparing these suffices.
    struct Kurzform {
        std::uint64_t Anfang = 0;
        std::uint64_t Ende = 0;
        std::uint32_t Länge = 0;

        explicit Kurzform(const Text &name);
        Kurzform() = default;
        friend bool operator==(const Kurzform &, const Kurzform &) = default;
    };

    /// As long as a cache line: whoever looks for a name reads one, as a rule.
    struct alignas(64) Eintrag {
        const Text *Vorname = nullptr; // null: the compartment is empty
        const Text *Nachname = nullptr;
        Kurzform KurzVor;
        Kurzform KurzNach;
    };

    void Leeren() { einträge.fill({}); }
    void Eintragen(const Text &vorname, const Text &nachname, int nr);
    /// The compartment of a name, or the empty one where it belongs.
    std::size_t Fach(const Text &vorname, const Text &nachname, const Kurzform &kurzVor,
                     const Kurzform &kurzNach) const;

    std::array<Eintrag, Fächer> einträge{};
    std::array<std::int16_t, Fächer> nummern{}; // of the records
};

} // namespace altardienst
