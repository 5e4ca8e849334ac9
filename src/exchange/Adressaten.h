// Who gets a mail, and at which addresses.
#pragma once

#include "overview/Plantabellen.h"
#include "values/Text.h"

#include <vector>

namespace altardienst {

enum class Adressatenkreis { Alle, Gruppe, Messe };

struct Adressatenwahl {
    Adressatenkreis Kreis = Adressatenkreis::Alle;
    Text Gruppe = {}; // helpers are in none
    int Messe = 0; // whoever stands in one of its places; of a place kept for a group, its members
    bool Diener = true;
    bool Helfer = true;
};

struct Adressaten {
    std::vector<Text> Adressen; // each once, in the order of the tables
    std::vector<Text> Ohne;     // names without an address: "Adler, Anna"
    std::vector<Text> Unlesbar; // names with what stands there: "Busch, Ben: ben(at)x"
};

/// A field may hold several addresses, separated by semicolons or blanks; by commas only with the
/// helpers, as a comma tears the servers' file.
Adressaten AdressatenSuchen(const Plantabellen &tabellen, const Adressatenwahl &wahl);

/// Whether a mail program will take it: something, an "@", and a domain with a dot.
bool IstAdresse(const Text &text);

} // namespace altardienst
