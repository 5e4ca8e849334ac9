// The plain ways of assigning servers, which button (3) starts.
#include "assignment/MEßdienerzuweiseung.h"

#include "assignment/Ziehung.h"
#include "core/tables.h"
#include "platform/Meldungen.h"
#include "platform/Uhr.h"
#include "platform/Zufall.h"

#include <algorithm>

namespace altardienst {
namespace {

constexpr int Neustartgrenze = 2;  // whole seconds of search before the mass starts again
constexpr int MeisteNeustarts = 5; // of one mass
constexpr int Aufgabegrenze = 80;  // whole seconds of search before the run ends

int Slots(int messe)
{
    return std::min<int>(Messe.Dienerzahl[messe], MesseTabelle::HöchsterSlot);
}

/// Whether `Kandidat` passes the tests of slot `n`.
template <class Prüfungen> bool Passt(int n)
{
    const Laufstand stand = {.Vergeben = IstVergeben(Meßdiener, Kandidat),
                             .MittelGröße = MittelGröße,
                             .LetztesGeschlecht = LetztesGeschlecht};
    return Prüfungen::Erster({Meßdiener, Kandidat}, {Messe, Konfig, MesseNr, n}, stand) ==
           Grund::Keiner;
}

/// The slot loop of the two simple ways: any named server who is not taken.
void OhnePrüfungFüllen()
{
    const int slots = Slots(MesseNr);
    for (int n = 1; n <= slots; ++n) {
        do
            KandidatZiehen();
        while (!Passt<EinfachePrüfungen>(n));
        MeßdienerEintragen(n);
    }
}

void AlleFreigeben()
{
    for (int s = 0; s <= Meßdiener.Anzahl; ++s)
        Meßdiener.Belegt[s] = 0;
}

/// Returns false if the search was given up.
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
        } while (!Passt<VollePrüfungen>(n));
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
        SperreLösen(Meßdiener, i);
        OhnePrüfungFüllen();
        SperreLösen(Meßdiener, i);
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
