// The fixture of the tests of what is given away: a small plan with umlauts, a helper, free places
// and a mass without a date.
#pragma once

#include "Prüfstand.h"

#include "overview/Platz.h"

namespace altardienst {

class Planstücke : public Prüfstand {
  protected:
    Planstücke()
    {
        Konfig.Gemeinde = "St. Änne";
        MeßdienerAnlegen("Anna", "Adler");
        MeßdienerAnlegen("Änne", "Übel");
        MeßdienerAnlegen("Cem", "Cohn");
        MeßdienerAnlegen("Doris", "Dorn"); // serves nowhere
        HelferAnlegen("Lea", "Lang", "Lektor");
        // Not in the order of time.
        const int sonntag = MesseMitDienern(DatumAus({2026, 11, 29}), 2);
        Messe.Messeart[sonntag] = "Hochamt";
        Messe.Leuchter[sonntag] = 1;
        Messe.LektorZahl[sonntag] = 1;
        Stellen(sonntag, 1, 0);
        Stellen(sonntag, 2, 1);
        Besetzen(Messe, Helferplatznr(sonntag, 0), "Lea", "Lang");
        const int samstag = MesseMitDienern(DatumAus({2026, 11, 28}), 2, ZeitAus(18 * 3600 + 1800));
        Messe.Messeart[samstag] = "Vorabendmesse";
        Stellen(samstag, 1, 2);
        const int ohne = MesseMitDienern(0, 1);
        Messe.Messeart[ohne] = "Irgendwann";
        Stellen(ohne, 1, 0);
    }

    static void Stellen(int messe, int slot, int diener)
    {
        Besetzen(Messe, Dienerplatznr(messe, slot), Meßdiener.Vorname[diener],
                 Meßdiener.Nachname[diener]);
    }

    static int Zähle(const std::string &bytes, const std::string &wort)
    {
        int zahl = 0;
        for (auto ort = bytes.find(wort); ort != std::string::npos; ort = bytes.find(wort, ort + 1))
            ++zahl;
        return zahl;
    }

    static bool Enthält(const std::string &bytes, const std::string &wort)
    {
        return bytes.find(wort) != std::string::npos;
    }
};

} // namespace altardienst
