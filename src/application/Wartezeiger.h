// The wait cursor over a step that may search for a while.
#pragma once

#include <QCursor>

#include <functional>
#include <optional>

namespace altardienst {

/// Runs this under the wait cursor, which goes again also behind a failure.
void UnterWartezeiger(const std::function<void()> &aktion);

/// Takes the wait cursor off, if there is one, as long as it lives: a message waits for the user.
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
