// Which place of the handbook belongs to which window.
#pragma once

#include "help/Handbuchtext.h"

#include <map>
#include <vector>

namespace altardienst {

/// The places by the name of the window; "Fenster/Meldung" is a message box over that window.
const std::map<Text, Text> &Fensterseiten();

/// The place for a window. `namen` is its name, then that of the window over which it stands, and
/// so on: what has no place of its own, such as a message box, has that of the window below it. The
/// first page if none has one.
Handbuchstelle SeiteZumFenster(const std::vector<Text> &namen);

} // namespace altardienst
