// The time of day in the parish, which is that of Berlin, and its two changes of the clock a year.
// The rule is written here since not every machine has a table of zones.
#pragma once

#include "values/Datum.h"

#include <cstdint>

namespace altardienst {

/// A day and the seconds since its midnight, as the clock shows them.
struct Ortszeit {
    Datum Tag;
    int Sekunden; // 0 to 86399
};

/// Some seconds later (or earlier) on the dial; nothing is known of the changes of the clock.
Ortszeit Später(Ortszeit zeit, int sekunden);

/// From the last Sunday in March, two o'clock, to the last in October, three. The hour that comes
/// twice is the earlier one, the hour that is left out does not belong to it.
bool IstSommerzeit(Ortszeit zeit);

/// An hour later if the clock leaves out this time, as it is.
Ortszeit AufDerUhr(Ortszeit zeit);

/// The same moment in universal time.
Ortszeit Weltzeit(Ortszeit zeit);

/// From the first moment of 2020 to a moment, in seconds; 0 before it and at most what 32 bits
/// hold.
std::int32_t SekundenSeit2020(Ortszeit zeit);

} // namespace altardienst
