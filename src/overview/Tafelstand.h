// Where one is in the grid of the plan, by what stands there: masses may come and go, and where
// only what is wrong is shown, the mass goes that one has just put right.
#pragma once

#include "overview/Planmodell.h"

namespace altardienst {

class Tafelstand {
  public:
    Tafelstand() = default;
    Tafelstand(const Planmodell &modell, int obersteZeile, const QModelIndex &zelle, int seitlich);

    /// The same cell in what the model shows by now; if its mass is gone, that of the next one
    /// which is left. Invalid if the column is gone, or all masses.
    QModelIndex Zelle(const Planmodell &modell) const;
    /// The row that was the first in sight, or the next one which is left; -1 if none is.
    int ObersteZeile(const Planmodell &modell) const;

    int Seitlich = 0;

  private:
    QStringList zeilen; // all masses
    int oberste = -1;
    int gewählte = -1; // that of the current cell
    QString spalte;
};

/// What tells one column from all others.
QString Spaltenname(const Planmodell &modell, int spalte);

} // namespace altardienst
