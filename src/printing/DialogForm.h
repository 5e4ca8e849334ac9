// The dialog that writes the plan as a text file.
#pragma once

#include "application/Dialogfenster.h"
#include "controls/Verzeichniswahl.h"
#include "printing/Textexport.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace altardienst {

/// Proposes to append to a file that exists and to create one that doesn't.
class DialogForm : public Dialogfenster {
  public:
    DialogForm();

    Verzeichniswahl Wahl; // Drive1, Dir1, Dateien
    QLineEdit *Dateiname;
    QLineEdit *VZ;
    QPushButton *Verzeichnis;
    QGroupBox *Datend;
    QRadioButton *Überschreib;
    QRadioButton *Anhang;
    QLabel *Datei;
    QPushButton *OKButton;
    QPushButton *CancelButton;

  private:
    void Anordnen();
    void Verbinden();

    void ZielBilden();
    void VerzeichnisErstellen();
    void Schreiben();

    Exportziel ziel;
};

} // namespace altardienst
