// How tables look: both views of the grid, and tables to read in; and the grid as text.
#pragma once

#include "overview/Planmodell.h"

#include <QTableView>

namespace altardienst {

/// No lines and no row numbers; rows of one height, which scroll by pixels.
void TafelEinrichten(QTableView *ansicht);

/// A table to read in: rows are chosen whole, nothing is edited, the last column takes what is
/// left.
void LesetafelEinrichten(QTableView *tafel);

/// The smallest rectangle around these cells, tab-separated, without columns that are hidden; a
/// cell that is not selected stays empty.
QString AlsTabelle(const QModelIndexList &gewählte, const QTableView &tafel,
                   const Planmodell &modell);

} // namespace altardienst
