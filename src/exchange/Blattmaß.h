// How large a table of names can be printed on one sheet: its type, its columns, and whether the
// sheet stands or lies. Only an estimate, since the browser that prints it chooses the font.
#pragma once

#include "values/Text.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace altardienst {

/// What stands in a cell, each piece unbroken on one line; whoever makes the table keeps the texts.
using Stücke = std::vector<std::string_view>;

struct Blatttafel {
    std::vector<Text> Köpfe;
    std::size_t Fette = 0;                   // columns from the left in bold
    std::vector<std::vector<Stücke>> Zeilen; // with a cell for each head
};

struct Blattmaß {
    bool Quer = false;
    double Punkt = 0;            // size of the type
    std::vector<double> Breiten; // of the columns, per cent
    double Luft = 0;             // in each row beyond what its text needs, in sizes of the type
    int Seiten = 1;
};

/// The largest type from 5 to 11 points with which the table and a title of two lines fit on a
/// sheet A4; of two equal ones the upright sheet. If none does: 7 points, lying, on as many sheets
/// as it takes.
Blattmaß BlattmaßFür(const Blatttafel &tafel);

/// How wide a text is in a usual sans-serif type, in its size.
double Textbreite(std::string_view text);

} // namespace altardienst
