// The people that something is made for, one by one: each name once, whatever tables it is in.
#pragma once

#include "exchange/Planauszug.h"
#include "overview/Plantabellen.h"
#include "values/Text.h"

#include <vector>

namespace altardienst {

/// Who gets something of his own.
struct Personenkreis {
    bool Diener = true;
    bool Helfer = true;
    Text Gruppe; // if not empty, of the servers only those of this group
};

struct Empfänger {
    Text Vorname, Nachname;
    std::vector<Text> Gruppen; // he stands in the places that are kept for them

    bool Hat(const Auszugsdienst &dienst) const;
};

/// In the order of the tables, servers first; whoever has no name at all is left out.
std::vector<Empfänger> EmpfängerAus(const Plantabellen &tabellen, const Personenkreis &kreis);

} // namespace altardienst
