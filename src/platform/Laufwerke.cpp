// The machine's own file system.
#include "platform/Laufwerke.h"

#include "core/Laufzeitfehler.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <sstream>

#ifdef _WIN32
#include <io.h>
#include <windows.h>
#else
#include <unistd.h>
#endif

namespace altardienst {
namespace {

namespace fs = std::filesystem;

struct Schließer {
    void operator()(std::FILE *datei) const { std::fclose(datei); }
};
using Datei = std::unique_ptr<std::FILE, Schließer>;

Datei Öffnen(const fs::path &pfad, const char *art)
{
#ifdef _WIN32
    return Datei(_wfopen(pfad.c_str(), fs::path(art).c_str()));
#else
    return Datei(std::fopen(pfad.c_str(), art));
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

std::string Lesen(const fs::path &pfad)
{
    Datei datei = Öffnen(pfad, "rb");
    if (!datei)
        Gescheitert(errno, Laufzeitfehler::DateiNichtGefunden);
    std::error_code unbekannt;
    auto größe = fs::file_size(pfad, unbekannt);
    std::string inhalt;
    if (!unbekannt && größe < (std::uintmax_t(1) << 30))
        inhalt.reserve(größe + 1);
    constexpr std::size_t stück = std::size_t(1) << 16;
    while (true) {
        std::size_t bisher = inhalt.size();
        inhalt.resize(bisher + stück);
        std::size_t gelesen = std::fread(inhalt.data() + bisher, 1, stück, datei.get());
        inhalt.resize(bisher + gelesen);
        if (std::ferror(datei.get()))
            Gescheitert(errno, Laufzeitfehler::DateiNichtGefunden);
        if (gelesen < stück)
            return inhalt;
    }
}

/// Returns when the medium itself holds what was written.
bool Durchschreiben(std::FILE *datei)
{
#ifdef _WIN32
    return std::fflush(datei) == 0 && _commit(_fileno(datei)) == 0;
#else
    return std::fflush(datei) == 0 && fsync(fileno(datei)) == 0;
#endif
}

void Ausgeben(const fs::path &pfad, const char *art, std::string_view inhalt,
              bool durchschreiben = false)
{
    Datei datei = Öffnen(pfad, art);
    if (!datei)
        Gescheitert(errno, Laufzeitfehler::PfadNichtGefunden);
    if (std::fwrite(inhalt.data(), 1, inhalt.size(), datei.get()) != inhalt.size())
        Gescheitert(errno, Laufzeitfehler::PfadNichtGefunden);
    if (durchschreiben && !Durchschreiben(datei.get()))
        Gescheitert(errno, Laufzeitfehler::PfadNichtGefunden);
    if (std::fclose(datei.release()) != 0) // what is still buffered may fail here
        Gescheitert(errno, Laufzeitfehler::PfadNichtGefunden);
}

bool IstDatei(const fs::path &pfad)
{
    std::error_code fehler;
    return fs::exists(pfad, fehler) && !fs::is_directory(pfad, fehler);
}

void Kopieren(const fs::path &von, const fs::path &nach)
{
    std::error_code fehler;
    fs::path ziel = nach;
    std::optional<fs::perms> rechte;
    if (fs::exists(nach, fehler)) {
        ziel = fs::canonical(nach, fehler); // behind a link, so that the link stays one
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
        if (rechte) // who may read the file stays; a medium that knows no rights keeps none
            fs::permissions(daneben, *rechte, fehler);
        fs::rename(daneben, ziel, fehler);
        if (fehler)
            Gescheitert(fehler.value(), Laufzeitfehler::PfadNichtGefunden);
    } catch (const Laufzeitfehler &) {
        fs::remove(daneben, fehler);
        throw;
    }
}

std::optional<Text> Suchen(const fs::path &verzeichnis, const Text &name)
{
#ifndef _WIN32
    if (IstDatei(verzeichnis / PfadAus(name)))
        return name;
#endif
    std::optional<Text> gefunden;
    Text gesucht = Klein(name);
    std::error_code fehler;
    fs::directory_iterator ende;
    for (fs::directory_iterator i(verzeichnis, fehler); !fehler && i != ende; i.increment(fehler)) {
        Text gespeichert = TextVon(i->path().filename());
        if (Klein(gespeichert) == gesucht && (!gefunden || gespeichert < *gefunden) &&
            IstDatei(i->path()))
            gefunden = gespeichert;
    }
    return gefunden;
}

Verzeichnisinhalt Auflisten(const fs::path &verzeichnis)
{
    std::error_code fehler;
    Verzeichnisinhalt inhalt;
    fs::directory_iterator ende;
    fs::directory_iterator i(verzeichnis, fehler);
    for (; !fehler && i != ende; i.increment(fehler)) {
        Text name = TextVon(i->path().filename());
        if (name.starts_with('.'))
            continue;
        std::error_code unbekannt;
        bool istVerzeichnis = i->is_directory(unbekannt);
        (istVerzeichnis ? inhalt.Verzeichnisse : inhalt.Dateien).push_back(std::move(name));
    }
    if (fehler)
        Gescheitert(fehler.value(), Laufzeitfehler::PfadNichtGefunden);
    std::ranges::sort(inhalt.Verzeichnisse);
    std::ranges::sort(inhalt.Dateien);
    return inhalt;
}

void AttributeLöschen(const fs::path &pfad)
{
    std::error_code fehler;
    fs::permissions(pfad, fs::perms::owner_write, fs::perm_options::add, fehler);
    if (fehler)
        Gescheitert(fehler.value(), Laufzeitfehler::DateiNichtGefunden);
}

void VerzeichnisAnlegen(const fs::path &pfad)
{
    std::error_code fehler;
    fs::create_directories(pfad, fehler);
    if (fehler || !fs::is_directory(pfad, fehler))
        Gescheitert(fehler.value(), Laufzeitfehler::PfadNichtGefunden);
}

#ifndef _WIN32

fs::path AusUmgebung(const char *name)
{
    const char *wert = std::getenv(name);
    return wert ? fs::path(wert) : fs::path();
}

fs::path Heimverzeichnis()
{
    fs::path heim = AusUmgebung("HOME");
    return heim.empty() ? fs::path("/") : heim;
}

#endif

/// The directory in which the running program lies.
fs::path OrtDesProgramms()
{
#ifdef _WIN32
    wchar_t datei[MAX_PATH] = {};
    return GetModuleFileNameW(nullptr, datei, MAX_PATH) ? fs::path(datei).parent_path()
                                                        : fs::path();
#else
    std::error_code fehler;
    return fs::read_symlink("/proc/self/exe", fehler).parent_path();
#endif
}

fs::path Programmverzeichnis()
{
#ifdef _WIN32
    return "c:\\programm\\Altardienst\\";
#else
    fs::path gesetzt = AusUmgebung("ALTARDIENST_DATEN");
    return gesetzt.empty() ? Heimverzeichnis() / ".local/share/Altardienst" : gesetzt;
#endif
}

fs::path Diskette()
{
#ifdef _WIN32
    return "a:\\";
#else
    fs::path gesetzt = AusUmgebung("ALTARDIENST_DISKETTE");
    return gesetzt.empty() ? fs::path("/media/floppy") : gesetzt;
#endif
}

/// A blank and its like stand in a table of mounts as a backslash with three octal digits.
Text OhneUmschreibung(std::string_view umschrieben)
{
    constexpr std::size_t Ziffern = 3;
    Text text;
    for (std::size_t i = 0; i < umschrieben.size(); ++i) {
        if (umschrieben[i] != '\\' || i + Ziffern >= umschrieben.size()) {
            text += umschrieben[i];
            continue;
        }
        int zeichen = 0;
        for (std::size_t k = 1; k <= Ziffern; ++k)
            zeichen = 8 * zeichen + (umschrieben[i + k] - '0');
        text += static_cast<char>(zeichen);
        i += Ziffern;
    }
    return text;
}

std::vector<Wurzel> Wurzeln()
{
    std::vector<Wurzel> wurzeln;
#ifdef _WIN32
    for (char buchstabe : std::string_view("cabdefghijklmnopqrstuvwxyz")) {
        std::error_code fehler;
        Text laufwerk = Text(1, buchstabe) + ":\\";
        if (buchstabe == 'c' || fs::exists(laufwerk, fehler))
            wurzeln.push_back({laufwerk, laufwerk});
    }
#else
    wurzeln.push_back({"Persönlicher Ordner", Heimverzeichnis()});
    wurzeln.push_back({"Diskette", Diskette()});
    try {
        std::ranges::move(EingehängteDatenträger(Lesen("/proc/self/mounts")),
                          std::back_inserter(wurzeln));
    } catch (const Laufzeitfehler &) {
        // A machine without such a table has no media to offer.
    }
    wurzeln.push_back({"Dateisystem", "/"});
#endif
    if (const fs::path daten = MitgelieferteDaten(OrtDesProgramms()); !daten.empty())
        wurzeln.push_back({"Mitgelieferte Daten", daten});
    return wurzeln;
}

} // namespace

std::filesystem::path PfadAus(std::string_view text)
{
    return fs::path(std::u8string(text.begin(), text.end()));
}

Text TextVon(const std::filesystem::path &pfad)
{
    std::u8string text = pfad.u8string();
    return Text(text.begin(), text.end());
}

Text OrdnerText(const std::filesystem::path &verzeichnis)
{
    return TextVon(verzeichnis / "");
}

std::vector<Wurzel> EingehängteDatenträger(std::string_view tabelle)
{
    std::vector<Wurzel> wurzeln;
    std::istringstream zeilen{std::string(tabelle)};
    for (std::string zeile; std::getline(zeilen, zeile);) {
        std::istringstream felder(zeile);
        std::string gerät;
        std::string verzeichnis;
        felder >> gerät >> verzeichnis;
        const fs::path pfad = PfadAus(OhneUmschreibung(verzeichnis));
        const std::string ort = verzeichnis + '/';
        if (pfad != Diskette() && (ort.starts_with("/media/") || ort.starts_with("/run/media/") ||
                                   ort.starts_with("/mnt/")))
            wurzeln.push_back({TextVon(pfad.filename()), pfad});
    }
    return wurzeln;
}

fs::path MitgelieferteDaten(const fs::path &ort)
{
    std::error_code fehler;
    for (const char *weg : {"../share/altardienst", "data", "../../data"}) {
        const fs::path daten = (ort / weg).lexically_normal();
        if (fs::is_directory(daten / "leer", fehler))
            return daten;
    }
    return {};
}

LaufwerkeDienst Systemlaufwerke()
{
    LaufwerkeDienst dienst;
    dienst.Programmverzeichnis = Programmverzeichnis;
    dienst.Diskette = Diskette;
    dienst.Wurzeln = Wurzeln;
    dienst.Suchen = Suchen;
    dienst.Auflisten = Auflisten;
    dienst.Lesen = Lesen;
    dienst.Schreiben = [](const fs::path &pfad, std::string_view inhalt) {
        Ausgeben(pfad, "wb", inhalt);
    };
    dienst.Anhängen = [](const fs::path &pfad, std::string_view inhalt) {
        Ausgeben(pfad, "ab", inhalt);
    };
    dienst.Kopieren = Kopieren;
    dienst.AttributeLöschen = AttributeLöschen;
    dienst.VerzeichnisAnlegen = VerzeichnisAnlegen;
    return dienst;
}

LaufwerkeDienst Laufwerke = Systemlaufwerke();

} // namespace altardienst
