// The check of a plan, written a second time for the random parishes: slowly, place by place, from
// the tables alone. Shares no code with the check or with the draw.
#pragma once

#include "Regeln.h"

#include "overview/Befund.h"

#include <algorithm>
#include <array>
#include <set>
#include <tuple>
#include <vector>

namespace altardienst {

/// Rule, grade and place of a finding.
using Urteil = std::tuple<Regel, Stufe, Planplatz>;
using Urteile = std::set<Urteil>;

inline Urteile UrteileAus(const std::vector<Befund> &befunde)
{
    Urteile urteile;
    for (const Befund &befund : befunde)
        urteile.insert({befund.Gegen, befund.Grad, befund.Wo});
    return urteile;
}

/// "Verstoß gegen Größe, mass 3, place 4": for messages of failed expectations.
inline Text Urteilszeile(const Urteil &urteil)
{
    const auto &[regel, grad, wo] = urteil;
    return Text(grad == Stufe::Verstoß ? "Verstoß" : "Hinweis") + " gegen " + Regelname(regel) +
           ", mass " + std::to_string(wo.Messe) + ", " +
           (wo.Was == Planplatz::Art::Helfer ? "helper's place " : "slot ") + std::to_string(wo.Nr);
}

/// What one list has and the other has not; empty if they are the same.
inline Text Unterschied(const Urteile &a, const Urteile &b)
{
    for (const Urteil &urteil : a)
        if (!b.contains(urteil))
            return "only the first: " + Urteilszeile(urteil);
    for (const Urteil &urteil : b)
        if (!a.contains(urteil))
            return "only the second: " + Urteilszeile(urteil);
    return "";
}

class Zweitprüfung {
  public:
    Urteile Alle()
    {
        for (int i = 0; i < Messe.Anzahl; ++i) {
            wer.emplace_back().fill(Niemand);
            for (int slot = 1; slot <= Slots(i); ++slot)
                wer.back()[static_cast<std::size_t>(slot)] =
                    Diener(Messe.DienerVor[i][slot], Messe.DienerNach[i][slot]);
            for (int nr = 0; nr < 8; ++nr)
                wer.back()[static_cast<std::size_t>(21 + nr)] = HelferNachNamen(i, nr);
        }
        for (int i = 0; i < Messe.Anzahl; ++i) {
            MessePrüfen(i);
            for (int slot = 1; slot <= 20; ++slot)
                SlotPrüfen(i, slot);
            for (int nr = 0; nr < 8; ++nr)
                HelferplatzPrüfen(i, nr);
        }
        HäufigkeitPrüfen();
        return urteile;
    }

  private:
    static constexpr int Niemand = -1, Fremder = -2, Mehrere = -3;

    static int Diener(const Text &vor, const Text &nach)
    {
        if (vor.empty() && nach.empty())
            return Niemand;
        int gefunden = Fremder;
        for (int j = 0; j < Meßdiener.Anzahl; ++j)
            if (Meßdiener.Vorname[j] == vor && Meßdiener.Nachname[j] == nach)
                gefunden = gefunden == Fremder ? j : Mehrere;
        return gefunden;
    }

    static int Slots(int i) { return std::max(0, std::min<int>(Messe.Dienerzahl[i], 20)); }

    /// Nobody outside the slots that are wanted.
    int Am(int i, int slot) const
    {
        return slot < 1 || slot > 20
                   ? Niemand
                   : wer[static_cast<std::size_t>(i)][static_cast<std::size_t>(slot)];
    }
    int HelferAm(int i, int nr) const
    {
        return wer[static_cast<std::size_t>(i)][static_cast<std::size_t>(21 + nr)];
    }

    static int Partner(int j)
    {
        const Text &vor = Meßdiener.WunschVorname[j];
        const Text &nach = Meßdiener.WunschNachname[j];
        return vor.empty() || nach.empty() ? Niemand : Diener(vor, nach);
    }

