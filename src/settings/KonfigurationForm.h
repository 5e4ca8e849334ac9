// The settings of the parish, of the plan and of everything printed.
#pragma once

#include "application/Dialogfenster.h"
#include "controls/Flagboxen.h"
#include "controls/Zahlbox.h"
#include "core/tables.h"
#include "settings/Planzeitraum.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace altardienst {

/// Every control writes its field at once; closing the form checks nothing.
class KonfigurationForm : public Dialogfenster {
  public:
    KonfigurationForm();

    QLineEdit *Bezeichnung;
    QLineEdit *Straß;
    QLineEdit *Örtchus;
    Planzeitraum Zeitraum; // Datumsen, SpinButton1, tagi, tagilein, Änderung1, Endet, Dayig
    Zahlbox DiffG;         // Änderung6
    Zahlbox GrenzAuslos;   // ÄLF
    QComboBox *Schriftartig;
    Zahlbox Schriftg;    // Änderung2
    Zahlbox Über;        // Änderung4
    Zahlbox Linker;      // Änderung3
    Zahlbox Unt;         // Änderung5
    Zahlbox OB;          // Änderung7
    QLineEdit *DiffJahr; // not shown: the two options stand for it
    QRadioButton *Hochformat;
    QRadioButton *Querformat;
    Flagboxen Flags8;  // Check1 to Check5
    Flagboxen Flags6;  // Dress, Teflonie, Gebteg, Numm
    Flagboxen Flags11; // Diner, Help
    QPushButton *Ende;

  protected:
    bool eventFilter(QObject *control, QEvent *ereignis) override;

  private:
    void Anordnen();
    QLayout *Gemeinde();
    QLayout *Zuweisung();
    QLayout *Schrift();
    QWidget *Ausrichtung();
    QLayout *Flags();
    void Verbinden();
    void VorDemSchließen() override;
    void Füllen();

    void PlzOrtVerlassen();
    void GrößendifferenzGeändert();
    void SchriftenFüllen();

    bool geschlossen = false;
};

} // namespace altardienst
