// The slips on paper.
#pragma once

#include "exchange/Dienstzettel.h"

namespace altardienst {

/// Shows the print dialog and prints the slips in two columns on portrait sheets, with lines to cut
/// along. A slip stands in one column, unless it is longer than one: then it goes on in the next,
/// under its name.
void ZettelDrucken(const std::vector<Dienstzettel> &zettel, const Text &kopfzeile);

} // namespace altardienst
