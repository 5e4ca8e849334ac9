// Age, years of membership and composition of the servers.
#pragma once

#include "application/Dialogfenster.h"

#include <QLabel>
#include <QPushButton>

#include <array>

namespace altardienst {

/// Failure 11 without servers: the window is then not created.
class StatistikForm : public Dialogfenster {
  public:
    StatistikForm();

    QLabel *Tagchen;
    std::array<QLabel *, 12> a;  // age, a9 to a20
    std::array<QLabel *, 12> aa; // its share, aa9, AA10, aa11 to aa20
    QLabel *b0;
    std::array<QLabel *, 16> d;  // membership, d0 to d15
    std::array<QLabel *, 16> dd; // its share
    QLabel *c20;
    std::array<QLabel *, 8> e;  // composition, e0 to e7
    std::array<QLabel *, 8> ee; // its share
    QPushButton *Diagramm;
    QPushButton *Druck;
    QPushButton *Ende;

  private:
    void Anordnen();
    void Verbinden();
    void Füllen();

    QLayout *Alterstafel();
    QLayout *Zugehörigkeitstafel();
    QLayout *Zusammensetzungstafel();
};

} // namespace altardienst
