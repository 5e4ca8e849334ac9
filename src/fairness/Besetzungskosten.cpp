// What a plan costs, mass by mass and person by person, by the rules of draw and check.
#include "fairness/Besetzung.h"

#include "assignment/Gründe.h"
#include "assignment/Ziehung.h"

#include <algorithm>

namespace altardienst {
namespace {

using Aufgabe = Besetzungsaufgabe;

// Hints, against one for a helper's second service within two days.
constexpr int FremderDienst = 3;
constexpr int FalscheGröße = 3;
constexpr int GemischtesWunschpaar = 3;

// Parts of the unrest.
constexpr std::int64_t JeDienstart = 200; // by the square of how often somebody has the service
constexpr std::int64_t JeAbstand = 1000;  // for gaps as even as can be; up to several times that

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

/// What holds for a place whoever stands in the others.
void Besetzung::PlatzRechnen(int platz, Plankosten &kosten) const
{
    const Aufgabe::Platz &p = aufgabe.PlatzNr(platz);
    const int wen = Wer(platz);
    if (wen < 0) {
        if (p.Frei)
            Verstoß(kosten, Plankosten::Schwerer);
    } else if (!aufgabe.Kann(platz, wen)) {
        Verstoß(kosten, Plankosten::Schwerer);
    }
    if (p.Anfangs >= 0 && wen != p.Anfangs)
        ++kosten.Wechsel;
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
    bool hatBezug = aufgabe.GrößeZählt;
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
                Verstoß(kosten, Plankosten::Leichter);
        }
        if (StehtDavor(termin, p))
            Verstoß(kosten, Plankosten::Schwerer);
        kosten.Getrennt += IstPartnerFern(termin, p);
    }
}

void Besetzung::HelferRechnen(const Aufgabe::Termin &termin, Plankosten &kosten) const
{
    for (int p = termin.Von; p < termin.Bis; ++p) {
        PlatzRechnen(p, kosten);
        const int wen = Wer(p);
        if (wen >= 0 && StehtDavor(termin, p))
            Verstoß(kosten, Plankosten::Schwerer);
        if (wen >= 0 && aufgabe.KreisVon(p).Nennt[Nr(wen)] == 0)
            kosten.Hinweise += FremderDienst;
    }
}

/// Whether a service keeps the same person from another one later.
bool Besetzung::IstGesperrtNach(int zuvor, int platz) const
{
    return termine[Nr(zuvor)] != termine[Nr(platz)] &&
           IstGesperrt(tage[Nr(zuvor)], tage[Nr(platz)]);
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
            Verstoß(kosten, Plankosten::Leichter);
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
    const auto tag = [&](int platz) { return static_cast<std::int64_t>(tage[Nr(platz)]); };
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
