// Copies of the eight data files between the program's directory and another.
#pragma once

#include "core/Dateien.h"
#include "core/Ladebericht.h"

#include <filesystem>
#include <vector>

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

/// A file that is stored under another case of letters than its own.
struct Schreibung {
    Text Gespeichert;
    Text Eigene;
};

/// Why a directory cannot be copied from. Every file that keeps `AlleDateienVorhanden` from being
/// true is in one of the lists, in the order in which they are sought.
struct Dateimängel {
    std::vector<Text> Fehlend;       // by their own names
    std::vector<Schreibung> Anders;  // there, but only under another spelling
    std::vector<Schreibung> Doppelt; // there under both, and the other one is found first

    bool Keine() const { return Fehlend.empty() && Anders.empty() && Doppelt.empty(); }

    /// Whether renaming is all that is needed.
    bool SindNurNamen() const { return Fehlend.empty() && Doppelt.empty() && !Anders.empty(); }
};

Dateimängel DateimängelIn(const std::filesystem::path &verzeichnis);

/// The same in one sentence, such as "Hier fehlt: Etiketten.dat"; empty if there are none.
Text DateimängelSatz(const Dateimängel &mängel);

/// Gives all files that are there under another case of letters their own names and says in one
/// sentence what became of it. Nothing is ever overwritten; a file that refuses keeps its name.
Text NamenBerichtigen(const std::filesystem::path &verzeichnis);

/// "8 Dateien nach ... kopiert".
Text KopiertSatz(int dateien, const std::filesystem::path &ziel);

/// The same for files that were copied into the program's directory and then loaded.
Text GeholtSatz(int dateien, const std::filesystem::path &quelle, const Ladebericht &bericht);

} // namespace altardienst
