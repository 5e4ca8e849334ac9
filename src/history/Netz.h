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
    bool OhneKomma = false;            // the whole of a file torn by a comma is a state
    bool SpeichernAbgebrochen = false; // the files may be of two saves
    bool DavorAufgehoben = false;      // those from before are a state
    std::optional<Stand> Notfall;      // an emergency that waits for a decision
    Text Gescheitert;                  // what the net could not do, in words; empty: nothing
};

const Netzlage &Netz();

/// Runs whenever what `Netz` tells has changed; without windows it does nothing.
extern std::function<void()> NetzlageGeändert;

/// What the line of the start dialog says; empty if there is nothing to say.
Text Starthinweis();

/// The same in a few words, for as long as it holds, and what the net could not do.
Text Dauerhinweis();

/// Once, at the start, after the file system is set up and before anything is read: keeps the eight
/// files as they lie there, finds out whether the last save came to its end, and from then on
///
/// - keeps the files aside during each save to the hard disk, and from the first file that is
///   copied over one of them until they are loaded: in a mark beside the states, which is there
///   from before the first file is written until all are on the medium;
/// - makes a state of them then, if they were copied over, or if the tables that were saved had not
///   come from a whole load;
/// - keeps the tables as an emergency if a save fails;
/// - looks after each load how far it got.
///
/// If another run works in the same directory, what it is just doing is left alone.
///
/// Never fails, and whatever it cannot do changes nothing else.
void NetzSpannen();

/// From here on the tables are worth more than the files: they survive a bad end of the program.
/// Does nothing without the net.
void ArbeitBeginnt();

/// At a good end: puts the file system and the end of a load back as they were.
void NetzEinholen();

/// Before tables are loaded from elsewhere: keeps the files and the tables. Does nothing without
/// the net. Never fails.
void VorWechselSichern();

/// A save has ended with a failure, whatever its reason: keeps the tables as an emergency, unless
/// the net has seen it fail and done so. Does nothing without the net. Never fails.
void SpeichernIstGescheitert();

/// Brings a state back: keeps the files and the tables as they are, copies its files over them
/// under the names they are stored by, and loads. A state that lacks a file is refused (failure
/// 53), as is one of which a file cannot be read (75). Failures 61, 75, 76: the files are as
/// before, or if even that fails, those from before are a state, and `Netz().SpeichernAbgebrochen`
/// tells so.
void StandZurückholen(const Stand &stand);

} // namespace altardienst
