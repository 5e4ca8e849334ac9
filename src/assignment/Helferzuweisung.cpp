// The assignment of helpers, behind button (5).
#include "assignment/Helferzuweisung.h"

#include "assignment/Ziehung.h"
#include "assignment/Zuweisungsrahmen.h"
#include "core/tables.h"
#include "platform/Meldungen.h"
#include "platform/Uhr.h"
#include "platform/Zufall.h"

#include <algorithm>
#include <array>

namespace altardienst {
namespace {

constexpr int Aufgabegrenze = 5; // whole seconds of search, then the run ends

/// One of the helper places of a mass.
struct Position {
    MesseTabelle::Spalte<Text> &Vor;
    MesseTabelle::Spalte<Text> &Nach;
    MesseTabelle::Spalte<Int16> &Zahl; // the count that asks for it
    int AbZahl;                        // needed from this count on
    const char *Dienst;

    bool Nötig(int messe) const { return Zahl[messe] >= AbZahl; }
};

/// In the order in which they are filled.
const std::array<Position, 8> Positionen = {{
    {Messe.Lektor1Vor, Messe.Lektor1Nach, Messe.LektorZahl, 1, "Lektor"},
    {Messe.Lektor2Vor, Messe.Lektor2Nach, Messe.LektorZahl, 2, "Lektor"},
    {Messe.Komm1Vor, Messe.Komm1Nach, Messe.KommZahl, 1, "Kommunionhelfer"},
    {Messe.Komm2Vor, Messe.Komm2Nach, Messe.KommZahl, 2, "Kommunionhelfer"},
    {Messe.Kantor1Vor, Messe.Kantor1Nach, Messe.KantorZahl, 1, "Kantor"},
    {Messe.Kantor2Vor, Messe.Kantor2Nach, Messe.KantorZahl, 2, "Kantor"},
    {Messe.Kollekt1Vor, Messe.Kollekt1Nach, Messe.KollektZahl, 1, "Kollektant"},
    {Messe.Kollekt2Vor, Messe.Kollekt2Nach, Messe.KollektZahl, 2, "Kollektant"},
}};

// Numbers of the positions that have a rule of their own.
constexpr int LetzterLektor = 2;
constexpr int ZweiterKommunionhelfer = 4;
constexpr int ErsterKantor = 5;

void HelferZiehen()
{
    Kandidat = Ziehen(Helfer.Anzahl);
}

bool HelferHatNamen()
{
    return !Helfer.Nachname[Kandidat].empty() && !Helfer.Vorname[Kandidat].empty();
}

void HelferEintragen(const Position &position)
{
    position.Vor[MesseNr] = Helfer.Vorname[Kandidat];
    position.Nach[MesseNr] = Helfer.Nachname[Kandidat];
    Helfer.Belegt[Kandidat] = 1;
    Helfer.LetzterDienst[Kandidat] = Messe.Datum[MesseNr];
}

bool HelferIstAnwesend()
{
    const int j = Kandidat;
    const Datum tag = Messe.Datum[MesseNr];
    return !LiegtIn(tag, Helfer.Von1[j], Helfer.Bis1[j]) &&
           !LiegtIn(tag, Helfer.Von2[j], Helfer.Bis2[j]) &&
           !LiegtIn(tag, Helfer.Von3[j], Helfer.Bis3[j]);
}

/// A Lektor needs the service in one of the two fields. For all other positions the sense is turned
/// round: only who has the service in both fields is refused.
bool DienstPasst(int p, const char *dienst)
{
    const bool erster = Helfer.Dienst1[Kandidat] == dienst;
    const bool zweiter = Helfer.Dienst2[Kandidat] == dienst;
    return p <= LetzterLektor ? erster || zweiter : !(erster && zweiter);
}

bool HelferPasst(int p, const char *dienst)
{
    return HelferHatNamen() && Helfer.Belegt[Kandidat] < 1 && HelferIstAnwesend() &&
           DienstPasst(p, dienst);
}

void HelferSperreLösen()
{
    for (int h = 0; h <= Helfer.Anzahl; ++h) {
        const Datum letzter = Helfer.LetzterDienst[h];
        if (letzter != Messe.Datum[MesseNr] && letzter + 1 != Messe.Datum[MesseNr])
            Helfer.Belegt[h] = 0;
    }
}

/// False if the search was given up.
bool PositionenFüllen()
{
    bool zweiterKommunionhelfer = false;
    for (int p = 1; p <= static_cast<int>(Positionen.size()); ++p) {
        const Position &position = Positionen[static_cast<std::size_t>(p - 1)];
        if (!position.Nötig(MesseNr))
            continue;
        // The search for the first Kantor goes on with the clock of the search before it, unless a
        // second Kommunionhelfer was filled in this mass.
        if (p != ErsterKantor || zweiterKommunionhelfer)
            SucheStart = Uhr.Sekunden();
        do {
            HelferZiehen();
            if (Suchdauer() > Aufgabegrenze) {
                Meldungen.Zeigen("Achtung, es sind die Dienste der einzelnen Helfer zu überprüfen "
                                 "!!!!!!");
                return false;
            }
        } while (!HelferPasst(p, position.Dienst));
        HelferEintragen(position);
        zweiterKommunionhelfer = zweiterKommunionhelfer || p == ZweiterKommunionhelfer;
    }
    return true;
}

void HelferVollZuweisen()
{
    for (int i = 0; i <= Messe.Anzahl; ++i) {
        MesseNr = i;
        if (!PositionenFüllen())
            return;
        HelferSperreLösen();
    }
}

void HelferFreiZuweisen()
{
    for (int i = 0; i <= Messe.Anzahl; ++i) {
        MesseNr = i;
        for (const Position &position : Positionen) {
            if (!position.Nötig(i))
                continue;
            do
                HelferZiehen();
            while (!HelferHatNamen());
            HelferEintragen(position);
        }
    }
}

/// Whether the helpers whose first service it is are fewer than two of its busiest days need.
bool Knapp(const char *dienst, MesseTabelle::Spalte<Int16> &zahl)
{
    const Int16 tag = GrößteTagessumme(zahl);
    Int16 helfer;
    for (int h = 0; h <= Helfer.Anzahl; ++h)
        if (Helfer.Dienst1[h] == dienst)
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
    // All four sums are made, so that an overflow in one of them is never missed.
    const bool kommunion = Knapp("Kommunionhelfer", Messe.KommZahl);
    const bool lektor = Knapp("Lektor", Messe.LektorZahl);
    const bool kantor = Knapp("Kantor", Messe.KantorZahl);
    const bool kollektant = Knapp("Kollektant", Messe.KollektZahl);
    if (kommunion || lektor || kantor || kollektant)
        HelferFreiZuweisen();
    else
        HelferVollZuweisen();
}

} // namespace altardienst
