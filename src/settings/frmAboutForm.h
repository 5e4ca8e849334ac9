// What the program says about itself.
#pragma once

#include "settings/Hintergrundbild.h"

#include <QLabel>
#include <QPushButton>
#include <QWidget>

namespace altardienst {

/// Name, version, licence and warning from the build, and a button for the platform's system
/// information. The main window stays as it is.
class frmAboutForm : public QWidget {
  public:
    frmAboutForm();

    Hintergrundbild *picIcon;
    QLabel *lblTitle;
    QLabel *lblVersion;
    QLabel *lblDescription;
    QLabel *LBLXXXX; // what the program is for; the control has no other name
    QLabel *Writen;
    QLabel *lblDisclaimer;
    QPushButton *cmdOK;
    QPushButton *cmdSysInfo;

  protected:
    void keyPressEvent(QKeyEvent *taste) override;

  private:
    void Anordnen();
    void Verbinden();
};

} // namespace altardienst
