// The programs that the desktop has for files and links.
#include "platform/Betrachter.h"

namespace altardienst {

BetrachterDienst Betrachter{[](const std::filesystem::path &) { return false; },
                            [](const Text &) { return false; }};

} // namespace altardienst
