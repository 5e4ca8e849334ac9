// The lines of an archive file.
#pragma once

#include "fairness/Archiv.h"

#include <optional>
#include <string>
#include <string_view>

namespace altardienst {

/// The whole file, with the mark by which a spreadsheet knows UTF-8.
std::string Archivdatei(const std::vector<Archivdienst> &dienste);

/// Calls `je` with each line after the heading, and its service if it is one.
using Archivzeile = std::optional<Archivdienst>;
std::vector<std::pair<std::string, Archivzeile>> ArchivzeilenLesen(std::string_view bytes);

/// The line of a service without its end.
std::string AlsArchivzeile(const Archivdienst &dienst);

extern const std::string_view Archivkopf;

} // namespace altardienst
