// The check of the whole plan: what breaks a rule of the draw, and what is worth a look.
#pragma once

#include "overview/Befund.h"
#include "overview/Namensregister.h"

#include <array>
#include <vector>

namespace altardienst {

/// Nothing that the tables may hold makes the check fail. It knows the plan as it was at the last
/// `Neu` or `MesseGeändert`.
class Planprüfung {
  public:
    explicit Planprüfung(Plantabellen tabellen = GemeinsameTabellen());

    /// Checks everything: after a load, a draw, a change of records, fixed entries or settings. Far
    /// below a millisecond.
    void Neu();

    /// Checks again what a change in this mass can affect. Also right if its date or counts have
    /// changed: then everything is checked.
    void MesseGeändert(int messe);

    /// Of a mass and its places, in the order of the places.
    const std::vector<Befund> &Von(int messe) const;
    /// Of all masses, in the order of the table.
    std::vector<Befund> Alle() const;
    int Verstöße() const { return zahlen[0]; }
    int Hinweise() const { return zahlen[1]; }

    /// The record of the person in a place, or one of the values of `Namensregister`.
    int WerSteht(Planplatz platz) const;
    /// The places of a person in the order of time; only those that a mass wants.
    std::vector<Planplatz> PlätzeVon(Planplatz::Art was, int nr) const;

    /// What would be wrong with the server or helper `nr` in this place, whoever stands there now,
    /// and what he would make wrong elsewhere. In the order of the rules; `Satz` with his name.
    std::vector<Befund> GegenPerson(Planplatz platz, int nr) const;

    const Plantabellen &Tabellen() const { return tabellen; }

  private:
    Plantabellen tabellen;
    Namensregister diener;
    Namensregister helfer;
    std::array<int, 2> zahlen{};
    std::vector<std::vector<Befund>> befunde; // one list a mass
};

} // namespace altardienst
