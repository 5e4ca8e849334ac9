// The rules of the plan, mass by mass: what they read, the mass itself, and its places.
#include "overview/Messenprüfung.h"

#include "assignment/Gründe.h"
#include "assignment/Ziehung.h"
#include "assignment/Zuweisungsrahmen.h"
#include "core/Gruppen.h"
#include "core/Überblick.h"
#include "fixed/FesteMeßdienerÜbertragen.h"
#include "overview/Abwesenheiten.h"
#include "overview/Gruppenplatz.h"

#include <algorithm>

namespace altardienst {
namespace {

int Dienstsumme(const MesseTabelle &messen, int messe)
{
    int summe = 0;
    for (const Dienstart &art : Dienstarten)
        summe += art.Zahl.In(messen)[messe];
    return summe;
}

template <class Kenntnis, class Tabelle>
void AbwesenheitenLesen(Kenntnis &kenntnis, const Tabelle &personen, int nr)
{
    kenntnis.Abwesend = 0;
    for (const Fehlzeit &abwesenheit : Abwesenheiten(personen, nr))
        if (abwesenheit.IstEingetragen())
            kenntnis.Abwesenheiten[static_cast<std::size_t>(kenntnis.Abwesend++)] = abwesenheit;
    std::sort(kenntnis.Abwesenheiten.begin(), kenntnis.Abwesenheiten.begin() + kenntnis.Abwesend,
              [](const Fehlzeit &a, const Fehlzeit &b) { return a.Von < b.Von; });
}

} // namespace

void Messenprüfung::Neu()
{
    DienerLesen();
    HelferLesen();
    const std::vector<int> &folge = plan.Folge();
    const MesseTabelle &messen = tabellen.Messen;
    zurSelbenZeit.assign(folge.size(), -1);
    for (std::size_t i = 1; i < folge.size(); ++i)
        if (messen.Datum[folge[i]] == messen.Datum[folge[i - 1]] &&
            messen.Uhrzeit[folge[i]] == messen.Uhrzeit[folge[i - 1]] && messen.Datum[folge[i]] != 0)
            zurSelbenZeit[static_cast<std::size_t>(folge[i])] = folge[i - 1];
    allesAußerhalb = std::ranges::none_of(
        folge, [&](int i) { return LiegtImZeitraum(tabellen.Einstellungen, messen.Datum[i]); });
    try {
        anteil = Dienstanteil(messen, tabellen.Diener.Anzahl);
    } catch (const Laufzeitfehler &) { // without servers, or with too many places to count
        anteil.reset();
    }
    FesteLesen();
}

void Messenprüfung::DienerLesen()
{
    const MeßdienerTabelle &t = tabellen.Diener;
    std::vector<std::string_view> geschlechter; // few, as a rule two
    for (int j = 0; j < std::min<int>(t.Anzahl, Planregister::ErsterHelfer); ++j) {
        Dienerkenntnis &k = diener[static_cast<std::size_t>(j)];
        AbwesenheitenLesen(k, t, j);
        for (std::size_t art = 0; art < Dienstarten.size(); ++art)
            k.Darf[art] = DarfDienst(t, j, Dienstarten[art]);
        k.Ungern[1] = LehntWochendienstAb(t, j);
        for (std::size_t stelle = 2; stelle < k.Ungern.size(); ++stelle)
            k.Ungern[stelle] = IstJa(t.Wochendienst[j], static_cast<int>(stelle));
        const auto geschlecht = std::ranges::find(geschlechter, std::string_view(t.Geschlecht[j]));
        k.Geschlecht = static_cast<int>(geschlecht - geschlechter.begin());
        if (geschlecht == geschlechter.end())
            geschlechter.push_back(t.Geschlecht[j]);
    }
}

void Messenprüfung::HelferLesen()
{
    const HelferTabelle &t = tabellen.Helferinnen;
    for (int h = 0; h <= std::min<int>(t.Anzahl - 1, HelferTabelle::HöchsterIndex); ++h) {
        Helferkenntnis &k = helfer[static_cast<std::size_t>(h)];
        AbwesenheitenLesen(k, t, h);
        for (const Helferplatz &platz : Helferplätze) {
            const std::size_t art = NummerDer(platz.Art);
            k.Hat[art] = HatDienst(t, h, platz.Art);
            k.Gegen[art] = HelferdienstPrüfen({t, h}, {tabellen.Messen, 0, platz}, {});
        }
    }
}

/// Which entry wants a slot: the last one that means the mass and names somebody for the slot.
void Messenprüfung::FesteLesen()
{
    const MesseTabelle &messen = tabellen.Messen;
    const std::vector<int> &folge = plan.Folge();
    festeDer.assign(folge.size(), -1);
    feste.clear();
    for (int r = 0; r <= HöchsterÜbertragener; ++r) {
        const auto früher = [&](int messe, int eintrag) {
            return messen.Datum[messe] < tabellen.Feste.Datum[eintrag] ||
                   (messen.Datum[messe] == tabellen.Feste.Datum[eintrag] &&
                    messen.Uhrzeit[messe] < tabellen.Feste.Uhrzeit[eintrag]);
        };
        auto messe = std::lower_bound(folge.begin(), folge.end(), r, früher);
        for (; messe != folge.end() && Meint(tabellen.Feste, r, messen, *messe); ++messe) {
            int &nr = festeDer[static_cast<std::size_t>(*messe)];
            if (nr < 0) {
                nr = static_cast<int>(feste.size());
                feste.emplace_back().fill(-1);
            }
            for (int slot = 1; slot <= Slots; ++slot)
                if (IstBelegt(tabellen.Feste, r, slot))
                    feste[static_cast<std::size_t>(nr)][static_cast<std::size_t>(slot)] = r;
        }
    }
}

const Messenprüfung::FesteSlots *Messenprüfung::FesteDer(int messe) const
{
    const int nr = festeDer[static_cast<std::size_t>(messe)];
    return nr < 0 ? nullptr : &feste[static_cast<std::size_t>(nr)];
}

Messenprüfung::Messenblick Messenprüfung::Ansehen(int messe) const
{
    const MesseTabelle &messen = tabellen.Messen;
    Messenblick blick{.Messe = messe,
                      .Tag = messen.Datum[messe],
                      .Plätze = Dienerplätze(messen, messe),
                      .Wer = {},
                      .Dienste = DiensteNachZahl(messen, messe),
                      .IstWochendienst = IstWochendienst(messen, messe),
                      .Wunschstelle = Wunschstelle(messen, messe),
                      .HatVonHand = false};
    blick.Wer.fill(Namensregister::Frei);
    const Stelle erste = Planregister::StelleVon(Dienerplatznr(messe, 1));
    for (int slot = 1; slot <= blick.Plätze; ++slot)
        blick.Am(slot) = plan.Wer(erste + slot - 1);
    blick.HatVonHand = IstVonHand(tabellen.Einstellungen, Weihrauch.Name) ||
                       IstVonHand(tabellen.Einstellungen, Kreuzträger.Name);
    BezugsgrößenRechnen(blick);
    return blick;
}

/// As far as the slots that set it are filled with servers.
void Messenprüfung::BezugsgrößenRechnen(Messenblick &blick) const
{
    constexpr int Bestimmende = 3;
    Int16 bezug;
    blick.Bezugsgröße = {};
    for (int slot = 1; slot <= Bestimmende && blick.Am(slot) >= 0; ++slot) {
        bezug = MittelGrößeNach(slot, tabellen.Diener.Größe[blick.Am(slot)], bezug);
        blick.Bezugsgröße[static_cast<std::size_t>(slot + 1)] = bezug;
    }
}

bool Messenprüfung::IstSlotVonHand(const Messenblick &blick, int slot) const
{
    return blick.HatVonHand && IstVonHand(tabellen.Einstellungen, blick.Dienst(slot).Name);
}

void Messenprüfung::Prüfen(int messe, Befunde &befunde) const
{
    const Messenblick blick = Ansehen(messe);
    MessePrüfen(blick, befunde);
    for (int slot = 1; slot <= blick.Plätze; ++slot)
        SlotPrüfen(blick, slot, befunde);
    for (int slot = blick.Plätze + 1; slot <= Slots; ++slot)
        if (!NameAm(tabellen.Messen, Dienerplatznr(messe, slot)).IstFrei())
            Melden(befunde, {Stufe::Hinweis, Regel::ÜberzähligerName, Dienerplatznr(messe, slot)});
    HelferplätzePrüfen(messe, befunde);
}

void Messenprüfung::MessePrüfen(const Messenblick &blick, Befunde &befunde) const
{
    const Planplatz messe = GanzeMesse(blick.Messe);
    const KonfigDatensatz &einstellungen = tabellen.Einstellungen;
    if (const int andere = zurSelbenZeit[static_cast<std::size_t>(blick.Messe)]; andere >= 0)
        Melden(befunde, {Stufe::Hinweis, Regel::GleicheZeit, messe, GanzeMesse(andere)});
    // Once is enough if the whole plan is for another period.
    if (einstellungen.StartDatum != 0 && !LiegtImZeitraum(einstellungen, blick.Tag) &&
        (!allesAußerhalb || blick.Messe == 0))
        Melden(befunde, {Stufe::Hinweis, Regel::AußerhalbZeitraum, messe, messe,
                         allesAußerhalb ? plan.Messenzahl() : 1});
    const int summe = Dienstsumme(tabellen.Messen, blick.Messe);
    if (summe != tabellen.Messen.Dienerzahl[blick.Messe])
        Melden(befunde, {Stufe::Hinweis, Regel::Dienstsumme, messe, messe, summe});
}

void Messenprüfung::SlotPrüfen(const Messenblick &blick, int slot, Befunde &befunde) const
{
    const Planplatz platz = Dienerplatznr(blick.Messe, slot);
    const int wer = blick.Am(slot);
    const FesteSlots *fest = FesteDer(blick.Messe);
    const int eintrag = fest ? (*fest)[static_cast<std::size_t>(slot)] : -1;
    if (wer >= 0) {
        if (IstKurzNachDienst(Planregister::StelleVon(platz), blick.Tag))
            FrüherenDienstMelden(Planregister::StelleVon(platz), Stufe::Verstoß, befunde);
        DienerPrüfen(blick, slot, befunde);
        if (plan.LetztesPaar(wer) == Planregister::StelleVon(platz))
            HäufigkeitPrüfen(platz, wer, befunde);
    } else if (wer != Namensregister::Frei) {
        NamenlosenPrüfen(platz, wer, befunde);
    } else if (eintrag < 0) {
        Melden(befunde,
               {IstSlotVonHand(blick, slot) ? Stufe::Hinweis : Stufe::Verstoß, Regel::Frei, platz});
    }
    if (eintrag >= 0 && !IstFestErfüllt(eintrag, slot, wer, NameAm(tabellen.Messen, platz)))
        Melden(befunde, {Stufe::Verstoß, Regel::FesterEintrag, platz, {}, eintrag});
}

/// A name that is not exactly one record's.
void Messenprüfung::NamenlosenPrüfen(Planplatz platz, int wer, Befunde &befunde) const
{
    if (wer == Namensregister::Mehrdeutig)
        Melden(befunde, {Stufe::Hinweis, Regel::Mehrdeutig, platz});
    else if (platz.Was != Planplatz::Art::Diener ||
             !IstGruppe(tabellen.Gruppen, NameAm(tabellen.Messen, platz)))
        Melden(befunde, {Stufe::Verstoß, Regel::Unbekannt, platz});
}

/// Said once, where the server stands beside his wish partner last.
void Messenprüfung::HäufigkeitPrüfen(Planplatz platz, int nr, Befunde &befunde) const
{
    const int paare = plan.Paare(nr);
    if (SindZuVielePaare(platz, nr, paare - 1))
        Melden(befunde, {Stufe::Hinweis, Regel::Häufigkeit, platz, {}, paare});
}

/// Whether the draw would refuse a server who has been in so many pairs.
bool Messenprüfung::SindZuVielePaare(Planplatz platz, int diener, int paare) const
{
    if (!anteil)
        return false;
    try {
        return PaarePrüfen({tabellen.Diener, diener},
                           {tabellen.Messen, tabellen.Einstellungen, platz.Messe, platz.Nr},
                           {.Paare = paare, .DienstProDiener = *anteil}) != Grund::Keiner;
    } catch (const Laufzeitfehler &) { // no such limit
        return false;
    }
}

/// A fixed group is content with one of its members.
bool Messenprüfung::IstFestErfüllt(int eintrag, int slot, int diener, Platzname name) const
{
    const Text &vorname = tabellen.Feste.Vorname[eintrag][slot];
    const Text &nachname = tabellen.Feste.Nachname[eintrag][slot];
    if (name.Nachname == nachname && name.Vorname == vorname)
        return true;
    return diener >= 0 && IstGruppe(tabellen.Gruppen, {vorname, nachname}) &&
           IstInGruppe(tabellen.Diener, diener, nachname);
}

} // namespace altardienst
