// The file system: the program's directory, the diskette, the roots that pickers offer, and files
// looked up without regard to case, as they come from a platform that ignores it.
#pragma once

#include "values/Text.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace altardienst {

struct Wurzel {
    Text Name; // as the picker shows it
    std::filesystem::path Pfad;
};

/// What a picker lists of a directory, sorted by name, without hidden entries.
struct Verzeichnisinhalt {
    std::vector<Text> Verzeichnisse;
    std::vector<Text> Dateien;
};

/// A failing call raises a Laufzeitfehler: 53 file not found, 61 disk full, 75 access denied,
/// 76 path not found.
struct LaufwerkeDienst {
    using path = std::filesystem::path;

    std::function<path()> Programmverzeichnis;
    std::function<path()> Diskette;
    std::function<std::vector<Wurzel>()> Wurzeln;

    /// The name as stored of the file of that name, whatever the case asked for; the exact
    /// spelling comes first where several differ in case alone. A directory is no file.
    std::function<std::optional<Text>(const path &verzeichnis, const Text &name)> Suchen;

    std::function<Verzeichnisinhalt(const path &)> Auflisten;
    std::function<std::string(const path &)> Lesen;
    std::function<void(const path &, std::string_view)> Schreiben; // empties it first
    std::function<void(const path &, std::string_view)> Anhängen;

    /// Copies a file over another, or anew. What stood there before is replaced only when the copy
    /// is whole: an interrupted one leaves the old file, and the beginning of the new one beside it
    /// with ".neu" behind its name. A file is never copied onto itself, nor over a read-only one
    /// (failure 75).
    std::function<void(const path &von, const path &nach)> Kopieren;

    /// A read-only file becomes writable; on Windows hidden and system marks go too.
    std::function<void(const path &)> AttributeLöschen;
    std::function<void(const path &)> VerzeichnisAnlegen; // with those above it; may exist
};

/// The media among the mounted file systems, from a table of mounts with one on each line: device,
/// directory, type and more, divided by blanks; a blank in a name is written "\\040".
std::vector<Wurzel> EingehängteDatenträger(std::string_view tabelle);

/// The directory with the data that come with the program (`leer`, `beispiel`), for a program that
/// lies in this directory: installed, unpacked with its data beside it, or built. Empty if there is
/// none.
std::filesystem::path MitgelieferteDaten(const std::filesystem::path &ort);

/// The machine's own file system. Elsewhere than on Windows the program's directory is
/// $ALTARDIENST_DATEN or ~/.local/share/Altardienst, the diskette $ALTARDIENST_DISKETTE or
/// /media/floppy.
LaufwerkeDienst Systemlaufwerke();

/// The file system in use.
extern LaufwerkeDienst Laufwerke;

/// UTF-8 text to and from a path of the platform.
std::filesystem::path PfadAus(std::string_view text);
Text TextVon(const std::filesystem::path &pfad);

/// The text of a directory with its closing separator, which a root has anyway.
Text OrdnerText(const std::filesystem::path &verzeichnis);

} // namespace altardienst
