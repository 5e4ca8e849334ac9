// What is told where the program may not write its files.
#pragma once

#include "values/Text.h"

namespace altardienst {

/// That nothing can be saved in the program's directory, and what to do about it; empty: it can.
Text Schreibhindernis();

/// The same in a few words.
Text KurzesSchreibhindernis();

} // namespace altardienst
