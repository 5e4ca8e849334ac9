// What all reports share: the margins, the opening, the lines, and the page break rule.
#pragma once

#include "platform/Drucker.h"
#include "values/Int16.h"

#include <functional>
#include <vector>

namespace altardienst {

// Page geometry in twips, from the settings, in single precision.
Single LinkerRand();
Single ObererRand();
Single UntereGrenze();

/// Shows the print dialog and runs the report with its mode. Cancelling ends it before any output;
/// a failure during the report stops it at once, without a message and without output.
void BerichtDrucken(const Druckanfrage &anfrage, const std::function<void(int modus)> &bericht);

/// Which font a report begins with: the one from the settings, or the one set in the printer.
enum class Titelschrift { AusKonfig, Vorige };

/// The opening of a report: its title lines in the heading font, underlined and bold, an empty
/// line; then it sets the body font.
void BerichtEröffnen(const std::vector<Text> &titel,
                     Titelschrift schrift = Titelschrift::AusKonfig);

/// The body font without attributes, as labels are printed.
void Grundschrift();

/// Prints one line at the left margin; without text, the blank line between rows.
void ZeileDrucken(const Text &text);
void Leerzeile();

/// The page break rule, run after each row: breaks the page if `k` more lines, of the average
/// height of the `Zeilen` lines on this page, would pass the lower limit. `Zeilen` is the report's
/// own count of lines on the page and starts again at 0. Failure 11 if no line has been counted
/// yet.
void SeitePrüfen(Int16 &Zeilen, double k);

} // namespace altardienst
