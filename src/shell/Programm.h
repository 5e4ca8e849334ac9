// The way from the start dialog to the main window, by way of the copy dialog where files are
// missing.
#pragma once

namespace altardienst {

/// Loads the data and shows the start dialog, which leads to the main window. Where a file is
/// missing, the copy dialog stands in its place until it is closed.
void ProgrammStarten();

/// Shows the start dialog again as it was left; loads it if there is none.
void StartZeigen();

/// Unloads the start dialog and shows it afresh, with the data loaded anew.
void StartNeuZeigen();

} // namespace altardienst
