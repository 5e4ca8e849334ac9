// The assignment of helpers, behind button (5).
#pragma once

namespace altardienst {

/// Fills the up to eight helper places of all masses, in table order. If one service has fewer
/// helpers than two of its busiest days need, all tests are given up and the draw never ends
/// without a named helper; otherwise a search of more than 5 seconds gives a message and ends the
/// run.
void HelferZuweisen();

} // namespace altardienst
