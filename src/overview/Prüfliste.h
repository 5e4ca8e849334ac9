// The findings as a list: in groups, and on paper.
#pragma once

#include "overview/Planprüfung.h"

#include <bitset>
#include <vector>

namespace altardienst {

enum class Gliederung { NachMesse, NachPerson };

/// Which rules are looked at.
using Regelwahl = std::bitset<Regelzahl>;
inline const Regelwahl AlleRegeln = Regelwahl().set();

inline bool Gilt(const Regelwahl &regeln, const Befund &befund)
{
    return regeln[static_cast<std::size_t>(befund.Gegen)];
}

/// "3 Verstöße, 1 Hinweis"; with the rules that are left out: "1 Hinweis, ohne Größe".
Text Befundzahlen(const Planprüfung &prüfung, const Regelwahl &regeln);

struct Befundgruppe {
    Text Titel; // "Samstag, 28.11.2026, 18:30 Uhr, Vorabendmesse", or a name
    std::vector<Befund> Befunde;
};

/// By mass: in the order of the table. By person: by name; findings without a person come last,
/// under "Ohne Namen".
std::vector<Befundgruppe> Befundgruppen(const Planprüfung &prüfung, Gliederung gliederung,
                                        const Regelwahl &regeln = AlleRegeln);

/// Prints the groups as the report "Prüfliste".
void PrüflisteDrucken(const Planprüfung &prüfung, Gliederung gliederung,
                      const Regelwahl &regeln = AlleRegeln);

} // namespace altardienst
