// What has been changed by hand, in the words of the menu: "Meßdiener Adler, Kim ändern".
#pragma once

#include "history/Tabellenstand.h"
#include "values/Text.h"

namespace altardienst {

struct Änderung {
    Text Name;
    Text Ziel; // the one record that was changed, the same for every change of it; empty: others
};

/// `damals` lacks the tables in which nothing differs.
Änderung ÄnderungZwischen(const Tabellenstand &damals, const Tabellenstand &jetzt);

} // namespace altardienst
