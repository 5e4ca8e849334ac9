// How both views of the grid look, and the grid as text.
#pragma once

#include "overview/Planmodell.h"

#include <QTableView>

namespace altardienst {

/// No lines and no row numbers; rows of one height, which scroll by pixels.
void TafelEinrichten(QTableView *ansicht);

/// The smallest rectangle around these cells, tab-separated, without columns that are hidden; a
/// cell that is not selected stays empty.
QString AlsTabelle(const QModelIndexList &gewählte, const QTableView &tafel,
                   const Planmodell &modell);

} // namespace altardienst
