// How far the plan is, in figures: what the main window counts beside the seven steps.
#pragma once

#include "core/tables.h"
#include "values/Text.h"

#include <vector>

namespace altardienst {

/// Places of the masses, filled and open. A place is filled if a name stands in it, whatever name.
struct Platzzahl {
    int Besetzt = 0;
    int Offen = 0;

    int Alle() const { return Besetzt + Offen; }
};

struct Überblick {
    int Messen = 0;
    int ImZeitraum = 0; // masses on a day of the plan period as it is set now
    Platzzahl Dienerplätze;
    Platzzahl Helferplätze; // only those that a mass wants
};

/// Whether a day belongs to the plan period.
bool LiegtImZeitraum(const KonfigDatensatz &einstellungen, Datum tag);

/// Counts all masses; far below a millisecond even for the largest plan.
Überblick ÜberblickZählen();

/// One section of an overview: what it says, and more where there is room to explain.
struct Abschnitt {
    Text Name;
    Text Inhalt; // empty: there is nothing to say
    Text Erklärung;
};

/// The plan period, the masses, their places, and the people, in this order.
std::vector<Abschnitt> ÜberblickAbschnitte();

} // namespace altardienst
