// The period of the plan among the settings: its first day, the number of its days and its last
// day.
#pragma once

#include "controls/Zahlbox.h"

#include <QLabel>
#include <QLayout>

namespace altardienst {

/// Both boxes are stored on Enter and at each step of their spin buttons, the number of days also
/// when its box is left.
class Planzeitraum {
  public:
    Planzeitraum();
    Planzeitraum(const Planzeitraum &) = delete; // its handlers refer to it
    Planzeitraum &operator=(const Planzeitraum &) = delete;

    QLineEdit *Datumsen;
    SpinButton *SpinButton1;
    QLabel *tagi;     // weekday of the start date
    Zahlbox tagilein; // Änderung1
    QLabel *Endet;
    QLabel *Dayig;

    QLayout *Anordnen() const;

    /// Connects everything except leaving the number of days, which counts only while the form is
    /// open.
    void Verbinden();

    /// Clips and stores the number of days, as happens when its box is left.
    void TageVerlassen();

    /// Shows the settings; `Berechnen` adds the weekday and the end.
    void Zeigen() const;

    /// Stores the first day and shows what follows from it. Stepwise: a box without a date stays as
    /// it is.
    void Berechnen();

  private:
    void DatumGedreht(int tage);
    void TageGedreht(int tage);
    void TageBegrenzen(int bis);
    void EndeZeigen();
};

} // namespace altardienst
