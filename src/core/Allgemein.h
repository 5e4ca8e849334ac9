// Loading and saving all tables, on the hard disk and on the diskette.
#pragma once

#include <functional>

namespace altardienst {

/// Set to 12 by OK in the copy dialog of the first start, to 0 by its cancel or by a load that
/// fails.
extern int NachKopie;

/// Shows the copy dialog of the first start and hides the start dialog; without windows it does
/// nothing.
extern std::function<void()> DateienKopierenZeigen;

/// Runs as soon as a load has put into the tables what it could read; without windows it does
/// nothing.
extern std::function<void()> TabellenGeladen;

/// Reads the eight files of the program's directory into the tables. Never fails because of a bad
/// or missing file: a value that doesn't convert silently ends the load, with the tables filled up
/// to it. If a file is missing, the directory is created, the copy dialog opens and one message
/// names the first missing file. Failure 75 or 76 if the directory cannot be created.
void VonFestplatteLaden();

/// Writes all eight files in place; the first failure (Laufzeitfehler 61, 75, 76) ends it, with the
/// files before it already written.
void AufFestplatteSpeichern();

/// Asks first. Loads the settings, the standard masses and the two header values of the servers,
/// and no more; shows a message for each missing file.
void VonDisketteLaden();

/// Writes all eight files to a diskette that already holds all eight. If one is missing, failure 53
/// before anything is written.
void AufDisketteSpeichern();

} // namespace altardienst
