// Writing places of the plan from the grid: one way for all of it.
#pragma once

#include "overview/Platz.h"

#include <vector>

namespace altardienst {

/// Who is to stand in a place; without names nobody.
struct Platzwechsel {
    Planplatz Wo;
    Text Vorname = {};
    Text Nachname = {};
};

/// Writes the places as the windows of the masses do, in one action of the main window: what was
/// typed in a form beside it is written before, and every form shows the places after it. The
/// status bar tells what was done.
void PlätzeSchreiben(const std::vector<Platzwechsel> &wechsel);

} // namespace altardienst
