// What the wall sheet shows: the plan as a table, masses down, services across.
#pragma once

#include "exchange/Namenform.h"
#include "overview/Plantabellen.h"
#include "values/Text.h"

#include <optional>
#include <vector>

namespace altardienst {

/// A service that some mass of the plan needs.
struct Aushangspalte {
    Text Kopf;
    Text Kurzkopf;   // where the names are narrower than the name of the service
    int Meiste = 0;  // places in one mass
    int Übliche = 0; // places that four of five masses do with
};

struct Aushangreihe {
    Text Tag; // "So 29.11."
    Text Uhrzeit;
    Text Art;
    int Woche = 0;                        // the same number in the same week
    std::vector<std::vector<Text>> Namen; // by column; an empty one is a free place
};

struct Aushangtafel {
    Text Titel;
    Text Zeitraum;
    std::vector<Aushangspalte> Spalten; // in the order in which the plan prints the services
    std::vector<Aushangreihe> Reihen;   // in the order of time
};

Aushangtafel AushangtafelVon(const Plantabellen &tabellen, Namenform form);

/// Services that few masses need share one column, each name with its service: one feast among many
/// masses must not make the type of all small. Nothing if there are fewer than two of them.
std::optional<Aushangtafel> Zusammengelegt(const Aushangtafel &tafel);

} // namespace altardienst
