// Numbers formatted by the patterns of the figures on the screen.
#pragma once

#include "values/Int16.h"
#include "values/Text.h"

#include <string_view>

namespace altardienst {

/// A number in a pattern such as "##,##0.00%": at least as many digits before the decimal separator
/// as the pattern has zeros there, and exactly as many after it as it has there; with a comma
/// anywhere in the pattern the thousands are separated in groups of three; with a "%" the number is
/// multiplied by a hundred. An exact half is rounded away from zero, judged by the digits the
/// number shows, not by its binary form. Separators are those of the locale.
Text Format(double zahl, std::string_view muster);
Text Format(Single zahl, std::string_view muster); // only seven digits of it count
Text Format(int zahl, std::string_view muster);

} // namespace altardienst
