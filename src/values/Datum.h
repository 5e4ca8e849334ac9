// Dates and times of day: a day count with the time as its fraction.
#pragma once

#include "values/Text.h"

#include <array>

namespace altardienst {

/// Whole part: days since 30.12.1899; fraction: time of day. 0 means not set. A date field holds a
/// whole number, a time field a number from 0 up to but not including 1.
using Datum = double;

constexpr int SekundenProTag = 86400;

struct Kalendertag {
    int Jahr;  // 100 to 9999
    int Monat; // 1 to 12
    int Tag;   // 1 to 31
};

/// The day count of a calendar day. Failure 13 if there is no such day.
Datum DatumAus(Kalendertag tag);

/// The calendar day of a date. Failure 6 outside the years 100 to 9999.
Kalendertag KalendertagVon(Datum datum);

/// A time of day from whole seconds (0 to 86399). Times are made only here, so that two times with
/// the same text are equal.
constexpr Datum ZeitAus(int sekunden)
{
    return static_cast<double>(sekunden) / SekundenProTag;
}

/// The time of day in whole seconds, 0 to 86399.
int SekundenVon(Datum datum);

/// The time of day some seconds later (or earlier), wrapped around midnight.
Datum UhrzeitWeiter(Datum zeit, int sekunden);

/// Weekday number, 1 Sunday to 7 Saturday.
int Wochentag(Datum datum);

/// The names of weekdays 1 to 7.
inline constexpr std::array<Festtext, 7> Wochentagsnamen = {
    "Sonntag", "Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag", "Samstag"};

/// "Sonntag" for weekday 1 to "Samstag" for weekday 7.
Text WochentagName(Datum datum);

/// The same filled up with blanks to ten letters, as some dialogs write it; it does not compare
/// equal to the plain name.
Text WochentagNameGefüllt(Datum datum);

/// The date some months later (or earlier): the day stays, or becomes the last day of a shorter
/// month. Failure 6 outside the years 100 to 9999.
Datum MonateWeiter(Datum datum, int monate);

} // namespace altardienst
