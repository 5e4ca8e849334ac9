// The random numbers of the draw.
#include "platform/Zufall.h"

#include "Prüfstand.h"

#include <array>
#include <cmath>
#include <stdexcept>

namespace altardienst {
namespace {

std::vector<Single> Ziehen(ZufallDienst &zufall, int anzahl)
{
    std::vector<Single> werte;
    for (int i = 0; i < anzahl; ++i)
        werte.push_back(zufall.Nächste());
    return werte;
}

TEST(Zufall, LiegtVon0BisUnter1AufDemRasterVon24Bit)
{
    ZufallDienst zufall = ZufallMitSaat(7);
    for (Single wert : Ziehen(zufall, 200000)) {
        ASSERT_GE(wert, 0);
        ASSERT_LT(wert, 1);
        ASSERT_EQ(wert * 0x1p24F, std::floor(wert * 0x1p24F));
    }
}

TEST(Zufall, NutztAlle24Bit)
{
    ZufallDienst zufall = ZufallMitSaat(7);
    std::array<int, 24> gesetzt{};
    for (Single wert : Ziehen(zufall, 20000))
        for (std::size_t bit = 0; bit < gesetzt.size(); ++bit)
            gesetzt[bit] += static_cast<int>(wert * 0x1p24F) >> bit & 1;
    for (int anzahl : gesetzt)
        EXPECT_NEAR(anzahl, 10000, 500);
}

TEST(Zufall, IstGleichverteilt)
{
    ZufallDienst zufall = ZufallMitSaat(8);
    std::array<int, 10> anzahl{};
    for (Single wert : Ziehen(zufall, 100000))
        ++anzahl[static_cast<std::size_t>(wert * 10)];
    for (int n : anzahl)
        EXPECT_NEAR(n, 10000, 500);
}

TEST(Zufall, GleicheSaatGleicheFolge)
{
    ZufallDienst a = ZufallMitSaat(1);
    ZufallDienst b = ZufallMitSaat(1);
    ZufallDienst c = ZufallMitSaat(2);
    std::vector<Single> folge = Ziehen(a, 50);
    EXPECT_EQ(folge, Ziehen(b, 50));
    EXPECT_NE(folge, Ziehen(c, 50));
}

TEST(Zufall, MitEigenerSaatGehtDieFolgeNachDemStreuenWeiter)
{
    ZufallDienst a = ZufallMitSaat(1);
    ZufallDienst b = ZufallMitSaat(1);
    std::vector<Single> folge = Ziehen(a, 20);
    std::vector<Single> halbe = Ziehen(b, 10);
    b.Streuen();
    std::vector<Single> rest = Ziehen(b, 10);
    halbe.insert(halbe.end(), rest.begin(), rest.end());
    EXPECT_EQ(folge, halbe);
}

TEST(Zufall, VonDerUhrGestreutIstJederLaufEinAnderer)
{
    ZufallDienst zufall = Zufallsgenerator();
    zufall.Streuen();
    std::vector<Single> erster = Ziehen(zufall, 50);
    zufall.Streuen();
    std::vector<Single> zweiter = Ziehen(zufall, 50);
    EXPECT_NE(erster, zweiter);
    for (Single wert : zweiter) {
        EXPECT_GE(wert, 0);
        EXPECT_LT(wert, 1);
    }
}

TEST(Zufall, ZweiGeneratorenStörenEinanderNicht)
{
    ZufallDienst a = ZufallMitSaat(1);
    ZufallDienst b = ZufallMitSaat(1);
    std::vector<Single> folge = Ziehen(a, 10);
    ZufallDienst c = ZufallMitSaat(3);
    Ziehen(c, 10);
    EXPECT_EQ(Ziehen(b, 10), folge);
}

TEST(Zufall, AusDerListeKommenGenauIhreWerte)
{
    ZufallDienst zufall = ZufallAusListe({0.25F, 0, 0.999F});
    zufall.Streuen();
    EXPECT_EQ(zufall.Nächste(), 0.25F);
    zufall.Streuen();
    EXPECT_EQ(zufall.Nächste(), 0);
    EXPECT_EQ(zufall.Nächste(), 0.999F);
    EXPECT_THROW(zufall.Nächste(), std::out_of_range);
}

} // namespace
} // namespace altardienst
