// How large a table of names can be printed on one sheet.
#include "exchange/Blattmaß.h"

#include <gtest/gtest.h>

#include <numeric>

namespace altardienst {
namespace {

/// Masses with so many names each, in columns of four.
Blatttafel Tafel(int messen, int namen, const Text &name = "Anna Adler")
{
    Blatttafel tafel{{"Termin", "Messe"}, 2, {}};
    for (int spalte = 0; spalte < (namen + 3) / 4; ++spalte)
        tafel.Köpfe.emplace_back("Leuchter");
    for (int i = 0; i < messen; ++i) {
        std::vector<Stücke> zeile(tafel.Köpfe.size());
        zeile[0] = {"Sa 28.11.", "18:30"};
        zeile[1] = {"Vorabendmesse"};
        for (int n = 0; n < namen; ++n)
            zeile[2 + static_cast<std::size_t>(n) / 4].push_back(name);
        tafel.Zeilen.push_back(std::move(zeile));
    }
    return tafel;
}

TEST(BlattmaßTest, WenigesStehtInDerGrößtenSchriftAufEinemHohenBlatt)
{
    const Blattmaß maß = BlattmaßFür(Tafel(5, 4));
    EXPECT_FALSE(maß.Quer);
    EXPECT_EQ(maß.Punkt, 11);
    EXPECT_EQ(maß.Seiten, 1);
}

TEST(BlattmaßTest, JeMehrMessenDestoKleinerDieSchrift)
{
    double zuvor = 12;
    for (const int messen : {10, 20, 30, 40}) {
        const Blattmaß maß = BlattmaßFür(Tafel(messen, 8));
        EXPECT_EQ(maß.Seiten, 1) << messen;
        EXPECT_LE(maß.Punkt, zuvor) << messen;
        EXPECT_GE(maß.Punkt, 5) << messen;
        zuvor = maß.Punkt;
    }
    EXPECT_LT(zuvor, 8);
}

TEST(BlattmaßTest, VieleSpaltenLegenDasBlattQuer)
{
    EXPECT_TRUE(BlattmaßFür(Tafel(12, 28, "Maximiliane Überall-Langenfeld")).Quer);
}

TEST(BlattmaßTest, WasZuKleinWürdeKommtAufMehrereBlätter)
{
    const Blattmaß maß = BlattmaßFür(Tafel(602, 20));
    EXPECT_EQ(maß.Punkt, 7);
    EXPECT_TRUE(maß.Quer);
    EXPECT_GT(maß.Seiten, 10);
    EXPECT_LT(maß.Seiten, 60);
}

TEST(BlattmaßTest, AuchEinNameBreiterAlsDasBlattHatEinMaß)
{
    const Blattmaß maß = BlattmaßFür(Tafel(3, 28, Text(300, 'm')));
    EXPECT_EQ(maß.Punkt, 7);
    EXPECT_GE(maß.Seiten, 1);
    EXPECT_EQ(maß.Breiten.size(), 2U + 7U);
}

TEST(BlattmaßTest, DieSpaltenFüllenDasBlatt)
{
    for (const int messen : {1, 40, 602}) {
        const std::vector<double> breiten = BlattmaßFür(Tafel(messen, 12)).Breiten;
        ASSERT_EQ(breiten.size(), 2U + 3U);
        EXPECT_NEAR(std::accumulate(breiten.begin(), breiten.end(), 0.0), 100, 0.01);
    }
}

TEST(BlattmaßTest, WasVomBlattBleibtBekommenDieZeilen)
{
    EXPECT_EQ(BlattmaßFür(Tafel(5, 4)).Luft, 0.8);
    EXPECT_EQ(BlattmaßFür(Tafel(602, 20)).Luft, 0);
    const Blattmaß knapp = BlattmaßFür(Tafel(40, 8));
    EXPECT_GE(knapp.Luft, 0);
    EXPECT_LT(knapp.Luft, 0.3);
}

TEST(BlattmaßTest, OhneMessenEinLeeresBlatt)
{
    EXPECT_EQ(BlattmaßFür({{"Termin", "Messe"}, 2, {}}).Seiten, 1);
}

TEST(BlattmaßTest, EinUmlautIstEinBuchstabe)
{
    EXPECT_EQ(Textbreite("Änne"), Textbreite("önne"));
    EXPECT_LT(Textbreite("illi"), Textbreite("anne"));
    EXPECT_LT(Textbreite("anne"), Textbreite("mmmm"));
}

} // namespace
} // namespace altardienst
