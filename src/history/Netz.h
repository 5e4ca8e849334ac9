// The net below loading and saving: what they do stays as it is, and what they could lose is kept
// aside. It hangs on the file system and on the end of a load; no routine knows of it.
#pragma once

#include "history/Stände.h"

#include <functional>
#include <optional>

namespace altardienst {

/// What there is to tell beside the windows.
struct Netzlage {
    Ladebefund Befund;                 // of the latest load from the hard disk
    bool OhneKomma = false;            // the newest state is the whole of a file torn by a comma
    bool SpeichernAbgebrochen = false; // the files may be of two saves
    std::optional<Stand> Notfall;      // an emergency that waits for a decision
    Text Gescheitert;                  // why a state could not be written; empty: it could
};

const Netzlage &Netz();

/// Runs whenever what `Netz` tells has changed; without windows it does nothing.
extern std::function<void()> NetzlageGeändert;

/// What the line of the start dialog says; empty if there is nothing to say.
Text Starthinweis();

/// The same in a few words, for as long as it holds, and a state that could not be written.
Text Dauerhinweis();

/// Once, at the start, after the file system is set up and before anything is read: keeps the eight
/// files as they lie there, finds out whether the last save came to its end, and from then on
///
/// - keeps the files aside during each save to the hard disk: in the directory "Speichern" beside
///   the states, which is there from before the first file is written until all eight are on the
///   medium,
/// - keeps the tables as an emergency if a save fails,
/// - looks after each load how far it got.
///
/// Never fails, and whatever it cannot do changes nothing else.
void NetzSpannen();

/// From here on the tables are worth more than the files: they survive a bad end of the program.
/// Does nothing without the net.
void ArbeitBeginnt();

/// At a good end: puts the file system and the end of a load back as they were.
void NetzEinholen();

/// What is to be kept before something else takes its place.
enum class Vorher { Dateien, DateienUndTabellen };

/// Before files are copied in or loaded from elsewhere: keeps what is there. Does nothing without
/// the net. Never fails.
void VorWechselSichern(Vorher was);

/// Brings a state back: keeps the files and the tables as they are, copies its files over them
/// under the names they are stored by, and loads. A state that lacks a file is refused (failure
/// 53), as is one of which a file cannot be read (75). Failures 61, 75, 76: what has been copied
/// until then lies in the newest state but one, or there is nothing copied yet.
void StandZurückholen(const Stand &stand);

} // namespace altardienst
