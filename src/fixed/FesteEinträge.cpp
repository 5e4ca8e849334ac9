// The table of the fixed entries and how it relates to the masses.
#include "fixed/FesteEinträge.h"

#include "core/Namen.h"
#include "core/Plätze.h"
#include "core/SchleifenZähler.h"
#include "core/Umwandlung.h"

namespace altardienst {

bool FesteZuordnungOffen = false;
namespace {

/// Calls `f` with each mass of this date and time; the blank record after the last one counts.
template <class F> void FürJedeMesse(Datum datum, Datum uhrzeit, F f)
{
    for (int m = 0; m <= Messe.Anzahl; ++m)
        if (Messe.Datum[m] == datum && Messe.Uhrzeit[m] == uhrzeit)
            f(m);
}

/// Date and time: the part of a mass's text that is also in the text of its entries.
Text Termintext(int i)
{
    return DatumText(Messe.Datum[i]) + "," + DatumText(Messe.Uhrzeit[i]);
}

} // namespace

void DienerzahlenBestimmen()
{
    constexpr int HöchsterGezählter = 100; // fewer than the dialog accepts
    for (int k = 0; k <= HöchsterGezählter; ++k)
        MesseDienerFest.Index[k] =
            DienerzahlDerMesse(MesseDienerFest.Datum[k], MesseDienerFest.Uhrzeit[k]).value_or(0);
}

std::optional<Int16> DienerzahlDerMesse(Datum datum, Datum uhrzeit)
{
    std::optional<Int16> zahl;
    FürJedeMesse(datum, uhrzeit, [&](int m) { zahl = Messe.Dienerzahl[m]; });
    return zahl;
}

void DiensteDerMesse(Datum datum, Datum uhrzeit, MesseDienerFestTabelle::JeSlot &dienste)
{
    FürJedeMesse(datum, uhrzeit, [&](int m) {
        for (int slot = 1; slot <= MesseDienerFestTabelle::HöchsterSlot; ++slot)
            dienste[slot] = DienstDesSlots(m, slot);
    });
}

void FestenEintragLöschen(int i)
{
    for (int r = i; r <= MesseDienerFest.Anzahl; ++r)
        FelderÜbernehmen(MesseDienerFest.Felder(), r, r + 1);
    --MesseDienerFest.Anzahl;
}

bool HatFestenEintrag(Datum datum, Datum uhrzeit)
{
    for (int k = 0; k < MesseDienerFest.Anzahl; ++k)
        if (MesseDienerFest.Datum[k] == datum && MesseDienerFest.Uhrzeit[k] == uhrzeit)
            return true;
    return false;
}

Text Gruppentext(const Text &bezeichnung)
{
    return Listenname(bezeichnung, "Gruppe");
}

Text Messentext(int i)
{
    return Termintext(i) + "," + Messe.Messeart[i];
}

bool IstZuordnung(const Text &text)
{
    for (int i = 0; i <= Meßdiener.Anzahl; ++i)
        if (Listenname(Meßdiener.Nachname[i], Meßdiener.Vorname[i]) == text)
            return true;
    for (int i = 0; i <= Gruppe.Anzahl; ++i)
        if (Gruppentext(Gruppe.Bezeichnung[i]) == text)
            return true;
    return false;
}

bool IstMesse(const Text &text)
{
    for (int i = 0; i <= SchleifenZähler; ++i)
        if (text == Termintext(i) || text == Messentext(i))
            return true;
    return false;
}

} // namespace altardienst
