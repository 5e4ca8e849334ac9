// The adjacent-exchange sort of the sort commands, done on keys; each record moves once.
#pragma once

#include "core/Spalte.h"
#include "core/Text.h"

#include <compare>
#include <utility>
#include <vector>

namespace altardienst {

/// Which records a sort covers and where its exchanges leave their traces.
struct Sortierbereich {
    int Durchgänge;   // passes
    int Vergleiche;   // comparisons of the first pass, j from 0 to Vergleiche - 1
    bool Schrumpfend; // each pass compares one pair less than the one before
    int Hilfssatz;    // scratch record: after a swap it holds the record that stood first
    int Nachfüllung;  // record that the scratch takes over after each swap, -1 for none

    /// The usual range: records 0 to n + 1, with the bound of the passes shrinking.
    static Sortierbereich Bis(int n, int hilfssatz, int nachfüllung = -1)
    {
        return {n + 1, n + 1, true, hilfssatz, nachfüllung};
    }
};

/// One place of a table during a sort: the key that stands there now, and the record it came from.
template <class Schlüssel> struct Sortierplatz {
    Schlüssel Key;
    int Quelle;
};

/// Exchanges neighbours out of order (`Key` of the first greater), as often as the range says.
template <class Schlüssel>
void NachbarnTauschen(std::vector<Sortierplatz<Schlüssel>> &plätze, const Sortierbereich &bereich)
{
    auto hilfssatz = static_cast<std::size_t>(bereich.Hilfssatz);
    for (int i = 0; i < bereich.Durchgänge; ++i) {
        int vergleiche = bereich.Vergleiche - (bereich.Schrumpfend ? i : 0);
        for (std::size_t j = 0; static_cast<int>(j) < vergleiche; ++j) {
            if (!(plätze[j].Key > plätze[j + 1].Key))
                continue;
            plätze[hilfssatz] = plätze[j];
            plätze[j] = plätze[j + 1];
            plätze[j + 1] = plätze[hilfssatz];
            if (bereich.Nachfüllung >= 0)
                plätze[hilfssatz] = plätze[static_cast<std::size_t>(bereich.Nachfüllung)];
        }
    }
}

/// Gives each place of a table the record that `quellen` names for it, all at once; each record is
/// copied or swapped once.
template <class Liste> void Umstellen(Liste felder, std::vector<int> quellen)
{
    std::vector<int> leser(quellen.size(), 0); // places that still wait for a record
    std::vector<int> frei;
    auto platz = [](auto &werte, int i) -> int & { return werte[static_cast<std::size_t>(i)]; };
    int anzahl = static_cast<int>(quellen.size());
    for (int i = 0; i < anzahl; ++i)
        if (quellen[static_cast<std::size_t>(i)] != i)
            ++platz(leser, platz(quellen, i));
    for (int i = 0; i < anzahl; ++i)
        if (platz(quellen, i) != i && platz(leser, i) == 0)
            frei.push_back(i);
    // A place that nobody waits for can be overwritten.
    while (!frei.empty()) {
        int ziel = frei.back();
        frei.pop_back();
        int quelle = std::exchange(platz(quellen, ziel), ziel);
        FelderÜbernehmen(felder, ziel, quelle);
        if (--platz(leser, quelle) == 0 && platz(quellen, quelle) != quelle)
            frei.push_back(quelle);
    }
    // What is left are rings: swap along each until its last place holds the first record.
    for (int i = 0; i < anzahl; ++i)
        for (int j = i; platz(quellen, j) != j;) {
            int quelle = std::exchange(platz(quellen, j), j);
            if (quelle == i)
                break;
            FelderTauschen(felder, j, quelle);
            j = quelle;
        }
}

/// Sorts a table by the key that `schlüsselVon` gives for a record. Every field of a record moves;
/// the columns that belong to a run only do not.
template <class Tabelle, class SchlüsselVon>
void TabelleSortieren(Tabelle &tabelle, const Sortierbereich &bereich, SchlüsselVon schlüsselVon)
{
    using Schlüssel = decltype(schlüsselVon(0));
    std::vector<Sortierplatz<Schlüssel>> plätze;
    plätze.reserve(Tabelle::HöchsterIndex + 1);
    for (int i = 0; i <= Tabelle::HöchsterIndex; ++i)
        plätze.push_back({schlüsselVon(i), i});
    if (bereich.Vergleiche > Tabelle::HöchsterIndex)
        throw Laufzeitfehler(Laufzeitfehler::IndexAußerhalb);
    NachbarnTauschen(plätze, bereich);
    std::vector<int> quellen;
    quellen.reserve(plätze.size());
    for (const auto &platz : plätze)
        quellen.push_back(platz.Quelle);
    Umstellen(tabelle.Felder(), std::move(quellen));
}

} // namespace altardienst
