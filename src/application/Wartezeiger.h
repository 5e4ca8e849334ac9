// The wait cursor: during a step that may search for a while, and when files take long.
#pragma once

#include <QCursor>

#include <functional>
#include <optional>

namespace altardienst {

/// Runs `aktion` under the wait cursor, which is removed afterwards, even after a failure.
void UnterWartezeiger(const std::function<void()> &aktion);

/// From now on the wait cursor appears as soon as an event has been busy with files for half a
/// second (`Lebenszeichen`), and goes when the event is over or a message waits for the user.
void DateiwartezeigerEinrichten();

/// Removes the wait cursor, if there is one, for as long as this object lives: a message waits for
/// the user.
class OhneWartezeiger {
  public:
    OhneWartezeiger();
    ~OhneWartezeiger();
    OhneWartezeiger(const OhneWartezeiger &) = delete;
    OhneWartezeiger &operator=(const OhneWartezeiger &) = delete;

  private:
    std::optional<QCursor> zuvor;
};

} // namespace altardienst
