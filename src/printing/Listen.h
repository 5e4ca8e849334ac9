// The lists on paper: people, wish partners, standard masses, label formats.
#pragma once

#include "values/Text.h"

namespace altardienst {

// The people lists print in the orientation `Konfig.DiffJahr`. In their second layout each person
// takes up one compact line, whose parts `Konfig.Flags6` selects.
void AlleMeßdienerDrucken();
void MeßdienergruppeDrucken(const Text &gruppe);
void AlleHelferDrucken();

void WunschpartnerlisteDrucken();

/// Records 0 to 10, whatever the table holds.
void StandardmessenDrucken();

/// Records 0 to 20.
void EtikettengrößenDrucken();

} // namespace altardienst
