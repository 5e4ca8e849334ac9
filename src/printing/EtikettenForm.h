// The editor of the ten label formats.
#pragma once

#include "application/Dialogfenster.h"
#include "controls/Datensatzwahl.h"

#include <array>

namespace altardienst {

class EtikettenForm : public Dialogfenster {
  public:
    EtikettenForm();

    Datensatzwahl *Wahl; // Ind, Plus, Minus, DPM
    QLineEdit *N;
    QLineEdit *OU;
    QLineEdit *LR;
    QLineEdit *H;
    QLineEdit *B;
    QLineEdit *ST;
    QLineEdit *R;
    QLineEdit *S;
    std::array<SpinButton *, 7> Ä; // Ä1 to Ä7, in the order of the number boxes
    QPushButton *Ende;

  private:
    void Anordnen();
    void Verbinden();
    void VorDemSchließen() override;

    void IndGeändert();
    void Schritt(int richtung);
    void Zeigen();
    void Schreiben();

    std::array<QLineEdit *, 5> Längen() const { return {OU, LR, H, B, ST}; }
    std::array<QLineEdit *, 2> Zahlen() const { return {R, S}; }
};

} // namespace altardienst
