// The table of the fixed entries and how it relates to the masses.
#pragma once

#include "core/tables.h"

#include <optional>

namespace altardienst {

/// Whether the dialog of the fixed entries is open; the one for a new entry then returns to it.
extern bool FesteZuordnungOffen;

/// Sets `MesseDienerFest.Index` of entries 0 to 100 to the number of servers of the mass of the
/// same date and time, or to 0 if there is none; the last such mass counts. Entries above 100 keep
/// their number.
void DienerzahlenBestimmen();

/// The number of servers of the last mass of this date and time.
std::optional<Int16> DienerzahlDerMesse(Datum datum, Datum uhrzeit);

/// Copies the services of the mass of this date and time into slots 1 to 20 of `dienste`, the first
/// service of the mass going to slot 1. Without such a mass nothing changes.
void DiensteDerMesse(Datum datum, Datum uhrzeit, MesseDienerFestTabelle::JeSlot &dienste);

/// Removes entry `i` from the table: every later one moves up with all its slots.
void FestenEintragLöschen(int i);

/// Whether there is an entry for this date and time.
bool HatFestenEintrag(Datum datum, Datum uhrzeit);

// Texts of the lists.

/// What stands for a whole group in a slot: split at the comma, it is a person whose first name is
/// "Gruppe".
Text Gruppentext(const Text &bezeichnung);

/// Date, time and kind of mass `i`.
Text Messentext(int i);

/// Whether the text is a server or a group as the lists show them. The blank records after the last
/// ones count too, so "," and ",Gruppe" may pass.
bool IstZuordnung(const Text &text);

/// Whether the text is date and time of a mass, with or without its kind. Looks at masses 0 to
/// `SchleifenZähler`, whatever the last shared routine left in it. Failure 9 if that goes beyond
/// the table.
bool IstMesse(const Text &text);

} // namespace altardienst
