// Values as the items of a printed line.
#include "printing/Druckwerte.h"

#include "core/Umwandlung.h"

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
    return FesteStellen(mm, 3, 1);
}

} // namespace altardienst
