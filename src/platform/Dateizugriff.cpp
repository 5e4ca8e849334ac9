// The files themselves: read, written, copied and found, whatever drive they are on.
#include "platform/Dateizugriff.h"

#include "platform/Dateiwesen.h"
#include "platform/Lebenszeichen.h"
#include "values/Laufzeitfehler.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <memory>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace altardienst::dateizugriff {
namespace {

namespace fs = std::filesystem;

using dateiwesen::Systempfad;

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
    if (dateiwesen::IstRöhre(pfad)) // opening it would wait for someone to read from it
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
    if (dateiwesen::Vorhanden(pfad) && !dateiwesen::IstDatei(pfad))
        throw Laufzeitfehler(Laufzeitfehler::ZugriffVerweigert);
}

/// Whatever has a name and is no directory.
bool IstDatei(const fs::path &pfad)
{
    return dateiwesen::Vorhanden(pfad) && !dateiwesen::IstVerzeichnis(pfad);
}

} // namespace

std::string Lesen(const fs::path &wo)
{
    const fs::path pfad = Systempfad(wo);
    NurEineDatei(pfad);
    OffeneDatei datei = Öffnen(pfad, "rb");
    if (!datei)
        Gescheitert(errno, Laufzeitfehler::DateiNichtGefunden);
    const auto größe = dateiwesen::Größe(pfad);
    if (größe && *größe > GrößteDatei)
        throw Laufzeitfehler(Laufzeitfehler::ZugriffVerweigert);
    std::string inhalt;
    if (größe)
        inhalt.reserve(*größe + 1);
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
    if (const auto größe = dateiwesen::Größe(pfad))
        return *größe;
    throw Laufzeitfehler(Laufzeitfehler::DateiNichtGefunden);
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
    if (dateiwesen::Vorhanden(nach)) {
        ziel = dateiwesen::Verweisziel(nach); // so that a link stays one
        rechte = dateiwesen::Rechte(ziel);
        if (dateiwesen::Dieselbe(von, ziel) || !dateiwesen::Schreibbar(ziel))
            throw Laufzeitfehler(Laufzeitfehler::ZugriffVerweigert);
    }
    fs::path daneben = ziel;
    daneben += ".neu";
    const std::string inhalt = Lesen(von);
    try {
        Ausgeben(daneben, "wb", inhalt, true);
        if (rechte) // keeps who may read the file; a medium without permissions keeps none
            fs::permissions(daneben, *rechte, fehler);
        dateiwesen::Verschieben(daneben, ziel, fehler);
        if (fehler)
            Gescheitert(fehler, Laufzeitfehler::PfadNichtGefunden);
        Lebenszeichen();
    } catch (const Laufzeitfehler &) {
        dateiwesen::Entfernen(daneben, fehler);
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
    for (const auto &eintrag : dateiwesen::Einträge(Systempfad(verzeichnis), fehler)) {
        Text gespeichert = TextVon(eintrag.Pfad.filename());
        if (Klein(gespeichert) != gesucht || !IstDatei(eintrag.Pfad))
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
    for (const auto &eintrag : dateiwesen::Einträge(Systempfad(verzeichnis), fehler))
        if (!eintrag.IstVerborgen)
            (eintrag.IstVerzeichnis ? inhalt.Verzeichnisse : inhalt.Dateien)
                .push_back(TextVon(eintrag.Pfad.filename()));
    if (fehler)
        Gescheitert(fehler, Laufzeitfehler::PfadNichtGefunden);
    std::ranges::sort(inhalt.Verzeichnisse);
    std::ranges::sort(inhalt.Dateien);
    return inhalt;
}

void AttributeLöschen(const fs::path &pfad)
{
    std::error_code fehler;
    dateiwesen::SchreibbarMachen(Systempfad(pfad), fehler);
    if (fehler)
        Gescheitert(fehler, Laufzeitfehler::DateiNichtGefunden);
}

void VerzeichnisAnlegen(const fs::path &wo)
{
    const fs::path pfad = Systempfad(wo);
    std::error_code fehler;
    dateiwesen::Anlegen(pfad, fehler);
    if (fehler || !dateiwesen::IstVerzeichnis(pfad))
        Gescheitert(fehler, Laufzeitfehler::PfadNichtGefunden);
}

/// The directory itself is read, as in `Suchen`: what a path leads to may be remembered from
/// before.
void Umbenennen(const fs::path &woher, const fs::path &wohin)
{
    const fs::path von = Systempfad(woher);
    const fs::path nach = Systempfad(wohin);
    if (!dateiwesen::NameVergeben(von))
        throw Laufzeitfehler(Laufzeitfehler::DateiNichtGefunden);
    const Text gesucht = Klein(TextVon(nach.filename()));
    std::error_code fehler;
    for (const auto &eintrag : dateiwesen::Einträge(nach.parent_path(), fehler))
        if (eintrag.Pfad != von && Klein(TextVon(eintrag.Pfad.filename())) == gesucht)
            throw Laufzeitfehler(Laufzeitfehler::DateiVorhanden);
    dateiwesen::Verschieben(von, nach, fehler);
    if (fehler)
        Gescheitert(fehler, Laufzeitfehler::PfadNichtGefunden);
}

void Löschen(const fs::path &pfad)
{
    std::error_code fehler;
    dateiwesen::Entfernen(Systempfad(pfad), fehler);
    if (fehler)
        Gescheitert(fehler, Laufzeitfehler::PfadNichtGefunden);
}

void Durchschreiben(const fs::path &wo)
{
    const fs::path pfad = Systempfad(wo);
    VorLangemSchritt();
#ifdef _WIN32
    if (dateiwesen::IstVerzeichnis(pfad))
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
