// The clock: today and the time of day.
#pragma once

#include "values/Datum.h"

#include <cstdint>
#include <functional>

namespace altardienst {

struct UhrDienst {
    std::function<Datum()> Heute;  // today, a whole number
    std::function<int()> Sekunden; // local time of day in whole seconds, 0 to 86399; cheap

    /// Milliseconds since some moment, for how long something takes; never goes back.
    std::function<std::int64_t()> Stoppuhr;
};

/// The system's clock in local time.
UhrDienst Systemuhr();

/// The clock in use; tests install one that they set and advance by hand.
extern UhrDienst Uhr;

} // namespace altardienst
