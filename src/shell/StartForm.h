// The first window: loads the data, proposes the plan period, hands over to the main window.
#pragma once

#include "controls/SpinButton.h"
#include "values/Datum.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QWidget>

#include <functional>

namespace altardienst {

/// `Konfig.StartDatum` and `Konfig.Tage` follow what is on the screen. A start date before today
/// cannot be kept; the period has 7 to 180 days.
class StartForm : public QWidget {
  public:
    /// Loads the eight files and fills the screen. `starten` shows the main window; closing the
    /// form as the last window ends the program without saving.
    explicit StartForm(std::function<void()> starten);

    QLineEdit *Datumsen;
    QLabel *Tagchen;
    SpinButton *SpinButton1;
    QPushButton *Plus;
    QPushButton *Minus;
    QLineEdit *Tagilein;
    SpinButton *Änderung1;
    QLabel *Endet;
    QLabel *Dayig;
    QLabel *UHRZEIT;
    QPushButton *Starten;
    QLabel *Hinweis; // these two only where something was lost, or nearly
    QPushButton *FrühereStände;
    QTimer *Timer1;

  protected:
    void closeEvent(QCloseEvent *ereignis) override;

  private:
    void Anordnen();
    void Verbinden();
    void Laden();

    void HinweisZeigen();
    void Neuberechnen();
    void WochentageSetzen();
    void DatumVerschieben(int tage);
    void DatumGedreht(int tage);
    void TageGedreht(int tage);
    void TagileinGeändert();

    Datum LetzterTag() const;

    std::function<void()> starten;
};

} // namespace altardienst
