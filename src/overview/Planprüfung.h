// The check of the whole plan: what breaks a rule of the draw, and what is worth a look.
#pragma once

#include "overview/Befund.h"
#include "overview/Messenprüfung.h"
#include "overview/Planregister.h"

#include <array>
#include <vector>

namespace altardienst {

/// Nothing that the tables may hold makes the check fail. It knows the plan as it was at the last
/// `Neu` or `MesseGeändert`.
class Planprüfung {
  public:
    explicit Planprüfung(const Plantabellen &tabellen = GemeinsameTabellen());
    Planprüfung(const Planprüfung &) = delete; // its parts refer to each other
    Planprüfung &operator=(const Planprüfung &) = delete;

    /// Checks everything: after a load, a draw, a change of records, fixed entries or settings. Far
    /// below a millisecond.
    void Neu();

    /// Checks again what other names in this mass can affect. Also right if its date or counts have
    /// changed: then everything is checked.
    void MesseGeändert(int messe);

    /// Of a mass, then of its places in their order. Empty for a mass that is not in the plan.
    const std::vector<Befund> &Von(int messe) const;
    /// Of all masses, in the order of the table.
    std::vector<Befund> Alle() const;
    int Verstöße() const { return zahlen[0]; }
    int Hinweise() const { return zahlen[1]; }

    /// The record of who stands in a place that the mass wants, or one of the values of
    /// `Namensregister`.
    int WerSteht(Planplatz platz) const;
    /// The services of a server or a helper in the order of time.
    std::vector<Planplatz> Dienste(Planplatz::Art was, int nr) const;
    /// The record of a server's wish partner, below 0 if there is none.
    int Wunschpartner(int diener) const { return plan.Partner(diener); }
    /// How often a server stands beside his wish partner.
    int Paare(int diener) const { return plan.Paare(diener); }

    /// What would be wrong with the server or helper `nr` in this place, whoever stands there now,
    /// in the order of the rules, and what that would break in a place beside.
    std::vector<Befund> GegenPerson(Planplatz platz, int nr) const;

    const Plantabellen &Tabellen() const { return tabellen; }

  private:
    void Zählen(int messe, int vorzeichen);

    Plantabellen tabellen;
    Planregister plan;
    Messenprüfung prüfung;
    std::array<int, 2> zahlen{};
    std::vector<std::vector<Befund>> befunde; // one list a mass
};

} // namespace altardienst
