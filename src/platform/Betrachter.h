// The program that the desktop has for looking at a file.
#pragma once

#include <filesystem>
#include <functional>

namespace altardienst {

struct BetrachterDienst {
    /// Opens a file with the desktop's program for its kind; false if there is none.
    std::function<bool(const std::filesystem::path &)> Öffnen;
};

/// The service in use. Without windows nothing opens.
extern BetrachterDienst Betrachter;

} // namespace altardienst
