// Which move to try next.
#include "fairness/Zugwahl.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace altardienst {
namespace {

using Aufgabe = Besetzungsaufgabe;
using Zug = Besetzung::Zug;

constexpr std::size_t Nr(int i)
{
    return static_cast<std::size_t>(i);
}

} // namespace

Zugwahl::Zugwahl(const Besetzung &plan, Los &los) : plan(plan), aufgabe(plan.Aufgabe()), los(los)
{
    for (int p = 0; p < static_cast<int>(aufgabe.Plätze.size()); ++p)
        if (IstBesetzbar(p))
            freie.push_back(p);
}

bool Zugwahl::IstBesetzbar(int platz) const
{
    return aufgabe.PlatzNr(platz).Frei && !aufgabe.KreisVon(platz).Personen.empty();
}

const std::vector<int> &Zugwahl::WundeSuchen()
{
    wunde.clear();
    if (plan.Kosten().Verstöße == 0)
        return wunde;
    for (const int platz : freie)
        if (plan.VerstößtBei(plan.Wer(platz)) ||
            plan.VerstößtImTermin(aufgabe.PlatzNr(platz).Termin))
            wunde.push_back(platz);
    return wunde;
}

std::vector<int> Zugwahl::Nächstliegende(int platz) const
{
    constexpr std::size_t Meiste = 8;
    std::vector<std::pair<std::int64_t, int>> reihe;
    for (const int person : aufgabe.KreisVon(platz).Personen)
        reihe.emplace_back(Güte(person, platz), person);
    const std::size_t zahl = std::min(Meiste, reihe.size());
    std::partial_sort(reihe.begin(), reihe.begin() + static_cast<std::ptrdiff_t>(zahl),
                      reihe.end());
    std::vector<int> personen;
    personen.reserve(zahl);
    for (std::size_t k = 0; k < zahl; ++k)
        personen.push_back(reihe[k].second);
    return personen;
}

bool Zugwahl::Wählen(Zug &zug)
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

bool Zugwahl::Heimholen(Zug &zug)
{
    int leer = los.Aus(freie);
    const int weg = plan.Wer(leer);
    int heim = aufgabe.PlatzNr(leer).Anfangs;
    if (heim < 0 || heim == weg || weg < 0)
        return false;
    while (heim >= 0 && heim != weg && aufgabe.Kann(leer, heim)) {
        const int woher = FremderPlatz(heim, zug);
        if (woher < 0 || woher == leer || !zug.Dazu(leer, heim))
            break;
        leer = woher;
        if (los.Unter(3) == 0)
            break;
        heim = aufgabe.PlatzNr(leer).Anfangs;
    }
    return zug.Anzahl > 0 && aufgabe.Kann(leer, weg) && zug.Dazu(leer, weg);
}

/// One of the places of a person where he did not stand at first, -1 if there is none to leave.
int Zugwahl::FremderPlatz(int person, const Zug &zug)
{
    const std::vector<int> &plätze = plan.Dienste(person);
    if (plätze.empty())
        return -1;
    const std::size_t beginn = Nr(los.Unter(plätze.size()));
    for (std::size_t k = 0; k < plätze.size(); ++k) {
        const int platz = plätze[(beginn + k) % plätze.size()];
        const bool imZug = std::any_of(
            zug.Setzungen.begin(), zug.Setzungen.begin() + static_cast<std::ptrdiff_t>(zug.Anzahl),
            [&](const Zug::Setzung &setzung) { return setzung.Platz == platz; });
        if (!imZug && IstBesetzbar(platz) && aufgabe.PlatzNr(platz).Anfangs != person)
            return platz;
    }
    return -1;
}

