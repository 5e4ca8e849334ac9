// What all ways of assigning servers share: the draw, the placement in a slot, the block by date,
// and the tests of a drawn server.
#pragma once

#include "values/Int16.h"
#include "values/Text.h"

namespace altardienst {

// The working values of a run.
extern Int16 MesseNr;          // the mass being filled
extern Int16 Kandidat;         // the server (or helper) just drawn
extern Int16 MittelGröße;      // height reference of the mass, cm
extern Text LetztesGeschlecht; // of the server placed last
extern int SucheStart;         // time of day at which the search began, whole seconds
extern Int16 Neustarts;        // restarts of the current mass so far
extern Int16 BelegtProzent;    // taken servers in per cent of all

constexpr int HöchsterSlot = 20;

/// Draws a record of a table of `anzahl` records: 0 to `anzahl`, the blank row behind the last
/// included; the first and the blank row have half the chance of the others.
Int16 Ziehen(Int16 anzahl);

/// Draws a server into `Kandidat`.
void KandidatZiehen();

/// Places `Kandidat` in slot `n` (1 to 20) of the mass `MesseNr`.
void MeßdienerEintragen(int n);

/// Frees every server who was placed neither on the date of mass `i` nor on the day before.
void SperreLösen(int i);

/// `SperreLösen` for the mass `MesseNr` once the share of taken servers has reached
/// `Konfig.GrenzeAuslöse`.
void MesseAbschließen();

/// Whole seconds since `SucheStart`; negative while a search runs across midnight.
int Suchdauer();

// Tests of the server `Kandidat` for the mass `MesseNr`.
bool HatNamen();
bool IstFrei();
bool IstQualifiziert(const Text &dienst); // a service without a position needs no qualification
bool IstAnwesend();
bool WochenwunschErlaubt();

/// Whether `tag` lies in a period of absence; both its end dates belong to it.
constexpr bool LiegtIn(double tag, double von, double bis)
{
    return !(tag < von || tag > bis);
}

} // namespace altardienst
