// All tables at one moment, in a few bytes, and what the user has changed since.
#pragma once

#include "history/Tabellenpaket.h"

#include <array>
#include <cstddef>
#include <memory>
#include <string>

namespace altardienst {

/// All tables at one moment. Two of them share the parts in which nothing differs.
struct Aufnahme {
    std::array<std::shared_ptr<const std::string>, AlleTeile.size()> Teile;
    Stellungen Wo;
    Int16 Schleife; // the shared loop counter

    auto &Paket(Teil teil) { return Teile[static_cast<std::size_t>(teil)]; }
    const auto &Paket(Teil teil) const { return Teile[static_cast<std::size_t>(teil)]; }
};

/// Of now; shares with `zuvor` what has not changed since.
Aufnahme Jetzt(const Aufnahme &zuvor);

/// Whether the user has changed something from then to now, which the tables still hold: what is
/// worked out anyway does not count, nor do blanks after a weekday.
bool VonHandGeändert(const Aufnahme &damals, const Aufnahme &jetzt);

/// The tables in which the two differ for the user, as they were then.
Tabellenstand Damalige(const Aufnahme &damals, const Aufnahme &jetzt);

} // namespace altardienst
