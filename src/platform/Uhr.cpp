// The system's clock in local time.
#include "platform/Uhr.h"

#include <chrono>
#include <ctime>

namespace altardienst {
namespace {

/// Seconds since the epoch. A search reads it at every draw, so the coarse clock is used where
/// there is one: it lags by a few milliseconds, which whole seconds don't show.
std::time_t Jetzt()
{
#ifdef CLOCK_REALTIME_COARSE
    timespec jetzt{};
    if (clock_gettime(CLOCK_REALTIME_COARSE, &jetzt) == 0)
        return jetzt.tv_sec;
#endif
    return std::time(nullptr);
}

std::tm Ortszeit(std::time_t zeit)
{
    std::tm ort{};
#ifdef _WIN32
    localtime_s(&ort, &zeit);
#else
    localtime_r(&zeit, &ort);
#endif
    return ort;
}

int SekundenDesTages()
{
    static std::time_t gemerkt = -1;
    static int sekunden = 0;
    std::time_t jetzt = Jetzt();
    if (jetzt != gemerkt) {
        std::tm ort = Ortszeit(jetzt);
        sekunden = (ort.tm_hour * 60 + ort.tm_min) * 60 + ort.tm_sec;
        if (sekunden >= SekundenProTag)
            sekunden = SekundenProTag - 1; // a leap second
        gemerkt = jetzt;
    }
    return sekunden;
}

Datum HeutigerTag()
{
    std::tm ort = Ortszeit(Jetzt());
    return DatumAus({ort.tm_year + 1900, ort.tm_mon + 1, ort.tm_mday});
}

std::int64_t Millisekunden()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

} // namespace

UhrDienst Systemuhr()
{
    return {HeutigerTag, SekundenDesTages, Millisekunden};
}

UhrDienst Uhr = Systemuhr();

} // namespace altardienst
