// What the mass list does to the tables, and what it says of a slot.
#pragma once

#include "core/Datum.h"
#include "core/Text.h"

#include <array>

namespace altardienst {

/// Moves the fixed entries of mass `i` to a new date and time with it.
void FesteEintraegeMitziehen(int i, Datum datum, Datum uhrzeit);

/// Takes mass `i` out of the table: every later record moves up by one, with everything but the
/// services of its slots, which are written anew before their next use.
void MesseVorziehen(int i);

/// The wanted services of a mass, as its dialogs count them.
struct Dienstwünsche {
    int Gabenbereitung;
    int Leuchter;
    int Flambeau;
    int Weihrauch;
    int Kreuzträger;
};

/// The labels of the 20 slots: the service that each will get, then "Meßdiener 7 :" and so on.
std::array<Text, 20> SlotBeschriftungen(const Dienstwünsche &wünsche);

} // namespace altardienst
