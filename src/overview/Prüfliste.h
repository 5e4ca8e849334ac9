// The findings as a list: in groups, and on paper.
#pragma once

#include "overview/Planprüfung.h"

#include <vector>

namespace altardienst {

enum class Gliederung { NachMesse, NachPerson };

struct Befundgruppe {
    Text Titel; // "Samstag, 28.11.2026, 18:30 Uhr, Vorabendmesse", or a name
    std::vector<Befund> Befunde;
};

/// By mass: in the order of the table. By person: by name; findings without a person come last,
/// under "Ohne Namen".
std::vector<Befundgruppe> Befundgruppen(const Planprüfung &prüfung, Gliederung gliederung);

/// Prints the groups as the report "Prüfliste".
void PrüflisteDrucken(const Planprüfung &prüfung, Gliederung gliederung);

} // namespace altardienst
