// From the week pattern to the masses of the plan period.
#include "planning/MessenBestimmen.h"

#include "core/Plätze.h"
#include "platform/Meldungen.h"
#include "platform/Uhr.h"

#include <tuple>

namespace altardienst {
namespace {

Int16 NächsteMesse; // index of the next mass to be written
Int16 StandardNr;   // the standard mass being looked at
Text Tagname;       // weekday of the current day

/// Masses above this record keep their helpers and services when a new plan is made.
constexpr int HöchsteGeleerteMesse = 200;

/// Clears everything except date and time, and the names that slot 0 may hold.
void MesseLeeren(int i)
{
    FürJedeSpalteAußer(
        Messe.Felder(),
        {&Messe.Datum, &Messe.Uhrzeit, &Messe.DienerVor, &Messe.DienerNach, &Messe.DienerDienst},
        [i](auto &spalte) { spalte[i] = {}; });
    for (int slot = 1; slot <= MesseTabelle::HöchsterSlot; ++slot) {
        Messe.DienerVor[i][slot].clear();
        Messe.DienerNach[i][slot].clear();
    }
    for (int k = 0; k <= MesseTabelle::HöchsterSlot; ++k)
        Messe.DienerDienst[i][k] = Allgemein.Name;
}

/// The part of the month, 1 to 5, that the current day is in.
int Monatsteil()
{
    return (KalendertagVon(Konfig.StartDatum).Tag - 1) / 7 + 1;
}

bool ErgibtMesse(bool ersterTag)
{
    if (Standardmesse.Wochentag[StandardNr] != Tagname || Standardmesse.Dienerzahl[StandardNr] < 1)
        return false;
    if (Links(Standardmesse.Messeart[StandardNr], 4) != "Tauf")
        return true;
    int teil = Monatsteil();
    // From the 29th on, baptisms are held only if the period begins on that very day.
    if (teil == 5 && !ersterTag)
        return false;
    return IstJa(Konfig.Flags8, teil);
}

void MesseAnlegen()
{
    Messe.Wochentag[NächsteMesse] = Standardmesse.Wochentag[StandardNr];
    Messe.Datum[NächsteMesse] = Konfig.StartDatum;
    Messe.Uhrzeit[NächsteMesse] = Standardmesse.Uhrzeit[StandardNr];
    Messe.Messeart[NächsteMesse] = Standardmesse.Messeart[StandardNr];
    Messe.Dienerzahl[NächsteMesse] = Standardmesse.Dienerzahl[StandardNr];
    const auto übernehmen = [](const Zahlspalte &zahl) {
        zahl.In(Messe)[NächsteMesse] = zahl.In(Standardmesse)[StandardNr];
    };
    for (const Dienstart &art : Dienstarten)
        übernehmen(art.Zahl);
    for (const Helferart &art : Helferarten)
        übernehmen(art.Zahl);
    Messe.Kennung[NächsteMesse] = "s";
    ++NächsteMesse;
}

void TagAnlegen(bool ersterTag)
{
    for (StandardNr = 0; StandardNr <= StandardmesseTabelle::HöchsterInDatei; ++StandardNr)
        if (ErgibtMesse(ersterTag))
            MesseAnlegen();
}

/// Moves the masses of a longer old plan out of the range of the new one. Only these fields move,
/// and only slots 1 to 16.
void MessenKürzen()
{
    constexpr int HöchsterBewegterSlot = 16;
    auto felder =
        std::tie(Messe.Wochentag, Messe.Datum, Messe.Uhrzeit, Messe.Messeart, Messe.Dienerzahl);
    const int alteAnzahl = Messe.Anzahl;
    const int neueAnzahl = NächsteMesse;
    for (int mal = 0; mal < alteAnzahl - neueAnzahl; ++mal) {
        for (int j = neueAnzahl; j <= alteAnzahl + 1; ++j) {
            FelderÜbernehmen(felder, j, j + 1);
            for (const Dienstart &art : BesondereDienste)
                art.Zahl.In(Messe)[j] = art.Zahl.In(Messe)[j + 1];
            for (int slot = 1; slot <= HöchsterBewegterSlot; ++slot) {
                Messe.DienerVor[j][slot] = Messe.DienerVor[j + 1][slot];
                Messe.DienerNach[j][slot] = Messe.DienerNach[j + 1][slot];
            }
        }
    }
    Messe.Anzahl = 0; // the caller sets the final count
}

} // namespace

Datum StartDatumRechnen()
{
    const Datum heute = Uhr.Heute();
    return heute + 7.0 * Konfig.VorlaufWochen + Konfig.StartWochentag - Wochentag(heute);
}

Datum StartDatumVorschlagen()
{
    if (Konfig.StartWochentag < 1 || Konfig.StartWochentag > 7)
        Konfig.StartWochentag = 7;
    if (Konfig.VorlaufWochen < 1 || Konfig.VorlaufWochen > 20)
        Konfig.VorlaufWochen = 1;
    return StartDatumRechnen();
}

void FesteEinträgeLeeren()
{
    const int anzahl = MesseDienerFest.Anzahl;
    for (int mal = 0; mal <= anzahl; ++mal)
        for (int j = 0; j <= anzahl; ++j)
            FelderÜbernehmen(MesseDienerFest.Felder(), j, j + 1);
    MesseDienerFest.Anzahl = 0;
    MesseDienerFest.Cursor = 0;
}

void MessenBestimmen()
{
    NächsteMesse = 0;
    Tagname = WochentagName(Konfig.StartDatum);
    for (int i = 0; i <= HöchsteGeleerteMesse; ++i)
        MesseLeeren(i);

    TagAnlegen(true);
    for (int tag = 1; tag <= Konfig.Tage; ++tag) {
        Konfig.StartDatum += 1;
        Tagname = WochentagName(Konfig.StartDatum);
        TagAnlegen(false);
    }

    if (NächsteMesse < Messe.Anzahl)
        MessenKürzen();
    if (NächsteMesse > Messe.Anzahl)
        Messe.Anzahl = NächsteMesse;
    if (NächsteMesse <= Messe.Cursor)
        Messe.Cursor = 1;
    if (Messe.Cursor > 5)
        Messe.Cursor = 1;
    for (int tag = 1; tag <= Konfig.Tage; ++tag)
        Konfig.StartDatum -= 1;
    NächsteMesse = 0;
}

void MessenNeuBestimmen()
{
    FesteEinträgeLeeren();
    MessenBestimmen();
    Meldungen.Zeigen("Fertig mit Messen bestimmen");
    Messe.Cursor = 0;
}

} // namespace altardienst
