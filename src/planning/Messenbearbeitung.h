// What the mass list does to the tables, and how it labels a slot.
#pragma once

#include "core/Plätze.h"

#include <array>

namespace altardienst {

/// When mass `i` moves to a new date and time, moves its fixed entries along; both are given as on
/// the screen. Failure 13 if there is such an entry and one of the texts is not a date or time.
void FesteEintraegeMitziehen(int i, const Text &datum, const Text &uhrzeit);

/// Removes mass `i` from the table: every later record moves up by one, with everything except the
/// services of its slots, which are rewritten before their next use.
void MesseVorziehen(int i);

/// How often each service with slots of its own is wanted, as the dialogs of a mass count them; in
/// the order of `BesondereDienste`.
using Dienstwünsche = std::array<int, BesondereDienste.size()>;

/// One text per slot, starting with slot 1.
using Slottexte = std::array<Text, MesseTabelle::HöchsterSlot>;

/// The labels of the slots: the service that each will get, then "Meßdiener 7 :" and so on.
Slottexte SlotBeschriftungen(const Dienstwünsche &wünsche);

} // namespace altardienst
