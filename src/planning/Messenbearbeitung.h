// What the mass list does to the tables, and what it says of a slot.
#pragma once

#include "core/Plätze.h"

#include <array>

namespace altardienst {

/// Moves the fixed entries of mass `i` to a new date and time with it, given as they stand on the
/// screen. Failure 13 if there is such an entry and one of the texts is no date or time.
void FesteEintraegeMitziehen(int i, const Text &datum, const Text &uhrzeit);

/// Takes mass `i` out of the table: every later record moves up by one, with everything but the
/// services of its slots, which are written anew before their next use.
void MesseVorziehen(int i);

/// How often each service with slots of its own is wanted, as the dialogs of a mass count them; in
/// the order of `BesondereDienste`.
using Dienstwünsche = std::array<int, BesondereDienste.size()>;

/// One text for each slot, from slot 1 on.
using Slottexte = std::array<Text, MesseTabelle::HöchsterSlot>;

/// The labels of the slots: the service that each will get, then "Meßdiener 7 :" and so on.
Slottexte SlotBeschriftungen(const Dienstwünsche &wünsche);

} // namespace altardienst
