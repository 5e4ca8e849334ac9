// "Wer kann hier?".
#include "overview/Kandidaten.h"

#include "core/Gruppen.h"

#include <algorithm>
#include <array>
#include <tuple>

namespace altardienst {
namespace {

bool StehtVor(const MesseTabelle &messen, int a, int b)
{
    return std::tie(messen.Datum[a], messen.Uhrzeit[a]) <
           std::tie(messen.Datum[b], messen.Uhrzeit[b]);
}

void DiensteZählen(const Planprüfung &prüfung, Planplatz platz, Platzkandidat &kandidat)
{
    const MesseTabelle &messen = prüfung.Tabellen().Messen;
    for (const Planplatz dienst : prüfung.Dienste(platz.Was, kandidat.Nr)) {
        if (dienst == platz)
            continue;
        ++kandidat.Dienste;
        if (StehtVor(messen, dienst.Messe, platz.Messe))
            kandidat.Zuletzt = messen.Datum[dienst.Messe];
        else if (StehtVor(messen, platz.Messe, dienst.Messe) && kandidat.Danach == 0)
            kandidat.Danach = messen.Datum[dienst.Messe];
    }
}

void GründeSammeln(const Planprüfung &prüfung, Planplatz platz, Platzkandidat &kandidat)
{
    for (const Befund &befund : prüfung.GegenPerson(platz, kandidat.Nr))
        kandidat.Gegengründe.push_back(
            {befund, befund.Wo == platz ? SatzGegen(prüfung.Tabellen(), befund, kandidat.Nr)
                                        : Satz(prüfung.Tabellen(), befund)});
}

/// Whether no rule is against the wish partner beside a place. With the one who is to stand there
/// he may form a pair whatever the sex of the two: they want it so.
bool KannDanebenStehen(const Planprüfung &prüfung, Planplatz ort, int nr, Planplatz platz)
{
    return std::ranges::none_of(prüfung.GegenPerson(ort, nr), [&](const Befund &befund) {
        const bool istIhrPaar =
            befund.Gegen == Regel::Geschlecht && (befund.Wo == platz || befund.Bezug == platz);
        return befund.Grad == Stufe::Verstoß && !istIhrPaar;
    });
}

void PartnerSuchen(const Planprüfung &prüfung, Planplatz platz, Platzkandidat &kandidat)
{
    const Plantabellen &t = prüfung.Tabellen();
    kandidat.Partner = prüfung.Wunschpartner(kandidat.Nr);
    if (kandidat.Partner < 0 || kandidat.Partner == kandidat.Nr) // nobody stands beside himself
        return;
    // The partner way puts the partner in the next slot; a pair begins at an odd one.
    const int paarslot = platz.Nr % 2 == 1 ? platz.Nr + 1 : platz.Nr - 1;
    const int anderer = 2 * platz.Nr - paarslot;
    std::array<Planplatz, 2> daneben = {Dienerplatznr(platz.Messe, paarslot),
                                        Dienerplatznr(platz.Messe, anderer)};
    const auto istFrei = [&](Planplatz ort) {
        return prüfung.WerSteht(ort) == Namensregister::Frei;
    };
    const auto gibtEs = [&](Planplatz ort) { return ort.Nr >= 1 && IstGewünscht(t.Messen, ort); };
    if (gibtEs(daneben[1]) && istFrei(daneben[1]) && !(gibtEs(daneben[0]) && istFrei(daneben[0])))
        std::swap(daneben[0], daneben[1]);
    for (const Planplatz ort : daneben) {
        if (!gibtEs(ort))
            continue;
        if (prüfung.WerSteht(ort) == kandidat.Partner)
            kandidat.PartnerDaneben = true;
        if (kandidat.Partnerplatz == 0 && KannDanebenStehen(prüfung, ort, kandidat.Partner, platz))
            kandidat.Partnerplatz = ort.Nr;
    }
    if (kandidat.PartnerDaneben)
        kandidat.Partnerplatz = 0;
}

Platzkandidat Diener(const Planprüfung &prüfung, Planplatz platz, int nr)
{
    const MeßdienerTabelle &t = prüfung.Tabellen().Diener;
    Platzkandidat kandidat{
        .Nr = nr, .Vorname = t.Vorname[nr], .Nachname = t.Nachname[nr], .Gruppe = t.Gruppe[nr]};
    kandidat.Häufigkeit = t.Häufigkeit[nr];
    kandidat.Wunschpartner = VollerName(t.WunschVorname[nr], t.WunschNachname[nr]);
    if (platz.Nr <= Dienerplätze(prüfung.Tabellen().Messen, platz.Messe))
        PartnerSuchen(prüfung, platz, kandidat);
    return kandidat;
}

template <class Tabelle, class F>
std::vector<Platzkandidat> AlleMitNamen(const Tabelle &personen, F kandidat)
{
    std::vector<Platzkandidat> alle;
    for (int nr = 0; nr < personen.Anzahl && nr <= Tabelle::HöchsterIndex; ++nr)
        if (!personen.Vorname[nr].empty() && !personen.Nachname[nr].empty())
            alle.push_back(kandidat(nr));
    return alle;
}

} // namespace

int Platzkandidat::Rang() const
{
    if (Gegengründe.empty())
        return 0;
    return std::ranges::any_of(
               Gegengründe,
               [](const Gegengrund &grund) { return grund.Was.Grad == Stufe::Verstoß; })
               ? 2
               : 1;
}

std::vector<Platzkandidat> WerKannHier(const Planprüfung &prüfung, Planplatz platz)
{
    const HelferTabelle &helfer = prüfung.Tabellen().Helferinnen;
    std::vector<Platzkandidat> alle =
        platz.Was == Planplatz::Art::Diener
            ? AlleMitNamen(prüfung.Tabellen().Diener,
                           [&](int nr) { return Diener(prüfung, platz, nr); })
            : AlleMitNamen(helfer, [&](int nr) {
                  return Platzkandidat{
                      .Nr = nr, .Vorname = helfer.Vorname[nr], .Nachname = helfer.Nachname[nr]};
              });
    for (Platzkandidat &kandidat : alle) {
        DiensteZählen(prüfung, platz, kandidat);
        GründeSammeln(prüfung, platz, kandidat);
    }
    std::stable_sort(alle.begin(), alle.end(), [](const Platzkandidat &a, const Platzkandidat &b) {
        return std::tuple(a.Rang(), a.Dienste, a.Zuletzt) <
               std::tuple(b.Rang(), b.Dienste, b.Zuletzt);
    });
    return alle;
}

} // namespace altardienst
