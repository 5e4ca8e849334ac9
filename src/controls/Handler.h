// The kinds of event handlers. No handler lets a failure escape into Qt.
#pragma once

#include "controls/Unerwartetes.h"
#include "platform/Meldungen.h"
#include "values/Laufzeitfehler.h"

#include <concepts>
#include <utility>

namespace altardienst {

/// A routine for an event; it may take arguments of the signal. It expects a `Laufzeitfehler`, such
/// as a bad number, and treats it according to its kind. Any other failure means that something was
/// left undone that should have been done: it ends the handler and is reported, whatever the
/// handler's kind.
template <class F, class Weg> class Handler {
  public:
    Handler(F f, Weg weg) : f(std::move(f)), weg(std::move(weg)) {}

    template <class... Werte>
    requires std::invocable<const F &, Werte...>
    void operator()(Werte &&...werte) const
    {
        try {
            try {
                f(std::forward<Werte>(werte)...);
            } catch (const Laufzeitfehler &fehler) {
                weg(fehler);
            }
        } catch (...) {
            UnerwartetesMelden();
        }
    }

  private:
    F f;
    Weg weg;
};

/// Trapped: a failure ends the handler silently.
template <class F> auto Abgefangen(F f)
{
    return Handler(std::move(f), [](const Laufzeitfehler &) {});
}

/// Stepwise: a failing step is skipped and the next one runs.
template <class... Schritte> auto Schrittweise(Schritte... schritte)
{
    const auto einer = [](const auto &schritt) {
        try {
            schritt();
        } catch (const Laufzeitfehler &) {
        }
    };
    return Abgefangen([einer, ... schritte = std::move(schritte)] { (einer(schritte), ...); });
}

/// Open: a failure is shown and ends the operation.
template <class F> auto Offen(F f)
{
    return Handler(std::move(f),
                   [](const Laufzeitfehler &fehler) { Meldungen.Zeigen(fehler.Meldung()); });
}

/// In passing, for what recurs by itself, such as the tick of a clock: any failure ends it
/// silently, since a message would reappear as soon as it is closed.
template <class F> auto Nebenbei(F f)
{
    return [f = std::move(f)] {
        try {
            f();
        } catch (...) {
        }
    };
}

} // namespace altardienst
