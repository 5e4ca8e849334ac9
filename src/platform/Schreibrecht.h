// Whether the user may write where the program keeps its files.
#pragma once

#include <filesystem>
#include <functional>

namespace altardienst {

struct SchreibrechtDienst {
    /// Found out by trying: a file appears in the directory and is gone again. False if there is no
    /// such directory; true on a full medium, where what lacks is room. Never fails.
    std::function<bool(const std::filesystem::path &verzeichnis)> Besteht;
};

/// The service in use.
extern SchreibrechtDienst Schreibrecht;

} // namespace altardienst
