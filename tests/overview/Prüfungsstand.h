// The fixture of the tests of a plan's check: a plan without findings, in which a test breaks one
// thing.
#pragma once

#include "Prüfstand.h"

#include "overview/Planprüfung.h"

namespace altardienst {

/// The plan period is 22.11. to 20.12.2026, the height tolerance 10 cm; everybody may serve
/// everywhere.
class Prüfungsstand : public Prüfstand {
  protected:
    Prüfungsstand()
    {
        Konfig.StartDatum = DatumAus({2026, 11, 22});
        Konfig.Tage = 28;
        Konfig.DiffGröße = 10;
    }

    static Datum Tag(int tag, int monat = 11) { return DatumAus({2026, monat, tag}); }

    /// A Hochamt at ten, whose services add up.
    static int Hochamt(Datum tag, int diener = 2)
    {
        const int i = MesseMitDienern(tag, diener);
        Messe.Messeart[i] = "Hochamt";
        Messe.Wochentag[i] = WochentagName(tag);
        Messe.Allgemein[i] = diener;
        return i;
    }

    /// Turns general places into places of a service.
    static void MitDienst(int messe, MesseTabelle::Spalte<Int16> &dienst, int zahl)
    {
        dienst[messe] = zahl;
        Messe.Allgemein[messe] = Messe.Allgemein[messe] - zahl;
    }

    static void Einsetzen(int messe, int slot, int diener)
    {
        Besetzen(Messe, Dienerplatznr(messe, slot), Meßdiener.Vorname[diener],
                 Meßdiener.Nachname[diener]);
    }

    static void HelferEinsetzen(int messe, int nr, int helfer)
    {
        Besetzen(Messe, Helferplatznr(messe, nr), Helfer.Vorname[helfer], Helfer.Nachname[helfer]);
    }

    /// Another server in each slot of the mass, all alike.
    static void Füllen(int messe)
    {
        for (int slot = 1; slot <= Messe.Dienerzahl[messe]; ++slot)
            Einsetzen(messe, slot,
                      MeßdienerAnlegen("Vor" + std::to_string(Meßdiener.Anzahl), "Nach"));
    }

    /// All findings: "V 1 Anna Berg ...", with sign, place and sentence; the mass is left out.
    static std::vector<Text> Befunde()
    {
        const Planprüfung prüfung;
        std::vector<Text> zeilen;
        for (const Befund &befund : prüfung.Alle())
            zeilen.push_back(Text(befund.Grad == Stufe::Verstoß ? "V " : "H ") +
                             std::to_string(befund.Wo.Nr) + " " + Satz(prüfung.Tabellen(), befund));
        return zeilen;
    }
};

using Zeilen = std::vector<Text>;

} // namespace altardienst
