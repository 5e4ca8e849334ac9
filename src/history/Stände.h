// Earlier states of the eight files, each in a directory of its own below "Stände" in the program's
// directory. A state is complete or not there; nothing but this room knows of them.
#pragma once

#include "history/Standinhalt.h"
#include "values/Datum.h"

#include <filesystem>
#include <optional>
#include <tuple>
#include <vector>

namespace altardienst {

/// What a state is: the files as they lay there, or the tables of a program that came to a bad end.
enum class Standart {
    Gewöhnlich,
    Notfall,        // nobody has decided about it yet
    NotfallErledigt // it was brought back, or the work went on without it
};

/// When it was taken, in local time; the directory is named after it: "2026-11-21 12-00-05". Of
/// several from one second all but the first have a number: "2026-11-21 12-00-05 (2)".
struct Standzeit {
    Datum Tag = 0;
    int Sekunde = 0; // of the day
    int Nummer = 1;

    friend bool operator==(const Standzeit &, const Standzeit &) = default;
    friend auto operator<=>(const Standzeit &a, const Standzeit &b)
    {
        return std::tie(a.Tag, a.Sekunde, a.Nummer) <=> std::tie(b.Tag, b.Sekunde, b.Nummer);
    }
};

struct Stand {
    Standzeit Zeit;
    Standart Art = Standart::Gewöhnlich;
    std::filesystem::path Ort; // its directory
};

/// The name of the directory of a state, and back; nothing for a directory that is none.
Text Standname(const Standzeit &zeit, Standart art);
std::optional<Stand> StandAusName(const Text &name);

/// The directory of the states in the program's directory; it may not be there yet.
std::filesystem::path Ständeverzeichnis();

/// All states, oldest first, also those in the places to which they give way.
std::vector<Stand> AlleStände();

/// Keeps these files as a state of now, unless they are those of the newest or there is none;
/// returns whether there is a new one. Failures 61, 75, 76: then nothing has changed.
bool StandSichern(const Standinhalt &inhalt);

/// Keeps these files as an emergency: in the place of the states, or where that fails, in the
/// user's own places. The failure of the last one if all fail.
void NotfallSichern(const Standinhalt &inhalt);

/// No emergency waits for a decision any more. Never fails.
void NotfälleErledigen();

/// The states that may go: all but those of the last 7 days, the last of each day for 60 days, the
/// last of each month for 5 years, and the newest 10. Their order does not matter.
std::vector<Stand> Entbehrliche(std::vector<Stand> stände, Datum heute);

/// Removes the states that may go, but never the newest one whose files load whole. Never fails.
void StändeAufräumen();

/// Writes files into a new directory of this name in the place of the states: complete, on the
/// medium, or not at all. Failures 58 (the name is there), 61, 75, 76.
void VerzeichnisSchreiben(const std::filesystem::path &verzeichnis, const Text &name,
                          const Standinhalt &inhalt);

/// Makes a directory in the place of the states disappear at once and then deletes it. Failures 53,
/// 75.
void VerzeichnisEntfernen(const std::filesystem::path &verzeichnis);

/// The directory in which an emergency is written while the process dies.
constexpr const char *NotfallInArbeit = "Notfall unfertig";

/// Removes what a run that was killed has left half written or half deleted. Never fails.
void ResteEntfernen();

} // namespace altardienst
