// Birthdays by month and jubilees by years: on the screen, as printed lists and as labels.
#pragma once

#include "anniversaries/JubiGebu.h"
#include "application/Dialogfenster.h"
#include "printing/Etikettenwahl.h"

#include <QButtonGroup>

namespace altardienst {

/// The two tables always match the options chosen.
class JubiGebuForm : public Dialogfenster {
  public:
    JubiGebuForm();

    QButtonGroup *Gruppe; // Alle, Messdien, Meßhelfer in the frame Gruppende
    QButtonGroup *Monat;  // 1 to 12: Januar to Dezember in the frame Geburtstagsmonat
    QPushButton *AnsichtGeb;
    QPushButton *DruckGebu;
    QButtonGroup *Jahre; // 0 to 15: NullE to Fünfzehne in the frame Jahreszahl
    QPushButton *AnsichtJubiMeß;
    QPushButton *JubiläumMeßdiener;
    QRadioButton *Geburtstage; // whose labels
    QRadioButton *Jubiläum;
    Etikettenwahl *Etikettenrahmen; // EtiGröß with O1 to O10, Etik with Reih, Spal, Etiketten
    QPushButton *Ende;

  private:
    void Anordnen();
    void Verbinden();

    void GeburtstageFüllen();
    void JubiläenFüllen();
    void AnsichtÖffnen(QWidget *ansicht);
    void EtikettenDrucken();

    Gruppende GewählteGruppe() const { return static_cast<Gruppende>(Gruppe->checkedId()); }
    Int16 GeburtsMonat() const { return Monat->checkedId(); }
    Int16 JubiläumsJahre() const { return Jahre->checkedId(); }
};

} // namespace altardienst
