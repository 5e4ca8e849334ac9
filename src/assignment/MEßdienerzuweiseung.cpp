// The plain ways of assigning servers, behind button (3).
#include "assignment/MEßdienerzuweiseung.h"

#include "assignment/Ziehung.h"
#include "core/tables.h"
#include "platform/Meldungen.h"
#include "platform/Uhr.h"
#include "platform/Zufall.h"

#include <algorithm>

namespace altardienst {
namespace {

constexpr int Neustartgrenze = 2;      // whole seconds of search, then the mass starts again
constexpr int MeisteNeustarts = 5;     // of one mass
constexpr int Aufgabegrenze = 80;      // whole seconds of search, then the run ends
constexpr int HöchsterDienstSlot = 16; // the slots above carry no named service

int Slots(int messe)
{
    return std::min<int>(Messe.Dienerzahl[messe], HöchsterSlot);
}

/// The slot loop of the two simple ways: any named server who is not taken.
void OhnePrüfungFüllen()
{
    const int slots = Slots(MesseNr);
    for (int n = 1; n <= slots; ++n) {
        do
            KandidatZiehen();
        while (!HatNamen() || Meßdiener.Belegt[Kandidat] == 1);
        MeßdienerEintragen(n);
    }
}

void AlleFreigeben()
{
    for (int s = 0; s <= Meßdiener.Anzahl; ++s)
        Meßdiener.Belegt[s] = 0;
}

bool GrößePasst()
{
    const Int16 größe = Meßdiener.Größe[Kandidat];
    return MittelGröße - Konfig.DiffGröße <= größe && größe <= MittelGröße + Konfig.DiffGröße;
}

/// The tests of slot `n`, in their order.
bool Passt(int n)
{
    if (!HatNamen() || !IstFrei())
        return false;
    if (n >= 2 && !GrößePasst())
        return false;
    if (n <= HöchsterDienstSlot && !IstQualifiziert(Messe.DienerDienst[MesseNr][n - 1]))
        return false;
    if (!IstAnwesend())
        return false;
    // Servers stand in pairs of one sex: slots 1 and 2, 3 and 4, and so on.
    if (n % 2 == 0 && Meßdiener.Geschlecht[Kandidat] != LetztesGeschlecht)
        return false;
    return WochenwunschErlaubt();
}

/// False if the search was given up.
bool MesseFüllen()
{
    const int slots = Slots(MesseNr);
    for (int n = 1; n <= slots; ++n) {
        SucheStart = Uhr.Sekunden();
        do {
            KandidatZiehen();
            // A restart clears nothing: the servers of the abandoned attempt stay taken, which
            // changes the pool from which the mass is drawn.
            while (Suchdauer() > Neustartgrenze && Neustarts < MeisteNeustarts) {
                SucheStart = Uhr.Sekunden();
                ++Neustarts;
                n = 1;
                KandidatZiehen();
            }
            if (Suchdauer() > Aufgabegrenze) {
                Meldungen.Zeigen("Es sind die Qualifikationen der Meßdiener bzw. die "
                                 "Größendifferenz anzupassen!!!!!");
                return false;
            }
        } while (!Passt(n));
        MeßdienerEintragen(n);
    }
    return true;
}

} // namespace

void MeßdienerKnappZuweisen()
{
    Zufall.Streuen();
    for (int i = 0; i <= Messe.Anzahl; ++i) {
        MesseNr = i;
        OhnePrüfungFüllen();
        AlleFreigeben();
    }
}

void MeßdienerFreiZuweisen()
{
    Zufall.Streuen();
    for (int i = 0; i <= Messe.Anzahl; ++i) {
        MesseNr = i;
        SperreLösen(i);
        OhnePrüfungFüllen();
        SperreLösen(i);
    }
}

void MeßdienerVollZuweisen()
{
    Zufall.Streuen();
    AlleFreigeben();
    for (int i = 0; i <= Messe.Anzahl; ++i) {
        MesseNr = i;
        Neustarts = 0;
        if (!MesseFüllen())
            return;
        MesseAbschließen();
    }
}

} // namespace altardienst
