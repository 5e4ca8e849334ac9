// The plan at a glance, at the right of the main window: the grid, one person, the findings.
#pragma once

#include "controls/Kurztext.h"
#include "overview/Befundliste.h"
#include "overview/Plantafel.h"

#include <QCheckBox>
#include <QMenu>
#include <QPushButton>
#include <QSplitter>
#include <QTimer>
#include <QWidget>

#include <functional>

namespace altardienst {

/// Shows what the tables hold whenever it is looked at, and follows every change while it is shown,
/// wherever that is made. Its findings are counted in the status bar meanwhile.
class Planansicht : public QWidget {
  public:
    Planansicht();

    QCheckBox *NurAuffälliges;
    QPushButton *WerKannHier;
    QPushButton *Regeln; // which rules are looked at
    QMenu *Regelmenü;
    Plantafel *Tafel;
    Kurztext *Person;   // whose places are marked, and the services by kind
    Kurztext *Abstände; // their dates, and the days between them
    Befundliste *Liste;
    QSplitter *Teiler;

    /// Writes to those who serve in a mass; where nothing is set, the menu does not offer it.
    std::function<void(int messe)> AnMesseSchreiben;

    /// Shows what the tables hold by now.
    void Nachziehen();

    /// Marks somebody's places and goes to the first one.
    void PersonZeigen(const Text &vorname, const Text &nachname);

  protected:
    bool eventFilter(QObject *wer, QEvent *ereignis) override;
    void hideEvent(QHideEvent *ereignis) override;
    void showEvent(QShowEvent *ereignis) override;

  private:
    void Anordnen();
    void Verbinden();

    void Gewählt();
    void PersonAngeben(const Text &vorname, const Text &nachname);
    void BefundeZählen() const;
    void Beachten(const Regelwahl &regeln);
    void Fragen();
    void PlatzLeeren();
    void Hingehen();
    void MenüZeigen(QPoint ort);

    Planmodell *modell;
    QTimer *später;
};

} // namespace altardienst
