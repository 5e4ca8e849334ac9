// The blank forms on which servers and helpers report their data before a plan is made.
#pragma once

#include "values/Text.h"

namespace altardienst {

/// `rückgabe` and `dauer` are printed as they stand: the day by which the form is to be given back
/// and the day up to which the next plan is expected to hold.
void ErfassungsbogenMeßdienerDrucken(const Text &rückgabe, const Text &dauer);
void ErfassungsbogenHelferDrucken(const Text &rückgabe, const Text &dauer);

} // namespace altardienst
