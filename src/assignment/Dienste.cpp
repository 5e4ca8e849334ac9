// From the counts of a mass to the services of its slots.
#include "assignment/Dienste.h"

#include "core/Plätze.h"
#include "core/SchleifenZähler.h"

#include <algorithm>

namespace altardienst {
namespace {

/// Writes the services of a mass into its slots, each as often as `wieOft` says.
template <class F> void Abzählen(int messe, F wieOft)
{
    int slot = 0;
    for (const Dienstart &art : BesondereDienste)
        for (int k = 0; k < wieOft(art, art.Zahl.In(Messe)[messe]); ++k)
            DienstDesSlots(messe, ++slot) = art.Name;
}

int SlotsFür(const Dienstart &art, int zahl)
{
    return std::min(zahl, art.Höchstens);
}

} // namespace

void DiensteVerteilen()
{
    Int16 &i = SchleifenZähler;
    for (i = 0; i <= Messe.Anzahl; ++i)
        for (int k = 0; k <= MesseTabelle::HöchsterSlot; ++k)
            Messe.DienerDienst[i][k] = Allgemein.Name;
    for (i = 0; i <= Messe.Anzahl; ++i)
        Abzählen(i, SlotsFür);
}

void LaufDiensteVerteilen()
{
    for (int i = 0; i <= Messe.Anzahl; ++i)
        Abzählen(i, [](const Dienstart &art, int zahl) {
            // Both thresholds of these two services are 1 here; the draw depends on that, so it is
            // kept.
            if ((&art == &Weihrauch || &art == &Kreuzträger) && zahl >= 1)
                return art.Höchstens;
            return SlotsFür(art, zahl);
        });
}

Slotdienste DiensteNachZahl(const MesseTabelle &messen, int messe)
{
    Slotdienste dienste;
    auto slot = dienste.begin();
    for (const Dienstart &art : BesondereDienste)
        for (int k = SlotsFür(art, art.Zahl.In(messen)[messe]); k > 0; --k)
            *slot++ = &art;
    std::fill(slot, dienste.end(), &Allgemein);
    return dienste;
}

} // namespace altardienst
