// The main window: the seven steps of making a plan, the menu, the clock and the picture.
#pragma once

#include "application/Statuszeile.h"
#include "settings/Hintergrundbild.h"

#include <QAction>
#include <QBoxLayout>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QPushButton>
#include <QTimer>

#include <array>
#include <functional>

namespace altardienst {

class Planansicht;

/// Closing it runs the exit routine: everything is saved and every window unloaded.
class HauptForm : public QMainWindow {
  public:
    HauptForm();
    ~HauptForm() override;

    QPushButton *Messenorgani;    // (1)
    QPushButton *Meßdienernern;   // (2)
    QPushButton *Dienstus;        // (3)
    QPushButton *MeßdienerMessen; // (4)
    QPushButton *Helfend;         // (5)
    QPushButton *AnzMesse;        // (6)
    QPushButton *Messendruck;     // (7)
    QLabel *ODER1;
    QLabel *Uhriger;
    QLabel *UHRZEITIGES;
    Hintergrundbild *Image1;
    QAction *mnuRückgängig;
    QAction *mnuWiederholen;
    QTimer *Timer1;
    Planansicht *Plan = nullptr; // made when it is shown for the first time
    Statuszeile *Leiste;

  protected:
    void changeEvent(QEvent *ereignis) override;
    void closeEvent(QCloseEvent *ereignis) override;
    void keyPressEvent(QKeyEvent *taste) override;

  private:
    void Anordnen();
    void Verbinden();

    void MenüDatei();
    void MenüDaten();
    void MenüSortieren();
    void MenüZusatz();
    void MenüÜberblick();
    static void MenüWeitergeben(QMenu *überblick);
    void MenüHilfe();

    void Takt();
    void ÜberblickZeigen();
    void SchritteZeigen();
    void PlanAnzeigen(bool plan);

    std::array<QPushButton *, 7> Schritte() const;

    QHBoxLayout *seiten; // the steps at the left, the picture or the plan at the right
    QAction *planEintrag = nullptr;
};

} // namespace altardienst
