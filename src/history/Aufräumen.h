// What may go from the place of the states: states that are no longer needed, and what a run that
// was killed has left there.
#pragma once

#include "history/Stände.h"

#include <functional>
#include <vector>

namespace altardienst {

/// The states that may go: all but those of the last 7 days, the last of each day for 60 days, the
/// last of each month for 5 years, and the newest 10. Their order does not matter.
std::vector<Stand> Entbehrliche(std::vector<Stand> stände, Datum heute);

/// Removes the states that may go, but none that waits for a decision, nor the newest whose files
/// load whole, nor the newest of these in which there are people or masses. Their age is reckoned
/// from the tenth newest, so that a clock set wrong for some days costs none. How many went. Never
/// fails.
int StändeAufräumen();

/// Runs something that takes room on the medium, and if there is none, once more if states could go
/// for it.
void MitPlatz(const std::function<void()> &schritt);

// Directories that are no states yet, or no longer. Each run has its own.

enum class Rest { InArbeit, ZuLöschen, NotfallInArbeit, Marke };

/// Its name, for this run.
Text Restname(Rest rest);

/// Whether a name is one of these, of whatever run.
bool IstRest(const Text &name, Rest rest);

/// Removes what runs that were killed have left half written or half deleted; only if this run is
/// alone. Never fails.
void ResteEntfernen();

/// Room on the medium, taken while there is some, for an emergency on a full one.
std::filesystem::path Platzreserve();
void PlatzReservieren(); // never fails
void PlatzFreigeben();   // never fails

} // namespace altardienst
