// A slip for each person with the own services, to be cut off and handed out.
#pragma once

#include "exchange/Messtermin.h"
#include "overview/Plantabellen.h"
#include "values/Text.h"

#include <vector>

namespace altardienst {

struct Zetteldienst {
    Messtermin Termin;
    Text Messeart;
    Text Dienst; // "Leuchter"
};

struct Dienstzettel {
    Text Name;                         // "Vorname Nachname"
    Text Gruppe;                       // of a server; "Helfer" for who is only a helper
    std::vector<Zetteldienst> Dienste; // in the order of time
};

enum class Zettelordnung { NachName, NachGruppe };

struct Zettelwahl {
    bool Diener = true;
    bool Helfer = true;
    bool AuchOhneDienst = false;
    Zettelordnung Ordnung = Zettelordnung::NachName;
};

/// By name, as people refer to each other: who is server and helper, or stands in the lists twice,
/// has one slip, and so has a name that stands only in the plan. A place that is kept for a group
/// is on the slips of all its members. Names are ordered as a directory does, an umlaut like its
/// vowel; groups in the order of their table, servers without one after them, then the helpers.
std::vector<Dienstzettel> DienstzettelVon(const Plantabellen &tabellen, const Zettelwahl &wahl);

/// "Altardienst, 28.11.2026 bis 27.12.2026".
Text Zettelzeile(const Plantabellen &tabellen);

/// All slips one after the other, as text to paste; lines end with a line feed.
Text ZettelAlsText(const std::vector<Dienstzettel> &zettel, const Text &kopfzeile);

} // namespace altardienst
