// What the menus and keys of the main window do besides opening dialogs. Each tells the status bar.
#pragma once

#include "people/Personen.h"

namespace altardienst {

/// A save that fails ends the program, with the failure shown; false in that case.
bool SpeichernOderEnden();

/// The exit routine: saves everything and unloads every window.
void Beenden();

/// A load says nothing of itself, even if it has stopped in the middle.
void FestplatteLaden();

/// Nothing is kept for a load that the answer to its question prevents.
void DisketteLaden();

/// Keeps the services of the plan before it goes or is given away. Never fails: what could not be
/// kept is told.
void PlanAufheben();

/// A new name of somebody, in the archive too; what cannot be changed there is told.
void ImArchivNachziehen(const Personenname &alt, const Personenname &neu, bool helfer);

/// What had to be done to get everything onto the sheet is told.
void AushangAbgeben();

/// A save to the diskette fails silently: nothing is said of one that does not hold all eight
/// files.
void DisketteSpeichern();

} // namespace altardienst
