// The fixture of all tests.
#include "Prüfstand.h"

#include "core/Allgemein.h"

#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>

namespace altardienst {
namespace {

namespace fs = std::filesystem;

/// A directory that nobody else uses, whatever else runs.
fs::path NeuesVerzeichnis()
{
    std::random_device würfel;
    for (int versuch = 0; versuch < 100; ++versuch) {
        fs::path verzeichnis =
            fs::temp_directory_path() / ("altardienst-" + std::to_string(würfel()));
        if (fs::create_directory(verzeichnis)) // false if somebody else has it
            return verzeichnis;
    }
    throw std::runtime_error("no temporary directory");
}

} // namespace

Prüfstand::Prüfstand()
    : Heute(DatumAus({2026, 11, 21})), wurzel(NeuesVerzeichnis()), uhrZuvor(Uhr),
      zufallZuvor(Zufall), meldungenZuvor(Meldungen), laufwerkeZuvor(Laufwerke),
      betrachterZuvor(Betrachter)
{
    TabellenLeeren();
    NachKopie = 0;
    DateienKopierenZeigen = [] {};
    Festplatte = wurzel / "Festplatte";
    Diskette = wurzel / "Diskette";
    fs::create_directories(Festplatte);
    fs::create_directories(Diskette);

    Uhr.Heute = [this] { return Heute; };
    Uhr.Sekunden = [this] {
        int jetzt = Sekunden;
        Sekunden += SekundenProAblesung;
        return jetzt;
    };
    Zufall = ZufallMitSaat(1);
    Meldungen.Zeigen = [this](const Text &text) { GezeigteMeldungen.push_back(text); };
    Meldungen.Fragen = [this](const Text &text, const Text &titel) {
        GestellteFragen.push_back({text, titel});
        if (Antworten.empty())
            return false;
        bool antwort = Antworten.front();
        Antworten.pop_front();
        return antwort;
    };
    Meldungen.FragenVorVerlust = [](const Text &text, const Text &titel) {
        return Meldungen.Fragen(text, titel);
    };
    Betrachter.Öffnen = [this](const fs::path &datei) {
        GeöffneteDateien.push_back(datei);
        return ZumÖffnenGibtEsEtwas;
    };
    Betrachter.Verweis = [this](const Text &verweis) {
        GeöffneteVerweise.push_back(verweis);
        return ZumÖffnenGibtEsEtwas;
    };
    Laufwerke.Programmverzeichnis = [this] { return Festplatte; };
    Laufwerke.Diskette = [this] { return Diskette; };
    Laufwerke.Ausweichverzeichnisse = [this] { return std::vector<fs::path>{wurzel / "Ausweich"}; };
    Laufwerke.Wurzeln = [this] {
        return std::vector<Wurzel>{{"Festplatte", Festplatte}, {"Diskette", Diskette}};
    };
}

Prüfstand::~Prüfstand()
{
    Uhr = uhrZuvor;
    Zufall = zufallZuvor;
    Meldungen = meldungenZuvor;
    Laufwerke = laufwerkeZuvor;
    Betrachter = betrachterZuvor;
    std::error_code egal;
    fs::remove_all(wurzel, egal);
}

void Prüfstand::DateiSchreiben(const fs::path &pfad, const std::string &bytes)
{
    std::ofstream datei(pfad, std::ios::binary);
    datei << bytes;
}

std::string Prüfstand::DateiLesen(const fs::path &pfad)
{
    std::ifstream datei(pfad, std::ios::binary);
    return {std::istreambuf_iterator<char>(datei), {}};
}

int MeßdienerAnlegen(const Text &vorname, const Text &nachname, int größe, const Text &geschlecht)
{
    int j = Meßdiener.Anzahl;
    Meßdiener.Vorname[j] = vorname;
    Meßdiener.Nachname[j] = nachname;
    Meßdiener.Größe[j] = größe;
    Meßdiener.Geschlecht[j] = geschlecht;
    Meßdiener.Qualifikation[j] = "jjjjjj";
    Meßdiener.Wochendienst[j] = "nnnnnnnn";
    ++Meßdiener.Anzahl;
    return j;
}

int MesseMitDienern(Datum datum, int dienerzahl, Datum uhrzeit)
{
    int i = Messe.Anzahl;
    Messe.Datum[i] = datum;
    Messe.Uhrzeit[i] = uhrzeit;
    Messe.Wochentag[i] = WochentagName(datum);
    Messe.Messeart[i] = "Messe";
    Messe.Kennung[i] = "s";
    Messe.Dienerzahl[i] = dienerzahl;
    ++Messe.Anzahl;
    return i;
}

int HelferAnlegen(const Text &vorname, const Text &nachname, const Text &dienst1,
                  const Text &dienst2)
{
    int h = Helfer.Anzahl;
    Helfer.Vorname[h] = vorname;
    Helfer.Nachname[h] = nachname;
    Helfer.Dienst1[h] = dienst1;
    Helfer.Dienst2[h] = dienst2;
    ++Helfer.Anzahl;
    return h;
}

bool Kann(Fähigkeit fähigkeit)
{
    const fs::path ort = NeuesVerzeichnis();
    std::ofstream(ort / "datei") << "x";
    std::error_code fehler;
    bool kann = false;
    switch (fähigkeit) {
    case Fähigkeit::Schreibungen:
        kann = !fs::exists(ort / "DATEI");
        break;
    case Fähigkeit::Verweise:
        fs::create_symlink("datei", ort / "verweis", fehler);
        kann = !fehler;
        break;
    case Fähigkeit::Rechte:
        fs::permissions(ort / "datei", fs::perms(0640), fehler);
        kann = fs::status(ort / "datei").permissions() == fs::perms(0640);
        break;
    }
    fs::remove_all(ort);
    return kann;
}

} // namespace altardienst
