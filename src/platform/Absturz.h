// The bad end of the program: a fatal signal, a failure that nobody caught, an exit in the middle
// of the work; and writing files in that moment.
#pragma once

#include <filesystem>
#include <string_view>

namespace altardienst {

/// From now on `retten` runs once if the process comes to such an end, which then takes its course.
/// It may run in the handler of a signal, with everything in any state: it may take no memory and
/// wait for nothing. Null: the end is a good one.
void BeiAbsturz(void (*retten)());

/// For use in there: what these paths lead to is prepared before. False if it fails.
namespace notschrift {

using Zeichen = std::filesystem::path::value_type;

bool VerzeichnisAnlegen(const Zeichen *pfad);                // may exist; for the user alone
bool Schreiben(const Zeichen *pfad, std::string_view bytes); // onto the medium; the same
bool Umbenennen(const Zeichen *von, const Zeichen *nach);
void Entfernen(const Zeichen *datei);            // may be gone
void Durchschreiben(const Zeichen *verzeichnis); // its names onto the medium

} // namespace notschrift

} // namespace altardienst
