// The services of helpers that the masses of the plan call for.
#pragma once

#include "application/Dialogfenster.h"
#include "core/Plätze.h"

#include <QLabel>
#include <QPushButton>

namespace altardienst {

/// Failure 11 if services are wanted and there are no helpers: the window is then not created.
class StatistikHelferForm : public Dialogfenster {
  public:
    StatistikHelferForm();

    QLabel *LL1, *LL2;   // total and share of all: Lektor
    QLabel *KOR1, *KOR2; // Kommunionhelfer
    QLabel *KAR1, *KAR2; // Kantor
    QLabel *KLR1, *KLR2; // Kollektant
    QLabel *DHI;         // all services
    QLabel *DHM;         // per mass
    QLabel *DHH;         // per helper
    QPushButton *Druck;
    QPushButton *Ende;

  private:
    using Labels = std::array<QLabel *, Helferarten.size()>;
    Labels Gesamt() const;
    Labels Anteil() const;

    void Anordnen();
    void Füllen();
};

} // namespace altardienst
