// The ways from the plan to the windows in which its records stand.
#pragma once

#include "overview/Planprüfung.h"
#include "search/Suche.h"

#include <vector>

namespace altardienst {

/// Where a place or a mass is edited: a helper's place in the dialog of the helpers, everything
/// else in the mass list.
Fund StelleVon(const Planplatz &ort);

/// The fixed entry that counts for a place or a mass; its place in the mass list if there is none.
Fund FesterEintragVon(const Planplatz &ort);
bool HatFestenEintrag(int messe);

struct Planweg {
    Text Beschriftung; // of a menu entry
    Fund Ziel;
};

/// To the mass, its fixed entry, and the record of whoever stands in the place.
std::vector<Planweg> WegeVon(const Planplatz &ort, const Planprüfung &prüfung);

} // namespace altardienst
