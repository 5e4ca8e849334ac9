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
        FürJedenFestenPlatz(MesseDienerFest, Messe, m,
                            [&m](int slot, const Text &vorname, const Text &nachname) {
                                Messe.DienerVor[m][slot] = vorname;
                                Messe.DienerNach[m][slot] = nachname;
                            });
}

void ÜbertragenAufWunsch()
{
    if (Meldungen.Fragen("Übertragen in die Messenliste?", "Meßdiener zu Messen"))
        FesteMeßdienerÜbertragen();
}

} // namespace altardienst
