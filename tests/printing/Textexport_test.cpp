// The plan as a plain text file.
#include "printing/Textexport.h"

#include "Prüfstand.h"

namespace altardienst {
namespace {

class TextexportTest : public Prüfstand {
  protected:
    static int Messe1()
    {
        Konfig.Gemeinde = "St. Peter";
        int i = MesseMitDienern(DatumAus({2026, 11, 22}), 3);
        Messe.Messeart[i] = "Hochamt";
        for (int k = 0; k <= 20; ++k)
            Messe.DienerDienst[i][k] = "Allgemein";
        return i;
    }
};

TEST_F(TextexportTest, GanzerPlanMitTitelUndLeerzeilen)
{
    int i = Messe1();
    Messe.DienerDienst[i][0] = "Kreuzträger";
    Messe.DienerDienst[i][1] = "Leuchter";
    Messe.DienerVor[i][1] = "Jörg";
    Messe.DienerNach[i][1] = "Groß";
    Messe.DienerVor[i][2] = "Anna";
    Messe.DienerNach[i][2] = "Berg";
    Messe.DienerVor[i][3] = "Zoë";
    Messe.DienerNach[i][3] = "Adam";
    Messe.LektorZahl[i] = 1;
    Messe.Lektor1Vor[i] = "Lea";
    Messe.Lektor1Nach[i] = "Lang";
    int w = MesseMitDienern(DatumAus({2026, 11, 23}), 0);
    Messe.Messeart[w] = "Wochendienst";
    EXPECT_EQ(PlanAlsText(), "Messen der Pfarrei St. Peter\r\n"
                             "vom 22.11.2026 bis 23.11.2026 \r\n"
                             "\r\n"
                             "Sonntag, 22.11.2026 , 10:00Uhr, Hochamt\r\n"
                             "Leuchter: Anna Berg\r\n"
                             "Kreuztr\xE4ger: J\xF6rg Gro\xDF\r\n"
                             "Zo\xEB Adam\r\n"
                             "Lektor: Lea Lang\r\n"
                             "\r\n"
                             "Ab Montag dem 23.11.2026 , Wochendienst\r\n"
                             "\r\n");
}

TEST_F(TextexportTest, LeererPlanErgibtNichts)
{
    Konfig.Gemeinde = "St. Peter";
    EXPECT_EQ(PlanAlsText(), "");
}

TEST_F(TextexportTest, DiensteWieSieStehen)
{
    int i = Messe1();
    Messe.Leuchter[i] = 2; // not written out yet
    Messe.DienerVor[i][1] = "Anna";
    PlanAlsText();
    EXPECT_EQ(Messe.DienerDienst[i][0], "Allgemein");
    EXPECT_NE(PlanAlsText().find("\r\nAnna \r\n"), std::string::npos);
}

TEST_F(TextexportTest, WasDerZeichensatzNichtHatWirdFragezeichen)
{
    Messe1();
    Konfig.Gemeinde = "Święty 5 €";
    EXPECT_EQ(PlanAlsText().substr(0, 31), "Messen der Pfarrei ?wi?ty 5 \x80\r\n");
}

TEST_F(TextexportTest, ZielAusVerzeichnisUndName)
{
    Exportziel ziel = PfadBilden("/texte", "plan");
    EXPECT_EQ(ziel.Ordner, TextVon("/texte/"));
    EXPECT_EQ(ziel.NurName, "plan.txt");
    EXPECT_EQ(ziel.VollerPfad, TextVon("/texte/plan.txt"));
    ziel = PfadBilden("/", "");
    EXPECT_EQ(ziel.NurName, "Datei.txt");
    EXPECT_EQ(ziel.VollerPfad, TextVon("/Datei.txt"));
    EXPECT_EQ(PfadBilden("/texte/", "plan.txt").VollerPfad, TextVon("/texte/plan.txt.txt"));
    EXPECT_EQ(PfadBilden("/texte", "Plan März").NurName, "Plan März.txt");
}

TEST_F(TextexportTest, VorhandeneDateiWirdOhneRücksichtAufDieSchreibweiseErkannt)
{
    EXPECT_FALSE(ZielVorhanden(PfadBilden(Festplatte, "plan")));
    DateiSchreiben(Festplatte / "PLAN.TXT", "");
    EXPECT_TRUE(ZielVorhanden(PfadBilden(Festplatte, "plan")));
    EXPECT_FALSE(ZielVorhanden(PfadBilden(Festplatte, "plan2")));
    EXPECT_FALSE(ZielVorhanden(PfadBilden(Festplatte, "")));
    DateiSchreiben(Festplatte / "Datei.txt", "");
    EXPECT_TRUE(ZielVorhanden(PfadBilden(Festplatte, "")));
    EXPECT_FALSE(ZielVorhanden(PfadBilden(Festplatte / "fehlt", "plan")));
}

TEST_F(TextexportTest, GeschriebenWirdWasDaIstUnterSeinemNamenSonstWieGetippt)
{
    NUR_WO_ES_GIBT(Schreibungen);
    const auto datei = [&](const Text &name) { return ZielDatei(PfadBilden(Festplatte, name)); };
    EXPECT_EQ(datei("plan"), Festplatte / "plan.txt");
    DateiSchreiben(Festplatte / "PLAN.TXT", "");
    EXPECT_EQ(datei("plan"), Festplatte / "PLAN.TXT");
    EXPECT_EQ(datei("Plan"), Festplatte / "PLAN.TXT");
    EXPECT_EQ(datei("plan2"), Festplatte / "plan2.txt");
    DateiSchreiben(Festplatte / "plan.txt", "");
    EXPECT_EQ(datei("plan"), Festplatte / "plan.txt") << "the exact spelling comes first";
    std::filesystem::create_directories(Festplatte / "b");
    DateiSchreiben(Festplatte / "b" / "c.txt", "");
    EXPECT_EQ(datei("b/c"), Festplatte / "b" / "c.txt");
    EXPECT_EQ(datei("b/d"), Festplatte / "b" / "d.txt");
}

} // namespace
} // namespace altardienst
