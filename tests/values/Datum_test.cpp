// The day count and the time of day.
#include "values/Datum.h"

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

TEST(Datum, GefüllteWochentageHabenZehnBuchstaben)
{
    const Datum sonntag = DatumAus({2026, 11, 22});
    const char *namen[] = {"Sonntag   ", "Montag    ", "Dienstag  ", "Mittwoch  ",
                           "Donnerstag", "Freitag   ", "Samstag   "};
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(WochentagNameGefüllt(sonntag + i), namen[i]);
}

TEST(Datum, UhrzeitWeiterBleibtImTag)
{
    EXPECT_EQ(UhrzeitWeiter(ZeitAus(36000), 3600), ZeitAus(39600));
    EXPECT_EQ(UhrzeitWeiter(ZeitAus(36000), -300), ZeitAus(35700));
    EXPECT_EQ(UhrzeitWeiter(ZeitAus(86399), 1), 0);
    EXPECT_EQ(UhrzeitWeiter(0, -1), ZeitAus(86399));
    EXPECT_EQ(UhrzeitWeiter(ZeitAus(23 * 3600 + 57 * 60), 300), ZeitAus(120));
    EXPECT_EQ(UhrzeitWeiter(ZeitAus(120), -300), ZeitAus(23 * 3600 + 57 * 60));
    EXPECT_EQ(UhrzeitWeiter(ZeitAus(5), 3 * SekundenProTag), ZeitAus(5));
    EXPECT_EQ(UhrzeitWeiter(ZeitAus(5), -3 * SekundenProTag), ZeitAus(5));
}

TEST(Datum, UhrzeitWeiterSiehtVomTagAb)
{
    EXPECT_EQ(UhrzeitWeiter(DatumAus({2026, 11, 21}) + 0.5, 3600), ZeitAus(13 * 3600));
}

TEST(Datum, EinTagInFünfminutenschrittenEndetWoErBegann)
{
    Datum zeit = ZeitAus(10 * 3600 + 7);
    for (int i = 0; i < 288; ++i)
        zeit = UhrzeitWeiter(zeit, 300);
    EXPECT_EQ(zeit, ZeitAus(10 * 3600 + 7));
}

TEST(Datum, MonateWeiterBehältDenTagOderFälltAufDenLetzten)
{
    const auto von = [](int tag, int monat, int jahr) { return DatumAus({jahr, monat, tag}); };
    EXPECT_EQ(MonateWeiter(von(15, 6, 2026), 1), von(15, 7, 2026));
    EXPECT_EQ(MonateWeiter(von(15, 6, 2026), -1), von(15, 5, 2026));
    EXPECT_EQ(MonateWeiter(von(31, 1, 2026), 1), von(28, 2, 2026));
    EXPECT_EQ(MonateWeiter(von(31, 1, 2028), 1), von(29, 2, 2028));
    EXPECT_EQ(MonateWeiter(von(31, 3, 2026), -1), von(28, 2, 2026));
    EXPECT_EQ(MonateWeiter(von(31, 5, 2026), 1), von(30, 6, 2026));
    EXPECT_EQ(MonateWeiter(von(28, 2, 2026), 1), von(28, 3, 2026)); // not back to the last day
    EXPECT_EQ(MonateWeiter(von(31, 12, 2026), 1), von(31, 1, 2027));
    EXPECT_EQ(MonateWeiter(von(1, 1, 2026), -1), von(1, 12, 2025));
    EXPECT_EQ(MonateWeiter(von(29, 2, 2028), 12), von(28, 2, 2029));
    EXPECT_EQ(MonateWeiter(von(29, 2, 2028), -12), von(28, 2, 2027));
    EXPECT_EQ(MonateWeiter(von(29, 2, 2028), 48), von(29, 2, 2032));
    EXPECT_EQ(MonateWeiter(von(30, 12, 1899), 0), 0);
    EXPECT_EQ(MonateWeiter(0, -1), von(30, 11, 1899));
}

TEST(Datum, MonateWeiterEndetAnDenGrenzenDesKalenders)
{
    const Datum ende = DatumAus({9999, 12, 31});
    const Datum anfang = DatumAus({100, 1, 1});
    EXPECT_EQ(MonateWeiter(ende, -1), DatumAus({9999, 11, 30}));
    EXPECT_EQ(MonateWeiter(anfang, 1), DatumAus({100, 2, 1}));
    EXPECT_EQ(NummerDesFehlers([&] { return MonateWeiter(ende, 1); }), 6);
    EXPECT_EQ(NummerDesFehlers([&] { return MonateWeiter(ende, 12); }), 6);
    EXPECT_EQ(NummerDesFehlers([&] { return MonateWeiter(anfang, -1); }), 6);
    EXPECT_EQ(NummerDesFehlers([&] { return MonateWeiter(anfang, -12); }), 6);
    EXPECT_EQ(NummerDesFehlers([&] { return MonateWeiter(anfang, -12 * 200); }), 6);
}

} // namespace
} // namespace altardienst
