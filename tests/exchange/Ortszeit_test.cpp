// The time of day in the parish and the two changes of its clock.
#include "exchange/Ortszeit.h"

#include <gtest/gtest.h>

#include <limits>

namespace altardienst {
namespace {

constexpr int Stunde = 3600;

Ortszeit Am(int tag, int monat, int stunde, int minute = 0)
{
    return {DatumAus({2026, monat, tag}), stunde * Stunde + minute * 60};
}

bool Gleich(Ortszeit a, Ortszeit b)
{
    return a.Tag == b.Tag && a.Sekunden == b.Sekunden;
}

TEST(OrtszeitTest, SpäterGehtÜberMitternacht)
{
    EXPECT_TRUE(Gleich(Später(Am(28, 11, 23, 30), Stunde), Am(29, 11, 0, 30)));
    EXPECT_TRUE(Gleich(Später(Am(28, 11, 0), -Stunde), Am(27, 11, 23)));
    EXPECT_TRUE(Gleich(Später(Am(28, 11, 1), -Stunde), Am(28, 11, 0)));
    EXPECT_TRUE(Gleich(Später(Am(28, 2, 23), Stunde), Am(1, 3, 0)));
}

TEST(OrtszeitTest, DieSommerzeitBeginntAmLetztenSonntagImMärz)
{
    EXPECT_FALSE(IstSommerzeit(Am(28, 3, 23, 59)));
    EXPECT_FALSE(IstSommerzeit(Am(29, 3, 1, 59)));
    EXPECT_FALSE(IstSommerzeit(Am(29, 3, 2, 30))) << "there is no such time";
    EXPECT_TRUE(IstSommerzeit(Am(29, 3, 3)));
    EXPECT_TRUE(IstSommerzeit({DatumAus({2024, 3, 31}), 3 * Stunde})) << "the very last day";
}

TEST(OrtszeitTest, SieEndetAmLetztenSonntagImOktober)
{
    EXPECT_TRUE(IstSommerzeit(Am(24, 10, 23, 59)));
    EXPECT_TRUE(IstSommerzeit(Am(25, 10, 2, 59))) << "the first time it comes";
    EXPECT_FALSE(IstSommerzeit(Am(25, 10, 3)));
}

TEST(OrtszeitTest, DieFehlendeStundeWirdDieNächste)
{
    EXPECT_TRUE(Gleich(AufDerUhr(Am(29, 3, 2)), Am(29, 3, 3)));
    EXPECT_TRUE(Gleich(AufDerUhr(Am(29, 3, 2, 59)), Am(29, 3, 3, 59)));
    for (const Ortszeit zeit :
         {Am(29, 3, 1, 59), Am(29, 3, 3), Am(28, 3, 2, 30), Am(25, 10, 2, 30)})
        EXPECT_TRUE(Gleich(AufDerUhr(zeit), zeit));
}

TEST(OrtszeitTest, WeltzeitIstEineOderZweiStundenFrüher)
{
    EXPECT_TRUE(Gleich(Weltzeit(Am(28, 11, 18, 30)), Am(28, 11, 17, 30)));
    EXPECT_TRUE(Gleich(Weltzeit(Am(28, 6, 18, 30)), Am(28, 6, 16, 30)));
    EXPECT_TRUE(Gleich(Weltzeit(Am(1, 7, 1)), Am(30, 6, 23)));
}

TEST(OrtszeitTest, DieSekundenSeit2020WachsenUndBleibenInIhrenGrenzen)
{
    EXPECT_EQ(SekundenSeit2020({DatumAus({2020, 1, 1}), Stunde}), 0);
    EXPECT_EQ(SekundenSeit2020({DatumAus({2020, 1, 2}), Stunde + 5}), SekundenProTag + 5);
    EXPECT_EQ(SekundenSeit2020({DatumAus({2019, 5, 5}), 0}), 0);
    EXPECT_EQ(SekundenSeit2020({DatumAus({2200, 5, 5}), 0}),
              std::numeric_limits<std::int32_t>::max());
}

} // namespace
} // namespace altardienst
