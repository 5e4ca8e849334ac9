// The message boxes in use.
#include "platform/Meldungen.h"

namespace altardienst {

MeldungenDienst Meldungen = {[](const Text &) {}, [](const Text &, const Text &) { return false; },
                             [](const Text &, const Text &) { return false; }};

} // namespace altardienst
