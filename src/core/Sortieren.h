// The adjacent-exchange sort of the sort commands, done on keys; each record moves once.
#pragma once

#include "core/SchleifenZähler.h"
#include "values/Spalte.h"
#include "values/Text.h"

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

namespace altardienst {

/// Which records a sort covers and where its swaps leave traces.
struct Sortierbereich {
    int Durchgänge;   // passes
    int Vergleiche;   // comparisons of the first pass, j from 0 to Vergleiche - 1
    bool Schrumpfend; // each pass compares one pair fewer than the one before
    int Hilfssatz;    // scratch record: after a swap it holds the record that came first
    int Nachfüllung;  // record copied into the scratch record after each swap, -1 for none

    /// The usual range: records 0 to n + 1, each pass shorter than the one before.
    static Sortierbereich Bis(int n, int hilfssatz, int nachfüllung = -1)
    {
        return {n + 1, n + 1, true, hilfssatz, nachfüllung};
    }
};

/// One place of a table during a sort: the record that is there now, and the rank of its key.
struct Sortierplatz {
    int Rang;
    int Quelle;
};

/// The places before the sort. Equal keys share a rank, so comparing ranks is comparing keys.
template <class Schlüssel> std::vector<Sortierplatz> Plätze(const std::vector<Schlüssel> &schlüssel)
{
    auto von = [&](int i) -> const Schlüssel & { return schlüssel[static_cast<std::size_t>(i)]; };
    std::vector<int> folge(schlüssel.size());
    std::iota(folge.begin(), folge.end(), 0);
    std::ranges::sort(folge, [&](int a, int b) { return von(b) > von(a); });
    std::vector<Sortierplatz> plätze(schlüssel.size());
    int rang = 0;
    for (std::size_t k = 0; k < folge.size(); ++k) {
        rang += k > 0 && von(folge[k]) > von(folge[k - 1]);
        plätze[static_cast<std::size_t>(folge[k])] = {rang, folge[k]};
    }
    return plätze;
}

/// Swaps neighbours that are out of order, in as many passes as the range says.
inline void NachbarnTauschen(std::vector<Sortierplatz> &plätze, Sortierbereich bereich)
{
    Sortierplatz *platz = plätze.data();
    for (SchleifenZähler = 0; SchleifenZähler < bereich.Durchgänge; ++SchleifenZähler) {
        const Sortierplatz *ende = platz + bereich.Vergleiche;
        if (bereich.Schrumpfend)
            ende -= SchleifenZähler;
        for (Sortierplatz *p = platz; p < ende; ++p) {
            if (p[0].Rang <= p[1].Rang)
                continue;
            Sortierplatz &hilfssatz = platz[bereich.Hilfssatz];
            hilfssatz = p[0];
            p[0] = p[1];
            p[1] = hilfssatz;
            if (bereich.Nachfüllung >= 0)
                hilfssatz = platz[bereich.Nachfüllung];
        }
    }
}

/// Gives each place of a table the record that `quellen` names for it, all at once; each record is
/// copied or moved once. Goes column by column, since the entries of a column lie together in
/// memory.
template <class Liste> void Umstellen(Liste felder, std::vector<int> quellen)
{
    std::vector<int> leser(quellen.size(), 0); // how many places still wait for a record
    std::vector<int> frei;
    auto platz = [](auto &werte, int i) -> int & { return werte[static_cast<std::size_t>(i)]; };
    int anzahl = static_cast<int>(quellen.size());
    for (int i = 0; i < anzahl; ++i)
        if (quellen[static_cast<std::size_t>(i)] != i)
            ++platz(leser, platz(quellen, i));
    for (int i = 0; i < anzahl; ++i)
        if (platz(quellen, i) != i && platz(leser, i) == 0)
            frei.push_back(i);
    // A place whose record nobody waits for can be overwritten.
    std::vector<std::pair<int, int>> kopien; // place and record
    while (!frei.empty()) {
        int ziel = frei.back();
        frei.pop_back();
        int quelle = std::exchange(platz(quellen, ziel), ziel);
        kopien.emplace_back(ziel, quelle);
        if (--platz(leser, quelle) == 0 && platz(quellen, quelle) != quelle)
            frei.push_back(quelle);
    }
    // What remains are rings, in which each place waits for the record of the next.
    std::vector<std::vector<int>> ringe;
    for (int i = 0; i < anzahl; ++i) {
        if (platz(quellen, i) == i)
            continue;
        std::vector<int> &ring = ringe.emplace_back();
        for (int j = i; platz(quellen, j) != j; j = std::exchange(platz(quellen, j), j))
            ring.push_back(j);
    }
    FürJedeSpalte(felder, [&](auto &spalte) {
        for (auto [ziel, quelle] : kopien)
            spalte[ziel] = spalte[quelle];
        for (const std::vector<int> &ring : ringe) {
            auto erster = std::move(spalte[ring.front()]);
            for (std::size_t k = 1; k < ring.size(); ++k)
                spalte[ring[k - 1]] = std::move(spalte[ring[k]]);
            spalte[ring.back()] = std::move(erster);
        }
    });
}

/// Sorts a table by the key that `schlüsselVon` gives for a record. Every field of a record moves,
/// except columns that only belong to a run. Failure 9 if the range goes beyond the table.
template <class Tabelle, class SchlüsselVon>
void TabelleSortieren(Tabelle &tabelle, Sortierbereich bereich, SchlüsselVon schlüsselVon)
{
    // If the range exceeds the table, the first pass still goes as far as there are neighbours.
    bool hinaus = bereich.Vergleiche > Tabelle::HöchsterIndex;
    if (hinaus)
        bereich = {1, Tabelle::HöchsterIndex, true, bereich.Hilfssatz, bereich.Nachfüllung};
    std::vector<decltype(schlüsselVon(0))> schlüssel;
    schlüssel.reserve(Tabelle::HöchsterIndex + 1);
    for (int i = 0; i <= Tabelle::HöchsterIndex; ++i)
        schlüssel.push_back(schlüsselVon(i));
    std::vector<Sortierplatz> plätze = Plätze(schlüssel);
    NachbarnTauschen(plätze, bereich);
    std::vector<int> quellen;
    quellen.reserve(plätze.size());
    for (const auto &platz : plätze)
        quellen.push_back(platz.Quelle);
    Umstellen(tabelle.Felder(), std::move(quellen));
    if (hinaus) {
        SchleifenZähler = 0; // the first pass is not finished
        throw Laufzeitfehler(Laufzeitfehler::IndexAußerhalb);
    }
}

} // namespace altardienst
