// Lists as files that a spreadsheet opens right on a double click.
#pragma once

#include "values/Text.h"

#include <array>
#include <string>
#include <vector>

namespace altardienst {

enum class Tabellenart { Diener, Helfer, Dienste, Messen };

constexpr std::array<Tabellenart, 4> Tabellenarten = {Tabellenart::Diener, Tabellenart::Helfer,
                                                      Tabellenart::Dienste, Tabellenart::Messen};

/// "Meßdiener", "Plan, eine Zeile je Dienst"; and the name proposed for the file.
Text Tabellenname(Tabellenart art);
Text Tabellendateiname(Tabellenart art);

/// Of all columns that the list can have, in their order.
std::vector<Text> Tabellenspalten(Tabellenart art);

/// Those that are written unless somebody wants more: no more of a person than is needed to know
/// who is meant.
std::vector<Text> ÜblicheTabellenspalten(Tabellenart art);

/// How many rows there are below the headings.
int Tabellenzeilen(Tabellenart art);

/// The file with these columns, numbers into `Tabellenspalten`. Where people go out with all
/// columns, the same records come in again.
std::string Tabellendatei(Tabellenart art, const std::vector<int> &spalten);

} // namespace altardienst
