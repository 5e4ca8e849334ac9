// Carrying the fixed entries over into the masses.
#include "fixed/FesteMeßdienerÜbertragen.h"

#include "core/SchleifenZähler.h"
#include "core/tables.h"
#include "platform/Meldungen.h"

namespace altardienst {

void FesteMeßdienerÜbertragen()
{
    constexpr int HöchsterÜbertragener = 200; // entries above it are never carried over
    Int16 &m = SchleifenZähler;
    for (m = 0; m <= Messe.Anzahl; ++m) {
        for (int r = 0; r <= HöchsterÜbertragener; ++r) {
            if (MesseDienerFest.Datum[r] != Messe.Datum[m] ||
                MesseDienerFest.Uhrzeit[r] != Messe.Uhrzeit[m])
                continue;
            for (int s = 1; s <= MesseDienerFestTabelle::HöchsterSlot; ++s) {
                const Text &vorname = MesseDienerFest.Vorname[r][s];
                const Text &nachname = MesseDienerFest.Nachname[r][s];
                if (nachname.empty() || vorname.empty())
                    continue;
                Messe.DienerVor[m][s] = vorname;
                Messe.DienerNach[m][s] = nachname;
            }
        }
    }
}

void ÜbertragenAufWunsch()
{
    if (Meldungen.FragenVorVerlust("Übertragen in die Messenliste?", "Meßdiener zu Messen"))
        FesteMeßdienerÜbertragen();
}

} // namespace altardienst
