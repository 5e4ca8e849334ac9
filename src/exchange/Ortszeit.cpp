// The time of day in the parish.
#include "exchange/Ortszeit.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <tuple>

namespace altardienst {
namespace {

constexpr int Stunde = 3600;
constexpr int März = 3;
constexpr int Oktober = 10;

Datum LetzterSonntag(int jahr, int monat)
{
    const Datum letzter = DatumAus({jahr, monat, 31});
    return letzter - (Wochentag(letzter) - 1);
}

bool Früher(Ortszeit a, Ortszeit b)
{
    return std::tie(a.Tag, a.Sekunden) < std::tie(b.Tag, b.Sekunden);
}

} // namespace

Ortszeit Später(Ortszeit zeit, int sekunden)
{
    const int neu = zeit.Sekunden + sekunden;
    const int tage = (neu >= 0 ? neu : neu - SekundenProTag + 1) / SekundenProTag; // rounded down
    return {zeit.Tag + tage, neu - tage * SekundenProTag};
}

bool IstSommerzeit(Ortszeit zeit)
{
    const int jahr = KalendertagVon(zeit.Tag).Jahr;
    const Ortszeit beginn = {LetzterSonntag(jahr, März), 3 * Stunde};
    const Ortszeit ende = {LetzterSonntag(jahr, Oktober), 3 * Stunde};
    return !Früher(zeit, beginn) && Früher(zeit, ende);
}

Ortszeit AufDerUhr(Ortszeit zeit)
{
    const Datum tag = LetzterSonntag(KalendertagVon(zeit.Tag).Jahr, März);
    const bool fehlt = zeit.Tag == tag && zeit.Sekunden >= 2 * Stunde && zeit.Sekunden < 3 * Stunde;
    return fehlt ? Später(zeit, Stunde) : zeit;
}

Ortszeit Weltzeit(Ortszeit zeit)
{
    return Später(zeit, IstSommerzeit(zeit) ? -2 * Stunde : -Stunde);
}

std::int32_t SekundenSeit2020(Ortszeit zeit)
{
    const Ortszeit moment = Weltzeit(zeit);
    const double sekunden =
        (moment.Tag - DatumAus({2020, 1, 1})) * SekundenProTag + moment.Sekunden;
    return static_cast<std::int32_t>(
        std::clamp<double>(sekunden, 0, std::numeric_limits<std::int32_t>::max()));
}

} // namespace altardienst
