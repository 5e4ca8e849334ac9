// The plan as calendar files: all masses in one, or for each person the masses in which he serves.
#pragma once

#include "exchange/Empfänger.h"
#include "exchange/Namenform.h"
#include "overview/Plantabellen.h"

#include <string>
#include <vector>

namespace altardienst {

struct Kalenderdatei {
    Text Name; // proposed, with its extension
    std::string Bytes;
    int Einträge;
};

struct Kalenderausgabe {
    std::vector<Kalenderdatei> Dateien;
    int OhneTermin = 0; // masses left out since they have no date or time that a calendar has
    // People without a file:
    int OhneDienst = 0;    // since they do not serve
    int NurOhneTermin = 0; // since they serve in masses that are left out only
};

/// One entry a mass, with everybody who serves in it. An entry keeps its identity as long as date,
/// time and kind of the mass stay and the parish has the same name, whoever serves.
Kalenderausgabe MessenAlsKalender(const Plantabellen &tabellen, Namenform form);

/// One file for each person of the tables who serves, whole names in its name only; unless it is
/// for a group, also for each one who stands in the plan by hand only. A person who is server and
/// helper is one. A place kept for a group counts for all its servers.
Kalenderausgabe KalenderJePerson(const Plantabellen &tabellen, const Personenkreis &kreis,
                                 Namenform form);

} // namespace altardienst
