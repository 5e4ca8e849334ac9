// One person in the plan: all services, by kind, and the gaps between them.
#pragma once

#include "overview/Planprüfung.h"

#include <optional>
#include <vector>

namespace altardienst {

struct Personendienst {
    Planplatz Wo;
    Datum Tag;
    Text Dienst;              // "Leuchter"
    std::optional<int> Pause; // days since the service before; none for the first
};

struct Dienstmenge {
    Text Dienst;
    int Zahl;
};

struct Personenblick {
    Text Name;                           // "Vorname Nachname"
    std::vector<Personendienst> Dienste; // in the order of time
    std::vector<Dienstmenge> NachArt;    // servers' services first, then helpers'; none with 0
    Text Zusammenfassung;                // one line for below the grid
};

/// By name, as people refer to each other, whatever list the person is in, or none.
Personenblick PersonImPlan(const Plantabellen &tabellen, const Text &vorname, const Text &nachname);

} // namespace altardienst