/// Somebody for a place: of some at random the one with the fewest services for his share.
int Zugwahl::Person(int platz, int stattdessen)
{
    const std::vector<int> &personen = aufgabe.KreisVon(platz).Personen;
    int wen = los.Aus(personen);
    for (int proben = los.Unter(4); proben > 0; --proben) {
        const int andere = los.Aus(personen);
        if (wen == stattdessen || (andere != stattdessen && Güte(andere, platz) < Güte(wen, platz)))
            wen = andere;
    }
    return wen;
}

/// The services above the share; whoever serves on a day next to it had better not.
std::int64_t Zugwahl::Güte(int person, int platz) const
{
    constexpr std::int64_t Gesperrt = 2500;
    const Datum tag = plan.Tag(platz);
    for (const int anderer : plan.Dienste(person))
        if (std::abs(plan.Tag(anderer) - tag) < 2)
            return plan.Über(person) + Gesperrt;
    return plan.Über(person);
}

bool Zugwahl::Ersetzen(Zug &zug, int platz)
{
    const int wen = Person(platz, plan.Wer(platz));
    return wen != plan.Wer(platz) && zug.Dazu(platz, wen);
}

bool Zugwahl::Tauschen(Zug &zug, int platz, int anderer) const
{
    const int a = plan.Wer(platz);
    const int b = plan.Wer(anderer);
    return a != b && a != Aufgabe::Fremd && b != Aufgabe::Fremd && aufgabe.Kann(anderer, a) &&
           aufgabe.Kann(platz, b) && zug.Dazu(platz, b) && zug.Dazu(anderer, a);
}

bool Zugwahl::InDerMesseTauschen(Zug &zug, int platz)
{
    const Aufgabe::Termin &termin = aufgabe.Termine[Nr(aufgabe.PlatzNr(platz).Termin)];
    const int anderer = termin.Von + los.Unter(termin.Bis - termin.Von);
    return aufgabe.PlatzNr(anderer).Frei && Tauschen(zug, platz, anderer);
}

/// Somebody comes from one of his other places, where the one who makes room goes if he can, or
/// else a third.
bool Zugwahl::Weiterreichen(Zug &zug, int platz)
{
    const int weg = plan.Wer(platz);
    const int wen = los.Aus(aufgabe.KreisVon(platz).Personen);
    if (wen == weg || plan.Dienste(wen).empty())
        return false;
    const int woher = Nächster(wen, platz);
    if (!IstBesetzbar(woher) || !zug.Dazu(platz, wen))
        return false;
    if (weg >= 0 && aufgabe.Kann(woher, weg) && los.Unter(2) == 0)
        return zug.Dazu(woher, weg);
    const int dritter = Person(woher, wen);
    return dritter != wen && zug.Dazu(woher, dritter);
}

/// The place of a person that is nearest in time.
int Zugwahl::Nächster(int person, int platz) const
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
int Zugwahl::Nebenplatz(int platz) const
{
    const int slot = aufgabe.PlatzNr(platz).Wo.Nr;
    const int anderer = slot % 2 == 0 ? platz - 1 : platz + 1;
    if (anderer >= static_cast<int>(aufgabe.Plätze.size()) || anderer < 0 ||
        aufgabe.PlatzNr(anderer).Termin != aufgabe.PlatzNr(platz).Termin || !IstBesetzbar(anderer))
        return -1;
    return anderer;
}

/// Both of a pair, by two others of one sex or by the pair of another mass.
bool Zugwahl::PaarErsetzen(Zug &zug, int platz)
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
    const int erster = Person(platz, plan.Wer(platz));
    int zweiter = Person(daneben, plan.Wer(daneben));
    for (int proben = 4;
         proben > 0 && (zweiter == erster || !aufgabe.Paarweise[Nr(erster)][Nr(zweiter)]); --proben)
        zweiter = Person(daneben, plan.Wer(daneben));
    return erster != zweiter && zug.Dazu(platz, erster) && zug.Dazu(daneben, zweiter);
}

/// The wish partner comes to stand beside, from his nearest place or in addition.
bool Zugwahl::PartnerHolen(Zug &zug, int platz)
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

} // namespace altardienst
