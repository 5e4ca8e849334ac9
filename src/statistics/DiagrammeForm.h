// Age and membership of the servers as charts.
#pragma once

#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QWidget>

#include <array>

namespace altardienst {

class Diagrammbild;
class StatistikForm;

/// Takes its numbers from the window that opened it, and shows that window again when it closes.
/// Failure 9 if a membership begins twelve or more months in the future.
class DiagrammeForm : public QWidget {
  public:
    explicit DiagrammeForm(StatistikForm *statistik);

    QWidget *F1;             // the options
    QRadioButton *Atlert;    // shows MSChart1
    QRadioButton *Zug;       // shows MSChart2
    QRadioButton *Meßdierne; // shows MSChart3
    Diagrammbild *MSChart1;
    Diagrammbild *MSChart2;
    Diagrammbild *MSChart3;
    QPushButton *Druck;
    QPushButton *OKButton;
    QPushButton *CancelButton;

  protected:
    void closeEvent(QCloseEvent *ereignis) override;

  private:
    void Anordnen();
    void Verbinden();
    void Füllen();

    QPointer<StatistikForm> statistik;
};

} // namespace altardienst
