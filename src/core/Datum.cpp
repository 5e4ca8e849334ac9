// Calendar arithmetic on std::chrono.
#include "core/Datum.h"

#include "core/Laufzeitfehler.h"

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
    year_month_day ymd(year(tag.Jahr), month(static_cast<unsigned>(tag.Monat)),
                       day(static_cast<unsigned>(tag.Tag)));
    if (tag.Jahr < 100 || tag.Jahr > 9999 || !ymd.ok())
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
    // Before 1899 too, the fraction counts forward from midnight.
    double bruch = std::fabs(datum - std::trunc(datum));
    return static_cast<int>(std::nearbyint(bruch * SekundenProTag)) % SekundenProTag;
}

int Wochentag(Datum datum)
{
    int tag = static_cast<int>(std::trunc(datum)) + 6; // day 0 was a Saturday
    return (tag % 7 + 7) % 7 + 1;
}

Text WochentagName(Datum datum)
{
    static const std::array<const char *, 7> Namen = {
        "Sonntag", "Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag", "Samstag"};
    return Namen[static_cast<std::size_t>(Wochentag(datum) - 1)];
}

} // namespace altardienst
