// All printing that is not a chart: the plan, lists, blank forms and labels.
#pragma once

#include "application/Dialogfenster.h"
#include "printing/Etikettenwahl.h"

#include <QComboBox>
#include <QLabel>
#include <QRadioButton>

namespace altardienst {

class DruckForm : public Dialogfenster {
  public:
    DruckForm();

    QPushButton *Messendruck;
    QPushButton *Standarddruck;
    QPushButton *Meßdienerdruck;
    QPushButton *DruckiMeßdieneri;
    QComboBox *Gruppend;
    QPushButton *Wunschpartner;
    QPushButton *DruckHelfer;
    QPushButton *Erfassungsbogen;
    QPushButton *Erfaßung;
    QLineEdit *Rückgebend;
    SpinButton *Änderung1;
    QPushButton *Minus1;
    QPushButton *Plus1;
    QLabel *RückTag;
    QLineEdit *Dauernde;
    SpinButton *Änderung2;
    QPushButton *Minus2;
    QPushButton *Plus2;
    QLabel *DauerTag;
    QPushButton *EtikGross;
    Etikettenwahl *Etikettenrahmen; // EtiGröß with O1 to O10, Etik with Reih, Spal, Etiketten
    QRadioButton *Alles;
    QRadioButton *GRP;
    QRadioButton *Messhelfer;
    QPushButton *Ende;

  private:
    void Anordnen();
    QWidget *Listen();
    QWidget *Erfassung();
    QWidget *Adressetiketten();
    void Verbinden();
    void Öffnen();

    void RückgabeFassen();
    void DauerFassen();
    void EtikettenDrucken();
    Text GewählteGruppe() const;
};

} // namespace altardienst
