// The largest usual plan made fair, against one full draw of it: 300 masses of 12 places with 200
// servers. Ends with an error if the plan is not what it must be, if the search does not look often
// enough whether it is to end, or if it takes too much memory.
#include "Bestand.h"
#include "Messung.h"

#include "assignment/MEßdienerzuweiseung.h"
#include "core/tables.h"
#include "fairness/Ausgleich.h"
#include "platform/Meldungen.h"
#include "platform/Uhr.h"
#include "platform/Zufall.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

namespace altardienst {
namespace {

constexpr double LängstesWarten = 0.1; // seconds until the search notices that it is to end
constexpr double MeisterSpeicher = 50; // MB

[[noreturn]] void Verfehlt(const char *was, double wert)
{
    std::fprintf(stderr, "MISSED: %s: %g\n", was, wert);
    std::exit(1);
}

/// The most memory that the process has had, in MB; 0 where the system does not tell.
double Höchststand()
{
    std::ifstream zeilen("/proc/self/status");
    for (std::string wort; zeilen >> wort;)
        if (double kilobytes = 0; wort == "VmHWM:" && zeilen >> kilobytes)
            return kilobytes / 1024;
    return 0;
}

void Ziehen()
{
    MeßdienerVollZuweisen();
}

void Vorbereiten()
{
    BestandFürZuweisung();
    Zufall = ZufallMitSaat(1964);
}

void Gezogen()
{
    Vorbereiten();
    Ziehen();
}

void Ausgleichen()
{
    using Zeit = std::chrono::steady_clock;
    const double vorher = Höchststand();
    auto zuletzt = Zeit::now();
    double längste = 0;
    const Ausgleichsergebnis ergebnis = PlanAusgleichen(
        GemeinsameTabellen(), {.Abbruch = [&] {
            const auto jetzt = Zeit::now();
            längste = std::max(längste, std::chrono::duration<double>(jetzt - zuletzt).count());
            zuletzt = jetzt;
            return false;
        }});
    längste = std::max(längste, std::chrono::duration<double>(Zeit::now() - zuletzt).count());
    const double speicher = Höchststand() - vorher;
    double abweichung = 0;
    for (const Personenanteil &anteil : ergebnis.Diener.Anteile)
        abweichung = std::max(abweichung, std::abs(anteil.Nachher - anteil.Soll));
    std::printf("%d breaches, %d to %d services, at most %.2f from the due share, looks every %.1f "
                "ms whether to end, %.1f MB\n",
                ergebnis.Diener.Nachher.Verstöße, ergebnis.Diener.Nachher.Wenigste,
                ergebnis.Diener.Nachher.Meiste, abweichung, längste * 1000, speicher);
    if (ergebnis.Diener.Nachher.Verstöße > 0)
        Verfehlt("breaches", ergebnis.Diener.Nachher.Verstöße);
    if (abweichung > 1)
        Verfehlt("services from the due share", abweichung);
    if (längste > LängstesWarten)
        Verfehlt("seconds until the search ends", längste);
    if (speicher > MeisterSpeicher)
        Verfehlt("MB of memory", speicher);
}

} // namespace

void MessungenAnmelden()
{
    Uhr = Systemuhr();
    // A search that is given up would spoil the figures.
    Meldungen.Zeigen = [](const Text &text) {
        std::fprintf(stderr, "%s\n", text.c_str());
        std::abort();
    };
    MessungAnmelden({.Name = "Plan ausgleichen",
                     .Maßstabname = "einmal voll zuweisen",
                     .Gemessen = {Gezogen, Ausgleichen},
                     .Maßstab = {Vorbereiten, Ziehen},
                     .Ziel = 2000,
                     .Durchläufe = 3});
}

} // namespace altardienst
