// The data file that a fuzz target reads: the one with its number, in the order of a full load.
#pragma once

#include "core/Dateien.h"

#include <cstdio>
#include <cstdlib>
#include <string_view>

#ifndef DATEINUMMER
#error "DATEINUMMER names the file by its number, 0 to 7"
#endif

namespace altardienst {

inline const Datei &Prüfling = Dateien[DATEINUMMER];

inline void Erwarte(bool bedingung, const char *was)
{
    if (bedingung)
        return;
    std::fprintf(stderr, "%s: %s\n", Prüfling.Name, was);
    std::abort();
}

/// False if the content fails to load, in one of the three ways a reader may fail; what came before
/// the failure stays in the table.
inline bool Lesen(std::string_view inhalt)
{
    Zeilenleser zeilen(inhalt);
    try {
        Prüfling.Lesen(zeilen);
    } catch (const Laufzeitfehler &fehler) {
        Erwarte(fehler.Nummer() == Laufzeitfehler::Überlauf ||
                    fehler.Nummer() == Laufzeitfehler::TypenUnverträglich ||
                    fehler.Nummer() == Laufzeitfehler::HinterDateiende,
                "a failure that no reader may have");
        return false;
    }
    return true;
}

} // namespace altardienst
