// A sign of life from whatever reads, writes or prints.
#pragma once

#include <functional>

namespace altardienst {

/// Called again and again by what may take long with files: before each access, between the parts
/// of a file, the entries of a directory, the pages of a document. The windows show by it that the
/// program is busy; without windows it does nothing. Cheap.
extern std::function<void()> Lebenszeichen;

/// Called before a single step that may take seconds by itself, with no part of it done before
/// another: waiting until a medium holds what was written.
extern std::function<void()> VorLangemSchritt;

} // namespace altardienst
