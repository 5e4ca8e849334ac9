// Why a rule is still broken, and what would help.
#pragma once

#include "fairness/Ausgleich.h"
#include "overview/Planprüfung.h"

namespace altardienst {

/// Tries everybody in the place of a breach, unless it is one that stays as it is.
Engpass EngpassErklären(const Planprüfung &prüfung, const Befund &befund, bool bleibt);

} // namespace altardienst
