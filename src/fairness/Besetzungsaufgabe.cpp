// What there is to balance, read from the tables.
#include "fairness/Besetzungsaufgabe.h"

#include "assignment/Dienste.h"
#include "assignment/Gründe.h"
#include "fixed/FesteMeßdienerÜbertragen.h"
#include "overview/Namensregister.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <map>

namespace altardienst {
namespace {

using Aufgabe = Besetzungsaufgabe;

/// The tests of the draw that look at the person and the place alone.
using Dienereignung = Prüfliste<Dienerperson, Dienerplatz, NamenPrüfen, AnwesenheitPrüfen,
                                WochendienstPrüfen, WochentagPrüfen>;
using Helfereignung =
    Prüfliste<Helferperson, Helferstelle, NamenPrüfen, AnwesenheitPrüfen, HelferdienstPrüfen>;

constexpr std::size_t Nr(int i)
{
    return static_cast<std::size_t>(i);
}

/// The slots of a mass that an entry fills: those are not for the balance to fill.
std::array<bool, MesseTabelle::HöchsterSlot + 1> FesteSlots(const Plantabellen &tabellen, int messe)
{
    std::array<bool, MesseTabelle::HöchsterSlot + 1> fest{};
    FürJedenFestenPlatz(tabellen.Feste, tabellen.Messen, messe,
                        [&](int slot, const Text &, const Text &) { fest.at(Nr(slot)) = true; });
    return fest;
}

class Leser {
  public:
    Leser(Aufgabe &aufgabe, Datum abTag) : aufgabe(aufgabe), abTag(abTag)
    {
        if (aufgabe.FürDiener())
            namen.Neu(tabellen.Diener);
        else
            namen.Neu(tabellen.Helferinnen);
    }

    void PersonenLesen(const std::vector<double> &bisher)
    {
        const int anzahl =
            aufgabe.FürDiener()
                ? std::clamp<int>(tabellen.Diener.Anzahl, 0, MeßdienerTabelle::HöchsterIndex + 1)
                : std::clamp<int>(tabellen.Helferinnen.Anzahl, 0, HelferTabelle::HöchsterIndex + 1);
        aufgabe.Personen.resize(Nr(anzahl));
        for (int j = 0; j < anzahl; ++j) {
            Aufgabe::Person &person = aufgabe.Personen[Nr(j)];
            if (Nr(j) < bisher.size())
                person.Bisher = bisher[Nr(j)];
            if (!aufgabe.FürDiener())
                continue;
            // "oft" asks for a quarter more.
            person.Gewicht = 1 + std::max<int>(0, tabellen.Diener.Häufigkeit[j]) / 8.0;
            if (HatWunschpartner(tabellen.Diener, j))
                person.Partner =
                    Satz(tabellen.Diener.WunschVorname[j], tabellen.Diener.WunschNachname[j]);
            if (person.Partner == j)
                person.Partner = Aufgabe::Niemand;
        }
    }

    void TermineLesen()
    {
        std::vector<int> sätze(Nr(tabellen.Messenzahl()));
        for (std::size_t i = 0; i < sätze.size(); ++i)
            sätze[i] = static_cast<int>(i);
        std::ranges::stable_sort(sätze, {}, [&](int i) {
            return std::pair(tabellen.Messen.Datum[i], tabellen.Messen.Uhrzeit[i]);
        });
        for (const int satz : sätze) {
            const int von = static_cast<int>(aufgabe.Plätze.size());
            if (aufgabe.FürDiener())
                DienerplätzeLesen(satz);
            else
                HelferplätzeLesen(satz);
            aufgabe.Termine.push_back({satz, tabellen.Messen.Datum[satz], von,
                                       static_cast<int>(aufgabe.Plätze.size()), Abwesende(satz)});
        }
    }

