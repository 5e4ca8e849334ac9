// Where one is in the grid of the plan, by what stands there: masses may come and go.
#pragma once

#include "overview/Planmodell.h"

namespace altardienst {

class Tafelstand {
  public:
    Tafelstand() = default;
    Tafelstand(const Planmodell &modell, int obersteZeile, const QModelIndex &zelle, int seitlich);

    /// The same cell in what the model shows by now; invalid if it is gone.
    QModelIndex Zelle(const Planmodell &modell) const;
    /// The row that was the first in sight, -1 if it is gone.
    int ObersteZeile(const Planmodell &modell) const;

    int Seitlich = 0;

  private:
    QString oberste; // the mass in the first row
    QString messe;   // of the current cell
    QString spalte;
};

/// What tells one column from all others.
QString Spaltenname(const Planmodell &modell, int spalte);

} // namespace altardienst
