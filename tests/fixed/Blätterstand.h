// The fixture of the tests that move between the fixed entries.
#pragma once

#include "fixed/Zuordnungsstand.h"

namespace altardienst {

/// Three entries: masses 0, 1 and 3, each with one server.
class Blätterstand : public Zuordnungsstand {
  protected:
    void Öffnen(int cursor = 0)
    {
        Fest(0, 0, {"Abel"});
        Fest(1, 1, {"Bauer"});
        Fest(2, 3, {"Conrad"});
        MesseDienerFest.Cursor = cursor;
        ListeÖffnen();
    }

    /// Makes that many entries without a mass; the date tells them apart.
    void Viele(int anzahl)
    {
        for (int k = 0; k < anzahl; ++k) {
            MesseDienerFest.Datum[k] = Sonntag + 100 + k;
            MesseDienerFest.Uhrzeit[k] = ZeitAus(3600);
        }
        MesseDienerFest.Anzahl = anzahl;
    }

    /// The number, the entry on the screen, and whether the table's cursor is there.
    Text Wo() const
    {
        EXPECT_EQ(ZahlText(MesseDienerFest.Cursor), Zeigt("Index"));
        return Zeigt("Index") + ": " + AmUm() + " " + Gewählt(1) + " " + ZahlText(Zeilen());
    }

    const Text Null = "0: 22.11.2026,10:00:00 Abel,Kim 4";
    const Text Eins = "1: 22.11.2026,18:00:00 Bauer,Kim 2";
    const Text Zwei = "2: 24.11.2026,08:00:00 Conrad,Kim 3";
    const Text Leer = "3: 21.11.2026,00:00:00  0"; // the blank entry after the last one
};

} // namespace altardienst