    void PaareLesen()
    {
        if (!aufgabe.FürDiener() || tabellen.Messenzahl() == 0)
            return;
        constexpr int ZweiterImPaar = 2;
        const std::size_t anzahl = aufgabe.Personen.size();
        aufgabe.Paarweise.assign(anzahl, std::vector<char>(anzahl));
        for (std::size_t a = 0; a < anzahl; ++a)
            for (std::size_t b = 0; b < anzahl; ++b)
                aufgabe.Paarweise[a][b] =
                    GeschlechtPrüfen(
                        {tabellen.Diener, static_cast<int>(b)},
                        {tabellen.Messen, tabellen.Einstellungen, 0, ZweiterImPaar},
                        {.LetztesGeschlecht = tabellen.Diener.Geschlecht[static_cast<int>(a)]}) ==
                    Grund::Keiner;
    }

    /// With a tolerance without limits everybody fits, as the check has it; the draw fails there.
    void GrößenLesen()
    {
        if (!aufgabe.FürDiener() || aufgabe.Personen.empty())
            return;
        const int spielraum = tabellen.Einstellungen.DiffGröße;
        int kleinste = INT16_MAX;
        int größte = INT16_MIN;
        for (int j = 0; j < static_cast<int>(aufgabe.Personen.size()); ++j) {
            kleinste = std::min<int>(kleinste, tabellen.Diener.Größe[j]);
            größte = std::max<int>(größte, tabellen.Diener.Größe[j]);
        }
        aufgabe.GrößeZählt = spielraum < größte - kleinste &&
                             größte + std::abs(spielraum) <= INT16_MAX &&
                             kleinste - std::abs(spielraum) >= INT16_MIN;
    }

    /// How many services on dates of which none blocks another each person could do.
    void HöchstzahlenRechnen()
    {
        for (std::size_t j = 0; j < aufgabe.Personen.size(); ++j) {
            Datum zuletzt = -2;
            for (const Aufgabe::Personenkreis &kreis : aufgabe.Kreise)
                aufgabe.Personen[j].Kann = aufgabe.Personen[j].Kann || kreis.Kann[j] != 0;
            for (const Aufgabe::Termin &termin : aufgabe.Termine) {
                const bool kann = std::any_of(
                    aufgabe.Plätze.begin() + termin.Von, aufgabe.Plätze.begin() + termin.Bis,
                    [&](const Aufgabe::Platz &platz) {
                        return platz.Frei && aufgabe.Kreise[Nr(platz.Kreis)].Kann[j] != 0;
                    });
                if (!kann || (aufgabe.FürDiener() && aufgabe.Personen[j].Höchstens > 0 &&
                              IstGesperrt(zuletzt, termin.Tag)))
                    continue;
                ++aufgabe.Personen[j].Höchstens;
                zuletzt = termin.Tag;
            }
        }
    }

  private:
    /// The record, `Niemand` or `Fremd`.
    int Satz(const Text &vorname, const Text &nachname) const
    {
        const int nr = namen.Finden(vorname, nachname);
        if (nr == Namensregister::Frei)
            return Aufgabe::Niemand;
        return nr < 0 ? Aufgabe::Fremd : nr;
    }

    void DienerplätzeLesen(int messe)
    {
        const auto fest = FesteSlots(tabellen, messe);
        const Slotdienste dienste = DiensteNachZahl(tabellen.Messen, messe);
        std::array<int, Dienstarten.size()> kreise;
        kreise.fill(-1);
        for (int slot = 1; slot <= Dienerplätze(tabellen.Messen, messe); ++slot) {
            const Dienstart &dienst = *dienste.at(Nr(slot - 1));
            const int nr = static_cast<int>(&dienst - Dienstarten.data());
            if (kreise.at(Nr(nr)) < 0)
                kreise.at(Nr(nr)) =
                    Dienerkreis({tabellen.Messen, tabellen.Einstellungen, messe, slot}, dienst);
            Anfügen(Dienerplatznr(messe, slot), nr, kreise.at(Nr(nr)),
                    !fest.at(Nr(slot)) && !IstVonHand(tabellen.Einstellungen, dienst.Name));
        }
    }

    int Dienerkreis(const Dienerplatz &platz, const Dienstart &dienst)
    {
        return KreisBilden(
            [&](int j) {
                return DarfDienst(tabellen.Diener, j, dienst) &&
                       Dienereignung::Erster({tabellen.Diener, j}, platz, {}) == Grund::Keiner;
            },
            [](int) { return true; });
    }

