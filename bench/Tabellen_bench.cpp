// The largest plan as a table for a spreadsheet, against writing the same bytes as the program
// writes files.
#include "Messung.h"
#include "VollerPlan.h"
#include "Zieldatei.h"
#include "kern_bench.h"

#include "core/Plätze.h"
#include "core/tables.h"
#include "exchange/Tabellen.h"
#include "platform/GanzSchreiben.h"

#include <cstdlib>
#include <numeric>
#include <string>
#include <vector>

namespace altardienst {
namespace {

constexpr double Ziel = 3;
constexpr std::size_t WenigsteBytes = 300'000; // a plan without names would be fast

const std::filesystem::path &Datei()
{
    static const Zieldatei datei("bench_tabellen");
    return datei.Pfad();
}

/// 602 masses of 20 servers and eight helpers.
void GroßerPlan()
{
    VollerPlan();
    for (int i = 0; i < Messe.Anzahl; ++i) {
        Messe.Dienerzahl[i] = MesseTabelle::HöchsterSlot;
        for (const Helferart &art : Helferarten)
            art.Zahl.In(Messe)[i] = 2;
    }
}

std::string MitAllenSpalten(Tabellenart art)
{
    std::vector<int> spalten(Tabellenspalten(art).size());
    std::iota(spalten.begin(), spalten.end(), 0);
    return Tabellendatei(art, spalten);
}

void Anmelden(const char *name, Tabellenart art)
{
    const std::string bytes = MitAllenSpalten(art);
    if (bytes.size() < WenigsteBytes)
        std::abort();
    MessungAnmelden(
        {.Name = name,
         .Maßstabname = "dieselben Bytes schreiben",
         .Gemessen = {GroßerPlan, [art] { GanzSchreiben(Datei(), MitAllenSpalten(art)); }},
         .Maßstab = {nullptr, [bytes] { GanzSchreiben(Datei(), bytes); }},
         .Ziel = Ziel,
         .Durchläufe = 100});
}

} // namespace

void TabellenMessungen()
{
    GroßerPlan();
    Anmelden("Plan als Tabelle, je Dienst", Tabellenart::Dienste);
    Anmelden("Plan als Tabelle, je Messe", Tabellenart::Messen);
}

} // namespace altardienst
