// Who is who, by names alone and by names as a hurried hand writes them.
#pragma once

#include "exchange/Spalten.h"
#include "people/Personen.h"

#include <map>
#include <utility>
#include <vector>

namespace altardienst {

/// The people of one table, or others that are noted under a number.
class Namensverzeichnis {
  public:
    Namensverzeichnis() = default;
    explicit Namensverzeichnis(Personenart art); // the records of the table

    void Eintragen(const Personenname &name, int nummer);

    /// The numbers of those with exactly this name, in the order in which they were noted.
    const std::vector<int> &Finden(const Personenname &name) const;

    /// The first one whose name is nearly the same, with his number; without a name if there is
    /// nobody.
    struct Fund {
        Personenname Name;
        int Nummer;
    };
    Fund Ähnlicher(const Personenname &name) const;

  private:
    std::map<std::pair<Text, Text>, std::vector<int>> genau;
    std::map<Text, Fund> ungefähr;
};

} // namespace altardienst
