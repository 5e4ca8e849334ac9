// Who gets a mail, and at which addresses.
#pragma once

#include "overview/Plantabellen.h"
#include "values/Text.h"

#include <vector>

namespace altardienst {

enum class Empfängerkreis { Alle, Gruppe, Messe };

struct Empfängerwahl {
    Empfängerkreis Kreis = Empfängerkreis::Alle;
    Text Gruppe = {}; // helpers are in none
    int Messe = 0; // whoever stands in one of its places; of a place kept for a group, its members
    bool Diener = true;
    bool Helfer = true;
};

struct Empfänger {
    std::vector<Text> Adressen; // each once, in the order of the tables
    std::vector<Text> Ohne;     // names without an address: "Adler, Anna"
    std::vector<Text> Unlesbar; // names with what stands there: "Busch, Ben: ben(at)x"
};

/// A field may hold several addresses, separated by commas, semicolons or blanks.
Empfänger EmpfängerSuchen(const Plantabellen &tabellen, const Empfängerwahl &wahl);

/// Whether a mail program will take it: something, an "@", and a domain with a dot.
bool IstAdresse(const Text &text);

} // namespace altardienst
