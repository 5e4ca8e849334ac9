// The application object: a failure that gets past a handler does not end the program.
#pragma once

#include <QApplication>

namespace altardienst {

/// Handlers are wrapped in their kind (controls/Handler.h); this catches what none of them did. The
/// event ends there, the user is told, and what the tables hold stays. A window whose closing fails
/// stays open, with what was typed into it.
class Fangnetz : public QApplication {
  public:
    using QApplication::QApplication;

    bool notify(QObject *empfänger, QEvent *ereignis) override;

  protected:
    /// In a `catch` block around an event: all that is said above. The event counts as handled.
    virtual bool Auffangen(QEvent *ereignis);
};

} // namespace altardienst
