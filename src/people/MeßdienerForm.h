// The editor of the altar servers, one at a time.
#pragma once

#include "fenster/Datensatzwahl.h"
#include "fenster/Datumsfeld.h"
#include "fenster/Textwahl.h"
#include "fenster/Zahlbox.h"
#include "people/Abwesenheitsboxen.h"
#include "people/Flagboxen.h"
#include "people/Personenboxen.h"

#include <QRadioButton>

namespace altardienst {

class MeßdienerForm : public QWidget {
  public:
    MeßdienerForm();

    Datensatzwahl *Wahl; // Datensätze, PLUS, MINUS, DPM
    QLabel *MaxIndex;
    Personenboxen Person; // Vornamen, Nachnamen, Straßen, Postleit, Gemeinde, Teflon, Emeil
    Datumsfeld Gebutag;   // Änderung1 to 3; mTag, pTag, mMonat, PMonat, mJahr, pJahr
    QComboBox *Geschl;
    Zahlbox Groß;              // Änderung7
    Datumsfeld Eintritttdatum; // Änderung4 to 6; mmTag, pptag, mmMonat, ppMonat, mmJahr, ppJahr
    QComboBox *Dieenst;
    Flagboxen Dienstmittig; // Check1 to Check5, Check3a
    Flagboxen Abgewählt;    // Check6 to Check11
    QRadioButton *Norm;
    QRadioButton *Oft;
    QLineEdit *Haufigk;
    Abwesenheitsboxen Abwesenheiten; // Start to Schluß5, ä1 to ä30
    QComboBox *Partner;
    QLineEdit *VName;
    QLineEdit *NName;
    QPushButton *NeuDiener;
    QPushButton *Lösch;
    QPushButton *Aufnahmebestätigung;
    QPushButton *Ende;

  protected:
    void closeEvent(QCloseEvent *ereignis) override;

  private:
    void Anordnen();
    QLayout *Personenteil();
    QLayout *Dienstteil();
    QLayout *Partnerteil();
    void Verbinden();

    void NummerGeändert();
    void Schritt(int richtung);
    void Umbenennen();
    void HäufigkeitGeändert();
    void GruppePrüfen();
    void PartnerPrüfen(bool ausgewählt);
    void NeuerMeßdiener();
    void NachNeuemMeßdiener(bool angelegt);
    void Löschen();
    void Bestätigen() const;
    void Abschließen();

    int Nummer() const;
    void Zeigen(int i);
    void Schreiben(int i);
    void AnzahlZeigen();
    void PartnerZeigen();
    void PartnerLeeren();
    void PartnerlisteFüllen();

    bool abgeschlossen = false; // what still comes of the focus is of no concern
};

/// A height in cm, 5 to 250, with its spin button, which gives the box the focus.
void GrößeVerbinden(const Zahlbox &größe);

QComboBox *Geschlechtwahl();
QComboBox *Gruppenwahl();
void GruppenlisteFüllen(QComboBox *gruppenwahl);

} // namespace altardienst
