// Draws written out by record, each with the time that passes: the fixture of the assignment tests.
#pragma once

#include "Prüfstand.h"

#include "assignment/Ziehung.h"

#include <memory>
#include <stdexcept>

namespace altardienst {

/// One draw: the record that it yields, and by how many seconds the clock advances after it.
struct Wurf {
    Wurf(int satz, int sekunden = 0) : Satz(satz), Sekunden(sekunden) {} // implicit on purpose

    int Satz;
    int Sekunden;
};

class Zuweisungsstand : public Prüfstand {
  protected:
    const Datum Samstag = DatumAus({2026, 11, 21});
    const Datum Sonntag = DatumAus({2026, 11, 22});
    const Datum Montag = DatumAus({2026, 11, 23});

    int Gezogen = 0; // draws since the last Würfeln
    int Gestreut = 0;

    Zuweisungsstand()
    {
        // The working values outlive a run.
        MesseNr = 0;
        Kandidat = 0;
        MittelGröße = 0;
        LetztesGeschlecht.clear();
        SucheStart = 0;
        Neustarts = 0;
        BelegtProzent = 0;
    }

    /// The random value that yields a record of a table of this size.
    static Single WertFür(int satz, int anzahl)
    {
        if (anzahl == 0)
            return 0;
        if (satz == anzahl) // the blank row has the last half interval
            return (static_cast<Single>(anzahl) - 0.25F) / static_cast<Single>(anzahl);
        return static_cast<Single>(satz) / static_cast<Single>(anzahl);
    }

    /// Sets exactly these draws of servers; one more throws std::out_of_range, which ends a draw
    /// that would never end.
    void Würfeln(std::vector<Wurf> würfe) { Würfeln(std::move(würfe), Meßdiener.Anzahl); }
    void HelferWürfeln(std::vector<Wurf> würfe) { Würfeln(std::move(würfe), Helfer.Anzahl); }

    /// The same draw `anzahl` times.
    static std::vector<Wurf> Oft(int anzahl, Wurf wurf)
    {
        return std::vector<Wurf>(static_cast<std::size_t>(anzahl), wurf);
    }

    /// Makes this many servers "V0 N0", "V1 N1" and so on, who may serve everywhere.
    static void DienerAnlegen(int anzahl)
    {
        for (int j = 0; j < anzahl; ++j)
            MeßdienerAnlegen("V" + std::to_string(j), "N" + std::to_string(j));
    }

    static void HelferDienste(int anzahl, const Text &dienst1, const Text &dienst2 = "")
    {
        for (int h = 0; h < anzahl; ++h) {
            const Text nr = std::to_string(Helfer.Anzahl);
            HelferAnlegen("V" + nr, "N" + nr, dienst1, dienst2);
        }
    }

    static Text Slot(int messe, int slot)
    {
        return Messe.DienerVor[messe][slot] + " " + Messe.DienerNach[messe][slot];
    }

    /// Surnames in the slots from 1 up to the last that is not empty, separated by blanks.
    static Text Namen(int messe)
    {
        int letzter = 20;
        while (letzter > 0 && Messe.DienerNach[messe][letzter].empty())
            --letzter;
        Text namen;
        for (int s = 1; s <= letzter; ++s)
            namen += (s == 1 ? "" : " ") +
                     (Messe.DienerNach[messe][s].empty() ? "-" : Messe.DienerNach[messe][s]);
        return namen;
    }

  private:
    void Würfeln(std::vector<Wurf> würfe, int anzahl)
    {
        Gezogen = 0;
        Zufall.Streuen = [this] { ++Gestreut; };
        Zufall.Nächste = [this, anzahl, würfe = std::move(würfe)] {
            const Wurf &wurf = würfe.at(static_cast<std::size_t>(Gezogen));
            ++Gezogen;
            Sekunden += wurf.Sekunden;
            return WertFür(wurf.Satz, anzahl);
        };
    }
};

} // namespace altardienst
