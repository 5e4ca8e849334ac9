// The eight files as bytes: as they lie in a directory, or as a save would write them now.
#pragma once

#include "core/Dateien.h"
#include "history/Tabellenstand.h"
#include "values/Text.h"

#include <array>
#include <filesystem>
#include <optional>
#include <string>

namespace altardienst {

struct Standdatei {
    Text Name;                        // as stored; empty: there is none
    std::optional<std::string> Bytes; // nothing: it cannot be read
};

/// In the order in which a load reads the files.
struct Standinhalt {
    std::array<Standdatei, 8> Dateien;

    bool Leer() const;       // none of the files can be read
    bool Vollzählig() const; // all of them can

    /// Whether the same bytes are there; how the names are spelled does not count.
    friend bool operator==(const Standinhalt &a, const Standinhalt &b);
};

/// Never fails: a file that cannot be read, or is not there, is left out.
Standinhalt InhaltVon(const std::filesystem::path &verzeichnis);

/// What a save would write now; a file that holds a value which cannot be written is left out. The
/// tables and the shared loop counter stay as they are.
Standinhalt InhaltDerTabellen();

/// How far a load gets with the eight files.
struct Ladebefund {
    enum Art {
        Vollständig,
        Fehlt,       // the file is not there
        Unlesbar,    // the medium does not give it
        Unpassend,   // a line does not convert
        EndetVorher, // the file ends before its last record in use
    };
    Art Was = Vollständig;
    bool Abgebrochen = false; // the load stopped there; otherwise it went on with the next file
    Text Datei;
    int Zeile = 0; // from 1: the one that does not convert, or the last one
    Text Inhalt;   // what stands on it
    int Komma = 0; // the line with the comma that has torn the record, 0 if none has
    Text MitKomma; // what stands on that

    /// The finding in words; empty if all is well.
    Text Satz() const;
};

struct Gelesenes {
    Tabellenstand Tabellen; // up to the line that failed; the rest as at the program's start
    Ladebefund Befund;
};

/// The same files with a semicolon in place of each comma in the file of the servers: where a comma
/// has torn that file, nothing is missing in this one.
Standinhalt OhneKommas(Standinhalt inhalt);

/// Reads as a load does, without touching the tables.
Gelesenes InhaltLesen(const Standinhalt &inhalt);

} // namespace altardienst
