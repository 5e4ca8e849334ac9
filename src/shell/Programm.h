// The way from the start dialog to the main window.
#pragma once

namespace altardienst {

/// Loads the data and shows the start dialog, which leads to the main window.
void ProgrammStarten();

} // namespace altardienst