    /// The services as the plan prints them.
    static Text Dienst(int i, int slot)
    {
        std::vector<Text> dienste;
        const auto mal = [&](const char *name, int zahl, int höchstens) {
            dienste.insert(dienste.end(),
                           static_cast<std::size_t>(std::max(0, std::min(zahl, höchstens))), name);
        };
        mal("Gabenbereitung", Messe.Gabenbereitung[i], 2);
        mal("Leuchter", Messe.Leuchter[i], 2);
        mal("Flambeau", Messe.Flambeau[i], 8);
        mal("Weihrauch", Messe.Weihrauch[i], 2);
        mal("Kreuzträger", Messe.Kreuzträger[i], 2);
        dienste.resize(20, "Allgemein");
        return dienste[static_cast<std::size_t>(slot - 1)];
    }

    static bool VonHand(int i, int slot)
    {
        return (Dienst(i, slot) == "Weihrauch" && Konfig.ManuellWeihrauch == 1) ||
               (Dienst(i, slot) == "Kreuzträger" && Konfig.ManuellKreuzträger == 1);
    }

    static bool IstDienerWeg(int j, Datum tag)
    {
        return IstWeg(tag, Meßdiener.Von1[j], Meßdiener.Bis1[j]) ||
               IstWeg(tag, Meßdiener.Von2[j], Meßdiener.Bis2[j]) ||
               IstWeg(tag, Meßdiener.Von3[j], Meßdiener.Bis3[j]) ||
               IstWeg(tag, Meßdiener.Von4[j], Meßdiener.Bis4[j]) ||
               IstWeg(tag, Meßdiener.Von5[j], Meßdiener.Bis5[j]);
    }

    void Fällen(Regel regel, bool verstoß, Planplatz wo)
    {
        urteile.insert({regel, verstoß ? Stufe::Verstoß : Stufe::Hinweis, wo});
    }

    static bool Früher(int a, int b)
    {
        return std::tuple(Messe.Datum[a], Messe.Uhrzeit[a], a) <
               std::tuple(Messe.Datum[b], Messe.Uhrzeit[b], b);
    }

    void MessePrüfen(int i)
    {
        for (int k = 0; k < Messe.Anzahl; ++k)
            if (k != i && Messe.Datum[k] == Messe.Datum[i] &&
                Messe.Uhrzeit[k] == Messe.Uhrzeit[i] && k < i)
                Fällen(Regel::GleicheZeit, false, GanzeMesse(i));
        const auto außerhalb = [](int k) {
            return Messe.Datum[k] < Konfig.StartDatum ||
                   Messe.Datum[k] > Konfig.StartDatum + Konfig.Tage;
        };
        bool alle = true;
        for (int k = 0; k < Messe.Anzahl; ++k)
            alle = alle && außerhalb(k);
        if (Konfig.StartDatum != 0 && außerhalb(i) && (!alle || i == 0))
            Fällen(Regel::AußerhalbZeitraum, false, GanzeMesse(i));
        if (Messe.Gabenbereitung[i] + Messe.Leuchter[i] + Messe.Flambeau[i] + Messe.Weihrauch[i] +
                Messe.Kreuzträger[i] + Messe.Allgemein[i] !=
            Messe.Dienerzahl[i])
            Fällen(Regel::Dienstsumme, false, GanzeMesse(i));
    }

    /// The entry for a slot, -1 none.
    static int Fester(int i, int slot)
    {
        int zeile = -1;
        for (int r = 0; r <= 200; ++r)
            if (MesseDienerFest.Datum[r] == Messe.Datum[i] &&
                MesseDienerFest.Uhrzeit[r] == Messe.Uhrzeit[i] &&
                !MesseDienerFest.Vorname[r][slot].empty() &&
                !MesseDienerFest.Nachname[r][slot].empty())
                zeile = r;
        return zeile;
    }

    void SlotPrüfen(int i, int slot)
    {
        const Planplatz platz = Dienerplatznr(i, slot);
        const Text &vor = Messe.DienerVor[i][slot];
        const Text &nach = Messe.DienerNach[i][slot];
        if (slot > Slots(i)) {
            if (!vor.empty() || !nach.empty())
                Fällen(Regel::ÜberzähligerName, false, platz);
            return;
        }
        const int j = Am(i, slot);
        const int fest = Fester(i, slot);
        if (fest >= 0 && (MesseDienerFest.Vorname[fest][slot] != vor ||
                          MesseDienerFest.Nachname[fest][slot] != nach))
            Fällen(Regel::FesterEintrag, true, platz);
        if (j == Niemand && fest < 0)
            Fällen(Regel::Frei, !VonHand(i, slot), platz);
        if (j == Fremder)
            Fällen(Regel::Unbekannt, true, platz);
        if (j == Mehrere)
            Fällen(Regel::Mehrdeutig, false, platz);
        if (j >= 0)
            DienerPrüfen(i, slot, j);
    }

