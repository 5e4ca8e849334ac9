// What the mass list does to the tables, and what it says of a slot.
#pragma once

#include "values/Datum.h"
#include "values/Text.h"

#include <array>

namespace altardienst {

/// Moves the fixed entries of mass `i` to a new date and time with it, given as they stand on the
/// screen. Failure 13 if there is such an entry and one of the texts is no date or time.
void FesteEintraegeMitziehen(int i, const Text &datum, const Text &uhrzeit);

/// Takes mass `i` out of the table: every later record moves up by one, with everything but the
/// services of its slots, which are written anew before their next use.
void MesseVorziehen(int i);

/// The wanted services of a mass, as its dialogs count them.
struct Dienstwünsche {
    int Gabenbereitung = 0;
    int Leuchter = 0;
    int Flambeau = 0;
    int Weihrauch = 0;
    int Kreuzträger = 0;
};

/// The labels of the 20 slots: the service that each will get, then "Meßdiener 7 :" and so on.
std::array<Text, 20> SlotBeschriftungen(const Dienstwünsche &wünsche);

} // namespace altardienst
