// What a load has done, seen from outside: it never reports a failure itself.
#pragma once

#include "values/Text.h"

#include <functional>
#include <vector>

namespace altardienst {

struct Ladebericht {
    std::vector<Text> Gelesen; // names of the files that were read, in order, also a bad one
    Text Zuletzt;              // the file that was to be read last, whether it is there or not
    bool Abgebrochen = false;  // the load took the way that it takes after a failure
};

/// Runs something that may load, and watches the file system meanwhile: a load from the hard disk
/// that fails makes the program's directory, a complete one does not.
Ladebericht LadenMitBericht(const std::function<void()> &laden);

/// What there is to say of a load from the hard disk.
Text Festplattenbericht(const Ladebericht &bericht);

/// What there is to say of a load from the diskette; empty if nothing was read from it.
Text Diskettenbericht(const Ladebericht &bericht);

} // namespace altardienst
