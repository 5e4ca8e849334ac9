// Calendar arithmetic on std::chrono.
#include "values/Datum.h"

#include "values/Laufzeitfehler.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>

namespace altardienst {
namespace {

using namespace std::chrono;

constexpr sys_days TagNull = sys_days(year(1899) / December / 30);
constexpr double FrühesterTag = (sys_days(year(100) / January / 1) - TagNull).count();
constexpr double SpätesterTag = (sys_days(year(9999) / December / 31) - TagNull).count();

} // namespace

Datum DatumAus(Kalendertag tag)
{
    // The calendar types hold a month and a day in one byte each: 257 would pass as 1.
    auto inGrenzen = [](int wert, int von, int bis) { return wert >= von && wert <= bis; };
    year_month_day ymd(year(tag.Jahr), month(static_cast<unsigned>(tag.Monat)),
                       day(static_cast<unsigned>(tag.Tag)));
    if (!inGrenzen(tag.Jahr, 100, 9999) || !inGrenzen(tag.Monat, 1, 12) ||
        !inGrenzen(tag.Tag, 1, 31) || !ymd.ok())
        throw Laufzeitfehler(Laufzeitfehler::TypenUnverträglich);
    return (sys_days(ymd) - TagNull).count();
}

Kalendertag KalendertagVon(Datum datum)
{
    double ganz = std::trunc(datum);
    if (!(ganz >= FrühesterTag && ganz <= SpätesterTag))
        throw Laufzeitfehler(Laufzeitfehler::Überlauf);
    year_month_day ymd(TagNull + days(static_cast<int>(ganz)));
    return {int(ymd.year()), int(unsigned(ymd.month())), int(unsigned(ymd.day()))};
}

int SekundenVon(Datum datum)
{
    // The fraction counts forward from midnight, even before 1899.
    double bruch = std::fabs(datum - std::trunc(datum));
    return static_cast<int>(std::nearbyint(bruch * SekundenProTag)) % SekundenProTag;
}

Datum UhrzeitWeiter(Datum zeit, int sekunden)
{
    const int neu = (SekundenVon(zeit) + sekunden) % SekundenProTag;
    return ZeitAus(neu < 0 ? neu + SekundenProTag : neu);
}

int Wochentag(Datum datum)
{
    int tag = static_cast<int>(std::trunc(datum)) + 6; // day 0 was a Saturday
    return (tag % 7 + 7) % 7 + 1;
}

Text WochentagName(Datum datum)
{
    return Text(Wochentagsnamen[static_cast<std::size_t>(Wochentag(datum) - 1)]);
}

Text WochentagNameGefüllt(Datum datum)
{
    Text name = WochentagName(datum);
    name.resize(10, ' ');
    return name;
}

Datum MonateWeiter(Datum datum, int monate)
{
    const Kalendertag tag = KalendertagVon(datum);
    const int monatszahl = tag.Jahr * 12 + tag.Monat - 1 + monate;
    const year_month monat =
        year(monatszahl / 12) / month(static_cast<unsigned>(monatszahl % 12 + 1));
    if (monatszahl < 100 * 12 || monatszahl >= 10000 * 12)
        throw Laufzeitfehler(Laufzeitfehler::Überlauf);
    const year_month_day letzter = monat / last;
    const int neuerTag = std::min(tag.Tag, static_cast<int>(unsigned(letzter.day())));
    return DatumAus({int(monat.year()), int(unsigned(monat.month())), neuerTag});
}

} // namespace altardienst
