// The services of each helper in the plan.
#pragma once

#include "application/Dialogfenster.h"
#include "statistics/Dienstblatt.h"
#include "statistics/Dienstzählung.h"

namespace altardienst {

/// Failure 9 if the tables hold more than there is room for: the window is then not created.
class StatHelferForm : public Dialogfenster {
  public:
    StatHelferForm();

    Dienstblatt *Blatt; // V1, N1, LE1, KM1, KN1, KL1, IN1, Indexchen, MINUS, PLUS
    QPushButton *Dluckeln;
    QPushButton *Ende;

  private:
    void Anordnen();
    void Verbinden();

    Helferzählung zählung; // as of the time the window opened
};

} // namespace altardienst
