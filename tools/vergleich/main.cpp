// Random parishes, each balanced by the program and by the solver clingo (Debian package gringo):
// vergleich [FIRST SEED] [PARISHES] [SECONDS FOR THE SOLVER]
// [EFFORT OF THE PROGRAM]. With 0 seconds
// the program alone. Exits with 1 if the solver is better. Times are those of the
// processor, so that other work on the machine does not count.
#include "Gegenrechnung.h"
#include "Zufallsgemeinde.h"

#include "assignment/Dienste.h"
#include "fairness/Besetzungssuche.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <exception>
#include <utility>

namespace {

using namespace altardienst;

struct Bilanz {
    int Ohne = 0;     // parishes for which the solver found a plan without a breach
    int Bewiesen = 0; // for which it has proved that there is none better
    int Schlechter = 0;
};

void Vergleichen(std::uint32_t saat, int sekunden, double aufwand, Bilanz &bilanz)
{
    GemeindeErfinden(saat);
    DiensteVerteilen();
    const std::clock_t anfang = std::clock();
    const Besetzungsaufgabe aufgabe =
        AufgabeLesen(GemeinsameTabellen(), Planplatz::Art::Diener, 0, {});
    const Suchergebnis gefunden = BesteBesetzung(aufgabe, {.Aufwand = aufwand});
    const double zeit = static_cast<double>(std::clock() - anfang) / CLOCKS_PER_SEC;
    Lösung eigene = Auszählen(aufgabe, gefunden.Wer);
    // What the solver never does: instead of an empty place somebody against another rule.
    eigene.Verstöße = static_cast<int>(gefunden.Kosten.Verstöße);
    const Gegenlösung andere = sekunden > 0 ? Gegenrechnen(aufgabe, sekunden) : Gegenlösung();

    // With a breach somewhere the two do not mean quite the same: the program would rather have
    // somebody against a rule than an empty place.
    const bool ohne = eigene.Verstöße == 0 && andere.Beste.Verstöße == 0;
    const bool mehr = andere.Gefunden && (eigene.Verstöße > andere.Beste.Verstöße ||
                                          (ohne && eigene.Unpassende > andere.Beste.Unpassende));
    const bool gleich = andere.Gefunden && ohne && eigene.Unpassende == andere.Beste.Unpassende;
    const bool ungleicher =
        gleich && (eigene.Spanne > andere.Beste.Spanne ||
                   eigene.Ungleichheit > 1.02 * andere.Beste.Ungleichheit + 1e-9);
    const bool langsam = andere.Gefunden && zeit > std::max(0.1, andere.Sekunden / 10);
    bilanz.Ohne += andere.Gefunden && andere.Beste.Verstöße == 0;
    bilanz.Bewiesen += andere.Bewiesen;
    bilanz.Schlechter += mehr || ungleicher || langsam;
    std::printf("%3u  %3zu places, %3zu servers", saat, aufgabe.Plätze.size(),
                aufgabe.Personen.size());
    const auto zeigen = [](const char *wer, const Lösung &lösung, double sekunden) {
        std::printf(" | %s %2d breaches, %2d heights, span %d, %6.3f, %5.2f s", wer,
                    lösung.Verstöße, lösung.Unpassende, lösung.Spanne, lösung.Ungleichheit,
                    sekunden);
    };
    zeigen("", eigene, zeit);
    zeigen(!andere.Gefunden  ? "clingo (none)"
           : andere.Bewiesen ? "clingo*"
                             : "clingo ",
           andere.Beste, andere.Sekunden);
    std::printf("%s%s%s\n", mehr ? "  MORE" : "", ungleicher ? "  LESS EVEN" : "",
                langsam ? "  SLOW" : "");
    if (mehr || ungleicher) { // as the program counts the solver's plan
        Besetzung plan(aufgabe);
        plan.Stellen(andere.Wer);
        const Plankosten &k = plan.Kosten();
        std::printf("     the program's: %d breaches, %d hints, %.3f; the solver's: %d, %d, %.3f\n",
                    static_cast<int>(gefunden.Kosten.Verstöße),
                    static_cast<int>(gefunden.Kosten.Hinweise),
                    std::sqrt(static_cast<double>(gefunden.Kosten.Ungleich) * 1e-6),
                    static_cast<int>(k.Verstöße), static_cast<int>(k.Hinweise),
                    std::sqrt(static_cast<double>(k.Ungleich) * 1e-6));
    }
    std::fflush(stdout);
}

} // namespace

int main(int argc, char *argv[])
{
    try {
        const auto zahl = [&](int nr, int sonst) {
            return nr < argc ? std::atoi(argv[nr]) : sonst;
        };
        const int anzahl = zahl(2, 300);
        Bilanz bilanz;
        for (int k = 0; k < anzahl; ++k)
            Vergleichen(static_cast<std::uint32_t>(zahl(1, 1) + k), zahl(3, 10), zahl(4, 1),
                        bilanz);
        std::printf(
            "%d parishes, %d without a breach, %d proved best (*), %d in which the solver was "
            "better\n",
            anzahl, bilanz.Ohne, bilanz.Bewiesen, bilanz.Schlechter);
        return bilanz.Schlechter > 0 ? 1 : 0;
    } catch (const std::exception &fehler) {
        std::fprintf(stderr, "vergleich: %s\n", fehler.what());
        return 2;
    }
}
