// What the file system knows of a path, and what changes directories.
#include "platform/Dateiwesen.h"

#include "platform/Lebenszeichen.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace altardienst::dateiwesen {

namespace fs = std::filesystem;

#ifdef _WIN32

namespace {

constexpr DWORD NichtDa = INVALID_FILE_ATTRIBUTES;

bool Hat(const path &pfad, DWORD attribute)
{
    const DWORD vorhandene = GetFileAttributesW(pfad.c_str());
    return vorhandene != NichtDa && (vorhandene & attribute) != 0;
}

/// Called where the system has just refused something.
std::error_code Grund()
{
    return {static_cast<int>(GetLastError()), std::system_category()};
}

std::optional<BY_HANDLE_FILE_INFORMATION> Kennung(const path &pfad)
{
    HANDLE griff =
        CreateFileW(pfad.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (griff == INVALID_HANDLE_VALUE)
        return std::nullopt;
    BY_HANDLE_FILE_INFORMATION kennung{};
    const bool gelesen = GetFileInformationByHandle(griff, &kennung) != 0;
    CloseHandle(griff);
    return gelesen ? std::optional(kennung) : std::nullopt;
}

} // namespace

path Systempfad(const path &pfad)
{
    constexpr std::size_t Sicher = 240;        // a file beside it may have a longer name
    if (pfad.native().starts_with(LR"(\\?\)")) // it is one already
        return pfad;
    std::error_code fehler;
    const path ganz = fs::absolute(pfad, fehler).lexically_normal().make_preferred();
    const std::wstring &name = ganz.native();
    if (fehler || name.size() < Sicher)
        return pfad;
    return name.starts_with(LR"(\\)") ? path(LR"(\\?\UNC\)" + name.substr(2))
                                      : path(LR"(\\?\)" + name);
}

bool Vorhanden(const path &pfad)
{
    return GetFileAttributesW(pfad.c_str()) != NichtDa;
}

bool NameVergeben(const path &pfad)
{
    return Vorhanden(pfad);
}

bool IstVerzeichnis(const path &pfad)
{
    return Hat(pfad, FILE_ATTRIBUTE_DIRECTORY);
}

bool IstRöhre(const path &)
{
    return false; // these have no names among the files
}

bool IstDatei(const path &pfad)
{
    return Vorhanden(pfad) && !Hat(pfad, FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE);
}

std::optional<std::uintmax_t> Größe(const path &pfad)
{
    WIN32_FILE_ATTRIBUTE_DATA angaben{};
    if (GetFileAttributesExW(pfad.c_str(), GetFileExInfoStandard, &angaben) == 0)
        return std::nullopt;
    return (std::uintmax_t(angaben.nFileSizeHigh) << 32U) + angaben.nFileSizeLow;
}

std::vector<Eintrag> Einträge(const path &verzeichnis, std::error_code &fehler)
{
    std::vector<Eintrag> einträge;
    fehler.clear();
    WIN32_FIND_DATAW fund{};
    HANDLE suche = FindFirstFileW((verzeichnis / L"*").c_str(), &fund);
    if (suche == INVALID_HANDLE_VALUE) {
        if (GetLastError() != ERROR_FILE_NOT_FOUND) // the root of an empty medium has not even "."
            fehler = Grund();
        return einträge;
    }
    do {
        Lebenszeichen();
        constexpr DWORD Verborgen = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
        const std::wstring_view name = fund.cFileName;
        const DWORD attribute = fund.dwFileAttributes;
        if (name != L"." && name != L"..")
            einträge.push_back({verzeichnis / name, (attribute & FILE_ATTRIBUTE_DIRECTORY) != 0,
                                (attribute & Verborgen) != 0 || name.starts_with(L'.')});
    } while (FindNextFileW(suche, &fund) != 0);
    if (GetLastError() != ERROR_NO_MORE_FILES)
        fehler = Grund();
    FindClose(suche);
    return einträge;
}

path Verweisziel(const path &vorhandene)
{
    return vorhandene;
}

bool Dieselbe(const path &eine, const path &andere)
{
    const auto a = Kennung(eine);
    const auto b = Kennung(andere);
    return a && b && a->dwVolumeSerialNumber == b->dwVolumeSerialNumber &&
           a->nFileIndexHigh == b->nFileIndexHigh && a->nFileIndexLow == b->nFileIndexLow;
}

bool Schreibbar(const path &vorhandene)
{
    return !Hat(vorhandene, FILE_ATTRIBUTE_READONLY);
}

std::optional<fs::perms> Rechte(const path &)
{
    return std::nullopt;
}

/// A hidden or a system file refuses to be written, just like a read-only one.
void SchreibbarMachen(const path &pfad, std::error_code &fehler)
{
    fehler.clear();
    if (SetFileAttributesW(pfad.c_str(), FILE_ATTRIBUTE_NORMAL) == 0)
        fehler = Grund();
}

void Anlegen(const path &verzeichnis, std::error_code &fehler)
{
    fehler.clear();
    const path ohneTrenner = verzeichnis.has_filename() ? verzeichnis : verzeichnis.parent_path();
    if (IstVerzeichnis(ohneTrenner))
        return;
    if (const path darüber = ohneTrenner.parent_path(); darüber != ohneTrenner && !darüber.empty())
        Anlegen(darüber, fehler);
    if (!fehler && CreateDirectoryW(ohneTrenner.c_str(), nullptr) == 0 &&
        !IstVerzeichnis(ohneTrenner)) // somebody else may have been faster
        fehler = Grund();
}

void Verschieben(const path &von, const path &nach, std::error_code &fehler)
{
    constexpr int Versuche = 10; // a virus scanner holds for a moment what was just written
    for (int versuch = 0; versuch <= Versuche; ++versuch) {
        fehler.clear();
        if (MoveFileExW(von.c_str(), nach.c_str(),
                        MOVEFILE_REPLACE_EXISTING | MOVEFILE_COPY_ALLOWED) != 0)
            return;
        fehler = Grund();
        if (fehler.value() != ERROR_ACCESS_DENIED && fehler.value() != ERROR_SHARING_VIOLATION)
            return;
        Sleep(50);
    }
}

void Entfernen(const path &pfad, std::error_code &fehler)
{
    fehler.clear();
    if (!Vorhanden(pfad))
        return;
    if (!IstVerzeichnis(pfad)) {
        if (DeleteFileW(pfad.c_str()) == 0)
            fehler = Grund();
        return;
    }
    if (!Hat(pfad, FILE_ATTRIBUTE_REPARSE_POINT)) // a link goes alone
        for (const Eintrag &eintrag : Einträge(pfad, fehler)) {
            Entfernen(eintrag.Pfad, fehler);
            if (fehler)
                return;
        }
    if (!fehler && RemoveDirectoryW(pfad.c_str()) == 0)
        fehler = Grund();
}

#else

path Systempfad(const path &pfad)
{
    return pfad;
}

bool Vorhanden(const path &pfad)
{
    std::error_code fehler;
    return fs::exists(pfad, fehler);
}

bool NameVergeben(const path &pfad)
{
    std::error_code fehler;
    return fs::exists(fs::symlink_status(pfad, fehler));
}

bool IstVerzeichnis(const path &pfad)
{
    std::error_code fehler;
    return fs::is_directory(pfad, fehler);
}

bool IstRöhre(const path &pfad)
{
    std::error_code fehler;
    return fs::is_fifo(pfad, fehler);
}

bool IstDatei(const path &pfad)
{
    std::error_code fehler;
    return fs::is_regular_file(pfad, fehler);
}

std::optional<std::uintmax_t> Größe(const path &pfad)
{
    std::error_code fehler;
    const auto größe = fs::file_size(pfad, fehler);
    return fehler ? std::nullopt : std::optional(größe);
}

std::vector<Eintrag> Einträge(const path &verzeichnis, std::error_code &fehler)
{
    std::vector<Eintrag> einträge;
    const fs::directory_iterator ende;
    for (fs::directory_iterator i(verzeichnis, fehler); !fehler && i != ende; i.increment(fehler)) {
        Lebenszeichen();
        std::error_code unbekannt;
        einträge.push_back({i->path(), i->is_directory(unbekannt),
                            i->path().filename().native().starts_with('.')});
    }
    return einträge;
}

path Verweisziel(const path &vorhandene)
{
    std::error_code fehler;
    return fs::canonical(vorhandene, fehler);
}

bool Dieselbe(const path &eine, const path &andere)
{
    std::error_code fehler;
    return fs::equivalent(eine, andere, fehler);
}

bool Schreibbar(const path &vorhandene)
{
    return (*Rechte(vorhandene) & fs::perms::owner_write) != fs::perms::none;
}

std::optional<fs::perms> Rechte(const path &vorhandene)
{
    std::error_code fehler;
    return fs::status(vorhandene, fehler).permissions();
}

void SchreibbarMachen(const path &pfad, std::error_code &fehler)
{
    fs::permissions(pfad, fs::perms::owner_write, fs::perm_options::add, fehler);
}

void Anlegen(const path &verzeichnis, std::error_code &fehler)
{
    fs::create_directories(verzeichnis, fehler);
}

void Verschieben(const path &von, const path &nach, std::error_code &fehler)
{
    fs::rename(von, nach, fehler);
}

void Entfernen(const path &pfad, std::error_code &fehler)
{
    fs::remove_all(pfad, fehler);
}

#endif

} // namespace altardienst::dateiwesen
