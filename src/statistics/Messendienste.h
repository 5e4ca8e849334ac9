// How many services the masses of the plan call for, and which the helpers offer.
#pragma once

#include <array>

namespace altardienst {

/// Services of servers. The kinds: Gabenbereitung, Leuchter, Flambeau, Weihrauch, Kreuzträger,
/// Allgemein.
struct Messendienste {
    std::array<int, 6> Gesamt{};
    std::array<double, 6> JeMesse{};
    int Dienste = 0; // all kinds
    double DiensteJeMesse = 0;
    double DiensteJeMeßdiener = 0;
};

/// What the masses want, not what is filled. Quotients of a total that is not above 0 are 0;
/// failure 11 if services are wanted and there are no servers.
Messendienste MessendiensteAuswerten();

/// Services of helpers. The kinds: Lektor, Kommunionhelfer, Kantor, Kollektant.
struct Helferdienste {
    std::array<int, 4> Gesamt{};
    std::array<double, 4> Anteil{}; // of all kinds
    int Dienste = 0;                // all kinds
    double DiensteJeMesse = 0;
    double DiensteJeHelfer = 0;
};

/// As above, of the helpers that the masses want.
Helferdienste HelferdiensteAuswerten();

struct Helferangebot {
    std::array<int, 4> Anzahl{};
    std::array<double, 4> Anteil{};
    int Insgesamt = 0;
    double AnteilInsgesamt = 0; // 1, or 0 without any
};

/// The services that the helpers do, each with both of theirs: one who names the same twice counts
/// twice. The blank record behind the last one is looked at too.
Helferangebot HelferangebotAuswerten();

} // namespace altardienst
