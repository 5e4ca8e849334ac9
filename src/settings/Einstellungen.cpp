// Rules of individual settings that take more than two limits.
#include "settings/Einstellungen.h"

#include "core/Umwandlung.h"
#include "platform/Meldungen.h"
#include "platform/Uhr.h"

#include <algorithm>

namespace altardienst {

Single GrößendifferenzBegrenzt(Single band)
{
    constexpr Single Kleinste = 2;
    constexpr Single Größte = 100;
    constexpr Single StattGrößerer = 50; // deliberately not the largest one
    if (band > Größte)
        return StattGrößerer;
    return std::max(band, Kleinste);
}

void GrößendifferenzSetzen(Single band)
{
    Konfig.DiffGröße = GerundetInt16(band / 2);
}

void PlzOrtSetzen(Text plzOrt)
{
    constexpr int LängePlz = 5;
    if (Länge(plzOrt) < LängePlz) {
        Meldungen.Zeigen("Keine korrekte Angabe von PLZ und Ort");
        plzOrt = plzOrt.empty() ? "49999 Musterstadt" : Konfig.PlzOrt;
    }
    if (Mitte(plzOrt, LängePlz + 1, 1) != " ") {
        Meldungen.Zeigen("Es ist die PLZ, Leerstelle und dann der Ort anzugeben!!!!");
        plzOrt = Konfig.PlzOrt;
    }
    Konfig.PlzOrt = plzOrt;
}

void StartDatumSetzen(Datum datum)
{
    Konfig.StartDatum = std::max(datum, Uhr.Heute());
}

} // namespace altardienst
