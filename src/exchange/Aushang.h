// The plan on one sheet for the wall.
#pragma once

#include "values/Text.h"

namespace altardienst {

/// Shows the print dialog and prints the plan as a table on one landscape sheet, in the largest
/// type that fits; the second layout shortens the surnames. Where whole names do not fit in
/// readable type they are shortened, and where that does not help there are more sheets. Returns
/// the sentence that tells so, empty if there is nothing to tell. Prints nothing if there are no
/// masses.
Text AushangDrucken();

} // namespace altardienst
