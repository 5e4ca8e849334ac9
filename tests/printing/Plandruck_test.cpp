// The printed plan and the form for the helpers, operation by operation.
#include "printing/Plandruck.h"

#include "printing/Druckstand.h"

namespace altardienst {
namespace {

class PlandruckTest : public Druckstand {
  protected:
    /// A mass on 22.11.2026 or later with all its slots named.
    static int MesseAnlegen(int dienerzahl, const Text &art = "Hochamt")
    {
        const int i = MesseMitDienern(DatumAus({2026, 11, 22 + Messe.Anzahl}), dienerzahl,
                                      ZeitAus(9 * 3600 + 5 * 60));
        Messe.Messeart[i] = art;
        for (int s = 1; s <= dienerzahl; ++s) {
            Messe.DienerVor[i][s] = "V" + std::to_string(s);
            Messe.DienerNach[i][s] = "N" + std::to_string(s);
        }
        return i;
    }

    /// The parts that any plan with one mass on the 22nd has before and after the part under test.
    static Ablauf Titel(const Text &bis)
    {
        Ablauf ablauf;
        ablauf.Tut("Dialog").Eröffnung(
            {"Messen der Pfarrei St. Ägid", "", "vom 22.11.2026 bis " + bis + " "});
        return ablauf;
    }
};

TEST_F(PlandruckTest, EineMesseMitAllenDienstenUndHelfern)
{
    const int i = MesseAnlegen(8);
    Messe.Gabenbereitung[i] = 2;
    Messe.Leuchter[i] = 1;
    Messe.Flambeau[i] = 3;
    Messe.Kreuzträger[i] = 1;
    Messe.LektorZahl[i] = 2;
    Messe.Lektor1Vor[i] = "Lea";
    Messe.Lektor1Nach[i] = "Lang";
    Messe.Lektor2Vor[i] = "Jörg";
    Messe.Lektor2Nach[i] = "Groß";
    Messe.KantorZahl[i] = 1;
    Messe.Kantor1Vor[i] = "Kai";
    Messe.Kantor1Nach[i] = "Kern";
    PlanDrucken();
    EXPECT_EQ(Papier.Zeilen,
              Titel("22.11.2026")
                  .Tut("FontBold an")
                  .Zeile("Sonntag, 22.11.2026 , 09:05Uhr, Hochamt")
                  .Tut("FontBold aus")
                  .Mehrere({"Gabenbereitung: V1 N1, V2 N2", "Leuchter: V3 N3",
                            "Flambeau: V4 N4, V5 N5", "Flambeau: V6 N6", "Kreuzträger: V7 N7",
                            "V8 N8", "Lektor: Lea Lang, Jörg Groß", "Kantor/in: Kai Kern"})
                  .Leerzeile()
                  .Tut("NewPage")
                  .Tut("EndDoc")
                  .Zeilen);
}

TEST_F(PlandruckTest, MehrereMessenInDerFolgeDerTabelleUndNurEineEröffnung)
{
    MesseAnlegen(1);
    MesseAnlegen(0, "Wochendienst");
    MesseAnlegen(2);
    Messe.Datum[2] = DatumAus({2026, 11, 1}); // the title takes the first and the last as they are
    Messe.Wochentag[2] = "Sonntag";
    PlanDrucken();
    EXPECT_EQ(Papier.Zeilen, Titel("01.11.2026")
                                 .Tut("FontBold an")
                                 .Zeile("Sonntag, 22.11.2026 , 09:05Uhr, Hochamt")
                                 .Tut("FontBold aus")
                                 .Zeile("V1 N1")
                                 .Leerzeile()
                                 .Tut("FontBold an")
                                 .Zeile("Ab Montag dem 23.11.2026 , Wochendienst")
                                 .Tut("FontBold aus")
                                 .Leerzeile()
                                 .Tut("FontBold an")
                                 .Zeile("Sonntag, 01.11.2026 , 09:05Uhr, Hochamt")
                                 .Tut("FontBold aus")
                                 .Zeile("V1 N1, V2 N2")
                                 .Leerzeile()
                                 .Tut("NewPage")
                                 .Tut("EndDoc")
                                 .Zeilen);
}

TEST_F(PlandruckTest, LeererPlanZeigtDenDialogUndGibtNichtsAus)
{
    for (const int modus : {0, 1}) {
        Papier.Leeren();
        Papier.Antwort = modus;
        PlanDrucken();
        EXPECT_EQ(Papier.Zeilen, (std::vector<Text>{"Dialog", "EndDoc"}));
    }
}

TEST_F(PlandruckTest, DerHelferbogenHatLeerzeilenZumEintragen)
{
    MesseAnlegen(3);
    Papier.Antwort = 1;
    PlanDrucken();
    EXPECT_EQ(Papier.Zeilen, Titel("22.11.2026")
                                 .Tut("FontBold an")
                                 .Zeile("Sonntag, 22.11.2026 , 09:05Uhr, Hochamt")
                                 .Leerzeile()
                                 .Tut("FontBold aus")
                                 .Mehrere({"Lektor: __________________________________",
                                           "Kommunionhelfer: __________________________________",
                                           "Kollektant: __________________________________",
                                           "Kantor: __________________________________"})
                                 .Leerzeile()
                                 .Tut("EndDoc")
                                 .Zeilen);
}

TEST_F(PlandruckTest, ImHelferbogenStehtVomWochendienstNurDieÜberschrift)
{
    MesseAnlegen(3, "Wochendienst");
    Papier.Antwort = 1;
    PlanDrucken();
    EXPECT_EQ(Papier.Zeilen, Titel("22.11.2026")
                                 .Tut("FontBold an")
                                 .Zeile("Ab Sonntag dem 22.11.2026 , Wochendienst")
                                 .Leerzeile()
                                 .Tut("FontBold aus")
                                 .Tut("EndDoc")
                                 .Zeilen);
}

TEST_F(PlandruckTest, EineArtDieNurSoBeginntIstKeinWochendienst)
{
    MesseAnlegen(3, "Wochendienst ");
    Papier.Antwort = 1;
    PlanDrucken();
    EXPECT_EQ(Papier.WieOft("Print \"Sonntag, 22.11.2026 , 09:05Uhr, Wochendienst \""), 1);
    for (const char *dienst : {"Lektor", "Kommunionhelfer", "Kollektant", "Kantor"})
        EXPECT_EQ(
            Papier.WieOft("Print \"" + Text(dienst) + ": __________________________________\""), 1)
            << dienst;
}

TEST_F(PlandruckTest, OhneHelferdiensteBleibenDieLinienWeg)
{
    MesseAnlegen(3);
    Papier.Antwort = 1;
    Konfig.Flags11 = "jnjjjjjjjjj";
    PlanDrucken();
    EXPECT_EQ(Papier.Zeilen, Titel("22.11.2026")
                                 .Tut("FontBold an")
                                 .Zeile("Sonntag, 22.11.2026 , 09:05Uhr, Hochamt")
                                 .Leerzeile()
                                 .Tut("FontBold aus")
                                 .Tut("EndDoc")
                                 .Zeilen);
}

TEST_F(PlandruckTest, DieMeßdienerdiensteDerEinstellungenWirkenNicht)
{
    MesseAnlegen(3);
    for (const int modus : {0, 1}) {
        std::vector<Text> drucke[2];
        for (const bool ja : {false, true}) {
            Konfig.Flags11 = ja ? "jjjjjjjjjjj" : "njjjjjjjjjj";
            Papier.Leeren();
            Papier.Antwort = modus;
            PlanDrucken();
            drucke[ja ? 1 : 0] = Papier.Zeilen;
        }
        EXPECT_EQ(drucke[0], drucke[1]);
    }
    Konfig.Flags11 = "jnnnnnnnnnn"; // nor do the helper services in the full plan
    Messe.LektorZahl[0] = 1;
    Papier.Leeren();
    Papier.Antwort = 0;
    PlanDrucken();
    EXPECT_EQ(Papier.WieOft("Print \"Lektor:  \""), 1);
}

TEST_F(PlandruckTest, JederAndereModusIstDerVollePlan)
{
    MesseAnlegen(1);
    for (const int modus : {-1, 2, 7}) {
        Papier.Leeren();
        Papier.Antwort = modus;
        PlanDrucken();
        EXPECT_EQ(Papier.WieOft("Print \"V1 N1\""), 1) << modus;
    }
}

TEST_F(PlandruckTest, DerDialogBietetBeideAusführungenUndDenPlanZuerst)
{
    PlanDrucken();
    EXPECT_EQ(Papier.Anfrage.ErsteForm, "Plan mit Namen");
    EXPECT_EQ(Papier.Anfrage.ZweiteForm, "Formular für die Helfer");
}

TEST_F(PlandruckTest, DieDiensteSindVerteiltBevorDerDialogErscheint)
{
    const int i = MesseAnlegen(2);
    Messe.Leuchter[i] = 1;
    Messe.DienerDienst[i][0] = "Flambeau"; // what was set by hand is overwritten
    Papier.Antwort = std::nullopt;
    PlanDrucken();
    EXPECT_EQ(Papier.Zeilen, std::vector<Text>{"Dialog"});
    EXPECT_EQ(Messe.DienerDienst[i][0], "Leuchter");
    EXPECT_EQ(Messe.DienerDienst[i][1], "Allgemein");
}

} // namespace
} // namespace altardienst
