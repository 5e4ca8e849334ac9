// "Plan ausgleichen": from the plan as it stands to the fairest one that can be found.
#pragma once

#include "overview/Befund.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace altardienst {

/// How good a plan is, of servers or of helpers.
struct Ausgleichszahlen {
    int Verstöße = 0; // against the rules of the check
    int Wenigste = 0; // services of one person, among those who could serve
    int Meiste = 0;
    double Ungleichheit = 0; // root of the summed squared deviations from the due shares
    int Paare = 0;           // of wish partners side by side
};

struct Ausgleichsauftrag {
    bool Diener = true;
    bool Helfer = true;
    Datum AbTag = 0; // masses before it stay as they are
    // Services in the time before the plan, by record; empty: only the plan counts.
    std::vector<double> DienerBisher = {};
    std::vector<double> HelferBisher = {};
    std::uint32_t Saat = 1;
    double Aufwand = 1; // how long to try, as a multiple of what usually is enough
    /// Asked every few microseconds; true ends the search, and the best plan so far is the result.
    std::function<bool()> Abbruch = {};
    /// Called now and then with the figures of the best plan so far.
    std::function<void(Planplatz::Art, const Ausgleichszahlen &)> Fortschritt = {};
};

/// A place that gets another name, or none.
struct Platzwechsel {
    Planplatz Wo;
    Text VornameVorher, NachnameVorher;
    Text VornameNachher, NachnameNachher;
};

/// What a person has before and after; only of those who could serve or do.
struct Personenanteil {
    int Nr;        // record
    bool Kann;     // serve in some place of the plan
    double Soll;   // due share of the plan
    double Bisher; // in the time before it
    int Vorher;    // services in the plan
    int Nachher;
};

/// A place in which a rule is still broken, or that is still free.
struct Engpass {
    Befund Was;
    Text Satz;   // what is wrong
    bool Bleibt; // fixed, set by hand or in the past, so that nobody else can stand there
    Text Warum;  // nobody else can; empty if somebody could, as after a search that was ended early
    Text Abhilfe; // what would help
};

struct Gruppenausgleich {
    bool Dabei = false; // whether the group was balanced
    Ausgleichszahlen Vorher, Nachher;
    std::vector<Personenanteil> Anteile; // in the order of the table
    std::vector<Engpass> Offen;          // in the order of the table
    bool Bewiesen = false;               // no plan has fewer breaches or is more even
};

struct Ausgleichsergebnis {
    Gruppenausgleich Diener, Helfer;
    std::vector<Platzwechsel> Wechsel; // in the order of the table
    bool Abgebrochen = false;
};

/// Reads the tables and changes nothing. The same seed gives the same plan unless it is ended
/// early. Fixed entries stand in their places afterwards; services set by hand, masses before the
/// day and everything that is no wanted place stay as they are.
Ausgleichsergebnis PlanAusgleichen(const Plantabellen &tabellen, const Ausgleichsauftrag &auftrag);

/// Writes the names of the result, and the services of all masses as they follow from their counts,
/// as the partner way does.
void AusgleichÜbernehmen(const Ausgleichsergebnis &ergebnis);

} // namespace altardienst
