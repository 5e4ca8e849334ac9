// Servers and groups fixed to particular masses, one entry at a time.
#pragma once

#include "application/Dialogfenster.h"
#include "controls/Datensatzwahl.h"
#include "fixed/Zuordnungsfelder.h"

namespace altardienst {

/// The dialog for a new entry comes back to it. All handlers are trapped.
class MesseDienerFestForm : public Dialogfenster {
  public:
    MesseDienerFestForm();

    /// Brings back the open one, if there is one.
    static void Zurück();

    /// A step to any entry.
    void Springen(int eintrag);

    Datensatzwahl *Wahl; // Index, Plus, Minus, DatensatzWechsel
    QLabel *MaxIndex;
    Zuordnungsfelder Felder; // Messen, DatumD, Zeitd, ME1 to 20, MDiener1 to 20 and their names
    QPushButton *Hinzu;
    QPushButton *Löschen;
    QPushButton *OKbutton;

  private:
    Zuordnungsfelder::Unterschiede Unterschiede();
    void Anordnen();
    void Verbinden();
    void VorDemSchließen() override;

    void Aufschlagen();
    void NummerGeändert();
    void Schritt(int richtung);
    void Wechseln(int richtung);
    void Hinzufügen();
    void EintragLöschen();
    void Speichern();

    void Zeigen();

    bool gespeichert = false; // `OKbutton` has done its work
};

} // namespace altardienst
