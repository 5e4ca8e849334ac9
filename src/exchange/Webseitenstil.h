// How the web page of the plan looks and what it does by itself.
#pragma once

#include "exchange/Blattmaß.h"

#include <string>

namespace altardienst {

/// The style sheet. Without a table the name of each column stands before its cell.
std::string Webseitenstil(const std::vector<Text> &köpfe, const Blattmaß &maß);

/// Shows a box in which a name is typed, and only the masses with it. The page is whole without.
extern const char *const Webseitenskript;

} // namespace altardienst
