// What the check of a plan finds.
#pragma once

#include "overview/Platz.h"
#include "values/Text.h"

#include <cstdint>

namespace altardienst {

/// In the order in which findings are listed where a place has several; what the draw tests comes
/// in the order of the full way.
enum class Regel : std::uint8_t {
    Frei,              // a wanted place without a name
    Unbekannt,         // no record has this name
    Mehrdeutig,        // several records have it
    Doppelt,           // twice in the mass
    SelberTag,         // in another mass on the same date
    Nachbartag,        // on the day before, and when asked for a place also on the day after
    Größe,             // too far from the height reference of the mass
    Qualifikation,     // may not do the service of the place
    Abwesend,          // on the date of the mass
    Geschlecht,        // other than that of the server with whom he forms a pair
    Wochendienst,      // does not want masses of this kind
    Wochentag,         // does not want to serve on this weekday
    Helferdienst,      // not a service of this helper
    Wunschpartner,     // does not stand beside
    Häufigkeit,        // in more pairs than the frequency allows
    FesterEintrag,     // a fixed entry wants somebody else there
    ÜberzähligerName,  // after the last wanted place; the plan prints it
    GleicheZeit,       // as another mass
    AußerhalbZeitraum, // the mass is not in the plan period
    Dienstsumme        // the services do not add up to the number of servers
};
constexpr int Regelzahl = static_cast<int>(Regel::Dienstsumme) + 1;

/// A breach of a rule, or something that is worth a look.
enum class Stufe : std::uint8_t { Verstoß, Hinweis };

struct Befund {
    Stufe Grad;
    Regel Gegen;
    Planplatz Wo;
    Planplatz Bezug = {}; // the other place or mass that the sentence names
    int Zahl = 0;         // the number or fixed entry that it names

    friend bool operator==(const Befund &, const Befund &) = default;
};

/// "Größe", "Wunschpartner": the rule in a word, for columns and filters.
Text Regelname(Regel regel);

/// Of whom a finding speaks, as "Vorname Nachname": who stands in the place, whom a fixed entry
/// wants there; empty if nobody.
Text Betroffener(const Plantabellen &tabellen, const Befund &befund);

/// What is wrong, in a German sentence with names and dates.
Text Satz(const Plantabellen &tabellen, const Befund &befund);

/// The same as a reason against a server or helper who does not stand there.
Text SatzGegen(const Plantabellen &tabellen, const Befund &befund, int nr);

/// "3 Verstöße, 1 Hinweis"; "nichts Auffälliges".
Text Befundzahl(int verstöße, int hinweise);

} // namespace altardienst
