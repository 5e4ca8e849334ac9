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

/// Whether a directory can be copied from: it holds all eight files, each stored under its own
/// spelling. One that is stored with other capitals and small letters counts as missing.
bool AlleDateienVorhanden(const std::filesystem::path &verzeichnis);

/// The name of a file that the target does not have yet: a backup gets small letters, the program's
/// directory the name under which the source stores the file.
enum class NeueDatei { Klein, WieGespeichert };

/// Copies one file from a directory to another, over the one that is there. A file that is there
/// keeps its stored name. Failures 53, 61, 75, 76; the file that was there is then still whole.
void DateiKopieren(const Kopierdatei &datei, const std::filesystem::path &von,
                   const std::filesystem::path &nach, NeueDatei neue);

/// Copies all eight in their order; the first failure ends it with the files before it copied.
void AlleDateienKopieren(const std::filesystem::path &von, const std::filesystem::path &nach,
                         NeueDatei neue);

} // namespace altardienst
