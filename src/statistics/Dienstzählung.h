// How often each server and each helper serves in the plan.
#pragma once

#include "core/tables.h"
#include "values/Spalte.h"
#include "values/Text.h"

#include <array>
#include <numeric>

namespace altardienst {

/// The services of one person, one count for each kind.
template <std::size_t arten> struct Dienstzeile {
    Text Vorname;
    Text Nachname;
    std::array<int, arten> Dienste{};

    int Insgesamt() const { return std::accumulate(Dienste.begin(), Dienste.end(), 0); }
};

/// One row for each record number. The kinds: Gabenbereitung, Leuchter, Flambeau, Weihrauch,
/// Kreuzträger, Allgemein.
using Meßdienerzählung = Spalte<Dienstzeile<6>, MeßdienerTabelle::HöchsterIndex>;

/// The kinds: Lektor, Kommunionhelfer, Kantor, Kollektant.
using Helferzählung = Spalte<Dienstzeile<4>, HelferTabelle::HöchsterIndex>;

/// Who stands in a slot counts under his present name; a service with another name than these six
/// counts nowhere. The record behind the last server and the mass behind the last one take part, as
/// they stand. Failure 9 if there is no room for them: 403 servers, 603 masses.
Meßdienerzählung MeßdienerdiensteZählen();

/// The same for the two places of each kind of helper; 203 helpers are too many.
Helferzählung HelferdiensteZählen();

} // namespace altardienst
