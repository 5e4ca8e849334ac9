// Address labels on a sheet of the chosen format, starting anywhere on a partly used sheet.
#pragma once

#include "values/Int16.h"
#include "values/Text.h"

#include <array>
#include <functional>
#include <optional>

namespace altardienst {

/// The three lines of a label.
using Anschrift = std::array<Text, 3>;

/// A place on the sheet as people count it, row and column from 1.
struct Etikettenplatz {
    Int16 Reihe;
    Int16 Spalte;
};

/// The people a run of labels is for.
struct Etikettenleute {
    int Anzahl;                             // of the table
    std::function<bool(int person)> Gehört; // null: everybody
    std::function<altardienst::Anschrift(int person)> Anschrift;
    Text Name = {}; // of the run, in the print dialog
};

Etikettenleute EtikettenAllerMeßdiener();
Etikettenleute EtikettenDerGruppe(const Text &gruppe);
Etikettenleute EtikettenAllerHelfer();

/// Prints a label for each person on sheets of the format `Etikett.Anzahl`. After the print dialog
/// `anfang` is asked where the first one goes; if it fails, the report fails. Returns the proposed
/// place to continue, whose column may lie beyond the sheet, or nothing if nothing was printed. A
/// format without rows or columns is a printer error.
std::optional<Etikettenplatz> EtikettenDrucken(const Etikettenleute &leute,
                                               const std::function<Etikettenplatz()> &anfang);

} // namespace altardienst
