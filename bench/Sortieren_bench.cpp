// Sorting the masses from reverse order, against a stable sort of the same keys with one move per
// record.
#include "Bestand.h"
#include "Messung.h"
#include "kern_bench.h"

#include "core/Sortierbefehle.h"
#include "core/tables.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <vector>

#include <benchmark/benchmark.h>

namespace altardienst {
namespace {

/// The most that can be sorted completely: the top record is the scratch record of the swaps.
constexpr int Messen = MesseTabelle::HöchsterIndex;

void Umkehren()
{
    for (int i = 0; i < Messen; ++i) {
        Messe.Datum[i] = 46000 - i / 2;
        Messe.Uhrzeit[i] = ZeitAus((i % 2 == 0 ? 18 : 9) * 3600);
    }
}

void Vorbereiten()
{
    VollerBestand();
    Messe.Anzahl = Messen;
    Umkehren();
}

/// A mass as one struct, with the same fields.
struct Messesatz {
    Text Wochentag;
    Datum Tag = 0, Uhrzeit = 0;
    Text Messeart;
    std::array<Int16, 7> Zahlen;
    std::array<std::array<Text, MesseTabelle::HöchsterSlot + 1>, 3> Slots;
    Text Kennung;
    std::array<Int16, 4> Helferzahlen;
    std::array<Text, 16> Helfernamen;
};

std::vector<Messesatz> Ungeordnet;
std::vector<Messesatz> Geordnet;

void MaßstabVorbereiten()
{
    Vorbereiten();
    Ungeordnet.assign(Messen, {});
    Geordnet.assign(Messen, {});
    for (int i = 0; i < Messen; ++i) {
        Messesatz &satz = Ungeordnet[static_cast<std::size_t>(i)];
        satz.Wochentag = Messe.Wochentag[i];
        satz.Tag = Messe.Datum[i];
        satz.Uhrzeit = Messe.Uhrzeit[i];
        satz.Messeart = Messe.Messeart[i];
        for (int slot = 0; slot <= MesseTabelle::HöchsterSlot; ++slot) {
            auto stelle = static_cast<std::size_t>(slot);
            satz.Slots[0][stelle] = Messe.DienerVor[i][slot];
            satz.Slots[1][stelle] = Messe.DienerNach[i][slot];
            satz.Slots[2][stelle] = Messe.DienerDienst[i][slot];
        }
        satz.Kennung = Messe.Kennung[i];
        std::size_t name = 0;
        for (auto *spalte :
             {&Messe.Lektor1Vor, &Messe.Lektor1Nach, &Messe.Lektor2Vor, &Messe.Lektor2Nach,
              &Messe.Komm1Vor, &Messe.Komm1Nach, &Messe.Komm2Vor, &Messe.Komm2Nach,
              &Messe.Kantor1Vor, &Messe.Kantor1Nach, &Messe.Kantor2Vor, &Messe.Kantor2Nach,
              &Messe.Kollekt1Vor, &Messe.Kollekt1Nach, &Messe.Kollekt2Vor, &Messe.Kollekt2Nach})
            satz.Helfernamen[name++] = (*spalte)[i];
    }
}

void StabilSortieren()
{
    struct Schlüssel {
        Datum Tag, Uhrzeit;
        std::size_t Quelle;
    };
    std::vector<Schlüssel> schlüssel;
    schlüssel.reserve(Ungeordnet.size());
    for (std::size_t i = 0; i < Ungeordnet.size(); ++i)
        schlüssel.push_back({Ungeordnet[i].Tag, Ungeordnet[i].Uhrzeit, i});
    std::ranges::stable_sort(schlüssel, [](const Schlüssel &a, const Schlüssel &b) {
        return std::pair(a.Tag, a.Uhrzeit) < std::pair(b.Tag, b.Uhrzeit);
    });
    for (std::size_t i = 0; i < schlüssel.size(); ++i)
        Geordnet[i] = std::move(Ungeordnet[schlüssel[i].Quelle]);
    benchmark::DoNotOptimize(Geordnet.data());
}

void SortierenGeprüft()
{
    MessenSortieren();
    if (Messe.Datum[0] > Messe.Datum[Messen - 1])
        std::abort();
}

} // namespace

void SortierenMessungen()
{
    MessungAnmelden({.Name = "602 Messen sortieren",
                     .Maßstabname = "stabil sortieren, einmal bewegen",
                     .Gemessen = {Vorbereiten, SortierenGeprüft},
                     .Maßstab = {MaßstabVorbereiten, StabilSortieren},
                     .Ziel = 3,
                     .Durchläufe = 200});
}

} // namespace altardienst
