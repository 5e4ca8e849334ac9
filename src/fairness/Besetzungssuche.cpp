// The search: moves that are chosen at random with an eye for what is wrong, accepted the more
// easily the worse the plan may still become in between (simulated annealing). First gently from
// the plan as it stands, so that much of it stays; if that does not lead to the goal, more and more
// freely. Last, everything that costs nothing is put right.
#include "fairness/Besetzungssuche.h"

#include "fairness/Zugwahl.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace altardienst {
namespace {

using Aufgabe = Besetzungsaufgabe;
using Zug = Besetzung::Zug;

class Suche {
  public:
    Suche(const Aufgabe &aufgabe, const Besetzungssuche &auftrag)
        : aufgabe(aufgabe), auftrag(auftrag), plan(aufgabe), los(auftrag.Saat), wahl(plan, los),
          grenze(Untergrenze(aufgabe)), beste(plan.Alle()), besteKosten(plan.Kosten())
    {
        for (std::size_t k = 0; k < logarithmen.size(); ++k)
            logarithmen[k] =
                -std::log((static_cast<double>(k) + 0.5) / static_cast<double>(logarithmen.size()));
    }

    Suchergebnis Suchen()
    {
        if (!wahl.Freie().empty())
            Ablauf();
        return {beste, besteKosten, AmZiel(), abgebrochen};
    }

  private:
    void Ablauf()
    {
        // Large plans have more room to give way: each place needs fewer tries.
        constexpr double Gewöhnlich = 400;
        const double zahl = static_cast<double>(wahl.Freie().size());
        const double plätze = zahl * std::min(1.0, std::sqrt(Gewöhnlich / zahl)) * auftrag.Aufwand;
        // Small ones are tricky all the same, and quickly done.
        const double wenigstens = std::max(plätze, 50 * auftrag.Aufwand);
        Füllen();
        Abkühlen(0.3, 1000 * wenigstens);
        // Where the goal is not in sight: again from the best plan and from anew, longer each time
        // as far as that is bearable.
        constexpr int Runden = 8;
        constexpr double Erträglich = 600'000;
        constexpr double Klein = 25;
        constexpr int Gewiß = 3;
        int vergeblich = 0;
        int wiedergefunden = 0;
        for (int runde = 0; runde < Runden && !AmZiel() && !abgebrochen; ++runde) {
            const Plankosten zuvor = besteKosten;
            if (runde % 2 == 1)
                plan.Stellen(beste);
            const double später = besteKosten.Verstöße > 0 ? 2700 : 3300;
            const double schritte = runde < Runden / 2 ? 1500 * wenigstens : später * plätze;
            strenge = runde % 4 == 0 ? Streng : runde % 2 == 0 ? Streng / 2 : Streng / 3;
            if (runde < 2 || schritte < Erträglich * auftrag.Aufwand)
                Abkühlen(runde % 2 == 0 ? 1.5 : 0.7, schritte);
            // A small plan that keeps all rules could only be more even, which would have shown.
            vergeblich = besteKosten.Ungleich < zuvor.Ungleich ? 0 : vergeblich + 1;
            if (besteKosten.Verstöße == 0 && besteKosten.Hinweise == 0 && vergeblich == 4 &&
                zahl < Klein)
                break;
            // What several tries from anew come to is hardly to be improved on.
            if (runde % 2 == 0)
                wiedergefunden = !IstGleichGut(zuvor)         ? 0
                                 : IstGleichGut(rundenkosten) ? wiedergefunden + 1
                                                              : wiedergefunden;
            if (wiedergefunden == Gewiß)
                break;
        }
        plan.Stellen(beste);
        Glätten(600 * plätze);
        if (!abgebrochen)
            Nachbessern();
        Heimholen(250 * plätze);
    }

    /// As the best plan, as far as rules and evenness go.
    bool IstGleichGut(const Plankosten &kosten) const
    {
        return kosten.Verstöße == besteKosten.Verstöße && kosten.Schwere == besteKosten.Schwere &&
               kosten.Hinweise == besteKosten.Hinweise && kosten.Ungleich == besteKosten.Ungleich;
    }

    bool AmZiel() const
    {
        return besteKosten.Verstöße <= grenze.Verstöße && besteKosten.Hinweise == 0 &&
               besteKosten.Ungleich <= grenze.Ungleich;
    }

    /// Empty places get whoever is furthest below his share, so that the plan is whole early.
    void Füllen()
    {
        for (const int platz : wahl.Freie()) {
            if (plan.Wer(platz) >= 0 && aufgabe.Kann(platz, plan.Wer(platz)))
                continue;
            int wen = Aufgabe::Niemand;
            double niedrigste = Energie(plan.Kosten(), strenge);
            for (const int person : wahl.Nächstliegende(platz)) {
                plan.Ziehen(Einer(platz, person));
                if (const double energie = Energie(plan.Kosten(), strenge); energie < niedrigste) {
                    niedrigste = energie;
                    wen = person;
                }
                plan.Zurück();
            }
            if (wen >= 0)
                plan.Ziehen(Einer(platz, wen));
            if (IstAbgebrochen())
                break;
        }
        Merken();
    }

    static Zug Einer(int platz, int person)
    {
        Zug zug;
        zug.Dazu(platz, person);
        return zug;
    }

