// Loading and saving of the eight files at their full size, against the bare reading and writing of
// the same lines.
#include "Bestand.h"
#include "Messung.h"
#include "kern_bench.h"

#include "core/Allgemein.h"
#include "core/Dateien.h"
#include "core/tables.h"
#include "platform/Laufwerke.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>

namespace altardienst {
namespace {

namespace fs = std::filesystem;

/// Two directories that live as long as the process: the one the routines use, and the yardstick's.
class Verzeichnisse {
  public:
    Verzeichnisse()
    {
        wurzel =
            fs::temp_directory_path() / ("bench_kern." + std::to_string(std::random_device()()));
        fs::create_directory(wurzel);
        fs::create_directory(Programm());
        fs::create_directory(Maßstab());
    }

    ~Verzeichnisse()
    {
        std::error_code fehler;
        fs::remove_all(wurzel, fehler);
    }

    Verzeichnisse(const Verzeichnisse &) = delete;
    Verzeichnisse &operator=(const Verzeichnisse &) = delete;

    fs::path Programm() const { return wurzel / "programm"; }
    fs::path Maßstab() const { return wurzel / "massstab"; }

  private:
    fs::path wurzel;
};

const Verzeichnisse &Orte()
{
    static const Verzeichnisse orte;
    return orte;
}

/// A load that failed somewhere would look fast.
void LadenGeprüft()
{
    VonFestplatteLaden();
    if (MesseDienerFest.Dienst[MesseDienerFest.HöchsterInDatei][1].empty())
        std::abort();
}

void ZeilenLesenUndVergessen()
{
    std::string zeile;
    for (const Datei &datei : Dateien) {
        std::ifstream strom(Orte().Programm() / PfadAus(datei.Name));
        while (std::getline(strom, zeile))
            benchmark::DoNotOptimize(zeile.data());
    }
}

/// The lines of a file, including their line ends.
using Zeilen = std::vector<std::string>;

const std::vector<Zeilen> &AlleZeilen()
{
    static const std::vector<Zeilen> alle = [] {
        VollerBestand();
        std::vector<Zeilen> dateien;
        for (const Datei &datei : Dateien) {
            std::string inhalt;
            datei.Schreiben(inhalt);
            Zeilen zeilen;
            for (std::size_t von = 0; von < inhalt.size();) {
                std::size_t ende = inhalt.find('\n', von) + 1;
                zeilen.push_back(inhalt.substr(von, ende - von));
                von = ende;
            }
            dateien.push_back(std::move(zeilen));
        }
        return dateien;
    }();
    return alle;
}

void ZeilenSchreiben()
{
    for (std::size_t i = 0; i < Dateien.size(); ++i) {
        fs::path pfad = Orte().Maßstab() / PfadAus(Dateien[i].Name);
        std::FILE *datei = std::fopen(pfad.c_str(), "wb");
        if (!datei)
            std::abort();
        for (const std::string &zeile : AlleZeilen()[i])
            std::fwrite(zeile.data(), 1, zeile.size(), datei);
        std::fclose(datei);
    }
}

} // namespace

void DateienMessungen()
{
    Laufwerke.Programmverzeichnis = [] { return Orte().Programm(); };
    VollerBestand();
    AufFestplatteSpeichern();
    AlleZeilen();

    MessungAnmelden({.Name = "Laden beim Start",
                     .Maßstabname = "getline, nichts behalten",
                     .Gemessen = {TabellenLeeren, LadenGeprüft},
                     .Maßstab = {nullptr, ZeilenLesenUndVergessen},
                     .Ziel = 2,
                     .Durchläufe = 200});
    MessungAnmelden({.Name = "Laden über volle Tabellen",
                     .Maßstabname = "getline, nichts behalten",
                     .Gemessen = {nullptr, LadenGeprüft},
                     .Maßstab = {nullptr, ZeilenLesenUndVergessen},
                     .Ziel = 2,
                     .Durchläufe = 200});
    MessungAnmelden({.Name = "Speichern",
                     .Maßstabname = "fwrite je Zeile",
                     .Gemessen = {VollerBestand, AufFestplatteSpeichern},
                     .Maßstab = {nullptr, ZeilenSchreiben},
                     .Ziel = 2,
                     .Durchläufe = 200});
}

} // namespace altardienst
