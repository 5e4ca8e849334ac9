// The assignment of helpers, which button (5) starts.
#pragma once

namespace altardienst {

/// Fills the up to eight helper places of all masses, in table order. If one service has fewer
/// helpers than two of its busiest days need, all tests but the name are dropped, and without any
/// named helper the draw never ends; otherwise a search of more than 5 seconds shows a message and
/// ends the run.
void HelferZuweisen();

} // namespace altardienst
