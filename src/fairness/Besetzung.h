// A plan while it is being balanced: who stands where, what that costs, and moves that can be taken
// back.
#pragma once

#include "fairness/Besetzungsaufgabe.h"

#include <array>
#include <compare>
#include <cstdint>
#include <tuple>
#include <vector>

namespace altardienst {

/// What is wrong with a plan, the gravest first. All whole numbers, so that a move forth and back
/// leaves no trace.
struct Plankosten {
    std::int64_t Verstöße = 0;
    std::int64_t Schwere = 0;  // an empty place weighs more than a name against a rule
    std::int64_t Hinweise = 0; // what the check calls worth a look
    std::int64_t Ungleich = 0; // squared deviations from the due shares, in millionths
    std::int64_t Getrennt = 0; // services whose wish partner does not stand beside
    std::int64_t Unruhe = 0;   // uneven gaps, always the same service, changed names

    friend bool operator==(const Plankosten &, const Plankosten &) = default;
    friend auto operator<=>(const Plankosten &a, const Plankosten &b)
    {
        return std::tie(a.Verstöße, a.Schwere, a.Hinweise, a.Ungleich, a.Getrennt, a.Unruhe) <=>
               std::tie(b.Verstöße, b.Schwere, b.Hinweise, b.Ungleich, b.Getrennt, b.Unruhe);
    }
    Plankosten &operator+=(const Plankosten &b);
    Plankosten &operator-=(const Plankosten &b);
};

class Besetzung {
  public:
    /// Places that a move fills anew, each at most once.
    struct Zug {
        struct Setzung {
            int Platz;
            int Person;
        };
        static constexpr std::size_t Meiste = 8;
        std::array<Setzung, Meiste> Setzungen;
        std::size_t Anzahl = 0;

        /// Returns false if there is no room for it or the place is in the move already.
        bool Dazu(int platz, int person);
    };

    /// The plan as it stands.
    explicit Besetzung(const Besetzungsaufgabe &aufgabe);

    const Besetzungsaufgabe &Aufgabe() const { return aufgabe; }
    int Wer(int platz) const { return wer[static_cast<std::size_t>(platz)]; }
    const std::vector<int> &Alle() const { return wer; }
    const Plankosten &Kosten() const { return gesamt; }
    /// The places of a person in the order of time.
    const std::vector<int> &Dienste(int person) const
    {
        return dienste[static_cast<std::size_t>(person)];
    }
    /// Services above the due share, in thousandths.
    std::int64_t Über(int person) const
    {
        const auto j = static_cast<std::size_t>(person);
        return static_cast<std::int64_t>(dienste[j].size()) * 1000 - aufgabe.Personen[j].Soll;
    }
    bool VerstößtImTermin(int termin) const
    {
        return terminkosten[static_cast<std::size_t>(termin)].Verstöße > 0;
    }
    bool VerstößtBei(int person) const
    {
        return person >= 0 && personenkosten[static_cast<std::size_t>(person)].Verstöße > 0;
    }

    /// Makes a move; returns the costs before it.
    Plankosten Ziehen(const Zug &zug);
    /// Takes back the last move.
    void Zurück();
    /// Puts everybody where a list says, one entry a place.
    void Stellen(const std::vector<int> &neue);

  private:
    void Umsetzen(int platz, int person);
    Plankosten TerminRechnen(int termin) const;
    void DienerRechnen(const Besetzungsaufgabe::Termin &termin, Plankosten &kosten) const;
    void HelferRechnen(const Besetzungsaufgabe::Termin &termin, Plankosten &kosten) const;
    bool IstGesperrtNach(int zuvor, int platz) const;
    void PlatzRechnen(int platz, Plankosten &kosten) const;
    bool StehtDavor(const Besetzungsaufgabe::Termin &termin, int platz) const;
    bool IstPartnerFern(const Besetzungsaufgabe::Termin &termin, int platz) const;
    Plankosten PersonRechnen(int person) const;
    std::int64_t Abstände(const std::vector<int> &plätze) const;
    void Betroffen(const Zug &zug);

    const Besetzungsaufgabe &aufgabe;
    std::vector<int> wer;
    std::vector<std::vector<int>> dienste;
    std::vector<Plankosten> terminkosten;
    std::vector<Plankosten> personenkosten;
    Plankosten gesamt;

    // The last move: what was before it.
    struct Alt {
        int Nr;
        Plankosten Kosten;
    };
    Zug vorher;
    std::array<Alt, Zug::Meiste> alteTermine;
    std::size_t alteTerminzahl = 0;
    std::array<Alt, 2 * Zug::Meiste> altePersonen;
    std::size_t altePersonenzahl = 0;
    Plankosten altesGesamt;
};

} // namespace altardienst
