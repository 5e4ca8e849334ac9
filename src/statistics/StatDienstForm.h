// The services of each server in the plan.
#pragma once

#include "application/Dialogfenster.h"
#include "statistics/Dienstblatt.h"
#include "statistics/Dienstzählung.h"

namespace altardienst {

/// Failure 9 if the tables hold more than there is room for: the window is then not created.
class StatDienstForm : public Dialogfenster {
  public:
    StatDienstForm();

    Dienstblatt *Blatt; // V, N, G, L, F, W, K, A, I, INDEXLEIN, MINUS, PLUS
    QPushButton *Druckern;
    QPushButton *Ende;

  private:
    void Anordnen();
    void Verbinden();

    Meßdienerzählung zählung; // as of the time the window opened
};

} // namespace altardienst
