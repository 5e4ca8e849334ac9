// Copies of the eight data files between the program's directory and another.
#pragma once

#include "core/Dateien.h"

#include <filesystem>

namespace altardienst {

/// One of the eight files as the copy dialogs offer it.
struct Kopierdatei {
    const char *Beschriftung;
    Dateinummer Nummer;
};

/// In the order of the options and of a copy of all.
constexpr std::array<Kopierdatei, 8> Kopierdateien = {{
    {"Konfiguration", DateiKonfig},
    {"Etiketten", DateiEtikett},
    {"Gruppen", DateiGruppe},
    {"Helfer", DateiHelfer},
    {"Meßdierner", DateiMeßdiener},
    {"Messen", DateiMesse},
    {"Standardmessen", DateiStandardmesse},
    {"Meßdiener für bestimmte Messen", DateiMesseDienerFest},
}};

/// Whether a directory can be copied from: it holds all eight files, each stored in its own
/// spelling. One whose stored name differs in case counts as missing.
bool AlleDateienVorhanden(const std::filesystem::path &verzeichnis);

/// The name of a file that the target does not have yet: in a backup it is in small letters, in the
/// program's directory it is the name under which the source stores the file.
enum class NeueDatei { Klein, WieGespeichert };

/// Copies one file from a directory to another, replacing the one there, which keeps its stored
/// name. Failures 53, 61, 75, 76; the old file is then still intact.
void DateiKopieren(const Kopierdatei &datei, const std::filesystem::path &von,
                   const std::filesystem::path &nach, NeueDatei neue);

/// Copies all eight in their order; the first failure ends it, with the files before it already
/// copied.
void AlleDateienKopieren(const std::filesystem::path &von, const std::filesystem::path &nach,
                         NeueDatei neue);

} // namespace altardienst