    void Abkühlen(double anfang, double schritte)
    {
        constexpr double Ende = 0.02;
        constexpr double JeStufe = 64;
        const double stufen = std::max(1.0, schritte / JeStufe);
        const double faktor = std::pow(Ende / anfang, 1 / stufen);
        double wärme = anfang;
        energie = Energie(plan.Kosten(), strenge);
        const double vergessen = std::floor(stufen / 4); // where it came from
        for (double stufe = 0; stufe < stufen && !IstAbgebrochen(); ++stufe, wärme *= faktor) {
            if (stufe == vergessen)
                rundenkosten = plan.Kosten();
            if (static_cast<int>(stufe) % 4 == 0)
                wahl.WundeSuchen();
            for (int k = 0; k < static_cast<int>(JeStufe); ++k)
                Erwärmt(wärme * logarithmen[los.Bits() % logarithmen.size()]);
        }
    }

    /// Only what makes nothing worse.
    void Glätten(double schritte)
    {
        for (double k = 0; k < schritte; ++k) {
            if (static_cast<int>(k) % 64 == 0) {
                if (IstAbgebrochen())
                    return;
                wahl.WundeSuchen();
            }
            Versuchen([&](const Plankosten &alt) { return plan.Kosten() <= alt; });
        }
    }

    /// Leaves no place with a breach in which somebody else alone would be better, or nobody.
    void Nachbessern()
    {
        plan.Stellen(beste);
        for (bool besser = true; besser;) {
            besser = false;
            for (const int platz : wahl.WundeSuchen()) {
                if (IstAbgebrochen())
                    return;
                besser = NachbessernMit(platz, Aufgabe::Niemand) || besser;
                for (const int person : aufgabe.KreisVon(platz).Personen)
                    besser = NachbessernMit(platz, person) || besser;
                Merken();
            }
        }
    }

    bool NachbessernMit(int platz, int person)
    {
        const Plankosten alt = plan.Ziehen(Einer(platz, person));
        if (plan.Kosten() < alt)
            return true;
        plan.Zurück();
        return false;
    }

    /// Names come back to where they stood, as long as everything else stays at least as good as
    /// the best plan has it. What gets better on the way leaves room for more of them.
    void Heimholen(double schritte)
    {
        plan.Stellen(beste);
        const Plankosten grenze = besteKosten;
        for (double k = 0; k < schritte && besteKosten.Wechsel > 0; ++k) {
            if (static_cast<int>(k) % 64 == 0 && IstAbgebrochen())
                return;
            Zug zug;
            if (!(los.Unter(2) == 0 ? wahl.Heimholen(zug) : wahl.Wählen(zug)) ||
                plan.MehrMindestens(zug, Streng) > Streng / 2)
                continue;
            const Plankosten alt = plan.Ziehen(zug);
            const Plankosten &neu = plan.Kosten();
            if (neu.OhneWechsel() > grenze.OhneWechsel() || neu.Wechsel > alt.Wechsel ||
                (neu.Wechsel == alt.Wechsel && neu > alt)) {
                plan.Zurück();
            } else if (neu.Wechsel < besteKosten.Wechsel) {
                besteKosten = neu;
                beste = plan.Alle();
            }
        }
    }

    /// A move that adds at most so much energy.
    void Erwärmt(double höchstens)
    {
        Zug zug;
        if (!wahl.Wählen(zug) || plan.MehrMindestens(zug, strenge) > höchstens)
            return;
        plan.Ziehen(zug);
        if (const double neu = Energie(plan.Kosten(), strenge); neu - energie <= höchstens) {
            energie = neu;
            Merken();
        } else {
            plan.Zurück();
        }
    }

    template <class F> void Versuchen(F gilt)
    {
        Zug zug;
        if (!wahl.Wählen(zug))
            return;
        const Plankosten alt = plan.Ziehen(zug);
        if (gilt(alt))
            Merken();
        else
            plan.Zurück();
    }

    void Merken()
    {
        if (plan.Kosten() < rundenkosten)
            rundenkosten = plan.Kosten();
        if (plan.Kosten() < besteKosten) {
            besteKosten = plan.Kosten();
            beste = plan.Alle();
        }
    }

    bool IstAbgebrochen()
    {
        abgebrochen = abgebrochen || (auftrag.Abbruch && auftrag.Abbruch());
        if (auftrag.Fortschritt && ++gefragt % 256 == 0)
            auftrag.Fortschritt(beste, besteKosten);
        return abgebrochen;
    }

    const Aufgabe &aufgabe;
    const Besetzungssuche &auftrag;
    Besetzung plan;
    Los los;
    Zugwahl wahl;
    Plankosten grenze;
    std::vector<int> beste;
    Plankosten besteKosten;
    Plankosten rundenkosten; // the best of this round
    static constexpr double Streng = 5;
    double strenge = Streng; // how much a breach counts
    double energie = 0;      // of the plan, during the annealing
    std::array<double, 4096> logarithmen;
    unsigned gefragt = 0;
    bool abgebrochen = false;
};

} // namespace

Suchergebnis BesteBesetzung(const Besetzungsaufgabe &aufgabe, const Besetzungssuche &suche)
{
    return Suche(aufgabe, suche).Suchen();
}

} // namespace altardienst
