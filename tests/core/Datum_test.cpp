// The day count and the time of day.
#include "core/Datum.h"

#include "Prüfstand.h"

#include <cmath>
#include <limits>

namespace altardienst {
namespace {

TEST(Datum, ZähltTageSeitDem30Dezember1899)
{
    EXPECT_EQ(DatumAus({1899, 12, 30}), 0);
    EXPECT_EQ(DatumAus({1899, 12, 31}), 1);
    EXPECT_EQ(DatumAus({1899, 12, 29}), -1);
    EXPECT_EQ(DatumAus({1900, 1, 1}), 2);
    EXPECT_EQ(DatumAus({2000, 1, 1}), 36526);
    EXPECT_EQ(DatumAus({2026, 11, 21}), 46347);
    EXPECT_EQ(DatumAus({100, 1, 1}), -657434);
    EXPECT_EQ(DatumAus({9999, 12, 31}), 2958465);
}

TEST(Datum, KenntSchaltjahre)
{
    EXPECT_EQ(DatumAus({2000, 3, 1}) - DatumAus({2000, 2, 28}), 2);
    EXPECT_EQ(DatumAus({1900, 3, 1}) - DatumAus({1900, 2, 28}), 1);
    EXPECT_EQ(DatumAus({2024, 2, 29}) + 1, DatumAus({2024, 3, 1}));
    EXPECT_EQ(NummerDesFehlers([] { return DatumAus({2023, 2, 29}); }), 13);
}

TEST(Datum, LehntTageAbDieEsNichtGibt)
{
    for (Kalendertag tag : {Kalendertag{2026, 0, 1},
                            {2026, 13, 1},
                            {2026, 1, 0},
                            {2026, 1, 32},
                            {2026, 4, 31},
                            {99, 1, 1},
                            {10000, 1, 1},
                            {2026, -1, 1},
                            {2026, 257, 1},
                            {2026, 1, 257},
                            {67562, 1, 1}})
        EXPECT_EQ(NummerDesFehlers([&] { return DatumAus(tag); }), 13)
            << tag.Jahr << "-" << tag.Monat << "-" << tag.Tag;
}

TEST(Datum, JederTagKommtZurück)
{
    for (Datum datum = DatumAus({1890, 1, 1}); datum <= DatumAus({2110, 1, 1}); ++datum) {
        Kalendertag tag = KalendertagVon(datum);
        ASSERT_EQ(DatumAus(tag), datum);
    }
}

TEST(Datum, KalendertagSiehtVonDerUhrzeitAb)
{
    Kalendertag tag = KalendertagVon(DatumAus({2026, 11, 21}) + 0.999);
    EXPECT_EQ(tag.Jahr, 2026);
    EXPECT_EQ(tag.Monat, 11);
    EXPECT_EQ(tag.Tag, 21);
}

TEST(Datum, AußerhalbDerJahre100Bis9999IstEinÜberlauf)
{
    EXPECT_EQ(NummerDesFehlers([] { return KalendertagVon(-657434); }), 0);
    EXPECT_EQ(NummerDesFehlers([] { return KalendertagVon(-657435); }), 6);
    EXPECT_EQ(NummerDesFehlers([] { return KalendertagVon(2958465); }), 0);
    EXPECT_EQ(NummerDesFehlers([] { return KalendertagVon(2958466); }), 6);
    EXPECT_EQ(NummerDesFehlers([] { return KalendertagVon(std::nan("")); }), 6);
}

TEST(Datum, UhrzeitenSindGanzeSekunden)
{
    EXPECT_EQ(ZeitAus(0), 0);
    EXPECT_EQ(ZeitAus(43200), 0.5);
    for (int s = 0; s < SekundenProTag; ++s) {
        ASSERT_EQ(SekundenVon(ZeitAus(s)), s);
        ASSERT_EQ(SekundenVon(DatumAus({2026, 11, 21}) + ZeitAus(s)), s);
    }
}

TEST(Datum, VorDemTagNullZähltDieUhrzeitVorwärts)
{
    EXPECT_EQ(SekundenVon(-1.25), 21600);
    EXPECT_EQ(KalendertagVon(-1.25).Tag, 29);
}

TEST(Datum, WochentagBeginntMitSonntag)
{
    EXPECT_EQ(Wochentag(DatumAus({2026, 11, 21})), 7);
    EXPECT_EQ(Wochentag(DatumAus({2026, 11, 22})), 1);
    EXPECT_EQ(Wochentag(0), 7);
    EXPECT_EQ(Wochentag(-1), 6);
    EXPECT_EQ(Wochentag(-8), 6);
    EXPECT_EQ(Wochentag(DatumAus({2026, 11, 22}) + 0.75), 1);
}

TEST(Datum, WochentageHeißenDeutsch)
{
    Datum sonntag = DatumAus({2026, 11, 22});
    const char *namen[] = {"Sonntag",    "Montag",  "Dienstag", "Mittwoch",
                           "Donnerstag", "Freitag", "Samstag"};
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(WochentagName(sonntag + i), namen[i]);
}

} // namespace
} // namespace altardienst
