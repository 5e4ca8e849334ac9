// Values as the items of a printed line.
#include "printing/Druckwerte.h"

#include "core/Umwandlung.h"

#include <cmath>

namespace altardienst {

Text Druckzahl(int zahl)
{
    return (zahl < 0 ? "" : " ") + ZahlText(zahl) + " ";
}

Text Druckdatum(Datum datum)
{
    return DatumText(datum) + " ";
}

Text Druckmaß(Single mm)
{
    // The digits that the form shows are rounded, not those of the underlying Single, which is
    // 15.1499996 for 15,15.
    constexpr double Genauigkeit = 1e4;
    return FesteStellen(std::round(mm * Genauigkeit) / Genauigkeit, 3, 1);
}

} // namespace altardienst
