// The lists of birthdays and jubilees on paper and on labels.
#pragma once

#include "anniversaries/JubiGebu.h"
#include "printing/Etikettendruck.h"

namespace altardienst {

/// Prints `Geburtstagsliste`; group and month (1 to 12) are those it was filled for and appear in
/// the title.
void GeburtstageDrucken(Gruppende gruppe, Int16 GeburtsMonat);

/// Prints `Jubiläumsliste`, filled for that number of years.
void JubiläenDrucken(Int16 JubiläumsJahre);

Etikettenleute EtikettenDerGeburtstage();
Etikettenleute EtikettenDerJubiläen();

} // namespace altardienst
