// Undo and redo of whole steps, in memory.
#pragma once

#include "values/Text.h"

#include <cstddef>
#include <functional>

namespace altardienst {

/// From now on steps are kept, with the tables as they are as the ground of all. Forgets every
/// earlier step.
void SchritteBeginnen();

/// Forgets all steps; from now on none is kept.
void SchritteBeenden();

/// Runs an action whose changes the user takes back and repeats as one, under this name: "Meßdiener
/// nach Nachname sortieren". Around routines, never in them. What is changed within another step
/// belongs to that; an action that fails or changes nothing needs no care, nor does one while no
/// steps are kept.
///
/// Copies nothing: what has changed is found out by the next `TabellenBeobachten`. What was changed
/// outside of steps before becomes a step of its own ("Messe Sa 28.11.2026 18:30 ändern"), so that
/// taking back never takes along what was done by hand.
void Schritt(const Text &name, const std::function<void()> &tun);

/// Looks for what has changed since the last time, and makes a step of it: the one that has just
/// run, or one of changes made by hand. Run whenever the program waits for the user. Changes of one
/// record that follow each other become one step, until `ÄnderungAbschließen`. Where the user is in
/// the tables, and what is worked out anew before each use, is no change.
void TabellenBeobachten();
void ÄnderungAbschließen();

/// Whether nothing can have changed since the last look, so that a step need not look again; set
/// where that is known. By default it is not.
extern std::function<bool()> TabellenUnberührt;

/// Whether a step has run that no look has followed yet.
bool SchrittAusstehend();

/// The name of the step that would be taken back or repeated; empty: none.
Text LetzterSchritt();
Text NächsterSchritt();

/// How many steps there have been until the one that would be taken back, also those that are
/// forgotten: so a window knows which steps are its own.
std::size_t Schrittstelle();

/// Runs whenever one of these names may be another.
extern std::function<void()> SchritteGeändert;

/// Puts the tables back to where they were before the last step, or after the next one; returns its
/// name. So with `SchleifenZähler` and all that is never saved. Where the user is in the tables
/// stays, unless the step has moved him or there is no such record. Loads nothing, saves nothing.
Text SchrittZurücknehmen();
Text SchrittWiederholen();

/// Steps are forgotten from the oldest on once there are more than this many or they take more
/// room, but never the last twenty.
constexpr std::size_t MeisteSchritte = 100;
constexpr std::size_t WenigsteSchritte = 20;
constexpr std::size_t PlatzFürSchritte = std::size_t{40} * 1024 * 1024;

} // namespace altardienst
