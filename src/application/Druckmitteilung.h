// What becomes known of a report that was printed, and what the print dialog remembers.
#pragma once

#include "paper/DruckerQt.h"

namespace altardienst {

/// Tells in the status bar how the report ended, and opens its PDF if that was wanted.
void DruckMitteilen(const Druckausgang &ausgang);

/// From now on the print dialog remembers its directory and its box from run to run.
void DruckgewohnheitenMerken();

} // namespace altardienst
