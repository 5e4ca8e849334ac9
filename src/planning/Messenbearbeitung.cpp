// What the mass list does to the tables, and what it says of a slot.
#include "planning/Messenbearbeitung.h"

#include "core/Umwandlung.h"
#include "core/tables.h"

#include <algorithm>
#include <tuple>

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
    auto felder = std::tie(
        Messe.LektorZahl, Messe.Lektor1Vor, Messe.Lektor1Nach, Messe.Lektor2Vor, Messe.Lektor2Nach,
        Messe.KommZahl, Messe.Komm1Vor, Messe.Komm1Nach, Messe.Komm2Vor, Messe.Komm2Nach,
        Messe.KantorZahl, Messe.Kantor1Vor, Messe.Kantor1Nach, Messe.Kantor2Vor, Messe.Kantor2Nach,
        Messe.KollektZahl, Messe.Kollekt1Vor, Messe.Kollekt1Nach, Messe.Kollekt2Vor,
        Messe.Kollekt2Nach, Messe.Wochentag, Messe.Datum, Messe.Uhrzeit, Messe.Messeart,
        Messe.Kennung, Messe.Dienerzahl, Messe.Gabenbereitung, Messe.Leuchter, Messe.Flambeau,
        Messe.Weihrauch, Messe.Kreuzträger, Messe.Allgemein, Messe.DienerVor, Messe.DienerNach);
    for (int n = i; n <= Messe.Anzahl; ++n)
        FelderÜbernehmen(felder, n, n + 1);
}

std::array<Text, 20> SlotBeschriftungen(const Dienstwünsche &wünsche)
{
    std::array<Text, 20> texte;
    for (std::size_t i = 0; i < texte.size(); ++i)
        texte[i] = "Meßdiener " + ZahlText(static_cast<int>(i + 1)) + " :";
    std::size_t slot = 0;
    const auto dienst = [&](const char *name, int zahl, int höchstens) {
        for (int k = 0; k < std::min(zahl, höchstens); ++k)
            texte[slot++] = name;
    };
    dienst("Gabenber. :", wünsche.Gabenbereitung, 2);
    dienst("Leuchter :", wünsche.Leuchter, 2);
    dienst("Flambeau :", wünsche.Flambeau, 8);
    dienst("Weihrauch :", wünsche.Weihrauch, 2);
    dienst("Kreuztr. :", wünsche.Kreuzträger, 2);
    return texte;
}

} // namespace altardienst
