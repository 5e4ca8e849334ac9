// "Plan ausgleichen": a copy of the masses is balanced, and what has changed is the result.
#include "fairness/Ausgleich.h"

#include "assignment/Dienste.h"
#include "core/Gruppen.h"
#include "fairness/Besetzungssuche.h"
#include "fairness/Engpass.h"
#include "fixed/FesteMeßdienerÜbertragen.h"
#include "overview/Gruppenplatz.h"
#include "overview/Planprüfung.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <set>

namespace altardienst {
namespace {

using Aufgabe = Besetzungsaufgabe;

constexpr std::size_t Nr(int i)
{
    return static_cast<std::size_t>(i);
}

std::vector<int> DiensteZählen(const Aufgabe &aufgabe, const std::vector<int> &wer)
{
    std::vector<int> dienste(aufgabe.Personen.size());
    for (const int person : wer)
        if (person >= 0)
            ++dienste[Nr(person)];
    return dienste;
}

Ausgleichszahlen ZahlenVon(const Aufgabe &aufgabe, const std::vector<int> &wer,
                           const Plankosten &kosten)
{
    Ausgleichszahlen zahlen;
    zahlen.Verstöße = static_cast<int>(kosten.Verstöße);
    const std::vector<int> dienste = DiensteZählen(aufgabe, wer);
    double quadrate = 0;
    bool erster = true;
    for (std::size_t j = 0; j < dienste.size(); ++j) {
        const Aufgabe::Person &person = aufgabe.Personen[j];
        if (!person.Kann && dienste[j] == 0)
            continue;
        zahlen.Wenigste = erster ? dienste[j] : std::min(zahlen.Wenigste, dienste[j]);
        zahlen.Meiste = std::max(zahlen.Meiste, dienste[j]);
        erster = false;
        const double über = dienste[j] - static_cast<double>(person.Soll) / 1000;
        quadrate += über * über;
    }
    zahlen.Ungleichheit = std::sqrt(quadrate);
    for (const Aufgabe::Termin &termin : aufgabe.Termine)
        for (int p = termin.Von; p + 1 < termin.Bis; ++p)
            zahlen.Paare += wer[Nr(p)] >= 0 && wer[Nr(p + 1)] >= 0 &&
                            aufgabe.SindWunschpartner(wer[Nr(p)], wer[Nr(p + 1)]);
    return zahlen;
}

/// The breaches in places of servers or of helpers.
std::vector<Befund> VerstößeBei(const Planprüfung &prüfung, Planplatz::Art art)
{
    std::vector<Befund> alle = prüfung.Alle();
    std::erase_if(alle, [&](const Befund &befund) {
        return befund.Wo.Was != art || befund.Grad != Stufe::Verstoß;
    });
    return alle;
}

/// The names of a person; empty for `Niemand`.
template <class Tabelle>
void Hinstellen(MesseTabelle &messen, Planplatz wo, const Tabelle &t, int wer)
{
    if (wer >= 0)
        Besetzen(messen, wo, t.Vorname[wer], t.Nachname[wer]);
    else
        Leeren(messen, wo);
}

class Ausgleich {
  public:
    Ausgleich(const Plantabellen &tabellen, const Ausgleichsauftrag &auftrag)
        : auftrag(auftrag), original(tabellen),
          messen(std::make_unique<MesseTabelle>(tabellen.Messen)), eigene{*messen,
                                                                          tabellen.Diener,
                                                                          tabellen.Helferinnen,
                                                                          tabellen.Gruppen,
                                                                          tabellen.Feste,
                                                                          tabellen.Einstellungen}
    {
        namen.Neu(eigene.Diener);
        for (int i = 0; i < eigene.Messenzahl(); ++i)
            if (auftrag.Diener && messen->Datum[i] >= auftrag.AbTag)
                FesteSetzen(i);
    }

    Ausgleichsergebnis Ausführen()
    {
        if (auftrag.Diener)
            GruppeAusgleichen(Planplatz::Art::Diener, auftrag.DienerBisher, ergebnis.Diener);
        if (auftrag.Helfer && !ergebnis.Abgebrochen)
            GruppeAusgleichen(Planplatz::Art::Helfer, auftrag.HelferBisher, ergebnis.Helfer);
        Prüfen();
        WechselSammeln();
        return std::move(ergebnis);
    }

  private:
    /// As the draw does last. A place for a group may already be filled by one of its servers.
    void FesteSetzen(int messe)
    {
        FürJedenFestenPlatz(
            eigene.Feste, *messen, messe, [&](int slot, const Text &vorname, const Text &nachname) {
                const Planplatz wo = Dienerplatznr(messe, slot);
                const int wer =
                    namen.Finden(NameAm(*messen, wo).Vorname, NameAm(*messen, wo).Nachname);
                if (wer < 0 || !IstGruppe(eigene.Gruppen, {vorname, nachname}) ||
                    !IstInGruppe(eigene.Diener, wer, nachname))
                    Besetzen(*messen, wo, vorname, nachname);
            });
    }

