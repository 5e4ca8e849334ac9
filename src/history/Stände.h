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

/// What a state is: the files as they lay there, or something that was kept beside them.
enum class Standart {
    Gewöhnlich,
    Notfall,         // the tables of a program that came to a bad end; nobody has decided yet
    NotfallErledigt, // it was brought back, or the work went on without it
    VorAbbruch,      // the files before a save that did not end; nobody has decided yet
    OhneKomma        // files that a comma has torn, as a whole
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

bool WartetAufEntscheidung(const Stand &stand);

/// The name of the directory of a state, and back; nothing for a directory that is none.
Text Standname(const Standzeit &zeit, Standart art);
std::optional<Stand> StandAusName(const Text &name);

/// The directory of the states in the program's directory; it may not be there yet.
std::filesystem::path Ständeverzeichnis();

/// All states, oldest first, also those in the places to which they give way.
std::vector<Stand> AlleStände();

/// Whether these files are in the newest state, not counting what was kept beside the files.
bool SchonAufgehoben(const Standinhalt &inhalt);

/// Keeps these files as a state of now, unless they are kept already or there is none; returns
/// whether there is a new one. Its time is never before that of the newest, whatever the clock
/// says. If there is no room, states that may go make some. Failures 61, 75, 76: then nothing else
/// has changed.
bool StandSichern(const Standinhalt &inhalt, Standart art = Standart::Gewöhnlich);

/// Keeps these files as an emergency: in the place of the states, or where that fails, in the
/// user's own places. The failure of the last one if all fail.
void NotfallSichern(const Standinhalt &inhalt);

/// A directory in the place of the states, or a state, becomes the newest state, which takes no
/// room. Failures 53, 75.
void AlsNeuestenStand(const std::filesystem::path &verzeichnis, Standart art);

/// No emergency, or no interrupted save, waits for a decision any more. Never fails.
void NotfälleErledigen();
void AbbrücheErledigen();

/// A few states of days to come were named by a clock that was wrong then: they become those of
/// today, in their order. If most are of days to come, it is today's clock that is wrong, and
/// nothing happens. Never fails.
void ZukünftigeUmbenennen();

/// Emergencies that had to give way come to the other states, if these have room now. Never fails.
void AusweichständeHolen();

/// Raises failure 76 if the program's own directory is not there: to make that is not our part.
std::filesystem::path StändeverzeichnisAnlegen();

/// Writes files into a new directory of this name in the place of the states: complete, on the
/// medium, or not at all. Failures 58 (the name is there), 61, 75, 76.
void VerzeichnisSchreiben(const std::filesystem::path &verzeichnis, const Text &name,
                          const Standinhalt &inhalt);

/// Makes a directory in the place of the states disappear at once and then deletes it. Failures 53,
/// 75: it is still there.
void VerzeichnisEntfernen(const std::filesystem::path &verzeichnis);

} // namespace altardienst
