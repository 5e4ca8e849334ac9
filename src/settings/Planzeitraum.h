// The period of the plan among the settings: its first day, the number of its days and its last
// day.
#pragma once

#include "controls/Zahlbox.h"

#include <QLabel>
#include <QLayout>

namespace altardienst {

/// Both boxes become settings on Enter and at each turn of their spin buttons, the number of days
/// also on leaving it.
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

    /// All but leaving the number of days, which counts only while the form is open.
    void Verbinden();

    /// Clips the number of days and takes it over, as is done on leaving it.
    void TageVerlassen();

    /// Shows the settings; the weekday and the end come with `Berechnen`.
    void Zeigen() const;

    /// Takes over the first day and shows what follows from it. Stepwise: a box without a date
    /// stays as it is.
    void Berechnen();

  private:
    void DatumGedreht(int tage);
    void TageGedreht(int tage);
    void TageBegrenzen(int bis);
    void EndeZeigen();
};

} // namespace altardienst
