// The editor of the altar servers, one at a time.
#pragma once

#include "controls/Flagboxen.h"
#include "people/Abwesenheitsboxen.h"
#include "people/Editorfenster.h"
#include "people/Meßdienerangaben.h"
#include "people/Partnerboxen.h"

#include <QRadioButton>

namespace altardienst {

/// The record mover is `Datensätze`, `PLUS`, `MINUS`, `DPM`.
class MeßdienerForm : public Editorfenster {
  public:
    MeßdienerForm();

    QLabel *MaxIndex;
    Meßdienerangaben Angaben; // mTag, pTag, mMonat, PMonat, mJahr, pJahr next to the birthday,
                              // mmTag, pptag, mmMonat, ppMonat, mmJahr, ppJahr next to the entry
    Flagboxen Dienstmittig;   // Check1 to Check5, Check3a
    Flagboxen Abgewählt;      // Check6 to Check11
    QRadioButton *Norm;
    QRadioButton *Oft;
    QLineEdit *Haufigk;
    Abwesenheitsboxen Abwesenheiten; // Start to Schluß5, ä1 to ä30
    Partnerboxen Wunsch;
    QPushButton *NeuDiener;
    QPushButton *Lösch;
    QPushButton *Aufnahmebestätigung;

  private:
    void Anordnen();
    QLayout *Personenteil();
    QLayout *Dienstteil();
    void Verbinden();

    void NummerGeändert();
    void Schritt(int richtung);
    void Umbenennen() override;
    int Sichern() override;
    bool IstBenannt(int i) const override;
    QWidget *Fehlendes(int i) const override;
    void Aufschlagen(int satz) override;
    void Erneuern() override;
    void HäufigkeitGeändert();
    void GruppePrüfen();
    void PartnerPrüfen(bool ausgewählt);
    void NeuerMeßdiener();
    void Löschen();
    void Bestätigen() const;
    void Abschließen() override;

    void Zeigen(int i) override;
    void Schreiben(int i);
    void AnzahlZeigen();
};

} // namespace altardienst
