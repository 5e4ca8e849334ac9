// Which window stands in front: none that is open gets lost below the main window.
#pragma once

#include <QWidget>

namespace altardienst {

/// From now on, what stands open beside the main window is in front of it whenever that is used;
/// what is there to be read, as long as it leaves the buttons free.
/// While a dialog has disabled the main window, or a form below it, whoever fetches or closes that
/// by means of the desktop gets the dialog instead: a disabled window over the dialog would look
/// like a program that hangs, and its end would take along what was typed in the dialog.
///
/// The desktop is not told that these windows belong to the main one: it would hide them, too,
/// while a dialog has minimised that.
void FensterordnungHalten(QWidget *haupt);

} // namespace altardienst
