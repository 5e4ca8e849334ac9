// What the grid of the plan shows.
#include "overview/Planinhalt.h"

#include "controls/Bausteine.h"
#include "core/Umwandlung.h"
#include "overview/Planwege.h"
#include "overview/Planwoche.h"

#include <algorithm>
#include <utility>

namespace altardienst {
namespace {

constexpr int TagUndMonat = 6; // "28.11.": no plan is longer than half a year

/// A date that no calendar has must not keep the plan from being shown.
template <class F> QString OderFragezeichen(F text)
{
    try {
        return Anzeige(text());
    } catch (const Laufzeitfehler &) {
        return "?";
    }
}

/// Of findings of two grades the breach counts.
void Erschweren(std::optional<Stufe> &zeichen, Stufe grad)
{
    if (zeichen != Stufe::Verstoß)
        zeichen = grad;
}

/// As many columns for servers as the largest mass wants, and the helpers' places that any mass
/// wants.
std::vector<Planspalte> NötigeSpalten()
{
    const int messen = GemeinsameTabellen().Messenzahl();
    int slots = 0;
    std::array<bool, Helferplätze.size()> nötig{};
    for (int i = 0; i < messen; ++i) {
        slots = std::max(slots, Dienerplätze(Messe, i));
        for (std::size_t p = 0; p < nötig.size(); ++p)
            nötig[p] = nötig[p] || Helferplätze[p].Nötig(Messe, i);
    }
    std::vector<Planspalte> spalten;
    spalten.reserve(static_cast<std::size_t>(slots) + nötig.size());
    for (int n = 1; n <= slots; ++n)
        spalten.push_back({Planplatz::Art::Diener, n});
    for (std::size_t p = 0; p < nötig.size(); ++p)
        if (nötig[p])
            spalten.push_back({Planplatz::Art::Helfer, static_cast<int>(p)});
    return spalten;
}

} // namespace

std::optional<Planbild> Planinhalt::Neues(const Planbild &altes)
{
    Planabdruck neuer = AbdruckNehmen();
    if (abdruck && neuer == *abdruck)
        return std::nullopt;
    Planbild bild{NötigeSpalten(), {}};
    if (!abdruck || bild.Spalten != altes.Spalten)
        abdruck = Planabdruck(); // every row is another one
    bild.Reihen = Reihen(neuer, altes, bild.Spalten);
    abdruck = std::move(neuer);
    return bild;
}

std::vector<Planreihe> Planinhalt::Reihen(const Planabdruck &neuer, const Planbild &altes,
                                          const std::vector<Planspalte> &spalten)
{
    const std::size_t anzahl = neuer.Messen.size();
    std::vector<int> andere;
    for (std::size_t i = 0; i < anzahl && anzahl == abdruck->Messen.size(); ++i)
        if (neuer.Messen[i] != abdruck->Messen[i])
            andere.push_back(static_cast<int>(i));
    constexpr std::size_t Viele = 20; // as after a draw: then one check of everything is cheaper
    const bool alles =
        anzahl != abdruck->Messen.size() || neuer.Übriges != abdruck->Übriges ||
        andere.size() > Viele ||
        !std::ranges::all_of(andere, [&](int i) { return KenntAlleNamen(i, spalten); });
    std::vector<Planreihe> neue;
    if (alles) {
        prüfung.Neu();
        NamenLesen();
        neue.reserve(anzahl);
        for (std::size_t i = 0; i < anzahl; ++i)
            neue.push_back(ReiheBauen(static_cast<int>(i), spalten));
    } else {
        neue = altes.Reihen;
        for (const int i : andere) {
            prüfung.MesseGeändert(i);
            neue[static_cast<std::size_t>(i)] = ReiheBauen(i, spalten);
        }
    }
    for (std::size_t i = 0; i < anzahl; ++i) // a change reaches other masses, too
        ZeichenSetzen(neue[i], static_cast<int>(i), spalten);
    return neue;
}

Planreihe Planinhalt::ReiheBauen(int messe, const std::vector<Planspalte> &spalten)
{
    Planreihe reihe;
    const Datum tag = Messe.Datum[messe];
    reihe.Kopf[Planreihe::Tag] = OderFragezeichen([&] { return Links(WochentagName(tag), 2); });
    reihe.Kopf[Planreihe::Datumspalte] =
        OderFragezeichen([&] { return Links(KurzesDatum(tag), TagUndMonat); });
    reihe.Kopf[Planreihe::Uhrzeit] =
        OderFragezeichen([&] { return StundenUndMinuten(Messe.Uhrzeit[messe]); });
    reihe.Kopf[Planreihe::Art] = Anzeige(Messe.Messeart[messe]);
    if (HatFestenEintrag(messe))
        reihe.Kopf[Planreihe::Fest] = "fest";
    reihe.Woche = Planwoche(Konfig, tag);
    reihe.Zellen.reserve(spalten.size());
    for (const Planspalte &spalte : spalten)
        reihe.Zellen.push_back(ZelleBauen({messe, spalte.Was, spalte.Nr}));
    return reihe;
}

/// Names left in places that the mass no longer wants are shown only where the plan prints them.
Planzelle Planinhalt::ZelleBauen(const Planplatz &platz)
{
    Planzelle zelle;
    zelle.Gewollt = IstGewünscht(Messe, platz);
    const Platzname wer = NameAm(Messe, platz);
    if (!wer.IstFrei() && (zelle.Gewollt || platz.Was == Planplatz::Art::Diener)) {
        zelle.Person = Personennummer(wer.Vorname, wer.Nachname);
        zelle.Name = personen[static_cast<std::size_t>(zelle.Person)].Kurz;
    }
    if (zelle.Gewollt && platz.Was == Planplatz::Art::Diener)
        zelle.Dienst = Anzeige(KurzdienstAm(Messe, platz));
    return zelle;
}

void Planinhalt::ZeichenSetzen(Planreihe &reihe, int messe,
                               const std::vector<Planspalte> &spalten) const
{
    for (Planzelle &zelle : reihe.Zellen)
        zelle.Zeichen.reset();
    reihe.Gravierendstes.reset();
    for (const Befund &befund : prüfung.Von(messe)) {
        if (!Gilt(regeln, befund))
            continue;
        Erschweren(reihe.Gravierendstes, befund.Grad);
        const auto spalte = std::ranges::find(spalten, Planspalte{befund.Wo.Was, befund.Wo.Nr});
        if (spalte != spalten.end())
            Erschweren(reihe.Zellen[static_cast<std::size_t>(spalte - spalten.begin())].Zeichen,
                       befund.Grad);
    }
}

Planbild Planinhalt::Beachten(const Regelwahl &welche, Planbild bild)
{
    regeln = welche;
    for (std::size_t i = 0; i < bild.Reihen.size(); ++i)
        ZeichenSetzen(bild.Reihen[i], static_cast<int>(i), bild.Spalten);
    return bild;
}

void Planinhalt::NamenLesen()
{
    namen.Neu();
    for (Person &person : personen)
        person.Kurz = Anzeige(namen.Von(person.Ganz.Vor, person.Ganz.Nach));
}

/// Whether the short names stay as they are if this mass has changed.
bool Planinhalt::KenntAlleNamen(int messe, const std::vector<Planspalte> &spalten) const
{
    return std::ranges::all_of(spalten, [&](const Planspalte &spalte) {
        const Planplatz platz{messe, spalte.Was, spalte.Nr};
        const Platzname wer = NameAm(Messe, platz);
        return wer.IstFrei() || namen.Kennt(wer.Vorname, wer.Nachname);
    });
}

int Planinhalt::Personennummer(const Text &vorname, const Text &nachname)
{
    const auto [nummer, neu] = nummern.Eintragen(vorname, nachname);
    if (neu) {
        nummer = static_cast<int>(personen.size());
        personen.push_back({{vorname, nachname}, Anzeige(namen.Von(vorname, nachname))});
    }
    return nummer;
}

int Planinhalt::PersonVon(const Text &vorname, const Text &nachname) const
{
    const int *nummer = nummern.Finden(vorname, nachname);
    return nummer ? *nummer : -1;
}

const Planinhalt::Name &Planinhalt::NameVon(int person) const
{
    return personen[static_cast<std::size_t>(person)].Ganz;
}

} // namespace altardienst
