// What holds for all windows: language, focus colours, message boxes, and the main window that
// dialogs leave and return to.
#pragma once

#include <QApplication>
#include <QWidget>

namespace altardienst {

/// German texts in Qt's own dialogs, the style of all windows, and real message boxes.
void AnwendungEinrichten(QApplication &anwendung);

/// The main window, for the dialogs; null when there is none.
void HauptfensterSetzen(QWidget *haupt);

/// Disables and minimises the main window and shows the dialog, which deletes itself when closed.
void DialogÖffnen(QWidget *dialog);

/// Shows the dialog beside the main window, which stays as it is.
void DialogDanebenÖffnen(QWidget *dialog);

/// What a dialog does last: enables the main window, sets it to maximised and gives the focus back
/// to the control that had it.
void HauptfensterZurück();

/// Closes and deletes every window of the program without asking any of them.
void AlleFormenEntladen();

} // namespace altardienst
