// Looking for what somebody types: parts of words, in any order, capitals or not.
#pragma once

#include "values/Text.h"

#include <string_view>
#include <vector>

namespace altardienst {

/// What was typed, in small letters, split at blanks and commas: "Adler, An" is "adler" and "an".
std::vector<Text> Suchwörter(std::string_view getippt);

/// Whether every word stands somewhere in the text. Without words every text fits.
bool EnthältAlle(std::string_view text, const std::vector<Text> &wörter);

} // namespace altardienst
