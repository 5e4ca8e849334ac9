// Load and save of all tables, on the hard disk and on the diskette.
#pragma once

#include <functional>

namespace altardienst {

/// 12 from the OK of the copy dialog of the first start on, 0 from its cancel or a load that fails.
extern int NachKopie;

/// Shows the copy dialog of the first start and hides the start dialog; without windows it does
/// nothing.
extern std::function<void()> DateienKopierenZeigen;

/// Reads the eight files of the program's directory into the tables. Never fails for a bad or
/// missing file: a value that doesn't convert ends the load without a word, with the tables filled
/// up to it. If a file is missing, the directory is made, the copy dialog opens and one message
/// names the first missing file. Failure 75 or 76 if the directory cannot be made.
void VonFestplatteLaden();

/// Writes all eight files in place; the first failure (Laufzeitfehler 61, 75, 76) ends it with the
/// files before it written.
void AufFestplatteSpeichern();

/// Asks first. Brings the settings, the standard masses and the two header values of the servers,
/// and no more; a message for each file that is missing.
void VonDisketteLaden();

/// Writes all eight files onto a diskette that already holds all eight of them. Failure 53 before
/// anything is written if one is missing.
void AufDisketteSpeichern();

} // namespace altardienst
