// The findings in groups and on paper.
#include "overview/Prüfliste.h"

#include "overview/Prüfungsstand.h"
#include "printing/Druckstand.h"

namespace altardienst {
namespace {

class PrüflisteTest : public Druckstand {
  protected:
    PrüflisteTest()
    {
        const Datum sonntag = DatumAus({2026, 11, 22});
        for (int k = 0; k < 2; ++k) {
            const int i = MesseMitDienern(sonntag + k, 2);
            Messe.Allgemein[i] = 2;
            Messe.Messeart[i] = "Hochamt";
        }
        const int anna = MeßdienerAnlegen("Anna", "Zett");
        const int ben = MeßdienerAnlegen("Ben", "Adam");
        for (int i = 0; i < 2; ++i)
            Besetzen(Messe, Dienerplatznr(i, 1), Meßdiener.Vorname[anna], Meßdiener.Nachname[anna]);
        Besetzen(Messe, Dienerplatznr(1, 2), Meßdiener.Vorname[ben], Meßdiener.Nachname[ben]);
        Meßdiener.Größe[ben] = 190;
    }
};

TEST_F(PrüflisteTest, NachMessen)
{
    const Planprüfung prüfung;
    const std::vector<Befundgruppe> gruppen = Befundgruppen(prüfung, Gliederung::NachMesse);
    ASSERT_EQ(gruppen.size(), 2U);
    EXPECT_EQ(gruppen[0].Titel, "Sonntag, 22.11.2026, 10:00 Uhr, Hochamt");
    EXPECT_EQ(gruppen[0].Befunde, prüfung.Von(0));
    EXPECT_EQ(gruppen[1].Befunde, prüfung.Von(1));
}

TEST_F(PrüflisteTest, NachPersonenIhreNachnamenOrdnen)
{
    const std::vector<Befundgruppe> gruppen = Befundgruppen(Planprüfung(), Gliederung::NachPerson);
    ASSERT_EQ(gruppen.size(), 3U);
    EXPECT_EQ(gruppen[0].Titel, "Ben Adam");
    EXPECT_EQ(gruppen[1].Titel, "Anna Zett");
    EXPECT_EQ(gruppen[1].Befunde[0].Gegen, Regel::Nachbartag);
    EXPECT_EQ(gruppen[2].Titel, "Ohne Namen");
    EXPECT_EQ(gruppen[2].Befunde[0].Gegen, Regel::Frei);
}

TEST_F(PrüflisteTest, GedrucktNachMessen)
{
    PrüflisteDrucken(Planprüfung(), Gliederung::NachMesse);
    Ablauf ablauf;
    ablauf.Tut("Dialog")
        .Eröffnung({"Prüfliste der Pfarrei St. Ägid", "2 Verstöße, 1 Hinweis"})
        .Tut("FontBold an")
        .Zeile("Sonntag, 22.11.2026, 10:00 Uhr, Hochamt")
        .Tut("FontBold aus")
        .Zeile("Verstoß: Diener 2 ist frei.")
        .Tut("Print \"\"")
        .Tut("FontBold an")
        .Zeile("Montag, 23.11.2026, 10:00 Uhr, Hochamt")
        .Tut("FontBold aus")
        .Zeile("Verstoß: Anna Zett dient schon am Vortag, 22.11., 10:00 Uhr, Hochamt.")
        .Zeile("Hinweis: Ben Adam ist 190 cm groß; hier passen 160 bis 160 cm.")
        .Tut("Print \"\"")
        .Tut("NewPage")
        .Tut("EndDoc");
    EXPECT_EQ(Papier.Zeilen, ablauf.Zeilen);
}

TEST_F(PrüflisteTest, GedrucktNachPersonenMitUmbruch)
{
    Konfig.Schriftgröße = 12; // with 10 it would be one line
    PrüflisteDrucken(Planprüfung(), Gliederung::NachPerson);
    Text papier;
    for (const Text &zeile : Papier.Zeilen)
        papier += zeile + "\n";
    EXPECT_NE(papier.find("Print \"Verstoß, Mo 23.11.2026 10:00 Hochamt: Anna Zett dient schon am "
                          "Vortag, 22.11.,\"\n"
                          "CurrentX 1000\nPrint \"      10:00 Uhr, Hochamt.\""),
              Text::npos)
        << papier;
}

TEST_F(PrüflisteTest, EinLangerPlanBrichtSeitenUm)
{
    Papier.Seitenhöhe = 3000;
    for (int i = 2; i < 40; ++i)
        MesseMitDienern(DatumAus({2026, 12, 1}) + 2 * i, 3);
    PrüflisteDrucken(Planprüfung(), Gliederung::NachMesse);
    EXPECT_GT(Papier.WieOft("NewPage"), 5);
}

TEST_F(PrüflisteTest, OhneBefundeStehtDasDa)
{
    Messe.Anzahl = 0;
    PrüflisteDrucken(Planprüfung(), Gliederung::NachMesse);
    EXPECT_EQ(Papier.WieOft("Print \"nichts Auffälliges\""), 1);
}

TEST_F(PrüflisteTest, Zahlen)
{
    EXPECT_EQ(Befundzahl(0, 0), "nichts Auffälliges");
    EXPECT_EQ(Befundzahl(1, 0), "1 Verstoß");
    EXPECT_EQ(Befundzahl(2, 1), "2 Verstöße, 1 Hinweis");
    EXPECT_EQ(Befundzahl(0, 5), "5 Hinweise");
}

} // namespace
} // namespace altardienst
