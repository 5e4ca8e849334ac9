// The way from the start dialog to the main window, by way of the copy dialog where files are
// missing.
#pragma once

namespace altardienst {

/// Loads the data and shows the start dialog, which leads to the main window. If a file is missing,
/// the copy dialog takes its place until it is closed.
void ProgrammStarten();

/// Shows the start dialog again as it was left; creates it if there is none.
void StartZeigen();

/// Leaves by the exit routine, after writing what is typed in the windows that are open; before
/// there is a main window there is nothing to save. Shows no message by itself.
void ProgrammVerlassen();

/// Deletes the start dialog and shows a new one, with the data loaded again.
void StartNeuZeigen();

} // namespace altardienst
