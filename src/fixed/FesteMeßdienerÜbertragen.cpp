// Carrying the fixed entries over into the masses.
#include "fixed/FesteMeßdienerÜbertragen.h"

#include "core/SchleifenZähler.h"
#include "core/tables.h"
#include "platform/Meldungen.h"

namespace altardienst {

void FesteMeßdienerÜbertragen()
{
    Int16 &m = SchleifenZähler;
    for (m = 0; m <= Messe.Anzahl; ++m)
        FürJedenFestenPlatz(
            MesseDienerFest, Messe, m,
            [messe = static_cast<int>(m)](int slot, const Text &vorname, const Text &nachname) {
                Messe.DienerVor[messe][slot] = vorname;
                Messe.DienerNach[messe][slot] = nachname;
            });
}

void ÜbertragenAufWunsch()
{
    if (Meldungen.Fragen("Übertragen in die Messenliste?", "Meßdiener zu Messen"))
        FesteMeßdienerÜbertragen();
}

} // namespace altardienst
