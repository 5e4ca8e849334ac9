// Address labels on a sheet of the chosen format, begun anywhere on a partly used sheet.
#pragma once

#include "core/Int16.h"
#include "core/Text.h"

#include <array>
#include <functional>

namespace altardienst {

/// The three lines of a label.
using Anschrift = std::array<Text, 3>;

/// A place on the sheet as people count it, row and column from 1.
struct Etikettenplatz {
    Int16 Reihe;
    Int16 Spalte;
};

/// Whom a run of labels is for.
struct Etikettenleute {
    int Anzahl;                             // of the table
    std::function<bool(int person)> Gehört; // null: everybody
    std::function<altardienst::Anschrift(int person)> Anschrift;
};

Etikettenleute EtikettenAllerMeßdiener();
Etikettenleute EtikettenDerGruppe(const Text &gruppe);
Etikettenleute EtikettenAllerHelfer();

/// Prints a label for each of the people on sheets of the format `Etikett.Anzahl`, after the print
/// dialog. `platz` is where the first one goes and afterwards the proposal where to go on; a column
/// of the proposal may lie beyond the sheet. A format without rows or columns is a printer error.
/// If nothing came out, `platz` stays.
void EtikettenDrucken(const Etikettenleute &leute, Etikettenplatz &platz);

/// Brings a place onto the sheet of the chosen format.
void PlatzBegrenzen(Etikettenplatz &platz);

} // namespace altardienst
