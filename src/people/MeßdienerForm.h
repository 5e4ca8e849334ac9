// The editor of the altar servers, one at a time.
#pragma once

#include "fenster/Datensatzwahl.h"
#include "people/Abwesenheitsboxen.h"
#include "people/Flagboxen.h"
#include "people/Meßdienerangaben.h"
#include "people/Partnerboxen.h"

#include <QRadioButton>

namespace altardienst {

class MeßdienerForm : public QWidget {
  public:
    MeßdienerForm();

    Datensatzwahl *Wahl; // Datensätze, PLUS, MINUS, DPM
    QLabel *MaxIndex;
    Meßdienerangaben Angaben; // mTag, pTag, mMonat, PMonat, mJahr, pJahr beside the birthday,
                              // mmTag, pptag, mmMonat, ppMonat, mmJahr, ppJahr beside the entry
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
    QPushButton *Ende;

  protected:
    void closeEvent(QCloseEvent *ereignis) override;

  private:
    void Anordnen();
    QLayout *Personenteil();
    QLayout *Dienstteil();
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

    bool abgeschlossen = false; // what still comes of the focus is of no concern
};

} // namespace altardienst
