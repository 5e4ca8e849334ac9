// The draw, the placement in a slot and the block by date.
#include "assignment/Ziehung.h"

#include "core/Umwandlung.h"
#include "core/tables.h"
#include "platform/Uhr.h"
#include "platform/Zufall.h"

namespace altardienst {

Int16 MesseNr;
Int16 Kandidat;
Int16 MittelGröße;
Text LetztesGeschlecht;
int SucheStart = 0;
Int16 Neustarts;
Int16 BelegtProzent;

Int16 Ziehen(Int16 anzahl)
{
    return GerundetInt16(static_cast<Single>(anzahl) * Zufall.Nächste());
}

void KandidatZiehen()
{
    Kandidat = Ziehen(Meßdiener.Anzahl);
}

void MeßdienerEintragen(int n)
{
    Messe.DienerVor[MesseNr][n] = Meßdiener.Vorname[Kandidat];
    Messe.DienerNach[MesseNr][n] = Meßdiener.Nachname[Kandidat];
    Meßdiener.Belegt[Kandidat] = 1;
    MittelGröße = MittelGrößeNach(n, Meßdiener.Größe[Kandidat], MittelGröße);
    Meßdiener.LetzterDienst[Kandidat] = Messe.Datum[MesseNr];
    LetztesGeschlecht = Meßdiener.Geschlecht[Kandidat];
}

Int16 MittelGrößeNach(int n, Int16 größe, Int16 bisher)
{
    const double neue = größe;
    const double mittel = bisher;
    if (n == 1)
        return größe;
    if (n == 2)
        return GerundetInt16(neue / 2 + mittel / 2);
    if (n == 3)
        return GerundetInt16((neue + 2 * mittel) / 3);
    return bisher;
}

void MesseAbschließen()
{
    int belegt = 0;
    for (int s = 0; s <= Meßdiener.Anzahl; ++s)
        belegt += Meßdiener.Belegt[s] > 0;
    BelegtProzent = GerundetInt16(static_cast<double>(belegt) / Meßdiener.Anzahl * 100);
    if (BelegtProzent >= Konfig.GrenzeAuslöse)
        SperreLösen(Meßdiener, MesseNr);
}

int Suchdauer()
{
    return Uhr.Sekunden() - SucheStart;
}

} // namespace altardienst
