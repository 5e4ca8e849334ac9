// Conversions between text and values.
#include "core/Umwandlung.h"

#include "Prüfstand.h"
#include "platform/Gebietsschema.h"

#include <bit>
#include <cmath>
#include <limits>
#include <random>

namespace altardienst {
namespace {

TEST(Umwandlung, RundetDieHälfteZurGeradenZahl)
{
    EXPECT_EQ(GerundetInt16(0.5), 0);
    EXPECT_EQ(GerundetInt16(1.5), 2);
    EXPECT_EQ(GerundetInt16(2.5), 2);
    EXPECT_EQ(GerundetInt16(-0.5), 0);
    EXPECT_EQ(GerundetInt16(-1.5), -2);
    EXPECT_EQ(GerundetInt16(2.4999), 2);
    EXPECT_EQ(GerundetInt16(2.5001), 3);
}

TEST(Umwandlung, GerundetBleibtImBereich)
{
    EXPECT_EQ(GerundetInt16(32767.4), 32767);
    EXPECT_EQ(NummerDesFehlers([] { return GerundetInt16(32767.5); }), 6);
    EXPECT_EQ(GerundetInt16(-32768.5), -32768);
    EXPECT_EQ(NummerDesFehlers([] { return GerundetInt16(-32769); }), 6);
    EXPECT_EQ(NummerDesFehlers([] { return GerundetInt16(1e300); }), 6);
    EXPECT_EQ(NummerDesFehlers([] { return GerundetInt16(std::nan("")); }), 6);
}

TEST(Umwandlung, ZahlOhneRücksichtAufBlanksDarum)
{
    EXPECT_EQ(Int16Lesen("5"), 5);
    EXPECT_EQ(Int16Lesen(" 5 "), 5);
    EXPECT_EQ(Int16Lesen("   -17   "), -17);
    EXPECT_EQ(Int16Lesen("+3"), 3);
    EXPECT_EQ(Int16Lesen("007"), 7);
    EXPECT_EQ(Int32Lesen(" 59302 "), 59302);
}

TEST(Umwandlung, BruchWirdGerundet)
{
    EXPECT_EQ(Int16Lesen("2,5"), 2);
    EXPECT_EQ(Int16Lesen("3,5"), 4);
    EXPECT_EQ(Int16Lesen("-2,51"), -3);
    EXPECT_EQ(Int32Lesen("1E3"), 1000);
    EXPECT_EQ(Int16Lesen("32767,4"), 32767);
}

TEST(Umwandlung, WasKeineZahlIstIstFehler13)
{
    for (const char *text :
         {"",     " ",   "abc", "5a", "a5",  "- 5",   "5-",         "--5",  "+-5",
          "-+5",  "++5", "+",   "-",  ",",   "1,2,3", "1 2",        "inf",  "nan",
          "0x10", "2.5", "E5",  "1E", "\t5", "5\r",   "21.11.2026", "\xDF", "1e+"}) {
        EXPECT_EQ(NummerDesFehlers([&] { return Int16Lesen(text); }), 13) << text;
        EXPECT_EQ(NummerDesFehlers([&] { return Int32Lesen(text); }), 13) << text;
        EXPECT_EQ(NummerDesFehlers([&] { return SingleLesen(text); }), 13) << text;
    }
}

TEST(Umwandlung, ZahlAußerhalbIhresBereichsIstFehler6)
{
    EXPECT_EQ(Int16Lesen("32767"), 32767);
    EXPECT_EQ(Int16Lesen("-32768"), -32768);
    EXPECT_EQ(Int32Lesen("2147483647"), 2147483647);
    EXPECT_EQ(Int32Lesen("-2147483648"), std::numeric_limits<Int32>::min());
    for (const char *text :
         {"32768", "-32769", "32767,5", "99999999999999999999", "1E300", "1E999"})
        EXPECT_EQ(NummerDesFehlers([&] { return Int16Lesen(text); }), 6) << text;
    for (const char *text : {"2147483648", "-2147483649", "9223372036854775808", "-1E40"})
        EXPECT_EQ(NummerDesFehlers([&] { return Int32Lesen(text); }), 6) << text;
    for (const char *text : {"1E39", "-1E39", "1E999"})
        EXPECT_EQ(NummerDesFehlers([&] { return SingleLesen(text); }), 6) << text;
}

TEST(Umwandlung, EineZahlKleinerAlsJedeSingleIstNull)
{
    EXPECT_EQ(SingleLesen("1E-60"), 0);
    EXPECT_EQ(Int16Lesen("1E-60"), 0);
}

TEST(Umwandlung, SingleMitKomma)
{
    EXPECT_EQ(SingleLesen(" 2,5 "), 2.5F);
    EXPECT_EQ(SingleLesen(",5"), 0.5F);
    EXPECT_EQ(SingleLesen("-,5"), -0.5F);
    EXPECT_EQ(SingleLesen("5,"), 5.0F);
    EXPECT_EQ(SingleLesen("1E-3"), 0.001F);
    EXPECT_EQ(SingleLesen("1E+07"), 1e7F);
}

TEST(Umwandlung, SingleZeigtBisZuSiebenStellen)
{
    EXPECT_EQ(ZahlText(2.5F), "2,5");
    EXPECT_EQ(ZahlText(0.5F), "0,5");
    EXPECT_EQ(ZahlText(-0.5F), "-0,5");
    EXPECT_EQ(ZahlText(5.0F), "5");
    EXPECT_EQ(ZahlText(0.0F), "0");
    EXPECT_EQ(ZahlText(-0.0F), "0");
    EXPECT_EQ(ZahlText(0.1F), "0,1");
    EXPECT_EQ(ZahlText(56.6857F), "56,6857");
    EXPECT_EQ(ZahlText(63.5F), "63,5");
    EXPECT_EQ(ZahlText(1.0F / 3), "0,3333333");
    EXPECT_EQ(ZahlText(1234567.0F), "1234567");
    EXPECT_EQ(ZahlText(12345678.0F), "1,234568E+07");
    EXPECT_EQ(ZahlText(-2.0F), "-2");
}

TEST(Umwandlung, GeschriebeneSinglesBleibenBeimNächstenMal)
{
    std::mt19937 zufall(3);
    for (int i = 0; i < 20000; ++i) {
        auto bits = static_cast<std::uint32_t>(zufall());
        auto wert = std::bit_cast<Single>(bits);
        if (!std::isfinite(wert))
            continue;
        Text text = ZahlText(wert);
        if (NummerDesFehlers([&] { return SingleLesen(text); }) != 0)
            continue; // rounded up beyond the largest Single
        ASSERT_EQ(ZahlText(SingleLesen(text)), text) << bits;
    }
}

TEST(Umwandlung, GanzeZahlenAlsText)
{
    EXPECT_EQ(ZahlText(0), "0");
    EXPECT_EQ(ZahlText(-1), "-1");
    EXPECT_EQ(ZahlText(std::numeric_limits<int>::min()), "-2147483648");
}

TEST(Umwandlung, DatumAlsText)
{
    Datum tag = DatumAus({2026, 3, 1});
    EXPECT_EQ(DatumText(tag), "01.03.2026");
    EXPECT_EQ(DatumText(ZeitAus(9 * 3600 + 5 * 60 + 7)), "09:05:07");
    EXPECT_EQ(DatumText(0), "00:00:00");
    EXPECT_EQ(DatumText(tag + ZeitAus(18 * 3600)), "01.03.2026 18:00:00");
    EXPECT_EQ(DatumText(DatumAus({1899, 12, 29})), "29.12.1899");
    EXPECT_EQ(DatumText(DatumAus({100, 1, 1})), "01.01.0100");
}

TEST(Umwandlung, DatumUndUhrzeitEinzeln)
{
    Datum wann = DatumAus({2026, 3, 1}) + ZeitAus(9 * 3600 + 5 * 60 + 7);
    EXPECT_EQ(KurzesDatum(wann), "01.03.2026");
    EXPECT_EQ(LangeZeit(wann), "09:05:07");
    EXPECT_EQ(StundenUndMinuten(wann), "09:05");
    EXPECT_EQ(KurzesDatum(0), "30.12.1899");
    EXPECT_EQ(LangeZeit(0), "00:00:00");
}

TEST(Umwandlung, DatumAusText)
{
    EXPECT_EQ(DatumLesen("21.11.2026"), DatumAus({2026, 11, 21}));
    EXPECT_EQ(DatumLesen("  1.3.2026  "), DatumAus({2026, 3, 1}));
    EXPECT_EQ(DatumLesen("1/3/2026"), DatumAus({2026, 3, 1}));
    EXPECT_EQ(DatumLesen("1-3-2026"), DatumAus({2026, 3, 1}));
    EXPECT_EQ(DatumLesen("00:00:00"), 0);
    EXPECT_EQ(DatumLesen("18:30:00"), ZeitAus(18 * 3600 + 30 * 60));
    EXPECT_EQ(DatumLesen("8:30"), ZeitAus(8 * 3600 + 30 * 60));
    EXPECT_EQ(DatumLesen("23:59:59"), ZeitAus(86399));
    EXPECT_EQ(DatumLesen("21.11.2026 18:30:00"), DatumAus({2026, 11, 21}) + ZeitAus(66600));
    EXPECT_EQ(DatumLesen("29.12.1899 06:00:00"), -1.25);
    EXPECT_EQ(DatumLesen("01.01.0100"), DatumAus({100, 1, 1}));
}

TEST(Umwandlung, KurzeJahreLiegenZwischen1930Und2029)
{
    EXPECT_EQ(DatumLesen("1.3.0"), DatumAus({2000, 3, 1}));
    EXPECT_EQ(DatumLesen("1.3.29"), DatumAus({2029, 3, 1}));
    EXPECT_EQ(DatumLesen("1.3.30"), DatumAus({1930, 3, 1}));
    EXPECT_EQ(DatumLesen("1.3.99"), DatumAus({1999, 3, 1}));
}

TEST(Umwandlung, WasKeinDatumIstIstFehler13)
{
    for (const char *text : {"",
                             "  ",
                             "abc",
                             "5",
                             "21.11.",
                             "31.02.2026",
                             "00.01.2026",
                             "01.13.2026",
                             "24:00:00",
                             "10:60:00",
                             "10:00:60",
                             "1.1.20260",
                             "1.1.2026.",
                             "1.1/2026",
                             "18.30",
                             "1,3,2026",
                             "18:00 21.11.2026",
                             "21.11.2026 abc",
                             "21.11.2026 18",
                             "1.3.099",
                             "10:00:00:00",
                             "-1.3.2026",
                             "21.11.2026x",
                             "12345.1.1",
                             "01.257.2026",
                             "257.01.2026"}) {
        EXPECT_EQ(NummerDesFehlers([&] { return DatumLesen(text); }), 13) << text;
    }
}

TEST(Umwandlung, JedesGeschriebeneDatumKommtZurück)
{
    std::mt19937 zufall(4);
    std::uniform_int_distribution tage(-657434, 2958465);
    std::uniform_int_distribution sekunden(0, 86399);
    for (int i = 0; i < 20000; ++i) {
        Datum tag = tage(zufall);
        Datum zeit = ZeitAus(sekunden(zufall));
        ASSERT_EQ(DatumLesen(DatumText(tag)), tag);
        ASSERT_EQ(DatumLesen(DatumText(zeit)), zeit);
        Datum beides = tag < 0 ? tag - zeit : tag + zeit;
        ASSERT_EQ(DatumText(DatumLesen(DatumText(beides))), DatumText(beides));
    }
}

/// Another locale for one test.
struct AnderesGebietsschema {
    GebietsschemaDienst Zuvor = Gebietsschema;
    ~AnderesGebietsschema() { Gebietsschema = Zuvor; }
};

TEST(Umwandlung, RichtetSichNachDemGebietsschema)
{
    AnderesGebietsschema schema;
    Gebietsschema = {GebietsschemaDienst::MonatTagJahr, '/', ':', '.'};
    EXPECT_EQ(DatumText(DatumAus({2026, 11, 21})), "11/21/2026");
    EXPECT_EQ(DatumLesen("11/21/2026"), DatumAus({2026, 11, 21}));
    EXPECT_EQ(NummerDesFehlers([] { return DatumLesen("21.11.2026"); }), 13);
    EXPECT_EQ(ZahlText(2.5F), "2.5");
    EXPECT_EQ(SingleLesen("2.5"), 2.5F);
    EXPECT_EQ(NummerDesFehlers([] { return SingleLesen("2,5"); }), 13);
    Gebietsschema = {GebietsschemaDienst::JahrMonatTag, '-', ':', '.'};
    EXPECT_EQ(DatumText(DatumAus({2026, 11, 21})), "2026-11-21");
    EXPECT_EQ(DatumLesen("2026-11-21"), DatumAus({2026, 11, 21}));
}

TEST(Umwandlung, DasGebietsschemaIstDeutsch)
{
    EXPECT_EQ(Gebietsschema.Datumsfolge, GebietsschemaDienst::TagMonatJahr);
    EXPECT_EQ(Gebietsschema.Datumstrenner, '.');
    EXPECT_EQ(Gebietsschema.Zeittrenner, ':');
    EXPECT_EQ(Gebietsschema.Dezimaltrenner, ',');
}

} // namespace
} // namespace altardienst
