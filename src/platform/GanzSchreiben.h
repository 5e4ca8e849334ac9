// Writing a file whole or not at all.
#pragma once

#include <filesystem>
#include <string_view>

namespace altardienst {

/// In place of what lies there under this name, once everything is on the medium; the directory is
/// already there. Failure 61, 75, 76: then what lies there is as it was, and nothing lies beside
/// it. A directory of this name is failure 75.
void GanzSchreiben(const std::filesystem::path &ziel, std::string_view bytes);

} // namespace altardienst
