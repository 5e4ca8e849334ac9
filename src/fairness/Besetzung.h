// A plan while it is being balanced: who stands where, what that costs, and moves that can be taken
// back.
#pragma once

#include "fairness/Besetzungsaufgabe.h"
#include "fairness/Plankosten.h"

#include <array>
#include <cstdint>
#include <vector>

namespace altardienst {

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
    int Termin(int platz) const { return termine[static_cast<std::size_t>(platz)]; }
    Datum Tag(int platz) const { return tage[static_cast<std::size_t>(platz)]; }
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

    /// By how much the energy grows at least with a move: quickly found, and enough to do without
    /// most of those that come to nothing.
    double MehrMindestens(const Zug &zug, double strenge) const;
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
    double VerstoßMindestens(const Zug &zug, int platz, int person, double strenge) const;
    void PlatzRechnen(int platz, Plankosten &kosten) const;
    bool StehtDavor(const Besetzungsaufgabe::Termin &termin, int platz) const;
    bool IstPartnerFern(const Besetzungsaufgabe::Termin &termin, int platz) const;
    Plankosten PersonRechnen(int person) const;
    std::int64_t Abstände(const std::vector<int> &plätze) const;
    void Betroffen(const Zug &zug);

    const Besetzungsaufgabe &aufgabe;
    std::vector<int> termine; // of the places
    std::vector<Datum> tage;
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
