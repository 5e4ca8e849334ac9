// The random numbers of the draw.
#include "platform/Zufall.h"

#include <chrono>
#include <memory>
#include <random>
#include <stdexcept>

namespace altardienst {
namespace {

/// A Single holds exactly 24 bits, so rounding never reaches 1.
Single Gleichverteilt(std::mt19937 &generator)
{
    return static_cast<Single>(generator() >> 8) * 0x1p-24F;
}

std::uint32_t SaatDerUhr()
{
    auto jetzt = std::chrono::system_clock::now().time_since_epoch().count();
    auto bits = static_cast<std::uint64_t>(jetzt);
    return static_cast<std::uint32_t>(bits ^ bits >> 32);
}

} // namespace

ZufallDienst Zufallsgenerator()
{
    auto generator = std::make_shared<std::mt19937>();
    return {[generator] { generator->seed(SaatDerUhr()); },
            [generator] { return Gleichverteilt(*generator); }};
}

ZufallDienst ZufallMitSaat(std::uint32_t saat)
{
    auto generator = std::make_shared<std::mt19937>(saat);
    return {[] {}, [generator] { return Gleichverteilt(*generator); }};
}

ZufallDienst ZufallAusListe(std::vector<Single> werte)
{
    auto liste = std::make_shared<std::vector<Single>>(std::move(werte));
    auto nächster = std::make_shared<std::size_t>(0);
    return {[] {}, [liste, nächster] { return liste->at((*nächster)++); }};
}

ZufallDienst Zufall = Zufallsgenerator();

} // namespace altardienst
