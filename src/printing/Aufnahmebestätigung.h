// The admission confirmation: one page for a new altar server to take home.
#pragma once

#include "values/Text.h"

namespace altardienst {

/// What the page says about the server, as it is on the screen, stored or not.
struct Aufnahme {
    Text Vorname;
    Text Nachname;
    Text Straße;
    Text PLZ;
    Text Ort;
    Text Eintrittsdatum;
    Text Gruppe;
};

/// Shows the print dialog and prints the page.
void AufnahmebestätigungDrucken(const Aufnahme &aufnahme);

} // namespace altardienst
