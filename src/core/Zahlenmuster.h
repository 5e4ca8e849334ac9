// Numbers in the patterns of the figures that are shown.
#pragma once

#include "values/Int16.h"
#include "values/Text.h"

#include <string_view>

namespace altardienst {

/// A number in a pattern such as "##,##0.00%": at least as many digits before the decimal separator
/// as the pattern has zeros there, and as many behind it; with a comma in the pattern the thousands
/// are set apart, in groups of three wherever it stands; with a "%" the hundredfold. An exact half
/// is rounded away from zero, by the digits that the number shows and not by those of its binary
/// form. Separators are those of the locale.
Text Format(double zahl, std::string_view muster);
Text Format(Single zahl, std::string_view muster); // of which seven digits count
Text Format(int zahl, std::string_view muster);

} // namespace altardienst