    void DienerPrüfen(int i, int slot, int j)
    {
        const Planplatz platz = Dienerplatznr(i, slot);
        FrühereDienste(i, platz, true,
                       [this, j](int k, int s) { return s <= 20 && Am(k, s) == j; });
        int mittel = 0;
        bool alleDa = true;
        for (int s = 1; s < std::min(slot, 4); ++s) {
            alleDa = alleDa && Am(i, s) >= 0;
            if (alleDa)
                mittel = NeueMittelgröße(s, mittel, Meßdiener.Größe[Am(i, s)]);
        }
        if (slot > 1 && alleDa && std::abs(Meßdiener.Größe[j] - mittel) > Konfig.DiffGröße)
            Fällen(Regel::Größe, false, platz);
        // The first rule that is broken hides the others in the texts of `VerstoßFürSich`.
        if (IstDienerWeg(j, Messe.Datum[i]))
            Fällen(Regel::Abwesend, true, platz);
        const Text &wunsch = Meßdiener.Wochendienst[j];
        if (Messe.Messeart[i] == "Wochendienst" && wunsch[0] == 'j')
            Fällen(Regel::Wochendienst, true, platz);
        const std::vector<Text> tage = {"Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag"};
        for (std::size_t k = 0; k < tage.size(); ++k)
            if (Messe.Kennung[i] == "s" && Messe.Wochentag[i] == tage[k] && wunsch[k + 1] == 'j')
                Fällen(Regel::Wochentag, true, platz);
        const std::vector<Text> dienste = {"Gabenbereitung", "Leuchter", "Flambeau", "Weihrauch",
                                           "Kreuzträger"};
        for (std::size_t k = 0; k < dienste.size(); ++k)
            if (Dienst(i, slot) == dienste[k] && Meßdiener.Qualifikation[j][k] != 'j')
                Fällen(Regel::Qualifikation, true, platz);
        GeschlechtPrüfen(i, slot, j);
        const int p = Partner(j);
        if (p >= 0 && Am(i, slot - 1) != p && Am(i, slot + 1) != p) {
            bool inDerMesse = false;
            for (int s = 1; s <= Slots(i); ++s)
                inDerMesse = inDerMesse || Am(i, s) == p;
            if (inDerMesse || !IstDienerWeg(p, Messe.Datum[i]))
                Fällen(Regel::Wunschpartner, false, platz);
        }
    }

    void GeschlechtPrüfen(int i, int slot, int j)
    {
        const int n = Am(i, slot - 1);
        if (slot % 2 == 1 || n < 0 || Meßdiener.Geschlecht[n] == Meßdiener.Geschlecht[j])
            return;
        const int v = Am(i, slot - 2);
        const bool erlaubt =
            Partner(j) == n || Partner(n) == j || VonHand(i, slot) || VonHand(i, slot - 1) ||
            (v >= 0 && Partner(v) == n && Meßdiener.Geschlecht[v] == Meßdiener.Geschlecht[j]);
        Fällen(Regel::Geschlecht, !erlaubt, Dienerplatznr(i, slot));
    }

    /// Looks for the last service before a place; `steht` tells whether it is the same person's.
    template <class F> void FrühereDienste(int i, Planplatz platz, bool verstoß, F steht)
    {
        const int nr = platz.Was == Planplatz::Art::Helfer ? 21 + platz.Nr : platz.Nr;
        for (int s = 1; s < nr; ++s)
            if (steht(i, s)) {
                Fällen(Regel::Doppelt, true, platz);
                return;
            }
        int letzte = -1;
        for (int k = 0; k < Messe.Anzahl; ++k)
            for (int s = 1; s <= 28; ++s)
                if (k != i && Früher(k, i) && steht(k, s) && (letzte < 0 || Früher(letzte, k)))
                    letzte = k;
        if (letzte < 0)
            return;
        if (Messe.Datum[letzte] == Messe.Datum[i])
            Fällen(Regel::SelberTag, verstoß, platz);
        if (Messe.Datum[letzte] == Messe.Datum[i] - 1)
            Fällen(Regel::Nachbartag, verstoß, platz);
    }

