// Whole years of age and of membership.
#include "core/Jahre.h"

namespace altardienst {

int Monatsgrenzen(Datum von, Datum bis)
{
    const Kalendertag a = KalendertagVon(von);
    const Kalendertag b = KalendertagVon(bis);
    return (b.Jahr - a.Jahr) * 12 + b.Monat - a.Monat;
}

int GanzeJahre(Datum seit, Datum heute)
{
    return Monatsgrenzen(seit, heute) / 12;
}

} // namespace altardienst
