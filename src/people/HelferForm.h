// The editor of the helpers, one at a time.
#pragma once

#include "fenster/Datensatzwahl.h"
#include "fenster/Datumsfeld.h"
#include "fenster/Textwahl.h"
#include "people/Abwesenheitsboxen.h"
#include "people/Personenboxen.h"

namespace altardienst {

/// Every save goes to the record at `Helfer.Cursor`, whatever stands in the number box.
class HelferForm : public QWidget {
  public:
    HelferForm();

    Datensatzwahl *Wahl; // Indexen, PLUS, MINUS, DPM
    QLabel *Datensätzig;
    Personenboxen Person; // Vorne, Hinten, Weg, PLZetus, Wohort, Anruf, Mailen
    Datumsfeld Tagen;     // Änderung1 to 3; MTag, Ptag, MMon, PMon, MJahr, PJahr
    QComboBox *Dient;
    QComboBox *Dient2;
    Abwesenheitsboxen Abwesenheiten; // Start to Schluß3, ä1 to ä18
    QPushButton *NeuHelfer;
    QPushButton *Datensatzlösch;
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
    void NeuerHelfer();
    void NachNeuemHelfer(bool angelegt);
    void Abschließen();

    int Nummer() const;
    void Zeigen(int i);
    void Schreiben(int i);
    void AnzahlZeigen();

    bool abgeschlossen = false;
};

/// The services to choose from; any other text is taken as it stands.
QComboBox *Dienstwahl(const char *name, const char *gesprochen);

/// A birthday more than 90 calendar years back becomes today.
void GeburtstagPrüfen(QLineEdit *feld);

} // namespace altardienst
