// What all ways of assignment share: the draw, the placement in a slot and the block by date.
#pragma once

#include "assignment/Gründe.h"
#include "values/Int16.h"
#include "values/Text.h"

namespace altardienst {

// The working values of a run.
extern Int16 MesseNr;          // the mass being filled
extern Int16 Kandidat;         // the server (or helper) just drawn
extern Int16 MittelGröße;      // height reference of the current mass, cm
extern Text LetztesGeschlecht; // of the server placed last
extern int SucheStart;         // time of day at which the search began, whole seconds
extern Int16 Neustarts;        // restarts of the current mass so far
extern Int16 BelegtProzent;    // percentage of servers taken

/// Draws a record of a table of `anzahl` records: 0 to `anzahl`, including the blank row after the
/// last; the first and the blank row have half the chance of the others.
Int16 Ziehen(Int16 anzahl);

/// Draws a server into `Kandidat`.
void KandidatZiehen();

/// Places `Kandidat` in slot `n` (1 to 20) of the mass `MesseNr`.
void MeßdienerEintragen(int n);

/// The height reference of a mass after a server of this height was placed in slot `n`. The first
/// three servers set it; the others are compared with it.
Int16 MittelGrößeNach(int n, Int16 größe, Int16 bisher);

/// Frees everybody in a table who was placed neither on the date of mass `i` nor on the day before.
template <class Tabelle> void SperreLösen(Tabelle &personen, int i)
{
    for (int s = 0; s <= personen.Anzahl; ++s)
        if (!IstGesperrt(personen.LetzterDienst[s], Messe.Datum[i]))
            personen.Belegt[s] = 0;
}

/// Runs `SperreLösen` for the mass `MesseNr` once the percentage of taken servers has reached
/// `Konfig.GrenzeAuslöse`.
void MesseAbschließen();

/// Whole seconds since `SucheStart`; negative while a search runs across midnight.
int Suchdauer();

} // namespace altardienst
