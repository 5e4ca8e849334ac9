// Opening the window of the services of each server until it is on the screen, against a plain
// comparison of all servers with all slots.
#include "Messung.h"
#include "VollerPlan.h"

#include "application/Anwendung.h"
#include "statistics/StatDienstForm.h"

#include <cstdlib>

#include <benchmark/benchmark.h>

namespace altardienst {
namespace {

QWidget *offen = nullptr; // the last one is never deleted

void Vorbereiten()
{
    delete offen;
    offen = nullptr;
    VollerPlan();
}

void Zeigen()
{
    offen->show();
    QApplication::processEvents();
}

void Messen(const char *name, std::function<void()> öffnen)
{
    MessungAnmelden({.Name = name,
                     .Maßstabname = "alle mit allen vergleichen",
                     .Gemessen = {Vorbereiten, std::move(öffnen)},
                     .Maßstab = {Vorbereiten, [] { benchmark::DoNotOptimize(AlleMitAllen()); }},
                     .Ziel = 0.05,
                     .Durchläufe = 100});
}

} // namespace

void MessungenAnmelden()
{
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    static int argc = 1;
    static char name[] = "bench_statistik";
    static char *argv[] = {name, nullptr};
    // Never deleted either: at exit Qt has already torn down things that a shown window still
    // refers to.
    AnwendungEinrichten(*new QApplication(argc, argv));
    Messen("Leeres Fenster öffnen", [] {
        offen = new QWidget;
        Zeigen();
    });
    Messen("Fenster der Dienste füllen", [] { offen = new StatDienstForm; });
    Messen("Fenster der Dienste öffnen", [] {
        offen = new StatDienstForm;
        Zeigen();
    });
}

} // namespace altardienst
