// The printed plan: step (7), and the same button on the form `Druck`.
#pragma once

#include <functional>

namespace altardienst {

/// Runs before the plan is printed by one of the buttons; by default nothing.
extern std::function<void()> VorDemPlandruck;

/// Rewrites the services of all masses from their counts, shows the print dialog, and prints either
/// the plan with its names or, in the second layout, the form on which helpers enter themselves by
/// hand.
void PlanDrucken();

} // namespace altardienst
