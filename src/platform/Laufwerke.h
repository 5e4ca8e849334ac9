// The file system: the program's directory, the diskette, the roots that pickers offer, and file
// lookup that ignores case, since the files come from a platform that does.
#pragma once

#include "values/Text.h"

#include <cstdint>
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

/// What a picker lists from a directory, sorted by name, without hidden entries.
struct Verzeichnisinhalt {
    std::vector<Text> Verzeichnisse;
    std::vector<Text> Dateien;
};

/// A failing call raises a Laufzeitfehler: 53 file not found, 58 file exists, 61 disk full, 75
/// access denied, 76 path not found.
struct LaufwerkeDienst {
    using path = std::filesystem::path;

    std::function<path()> Programmverzeichnis;
    std::function<path()> Diskette;

    /// Where the user may always write: directories for what must not be lost while the program's
    /// own refuses it. They may not be there yet.
    std::function<std::vector<path>()> Ausweichverzeichnisse;

    std::function<std::vector<Wurzel>()> Wurzeln;

    /// The stored name of the file with that name, ignoring case; the exact spelling wins if
    /// several differ only in case. A directory does not count as a file.
    std::function<std::optional<Text>(const path &verzeichnis, const Text &name)> Suchen;

    std::function<Verzeichnisinhalt(const path &)> Auflisten;

    /// Only a file is read: a device, a pipe, or what is larger than `GrößteDatei` is failure 75,
    /// like a file that cannot be read. So no read is without end.
    std::function<std::string(const path &)> Lesen;
    /// In bytes, of what `Lesen` would read, without reading it; fails where that would.
    std::function<std::uintmax_t(const path &)> Größe;
    std::function<void(const path &, std::string_view)> Schreiben; // empties the file first
    std::function<void(const path &, std::string_view)> Anhängen;

    /// Copies a file, replacing the target if it exists. The old file is replaced only once the
    /// copy is complete: an interrupted copy leaves the old file, and next to it the beginning of
    /// the new one with ".neu" appended to its name. A file is never copied onto itself, nor over a
    /// read-only one (failure 75).
    std::function<void(const path &von, const path &nach)> Kopieren;

    /// A read-only file becomes writable; on Windows it also loses its hidden and system
    /// attributes.
    std::function<void(const path &)> AttributeLöschen;
    std::function<void(const path &)> VerzeichnisAnlegen; // with its parents; may exist

    /// Gives a file or a directory another name. Never replaces anything: failure 58 if the name is
    /// already taken there, in whatever case of letters. If only the case changes, some file
    /// systems that ignore it leave the file as it is.
    std::function<void(const path &von, const path &nach)> Umbenennen;

    std::function<void(const path &)> Löschen; // a directory with all that is in it; may be gone

    /// Returns only when the medium itself holds the file, or the names in the directory.
    std::function<void(const path &)> Durchschreiben;
};

/// In bytes. The largest of the eight files has 57287 lines; with names and kinds as long as
/// anybody types them it stays far below.
constexpr std::uintmax_t GrößteDatei = std::uintmax_t(256) << 20;

/// The media among the mounted file systems, from a table of mounts with one per line: device,
/// directory, type and more, separated by blanks; a blank in a name is written "\\040".
std::vector<Wurzel> EingehängteDatenträger(std::string_view tabelle);

/// The directory with the data that come with the program (`leer`, `beispiel`), for a program in
/// directory `ort`: installed, unpacked with its data next to it, or just built. Empty if there is
/// none.
std::filesystem::path MitgelieferteDaten(const std::filesystem::path &ort);

/// What the root that leads to them is called.
constexpr const char *MitgelieferteDatenName = "Mitgelieferte Daten";

/// The machine's own file system. Except on Windows, the program's directory is $ALTARDIENST_DATEN
/// or ~/.local/share/Altardienst, the diskette $ALTARDIENST_DISKETTE or /media/floppy.
LaufwerkeDienst Systemlaufwerke();

/// The file system in use.
extern LaufwerkeDienst Laufwerke;

/// UTF-8 text to and from a platform path.
std::filesystem::path PfadAus(std::string_view text);
Text TextVon(const std::filesystem::path &pfad);

/// A text as the name of a file on every platform: what one of them forbids becomes "-", and there
/// are no blanks or dots at its ends.
Text AlsDateiname(std::string_view text);

/// The text of a directory with a trailing separator, which a root has anyway.
Text OrdnerText(const std::filesystem::path &verzeichnis);

} // namespace altardienst
