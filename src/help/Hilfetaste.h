// F1 in every window of the program, and what opens the handbook otherwise.
#pragma once

#include <QCoreApplication>

namespace altardienst {

/// From now on F1 opens the handbook, wherever in the program it is pressed.
void HilfetasteEinrichten(QCoreApplication &anwendung);

/// Opens the handbook at the place that belongs to the window one is in; one that is open is
/// brought to the front.
void HandbuchÖffnen();

} // namespace altardienst
