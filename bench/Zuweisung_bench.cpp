// The assignment of servers with all rules, per draw, against the bare draw.
#include "Bestand.h"
#include "Messung.h"
#include "kern_bench.h"

#include "assignment/MEßdienerzuweiseung.h"
#include "assignment/Ziehung.h"
#include "core/tables.h"
#include "platform/Meldungen.h"
#include "platform/Uhr.h"
#include "platform/Zufall.h"

#include <cstdio>
#include <cstdlib>
#include <memory>

namespace altardienst {
namespace {

constexpr std::uint32_t Saat = 1964;

/// The number of draws in the run with this seed. The timed runs make the same draws again without
/// counting them.
int ZiehungenZählen()
{
    BestandFürZuweisung();
    auto ziehungen = std::make_shared<int>(0);
    Zufall = ZufallMitSaat(Saat);
    Zufall.Nächste = [nächste = Zufall.Nächste, ziehungen] {
        ++*ziehungen;
        return nächste();
    };
    MeßdienerVollZuweisen();
    return *ziehungen;
}

int Ziehungen = 0;

void Vorbereiten()
{
    BestandFürZuweisung();
    Zufall = ZufallMitSaat(Saat);
}

void NurZiehen()
{
    for (int i = 0; i < Ziehungen; ++i)
        KandidatZiehen();
}

} // namespace

void ZuweisungMessungen()
{
    Uhr = Systemuhr();
    // A search that is given up would spoil the figures.
    Meldungen.Zeigen = [](const Text &text) {
        std::fprintf(stderr, "%s\n", text.c_str());
        std::abort();
    };
    Ziehungen = ZiehungenZählen();
    MessungAnmelden({.Name = "Meßdiener voll zuweisen, je Ziehung",
                     .Maßstabname = "nur ziehen",
                     .Gemessen = {Vorbereiten, MeßdienerVollZuweisen},
                     .Maßstab = {Vorbereiten, NurZiehen},
                     .Ziel = 8,
                     .Durchläufe = 60,
                     .Einheiten = static_cast<double>(Ziehungen)});
}

} // namespace altardienst