    static int HelferNachNamen(int i, int nr)
    {
        const Helferplatz &platz = Helferplätze[static_cast<std::size_t>(nr)];
        const Text &vor = (Messe.*platz.Vor)[i];
        const Text &nach = (Messe.*platz.Nach)[i];
        if (platz.Art.Zahl.In(Messe)[i] < nr % 2 + 1 || (vor.empty() && nach.empty()))
            return Niemand;
        int gefunden = Fremder;
        for (int h = 0; h < Helfer.Anzahl; ++h)
            if (Helfer.Vorname[h] == vor && Helfer.Nachname[h] == nach)
                gefunden = gefunden == Fremder ? h : Mehrere;
        return gefunden;
    }

    void HelferplatzPrüfen(int i, int nr)
    {
        const Planplatz platz = Helferplatznr(i, nr);
        const std::vector<Text> dienste = {"Lektor", "Kommunionhelfer", "Kantor", "Kollektant"};
        const std::vector<int> zahlen = {Messe.LektorZahl[i], Messe.KommZahl[i],
                                         Messe.KantorZahl[i], Messe.KollektZahl[i]};
        const auto art = static_cast<std::size_t>(nr / 2);
        if (zahlen[art] < nr % 2 + 1)
            return;
        const int h = HelferAm(i, nr);
        if (h == Niemand)
            Fällen(Regel::Frei, true, platz);
        if (h == Fremder)
            Fällen(Regel::Unbekannt, true, platz);
        if (h == Mehrere)
            Fällen(Regel::Mehrdeutig, false, platz);
        if (h < 0)
            return;
        FrühereDienste(i, platz, false,
                       [this, h](int k, int s) { return s > 20 && HelferAm(k, s - 21) == h; });
        if (IstWeg(Messe.Datum[i], Helfer.Von1[h], Helfer.Bis1[h]) ||
            IstWeg(Messe.Datum[i], Helfer.Von2[h], Helfer.Bis2[h]) ||
            IstWeg(Messe.Datum[i], Helfer.Von3[h], Helfer.Bis3[h]))
            Fällen(Regel::Abwesend, true, platz);
        const int mal = (Helfer.Dienst1[h] == dienste[art]) + (Helfer.Dienst2[h] == dienste[art]);
        if (mal == 0 || (mal == 2 && art != 0))
            Fällen(Regel::Helferdienst, mal == 0 && art == 0, platz);
    }

    void HäufigkeitPrüfen()
    {
        int plätze = 0;
        for (int i = 0; i < Messe.Anzahl; ++i)
            plätze += Messe.Dienerzahl[i];
        const int anteil = plätze / Meßdiener.Anzahl + 1;
        std::map<int, std::vector<std::pair<int, int>>> paare; // mass and slot by person
        for (int i = 0; i < Messe.Anzahl; ++i)
            for (int slot = 1; slot < Slots(i); ++slot) {
                const int j = Am(i, slot);
                if (j < 0 || Partner(j) == Niemand ||
                    Meßdiener.WunschVorname[j] != Messe.DienerVor[i][slot + 1] ||
                    Meßdiener.WunschNachname[j] != Messe.DienerNach[i][slot + 1])
                    continue;
                paare[j].push_back({i, slot});
                ++slot;
                if (Am(i, slot) >= 0)
                    paare[Am(i, slot)].push_back({i, slot});
            }
        for (const auto &[j, orte] : paare) {
            std::pair<int, int> letzter = orte[0];
            for (const auto &ort : orte)
                if (ort.first == letzter.first ? ort.second > letzter.second
                                               : Früher(letzter.first, ort.first))
                    letzter = ort;
            if (static_cast<int>(orte.size()) > Meßdiener.Häufigkeit[j] + anteil)
                Fällen(Regel::Häufigkeit, false, Dienerplatznr(letzter.first, letzter.second));
        }
    }

    std::vector<std::array<int, 29>> wer; // slots 1 to 20, helpers' places 21 to 28
    Urteile urteile;
};

} // namespace altardienst
