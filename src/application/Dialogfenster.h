// A window that stands in the place of the main window, which comes back when it closes.
#pragma once

#include <QWidget>

namespace altardienst {

class Dialogfenster : public QWidget {
  protected:
    /// What is done before the window closes, whichever way it is closed. Open: a failure is shown
    /// and keeps the window open.
    virtual void VorDemSchließen() {}

    void closeEvent(QCloseEvent *ereignis) final;
};

} // namespace altardienst
