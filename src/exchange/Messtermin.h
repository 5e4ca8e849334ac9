// When a mass is, as slips, wall sheet and mail say it.
#pragma once

#include "core/tables.h"
#include "values/Text.h"

#include <vector>

namespace altardienst {

struct Messtermin {
    Text Tag;     // "So 29.11."; for a service of a whole week "ab Mo 30.11."
    Text Datum;   // the same with the year
    Text Uhrzeit; // "10:00"; empty for a service of a whole week
};

/// Without a date and time that a calendar has the day is "?".
Messtermin TerminDer(const MesseTabelle &messen, int messe);

/// "So 29.11.2026, 10:00 Uhr, Hochamt".
Text MesseMitJahr(const MesseTabelle &messen, int messe);

/// The records in the order of date and time; two at the same time, and after all others those
/// without a date that a calendar has, in that of the table.
std::vector<int> MessenNachZeit(const MesseTabelle &messen, int anzahl);

/// From the first to the last day of these masses: "28.11.2026 bis 27.12.2026"; empty if none has
/// a date that a calendar has.
Text ZeitraumDer(const MesseTabelle &messen, const std::vector<int> &nachZeit);

} // namespace altardienst
