// Runs the measurements and prints the ratios after Google Benchmark's own report.
#include "Messung.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

#include <benchmark/benchmark.h>

namespace altardienst {
namespace {

double Median(std::vector<double> werte)
{
    auto mitte = werte.begin() + static_cast<std::ptrdiff_t>(werte.size() / 2);
    std::nth_element(werte.begin(), mitte, werte.end());
    return *mitte;
}

/// Seconds.
double Dauer(const Arbeit &arbeit)
{
    if (arbeit.Vorbereiten)
        arbeit.Vorbereiten();
    auto anfang = std::chrono::steady_clock::now();
    arbeit.Ausführen();
    auto ende = std::chrono::steady_clock::now();
    return std::chrono::duration<double>(ende - anfang).count();
}

struct Ergebnis {
    std::string Zeile;
    bool Erreicht;
};

std::vector<Ergebnis> Ergebnisse;

/// The two pieces of work take turns, and the ratio is the median over pairs of consecutive turns:
/// other load on the machine slows both sides of such a pair equally.
void Messen(benchmark::State &lauf, const Messung &messung)
{
    std::vector<double> zeiten;
    std::vector<double> maßstäbe;
    std::vector<double> verhältnisse;
    for ([[maybe_unused]] auto _ : lauf) {
        maßstäbe.push_back(Dauer(messung.Maßstab));
        zeiten.push_back(Dauer(messung.Gemessen));
        verhältnisse.push_back(zeiten.back() / maßstäbe.back());
        lauf.SetIterationTime(zeiten.back());
    }
    double verhältnis = Median(verhältnisse);
    lauf.counters["ratio"] = verhältnis;
    lauf.counters["target"] = messung.Ziel;

    bool erreicht = verhältnis <= messung.Ziel;
    auto mikrosekunden = [&](const std::vector<double> &werte) {
        return Median(werte) / messung.Einheiten * 1e6;
    };
    char zahlen[160];
    std::snprintf(zahlen, sizeof zahlen, "%.3f us, %s: %.3f us, ratio %.3g, target %.3g: %s",
                  mikrosekunden(zeiten), messung.Maßstabname.c_str(), mikrosekunden(maßstäbe),
                  verhältnis, messung.Ziel, erreicht ? "reached" : "MISSED");
    Ergebnisse.push_back({messung.Name + ": " + zahlen, erreicht});
}

} // namespace

void MessungAnmelden(const Messung &messung)
{
    benchmark::RegisterBenchmark(messung.Name.c_str(),
                                 [messung](benchmark::State &lauf) { Messen(lauf, messung); })
        ->UseManualTime()
        ->Iterations(messung.Durchläufe)
        ->Unit(benchmark::kMicrosecond);
}

} // namespace altardienst

int main(int argc, char **argv)
{
    using namespace altardienst;
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    MessungenAnmelden();
    benchmark::RunSpecifiedBenchmarks();
    std::printf("\n");
    for (const Ergebnis &ergebnis : Ergebnisse)
        std::printf("%s\n", ergebnis.Zeile.c_str());
    return std::ranges::all_of(Ergebnisse, &Ergebnis::Erreicht) ? 0 : 1;
}
