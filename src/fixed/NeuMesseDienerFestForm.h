// The dialog that adds a fixed entry.
#pragma once

#include "fixed/Zuordnungsfelder.h"

#include <QPushButton>
#include <QWidget>

namespace altardienst {

/// Stays open after each new entry, proposing the first mass again. All handlers are trapped.
class NeuMesseDienerFestForm : public QWidget {
  public:
    NeuMesseDienerFestForm();

    Zuordnungsfelder Felder; // Messen, DatumD, Zeitd, ME1 to 20, MDiener1 to 20 and their names
    QPushButton *Anfügen;
    QPushButton *Abrechen;

  protected:
    void closeEvent(QCloseEvent *ereignis) override;

  private:
    Zuordnungsfelder::Unterschiede Unterschiede();
    void Anordnen();
    void Verbinden();

    void Vorschlagen();
    void EintragAnfügen();

    Int16 DienerAnzahl;                    // servers of the chosen mass
    Zuordnungsfelder::Dienstnamen Dienste; // and the services in its slots
};

} // namespace altardienst
