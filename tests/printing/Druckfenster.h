// The fixture of the tests of the form Druck: a small parish and a printer that keeps a log.
#pragma once

#include "printing/DruckForm.h"
#include "printing/Papierfenster.h"

namespace altardienst {

/// Three servers, two of them in the group "Die Großen", and one helper; the sheets 0 to 9 have
/// four rows and three columns.
class Druckfenster : public Papierfenster<DruckForm> {
  protected:
    Druckfenster()
    {
        Konfig.Tage = 28;
        Konfig.DiffJahr = 1;
        Konfig.Gemeinde = "St. Ägid";
        for (const char *vorname : {"Anna", "Ben", "Cara"})
            MeßdienerAnlegen(vorname, "Berg");
        HelferAnlegen("Lea", "Lang", "Lektor");
        Gruppe.Anzahl = 2;
        Gruppe.Bezeichnung[0] = "Die Kleinen";
        Gruppe.Bezeichnung[1] = "Die Großen";
        Meßdiener.Gruppe[1] = Meßdiener.Gruppe[2] = "Die Großen";
        BögenAnlegen();
    }

    /// Types into a box, leaves it and returns what it then shows.
    Text NachTippen(const char *name, const char *text) const
    {
        Tippen(name, text);
        FokusAuf("Ende");
        return Zeigt(name);
    }
};

} // namespace altardienst
