// The printed plan: step (7), and the same button on the form `Druck`.
#pragma once

namespace altardienst {

/// Rewrites the services of all masses from their counts, shows the print dialog, and prints either
/// the plan with its names or, in the second layout, the form on which helpers enter themselves by
/// hand.
void PlanDrucken();

} // namespace altardienst