    void GruppeAusgleichen(Planplatz::Art art, const std::vector<double> &bisher,
                           Gruppenausgleich &gruppe)
    {
        const Aufgabe aufgabe = AufgabeLesen(eigene, art, auftrag.AbTag, bisher);
        const Suchergebnis gefunden = BesteBesetzung(
            aufgabe, {.Saat = auftrag.Saat,
                      .Aufwand = auftrag.Aufwand,
                      .Abbruch = auftrag.Abbruch,
                      .Fortschritt = [&](const std::vector<int> &wer, const Plankosten &kosten) {
                          if (auftrag.Fortschritt)
                              auftrag.Fortschritt(art, ZahlenVon(aufgabe, wer, kosten));
                      }});
        for (const Aufgabe::Platz &platz : aufgabe.Plätze)
            if (!platz.Frei)
                bleibende.insert(platz.Wo);
        gruppe.Dabei = true;
        gruppe.Bewiesen = gefunden.Bewiesen;
        ergebnis.Abgebrochen = ergebnis.Abgebrochen || gefunden.Abgebrochen;
        const std::vector<int> vorher = WerStand(aufgabe);
        gruppe.Vorher = ZahlenVon(aufgabe, vorher, {});
        gruppe.Nachher = ZahlenVon(aufgabe, gefunden.Wer, gefunden.Kosten);
        AnteileSammeln(aufgabe, vorher, gefunden.Wer, gruppe);
        for (std::size_t p = 0; p < gefunden.Wer.size(); ++p)
            if (aufgabe.Plätze[p].Frei && gefunden.Wer[p] != aufgabe.Plätze[p].Anfangs)
                NameSetzen(aufgabe.Plätze[p].Wo, gefunden.Wer[p]);
    }

    /// In the plan as it was before the fixed entries were put into their places.
    std::vector<int> WerStand(const Aufgabe &aufgabe) const
    {
        Namensregister personen;
        if (aufgabe.FürDiener())
            personen.Neu(original.Diener);
        else
            personen.Neu(original.Helferinnen);
        std::vector<int> wer;
        wer.reserve(aufgabe.Plätze.size());
        for (const Aufgabe::Platz &platz : aufgabe.Plätze) {
            const Platzname name = NameAm(original.Messen, platz.Wo);
            wer.push_back(
                std::max<int>(personen.Finden(name.Vorname, name.Nachname), Aufgabe::Fremd));
        }
        return wer;
    }

    void NameSetzen(Planplatz wo, int wer)
    {
        if (wo.Was == Planplatz::Art::Diener)
            Hinstellen(*messen, wo, eigene.Diener, wer);
        else
            Hinstellen(*messen, wo, eigene.Helferinnen, wer);
    }

    static void AnteileSammeln(const Aufgabe &aufgabe, const std::vector<int> &vorher,
                               const std::vector<int> &nachher, Gruppenausgleich &gruppe)
    {
        const std::vector<int> alt = DiensteZählen(aufgabe, vorher);
        const std::vector<int> neu = DiensteZählen(aufgabe, nachher);
        for (std::size_t j = 0; j < aufgabe.Personen.size(); ++j) {
            const Aufgabe::Person &person = aufgabe.Personen[j];
            if (person.Kann || alt[j] > 0 || neu[j] > 0)
                gruppe.Anteile.push_back({static_cast<int>(j), person.Kann,
                                          static_cast<double>(person.Soll) / 1000, person.Bisher,
                                          alt[j], neu[j]});
        }
    }

    /// The breaches are those that the check finds.
    void Prüfen()
    {
        const Planprüfung vorher(original);
        const Planprüfung nachher(eigene);
        for (const auto &[art, gruppe] : {std::pair(Planplatz::Art::Diener, &ergebnis.Diener),
                                          std::pair(Planplatz::Art::Helfer, &ergebnis.Helfer)}) {
            if (!gruppe->Dabei)
                continue;
            gruppe->Vorher.Verstöße = static_cast<int>(VerstößeBei(vorher, art).size());
            const std::vector<Befund> offen = VerstößeBei(nachher, art);
            gruppe->Nachher.Verstöße = static_cast<int>(offen.size());
            for (const Befund &befund : offen)
                gruppe->Offen.push_back(
                    EngpassErklären(nachher, befund, bleibende.contains(befund.Wo)));
        }
    }

    void WechselSammeln()
    {
        for (int i = 0; i < eigene.Messenzahl(); ++i) {
            for (int slot = 1; slot <= MesseTabelle::HöchsterSlot; ++slot)
                Vergleichen(Dienerplatznr(i, slot));
            for (std::size_t k = 0; k < Helferplätze.size(); ++k)
                Vergleichen(Helferplatznr(i, static_cast<int>(k)));
        }
    }

    void Vergleichen(Planplatz wo)
    {
        const Platzname alt = NameAm(original.Messen, wo);
        const Platzname neu = NameAm(*messen, wo);
        if (alt.Vorname != neu.Vorname || alt.Nachname != neu.Nachname)
            ergebnis.Wechsel.push_back({wo, alt.Vorname, alt.Nachname, neu.Vorname, neu.Nachname});
    }

    const Ausgleichsauftrag &auftrag;
    Plantabellen original;
    std::unique_ptr<MesseTabelle> messen;
    Plantabellen eigene;
    Namensregister namen;
    std::set<Planplatz> bleibende; // places that stay as they are
    Ausgleichsergebnis ergebnis;
};

} // namespace

Ausgleichsergebnis PlanAusgleichen(const Plantabellen &tabellen, const Ausgleichsauftrag &auftrag)
{
    return Ausgleich(tabellen, auftrag).Ausführen();
}

void AusgleichÜbernehmen(const Ausgleichsergebnis &ergebnis)
{
    for (const Platzwechsel &wechsel : ergebnis.Wechsel)
        Besetzen(Messe, wechsel.Wo, wechsel.VornameNachher, wechsel.NachnameNachher);
    DiensteVerteilen();
}

} // namespace altardienst