    /// Which servers are absent on the date of a mass.
    std::vector<char> Abwesende(int messe) const
    {
        std::vector<char> weg(aufgabe.FürDiener() ? aufgabe.Personen.size() : 0);
        for (std::size_t j = 0; j < weg.size(); ++j)
            weg[j] =
                IstAbwesend(tabellen.Diener, static_cast<int>(j), tabellen.Messen.Datum[messe]);
        return weg;
    }

    void HelferplätzeLesen(int messe)
    {
        for (std::size_t k = 0; k < Helferplätze.size(); ++k) {
            const Helferplatz &stelle = Helferplätze.at(k);
            if (!stelle.Nötig(tabellen.Messen, messe))
                continue;
            const int kreis = KreisBilden(
                [&](int j) {
                    return Helfereignung::Erster({tabellen.Helferinnen, j},
                                                 {tabellen.Messen, messe, stelle},
                                                 {}) == Grund::Keiner;
                },
                [&](int j) {
                    return tabellen.Helferinnen.Dienst1[j] == stelle.Art.Name ||
                           tabellen.Helferinnen.Dienst2[j] == stelle.Art.Name;
                });
            Anfügen(Helferplatznr(messe, static_cast<int>(k)),
                    static_cast<int>(NummerDer(stelle.Art)), kreis, true);
        }
    }

    void Anfügen(Planplatz wo, int dienst, int kreis, bool frei)
    {
        const Platzname name = NameAm(tabellen.Messen, wo);
        aufgabe.Plätze.push_back(
            {wo, static_cast<int>(aufgabe.Termine.size()), dienst, kreis,
             frei && tabellen.Messen.Datum[wo.Messe] >= abTag,
             name.IstFrei() ? Aufgabe::Niemand : Satz(name.Vorname, name.Nachname)});
    }

    /// The number of the circle of those for whom `kann` holds; circles that are alike are one.
    template <class Kann, class Nennt> int KreisBilden(Kann kann, Nennt nennt)
    {
        Aufgabe::Personenkreis kreis;
        kreis.Kann.resize(aufgabe.Personen.size());
        kreis.Nennt.resize(aufgabe.Personen.size());
        for (int j = 0; j < static_cast<int>(aufgabe.Personen.size()); ++j) {
            if (!IstEindeutig(j) || !kann(j))
                continue;
            kreis.Personen.push_back(j);
            kreis.Kann[Nr(j)] = 1;
            kreis.Nennt[Nr(j)] = nennt(j);
        }
        const auto [ort, neu] = kreisnummern.try_emplace(std::pair(kreis.Kann, kreis.Nennt),
                                                         static_cast<int>(aufgabe.Kreise.size()));
        if (neu)
            aufgabe.Kreise.push_back(std::move(kreis));
        return ort->second;
    }

    /// Of two persons with the same name a plan cannot say who is meant.
    bool IstEindeutig(int j) const
    {
        if (aufgabe.FürDiener())
            return namen.Finden(tabellen.Diener.Vorname[j], tabellen.Diener.Nachname[j]) == j;
        return namen.Finden(tabellen.Helferinnen.Vorname[j], tabellen.Helferinnen.Nachname[j]) == j;
    }

    Aufgabe &aufgabe;
    const Plantabellen &tabellen = aufgabe.Tabellen;
    Datum abTag;
    Namensregister namen;
    std::map<std::pair<std::vector<char>, std::vector<char>>, int> kreisnummern;
};

} // namespace

Besetzungsaufgabe AufgabeLesen(const Plantabellen &tabellen, Planplatz::Art art, Datum abTag,
                               const std::vector<double> &bisher)
{
    Besetzungsaufgabe aufgabe{tabellen, art, {}, {}, {}, {}, {}};
    Leser leser(aufgabe, abTag);
    leser.PersonenLesen(bisher);
    leser.TermineLesen();
    leser.PaareLesen();
    leser.GrößenLesen();
    leser.HöchstzahlenRechnen();
    AnteileRechnen(aufgabe);
    return aufgabe;
}

} // namespace altardienst
