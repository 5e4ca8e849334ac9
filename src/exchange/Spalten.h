// The columns of the lists of people as they go out and come in: what they are called, by what
// other names they are known, and how a value becomes text and text a value.
#pragma once

#include "values/Text.h"

#include <array>
#include <string_view>
#include <vector>

namespace altardienst {

/// Whom a list is about.
enum class Personenart { Diener, Helfer };

/// What a field of a file says: the value as `Listenspalte::Wert` would give it, or why it cannot
/// be taken, as a sentence. Both: it can, if somebody has looked at it.
struct Feldlesung {
    Text Wert;
    Text Zweifel = {};
};

struct Listenspalte {
    Text Name;                   // in the first row
    std::vector<Text> Auch = {}; // other names, in the form of `Vergleichsform`
    bool IstText = false;        // whose value a spreadsheet must not take for anything else
    bool LeerHeißtNein = false;  // a row of ticks: where there is none, the answer is no

    Text (*Wert)(int i) = nullptr; // of a record; empty if it is not set
    Feldlesung (*Lesen)(const Text &feld) = nullptr;
    void (*Setzen)(int i, const Text &wert) = nullptr; // what `Wert` or `Lesen` gave
};

/// In the order in which they are written.
const std::vector<Listenspalte> &SpaltenFür(Personenart art);

inline const Listenspalte &SpalteMit(Personenart art, int nr)
{
    return SpaltenFür(art).at(static_cast<std::size_t>(nr));
}

/// How many there are. A file may claim any number of records.
int Vorhandene(Personenart art);

// Both lists begin with name and address.
constexpr int SpalteVorname = 0;
constexpr int SpalteNachname = 1;
constexpr int SpaltePlz = 3;
constexpr int SpalteOrt = 4;

/// The number of a column, by its name.
int SpalteNamens(Personenart art, std::string_view name);

/// Letters and digits alone, small, without umlauts: "Straße/Haus-Nr." is "strassehausnr".
Text Vergleichsform(std::string_view text);

// A column of a file is assigned to one of those above, to two of them at once, or to nothing.
constexpr int KeineSpalte = -1;
constexpr int GanzerName = -2; // "Adler, Anna" or "Anna Adler"
constexpr int PlzUndOrt = -3;  // "48999 Beispielort"
using Zuordnung = std::vector<int>;

/// Two columns of ours in one of a file.
struct Doppelspalte {
    int Nummer; // as which it is assigned
    const char *Name;
    int Eine;
    int Andere;
    void (*Teilen)(const Text &feld, Text &eine, Text &andere);
};
extern const std::array<Doppelspalte, 2> Doppelspalten;

/// Whether two columns of a file cannot mean both of these.
bool SchließenSichAus(int eine, int andere);

/// What the headings of a file mean: each column is meant at most once, the surest first.
Zuordnung ZuordnungNach(const std::vector<Text> &überschriften, Personenart art);

/// The row in which the headings stand: that of the first ones from which most columns follow;
/// -1 if there is none.
int Kopfzeile(const std::vector<std::vector<Text>> &zeilen, Personenart art);

/// "Anna Adler" or "Adler, Anna" as first name and surname.
void NamenTeilen(const Text &ganz, Text &vorname, Text &nachname);

/// "48999 Beispielort", "D-48999, Beispielort" as postal code and town; without a number all of it
/// is the town.
void PlzUndOrtTeilen(const Text &ganz, Text &plz, Text &ort);

} // namespace altardienst
