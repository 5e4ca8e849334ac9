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

    Int16 Anzahl; // at least 1 once it was filled: without anybody it shows one blank row

    Spalte<Text> Vorname, Nachname;
    Spalte<Datum> Geburtstag;
    Spalte<Int16> Alter; // years
    Spalte<Text> Telefon, Straße;
    Spalte<Text> Ort; // postal code, blank, town

    auto Felder() { return std::tie(Vorname, Nachname, Geburtstag, Alter, Telefon, Straße, Ort); }
};

/// The servers of one length of membership.
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

/// From this number of years on a jubilee takes in all longer memberships.
constexpr int MeisteJubiläumsJahre = 15;

/// Fills `Geburtstagsliste` with the people born in a month (1 to 12), by the day of the month;
/// those of one day stand as in their tables, servers first. Whoever is both server and helper
/// stands there twice. Failure 9 with more people than rows.
void GeburtstageSuchen(Gruppende gruppe, Int16 GeburtsMonat);

/// Fills `Jubiläumsliste` with the servers of so many whole years, those who came first first.
/// Equal dates change places at each pass of the sort.
void JubiläenSuchen(Int16 JubiläumsJahre);

} // namespace altardienst
