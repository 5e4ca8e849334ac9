// Who serves how often.
#include "fairness/Verteilung.h"

#include "Prüfstand.h"

namespace altardienst {
namespace {

class VerteilungTest : public Prüfstand {
  protected:
    const Datum Beginn = DatumAus({2026, 11, 28});

    VerteilungTest()
    {
        MeßdienerAnlegen("Kim", "Adler");
        MeßdienerAnlegen("Jan", "Busch");
        MeßdienerAnlegen("", "Ohne");
        for (const int tage : {14, 0, 4}) // not in the order of time
            MesseMitDienern(Beginn + tage, 1);
        Messe.Leuchter[1] = 1;
        for (int i = 0; i < 3; ++i)
            Besetzen(Messe, Dienerplatznr(i, 1), "Kim", "Adler");
        Besetzen(Messe, Dienerplatznr(0, 2), "Jan", "Busch"); // behind the count
    }
};

TEST_F(VerteilungTest, ZähltDienstenachArtUndTag)
{
    const auto alle = DiensteVerteilt(GemeinsameTabellen(), Planplatz::Art::Diener, {}, Beginn + 1);
    ASSERT_EQ(alle.size(), 2U); // nobody without a name
    const Dienstverteilung &kim = alle[0];
    EXPECT_EQ(kim.Dienste, 3);
    EXPECT_EQ(kim.Arten[1], 1); // Leuchter
    EXPECT_EQ(kim.Arten[5], 2); // Allgemein
    EXPECT_EQ(kim.Erster, Beginn);
    EXPECT_EQ(kim.Letzter, Beginn + 14);
    EXPECT_EQ(kim.Nächster, Beginn + 4);
    EXPECT_EQ(kim.LängsterAbstand, 10);
    EXPECT_NEAR(kim.Anteil, 1.5, 0.001);
    EXPECT_NEAR(kim.Abweichung(), 1.5, 0.001);
    EXPECT_EQ(alle[1].Dienste, 0);
    EXPECT_EQ(alle[1].Erster, 0);
    EXPECT_NEAR(alle[1].Anteil, 1.5, 0.001);
}

TEST_F(VerteilungTest, WerSchonOftGedientHatHatEinenKleinerenAnteil)
{
    const auto alle =
        DiensteVerteilt(GemeinsameTabellen(), Planplatz::Art::Diener, {2, 0, 0}, Beginn);
    EXPECT_EQ(alle[0].Archiv, 2);
    EXPECT_NEAR(alle[0].Anteil, 0.5, 0.001);
    EXPECT_NEAR(alle[1].Anteil, 2.5, 0.001);
}

TEST_F(VerteilungTest, DieTabelleIstMitTabulatorenGetrennt)
{
    const auto alle = DiensteVerteilt(GemeinsameTabellen(), Planplatz::Art::Diener, {}, Beginn + 1);
    EXPECT_EQ(VerteilungAlsTabelle(GemeinsameTabellen(), Planplatz::Art::Diener, alle),
              "Name\tDienste\tAnteil\tAbweichung\tArchiv\tGabenbereitung\tLeuchter\tFlambeau\t"
              "Weihrauch\tKreuzträger\tAllgemein\terster\tletzter\tnächster\tlängster Abstand\n"
              "Adler, Kim\t3\t1,5\t+1,5\t\t\t1\t\t\t\t2\t28.11.2026\t12.12.2026\t"
              "02.12.2026\t10 Tage\n"
              "Busch, Jan\t0\t1,5\t-1,5\t\t\t\t\t\t\t\t\t\t\t\n");
}

TEST_F(VerteilungTest, HelferHabenIhreEigenenDienste)
{
    HelferAnlegen("Maria", "Linde", "Lektor");
    Messe.LektorZahl[0] = 1;
    Besetzen(Messe, Helferplatznr(0, 0), "Maria", "Linde");
    const auto alle = DiensteVerteilt(GemeinsameTabellen(), Planplatz::Art::Helfer, {}, Beginn);
    ASSERT_EQ(alle.size(), 1U);
    EXPECT_EQ(alle[0].Arten[0], 1);
    EXPECT_NEAR(alle[0].Anteil, 1, 0.001);
}

} // namespace
} // namespace altardienst
