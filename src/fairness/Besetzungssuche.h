// The search for the best plan that can be found.
#pragma once

#include "fairness/Besetzung.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace altardienst {

struct Besetzungssuche {
    std::uint32_t Saat = 1;
    double Aufwand = 1; // how long it may try, as a multiple of what usually is enough
    /// Asked every few moves; true ends the search.
    std::function<bool()> Abbruch = {};
    /// Called now and then with the best plan so far, one entry a place.
    std::function<void(const std::vector<int> &, const Plankosten &)> Fortschritt = {};
};

struct Suchergebnis {
    std::vector<int> Wer; // one entry a place
    Plankosten Kosten;
    bool Bewiesen = false;    // neither fewer breaches nor a more even plan is possible
    bool Abgebrochen = false; // the best plan until then
};

/// Starts from the plan as it stands, which is the result if nothing better is found. The same seed
/// gives the same plan unless it is ended early.
Suchergebnis BesteBesetzung(const Besetzungsaufgabe &aufgabe, const Besetzungssuche &suche);

/// The least of breaches and unevenness that any plan has, as far as can be said beforehand.
Plankosten Untergrenze(const Besetzungsaufgabe &aufgabe);

} // namespace altardienst
