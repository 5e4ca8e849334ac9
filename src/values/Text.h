// Text as the tables hold it: UTF-8, with positions counted in characters, compared in binary
// order.
#pragma once

#include <string>
#include <string_view>

namespace altardienst {

/// UTF-8. The built-in comparisons are binary, which is code point order: capitals before small
/// letters, umlauts and "ß" after "z".
using Text = std::string;

/// A text that is written in the program itself, complete and null-terminated.
class Festtext : public std::string_view {
  public:
    consteval Festtext(const char *text) : std::string_view(text) {} // implicit on purpose

    const char *c_str() const { return data(); }
};

/// The number of characters (code points).
int Länge(std::string_view text);

/// The first `anzahl` characters, or all if there are fewer.
Text Links(std::string_view text, int anzahl);

/// `anzahl` characters from position `ab` (first position 1); shorter or empty past the end.
/// Failure 5 if `ab` is below 1 or `anzahl` below 0.
Text Mitte(std::string_view text, int ab, int anzahl);

/// Whether position `position` (from 1) of a flag string holds "j". Past its end: no.
bool IstJa(std::string_view flags, int position);

/// The flag string with "j" or "n" at position `position` (from 1). A string that is too short is
/// filled up with "n", which is what missing positions count as.
Text MitFlag(std::string_view flags, int position, bool ja);

/// The text in small letters, the letters of Windows-1252 included.
Text Klein(std::string_view text);

} // namespace altardienst
