// The editor of the ten label formats.
#pragma once

#include "controls/Datensatzwahl.h"

#include <array>

namespace altardienst {

class EtikettenForm : public QWidget {
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

  protected:
    void closeEvent(QCloseEvent *ereignis) override;

  private:
    void Anordnen();
    void Verbinden();

    void IndGeändert();
    void Schritt(int richtung);
    void Zeigen();
    void Schreiben();

    std::array<QLineEdit *, 5> Längen() const { return {OU, LR, H, B, ST}; }
    std::array<QLineEdit *, 2> Zahlen() const { return {R, S}; }
};

} // namespace altardienst
