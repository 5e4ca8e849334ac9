// The lines of the full plan for one mass, as the printed plan and the text export show them.
#pragma once

#include "values/Text.h"

#include <vector>

namespace altardienst {

/// Every line of the plan that names a mass or its people, without line ends.
struct PlanZeilen {
    Text Überschrift;
    std::vector<Text> Diener; // Gabenbereitung, Leuchter, Flambeau, Weihrauch, Kreuzträger, others
    std::vector<Text> Helfer; // Lektor, Kommunionhelfer, Kantor/in, Kollektant
};

/// The lines of mass `i`, from the services as they stand in `Messe.DienerDienst`.
PlanZeilen PlanZeilenDer(int i);

/// "Messen der Pfarrei ..." and "vom ... bis ...", the titles of the plan.
Text PlanTitel();
Text PlanZeitraum();

} // namespace altardienst
