// How often each server and each helper serves in the plan.
#pragma once

#include "core/Plätze.h"
#include "core/tables.h"
#include "values/Spalte.h"
#include "values/Text.h"

#include <array>
#include <numeric>

namespace altardienst {

/// The services of one person, one count per kind.
template <std::size_t arten> struct Dienstzeile {
    Text Vorname;
    Text Nachname;
    std::array<int, arten> Dienste{};

    int Insgesamt() const { return std::accumulate(Dienste.begin(), Dienste.end(), 0); }
};

/// One row for each record number, with a count for each of `Dienstarten`.
using Meßdienerzählung = Spalte<Dienstzeile<Dienstarten.size()>, MeßdienerTabelle::HöchsterIndex>;

/// With a count for each of `Helferarten`.
using Helferzählung = Spalte<Dienstzeile<Helferarten.size()>, HelferTabelle::HöchsterIndex>;

/// Whoever is in a slot counts under his current name; a service with any other name is not
/// counted. The record after the last server and the mass after the last one take part, as they
/// are. Failure 9 if there is no room for them: 403 servers, 603 masses.
Meßdienerzählung MeßdienerdiensteZählen();

/// The same for the places of the helpers; 203 helpers are too many.
Helferzählung HelferdiensteZählen();

} // namespace altardienst
