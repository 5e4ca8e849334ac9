// The plan as a web page in one file: a table on a large screen, one block a mass on a phone, one
// sheet on paper. Nothing in it comes from elsewhere.
#pragma once

#include "exchange/Namenform.h"
#include "overview/Plantabellen.h"

#include <string>

namespace altardienst {

struct Webseitenwunsch {
    Text Titel;
    Namenform Namen = Namenvorschlag;
    bool MitHelfern = true;
};

struct Webseite {
    std::string Bytes; // HTML5, UTF-8
    int Messen;
    int Druckseiten; // about, on A4
};

Webseite PlanAlsWebseite(const Plantabellen &tabellen, const Webseitenwunsch &wunsch);

} // namespace altardienst
