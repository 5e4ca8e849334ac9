// The eight data files: which table each holds and how it is read and written.
#pragma once

#include "core/Zeilen.h"

#include <array>
#include <string>

namespace altardienst {

struct Datei {
    const char *Name;  // spelled as the program writes it
    const char *Suche; // the spelling under which it is looked up and named in messages

    /// Fills the table from the lines, up to the line that fails (Laufzeitfehler 6, 13 or 62).
    /// Records that the file does not reach keep what they held.
    void (*Lesen)(Zeilenleser &zeilen);

    /// Appends all lines of the table, used records or not, so that the shape of the file is fixed.
    void (*Schreiben)(std::string &inhalt);
};

enum Dateinummer {
    DateiKonfig,
    DateiStandardmesse,
    DateiMeßdiener,
    DateiMesse,
    DateiGruppe,
    DateiHelfer,
    DateiEtikett,
    DateiMesseDienerFest
};

/// In the order in which a full load reads and a full save writes them.
extern const std::array<Datei, 8> Dateien;

/// The order in which the files are checked for missing ones.
constexpr std::array<Dateinummer, 8> Suchfolge = {
    DateiEtikett, DateiGruppe,        DateiHelfer, DateiMeßdiener,
    DateiMesse,   DateiStandardmesse, DateiKonfig, DateiMesseDienerFest};

inline const Datei &DateiMit(Dateinummer nummer)
{
    return Dateien[static_cast<std::size_t>(nummer)];
}

/// Reads only the two header lines of the servers.
void MeßdienerKopfLesen(Zeilenleser &zeilen);

/// Resets each of XSkala, YSkala and Skal1 to Skal6 that is out of range to its default.
void SkalenBegrenzen();

} // namespace altardienst
