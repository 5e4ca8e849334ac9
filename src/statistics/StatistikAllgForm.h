// How the services that the helpers offer are distributed.
#pragma once

#include "application/Dialogfenster.h"
#include "core/Plätze.h"

#include <QLabel>
#include <QPushButton>

namespace altardienst {

class StatistikAllgForm : public Dialogfenster {
  public:
    StatistikAllgForm();

    QLabel *DD1;
    QLabel *LE1, *Le2;   // count and share: Lektor
    QLabel *Kom1, *Kom2; // Kommunionhelfer
    QLabel *Ka1, *Ka2;   // Kantor
    QLabel *Kol1, *Kol2; // Kollektant
    QLabel *I1, *I2;     // all
    QPushButton *Druck;
    QPushButton *Ente;

  private:
    using Labels = std::array<QLabel *, Helferarten.size()>;
    Labels Anzahl() const;
    Labels Anteil() const;

    void Anordnen();
    void Füllen();
};

} // namespace altardienst
