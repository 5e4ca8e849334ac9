// The two tables of the window that reads people in.
#pragma once

#include "exchange/Einlesen.h"

#include <QComboBox>
#include <QTableWidget>

namespace altardienst {

/// What a column of the file is to mean: nothing, the whole name, or one of ours.
QComboBox *Bedeutungswahl(Personenart art, int spalte, int bedeutung);

// The columns of the preview; the first one is ticked.
enum Vorschauspalte { SNimm, SWas, SName, SInhalt };

/// Fills one row of the preview. A row that cannot be taken, or would change nothing, has no box to
/// tick.
void VorschauzeileZeigen(QTableWidget *tafel, int zeile, Personenart art, const Vorschauzeile &eine,
                         bool gewählt);

} // namespace altardienst
