// A measurement and its yardstick: both run in turns in one process, and their ratio is what
// counts.
#pragma once

#include <functional>
#include <string>

namespace altardienst {

/// A piece of work and its preparation before each time it is done; only the work is timed.
struct Arbeit {
    std::function<void()> Vorbereiten;
    std::function<void()> Ausführen;
};

struct Messung {
    std::string Name;
    std::string Maßstabname; // what it is compared with
    Arbeit Gemessen;
    Arbeit Maßstab;
    double Ziel;          // largest acceptable ratio of the two times
    int Durchläufe;       // how often each of the two is done
    double Einheiten = 1; // how many pieces either work consists of, for the time per piece
};

void MessungAnmelden(const Messung &messung);

/// Registers the measurements of a program; each program defines its own.
void MessungenAnmelden();

} // namespace altardienst
