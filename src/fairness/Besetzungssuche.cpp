// The search: moves that are chosen at random with an eye for what is wrong, accepted the more
// easily the worse the plan may still become in between (simulated annealing). First gently from
// the plan as it stands, so that much of it stays; if that does not lead to the goal, more and more
// freely. Last, everything that costs nothing is put right.
#include "fairness/Besetzungssuche.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace altardienst {
namespace {

using Aufgabe = Besetzungsaufgabe;
using Zug = Besetzung::Zug;

constexpr std::size_t Nr(int i)
{
    return static_cast<std::size_t>(i);
}

/// Small random numbers, the same on every machine.
class Los {
  public:
    explicit Los(std::uint32_t saat) : stand(saat * 0x9E3779B97F4A7C15ULL + 1) {}

    std::uint32_t Bits()
    {
        stand += 0x9E3779B97F4A7C15ULL;
        std::uint64_t z = stand;
        z = (z ^ z >> 30) * 0xBF58476D1CE4E5B9ULL;
        z = (z ^ z >> 27) * 0x94D049BB133111EBULL;
        return static_cast<std::uint32_t>(z >> 32);
    }
    /// From 0 up to but not including `n`.
    int Unter(int n)
    {
        return static_cast<int>(std::uint64_t{Bits()} * static_cast<std::uint64_t>(n) >> 32);
    }
    int Unter(std::size_t n) { return Unter(static_cast<int>(n)); }
    template <class T> const T &Aus(const std::vector<T> &liste)
    {
        return liste[Nr(Unter(liste.size()))];
    }

  private:
    std::uint64_t stand;
};

/// How steeply each kind of cost counts during the annealing. With less strictness the way from one
/// plan without a breach to another leads over plans with some.
double Energie(const Plankosten &kosten, double strenge)
{
    return strenge *
               (static_cast<double>(kosten.Verstöße) + 0.01 * static_cast<double>(kosten.Schwere) +
                0.14 * static_cast<double>(kosten.Hinweise)) +
           1e-6 * static_cast<double>(kosten.Ungleich) +
           0.15 * static_cast<double>(kosten.Getrennt) + 2e-5 * static_cast<double>(kosten.Unruhe);
}

class Suche {
  public:
    Suche(const Aufgabe &aufgabe, const Besetzungssuche &auftrag)
        : aufgabe(aufgabe), auftrag(auftrag), plan(aufgabe), los(auftrag.Saat),
          grenze(Untergrenze(aufgabe)), beste(plan.Alle()), besteKosten(plan.Kosten())
    {
        for (std::size_t p = 0; p < aufgabe.Plätze.size(); ++p)
            if (aufgabe.Plätze[p].Frei && !aufgabe.KreisVon(static_cast<int>(p)).Personen.empty())
                freie.push_back(static_cast<int>(p));
        for (std::size_t k = 0; k < logarithmen.size(); ++k)
            logarithmen[k] =
                -std::log((static_cast<double>(k) + 0.5) / static_cast<double>(logarithmen.size()));
    }

    Suchergebnis Suchen()
    {
        if (!freie.empty())
            Ablauf();
        return {beste, besteKosten, AmZiel(), abgebrochen};
    }

  private:
    void Ablauf()
    {
        // Large plans have more room to give way: each place needs fewer tries.
        constexpr double Gewöhnlich = 400;
        const double zahl = static_cast<double>(freie.size());
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
        int vergeblich = 0;
        for (int runde = 0; runde < Runden && !AmZiel() && !abgebrochen; ++runde) {
            const Plankosten zuvor = besteKosten;
            if (runde % 2 == 1)
                plan.Stellen(beste);
            const double schritte = runde < Runden / 2 ? 1500 * wenigstens : 4000 * plätze;
            strenge = runde % 4 == 0 ? Streng : runde % 2 == 0 ? Streng / 2 : Streng / 3;
            if (runde < 2 || schritte < Erträglich * auftrag.Aufwand)
                Abkühlen(runde % 2 == 0 ? 1.5 : 0.7, schritte);
            // A small plan that keeps all rules could only be more even, which would have shown.
            vergeblich = besteKosten.Ungleich < zuvor.Ungleich ? 0 : vergeblich + 1;
            if (besteKosten.Verstöße == 0 && besteKosten.Hinweise == 0 && vergeblich == 4 &&
                zahl < Klein)
                break;
        }
        plan.Stellen(beste);
        Glätten(600 * plätze);
        if (!abgebrochen)
            Nachbessern();
    }

    bool AmZiel() const
    {
        return besteKosten.Verstöße <= grenze.Verstöße && besteKosten.Hinweise == 0 &&
               besteKosten.Ungleich <= grenze.Ungleich;
    }

