// Conversions between text and values, and the rounding they share. No other code parses or formats
// dates and numbers.
#pragma once

#include "values/Datum.h"
#include "values/Int16.h"
#include "values/Text.h"

#include <string_view>

namespace altardienst {

/// To the nearest whole number, an exact half to the even neighbour. Failure 6 outside Int16.
Int16 GerundetInt16(double wert);

/// Numbers as the locale writes them, ignoring blanks around them; a fraction is rounded as above
/// if a whole number is wanted. Failure 13 if the text is not a number, 6 if it is out of range.
Int16 Int16Lesen(std::string_view text);
Int32 Int32Lesen(std::string_view text);
Single SingleLesen(std::string_view text);

/// A date, a time of day, or both with a blank between them, in the order of the locale; the
/// separators ".", "/" and "-" are interchangeable. Years 0 to 29 are 20xx, 30 to 99 are 19xx.
/// Failure 13 otherwise.
Datum DatumLesen(std::string_view text);

/// The short form: the date alone if the time is zero, the time alone if the date is zero,
/// "00:00:00" for 0, otherwise both.
Text DatumText(Datum datum);

/// Always the date, two digits each for day and month and four for the year.
Text KurzesDatum(Datum datum);

/// Always the time of day, hours, minutes and seconds.
Text LangeZeit(Datum datum);

/// Hours and minutes with two digits each, as the plan prints them.
Text StundenUndMinuten(Datum datum);

/// The digits with a "-" before a negative value.
Text ZahlText(int zahl);

/// Up to seven significant digits and the decimal separator of the locale.
Text ZahlText(Single zahl);

/// At least `ganze` digits before the decimal separator, padded with zeros, and `stellen` digits
/// after it; an exact half is rounded away from zero.
Text FesteStellen(double zahl, int ganze, int stellen);

/// Appends to `puffer` what the corresponding function above returns; for the files, where nearly a
/// hundred thousand values are written at once.
void DatumAnhängen(std::string &puffer, Datum datum);
void ZahlAnhängen(std::string &puffer, int zahl);
void ZahlAnhängen(std::string &puffer, Single zahl);

} // namespace altardienst
