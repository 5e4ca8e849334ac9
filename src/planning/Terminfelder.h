// The weekday, date and time of a mass, as the mass list and the dialog for a new mass show them.
#pragma once

#include "controls/SpinButton.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>

#include <functional>

namespace altardienst {

/// `tagelang`, `datendaten`, `Uhrwerk`, the button `Taga`, and a spin button for each step. `Taga`
/// writes the weekday padded with blanks to ten characters, which does not compare equal to the
/// plain name: wishes by weekday do not apply to such a mass.
class Terminfelder {
  public:
    Terminfelder();
    Terminfelder(const Terminfelder &) = delete; // its handlers refer to it
    Terminfelder &operator=(const Terminfelder &) = delete;

    QLineEdit *tagelang;
    QPushButton *Taga;
    QLineEdit *datendaten;
    SpinButton *Änderung1; // day
    SpinButton *Änderung2; // month
    SpinButton *Änderung4; // year
    QLineEdit *Uhrwerk;
    SpinButton *Änderung5; // hour
    SpinButton *Änderung6; // five minutes

    /// The buttons next to a step, where a form has them.
    struct Knopfpaar {
        QPushButton *Minus = nullptr;
        QPushButton *Plus = nullptr;
    };
    struct Knöpfe {
        Knopfpaar Tag, Monat, Jahr, Stunde, Minute;
    };

    void Anordnen(QGridLayout *raster, int zeile, const Knöpfe &knöpfe) const;

    /// `beiDatumsschritt` runs after each step of the date. Trapped.
    void Verbinden(const Knöpfe &knöpfe, const std::function<void()> &beiDatumsschritt) const;

    /// What `Taga` does. Failure 13 if the box holds no date.
    void WochentagBestimmen() const;
};

} // namespace altardienst
