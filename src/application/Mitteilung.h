// What the program tells beside its windows, in the status bar of the main window: no message box,
// nothing to confirm.
#pragma once

#include "values/Text.h"

#include <utility>
#include <vector>

namespace altardienst {

/// Tells for some seconds what was done last, with the time of day before it: "14:05 gespeichert".
/// While another window is in front, it waits for the main window. Called by a form after a routine
/// has returned; the routine knows nothing of it.
void Mitteilen(const Text &was);

/// Tells something that lasts, in a section of its own at the right end of the bar, until the
/// section is told anew; an empty text removes it.
void DauerndMitteilen(const Text &abschnitt, const Text &text);

struct Mitteilungsstand {
    Text Letzte;                                // with its time; empty: nothing yet
    std::vector<std::pair<Text, Text>> Dauernd; // name and text of a section, in order of arrival
};

/// What was told so far, also before there was a main window.
Mitteilungsstand &Mitteilungen();

} // namespace altardienst
