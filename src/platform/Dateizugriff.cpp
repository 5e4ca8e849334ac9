// The files themselves: read, written, copied and found, whatever drive they are on.
#include "platform/Dateizugriff.h"

#include "platform/Lebenszeichen.h"
#include "values/Laufzeitfehler.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <memory>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <windows.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace altardienst::dateizugriff {
namespace {

namespace fs = std::filesystem;

/// The path by which the system finds the file. Windows takes one of more than 260 characters only
/// in this spelling, which in turn knows no "/" and no "..".
fs::path Systempfad(const fs::path &pfad)
{
#ifdef _WIN32
    constexpr std::size_t Sicher = 240; // a file beside it may have a longer name
    std::error_code fehler;
    const fs::path ganz = fs::absolute(pfad, fehler).lexically_normal().make_preferred();
    if (fehler || ganz.native().size() < Sicher || ganz.native().starts_with(L"\\\\"))
        return pfad;
    return fs::path(LR"(\\?\)" + ganz.native());
#else
    return pfad;
#endif
}

/// What the machine does not show its users.
bool IstVerborgen(const fs::path &pfad)
{
#ifdef _WIN32
    const DWORD attribute = GetFileAttributesW(pfad.c_str());
    if (attribute != INVALID_FILE_ATTRIBUTES &&
        (attribute & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM)) != 0)
        return true;
#endif
    return TextVon(pfad.filename()).starts_with('.');
}

struct Schließer {
    void operator()(std::FILE *datei) const { std::fclose(datei); }
};
using OffeneDatei = std::unique_ptr<std::FILE, Schließer>;

OffeneDatei Öffnen(const fs::path &pfad, const char *art)
{
    Lebenszeichen();
#ifdef _WIN32
    return OffeneDatei(_wfopen(pfad.c_str(), fs::path(art).c_str()));
#else
    return OffeneDatei(std::fopen(pfad.c_str(), art));
#endif
}

[[noreturn]] void Gescheitert(int fehler, Laufzeitfehler::Art wennNichtDa)
{
    switch (fehler) {
    case ENOENT:
    case ENOTDIR:
        throw Laufzeitfehler(wennNichtDa);
    case ENOSPC:
    case EFBIG:
#ifdef EDQUOT
    case EDQUOT:
#endif
        throw Laufzeitfehler(Laufzeitfehler::DatenträgerVoll);
    default:
        throw Laufzeitfehler(Laufzeitfehler::ZugriffVerweigert);
    }
}

/// Windows numbers its errors differently.
[[noreturn]] void Gescheitert(std::error_code fehler, Laufzeitfehler::Art wennNichtDa)
{
    Gescheitert(fehler.default_error_condition().value(), wennNichtDa);
}

/// Returns only when the medium itself holds what was written.
bool Durchschreiben(std::FILE *datei)
{
    VorLangemSchritt();
#ifdef _WIN32
    return std::fflush(datei) == 0 && _commit(_fileno(datei)) == 0;
#else
    return std::fflush(datei) == 0 && fsync(fileno(datei)) == 0;
#endif
}

void Ausgeben(const fs::path &pfad, const char *art, std::string_view inhalt,
              bool durchschreiben = false)
{
    std::error_code unbekannt;
    if (fs::is_fifo(pfad, unbekannt)) // opening it would wait for someone to read from it
        throw Laufzeitfehler(Laufzeitfehler::ZugriffVerweigert);
    OffeneDatei datei = Öffnen(pfad, art);
    if (!datei)
        Gescheitert(errno, Laufzeitfehler::PfadNichtGefunden);
    if (std::fwrite(inhalt.data(), 1, inhalt.size(), datei.get()) != inhalt.size())
        Gescheitert(errno, Laufzeitfehler::PfadNichtGefunden);
    if (durchschreiben && !Durchschreiben(datei.get()))
        Gescheitert(errno, Laufzeitfehler::PfadNichtGefunden);
    if (std::fclose(datei.release()) != 0) // what is still buffered may fail here
        Gescheitert(errno, Laufzeitfehler::PfadNichtGefunden);
    Lebenszeichen();
}

/// Looked at before a file is opened: opening a pipe would wait for someone to write into it.
void NurEineDatei(const fs::path &pfad)
{
    std::error_code unbekannt;
    const fs::file_status art = fs::status(pfad, unbekannt);
    if (fs::exists(art) && !fs::is_regular_file(art))
        throw Laufzeitfehler(Laufzeitfehler::ZugriffVerweigert);
}

