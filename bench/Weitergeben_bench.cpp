// The largest plan given away as a calendar and as a web page, against writing the same bytes as
// the program writes files.
#include "Messung.h"
#include "VollerPlan.h"
#include "Zieldatei.h"
#include "kern_bench.h"

#include "core/Plätze.h"
#include "core/tables.h"
#include "exchange/Kalender.h"
#include "exchange/Webseite.h"
#include "platform/GanzSchreiben.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <utility>

namespace altardienst {
namespace {

namespace fs = std::filesystem;

constexpr double Ziel = 3;

const fs::path &Datei()
{
    static const Zieldatei datei("bench_weitergeben");
    return datei.Pfad();
}

constexpr const char *Gemeinde = "St. Weitergeben";

/// 602 masses of 20 servers and eight helpers, two masses a day. Made once: giving it away changes
/// nothing.
void GroßerPlan()
{
    if (Konfig.Gemeinde == Gemeinde)
        return;
    VollerPlan();
    Konfig.Gemeinde = Gemeinde;
    for (int i = 0; i < Messe.Anzahl; ++i) {
        Messe.Datum[i] = DatumAus({2026, 11, 28}) + i / 2;
        Messe.Uhrzeit[i] = ZeitAus((i % 2 == 0 ? 9 : 18) * 3600);
        Messe.Dienerzahl[i] = MesseTabelle::HöchsterSlot;
        for (const Helferart &art : Helferarten)
            art.Zahl.In(Messe)[i] = 2;
    }
}

std::string AlsKalender()
{
    Kalenderausgabe ausgabe = MessenAlsKalender(GemeinsameTabellen(), Namenvorschlag);
    return std::move(ausgabe.Dateien.at(0).Bytes);
}

std::string AlsWebseite()
{
    return PlanAlsWebseite(GemeinsameTabellen(), {.Titel = "Messen"}).Bytes;
}

void Anmelden(const char *name, std::string (*ausgabe)())
{
    const std::string bytes = ausgabe();
    if (bytes.size() < 100000) // a plan without names would be fast
        std::abort();
    std::printf("%s: %zu KB\n", name, bytes.size() / 1000);
    MessungAnmelden({.Name = name,
                     .Maßstabname = "dieselben Bytes schreiben",
                     .Gemessen = {GroßerPlan,
                                  [ausgabe, größe = bytes.size()] {
                                      const std::string neue = ausgabe();
                                      if (neue.size() != größe) // another plan in the tables
                                          std::abort();
                                      GanzSchreiben(Datei(), neue);
                                  }},
                     .Maßstab = {nullptr, [bytes] { GanzSchreiben(Datei(), bytes); }},
                     .Ziel = Ziel,
                     .Durchläufe = 100});
}

} // namespace

void WeitergebenMessungen()
{
    GroßerPlan();
    Anmelden("Plan als Kalender", AlsKalender);
    Anmelden("Plan als Webseite", AlsWebseite);
}

} // namespace altardienst
