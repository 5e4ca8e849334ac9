// From the counts of a mass to the services of its slots.
#include "assignment/Dienste.h"

#include "core/SchleifenZähler.h"
#include "core/tables.h"

#include <algorithm>

namespace altardienst {
namespace {

constexpr int HöchstensFlambeau = 8;
constexpr int HöchstensSonst = 2;

/// Writes the services of one mass, in the order in which the servers are counted off.
class Diensteschreiber {
  public:
    explicit Diensteschreiber(int messe) : dienste(Messe.DienerDienst[messe]) {}

    void Schreiben(const char *dienst, int wieOft)
    {
        for (int k = 0; k < wieOft; ++k) {
            dienste[SlotZähler] = dienst;
            ++SlotZähler;
        }
    }

  private:
    MesseTabelle::JeSlot &dienste;
    Int16 SlotZähler;
};

void ErsteDreiSchreiben(Diensteschreiber &schreiber, int i)
{
    schreiber.Schreiben("Gabenbereitung", std::min<int>(Messe.Gabenbereitung[i], HöchstensSonst));
    schreiber.Schreiben("Leuchter", std::min<int>(Messe.Leuchter[i], HöchstensSonst));
    schreiber.Schreiben("Flambeau", std::min<int>(Messe.Flambeau[i], HöchstensFlambeau));
}

} // namespace

void DiensteVerteilen()
{
    Int16 &i = SchleifenZähler;
    for (i = 0; i <= Messe.Anzahl; ++i)
        for (int k = 0; k <= MesseTabelle::HöchsterSlot; ++k)
            Messe.DienerDienst[i][k] = "Allgemein";
    for (i = 0; i <= Messe.Anzahl; ++i) {
        Diensteschreiber schreiber(i);
        ErsteDreiSchreiben(schreiber, i);
        schreiber.Schreiben("Weihrauch", std::min<int>(Messe.Weihrauch[i], HöchstensSonst));
        schreiber.Schreiben("Kreuzträger", std::min<int>(Messe.Kreuzträger[i], HöchstensSonst));
    }
}

void LaufDiensteVerteilen()
{
    for (int i = 0; i <= Messe.Anzahl; ++i) {
        Diensteschreiber schreiber(i);
        ErsteDreiSchreiben(schreiber, i);
        // Both thresholds of these two services are 1 here; the plan draws by it and is kept so.
        schreiber.Schreiben("Weihrauch", Messe.Weihrauch[i] >= 1 ? HöchstensSonst : 0);
        schreiber.Schreiben("Kreuzträger", Messe.Kreuzträger[i] >= 1 ? HöchstensSonst : 0);
    }
}

} // namespace altardienst
