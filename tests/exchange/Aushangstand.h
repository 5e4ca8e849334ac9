// A plan for the tests of what is given away.
#pragma once

#include "overview/Platz.h"
#include "printing/Druckstand.h"

#include <map>
#include <vector>

namespace altardienst {

/// Masses one day after the other from Sunday, 22.11.2026, filled with "Vor1 Nach1" and so on.
inline int VolleMesse(int diener, const Text &art = "Hochamt")
{
    const int i =
        MesseMitDienern(DatumAus({2026, 11, 22}) + static_cast<int>(Messe.Anzahl), diener);
    Messe.Messeart[i] = art;
    for (int slot = 1; slot <= diener; ++slot)
        Besetzen(Messe, Dienerplatznr(i, slot), "Vor" + std::to_string(slot),
                 "Nach" + std::to_string(slot));
    return i;
}

/// What lies where on the sheets, in which type: `737 1025, 8: "Altardienst"`; lines, new sheets.
inline std::vector<Text> Blatt(const Druckprotokoll &papier)
{
    std::map<Text, Text> stand;
    std::vector<Text> blatt;
    for (const Text &zeile : papier.Zeilen) {
        const std::size_t lücke = zeile.find(' ');
        const Text was = zeile.starts_with("FontSize") ? Text("FontSize") : zeile.substr(0, lücke);
        stand[was] = lücke == Text::npos ? "" : zeile.substr(lücke + 1);
        if (was == "Print") {
            Text wo = stand["CurrentX"] + " " + stand["CurrentY"] + ", " + stand["FontSize"];
            for (const char *art : {"Bold", "Italic", "Strikethru", "Underline"})
                if (stand[Text("Font") + art] == "an")
                    wo += Text(" ") + art;
            blatt.push_back(wo + ": " + stand[was]);
        } else if (was == "Line" || was == "NewPage") {
            blatt.push_back(zeile);
        }
    }
    return blatt;
}

} // namespace altardienst
