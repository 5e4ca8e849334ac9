// Random parishes, each balanced by the program and by the solver clingo (Debian package gringo):
// vergleich [FIRST SEED] [PARISHES] [SECONDS FOR THE SOLVER] [EFFORT OF THE PROGRAM] [DIRECTORY]
// With 0 seconds the program alone. The solver's answers lie in the directory and count the next
// time. Exits with 1 if the solver is better. Times are those of the processor, so that other work
// on the machine does not count.
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
#include <filesystem>
#include <utility>

namespace {

using namespace altardienst;

struct Bilanz {
    int Ohne = 0;     // parishes for which the solver found a plan without a breach
    int Bewiesen = 0; // for which it has proved that there is none better
    int Schlechter = 0;
    int Ungünstiger = 0; // with a breach, of no more weight than the solver's
};

struct Vorgaben {
    int Sekunden; // for the solver
    double Aufwand;
    std::filesystem::path Verzeichnis;
};

void Vergleichen(std::uint32_t saat, const Vorgaben &vorgaben, Bilanz &bilanz)
{
    GemeindeErfinden(saat);
    DiensteVerteilen();
    const std::clock_t anfang = std::clock();
    const Besetzungsaufgabe aufgabe =
        AufgabeLesen(GemeinsameTabellen(), Planplatz::Art::Diener, 0, {});
    const Suchergebnis gefunden = BesteBesetzung(aufgabe, {.Aufwand = vorgaben.Aufwand});
    const double zeit = static_cast<double>(std::clock() - anfang) / CLOCKS_PER_SEC;
    Lösung eigene = Auszählen(aufgabe, gefunden.Wer);
    // What the solver never does: instead of an empty place somebody against another rule.
    eigene.Verstöße = static_cast<int>(gefunden.Kosten.Verstöße);
    const Gegenlösung andere = vorgaben.Sekunden > 0
                                   ? Gegenrechnen(aufgabe, vorgaben.Sekunden, vorgaben.Verzeichnis)
                                   : Gegenlösung();

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
    Besetzung plan(aufgabe); // the solver's, as the program counts it
    if (andere.Gefunden)
        plan.Stellen(andere.Wer);
    const Plankosten &k = plan.Kosten();
    const bool ungünstiger =
        andere.Gefunden && !ohne &&
        (gefunden.Kosten.Verstöße > k.Verstöße ||
         (gefunden.Kosten.Verstöße == k.Verstöße && gefunden.Kosten.Schwere == k.Schwere &&
          gefunden.Kosten.Hinweise == k.Hinweise &&
          static_cast<double>(gefunden.Kosten.Ungleich) >
              1.02 * 1.02 * static_cast<double>(k.Ungleich)));
    bilanz.Ungünstiger += ungünstiger;
    std::printf("%s%s%s%s\n", mehr ? "  MORE" : "", ungleicher ? "  LESS EVEN" : "",
                langsam ? "  SLOW" : "", ungünstiger ? "  (WITH A BREACH, LESS EVEN)" : "");
    if (mehr || ungleicher || ungünstiger)
        std::printf("     the program's: %d breaches, %d hints, %.3f; the solver's: %d, %d, %.3f\n",
                    static_cast<int>(gefunden.Kosten.Verstöße),
                    static_cast<int>(gefunden.Kosten.Hinweise),
                    std::sqrt(static_cast<double>(gefunden.Kosten.Ungleich) * 1e-6),
                    static_cast<int>(k.Verstöße), static_cast<int>(k.Hinweise),
                    std::sqrt(static_cast<double>(k.Ungleich) * 1e-6));
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
        const Vorgaben vorgaben = {zahl(3, 10), argc > 4 ? std::atof(argv[4]) : 1,
                                   argc > 5 ? argv[5]
                                            : std::filesystem::temp_directory_path() / "vergleich"};
        std::filesystem::create_directories(vorgaben.Verzeichnis);
        Bilanz bilanz;
        for (int k = 0; k < anzahl; ++k)
            Vergleichen(static_cast<std::uint32_t>(zahl(1, 1) + k), vorgaben, bilanz);
        std::printf(
            "%d parishes, %d without a breach, %d proved best (*), %d in which the solver was "
            "better; of those with a breach %d that it made more even\n",
            anzahl, bilanz.Ohne, bilanz.Bewiesen, bilanz.Schlechter, bilanz.Ungünstiger);
        return bilanz.Schlechter > 0 ? 1 : 0;
    } catch (const std::exception &fehler) {
        std::fprintf(stderr, "vergleich: %s\n", fehler.what());
        return 2;
    }
}
