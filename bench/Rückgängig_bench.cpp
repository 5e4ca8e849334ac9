// Steps that can be taken back, against the same steps alone.
#include "Bestand.h"
#include "Messung.h"
#include "kern_bench.h"

#include "assignment/Zuweisungsrahmen.h"
#include "core/Sortierbefehle.h"
#include "core/tables.h"
#include "fixed/FesteMeßdienerÜbertragen.h"
#include "history/Rückgängig.h"
#include "history/Tabellenstand.h"
#include "planning/MessenBestimmen.h"
#include "platform/Meldungen.h"
#include "platform/Zufall.h"

#include <functional>
#include <string>

#include <benchmark/benchmark.h>

namespace altardienst {
namespace {

constexpr std::uint32_t Saat = 1964;

/// As the program is when the user presses the button: it has waited for him, and looked.
void NachEinerPause()
{
    SchritteBeginnen();
    TabellenUnberührt = [] { return true; };
    Zufall = ZufallMitSaat(Saat);
    Meldungen.Zeigen = [](const Text &) {};
    Meldungen.FragenVorVerlust = [](const Text &, const Text &) { return true; };
}

void UmgekehrteMessen()
{
    VollerBestand();
    Messe.Anzahl = MesseTabelle::HöchsterIndex;
    for (int i = 0; i < Messe.Anzahl; ++i) {
        Messe.Datum[i] = 46000 - i / 2;
        Messe.Uhrzeit[i] = ZeitAus((i % 2 == 0 ? 18 : 9) * 3600);
    }
    NachEinerPause();
}

/// 300 masses before, 450 after.
void VolleWoche()
{
    VollerBestand();
    Messe.Anzahl = 300;
    MesseDienerFest.Anzahl = 20;
    Konfig.StartDatum = 46000;
    NachEinerPause();
}

void Gemeinde()
{
    BestandFürZuweisung();
    NachEinerPause();
}

void Besetzen()
{
    MessenMitMeßdienerBesetzen(FesteMeßdienerÜbertragen);
}

void AlsSchritt(const char *name, const std::function<void()> &vorbereiten,
                const std::function<void()> &tun, int durchläufe)
{
    const auto schritt = [tun] { Schritt("Schritt", tun); };
    MessungAnmelden({.Name = Text("Schritt mit Rückgängig: ") + name,
                     .Maßstabname = "allein",
                     .Gemessen = {vorbereiten, schritt},
                     .Maßstab = {vorbereiten, tun},
                     .Ziel = 1.2,
                     .Durchläufe = durchläufe});
}

void AllesKopieren()
{
    benchmark::DoNotOptimize(TabellenAufnehmen());
}

void VolleTabellen()
{
    VollerBestand();
    NachEinerPause();
}

void VolleTabellenNachDemSortieren()
{
    UmgekehrteMessen();
    Schritt("sortieren", MessenSortieren);
}

} // namespace

void RückgängigMessungen()
{
    AlsSchritt("(1)", VolleWoche, MessenNeuBestimmen, 100);
    AlsSchritt("(3)", Gemeinde, Besetzen, 40);
    AlsSchritt("602 Messen sortieren", UmgekehrteMessen, MessenSortieren, 200);
    MessungAnmelden({.Name = "Nachsehen in der Pause, nichts geändert",
                     .Maßstabname = "alle Tabellen kopieren",
                     .Gemessen = {VolleTabellen, TabellenBeobachten},
                     .Maßstab = {VolleTabellen, AllesKopieren},
                     .Ziel = 1,
                     .Durchläufe = 100});
    MessungAnmelden({.Name = "Nachsehen in der Pause nach dem Sortieren",
                     .Maßstabname = "alle Tabellen kopieren",
                     .Gemessen = {VolleTabellenNachDemSortieren, TabellenBeobachten},
                     .Maßstab = {VolleTabellen, AllesKopieren},
                     .Ziel = 1,
                     .Durchläufe = 100});
}

} // namespace altardienst
