// The loop counter that the shared routines have in common.
#pragma once

#include "values/Int16.h"

namespace altardienst {

/// Counts the outermost loop over a table and keeps its last value, one behind the last turn; a
/// failure leaves it where it was. The dialogs of the fixed entries look for a mass no further than
/// this. It is in use by what several rooms call:
///
/// | routine | behind it |
/// |---|---|
/// | `DiensteVerteilen` | `Messe.Anzahl` + 1 |
/// | `FesteMeßdienerÜbertragen` | `Messe.Anzahl` + 1 |
/// | every sort command (`NachbarnTauschen`) | the number of passes, mostly `Anzahl` - 1 |
/// | load from hard disk, both saves | one behind the last record of the last file |
/// | load from diskette | 0, as it ends at the first server |
///
/// A file that ends early stops the loop of its table where it ends, but not that of the masses.
///
/// Routines of one room count with values of their own.
extern Int16 SchleifenZähler;

} // namespace altardienst
