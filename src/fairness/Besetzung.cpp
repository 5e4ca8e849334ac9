// A plan while it is being balanced. A move costs no more than looking again at the masses and
// persons that it touches.
#include "fairness/Besetzung.h"

#include "assignment/Gründe.h"
#include "assignment/Ziehung.h"

#include <algorithm>

namespace altardienst {
namespace {

using Aufgabe = Besetzungsaufgabe;

// How much a breach weighs among those of the same number: if one cannot be avoided, then rather a
// pair that does not match than a place that stays empty.
constexpr int Leichter = 10;
constexpr int Schwerer = 11;

// Hints, against one for a helper's second service within two days.
constexpr int FremderDienst = 3;
constexpr int FalscheGröße = 3;
constexpr int GemischtesWunschpaar = 3;

// Parts of the unrest.
constexpr std::int64_t JeDienstart = 200; // by the square of how often somebody has the service
constexpr std::int64_t JeAbstand = 1000;  // for gaps as even as can be; up to several times that
constexpr std::int64_t JeWechsel = 30;

constexpr std::size_t Nr(int i)
{
    return static_cast<std::size_t>(i);
}

void Verstoß(Plankosten &kosten, int schwere)
{
    ++kosten.Verstöße;
    kosten.Schwere += schwere;
}

} // namespace

Plankosten &Plankosten::operator+=(const Plankosten &b)
{
    Verstöße += b.Verstöße;
    Schwere += b.Schwere;
    Hinweise += b.Hinweise;
    Ungleich += b.Ungleich;
    Getrennt += b.Getrennt;
    Unruhe += b.Unruhe;
    return *this;
}

Plankosten &Plankosten::operator-=(const Plankosten &b)
{
    Verstöße -= b.Verstöße;
    Schwere -= b.Schwere;
    Hinweise -= b.Hinweise;
    Ungleich -= b.Ungleich;
    Getrennt -= b.Getrennt;
    Unruhe -= b.Unruhe;
    return *this;
}

bool Besetzung::Zug::Dazu(int platz, int person)
{
    for (std::size_t k = 0; k < Anzahl; ++k)
        if (Setzungen[k].Platz == platz)
            return false;
    if (Anzahl == Meiste)
        return false;
    Setzungen[Anzahl++] = {platz, person};
    return true;
}

Besetzung::Besetzung(const Besetzungsaufgabe &aufgabe)
    : aufgabe(aufgabe), dienste(aufgabe.Personen.size()), terminkosten(aufgabe.Termine.size()),
      personenkosten(aufgabe.Personen.size())
{
    wer.reserve(aufgabe.Plätze.size());
    for (const Aufgabe::Platz &platz : aufgabe.Plätze)
        wer.push_back(platz.Anfangs);
    Stellen(wer);
}

void Besetzung::Stellen(const std::vector<int> &neue)
{
    wer = neue;
    for (auto &plätze : dienste)
        plätze.clear();
    for (std::size_t p = 0; p < wer.size(); ++p)
        if (wer[p] >= 0)
            dienste[Nr(wer[p])].push_back(static_cast<int>(p));
    gesamt = {};
    for (std::size_t t = 0; t < terminkosten.size(); ++t)
        gesamt += terminkosten[t] = TerminRechnen(static_cast<int>(t));
    for (std::size_t j = 0; j < personenkosten.size(); ++j)
        gesamt += personenkosten[j] = PersonRechnen(static_cast<int>(j));
}

void Besetzung::Umsetzen(int platz, int person)
{
    int &wer_ = wer[Nr(platz)];
    if (wer_ >= 0) {
        auto &plätze = dienste[Nr(wer_)];
        plätze.erase(std::ranges::lower_bound(plätze, platz));
    }
    wer_ = person;
    if (person >= 0) {
        auto &plätze = dienste[Nr(person)];
        plätze.insert(std::ranges::lower_bound(plätze, platz), platz);
    }
}

/// Notes the masses and persons that a move touches, with their costs.
void Besetzung::Betroffen(const Zug &zug)
{
    alteTerminzahl = altePersonenzahl = 0;
    const auto vormerken = [](auto &liste, std::size_t &zahl, int nr, const auto &kosten) {
        for (std::size_t k = 0; k < zahl; ++k)
            if (liste[k].Nr == nr)
                return;
        liste[zahl++] = {nr, kosten[Nr(nr)]};
    };
    for (std::size_t k = 0; k < zug.Anzahl; ++k) {
        const auto &[platz, person] = zug.Setzungen[k];
        vormerken(alteTermine, alteTerminzahl, aufgabe.PlatzNr(platz).Termin, terminkosten);
        for (const int wen : {Wer(platz), person})
            if (wen >= 0)
                vormerken(altePersonen, altePersonenzahl, wen, personenkosten);
    }
}

Plankosten Besetzung::Ziehen(const Zug &zug)
{
    altesGesamt = gesamt;
    Betroffen(zug);
    vorher.Anzahl = zug.Anzahl;
    for (std::size_t k = 0; k < zug.Anzahl; ++k)
        vorher.Setzungen[k] = {zug.Setzungen[k].Platz, Wer(zug.Setzungen[k].Platz)};
    for (std::size_t k = 0; k < zug.Anzahl; ++k)
        Umsetzen(zug.Setzungen[k].Platz, zug.Setzungen[k].Person);
    for (std::size_t k = 0; k < alteTerminzahl; ++k) {
        const int t = alteTermine[k].Nr;
        gesamt -= alteTermine[k].Kosten;
        gesamt += terminkosten[Nr(t)] = TerminRechnen(t);
    }
    for (std::size_t k = 0; k < altePersonenzahl; ++k) {
        const int j = altePersonen[k].Nr;
        gesamt -= altePersonen[k].Kosten;
        gesamt += personenkosten[Nr(j)] = PersonRechnen(j);
    }
    return altesGesamt;
}

void Besetzung::Zurück()
{
    for (std::size_t k = 0; k < vorher.Anzahl; ++k)
        Umsetzen(vorher.Setzungen[k].Platz, vorher.Setzungen[k].Person);
    for (std::size_t k = 0; k < alteTerminzahl; ++k)
        terminkosten[Nr(alteTermine[k].Nr)] = alteTermine[k].Kosten;
    for (std::size_t k = 0; k < altePersonenzahl; ++k)
        personenkosten[Nr(altePersonen[k].Nr)] = altePersonen[k].Kosten;
    gesamt = altesGesamt;
}

/// What holds for a place whoever stands in the others.
void Besetzung::PlatzRechnen(int platz, Plankosten &kosten) const
{
    const Aufgabe::Platz &p = aufgabe.PlatzNr(platz);
    const int wen = Wer(platz);
    if (wen < 0) {
        if (p.Frei)
            Verstoß(kosten, Schwerer);
    } else if (!aufgabe.Kann(platz, wen)) {
        Verstoß(kosten, Schwerer);
    }
    if (p.Anfangs >= 0 && wen != p.Anfangs)
        kosten.Unruhe += JeWechsel;
}

bool Besetzung::StehtDavor(const Aufgabe::Termin &termin, int platz) const
{
    return std::find(wer.begin() + termin.Von, wer.begin() + platz, Wer(platz)) !=
           wer.begin() + platz;
}

/// Whether the wish partner could be there but does not stand beside.
bool Besetzung::IstPartnerFern(const Aufgabe::Termin &termin, int platz) const
{
    const int partner = aufgabe.Personen[Nr(Wer(platz))].Partner;
    return partner >= 0 && termin.Weg[Nr(partner)] == 0 &&
           (platz == termin.Von || Wer(platz - 1) != partner) &&
           (platz + 1 == termin.Bis || Wer(platz + 1) != partner);
}

Plankosten Besetzung::TerminRechnen(int termin) const
{
    const Aufgabe::Termin &t = aufgabe.Termine[Nr(termin)];
    Plankosten kosten;
    if (aufgabe.FürDiener())
        DienerRechnen(t, kosten);
    else
        HelferRechnen(t, kosten);
    return kosten;
}

void Besetzung::DienerRechnen(const Aufgabe::Termin &termin, Plankosten &kosten) const
{
    constexpr int Bestimmende = 3; // slots that set the height reference, if all are filled
    const Plantabellen &t = aufgabe.Tabellen;
    Laufstand stand;
    bool hatBezug = true;
    for (int p = termin.Von; p < termin.Bis; ++p) {
        PlatzRechnen(p, kosten);
        const int slot = aufgabe.PlatzNr(p).Wo.Nr;
        const int wen = Wer(p);
        if (wen < 0) {
            hatBezug = hatBezug && slot > Bestimmende;
            continue;
        }
        if (hatBezug) {
            if (GrößePrüfen({t.Diener, wen}, {t.Messen, t.Einstellungen, termin.Satz, slot},
                            stand) != Grund::Keiner)
                kosten.Hinweise += FalscheGröße;
            stand.MittelGröße = MittelGrößeNach(slot, t.Diener.Größe[wen], stand.MittelGröße);
        }
        if (slot % 2 == 0 && Wer(p - 1) >= 0 && aufgabe.Paarweise[Nr(Wer(p - 1))][Nr(wen)] == 0) {
            if (aufgabe.SindWunschpartner(Wer(p - 1), wen))
                kosten.Hinweise += GemischtesWunschpaar;
            else
                Verstoß(kosten, Leichter);
        }
        if (StehtDavor(termin, p))
            Verstoß(kosten, Schwerer);
        kosten.Getrennt += IstPartnerFern(termin, p);
    }
}

void Besetzung::HelferRechnen(const Aufgabe::Termin &termin, Plankosten &kosten) const
{
    for (int p = termin.Von; p < termin.Bis; ++p) {
        PlatzRechnen(p, kosten);
        const int wen = Wer(p);
        if (wen >= 0 && StehtDavor(termin, p))
            Verstoß(kosten, Schwerer);
        if (wen >= 0 && aufgabe.KreisVon(p).Nennt[Nr(wen)] == 0)
            kosten.Hinweise += FremderDienst;
    }
}

/// Whether a service keeps the same person from another one later.
bool Besetzung::IstGesperrtNach(int zuvor, int platz) const
{
    const int früher = aufgabe.PlatzNr(zuvor).Termin;
    const int später = aufgabe.PlatzNr(platz).Termin;
    return früher != später &&
           IstGesperrt(aufgabe.Termine[Nr(früher)].Tag, aufgabe.Termine[Nr(später)].Tag);
}

Plankosten Besetzung::PersonRechnen(int person) const
{
    Plankosten kosten;
    const std::vector<int> &plätze = Dienste(person);
    std::array<int, Dienstarten.size()> jeDienst{};
    for (std::size_t k = 0; k < plätze.size(); ++k) {
        ++jeDienst[Nr(aufgabe.PlatzNr(plätze[k]).Dienst)];
        if (k == 0 || !IstGesperrtNach(plätze[k - 1], plätze[k]))
            continue;
        if (aufgabe.FürDiener())
            Verstoß(kosten, Leichter);
        else
            ++kosten.Hinweise;
    }
    const std::int64_t über = Über(person);
    kosten.Ungleich = über * über;
    for (const int zahl : jeDienst)
        kosten.Unruhe += JeDienstart * zahl * zahl;
    kosten.Unruhe += Abstände(plätze);
    return kosten;
}

/// `JeAbstand` if the services are as far apart as the plan is long, with half a gap at both ends.
std::int64_t Besetzung::Abstände(const std::vector<int> &plätze) const
{
    if (plätze.empty())
        return 0;
    const auto tag = [&](int platz) {
        return static_cast<std::int64_t>(aufgabe.Termine[Nr(aufgabe.PlatzNr(platz).Termin)].Tag);
    };
    const auto erster = static_cast<std::int64_t>(aufgabe.Termine.front().Tag);
    const auto letzter = static_cast<std::int64_t>(aufgabe.Termine.back().Tag);
    const std::int64_t länge = letzter - erster + 1;
    const std::int64_t anfang = tag(plätze.front()) - erster;
    const std::int64_t ende = letzter - tag(plätze.back());
    std::int64_t quadrate = 2 * (anfang * anfang + ende * ende);
    for (std::size_t k = 1; k < plätze.size(); ++k) {
        const std::int64_t abstand = tag(plätze[k]) - tag(plätze[k - 1]);
        quadrate += abstand * abstand;
    }
    return JeAbstand * quadrate * static_cast<std::int64_t>(plätze.size()) / (länge * länge);
}

} // namespace altardienst
