// Heights of the servers.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include <array>

namespace altardienst {

/// Failure 11 without servers: the window does not come to be.
class Statistik2Form : public QWidget {
  public:
    Statistik2Form();

    QLabel *Tagchus;
    std::array<QLabel *, 13> a; // the classes, a0 to a12
    std::array<QLabel *, 13> b; // their counts
    std::array<QLabel *, 13> c; // their shares
    QLabel *G;                  // mean
    QLabel *A;                  // deviation
    QPushButton *Diagramm;
    QPushButton *Druck;
    QPushButton *Ende;

  protected:
    void closeEvent(QCloseEvent *ereignis) override;

  private:
    void Anordnen();
    void Verbinden();
    void Füllen();
};

} // namespace altardienst
