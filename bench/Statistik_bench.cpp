// Counting the services of each server when their window opens, against the plain comparison of all
// servers with all slots.
#include "Bestand.h"
#include "Messung.h"
#include "kern_bench.h"

#include "core/tables.h"
#include "statistics/Dienstzählung.h"

#include <array>
#include <cstdio>
#include <cstdlib>

#include <benchmark/benchmark.h>

namespace altardienst {
namespace {

/// 400 servers and 603 masses of 21 slots, in which the servers of the table stand in turn.
void Vorbereiten()
{
    VollerBestand();
    // The record and the mass behind the last ones take part.
    Meßdiener.Anzahl = 399;
    Messe.Anzahl = 602;
    int person = 0;
    for (int i = 0; i <= Messe.Anzahl; ++i)
        for (int slot = 0; slot <= MesseTabelle::HöchsterSlot; ++slot) {
            person = (person + 7) % (Meßdiener.Anzahl + 1);
            Messe.DienerVor[i][slot] = Meßdiener.Vorname[person];
            Messe.DienerNach[i][slot] = Meßdiener.Nachname[person];
        }
}

Meßdienerzählung AlleMitAllen()
{
    constexpr std::array<const char *, 6> Dienste = {"Gabenbereitung", "Leuchter",    "Flambeau",
                                                     "Weihrauch",      "Kreuzträger", "Allgemein"};
    Meßdienerzählung zählung;
    for (int d = 0; d <= Meßdiener.Anzahl; ++d) {
        zählung[d].Vorname = Meßdiener.Vorname[d];
        zählung[d].Nachname = Meßdiener.Nachname[d];
        for (int i = 0; i <= Messe.Anzahl; ++i)
            for (int slot = 0; slot <= MesseTabelle::HöchsterSlot; ++slot) {
                if (Messe.DienerNach[i][slot] != zählung[d].Nachname ||
                    Messe.DienerVor[i][slot] != zählung[d].Vorname || slot == 0)
                    continue;
                for (std::size_t art = 0; art < Dienste.size(); ++art)
                    if (Messe.DienerDienst[i][slot - 1] == Dienste[art])
                        ++zählung[d].Dienste[art];
            }
    }
    return zählung;
}

/// Both must come to the same figures, or there is nothing to compare.
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
    Vorbereiten();
    Vergleichen();
    MessungAnmelden(
        {.Name = "Dienste der Meßdiener zählen",
         .Maßstabname = "alle mit allen vergleichen",
         .Gemessen = {Vorbereiten, [] { benchmark::DoNotOptimize(MeßdienerdiensteZählen()); }},
         .Maßstab = {Vorbereiten, [] { benchmark::DoNotOptimize(AlleMitAllen()); }},
         .Ziel = 0.05,
         .Durchläufe = 30});
}

} // namespace altardienst
