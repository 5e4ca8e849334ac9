// The wait cursor during a step that may search for a while.
#pragma once

#include <QCursor>

#include <functional>
#include <optional>

namespace altardienst {

/// Runs `aktion` under the wait cursor, which is removed afterwards, even after a failure.
void UnterWartezeiger(const std::function<void()> &aktion);

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
