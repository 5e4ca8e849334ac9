// The fixture of the tests of the settings: a parish whose settings are all within their limits.
#pragma once

#include "printing/Papierfenster.h"
#include "settings/KonfigurationForm.h"

namespace altardienst {

/// Today is Saturday, 21.11.2026; the plan starts a week later.
class Konfigurationsstand : public Papierfenster<KonfigurationForm> {
  protected:
    Konfigurationsstand()
    {
        Konfig.Gemeinde = "St. Ägid";
        Konfig.Straße = "Kirchplatz 1";
        Konfig.PlzOrt = "43217 Quellersheim";
        Konfig.DiffJahr = 1;
        Konfig.DiffGröße = 10;
        Konfig.Tage = 28;
        Konfig.Schriftart = "Liberation Sans";
        Konfig.Schriftgröße = 9;
        Konfig.Überschriftgröße = 14;
        Konfig.RandLinks = 20;
        Konfig.RandUnten = 16;
        Konfig.RandOben = 12;
        Konfig.GrenzeAuslöse = 60;
        Konfig.StartDatum = Heute + 7;
        Papier.Schriftarten = {"Zeta", "Liberation Sans", "Alpha"};
    }

    void Leeren(const char *name) const { Tippen(name, ""); }
    void Verlassen() const { FokusAuf("Ende"); }
};

} // namespace altardienst
