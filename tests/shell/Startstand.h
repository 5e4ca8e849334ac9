// The fixture of the tests of the start dialog.
#pragma once

#include "Formstand.h"
#include "core/Allgemein.h"
#include "shell/StartForm.h"

namespace altardienst {

/// The disk holds a parish with a period of 28 days; the proposal is Saturday, 28.11.2026.
class Startstand : public Formstand<StartForm> {
  protected:
    Startstand()
    {
        Konfig.Tage = 28;
        AufFestplatteSpeichern();
        TabellenLeeren();
    }

    StartForm &Öffnen()
    {
        form = new StartForm([this] { ++gestartet; });
        Zeigen(form);
        return *form;
    }

    static Datum Tag(int tag, int monat, int jahr = 2026) { return DatumAus({jahr, monat, tag}); }

    int gestartet = 0;
};

} // namespace altardienst
