// The loop counter that the routines below share.
#pragma once

#include "values/Int16.h"

namespace altardienst {

/// Counts the outermost loop over a table and keeps its final value, one past that of the last
/// pass; a failure leaves it where it was. The dialogs of the fixed entries look for a mass no
/// further than this. It is used by routines that several rooms call:
///
/// | routine | value afterwards |
/// |---|---|
/// | `DiensteVerteilen` | `Messe.Anzahl` + 1 |
/// | `FesteMeßdienerÜbertragen` | `Messe.Anzahl` + 1 |
/// | every sort command (`NachbarnTauschen`) | the number of passes, mostly `Anzahl` - 1 |
/// | load from hard disk, both saves | one past the last record of the last file |
/// | load from diskette | 0, as it ends at the first server |
///
/// A file that ends early stops the loop of its table where it ends, except that of the masses.
///
/// Routines that only one room calls use counters of their own.
extern Int16 SchleifenZähler;

} // namespace altardienst