    /// Empty places get whoever is furthest below his share, so that the plan is whole early.
    void Füllen()
    {
        for (const int platz : freie) {
            if (plan.Wer(platz) >= 0 && aufgabe.Kann(platz, plan.Wer(platz)))
                continue;
            int wen = Aufgabe::Niemand;
            double niedrigste = Energie(plan.Kosten(), strenge);
            for (const int person : Nächstliegende(platz)) {
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

    /// Those with the fewest services for their share.
    std::vector<int> Nächstliegende(int platz) const
    {
        constexpr std::size_t Meiste = 8;
        std::vector<std::pair<std::int64_t, int>> reihe;
        for (const int person : aufgabe.KreisVon(platz).Personen)
            reihe.emplace_back(Güte(person, platz), person);
        const std::size_t zahl = std::min(Meiste, reihe.size());
        std::partial_sort(reihe.begin(), reihe.begin() + static_cast<std::ptrdiff_t>(zahl),
                          reihe.end());
        std::vector<int> personen;
        for (std::size_t k = 0; k < zahl; ++k)
            personen.push_back(reihe[k].second);
        return personen;
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
        for (double stufe = 0; stufe < stufen && !IstAbgebrochen(); ++stufe, wärme *= faktor) {
            if (static_cast<int>(stufe) % 4 == 0)
                WundeStellen();
            for (int k = 0; k < static_cast<int>(JeStufe); ++k)
                Versuchen([&](const Plankosten &alt) {
                    const double mehr = Energie(plan.Kosten(), strenge) - Energie(alt, strenge);
                    return mehr <= 0 || mehr < wärme * logarithmen[los.Bits() % logarithmen.size()];
                });
        }
    }

    /// Only what makes nothing worse.
    void Glätten(double schritte)
    {
        for (double k = 0; k < schritte; ++k) {
            if (static_cast<int>(k) % 64 == 0) {
                if (IstAbgebrochen())
                    return;
                WundeStellen();
            }
            Versuchen([&](const Plankosten &alt) { return plan.Kosten() <= alt; });
        }
    }

    /// Leaves no place with a breach in which somebody else alone would be better.
    void Nachbessern()
    {
        plan.Stellen(beste);
        WundeStellen();
        for (bool besser = !wunde.empty(); besser;) {
            besser = false;
            for (const int platz : wunde)
                for (const int person : aufgabe.KreisVon(platz).Personen) {
                    const Plankosten alt = plan.Ziehen(Einer(platz, person));
                    if (plan.Kosten() < alt)
                        besser = true;
                    else
                        plan.Zurück();
                }
            Merken();
            WundeStellen();
        }
    }

    template <class F> void Versuchen(F gilt)
    {
        Zug zug;
        if (!ZugWählen(zug))
            return;
        const Plankosten alt = plan.Ziehen(zug);
        if (gilt(alt))
            Merken();
        else
            plan.Zurück();
    }

    void Merken()
    {
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

    /// The places with a breach.
    void WundeStellen()
    {
        wunde.clear();
        if (plan.Kosten().Verstöße == 0)
            return;
        for (const int platz : freie)
            if (plan.VerstößtBei(plan.Wer(platz)) ||
                plan.VerstößtImTermin(aufgabe.PlatzNr(platz).Termin))
                wunde.push_back(platz);
    }

    bool ZugWählen(Zug &zug)
    {
        const int platz = !wunde.empty() && los.Unter(2) == 0 ? los.Aus(wunde) : los.Aus(freie);
        const int art = los.Unter(100);
        if (art < 35)
            return Ersetzen(zug, platz);
        if (art < 60)
            return Tauschen(zug, platz, los.Aus(freie));
        if (art < 70)
            return InDerMesseTauschen(zug, platz);
        if (art < 82)
            return Weiterreichen(zug, platz);
        return aufgabe.FürDiener() ? art < 92 ? PaarErsetzen(zug, platz) : PartnerHolen(zug, platz)
                                   : Ersetzen(zug, platz);
    }

    /// Somebody for a place: of some at random the one with the fewest services for his share.
    int Wählen(int platz, int stattdessen)
    {
        const std::vector<int> &personen = aufgabe.KreisVon(platz).Personen;
        int wen = los.Aus(personen);
        for (int proben = los.Unter(4); proben > 0; --proben) {
            const int andere = los.Aus(personen);
            if (wen == stattdessen ||
                (andere != stattdessen && Güte(andere, platz) < Güte(wen, platz)))
                wen = andere;
        }
        return wen;
    }

    std::int64_t Güte(int person, int platz) const
    {
        constexpr std::int64_t Gesperrt = 2500;
        const int termin = aufgabe.PlatzNr(platz).Termin;
        for (const int anderer : plan.Dienste(person))
            if (std::abs(aufgabe.Termine[Nr(aufgabe.PlatzNr(anderer).Termin)].Tag -
                         aufgabe.Termine[Nr(termin)].Tag) < 2)
                return plan.Über(person) + Gesperrt;
        return plan.Über(person);
    }

    bool Ersetzen(Zug &zug, int platz)
    {
        const int wen = Wählen(platz, plan.Wer(platz));
        return wen != plan.Wer(platz) && zug.Dazu(platz, wen);
    }

    bool Tauschen(Zug &zug, int platz, int anderer)
    {
        const int a = plan.Wer(platz);
        const int b = plan.Wer(anderer);
        return a != b && a != Aufgabe::Fremd && b != Aufgabe::Fremd && aufgabe.Kann(anderer, a) &&
               aufgabe.Kann(platz, b) && zug.Dazu(platz, b) && zug.Dazu(anderer, a);
    }

    bool InDerMesseTauschen(Zug &zug, int platz)
    {
        const Aufgabe::Termin &termin = aufgabe.Termine[Nr(aufgabe.PlatzNr(platz).Termin)];
        const int anderer = termin.Von + los.Unter(termin.Bis - termin.Von);
        return aufgabe.PlatzNr(anderer).Frei && Tauschen(zug, platz, anderer);
    }

    /// Somebody comes from one of his other places, where the one who makes room goes if he can, or
    /// else a third.
    bool Weiterreichen(Zug &zug, int platz)
    {
        const int weg = plan.Wer(platz);
        const int wen = los.Aus(aufgabe.KreisVon(platz).Personen);
        if (wen == weg || plan.Dienste(wen).empty())
            return false;
        const int woher = Nächster(wen, platz);
        if (!aufgabe.PlatzNr(woher).Frei || aufgabe.KreisVon(woher).Personen.empty() ||
            !zug.Dazu(platz, wen))
            return false;
        if (weg >= 0 && aufgabe.Kann(woher, weg) && los.Unter(2) == 0)
            return zug.Dazu(woher, weg);
        const int dritter = Wählen(woher, wen);
        return dritter != wen && zug.Dazu(woher, dritter);
    }

    /// The place of a person that is nearest in time.
    int Nächster(int person, int platz) const
    {
        const std::vector<int> &plätze = plan.Dienste(person);
        const auto nach = std::ranges::lower_bound(plätze, platz);
        if (nach == plätze.begin())
            return *nach;
        if (nach == plätze.end() || platz - *(nach - 1) < *nach - platz)
            return *(nach - 1);
        return *nach;
    }

    /// The other place of the pair, -1 if there is none to fill.
    int Nebenplatz(int platz) const
    {
        const int slot = aufgabe.PlatzNr(platz).Wo.Nr;
        const int anderer = slot % 2 == 0 ? platz - 1 : platz + 1;
        if (anderer >= static_cast<int>(aufgabe.Plätze.size()) || anderer < 0 ||
            aufgabe.PlatzNr(anderer).Termin != aufgabe.PlatzNr(platz).Termin ||
            !aufgabe.PlatzNr(anderer).Frei || aufgabe.KreisVon(anderer).Personen.empty())
            return -1;
        return anderer;
    }

    /// Both of a pair, by two others of one sex or by the pair of another mass.
    bool PaarErsetzen(Zug &zug, int platz)
    {
        const int daneben = Nebenplatz(platz);
        if (daneben < 0)
            return Ersetzen(zug, platz);
        if (los.Unter(2) == 0) {
            const int fern = los.Aus(freie);
            const int fernDaneben = Nebenplatz(fern);
            return fernDaneben >= 0 && Tauschen(zug, platz, fern) &&
                   Tauschen(zug, daneben, fernDaneben);
        }
        const int erster = Wählen(platz, plan.Wer(platz));
        int zweiter = Wählen(daneben, plan.Wer(daneben));
        for (int proben = 4;
             proben > 0 && (zweiter == erster || !aufgabe.Paarweise[Nr(erster)][Nr(zweiter)]);
             --proben)
            zweiter = Wählen(daneben, plan.Wer(daneben));
        return erster != zweiter && zug.Dazu(platz, erster) && zug.Dazu(daneben, zweiter);
    }

    /// The wish partner comes to stand beside, from his nearest place or in addition.
    bool PartnerHolen(Zug &zug, int platz)
    {
        const int wer = plan.Wer(platz);
        const int partner = wer >= 0 ? aufgabe.Personen[Nr(wer)].Partner : -1;
        if (partner < 0)
            return Ersetzen(zug, platz);
        const int daneben = platz + (los.Unter(2) == 0 ? 1 : -1);
        if (daneben < 0 || daneben >= static_cast<int>(aufgabe.Plätze.size()) ||
            aufgabe.PlatzNr(daneben).Termin != aufgabe.PlatzNr(platz).Termin ||
            !aufgabe.PlatzNr(daneben).Frei || !aufgabe.Kann(daneben, partner) ||
            plan.Wer(daneben) == partner)
            return false;
        if (!plan.Dienste(partner).empty() && los.Unter(4) > 0) {
            const int woher = Nächster(partner, platz);
            if (aufgabe.PlatzNr(woher).Frei && Tauschen(zug, daneben, woher))
                return true;
            zug.Anzahl = 0;
        }
        return zug.Dazu(daneben, partner);
    }

    const Aufgabe &aufgabe;
    const Besetzungssuche &auftrag;
    Besetzung plan;
    Los los;
    Plankosten grenze;
    std::vector<int> freie; // places that somebody can fill
    std::vector<int> wunde; // those of them with a breach
    std::vector<int> beste;
    Plankosten besteKosten;
    static constexpr double Streng = 5;
    double strenge = Streng; // how much a breach counts
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
