// How a person is shown in a list box: "Nachname,Vorname".
#pragma once

#include "values/Text.h"

namespace altardienst {

Text Listenname(const Text &nachname, const Text &vorname);

/// Splits a text from a list box at its first comma. The surname stays as it was unless there is
/// something before a comma; without a comma the whole text is the first name. An empty text
/// empties both.
void NameTeilen(const Text &listenname, Text &nachname, Text &vorname);

} // namespace altardienst
