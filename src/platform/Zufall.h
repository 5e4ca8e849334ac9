// The random numbers of the draw.
#pragma once

#include "values/Int16.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace altardienst {

struct ZufallDienst {
    std::function<void()> Streuen;   // reseeds; every run of an assignment starts with it
    std::function<Single()> Nächste; // uniform, from 0 up to but not including 1
};

/// 24 random bits over 2^24, seeded from the clock at each run.
ZufallDienst Zufallsgenerator();

/// The same generator with a given seed; reseeding continues its sequence.
ZufallDienst ZufallMitSaat(std::uint32_t saat);

/// Exactly these values, in order; std::out_of_range once they are used up.
ZufallDienst ZufallAusListe(std::vector<Single> werte);

/// The generator in use.
extern ZufallDienst Zufall;

} // namespace altardienst
