// The lines of the full plan for one mass, as the printed plan and the text export show them.
#pragma once

#include "values/Text.h"

#include <vector>

namespace altardienst {

/// Every line of the plan that names a mass or its people, without line ends.
struct PlanZeilen {
    Text Überschrift;
    std::vector<Text> Diener; // in the order of `Dienstarten`
    std::vector<Text> Helfer; // in the order of `Helferarten`
};

/// The lines of mass `i`, based on the services now in `Messe.DienerDienst`.
PlanZeilen PlanZeilenDer(int i);

/// "Messen der Pfarrei ..." and "vom ... bis ...", the titles of the plan.
Text PlanTitel();
Text PlanZeitraum();

/// The name for a file that holds the plan, without extension: with its first day, year first, so
/// that the plans stand in their order; with today if there are no masses.
Text PlanDateiname();

} // namespace altardienst
