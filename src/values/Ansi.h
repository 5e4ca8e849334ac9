// Windows-1252, the code page of the files, to and from the UTF-8 of the program.
#pragma once

#include "values/Text.h"

#include <string>
#include <string_view>

namespace altardienst {

/// Sets `ziel` to the text of the bytes. Every byte has a character; the five bytes that the code
/// page leaves undefined keep their number.
void AusAnsi(std::string_view bytes, Text &ziel);

/// Appends the bytes of the text; a character that the code page lacks becomes "?".
void AnsiAnhängen(std::string &bytes, std::string_view text);

/// The text as it comes back from a file: what the code page lacks is "?".
Text InAnsiDarstellbar(std::string_view text);

} // namespace altardienst
