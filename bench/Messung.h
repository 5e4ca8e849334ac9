// A measure and its yardstick: both run in turns in one process, and their ratio is what counts.
#pragma once

#include <functional>
#include <string>

namespace altardienst {

/// A piece of work and what must stand ready before each time it is done; only the work is timed.
struct Arbeit {
    std::function<void()> Vorbereiten;
    std::function<void()> Ausführen;
};

struct Messung {
    std::string Name;
    std::string Maßstabname; // what the measure is held against
    Arbeit Gemessen;
    Arbeit Maßstab;
    double Ziel;          // largest ratio of the two times that is good enough
    int Durchläufe;       // how often each of the two is done
    double Einheiten = 1; // pieces of which either work consists, for the time of a single one
};

void MessungAnmelden(const Messung &messung);

/// Registers the measures of a program; each has its own.
void MessungenAnmelden();

} // namespace altardienst
