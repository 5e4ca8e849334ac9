// Counting the services of each server when their window opens, against a plain comparison of all
// servers with all slots.
#include "Messung.h"
#include "VollerPlan.h"
#include "kern_bench.h"

#include "core/tables.h"

#include <cstdio>
#include <cstdlib>

#include <benchmark/benchmark.h>

namespace altardienst {
namespace {

/// Both must arrive at the same figures, or there is nothing to compare.
void Vergleichen()
{
    Meßdienerzählung gezählt = MeßdienerdiensteZählen();
    Meßdienerzählung verglichen = AlleMitAllen();
    for (int d = 0; d <= Meßdiener.Anzahl; ++d)
        if (gezählt[d].Dienste != verglichen[d].Dienste) {
            std::fprintf(stderr, "the counts of server %d differ\n", d);
            std::abort();
        }
}

} // namespace

void StatistikMessungen()
{
    VollerPlan();
    Vergleichen();
    MessungAnmelden(
        {.Name = "Dienste der Meßdiener zählen",
         .Maßstabname = "alle mit allen vergleichen",
         .Gemessen = {VollerPlan, [] { benchmark::DoNotOptimize(MeßdienerdiensteZählen()); }},
         .Maßstab = {VollerPlan, [] { benchmark::DoNotOptimize(AlleMitAllen()); }},
         .Ziel = 0.05,
         .Durchläufe = 30});
}

} // namespace altardienst
