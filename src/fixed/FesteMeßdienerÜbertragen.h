// Carrying the fixed entries over into the masses: the one point at which they reach the plan.
#pragma once

namespace altardienst {

/// Writes the names of each fixed entry over the slots of every mass of the same date and time. A
/// later entry wins slot by slot; empty slots of an entry leave the mass as it is.
void FesteMeßdienerÜbertragen();

/// What both dialogs of the fixed entries do last: asks whether to carry them over, and does so on
/// Ja.
void ÜbertragenAufWunsch();

} // namespace altardienst