bool IstDatei(const fs::path &pfad)
{
    std::error_code fehler;
    return fs::exists(pfad, fehler) && !fs::is_directory(pfad, fehler);
}

} // namespace

std::string Lesen(const fs::path &wo)
{
    const fs::path pfad = Systempfad(wo);
    NurEineDatei(pfad);
    std::error_code unbekannt;
    OffeneDatei datei = Öffnen(pfad, "rb");
    if (!datei)
        Gescheitert(errno, Laufzeitfehler::DateiNichtGefunden);
    auto größe = fs::file_size(pfad, unbekannt);
    if (!unbekannt && größe > GrößteDatei)
        throw Laufzeitfehler(Laufzeitfehler::ZugriffVerweigert);
    std::string inhalt;
    if (!unbekannt)
        inhalt.reserve(größe + 1);
    constexpr std::size_t stück = std::size_t(1) << 16;
    while (true) {
        Lebenszeichen();
        std::size_t bisher = inhalt.size();
        inhalt.resize(bisher + stück);
        std::size_t gelesen = std::fread(inhalt.data() + bisher, 1, stück, datei.get());
        inhalt.resize(bisher + gelesen);
        if (std::ferror(datei.get()))
            Gescheitert(errno, Laufzeitfehler::DateiNichtGefunden);
        if (gelesen < stück)
            return inhalt;
        if (inhalt.size() > GrößteDatei) // some files tell no size
            throw Laufzeitfehler(Laufzeitfehler::ZugriffVerweigert);
    }
}

std::uintmax_t Größe(const fs::path &wo)
{
    const fs::path pfad = Systempfad(wo);
    NurEineDatei(pfad);
    std::error_code fehler;
    const std::uintmax_t größe = fs::file_size(pfad, fehler);
    if (fehler)
        Gescheitert(fehler, Laufzeitfehler::DateiNichtGefunden);
    return größe;
}

void Schreiben(const fs::path &pfad, std::string_view inhalt)
{
    Ausgeben(Systempfad(pfad), "wb", inhalt);
}

void Anhängen(const fs::path &pfad, std::string_view inhalt)
{
    Ausgeben(Systempfad(pfad), "ab", inhalt);
}

void Kopieren(const fs::path &woher, const fs::path &wohin)
{
    const fs::path von = Systempfad(woher);
    const fs::path nach = Systempfad(wohin);
    std::error_code fehler;
    fs::path ziel = nach;
    std::optional<fs::perms> rechte;
    if (fs::exists(nach, fehler)) {
        ziel = fs::canonical(nach, fehler); // the target of a link, so that the link stays one
        rechte = fs::status(ziel, fehler).permissions();
        const bool schreibbar = (*rechte & fs::perms::owner_write) != fs::perms::none;
        if (fs::equivalent(von, ziel, fehler) || !schreibbar)
            throw Laufzeitfehler(Laufzeitfehler::ZugriffVerweigert);
    }
    fs::path daneben = ziel;
    daneben += ".neu";
    const std::string inhalt = Lesen(von);
    try {
        Ausgeben(daneben, "wb", inhalt, true);
        if (rechte) // keeps who may read the file; a medium without permissions keeps none
            fs::permissions(daneben, *rechte, fehler);
        fs::rename(daneben, ziel, fehler);
        if (fehler)
            Gescheitert(fehler, Laufzeitfehler::PfadNichtGefunden);
        Lebenszeichen();
    } catch (const Laufzeitfehler &) {
        fs::remove(daneben, fehler);
        throw;
    }
}

/// The directory itself is read: a medium that ignores case, such as most sticks, leads from any
/// spelling to the file and would not tell the stored one.
std::optional<Text> Suchen(const fs::path &verzeichnis, const Text &name)
{
    std::optional<Text> gefunden;
    Text gesucht = Klein(name);
    std::error_code fehler;
    fs::directory_iterator ende;
    for (fs::directory_iterator i(Systempfad(verzeichnis), fehler); !fehler && i != ende;
         i.increment(fehler)) {
        Lebenszeichen();
        Text gespeichert = TextVon(i->path().filename());
        if (Klein(gespeichert) != gesucht || !IstDatei(i->path()))
            continue;
        if (gespeichert == name)
            return gespeichert;
        if (!gefunden || gespeichert < *gefunden)
            gefunden = gespeichert;
    }
    return gefunden;
}

