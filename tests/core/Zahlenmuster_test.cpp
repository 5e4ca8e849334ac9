// The number patterns of the figures, with German separators.
#include "core/Zahlenmuster.h"

#include "Prüfstand.h"
#include "platform/Gebietsschema.h"

namespace altardienst {
namespace {

TEST(Zahlenmuster, DreiNachkommastellenMitDezimalkomma)
{
    EXPECT_EQ(Format(13.5, "##,####0.000"), "13,500");
    EXPECT_EQ(Format(0, "##,####0.000"), "0,000");
    EXPECT_EQ(Format(0.25, "##,###0.000"), "0,250");
    EXPECT_EQ(Format(170.0004, "##,####0.000"), "170,000");
}

TEST(Zahlenmuster, TausenderStehenInDreiergruppenGleichWoDasKommaSteht)
{
    for (const char *muster : {"##,####0.000", "##,###0.000", "#,##0.000"}) {
        EXPECT_EQ(Format(999.0, muster), "999,000") << muster;
        EXPECT_EQ(Format(1000.0, muster), "1.000,000") << muster;
        EXPECT_EQ(Format(1234567.125, muster), "1.234.567,125") << muster;
    }
    EXPECT_EQ(Format(1234, "###0"), "1234"); // no comma, no groups
}

TEST(Zahlenmuster, NullenImMusterSindMindestens)
{
    EXPECT_EQ(Format(0, "###0"), "0");
    EXPECT_EQ(Format(7, "###0"), "7");
    EXPECT_EQ(Format(7, "###,#000.0"), "007,0");
    EXPECT_EQ(Format(42, "###,#000.0"), "042,0");
    EXPECT_EQ(Format(123, "###,#000.0"), "123,0");
    EXPECT_EQ(Format(12345, "###,#000.0"), "12.345,0");
}

TEST(Zahlenmuster, ProzenteSindDasHundertfache)
{
    EXPECT_EQ(Format(1.0, "##,##0.00%"), "100,00%");
    EXPECT_EQ(Format(0.0, "##,##0.00%"), "0,00%");
    EXPECT_EQ(Format(1.0 / 3, "##,##0.00%"), "33,33%");
    EXPECT_EQ(Format(2.0 / 3, "##,##0.00%"), "66,67%");
    EXPECT_EQ(Format(0.00004, "##,##0.00%"), "0,00%");
    EXPECT_EQ(Format(12.5, "##,##0.00%"), "1.250,00%");
}

TEST(Zahlenmuster, EineHälfteRundetVonNullWeg)
{
    EXPECT_EQ(Format(1.0 / 160, "##,##0.00%"), "0,63%"); // 0.625
    EXPECT_EQ(Format(0.0005, "##,####0.000"), "0,001");
    EXPECT_EQ(Format(0.00049, "##,####0.000"), "0,000");
    EXPECT_EQ(Format(999.9995, "##,####0.000"), "1.000,000");
    EXPECT_EQ(Format(-0.0005, "##,####0.000"), "-0,001");
    EXPECT_EQ(Format(-0.0004, "##,####0.000"), "0,000");
    EXPECT_EQ(Format(-1234.5, "##,####0.000"), "-1.234,500");
}

TEST(Zahlenmuster, EsRundenDieZiffernNichtDieBinäreForm)
{
    EXPECT_EQ(Format(1.0005, "##,####0.000"), "1,001"); // 1.000499999999999989...
    EXPECT_EQ(Format(1.1235F, "##,####0.000"), "1,124");
    EXPECT_EQ(Format(16.0625F, "##,####0.000"), "16,063");
    EXPECT_EQ(Format(159.1515F, "##,####0.000"), "159,152"); // 159.151504...
    EXPECT_EQ(Format(159.1485F, "##,####0.000"), "159,149"); // 159.148499...
}

TEST(Zahlenmuster, DasGebietsschemaGibtDieTrenner)
{
    const GebietsschemaDienst deutsch = Gebietsschema;
    Gebietsschema.Dezimaltrenner = '.';
    Gebietsschema.Tausendertrenner = '\'';
    const Text zahl = Format(1234.5, "##,####0.000");
    Gebietsschema = deutsch;
    EXPECT_EQ(zahl, "1'234.500");
}

TEST(Zahlenmuster, WasKeineZahlMehrIstLäuftÜber)
{
    EXPECT_EQ(NummerDesFehlers([] { Format(1e15, "0.0"); }), 6);
    EXPECT_EQ(NummerDesFehlers([] { Format(0.0 / 0.0, "0.0"); }), 6);
}

} // namespace
} // namespace altardienst
