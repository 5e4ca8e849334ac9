// What the mass list does to the tables, and how it labels a slot.
#include "planning/Messenbearbeitung.h"

#include "core/Umwandlung.h"

#include <algorithm>

namespace altardienst {

void FesteEintraegeMitziehen(int i, const Text &datum, const Text &uhrzeit)
{
    const Datum alterTag = Messe.Datum[i];
    const Datum alteZeit = Messe.Uhrzeit[i];
    for (int k = 0; k <= MesseDienerFest.Anzahl; ++k) {
        if (MesseDienerFest.Datum[k] != alterTag || MesseDienerFest.Uhrzeit[k] != alteZeit)
            continue;
        const Datum neuerTag = DatumLesen(datum);
        const Datum neueZeit = DatumLesen(uhrzeit);
        MesseDienerFest.Datum[k] = neuerTag;
        MesseDienerFest.Uhrzeit[k] = neueZeit;
    }
}

void MesseVorziehen(int i)
{
    for (int n = i; n <= Messe.Anzahl; ++n)
        FelderÜbernehmen(Messe.Felder(), n, n + 1, {&Messe.DienerDienst});
}

Slottexte SlotBeschriftungen(const Dienstwünsche &wünsche)
{
    Slottexte texte;
    for (std::size_t i = 0; i < texte.size(); ++i)
        texte[i] = "Meßdiener " + ZahlText(static_cast<int>(i + 1)) + " :";
    std::size_t slot = 0;
    for (std::size_t art = 0; art < wünsche.size(); ++art)
        for (int k = 0; k < std::min(wünsche[art], BesondereDienste[art].Höchstens); ++k)
            texte[slot++] = Text(BesondereDienste[art].Kurz) + " :";
    return texte;
}

} // namespace altardienst
