// The figures about the servers, against tables worked out by hand. Today is 21.11.2026.
#include "statistics/Meßdienerstatistik.h"

#include "Prüfstand.h"

#include <cmath>

namespace altardienst {
namespace {

class MeßdienerstatistikTest : public Prüfstand {
  protected:
    /// Makes a server who is that many months old and has been a member for that many months.
    static int Anlegen(int altersmonate, int zugehörigkeitsmonate)
    {
        const int i = MeßdienerAnlegen("Anna", "Berg");
        Meßdiener.Geburtstag[i] = VorMonaten(altersmonate);
        Meßdiener.Eintrittsdatum[i] = VorMonaten(zugehörigkeitsmonate);
        return i;
    }

    static Datum VorMonaten(int monate)
    {
        const int monat = 2026 * 12 + 10 - monate; // counted from 0
        return DatumAus({monat / 12, monat % 12 + 1, 28});
    }

    Meßdienerstatistik Auswerten() const { return MeßdienerAuswerten(Heute); }
    static std::array<int, 13> Größen(const std::vector<int> &cm)
    {
        TabellenLeeren();
        for (const int größe : cm)
            MeßdienerAnlegen("Anna", "Berg", größe);
        return GrößenAuswerten().Anzahl;
    }
};

TEST_F(MeßdienerstatistikTest, AltersklassenBeginnenAmMonatsersten)
{
    Anlegen(119, 0); // 9 years and 11 months
    Anlegen(120, 0); // 10 years
    Anlegen(131, 0); // 10 years and 11 months
    Anlegen(132, 0); // 11 years
    EXPECT_EQ(Auswerten().Alter, (std::array{1, 2, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST_F(MeßdienerstatistikTest, AltersklassenSindAnBeidenEndenOffen)
{
    Anlegen(-5, 0);  // not yet born
    Anlegen(-40, 0); // nor this one
    Anlegen(0, 0);
    Anlegen(107, 0); // 8 years
    Anlegen(19 * 12 + 11, 0);
    Anlegen(20 * 12, 0);
    Anlegen(90 * 12, 0);
    Meßdiener.Geburtstag[Anlegen(0, 0)] = 0; // not set: 126 years
    EXPECT_EQ(Auswerten().Alter, (std::array{4, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 3}));
}

TEST_F(MeßdienerstatistikTest, JedesAlterVon10Bis19HatSeineKlasse)
{
    for (int jahre = 9; jahre <= 20; ++jahre)
        for (int wieOft = 9; wieOft <= jahre; ++wieOft)
            Anlegen(jahre * 12 + 6, 0);
    EXPECT_EQ(Auswerten().Alter, (std::array{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}));
}

TEST_F(MeßdienerstatistikTest, JedeZugehörigkeitBis14HatIhreKlasse)
{
    for (int jahre = 0; jahre <= 15; ++jahre)
        for (int wieOft = 0; wieOft <= jahre; ++wieOft)
            Anlegen(0, jahre * 12 + 11);
    Anlegen(0, 60 * 12);
    EXPECT_EQ(Auswerten().Zugehörigkeit,
              (std::array{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 17}));
}

TEST_F(MeßdienerstatistikTest, EintrittInDerZukunft)
{
    Anlegen(120, -1);  // 0 years
    Anlegen(120, -11); // 0 years
    Anlegen(120, -12); // -1 year, in no class
    Anlegen(120, 36);
    const Meßdienerstatistik s = Auswerten();
    EXPECT_EQ(s.Zugehörigkeit, (std::array{2, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
    // (-1 - 11 - 12 + 36) / (4 * 12) = 12 / 48
    EXPECT_EQ(s.Durchschnittszugehörigkeit, 0.25F);
}

TEST_F(MeßdienerstatistikTest, DurchschnitteRechnenMitMonaten)
{
    Anlegen(131, 11);
    Anlegen(132, 12);
    Anlegen(150, 37);
    const Meßdienerstatistik s = Auswerten();
    // (131 + 132 + 150) / (3 * 12) = 413 / 36; whole years would give (10 + 11 + 12) / 3
    EXPECT_EQ(s.Durchschnittsalter, 413.0F / 36.0F);
    // (11 + 12 + 37) / (3 * 12) = 60 / 36; whole years would give (0 + 1 + 3) / 3
    EXPECT_EQ(s.Durchschnittszugehörigkeit, 60.0F / 36.0F);
}

TEST_F(MeßdienerstatistikTest, Zusammensetzung)
{
    const auto anlegen = [](const Text &geschlecht, const Text &qualifikation) {
        Meßdiener.Qualifikation[MeßdienerAnlegen("Anna", "Berg", 160, geschlecht)] = qualifikation;
    };
    anlegen("männlich", "jnnnnn");
    anlegen("männlich", "jjnnnn");
    anlegen("männlich", "jjjnnn");
    anlegen("weiblich", "jjjjnn");
    anlegen("weiblich", "jjjjjn");
    anlegen("", "nnnnnj"); // no sex, and the sixth position is counted nowhere
    anlegen("Männlich", "");
    EXPECT_EQ(Auswerten().Zusammensetzung, (std::array{3, 2, 5, 4, 3, 2, 1, 7}));
}

TEST_F(MeßdienerstatistikTest, ZählenNurDieSätzeUnterAnzahl)
{
    Anlegen(120, 24);
    Anlegen(180, 36);
    --Meßdiener.Anzahl;
    const Meßdienerstatistik s = Auswerten();
    EXPECT_EQ(s.Alter[6], 0);
    EXPECT_EQ(s.Zusammensetzung[7], 1);
    EXPECT_EQ(s.Durchschnittsalter, 10);
    EXPECT_EQ(s.Durchschnittszugehörigkeit, 2);
}

TEST_F(MeßdienerstatistikTest, OhneMeßdienerWirdDurchNullGeteilt)
{
    EXPECT_EQ(NummerDesFehlers([&] { Auswerten(); }), 11);
    EXPECT_EQ(NummerDesFehlers([] { GrößenAuswerten(); }), 11);
}

TEST_F(MeßdienerstatistikTest, GrößenklassenAnIhrenGrenzen)
{
    EXPECT_EQ(Größen({0, 99, 100}), (std::array{3, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(Größen({101, 110, 111}), (std::array{0, 2, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(Größen({200, 201, 210}), (std::array{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 2, 0}));
    // Row 12 ends at 220, whatever its label says.
    EXPECT_EQ(Größen({211, 220, 221, 249, 250, 300}),
              (std::array{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 2}));
    EXPECT_EQ(Größen({-5, 165}), (std::array{1, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0}));
}

TEST_F(MeßdienerstatistikTest, JedeGrößenklasseHatZehnZentimeter)
{
    std::vector<int> alle;
    for (int cm = 91; cm <= 230; ++cm)
        alle.push_back(cm);
    EXPECT_EQ(Größen(alle), (std::array{10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10}));
}

TEST_F(MeßdienerstatistikTest, WerInKeinerKlasseIstZähltImMittel)
{
    Größen({160, 240});
    EXPECT_EQ(GrößenAuswerten().Mittel, 200); // (160 + 240) / 2
}

TEST_F(MeßdienerstatistikTest, AbweichungTeiltHinterDerWurzelDurchEinenMehr)
{
    Größen({170});
    EXPECT_EQ(GrößenAuswerten().Abweichung, 0);
    Größen({150, 160});
    EXPECT_EQ(GrößenAuswerten().Mittel, 155);
    EXPECT_FLOAT_EQ(GrößenAuswerten().Abweichung, std::sqrt(50.0F) / 3); // 5² + 5², 2 + 1
    Größen({140, 150, 160, 190});
    // mean 640 / 4 = 160; squares 400 + 100 + 0 + 900 = 1400; √1400 / 5 = 7.483
    EXPECT_EQ(GrößenAuswerten().Mittel, 160);
    EXPECT_FLOAT_EQ(GrößenAuswerten().Abweichung, 7.4833148F);
}

TEST_F(MeßdienerstatistikTest, NamenDerGrößenklassen)
{
    std::vector<Text> namen;
    for (int k = 0; k < Größenstatistik::Klassen; ++k)
        namen.push_back(Größenklasse(k));
    EXPECT_EQ(namen, (std::vector<Text>{"bis 100", "101 bis 110", "111 bis 120", "121 bis 130",
                                        "131 bis 140", "141 bis 150", "151 bis 160", "161 bis 170",
                                        "171 bis 180", "181 bis 190", "191 bis 200", "201 bis 210",
                                        "ab 211"}));
}

TEST_F(MeßdienerstatistikTest, KreuztabelleStelltAlterUndZugehörigkeitGegenüber)
{
    Anlegen(10 * 12, 0);       // column 10 - 8
    Anlegen(10 * 12 + 11, 11); // the same
    Anlegen(9 * 12, 12);       // the first column for a single age
    Anlegen(8 * 12, 12);       // under 9 counts as 9
    Anlegen(-30, 12);          // unborn too
    Anlegen(24 * 12, 14 * 12); // the last column for a single age
    Anlegen(25 * 12, 15 * 12); // over 24 counts as 24
    Anlegen(60 * 12, 40 * 12); // as 24, and over 15 as 15
    Anlegen(15 * 12, -11);     // 0 years
    Kreuztabelle tabelle = AlterGegenZugehörigkeit(Heute);
    int summe = 0;
    for (int z = 0; z <= 16; ++z)
        for (int spalte = 0; spalte <= 16; ++spalte)
            summe += tabelle[z][spalte];
    EXPECT_EQ(summe, 9);
    EXPECT_EQ(tabelle[0][2], 2);
    EXPECT_EQ(tabelle[1][1], 3);
    EXPECT_EQ(tabelle[14][16], 1);
    EXPECT_EQ(tabelle[15][16], 2);
    EXPECT_EQ(tabelle[0][7], 1);
}

TEST_F(MeßdienerstatistikTest, KreuztabelleHatKeineZeileFürNegativeJahre)
{
    Anlegen(15 * 12, -12);
    EXPECT_EQ(NummerDesFehlers([&] { AlterGegenZugehörigkeit(Heute); }), 9);
}

} // namespace
} // namespace altardienst
