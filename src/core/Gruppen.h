// Who belongs to a group.
#pragma once

#include "core/tables.h"
#include "values/Text.h"

namespace altardienst {

/// Whether the server belongs to the group. A server without a group belongs to none, and so nobody
/// belongs to a group without a name.
bool IstInGruppe(int diener, const Text &gruppe);
bool IstInGruppe(const MeßdienerTabelle &tabelle, int diener, const Text &gruppe);

} // namespace altardienst
