// How many services the masses of the plan call for, and which ones the helpers offer.
#pragma once

#include "core/Plätze.h"

#include <array>

namespace altardienst {

/// Services of servers, in the order of `Dienstarten`.
struct Messendienste {
    std::array<int, Dienstarten.size()> Gesamt{};
    std::array<double, Dienstarten.size()> JeMesse{};
    int Dienste = 0; // all kinds
    double DiensteJeMesse = 0;
    double DiensteJeMeßdiener = 0;
};

/// What the masses want, not what is filled. Quotients of a total that is not above 0 are 0;
/// failure 11 if services are wanted and there are no servers.
Messendienste MessendiensteAuswerten();

/// Services of helpers, in the order of `Helferarten`.
struct Helferdienste {
    std::array<int, Helferarten.size()> Gesamt{};
    std::array<double, Helferarten.size()> Anteil{}; // of all kinds
    int Dienste = 0;                                 // all kinds
    double DiensteJeMesse = 0;
    double DiensteJeHelfer = 0;
};

/// As above, for the helpers that the masses want.
Helferdienste HelferdiensteAuswerten();

struct Helferangebot {
    std::array<int, Helferarten.size()> Anzahl{};
    std::array<double, Helferarten.size()> Anteil{};
    int Insgesamt = 0;
    double AnteilInsgesamt = 0; // 1, or 0 without any
};

/// The services that the helpers do, counting both services of each: a helper who names the same
/// one twice counts twice. The blank record after the last one is looked at too.
Helferangebot HelferangebotAuswerten();

} // namespace altardienst
