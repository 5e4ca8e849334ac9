// How a mass or a person is called where the user looks for one. No list that the program compares
// with uses these texts.
#pragma once

#include "core/tables.h"
#include "values/Datum.h"
#include "values/Text.h"

namespace altardienst {

/// "Sa 28.11.2026 18:30 Vorabendmesse", with the weekday of the date; "(leer)" for a record with
/// neither date nor time nor kind. Never fails: a date that no calendar has becomes "?".
Text Messenzeile(const MesseTabelle &messen, int messe);
inline Text Messenzeile(int messe)
{
    return Messenzeile(Messe, messe);
}

/// "Samstag, 28.11.2026, 18:30 Uhr, Vorabendmesse".
Text Messenüberschrift(const MesseTabelle &messen, int messe);
inline Text Messenüberschrift(int messe)
{
    return Messenüberschrift(Messe, messe);
}

/// "Sa 28.11.2026 18:30".
Text Terminzeile(Datum datum, Datum uhrzeit);

/// "Adler, Anna", the one name there is, or "(ohne Namen)".
Text Personenzeile(const Text &vorname, const Text &nachname);

} // namespace altardienst
