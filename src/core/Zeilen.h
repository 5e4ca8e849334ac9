// The line format of the data files: one value per line, Windows-1252, CR LF.
#pragma once

#include "values/Datum.h"
#include "values/Int16.h"
#include "values/Spalte.h"
#include "values/Text.h"

#include <string>
#include <string_view>

namespace altardienst {

/// Takes the lines of a file one by one. Reading past the end is failure 62.
class Zeilenleser {
  public:
    explicit Zeilenleser(std::string_view inhalt) : rest(inhalt) {}

    bool AmEnde() const { return rest.empty(); }

    std::size_t Übrig() const { return rest.size(); } // bytes

    /// The line up to its end, with commas, quotes and blanks as they are.
    std::string_view Zeile();

    /// The next delimited value: leading blanks are skipped; a value in double quotes runs to the
    /// next double quote, any other to the first comma or line end.
    std::string_view Abgegrenzt();

  private:
    void NichtAmEnde() const;

    std::string_view rest;
};

/// Reads fields one by one, converting each to its type, with either of the two ways to take a
/// line.
class Feldleser {
  public:
    using Art = std::string_view (Zeilenleser::*)();

    explicit Feldleser(Zeilenleser &zeilen, Art art = &Zeilenleser::Zeile)
        : zeilen(zeilen), art(art)
    {
    }

    void operator()(Text &wert);
    void operator()(Int16 &wert);
    void operator()(Int32 &wert);
    void operator()(Single &wert);
    void operator()(Datum &wert);
    void operator()(Flagfeld feld); // an empty line gives the default

  private:
    Zeilenleser &zeilen;
    Art art;
};

/// Appends fields to the content of a file, one line each. Texts are neither quoted nor escaped.
class Feldschreiber {
  public:
    explicit Feldschreiber(std::string &inhalt) : inhalt(inhalt) {}

    void operator()(const Text &wert);
    void operator()(Int16 wert) { (*this)(Int32(wert)); }
    void operator()(Int32 wert);
    void operator()(Single wert);
    void operator()(Datum wert);
    void operator()(Flagfeld feld) { (*this)(feld.Wert); }

  private:
    std::string &inhalt;
};

} // namespace altardienst
