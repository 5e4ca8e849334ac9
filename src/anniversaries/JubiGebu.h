// Who has a birthday in a month, and who has served for a number of years.
#pragma once

#include "core/tables.h"

namespace altardienst {

/// Whose birthdays are wanted.
enum class Gruppende { Alle, Messdien, Meßhelfer };

/// The people of one month.
struct GeburtstagslisteTabelle {
    static constexpr int HöchsterIndex = 600;
    template <class T> using Spalte = altardienst::Spalte<T, HöchsterIndex>;

    Int16 Anzahl; // at least 1 once filled: with nobody in it, it shows one blank row

    Spalte<Text> Vorname, Nachname;
    Spalte<Datum> Geburtstag;
    Spalte<Int16> Alter; // years
    Spalte<Text> Telefon, Straße;
    Spalte<Text> Ort; // postal code, blank, town

    auto Felder() { return std::tie(Vorname, Nachname, Geburtstag, Alter, Telefon, Straße, Ort); }
};

/// The servers who have been members for the same number of years.
struct JubiläumslisteTabelle {
    static constexpr int HöchsterIndex = 600;
    template <class T> using Spalte = altardienst::Spalte<T, HöchsterIndex>;

    Int16 Anzahl; // as above

    Spalte<Text> Vorname, Nachname;
    Spalte<Datum> Eintrittsdatum;
    Spalte<Int16> Jahre;
    Spalte<Text> Telefon, Straße;
    Spalte<Text> Ort; // postal code, blank, town

    auto Felder()
    {
        return std::tie(Vorname, Nachname, Eintrittsdatum, Jahre, Telefon, Straße, Ort);
    }
};

extern GeburtstagslisteTabelle Geburtstagsliste;
extern JubiläumslisteTabelle Jubiläumsliste;

/// A jubilee of this many years also takes in everyone who has been a member for longer.
constexpr int MeisteJubiläumsJahre = 15;

/// Fills `Geburtstagsliste` with the people born in a month (1 to 12), by day of the month; people
/// born on the same day keep the order of their tables, servers first. Someone who is both server
/// and helper is listed twice. Failure 9 if there are more people than rows.
void GeburtstageSuchen(Gruppende gruppe, Int16 GeburtsMonat);

/// Fills `Jubiläumsliste` with the servers who have been members for that many whole years, the
/// longest-serving first. Equal dates change places on each pass of the sort.
void JubiläenSuchen(Int16 JubiläumsJahre);

} // namespace altardienst
