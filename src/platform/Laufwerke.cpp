// The machine's own file system.
#include "platform/Laufwerke.h"

#include "core/Laufzeitfehler.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>

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

void Ausgeben(const fs::path &pfad, const char *art, std::string_view inhalt)
{
    Datei datei = Öffnen(pfad, art);
    if (!datei)
        Gescheitert(errno, Laufzeitfehler::PfadNichtGefunden);
    if (std::fwrite(inhalt.data(), 1, inhalt.size(), datei.get()) != inhalt.size())
        Gescheitert(errno, Laufzeitfehler::PfadNichtGefunden);
    if (std::fclose(datei.release()) != 0) // what is still buffered may fail here
        Gescheitert(errno, Laufzeitfehler::PfadNichtGefunden);
}

bool IstDatei(const fs::path &pfad)
{
    std::error_code fehler;
    return fs::exists(pfad, fehler) && !fs::is_directory(pfad, fehler);
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
    wurzeln.push_back({"Dateisystem", "/"});
#endif
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
    dienst.AttributeLöschen = AttributeLöschen;
    dienst.VerzeichnisAnlegen = VerzeichnisAnlegen;
    return dienst;
}

LaufwerkeDienst Laufwerke = Systemlaufwerke();

} // namespace altardienst
