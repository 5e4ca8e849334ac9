// What surrounds the ways of assignment: buttons (3), (4) and (5) of the main window.
#pragma once

#include "core/tables.h"
#include "values/Int16.h"

namespace altardienst {

extern Int16 GrößteMesse;     // largest `Messe.Dienerzahl`
extern Int16 GrößterTag;      // largest sum of `Messe.Dienerzahl` over the masses of one date
extern Int16 DienstProDiener; // whole share of places per server, plus 1

/// Sets `DienstProDiener`. Failure 11 without servers, 6 if the number of places does not fit into
/// an Int16.
void DienstProDienerRechnen();

/// The same for a plan of its own.
Int16 Dienstanteil(const MesseTabelle &messen, Int16 diener);

/// Sets `GrößteMesse` and `GrößterTag`; the masses must be sorted.
void GrößenRechnen();

/// The largest sum of a count over consecutive masses with the same date. The blank mass after the
/// last has another date and closes the last day.
Int16 GrößteTagessumme(MesseTabelle::Spalte<Int16> &zahl);

/// Carries the fixed entries over into the masses, overwriting what a run has drawn for their
/// slots.
using Übertragung = void (*)();

/// Button (3), the plain way: asks first, then takes one of three ways depending on the number of
/// servers.
void MessenMitMeßdienerBesetzen(Übertragung übertragen);

/// Button (4), the partner way.
void WunschpartnerBerücksichtigen(Übertragung übertragen);

/// Button (5), the helpers.
void MessenMitMessehelferBesetzen();

} // namespace altardienst
