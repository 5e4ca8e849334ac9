// Tables as text: what spreadsheets and other programs write, with fields by semicolons, commas or
// tabs, and what they open right on a double click.
#pragma once

#include "values/Text.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace altardienst {

// No table that is read in is larger. Whoever reads a file looks at its size first.
constexpr std::uintmax_t GrößteTabelle = std::uintmax_t{16} << 20; // bytes
constexpr std::size_t MeisteTabellenspalten = 256;
constexpr std::size_t MeisteTabellenzeilen = 5000;

/// What stands for a character that the bytes of a file do not give.
inline constexpr std::string_view KeinZeichen = "\xEF\xBF\xBD";

/// The text of a file without the mark of its encoding: UTF-8, UTF-16 if it has the mark, and the
/// code page of the eight files for what is neither. A byte that is wrong in what is UTF-8
/// otherwise becomes `KeinZeichen`.
Text TextDerDatei(std::string_view bytes);

/// Semicolon, tab or comma: by which the first rows fall into most columns, the same number each.
/// Of those that do equally well the one named first.
char TrennerIn(std::string_view text);

/// Takes the rows of a text one by one. A field in quotes may hold the separator, line ends and,
/// doubled, quotes; a quote that nothing closes is a character like any other. Lines end in CR, LF
/// or both; those without a character are passed over.
class Tabellenleser {
  public:
    Tabellenleser(std::string_view text, char trenner) : rest(text), trenner(trenner) {}

    /// Goes to the next row; false if there is none.
    bool Weiter();

    /// At most one more than `MeisteTabellenspalten`: of a longer row the first ones and one other.
    const std::vector<Text> &Felder() const { return felder; }
    std::string_view Roh() const { return roh; } // the row as it stands in the text

    /// The number of the row as a spreadsheet counts: from 1, empty lines too, a line end in quotes
    /// not.
    int Nummer() const { return nummer; }

  private:
    void ZeileTeilen();
    std::size_t FeldLesen(std::size_t von, Text &feld);

    std::string_view rest;
    char trenner;
    std::vector<Text> felder;
    std::string_view roh;
    int nummer = 0;
};

/// A table that was read in.
struct Tabellenblatt {
    std::vector<std::vector<Text>> Zeilen; // at least one field each
    std::vector<int> Nummern; // theirs, as a spreadsheet that opens the file shows them
    Text Mangel;              // why there are no rows, as a sentence
};
Tabellenblatt TabelleLesen(std::string_view bytes);

/// The sentence about a file that is larger than `GrößteTabelle`.
Text ZuGroßeTabelle();

// Writing: the mark, by which spreadsheets know UTF-8, and then rows of fields by `Feldtrenner`,
// each with `Zeilenende`.
inline constexpr std::string_view Utf8Marke = "\xEF\xBB\xBF";
inline constexpr char Feldtrenner = ';';
inline constexpr std::string_view Zeilenende = "\r\n";

/// A number, a date, or whatever the spreadsheet may make of it; in quotes if it needs them.
void FeldAnhängen(std::string &bytes, std::string_view feld);

/// A text that is to stay what it is. A spreadsheet takes some for a number ("0170123"), a date
/// ("3-4") or a formula ("+49 170"): these are written as a formula that gives the text
/// (="0170123"), which it shows and saves as the text alone.
void TextfeldAnhängen(std::string &bytes, std::string_view text);

/// What was meant by a field: the text of such a formula, or else what stands there without the
/// blanks around it.
Text TextDesFelds(std::string_view feld);

} // namespace altardienst
