// The programs that the desktop has for files and links.
#pragma once

#include "values/Text.h"

#include <filesystem>
#include <functional>

namespace altardienst {

struct BetrachterDienst {
    /// Opens a file with the desktop's program for its kind; false if there is none.
    std::function<bool(const std::filesystem::path &)> Öffnen;
    /// Passes a link, written in ASCII, to the desktop's program for its kind, such as the mail
    /// program; false if there is none.
    std::function<bool(const Text &)> Verweis;
};

/// The service in use. Without windows nothing opens.
extern BetrachterDienst Betrachter;

} // namespace altardienst
