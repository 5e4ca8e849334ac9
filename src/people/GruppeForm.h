// The editor of the groups, one name at a time.
#pragma once

#include "people/Editorfenster.h"

#include <QLabel>
#include <QLineEdit>

namespace altardienst {

/// The record mover is `Indexi`, `PLUS`, `MINUS`, `DPM`.
class GruppeForm : public Editorfenster {
  public:
    GruppeForm();

    QLineEdit *GBezeichnung;
    QLabel *Gruppenzahl;
    QPushButton *Löschend;
    QPushButton *NEWGroup;

  private:
    void Anordnen();
    void Verbinden();

    void NummerGeändert();
    void Schritt(int richtung);
    void Umbenennen() override;
    int Sichern() override;
    bool IstBenannt(int i) const override;
    QWidget *Fehlendes(int i) const override;
    void Löschen();
    void NeueGruppe();
    void Abschließen() override;

    void Zeigen(int i) override;
    void Schreiben();
    void AnzahlZeigen();
};

} // namespace altardienst
