// The tables of "Plan ausgleichen": figures, a bar per person, the places that change, and what
// remains.
#pragma once

#include "fairness/Ausgleichslauf.h"

#include <QString>
#include <QTableWidget>

namespace altardienst {

/// Before, and after or so far; without a group its columns are hidden.
QTableWidget *Zahlentafel();
void ZahlenZeigen(QTableWidget *tafel, const Ausgleichslauf::Zwischenstand &stand);
void ZahlenZeigen(QTableWidget *tafel, const Ausgleichsergebnis &ergebnis);

QTableWidget *Anteiltafel();
void AnteileZeigen(QTableWidget *tafel, const Ausgleichsergebnis &ergebnis);

QTableWidget *Änderungstafel();
void ÄnderungenZeigen(QTableWidget *tafel, const Ausgleichsergebnis &ergebnis);

/// A paragraph per place in which a rule is still broken.
Text OffenesText(const Ausgleichsergebnis &ergebnis);

} // namespace altardienst
