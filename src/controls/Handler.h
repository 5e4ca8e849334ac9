// The kinds of event handlers. No handler lets a failure into Qt.
#pragma once

#include "controls/Unerwartetes.h"
#include "platform/Meldungen.h"
#include "values/Laufzeitfehler.h"

#include <concepts>
#include <utility>

namespace altardienst {

/// A routine for an event; it may take arguments of the signal. A `Laufzeitfehler`, such as a bad
/// number, is what it reckons with and goes the way of its kind. Any other failure means that
/// something was not done that should have been: it ends the handler and is told, whatever kind the
/// handler is of.
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

/// Trapped: a failure leaves the handler silently.
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

/// In passing, for what comes again by itself, such as the tick of a clock: any failure leaves
/// silently, since a message would come again as soon as it is closed.
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
