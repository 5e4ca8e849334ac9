// Heights of the servers.
#pragma once

#include "application/Dialogfenster.h"

#include <QLabel>
#include <QPushButton>

#include <array>

namespace altardienst {

/// Failure 11 without servers: the window is then not created.
class Statistik2Form : public Dialogfenster {
  public:
    Statistik2Form();

    QLabel *Tagchus;
    std::array<QLabel *, 13> a; // the classes, a0 to a12
    std::array<QLabel *, 13> b; // their counts
    std::array<QLabel *, 13> c; // their shares
    QLabel *G;                  // mean
    QLabel *A;                  // deviation
    QPushButton *Diagramm;
    QPushButton *Druck;
    QPushButton *Ende;

  private:
    void Anordnen();
    void Verbinden();
    void Füllen();
};

} // namespace altardienst
