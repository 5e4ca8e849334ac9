// The fixture of the tests of reports: a printer that keeps a log, and round numbers for margins.
#pragma once

#include "Prüfstand.h"
#include "printing/Druckprotokoll.h"

#include <utility>

namespace altardienst {

/// The left margin is at 1000 twips, the upper one at 600, the lower one 600 above the page's end.
class Druckstand : public Prüfstand {
  protected:
    Druckstand() : zuvor(std::exchange(Drucker, &Papier))
    {
        Konfig.Gemeinde = "St. Ägid";
        Konfig.Schriftart = "Liberation Sans";
        Konfig.Schriftgröße = 10;
        Konfig.Überschriftgröße = 14;
        Konfig.RandLinks = 20;
        Konfig.RandOben = 15;
        Konfig.RandUnten = 15;
        Konfig.XSkala = 50;
        Konfig.YSkala = 40;
        Konfig.DiffJahr = 2;
    }
    ~Druckstand() override { Drucker = zuvor; }

    Druckprotokoll Papier;

  private:
    DruckerDienst *zuvor;
};

} // namespace altardienst
