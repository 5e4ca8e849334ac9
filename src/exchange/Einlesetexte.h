// What the window that reads people in says.
#pragma once

#include "core/Tabellentext.h"
#include "exchange/Einlesen.h"

namespace altardienst {

/// While no file is chosen.
extern const char *const Einlesesatz;

/// What is wrong with the file, or how much of it is used.
Text Lagesatz(const Text &dateiname, const Tabellenblatt &blatt, const Einleseauftrag &auftrag);

/// The heading of a column, or its number; and the first thing that stands in it. These and the
/// name of a row are cut to 200 characters.
Text Spaltenname(const Tabellenblatt &blatt, int kopf, std::size_t spalte);
Text Beispiel(const std::vector<std::vector<Text>> &zeilen, std::size_t spalte);

/// "+ neu", "~ geändert", "= gleich", "! zweifelhaft": the sign tells them apart without colour.
Text Standwort(Vorschauzeile::Stand stand);

Text Zeilenname(const Vorschauzeile &zeile);
/// In full, as the tip alone shows all of it: no field that is taken is longer than 250 characters.
Text Zeileninhalt(Personenart art, const Vorschauzeile &zeile);

/// How many rows are what, how many of them are ticked, and what stands against taking them.
Text Zahlensatz(const std::vector<Vorschauzeile> &vorschau, std::size_t gewählte,
                const Text &keinPlatz);

/// "2 neu, 1 geändert, eine neue Gruppe".
Text Ergebnistext(const Eingelesen &ergebnis);

} // namespace altardienst
