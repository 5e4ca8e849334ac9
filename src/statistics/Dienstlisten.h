// The services of each person on paper.
#pragma once

#include "statistics/Dienstzählung.h"

namespace altardienst {

// Records 0 to `Anzahl` - 1, one line each, in the orientation `Konfig.DiffJahr`.
void MeßdienerdiensteDrucken(Meßdienerzählung &zählung);
void HelferdiensteDrucken(Helferzählung &zählung);

} // namespace altardienst
