// The weeks of a plan.
#pragma once

#include "core/tables.h"
#include "values/Datum.h"

#include <algorithm>
#include <cmath>

namespace altardienst {

/// The same number for the days of one week. Weeks begin with the weekday on which plans do, so
/// that a vigil stands with its Sunday.
inline int Planwoche(const KonfigDatensatz &einstellungen, Datum tag)
{
    constexpr int Wochentage = 7;
    const int erster = std::clamp<int>(einstellungen.StartWochentag, 1, Wochentage);
    // Day 0 is a Saturday, the seventh weekday.
    return static_cast<int>(std::floor((std::floor(tag) - erster) / Wochentage));
}

} // namespace altardienst
