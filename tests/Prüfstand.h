// The fixture of all tests: empty tables, and the outside world replaced by stand-ins that a test
// sets and reads.
#pragma once

#include "core/tables.h"
#include "platform/Betrachter.h"
#include "platform/Laufwerke.h"
#include "platform/Meldungen.h"
#include "platform/Uhr.h"
#include "platform/Zufall.h"
#include "values/Laufzeitfehler.h"

#include <gtest/gtest.h>

#include <deque>
#include <filesystem>
#include <string>
#include <vector>

namespace altardienst {

/// The number of the run-time failure that `f` ends with, 0 if it succeeds.
int NummerDesFehlers(auto f)
{
    try {
        f();
    } catch (const Laufzeitfehler &fehler) {
        return fehler.Nummer();
    }
    return 0;
}

struct Frage {
    Text Wortlaut;
    Text Titel;
};

/// Before each test: tables as when the program starts; today is Saturday, 21.11.2026, 12:00; the
/// random numbers are seeded with 1; messages are recorded; the program's directory and the
/// diskette are empty temporary directories.
class Prüfstand : public ::testing::Test {
  protected:
    Prüfstand();
    ~Prüfstand() override;

    /// Writes, reads and looks for a file in one of the temporary directories.
    static void DateiSchreiben(const std::filesystem::path &pfad, const std::string &bytes);
    static std::string DateiLesen(const std::filesystem::path &pfad);

    Datum Heute = 0;             // what the clock gives
    int Sekunden = 12 * 3600;    // what the clock gives
    int SekundenProAblesung = 0; // by which each reading moves it on

    std::vector<Text> GezeigteMeldungen;
    std::vector<Frage> GestellteFragen;
    std::deque<bool> Antworten; // to the next questions; none left: Nein

    std::filesystem::path Festplatte;
    std::filesystem::path Diskette;

    std::vector<std::filesystem::path> GeöffneteDateien; // with the desktop's programs
    std::vector<Text> GeöffneteVerweise;
    bool ZumÖffnenGibtEsEtwas = true;

  private:
    std::filesystem::path wurzel;
    UhrDienst uhrZuvor;
    ZufallDienst zufallZuvor;
    MeldungenDienst meldungenZuvor;
    LaufwerkeDienst laufwerkeZuvor;
    BetrachterDienst betrachterZuvor;
};

/// Makes a record of `Meßdiener` that may serve everywhere: all qualifications, no wishes to be
/// left out. Writes at `Meßdiener.Anzahl` and raises it; returns the record's number.
int MeßdienerAnlegen(const Text &vorname, const Text &nachname, int größe = 160,
                     const Text &geschlecht = "männlich");

/// A mass with a date and a number of servers, all counts of services 0, made at `Messe.Anzahl`.
int MesseMitDienern(Datum datum, int dienerzahl, Datum uhrzeit = ZeitAus(10 * 3600));

/// A helper with up to two services, made at `Helfer.Anzahl`.
int HelferAnlegen(const Text &vorname, const Text &nachname, const Text &dienst1,
                  const Text &dienst2 = "");

/// What a file system can do that not every one can; found out by trying.
enum class Fähigkeit {
    Schreibungen, // two spellings of a name beside each other, each found by its own
    Verweise,     // links
    Rechte,       // of the group and of others
};
bool Kann(Fähigkeit fähigkeit);

} // namespace altardienst

/// Ends a test that needs what this file system does not have.
#define NUR_WO_ES_GIBT(fähigkeit)                                                                  \
    if (!altardienst::Kann(altardienst::Fähigkeit::fähigkeit))                                     \
    GTEST_SKIP() << "this file system has no " #fähigkeit
