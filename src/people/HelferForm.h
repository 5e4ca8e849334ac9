// The editor of the helpers, one at a time.
#pragma once

#include "controls/Datumsfeld.h"
#include "controls/Textwahl.h"
#include "people/Abwesenheitsboxen.h"
#include "people/Editorfenster.h"
#include "people/Personenboxen.h"

namespace altardienst {

/// The record mover is `Indexen`, `PLUS`, `MINUS`, `DPM`. Every save goes to the record at
/// `Helfer.Cursor`, whatever the number box says.
class HelferForm : public Editorfenster {
  public:
    HelferForm();

    QLabel *Datensätzig;
    Personenboxen Person; // Vorne, Hinten, Weg, PLZetus, Wohort, Anruf, Mailen
    Datumsfeld Tagen;     // Änderung1 to 3; MTag, Ptag, MMon, PMon, MJahr, PJahr
    QComboBox *Dient;
    QComboBox *Dient2;
    Abwesenheitsboxen Abwesenheiten; // Start to Schluß3, ä1 to ä18
    QPushButton *NeuHelfer;
    QPushButton *Datensatzlösch;

  private:
    void Anordnen();
    void Verbinden();

    void NummerGeändert();
    void Schritt(int richtung);
    void Umbenennen() override;
    int Sichern() override;
    bool IstBenannt(int i) const override;
    QWidget *Fehlendes(int i) const override;
    void Aufschlagen(int satz) override;
    void Löschen();
    void NeuerHelfer();
    void Abschließen() override;

    void Zeigen(int i) override;
    void Schreiben(int i);
    void AnzahlZeigen();
};

/// The services to choose from; any other text is taken as it is.
QComboBox *Dienstwahl(const char *name, const char *gesprochen);

/// A birthday more than 90 calendar years ago becomes today.
void GeburtstagPrüfen(QLineEdit *feld);

} // namespace altardienst
