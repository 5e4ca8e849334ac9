// People from a table: what each row would change, before anything is written, and then the rows
// that were chosen.
#pragma once

#include "exchange/Spalten.h"

namespace altardienst {

struct Einleseauftrag {
    Personenart Art = Personenart::Diener;
    std::vector<std::vector<Text>> Zeilen = {}; // without headings
    std::vector<int> Nummern = {};              // theirs in the file; without, from 1
    Zuordnung Spalten = {};                     // of each column
    bool LeeresLöscht = false;                  // an empty field empties what is in the tables
    bool GruppenAnlegen = false;                // a group that is not there yet is made
    bool KopfFehlt = false;                     // no row is known to be the one of the headings
};

struct Feldänderung {
    int Spalte;
    Text Alt; // empty for a new person
    Text Neu;

    bool operator==(const Feldänderung &) const = default;
};

/// What becomes of one row.
struct Vorschauzeile {
    enum class Stand { Neu, Geändert, Gleich, Zweifelhaft };

    int Zeile = 0; // in the file
    Stand Was = Stand::Neu;
    int Datensatz = -1;               // whose; -1: nobody yet
    Text Vorname, Nachname;           // of the row
    std::vector<Feldänderung> Felder; // what "Übernehmen" writes
    std::vector<Text> Zweifel;        // what it leaves alone and why, a sentence each
    bool Unmöglich = false;           // the row cannot be taken at all

    bool IstNeu() const { return Datensatz < 0; }
    bool operator==(const Vorschauzeile &) const = default;
};

/// A person is the record with the same names; where several have them, there or in the file, the
/// one of these with the same birthday. A field that cannot be read stays as it is; a row with one
/// can be taken all the same. Who is new with one name only, or with the name of another one, is a
/// doubt: in most lists a gap or a repetition, but the tables may hold such people.
std::vector<Vorschauzeile> EinlesenPrüfen(const Einleseauftrag &auftrag);

/// The sentence about rows that find no room in the tables; empty if all do.
Text KeinPlatzFür(const Einleseauftrag &auftrag, const std::vector<Vorschauzeile> &gewählte);

struct Eingelesen {
    int Neu = 0;
    int Geändert = 0;
    int Gruppen = 0;
};

/// Writes these rows, and the groups they need. A new person is a record after the last one, as in
/// the dialogs that add; nobody is renamed. Rows that are impossible, and those for which there is
/// no room, stay out.
Eingelesen Einlesen(const Einleseauftrag &auftrag, const std::vector<Vorschauzeile> &gewählte);

/// "Geburtstag: 6.1.2012 → 7.1.2012; ..." or what the row brings, in one line.
Text ÄnderungenText(Personenart art, const Vorschauzeile &zeile);

} // namespace altardienst
