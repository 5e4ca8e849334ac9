// The partner way of assigning servers, which button (4) starts.
#include "assignment/ZweiMeßdienerzuweisen.h"

#include "assignment/Ziehung.h"
#include "assignment/Zuweisungsrahmen.h"
#include "core/tables.h"
#include "platform/Meldungen.h"
#include "platform/Uhr.h"
#include "platform/Zufall.h"

namespace altardienst {
namespace {

constexpr int Neustartgrenze = 2;  // whole seconds of search before the mass starts again
constexpr int MeisteNeustarts = 5; // of one mass
constexpr int Aufgabegrenze = 100; // whole seconds of search before the run ends

Int16 Slot; // the slot being filled, from 1

/// Calls `f` with each server of exactly this name.
template <class F> void FürJedenNamens(const Text &vorname, const Text &nachname, F f)
{
    for (int p = 0; p <= Meßdiener.Anzahl; ++p)
        if (Meßdiener.Nachname[p] == nachname && Meßdiener.Vorname[p] == vorname)
            f(p);
}

/// Takes servers who are fixed to a mass on this day or the day before out of the draw. An entry
/// for a group matches no server.
void FesteSperren()
{
    constexpr int HöchsterGesehener = 100; // entries above it block nobody
    for (int k = 0; k <= HöchsterGesehener; ++k) {
        if (!IstGesperrt(MesseDienerFest.Datum[k], Messe.Datum[MesseNr]))
            continue;
        for (int n = 1; n <= MesseDienerFestTabelle::HöchsterSlot; ++n) {
            const Text &vorname = MesseDienerFest.Vorname[k][n];
            const Text &nachname = MesseDienerFest.Nachname[k][n];
            if (vorname.empty() || nachname.empty())
                continue;
            FürJedenNamens(vorname, nachname, [](int p) {
                Meßdiener.Belegt[p] = 1;
                Meßdiener.LetzterDienst[p] = Messe.Datum[MesseNr];
            });
        }
    }
}

/// Places `Kandidat` in `Slot`, and the wish partner in the next one unless somebody with that name
/// is taken. The partner is tested for nothing else, and the wish is written as it is, even if no
/// server has that name.
void WunschpartnerEintragen()
{
    MeßdienerEintragen(Slot);
    if (!HatWunschpartner(Meßdiener, Kandidat) || Slot >= MesseTabelle::HöchsterSlot ||
        Slot >= Messe.Dienerzahl[MesseNr])
        return;
    const Text &vorname = Meßdiener.WunschVorname[Kandidat];
    const Text &nachname = Meßdiener.WunschNachname[Kandidat];
    bool vergeben = false;
    FürJedenNamens(vorname, nachname,
                   [&](int p) { vergeben = vergeben || IstVergeben(Meßdiener, p); });
    if (vergeben)
        return;
    Messe.DienerVor[MesseNr][Slot + 1] = vorname;
    Messe.DienerNach[MesseNr][Slot + 1] = nachname;
    ++Meßdiener.DienstZähler[Kandidat];
    FürJedenNamens(vorname, nachname, [](int p) {
        Meßdiener.Belegt[p] = 1;
        Meßdiener.LetzterDienst[p] = Messe.Datum[MesseNr];
        ++Meßdiener.DienstZähler[p];
    });
    ++Slot;
}

enum class Urteil { Passt, Abgelehnt, MesseFertig };

/// Skips a slot whose service is set by hand.
Urteil SlotÜbergehen()
{
    const bool kreuz = DienstDesSlots(MesseNr, Slot) == Kreuzträger.Name;
    ++Slot; // at the last slot too, so a server can end up beyond the count
    return kreuz && Slot == Messe.Dienerzahl[MesseNr] ? Urteil::MesseFertig : Urteil::Abgelehnt;
}

/// Tests the drawn server for `Slot`.
Urteil Prüfen()
{
    const Laufstand stand = {.Vergeben = IstVergeben(Meßdiener, Kandidat),
                             .LetztesGeschlecht = LetztesGeschlecht,
                             .Paare = Meßdiener.DienstZähler[Kandidat],
                             .DienstProDiener = DienstProDiener};
    switch (
        Partnerprüfungen::Erster({Meßdiener, Kandidat}, {Messe, Konfig, MesseNr, Slot}, stand)) {
    case Grund::Keiner:
        return Urteil::Passt;
    case Grund::VonHand:
        return SlotÜbergehen();
    default:
        return Urteil::Abgelehnt;
    }
}

/// Returns false if the search was given up.
bool MesseFüllen()
{
    for (Slot = 1; Slot <= Messe.Dienerzahl[MesseNr]; ++Slot) {
        SucheStart = Uhr.Sekunden();
        Urteil urteil;
        do {
            KandidatZiehen();
            while (Suchdauer() > Neustartgrenze && Neustarts < MeisteNeustarts) {
                SucheStart = Uhr.Sekunden();
                Slot = 1;
                ++Neustarts;
                KandidatZiehen();
            }
            if (Suchdauer() > Aufgabegrenze) {
                Meldungen.Zeigen("Es sind die Qualifikationen der Meßdiener bzw. die "
                                 "Größendifferenz anzupassen !!!!!");
                return false;
            }
            urteil = Prüfen();
            if (urteil == Urteil::MesseFertig)
                return true;
        } while (urteil != Urteil::Passt);
        WunschpartnerEintragen();
    }
    return true;
}

} // namespace

void WunschpartnerZuweisen()
{
    Zufall.Streuen();
    for (int s = 0; s <= Meßdiener.Anzahl; ++s) {
        Meßdiener.Belegt[s] = 0;
        Meßdiener.DienstZähler[s] = 0;
    }
    for (int i = 0; i <= Messe.Anzahl; ++i) {
        MesseNr = i;
        FesteSperren();
        Neustarts = 0;
        if (!MesseFüllen())
            return;
        MesseAbschließen();
    }
}

} // namespace altardienst
