// Carrying the fixed entries over into the masses: the one point at which they reach the plan.
#pragma once

#include "core/tables.h"

namespace altardienst {

/// Entries above it are never carried over.
constexpr int HöchsterÜbertragener = 200;

/// Whether an entry means the mass: it names it by date and time alone.
inline bool Meint(const MesseDienerFestTabelle &feste, int eintrag, const MesseTabelle &messen,
                  int messe)
{
    return feste.Datum[eintrag] == messen.Datum[messe] &&
           feste.Uhrzeit[eintrag] == messen.Uhrzeit[messe];
}

/// Whether slot `s` of an entry names somebody.
inline bool IstBelegt(const MesseDienerFestTabelle &feste, int eintrag, int s)
{
    return !feste.Nachname[eintrag][s].empty() && !feste.Vorname[eintrag][s].empty();
}

/// Calls `f` with slot, first name and surname of each place of a mass that an entry wants for
/// somebody, in the order of the table: the last one wins.
template <class F>
void FürJedenFestenPlatz(const MesseDienerFestTabelle &feste, const MesseTabelle &messen, int messe,
                         F f)
{
    for (int r = 0; r <= HöchsterÜbertragener; ++r) {
        if (!Meint(feste, r, messen, messe))
            continue;
        for (int s = 1; s <= MesseDienerFestTabelle::HöchsterSlot; ++s)
            if (IstBelegt(feste, r, s))
                f(s, feste.Vorname[r][s], feste.Nachname[r][s]);
    }
}

/// Writes the names of each fixed entry over the slots of every mass of the same date and time. A
/// later entry wins slot by slot; empty slots of an entry leave the mass as it is.
void FesteMeßdienerÜbertragen();

/// What both dialogs of the fixed entries do last: asks whether to carry them over, and does so on
/// Ja.
void ÜbertragenAufWunsch();

} // namespace altardienst
