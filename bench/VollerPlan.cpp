// A completely full plan, and its services counted the plain way.
#include "VollerPlan.h"

#include "Bestand.h"
#include "core/tables.h"

#include <array>

namespace altardienst {

void VollerPlan()
{
    VollerBestand();
    // The record and the mass after the last ones take part.
    Meßdiener.Anzahl = 399;
    Messe.Anzahl = 602;
    int person = 0;
    for (int i = 0; i <= Messe.Anzahl; ++i)
        for (int slot = 0; slot <= MesseTabelle::HöchsterSlot; ++slot) {
            person = (person + 7) % (Meßdiener.Anzahl + 1);
            Messe.DienerVor[i][slot] = Meßdiener.Vorname[person];
            Messe.DienerNach[i][slot] = Meßdiener.Nachname[person];
        }
}

Meßdienerzählung AlleMitAllen()
{
    constexpr std::array<const char *, 6> Dienste = {"Gabenbereitung", "Leuchter",    "Flambeau",
                                                     "Weihrauch",      "Kreuzträger", "Allgemein"};
    Meßdienerzählung zählung;
    for (int d = 0; d <= Meßdiener.Anzahl; ++d) {
        zählung[d].Vorname = Meßdiener.Vorname[d];
        zählung[d].Nachname = Meßdiener.Nachname[d];
        for (int i = 0; i <= Messe.Anzahl; ++i)
            for (int slot = 0; slot <= MesseTabelle::HöchsterSlot; ++slot) {
                if (Messe.DienerNach[i][slot] != zählung[d].Nachname ||
                    Messe.DienerVor[i][slot] != zählung[d].Vorname || slot == 0)
                    continue;
                for (std::size_t art = 0; art < Dienste.size(); ++art)
                    if (Messe.DienerDienst[i][slot - 1] == Dienste[art])
                        ++zählung[d].Dienste[art];
            }
    }
    return zählung;
}

} // namespace altardienst
