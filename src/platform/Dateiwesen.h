// What the file system knows of a path, and what changes directories; none of it throws. On Windows
// the system itself is asked: in a path of more than 260 characters the standard library loses its
// way, lists the directory in use in place of the one asked for, and would delete what is in that.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <system_error>
#include <vector>

namespace altardienst::dateiwesen {

using std::filesystem::path;

/// The path by which the system finds the file. Windows takes one of more than 260 characters only
/// in this spelling, which in turn knows no "/" and no "..". The other routines expect it.
path Systempfad(const path &pfad);

bool Vorhanden(const path &pfad);      // where a link leads
bool NameVergeben(const path &pfad);   // also by a link that leads nowhere
bool IstVerzeichnis(const path &pfad); // false if it is not there
bool IstRöhre(const path &pfad);       // opening it would wait for the other end
bool IstDatei(const path &pfad);       // neither a directory nor a device
std::optional<std::uintmax_t> Größe(const path &pfad);

struct Eintrag {
    path Pfad;
    bool IstVerzeichnis; // a link leads there
    bool IstVerborgen;   // the machine does not show it to its users
};

/// What stands in a directory, in any order.
std::vector<Eintrag> Einträge(const path &verzeichnis, std::error_code &fehler);

path Verweisziel(const path &vorhandene); // the file itself, if it is no link
bool Dieselbe(const path &eine, const path &andere);
bool Schreibbar(const path &vorhandene);

/// Who may read and write it; none where the system has no such thing.
std::optional<std::filesystem::perms> Rechte(const path &vorhandene);

void SchreibbarMachen(const path &pfad, std::error_code &fehler);
void Anlegen(const path &verzeichnis, std::error_code &fehler);               // with its parents
void Verschieben(const path &von, const path &nach, std::error_code &fehler); // replaces a file
void Entfernen(const path &pfad, std::error_code &fehler); // with all that is in it; may be gone

} // namespace altardienst::dateiwesen
