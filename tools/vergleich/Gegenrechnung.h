// The same task for the solver clingo.
#pragma once

#include "fairness/Besetzungsaufgabe.h"

#include <filesystem>
#include <string>
#include <vector>

namespace altardienst {

/// What counts of a plan.
struct Lösung {
    int Verstöße = 0;   // for the solver: empty places
    int Unpassende = 0; // servers too tall or too small for their mass
    double Ungleichheit = 0;
    int Spanne = 0; // from the fewest services to the most
};

/// Counts a plan, one entry a place.
Lösung Auszählen(const Besetzungsaufgabe &aufgabe, const std::vector<int> &wer);

struct Gegenlösung {
    bool Gefunden = false;
    bool Bewiesen = false; // there is none better
    Lösung Beste;
    std::vector<int> Wer; // one entry a place
    double Sekunden = 0;
};

/// The task as a program for the solver: empty places and heights out of tolerance are what it
/// avoids first, all other rules of the draw are never broken; then the squared deviations from the
/// due shares.
std::string AlsProgramm(const Besetzungsaufgabe &aufgabe);

/// Runs the solver for at most so many seconds. Tasks and answers lie in the directory; an answer
/// that is there already for the same task counts, and the solver does not run.
Gegenlösung Gegenrechnen(const Besetzungsaufgabe &aufgabe, int sekunden,
                         const std::filesystem::path &verzeichnis);

} // namespace altardienst
