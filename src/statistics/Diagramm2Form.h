// Heights of the servers as a chart.
#pragma once

#include <QPointer>
#include <QPushButton>
#include <QWidget>

namespace altardienst {

class Diagrammbild;
class Statistik2Form;

/// Takes its numbers from the window that opened it, and shows that window again when it closes.
class Diagramm2Form : public QWidget {
  public:
    explicit Diagramm2Form(Statistik2Form *statistik);

    Diagrammbild *MSChart1;
    QPushButton *Druck;
    QPushButton *OKButton;
    QPushButton *CancelButton;

  protected:
    void closeEvent(QCloseEvent *ereignis) override;

  private:
    void Anordnen();
    void Verbinden();
    void Füllen();

    QPointer<Statistik2Form> statistik;
};

} // namespace altardienst
