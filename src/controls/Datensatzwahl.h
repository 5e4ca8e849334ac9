// The record mover of the one-record editors: number box, PLUS, MINUS, DPM, Page Up and Page Down.
#pragma once

#include "controls/SpinButton.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QWidget>

#include <functional>

namespace altardienst {

/// The names of the controls, which differ from form to form.
struct Datensatznamen {
    const char *Nummer;
    const char *Plus;
    const char *Minus;
    const char *DPM = nullptr; // the spin button, which not every form has
};

/// Lays its controls out in a row. What a move writes and shows is up to the form.
class Datensatzwahl : public QWidget {
  public:
    explicit Datensatzwahl(const Datensatznamen &namen);

    QLineEdit *Nummer;
    QPushButton *Minus;
    QPushButton *Plus;
    SpinButton *DPM; // null if it has no name

    /// Runs with +1 on `Plus`, the up event of `DPM` and Page Up, with -1 on their counterparts.
    /// The keys work in the whole window of the form.
    void BeiSchritt(const std::function<void(int richtung)> &handler);

    /// Runs on every change of the number box.
    void BeiWechsel(std::function<void()> handler);
};

} // namespace altardienst
