// Looking for a person or a mass in all tables, by what somebody types.
#pragma once

#include "values/Text.h"

#include <set>
#include <string_view>
#include <vector>

namespace altardienst {

/// What stands at the place where something was found.
enum class Fundort {
    Meßdiener,      // a record
    Wunschpartner,  // of the server `Satz`
    Helfer,         // a record
    Messe,          // a record
    Meßdienerplatz, // slot `Platz` (1 to 20) of the mass `Satz`
    Helferplatz,    // place `Platz` (from 0, as in `Helferplätze`) of the mass `Satz`
    FesterEintrag,  // slot `Platz` (1 to 20) of the fixed entry `Satz`
};

struct Fund {
    Fundort Wo;
    int Satz;
    int Platz;
    Text Zeile; // what is shown of it
};

struct Treffergruppe {
    Text Titel;
    std::vector<Fund> Zeilen; // the first ones
    int Weitere = 0;          // that were found as well
};

/// More of a group are only counted, unless all of it is wanted.
constexpr std::size_t MeisteTreffer = 50;

/// Every word typed must be found. A person is found by parts of the names, capitals or not: as a
/// record, as a wish, in the places that a mass wants filled and in fixed entries for such places.
/// A mass is found by its date ("8.12.", "8. Dezember", "8.12.2026", "2026-12-08" and with "/" or
/// "-"), its weekday, time or kind. Below two characters nothing is found; groups without a hit are
/// left out. Those whose titles are in `ganze` are complete.
std::vector<Treffergruppe> Suchen(std::string_view getippt, const std::set<Text> &ganze = {});

} // namespace altardienst
