// From the name in a place to the record.
#pragma once

#include "overview/Plantabellen.h"
#include "values/Text.h"

#include <array>
#include <cstdint>
#include <vector>

namespace altardienst {

/// Places hold names, not record numbers. The register finds the record of a name in constant time
/// and takes no memory for it.
class Namensregister {
  public:
    // What stands in a place that is no record.
    static constexpr int Frei = -1;
    static constexpr int Unbekannt = -2;
    static constexpr int Mehrdeutig = -3; // several records have the name
    static constexpr int Gruppe = -4;     // a fixed entry for a whole group

    /// Reads the names of servers or helpers.
    template <class Tabelle> void Neu(const Tabelle &personen);

    /// The record with these names, or one of the values above.
    int Finden(const Text &vorname, const Text &nachname) const;

  private:
    struct Eintrag {
        const Text *Vorname = nullptr;
        const Text *Nachname = nullptr;
        std::int16_t Nr = Unbekannt;
    };
    std::vector<Eintrag> einträge;
};

} // namespace altardienst
