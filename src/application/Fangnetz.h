// The application object: a failure that escapes a handler does not end the program.
#pragma once

#include <QApplication>

#include <cstdint>

namespace altardienst {

/// Handlers are wrapped in their kind (controls/Handler.h); this catches what none of them caught.
/// The event ends there, the user is told, and the tables keep what they hold. A window whose
/// closing fails stays open, with what was typed into it.
class Fangnetz : public QApplication {
  public:
    using QApplication::QApplication;

    bool notify(QObject *empfänger, QEvent *ereignis) override;

    /// How many events have ended so far that may have changed something: whoever has seen the
    /// tables since the last of them knows them. What is only drawn or pointed at does not count,
    /// nor does the tick of a clock.
    static std::uint64_t Ereignisse() { return ereignisse; }

  protected:
    /// Called in a `catch` block around an event: does all of the above. The event counts as
    /// handled.
    virtual bool Auffangen(QEvent *ereignis);

  private:
    static std::uint64_t ereignisse;
};

} // namespace altardienst
