// The frame in which a label format and the first label of a sheet are chosen.
#pragma once

#include "controls/SpinButton.h"
#include "printing/Etikettendruck.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QWidget>

#include <array>
#include <functional>

namespace altardienst {

/// Choosing a format sets `Etikett.Anzahl` and moves the place onto the sheet; until then it stays
/// as typed.
class Etikettenwahl : public QWidget {
  public:
    /// The caption of the button that prints differs from form to form. The formats stand above the
    /// first label, or, with a control that goes below that, at its left.
    explicit Etikettenwahl(const char *knopfBeschriftung, QWidget *darunter = nullptr);

    QGroupBox *EtiGröß;
    std::array<QRadioButton *, 10> O; // O1 to O10
    QGroupBox *Etik;
    QLineEdit *Reih;
    SpinButton *ÄReih;
    QLineEdit *Spal;
    SpinButton *ÄSpal;
    QPushButton *Etiketten;

    /// Shows the names of the formats and selects number `Etikett.Anzahl`.
    void Füllen();

    /// Prints starting at the place shown, then shows the place to continue at, moved onto the
    /// sheet. Trapped, like every report: a place that is not a number prints nothing.
    void Drucken(const Etikettenleute &leute);

  private:
    void Anordnen(QWidget *darunter);
    void Verbinden();
    void AufDenBogenHolen();
    Etikettenplatz Platz() const;
};

} // namespace altardienst
