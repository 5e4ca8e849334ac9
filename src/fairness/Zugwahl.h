// Which move to try next.
#pragma once

#include "fairness/Besetzung.h"
#include "fairness/Los.h"

#include <cstdint>
#include <vector>

namespace altardienst {

/// Moves at random, with an eye for what is wrong in the plan: half of them in places with a breach
/// while there are any, and with persons who have the fewest services for their share.
class Zugwahl {
  public:
    Zugwahl(const Besetzung &plan, Los &los);

    /// The places that somebody can fill.
    const std::vector<int> &Freie() const { return freie; }
    /// Those of them with a breach when this was last called.
    const std::vector<int> &WundeSuchen();

    /// Returns false if there is no such move here; then `zug` is of no use.
    bool Wählen(Besetzung::Zug &zug);

    /// A move that brings somebody back to where he stood at first: he leaves another place, where
    /// again whoever stood there first comes back, and so on, until the one who had to make room
    /// takes the last. Everybody keeps as many services as he has.
    bool Heimholen(Besetzung::Zug &zug);

    /// Those with the fewest services for their share.
    std::vector<int> Nächstliegende(int platz) const;

  private:
    int Person(int platz, int stattdessen);
    std::int64_t Güte(int person, int platz) const;

    bool Ersetzen(Besetzung::Zug &zug, int platz);
    bool Tauschen(Besetzung::Zug &zug, int platz, int anderer) const;
    bool InDerMesseTauschen(Besetzung::Zug &zug, int platz);
    bool Weiterreichen(Besetzung::Zug &zug, int platz);
    bool PaarErsetzen(Besetzung::Zug &zug, int platz);
    bool PartnerHolen(Besetzung::Zug &zug, int platz);

    int Nächster(int person, int platz) const;
    int FremderPlatz(int person, const Besetzung::Zug &zug);
    int Nebenplatz(int platz) const;
    bool IstBesetzbar(int platz) const;

    const Besetzung &plan;
    const Besetzungsaufgabe &aufgabe;
    Los &los;
    std::vector<int> freie;
    std::vector<int> wunde;
};

} // namespace altardienst
