// The assignment of helpers, which button (5) starts.
#include "assignment/Helferzuweisung.h"

#include "assignment/Ziehung.h"
#include "assignment/Zuweisungsrahmen.h"
#include "core/tables.h"
#include "platform/Meldungen.h"
#include "platform/Uhr.h"
#include "platform/Zufall.h"

namespace altardienst {
namespace {

constexpr int Aufgabegrenze = 5; // whole seconds of search, then the run ends

void HelferZiehen()
{
    Kandidat = Ziehen(Helfer.Anzahl);
}

void HelferEintragen(const Helferplatz &platz)
{
    (Messe.*platz.Vor)[MesseNr] = Helfer.Vorname[Kandidat];
    (Messe.*platz.Nach)[MesseNr] = Helfer.Nachname[Kandidat];
    Helfer.Belegt[Kandidat] = 1;
    Helfer.LetzterDienst[Kandidat] = Messe.Datum[MesseNr];
}

/// Whether `Kandidat` passes the tests of a place.
template <class Prüfungen> bool Passt(const Helferplatz &platz)
{
    return Prüfungen::Erster({Helfer, Kandidat}, {Messe, MesseNr, platz},
                             {.Vergeben = IstVergeben(Helfer, Kandidat)}) == Grund::Keiner;
}

bool IstPlatz(const Helferplatz &platz, const Helferart &art, int nummer)
{
    return &platz.Art == &art && platz.Nummer == nummer;
}

/// Returns false if the search was given up.
bool PlätzeFüllen()
{
    bool zweiterKommunionhelfer = false;
    for (const Helferplatz &platz : Helferplätze) {
        if (!platz.Nötig(Messe, MesseNr))
            continue;
        // The search for the first Kantor continues with the clock of the previous search, unless a
        // second Kommunionhelfer was placed in this mass.
        if (!IstPlatz(platz, Kantor, 1) || zweiterKommunionhelfer)
            SucheStart = Uhr.Sekunden();
        do {
            HelferZiehen();
            if (Suchdauer() > Aufgabegrenze) {
                Meldungen.Zeigen("Achtung, es sind die Dienste der einzelnen Helfer zu überprüfen "
                                 "!!!!!!");
                return false;
            }
        } while (!Passt<Helferprüfungen>(platz));
        HelferEintragen(platz);
        zweiterKommunionhelfer = zweiterKommunionhelfer || IstPlatz(platz, Kommunionhelfer, 2);
    }
    return true;
}

void HelferVollZuweisen()
{
    for (int i = 0; i <= Messe.Anzahl; ++i) {
        MesseNr = i;
        if (!PlätzeFüllen())
            return;
        SperreLösen(Helfer, i);
    }
}

void HelferFreiZuweisen()
{
    for (int i = 0; i <= Messe.Anzahl; ++i) {
        MesseNr = i;
        for (const Helferplatz &platz : Helferplätze) {
            if (!platz.Nötig(Messe, i))
                continue;
            do
                HelferZiehen();
            while (!Passt<FreieHelferprüfungen>(platz));
            HelferEintragen(platz);
        }
    }
}

/// Whether there are fewer helpers with this first service than two of its busiest days need.
bool Knapp(const Helferart &art)
{
    const Int16 tag = GrößteTagessumme(art.Zahl.In(Messe));
    Int16 helfer;
    for (int h = 0; h <= Helfer.Anzahl; ++h)
        if (Helfer.Dienst1[h] == art.Name)
            ++helfer;
    return helfer < 2 * tag;
}

} // namespace

void HelferZuweisen()
{
    for (int h = 0; h <= HelferTabelle::HöchsterLauf; ++h)
        Helfer.Belegt[h] = 0;
    Zufall.Streuen();
    SucheStart = Uhr.Sekunden();
    bool knapp = false;
    for (const Helferart &art : Helferarten)
        knapp = Knapp(art) || knapp; // every sum is computed, so that no overflow is missed
    if (knapp)
        HelferFreiZuweisen();
    else
        HelferVollZuweisen();
}

} // namespace altardienst
