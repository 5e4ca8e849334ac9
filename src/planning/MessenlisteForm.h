// The mass list: any mass corrected by hand, one at a time.
#pragma once

#include "application/Datensatzliste.h"
#include "application/Nebenfenster.h"
#include "controls/Datensatzwahl.h"
#include "planning/Dienstboxen.h"
#include "planning/Slotzeilen.h"
#include "planning/Terminfelder.h"

namespace altardienst {

/// All handlers are trapped: a box that cannot be converted ends them silently.
class MessenlisteForm : public QWidget {
  public:
    MessenlisteForm();

    Datensatzwahl *Wahl; // Datensatzus, Plus, Minus, DPM
    Datensatzliste *Liste;
    QLabel *maxi;
    Terminfelder Termin;      // tagelang, Taga, datendaten, Uhrwerk, Änderung1 to 6
    QPushButton *mt, *pt;     // day
    QPushButton *mm, *pm;     // month
    QPushButton *mj, *pj;     // year
    QPushButton *mhh, *phh;   // hour
    QPushButton *mmin, *pmin; // five minutes
    QLineEdit *Messewesen;
    Dienstboxen Dienste; // Dienerzahlen, Dienster1 to 6, Ä1 to Ä7
    Slotzeilen Slots;    // MDR[0] to MDR[19], vor1 to vor20, nach1 to nach20
    QPushButton *Löscher;
    QPushButton *NeuMeß;
    QPushButton *Lektoren;
    QPushButton *Ende;

    /// Shows a new plan from its first mass on: in the list that is open, also where it is hidden
    /// for one of its dialogs.
    static void NeuenPlanZeigen();

    /// Shows the list again when the dialog for a new mass ends, with the record of its number.
    static void NachNeuerMesse(bool angelegt);

  protected:
    void closeEvent(QCloseEvent *ereignis) override;

  private:
    void Laden();
    void Anordnen();
    Terminfelder::Knöpfe Terminknöpfe() const;
    void Verbinden();

    void NummerGeändert();
    void Schritt(int richtung);
    int Sichern();
    void Aufschlagen(int satz);
    void DatumGeändert();
    void DienerzahlGeändert();
    void ZeilenZeigen(int diener);
    void Beschriften();
    void Löschen();
    void NeueMesse();
    void HelferDerMesse();
    static MessenlisteForm *Wiederkommen();

    int Nummer() const;
    void Ablegen();
    void Mitziehen();
    void Zeigen(int i);
    void Schreiben(int i);
    void Merken(int i);
    void AnzahlZeigen();

    bool füllt = false;
    int gezeigteMesse = 0;
    int cursor = 0; // of the masses, when the list last looked
    Gezeigt gezeigt;
};

} // namespace altardienst
