// The blank forms on which servers and helpers report their data before a plan is made.
#pragma once

#include "values/Text.h"

namespace altardienst {

/// `rückgabe` and `dauer` are printed as they are: the day by which the form is to be returned and
/// the day until which the next plan is expected to run.
void ErfassungsbogenMeßdienerDrucken(const Text &rückgabe, const Text &dauer);
void ErfassungsbogenHelferDrucken(const Text &rückgabe, const Text &dauer);

} // namespace altardienst
