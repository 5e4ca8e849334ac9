// A window that takes the place of the main window, which comes back when it closes.
#pragma once

#include <QWidget>

namespace altardienst {

class Dialogfenster : public QWidget {
  protected:
    /// Runs before the window closes, whichever way it is closed. Open: a failure is shown and the
    /// window stays open.
    virtual void VorDemSchließen() {}

    void closeEvent(QCloseEvent *ereignis) final;
};

} // namespace altardienst
