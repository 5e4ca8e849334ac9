// The editor of the week pattern: one regular mass at a time.
#pragma once

#include "application/Dialogfenster.h"
#include "controls/Datensatzwahl.h"
#include "planning/Dienstboxen.h"

#include <QComboBox>

namespace altardienst {

class StandardmessenForm : public Dialogfenster {
  public:
    StandardmessenForm();

    Datensatzwahl *Wahl; // Datensatznummer, Plus, Minus, DPM
    QComboBox *Tage;
    QLineEdit *Zeitig;
    SpinButton *Stundenändern;
    QPushButton *mh;
    QPushButton *ph;
    SpinButton *Minutenänderung;
    QPushButton *mMin;
    QPushButton *pMini;
    QLineEdit *Messearten;
    Dienstboxen Dienste; // ZahlMeßdiener, DienstA to DienstD, Dienste, DienstF, Änderung1 to 7
    Helferzahlboxen Helferzahlen; // Leck, Komu, Kanto, Kolle, Änderung8 to 11
    QPushButton *Löschig;
    QPushButton *Ende;

  private:
    void Anordnen();
    void Verbinden();
    void VorDemSchließen() override;

    void NummerGeändert();
    void Schritt(int richtung);
    void DienerzahlGeändert();
    void Löschen();
    void TagZeigen(const Text &tag);
    void Zeigen(int i);
    void Schreiben(int i);
};

} // namespace altardienst
