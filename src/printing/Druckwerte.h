// Values as the items of a printed line.
#pragma once

#include "values/Datum.h"
#include "values/Int16.h"
#include "values/Text.h"

namespace altardienst {

/// A number, with room for its sign before it and a blank after it.
Text Druckzahl(int zahl);

/// A date in the short form with a blank after it.
Text Druckdatum(Datum datum);

/// A measure in millimetres with three digits before the comma and one after it.
Text Druckmaß(Single mm);

} // namespace altardienst
