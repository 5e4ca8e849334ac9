// The machine's own file system: where the program's directory, the diskette and the media are.
#include "platform/Laufwerke.h"

#include "platform/Dateizugriff.h"
#include "values/Laufzeitfehler.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <sstream>

#ifdef _WIN32
#include <windows.h>
#endif

namespace altardienst {
namespace {

namespace fs = std::filesystem;

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

/// The directory of the running program.
fs::path OrtDesProgramms()
{
#ifdef _WIN32
    constexpr DWORD LängsterPfad = 32768;
    std::wstring datei(LängsterPfad, L'\0');
    datei.resize(GetModuleFileNameW(nullptr, datei.data(), LängsterPfad));
    return fs::path(datei).parent_path();
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

/// The user's own place for what a program keeps, and, as that may be on the same full disk, the
/// one that the machine keeps in its memory while he is logged in. In each, the path of the
/// program's directory follows once more: several parishes have nothing to do with each other.
std::vector<fs::path> Ausweichverzeichnisse()
{
    std::vector<fs::path> verzeichnisse;
    std::error_code fehler;
    const fs::path dieses = fs::absolute(Programmverzeichnis(), fehler).lexically_normal();
    const fs::path name = fs::path("Altardienst") / (dieses / "x").relative_path().parent_path();
#ifdef _WIN32
    if (const wchar_t *eigene = _wgetenv(L"LOCALAPPDATA"))
        verzeichnisse.push_back(fs::path(eigene) / name);
#else
    const fs::path eigene = AusUmgebung("XDG_STATE_HOME");
    verzeichnisse.push_back((eigene.empty() ? Heimverzeichnis() / ".local/state" : eigene) / name);
    if (const fs::path sitzung = AusUmgebung("XDG_RUNTIME_DIR"); !sitzung.empty())
        verzeichnisse.push_back(sitzung / name);
#endif
    return verzeichnisse;
}

/// A table of mounts writes blanks and the like as a backslash with three octal digits.
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
    // A drive counts without a medium in it, too: its letter is what the user looks for.
    const DWORD vorhanden = GetLogicalDrives();
    for (const char buchstabe : std::string_view("cabdefghijklmnopqrstuvwxyz")) {
        const bool da = (vorhanden >> static_cast<unsigned>(buchstabe - 'a') & 1U) != 0;
        const Text laufwerk = Text(1, buchstabe) + ":\\";
        if (buchstabe == 'c' || da)
            wurzeln.push_back({laufwerk, laufwerk});
    }
#else
    wurzeln.push_back({"Persönlicher Ordner", Heimverzeichnis()});
    wurzeln.push_back({"Diskette", Diskette()});
    try {
        std::ranges::move(EingehängteDatenträger(dateizugriff::Lesen("/proc/self/mounts")),
                          std::back_inserter(wurzeln));
    } catch (const Laufzeitfehler &) {
        // A machine without such a table has no media to offer.
    }
    wurzeln.push_back({"Dateisystem", "/"});
#endif
    if (const fs::path daten = MitgelieferteDaten(OrtDesProgramms()); !daten.empty())
        wurzeln.push_back({MitgelieferteDatenName, daten});
    return wurzeln;
}

/// Without the blanks and dots that Windows takes off anyway, or that hide a file elsewhere.
Text OhneRand(const Text &name)
{
    const auto erstes = name.find_first_not_of(" .");
    if (erstes == Text::npos)
        return "";
    return name.substr(erstes, name.find_last_not_of(" .") - erstes + 1);
}

/// The beginning of a long name, in whole characters: an extension, what is written beside the file
/// for a while and the directory still fit into what a system takes.
Text Gekürzt(const Text &name)
{
    constexpr std::size_t Längster = 150; // bytes
    if (name.size() <= Längster)
        return name;
    std::size_t ende = Längster;
    while ((static_cast<unsigned char>(name[ende]) & 0xC0) == 0x80)
        --ende;
    return name.substr(0, ende);
}

/// What counts where Windows looks for a device: "Aux .2026.ics" is one.
std::string_view Stamm(std::string_view name)
{
    const std::string_view stamm = name.substr(0, name.find('.'));
    return stamm.substr(0, stamm.find_last_not_of(' ') + 1);
}

bool IstGerätename(std::string_view stamm)
{
    constexpr std::array<std::string_view, 6> Geräte = {"con", "prn",    "aux",
                                                        "nul", "conin$", "conout$"};
    constexpr std::array<std::string_view, 13> Nummern = {"0", "1", "2", "3", "4", "5", "6",
                                                          "7", "8", "9", "¹", "²", "³"};
    const Text klein = Klein(stamm);
    if (klein.starts_with("com") || klein.starts_with("lpt"))
        return std::ranges::count(Nummern, std::string_view(klein).substr(3)) > 0;
    return std::ranges::count(Geräte, klein) > 0;
}

} // namespace

std::filesystem::path PfadAus(std::string_view text)
{
    return fs::path(std::u8string(text.begin(), text.end()));
}

Text TextVon(const std::filesystem::path &pfad)
{
    const std::u8string text = fs::path(pfad).make_preferred().u8string(); // "\\" on Windows
    return Text(text.begin(), text.end());
}

/// A name that stands for a device gets a "-" ("Aux-"); of a long one the beginning remains.
Text AlsDateiname(std::string_view text)
{
    Text name(text);
    for (char &zeichen : name)
        if (static_cast<unsigned char>(zeichen) < ' ' ||
            std::string_view("/\\:*?\"<>|").find(zeichen) != std::string_view::npos)
            zeichen = '-';
    name = OhneRand(Gekürzt(OhneRand(name)));
    if (const std::string_view stamm = Stamm(name); IstGerätename(stamm))
        name.insert(stamm.size(), "-");
    return name;
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
        fs::path daten = (ort / weg).lexically_normal();
        if (fs::is_directory(daten / "leer", fehler))
            return daten;
    }
    return {};
}

LaufwerkeDienst Systemlaufwerke()
{
#ifdef _WIN32
    SetErrorMode(SEM_FAILCRITICALERRORS); // an empty drive is told here, not by a box of the system
#endif
    LaufwerkeDienst dienst;
    dienst.Programmverzeichnis = Programmverzeichnis;
    dienst.Diskette = Diskette;
    dienst.Ausweichverzeichnisse = Ausweichverzeichnisse;
    dienst.Wurzeln = Wurzeln;
    dienst.Suchen = dateizugriff::Suchen;
    dienst.Auflisten = dateizugriff::Auflisten;
    dienst.Lesen = dateizugriff::Lesen;
    dienst.Größe = dateizugriff::Größe;
    dienst.Schreiben = dateizugriff::Schreiben;
    dienst.Anhängen = dateizugriff::Anhängen;
    dienst.Kopieren = dateizugriff::Kopieren;
    dienst.AttributeLöschen = dateizugriff::AttributeLöschen;
    dienst.VerzeichnisAnlegen = dateizugriff::VerzeichnisAnlegen;
    dienst.Umbenennen = dateizugriff::Umbenennen;
    dienst.Löschen = dateizugriff::Löschen;
    dienst.Durchschreiben = dateizugriff::Durchschreiben;
    return dienst;
}

LaufwerkeDienst Laufwerke = Systemlaufwerke();

} // namespace altardienst
