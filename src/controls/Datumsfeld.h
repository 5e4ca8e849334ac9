// A date box with its steps: spin buttons for day, month and year, and pairs of buttons next to
// them.
#pragma once

#include "controls/SpinButton.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>

#include <array>
#include <functional>

namespace altardienst {

/// The units come in the order day, month, year.
class Datumsfeld {
  public:
    struct Knopfpaar {
        QPushButton *Minus = nullptr;
        QPushButton *Plus = nullptr;
    };

    /// `gesprochen` says what the date refers to, for screen readers.
    Datumsfeld(const char *feld, const std::array<const char *, 3> &spins, const char *gesprochen);

    QLineEdit *Feld;
    std::array<SpinButton *, 3> Spins;
    std::array<Knopfpaar, 3> Knöpfe; // where a form has them

    /// Adds the pairs of buttons: minus and plus of each unit.
    void KnöpfeAnlegen(const std::array<std::array<const char *, 2>, 3> &namen);

    /// Label, box and, next to it, the name of each unit with its spin button and its buttons, all
    /// in one row of a grid.
    void Anordnen(QGridLayout *raster, int zeile, const char *text) const;

    /// Connects the steps. Stepwise: a box without a date stays as it is. A spin button then runs
    /// `danach` or, if there is none, gives the box the focus.
    void SchritteVerbinden(const std::function<void()> &danach = {}) const;

    /// On every change, a text that is a date is rewritten in the short date format.
    void BeiÄnderungUmschreiben() const;

    /// The same on a click into the box and on Enter.
    void BeiKlickUmschreiben() const;

    void Zeigen(double datum) const;

    /// Failure 13 if the box holds no date; it then takes the focus.
    double Wert() const;

  private:
    QString gesprochen;
};

/// The number of year boundaries between the date in a box and today; negative for later years.
int JahreBisHeute(const QLineEdit *feld);

void HeuteZeigen(QLineEdit *feld);

/// "Tag", "Monat" and "Jahr", as the units are called on the screen.
const std::array<const char *, 3> &Einheitennamen();

} // namespace altardienst
