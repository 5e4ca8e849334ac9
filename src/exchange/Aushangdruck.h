// The wall sheet on paper.
#pragma once

#include "exchange/Aushangsatz.h"

namespace altardienst {

/// The room for the table on a sheet as the printer is turned now, in twips.
Satzplatz Aushangplatz();

/// Prints the sheets of a form; ends no document.
void AushangZeichnen(const Aushangtafel &tafel, const Satzform &form, const Satzmaße &maße);

} // namespace altardienst
