// The locale: how dates and numbers look on the screen, on paper and in the files.
#pragma once

namespace altardienst {

/// German by default, because the files on disk are German. A file written under another locale
/// cannot be read back under this one.
struct GebietsschemaDienst {
    enum Folge { TagMonatJahr, MonatTagJahr, JahrMonatTag };

    Folge Datumsfolge = TagMonatJahr;
    char Datumstrenner = '.';
    char Zeittrenner = ':';
    char Dezimaltrenner = ',';
    char Tausendertrenner = '.';
};

extern GebietsschemaDienst Gebietsschema;

} // namespace altardienst
