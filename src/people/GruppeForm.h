// The editor of the groups, one name at a time.
#pragma once

#include "fenster/Datensatzwahl.h"

namespace altardienst {

class GruppeForm : public QWidget {
  public:
    GruppeForm();

    QLineEdit *GBezeichnung;
    Datensatzwahl *Wahl; // Indexi, PLUS, MINUS, DPM
    QLabel *Gruppenzahl;
    QPushButton *Löschend;
    QPushButton *NEWGroup;
    QPushButton *Ende;

  protected:
    void closeEvent(QCloseEvent *ereignis) override;

  private:
    void Anordnen();
    void Verbinden();

    void NummerGeändert();
    void Schritt(int richtung);
    void Umbenennen();
    void Löschen();
    void NeueGruppe();
    void NachNeuerGruppe(bool angelegt);
    void Abschließen();

    int Nummer() const;
    void Zeigen(int i);
    void Schreiben();
    void AnzahlZeigen();

    bool abgeschlossen = false;
};

} // namespace altardienst