Verzeichnisinhalt Auflisten(const fs::path &verzeichnis)
{
    std::error_code fehler;
    Verzeichnisinhalt inhalt;
    fs::directory_iterator ende;
    fs::directory_iterator i(Systempfad(verzeichnis), fehler);
    for (; !fehler && i != ende; i.increment(fehler)) {
        Lebenszeichen();
        if (IstVerborgen(i->path()))
            continue;
        Text name = TextVon(i->path().filename());
        std::error_code unbekannt;
        bool istVerzeichnis = i->is_directory(unbekannt);
        (istVerzeichnis ? inhalt.Verzeichnisse : inhalt.Dateien).push_back(std::move(name));
    }
    if (fehler)
        Gescheitert(fehler, Laufzeitfehler::PfadNichtGefunden);
    std::ranges::sort(inhalt.Verzeichnisse);
    std::ranges::sort(inhalt.Dateien);
    return inhalt;
}

void AttributeLöschen(const fs::path &pfad)
{
#ifdef _WIN32
    // A hidden or a system file refuses to be written, just like a read-only one.
    if (SetFileAttributesW(Systempfad(pfad).c_str(), FILE_ATTRIBUTE_NORMAL) == 0)
        Gescheitert(std::error_code(static_cast<int>(GetLastError()), std::system_category()),
                    Laufzeitfehler::DateiNichtGefunden);
#else
    std::error_code fehler;
    fs::permissions(pfad, fs::perms::owner_write, fs::perm_options::add, fehler);
    if (fehler)
        Gescheitert(fehler, Laufzeitfehler::DateiNichtGefunden);
#endif
}

void VerzeichnisAnlegen(const fs::path &wo)
{
    const fs::path pfad = Systempfad(wo);
    std::error_code fehler;
    fs::create_directories(pfad, fehler);
    if (fehler || !fs::is_directory(pfad, fehler))
        Gescheitert(fehler, Laufzeitfehler::PfadNichtGefunden);
}

/// The directory itself is read, as in `Suchen`: what a path leads to may be remembered from
/// before.
void Umbenennen(const fs::path &woher, const fs::path &wohin)
{
    const fs::path von = Systempfad(woher);
    const fs::path nach = Systempfad(wohin);
    std::error_code fehler;
    if (!fs::exists(fs::symlink_status(von, fehler)))
        throw Laufzeitfehler(Laufzeitfehler::DateiNichtGefunden);
    const Text gesucht = Klein(TextVon(nach.filename()));
    fs::directory_iterator ende;
    for (fs::directory_iterator i(nach.parent_path(), fehler); !fehler && i != ende;
         i.increment(fehler)) {
        Lebenszeichen();
        if (i->path() != von && Klein(TextVon(i->path().filename())) == gesucht)
            throw Laufzeitfehler(Laufzeitfehler::DateiVorhanden);
    }
    fs::rename(von, nach, fehler);
#ifdef _WIN32
    constexpr int Versuche = 10; // a virus scanner holds for a moment what was just written
    for (int versuch = 0; fehler && versuch < Versuche; ++versuch) {
        Sleep(50);
        fs::rename(von, nach, fehler);
    }
#endif
    if (fehler)
        Gescheitert(fehler, Laufzeitfehler::PfadNichtGefunden);
}

void Löschen(const fs::path &pfad)
{
    std::error_code fehler;
    fs::remove_all(Systempfad(pfad), fehler);
    if (fehler)
        Gescheitert(fehler, Laufzeitfehler::PfadNichtGefunden);
}

void Durchschreiben(const fs::path &wo)
{
    const fs::path pfad = Systempfad(wo);
    VorLangemSchritt();
#ifdef _WIN32
    std::error_code unbekannt;
    if (fs::is_directory(pfad, unbekannt))
        return; // the system flushes names by itself and offers no way to
    const int datei = _wopen(pfad.c_str(), _O_RDWR | _O_BINARY);
    if (datei < 0)
        Gescheitert(errno, Laufzeitfehler::DateiNichtGefunden);
    const int fehler = _commit(datei) == 0 ? 0 : errno;
    _close(datei);
#else
    const int datei = open(pfad.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (datei < 0)
        Gescheitert(errno, Laufzeitfehler::DateiNichtGefunden);
    int fehler = fsync(datei) == 0 ? 0 : errno;
    close(datei);
    if (fehler == EINVAL || fehler == ENOTSUP) // there is nothing to flush on such a medium
        fehler = 0;
#endif
    if (fehler != 0)
        Gescheitert(fehler, Laufzeitfehler::PfadNichtGefunden);
}

} // namespace altardienst::dateizugriff
