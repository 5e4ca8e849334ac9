// A line of text in a file of calendar entries (iCalendar, RFC 5545).
#pragma once

#include <string>
#include <string_view>

namespace altardienst {

/// Appends "NAME:text": what has a meaning there is escaped, a line break is "\n", other control
/// characters, which a file of the parish may hold nevertheless, are left out. After 75 bytes it
/// goes on in a line that begins with a blank; no character is torn apart. The calendar library
/// writes such lines too, but at certain lengths tears CR and LF apart, and takes ten times as
/// long.
void TextzeileAnhängen(std::string &bytes, std::string_view name, std::string_view text);

} // namespace altardienst
