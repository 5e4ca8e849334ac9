// From the counts of a mass to the services of its slots.
#include "assignment/Dienste.h"

#include "Prüfstand.h"

#include <algorithm>

namespace altardienst {
namespace {

using Zahl = MesseTabelle::Spalte<Int16>;

class DiensteTest : public Prüfstand {
  protected:
    DiensteTest() { MesseMitDienern(DatumAus({2026, 11, 22}), 4); }

    /// The first letters of the services at indices 0 to 20.
    static Text Dienste(int messe = 0)
    {
        Text kürzel;
        for (int k = 0; k <= 20; ++k)
            kürzel += Messe.DienerDienst[messe][k].substr(0, 1);
        return kürzel;
    }

    static void AlleAuf(const Text &dienst)
    {
        for (int i = 0; i <= 3; ++i)
            for (int k = 0; k <= 20; ++k)
                Messe.DienerDienst[i][k] = dienst;
    }
};

TEST_F(DiensteTest, DiensteStehenAbIndex0InFesterReihenfolge)
{
    AlleAuf("xAlt");
    Messe.Kreuzträger[0] = 1;
    Messe.Weihrauch[0] = 1;
    Messe.Flambeau[0] = 2;
    Messe.Leuchter[0] = 1;
    Messe.Gabenbereitung[0] = 1;
    DiensteVerteilen();
    EXPECT_EQ(Dienste(), "GLFFWKAAAAAAAAAAAAAAA");
    EXPECT_EQ(Messe.DienerDienst[0][0], "Gabenbereitung");
    EXPECT_EQ(Messe.DienerDienst[0][1], "Leuchter");
    EXPECT_EQ(Messe.DienerDienst[0][2], "Flambeau");
    EXPECT_EQ(Messe.DienerDienst[0][4], "Weihrauch");
    EXPECT_EQ(Messe.DienerDienst[0][5], "Kreuzträger");
    EXPECT_EQ(Messe.DienerDienst[0][6], "Allgemein");
}

TEST_F(DiensteTest, EineGabenbereitungUndZweiFlambeau)
{
    Messe.Gabenbereitung[0] = 1;
    Messe.Flambeau[0] = 2;
    DiensteVerteilen();
    EXPECT_EQ(Dienste(), "GFFAAAAAAAAAAAAAAAAAA");
}

TEST_F(DiensteTest, JederDienstHatSeineHöchstzahl)
{
    const std::tuple<Zahl *, char, int> dienste[] = {{&Messe.Gabenbereitung, 'G', 2},
                                                     {&Messe.Leuchter, 'L', 2},
                                                     {&Messe.Flambeau, 'F', 8},
                                                     {&Messe.Weihrauch, 'W', 2},
                                                     {&Messe.Kreuzträger, 'K', 2}};
    for (const auto &[zahl, kürzel, höchstens] : dienste) {
        for (int n = -1; n <= 10; ++n) {
            (*zahl)[0] = n;
            DiensteVerteilen();
            auto erwartet = static_cast<std::size_t>(std::clamp(n, 0, höchstens));
            EXPECT_EQ(Dienste(), Text(erwartet, kürzel) + Text(21 - erwartet, 'A')) << n;
        }
        (*zahl)[0] = 0;
    }
}

TEST_F(DiensteTest, HöchstensSechzehnBenannteDaherSlots17Bis20Allgemein)
{
    for (Zahl *zahl : {&Messe.Gabenbereitung, &Messe.Leuchter, &Messe.Flambeau, &Messe.Weihrauch,
                       &Messe.Kreuzträger, &Messe.Allgemein})
        (*zahl)[0] = 20;
    DiensteVerteilen();
    EXPECT_EQ(Dienste(), "GGLLFFFFFFFFWWKKAAAAA");
    LaufDiensteVerteilen();
    EXPECT_EQ(Dienste(), "GGLLFFFFFFFFWWKKAAAAA");
}

TEST_F(DiensteTest, ZahlDerAllgemeinenUndDerDienerWirdNichtGelesen)
{
    Messe.Allgemein[0] = 5;
    Messe.Dienerzahl[0] = 1;
    Messe.Leuchter[0] = 2;
    Messe.Flambeau[0] = 1;
    DiensteVerteilen();
    EXPECT_EQ(Dienste(), "LLFAAAAAAAAAAAAAAAAAA");
}

TEST_F(DiensteTest, AlleMessenUndDieLeereDahinterAberKeineWeitere)
{
    MesseMitDienern(DatumAus({2026, 11, 23}), 4);
    AlleAuf("xAlt");
    Messe.Leuchter[1] = 1;
    Messe.Flambeau[2] = 1; // the blank record
    Messe.Flambeau[3] = 1;
    DiensteVerteilen();
    EXPECT_EQ(Dienste(0), "AAAAAAAAAAAAAAAAAAAAA");
    EXPECT_EQ(Dienste(1), "LAAAAAAAAAAAAAAAAAAAA");
    EXPECT_EQ(Dienste(2), "FAAAAAAAAAAAAAAAAAAAA");
    EXPECT_EQ(Dienste(3), "xxxxxxxxxxxxxxxxxxxxx");

    AlleAuf("xAlt");
    LaufDiensteVerteilen();
    EXPECT_EQ(Dienste(0), "xxxxxxxxxxxxxxxxxxxxx");
    EXPECT_EQ(Dienste(1), "Lxxxxxxxxxxxxxxxxxxxx");
    EXPECT_EQ(Dienste(2), "Fxxxxxxxxxxxxxxxxxxxx");
    EXPECT_EQ(Dienste(3), "xxxxxxxxxxxxxxxxxxxxx");
}

TEST_F(DiensteTest, ImLaufSchreibenWeihrauchUndKreuzträgerAbEinsZweimal)
{
    AlleAuf("Allgemein");
    Messe.Weihrauch[0] = 1;
    Messe.Kreuzträger[0] = 1;
    LaufDiensteVerteilen();
    EXPECT_EQ(Dienste(), "WWKKAAAAAAAAAAAAAAAAA");
    DiensteVerteilen();
    EXPECT_EQ(Dienste(), "WKAAAAAAAAAAAAAAAAAAA");

    for (int n : {2, 3}) {
        Messe.Weihrauch[0] = n;
        Messe.Kreuzträger[0] = n;
        LaufDiensteVerteilen();
        EXPECT_EQ(Dienste(), "WWKKAAAAAAAAAAAAAAAAA");
    }
    Messe.Weihrauch[0] = 0;
    AlleAuf("xAlt");
    LaufDiensteVerteilen();
    EXPECT_EQ(Dienste(), "KKxxxxxxxxxxxxxxxxxxx");
}

TEST_F(DiensteTest, ImLaufBleibtStehenWasNichtErreichtWird)
{
    AlleAuf("xAlt");
    Messe.Gabenbereitung[0] = 1;
    Messe.Leuchter[0] = 3;
    Messe.Flambeau[0] = 9;
    LaufDiensteVerteilen();
    EXPECT_EQ(Dienste(), "GLLFFFFFFFFxxxxxxxxxx");
}

} // namespace
} // namespace altardienst
