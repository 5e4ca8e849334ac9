// What is in a state, and in words what differs between two.
#pragma once

#include "history/Tabellenstand.h"
#include "values/Text.h"

#include <vector>

namespace altardienst {

/// One line of a list of states.
struct Standübersicht {
    int Diener = 0;
    int Messehelfer = 0;
    int Messen = 0;
    Text Zeitraum; // from the first mass to the last; empty if there are none

    bool Leer() const { return Diener == 0 && Messehelfer == 0 && Messen == 0; }
};

Standübersicht ÜbersichtVon(const Tabellenstand &stand);

struct Unterschiede {
    Text Kurz;                // in one line; "wie jetzt" if nothing differs
    std::vector<Text> Zeilen; // each person and each mass that differs has one; empty if none does
};

/// What has come, gone and changed from then to now. Persons are told apart by their names, masses
/// by date, time and kind; of equal ones the first then is the first now. The order of records does
/// not count.
Unterschiede UnterschiedeZwischen(const Tabellenstand &damals, const Tabellenstand &jetzt);

} // namespace altardienst
