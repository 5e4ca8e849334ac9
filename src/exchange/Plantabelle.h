// The plan as rows of a table: one for each service that somebody has, or one for each mass.
#pragma once

#include "values/Text.h"

#include <string>
#include <vector>

namespace altardienst::Plantabelle {

// The columns of either.
std::vector<Text> JeDienst();
std::vector<Text> JeMesse();

int Zeilen(bool jeDienst);

/// The rows with these columns.
void Anhängen(std::string &bytes, bool jeDienst, const std::vector<int> &spalten);

} // namespace altardienst::Plantabelle
