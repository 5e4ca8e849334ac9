// The dialog that adds a mass by hand.
#pragma once

#include "planning/Dienstboxen.h"
#include "planning/Terminfelder.h"

#include <QWidget>

namespace altardienst {

class MessenlisteForm;

/// Opened from the mass list, to which it returns. A mass added here has no `Kennung`, so the
/// weekday wishes of the servers do not apply to it.
class NeuMesseForm : public QWidget {
  public:
    explicit NeuMesseForm(MessenlisteForm &liste);

    Terminfelder Termin;
    QLineEdit *Messewesen;
    Dienstboxen Dienste;          // Dienerzahlen, Dienster1 to 6, Ä1 to Ä7
    Helferzahlboxen Helferzahlen; // Lecki, Kommi, Kanto, Kolt, Ä8 to Ä11
    QPushButton *OKButton;
    QPushButton *CancelButton;

  protected:
    void closeEvent(QCloseEvent *ereignis) override;

  private:
    void Anordnen();
    void Verbinden();

    void Neuberechnen();
    void Anlegen();
    bool DoppeltEingegeben() const;
    void Schreiben(int i);

    bool angelegt = false;
};

} // namespace altardienst
