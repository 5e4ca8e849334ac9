// The three kinds of event handlers: trapped, stepwise and open. No handler lets a failure into Qt.
#pragma once

#include "platform/Meldungen.h"
#include "values/Laufzeitfehler.h"

#include <utility>

namespace altardienst {

/// Trapped: a failure leaves the handler silently.
template <class F> auto Abgefangen(F f)
{
    return [f = std::move(f)] {
        try {
            f();
        } catch (const Laufzeitfehler &) {
        }
    };
}

/// Stepwise: a failing step is skipped and the next one runs.
template <class... Schritte> auto Schrittweise(Schritte... schritte)
{
    return [... schritte = std::move(schritte)] { (Abgefangen(schritte)(), ...); };
}

/// Open: a failure is shown and ends the operation.
template <class F> auto Offen(F f)
{
    return [f = std::move(f)] {
        try {
            f();
        } catch (const Laufzeitfehler &fehler) {
            Meldungen.Zeigen(fehler.Meldung());
        }
    };
}

} // namespace altardienst
