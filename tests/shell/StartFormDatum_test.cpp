// The start dialog: a typed date.
#include "shell/Startstand.h"

namespace altardienst {
namespace {

class StartFormDatumTest : public Startstand {};

TEST_F(StartFormDatumTest, EingabetasteImDatumRechnet)
{
    StartForm &start = Öffnen();
    Tippen(start.Datumsen, "1.12.26");
    EXPECT_EQ(Zeigt("Tagchen"), "Samstag");
    QTest::keyClick(start.Datumsen, Qt::Key_Return);
    EXPECT_EQ(Zeigt("Datumsen"), "01.12.2026");
    EXPECT_EQ(Zeigt("Tagchen"), "Dienstag");
    EXPECT_EQ(Zeigt("Endet"), "29.12.2026");
    EXPECT_EQ(Zeigt("Dayig"), "Dienstag");
    EXPECT_EQ(Konfig.StartDatum, Tag(1, 12));
}

TEST_F(StartFormDatumTest, EineUhrzeitFälltWeg)
{
    StartForm &start = Öffnen();
    Tippen(start.Datumsen, "1.12.2026 18:00");
    QTest::keyClick(start.Datumsen, Qt::Key_Return);
    EXPECT_EQ(Zeigt("Datumsen"), "01.12.2026");
    EXPECT_EQ(Konfig.StartDatum, Tag(1, 12));
    Tippen(start.Datumsen, "10:00"); // without a day
    QTest::keyClick(start.Datumsen, Qt::Key_Return);
    EXPECT_EQ(Zeigt("Datumsen"), "21.11.2026");
    EXPECT_EQ(Konfig.StartDatum, Heute);
}

TEST_F(StartFormDatumTest, JederWochentagHatSeinenNamen)
{
    Öffnen();
    const char *namen[] = {"Sonntag",    "Montag",  "Dienstag", "Mittwoch",
                           "Donnerstag", "Freitag", "Samstag"};
    for (int i = 0; i < 7; ++i) {
        Einsetzen("Datumsen", std::to_string(22 + i) + ".11.2026");
        Drehen("Änderung1", "auf");
        EXPECT_EQ(Zeigt("Tagchen"), namen[i]);
    }
}

TEST_F(StartFormDatumTest, EinDatumVorHeuteWirdHeute)
{
    StartForm &start = Öffnen();
    Tippen(start.Datumsen, "20.11.2026");
    QTest::keyClick(start.Datumsen, Qt::Key_Return);
    EXPECT_EQ(Zeigt("Datumsen"), "21.11.2026");
    EXPECT_EQ(Zeigt("Tagchen"), "Samstag");
    EXPECT_EQ(Konfig.StartDatum, Heute);
    Tippen(start.Datumsen, "21.11.2026");
    QTest::keyClick(start.Datumsen, Qt::Key_Return);
    EXPECT_EQ(Konfig.StartDatum, Heute);
}

TEST_F(StartFormDatumTest, VerlassenDesDatumsRechnet)
{
    StartForm &start = Öffnen();
    Tippen(start.Datumsen, "24.12.2026");
    FokusAuf(start.Tagilein);
    EXPECT_EQ(Zeigt("Tagchen"), "Donnerstag");
    EXPECT_EQ(Zeigt("Endet"), "21.01.2027");
    EXPECT_EQ(Konfig.StartDatum, Tag(24, 12));
    Tippen(start.Datumsen, "25.12.26");
    Klick(start.Starten); // by mouse as well
    EXPECT_EQ(Konfig.StartDatum, Tag(25, 12));
}

TEST_F(StartFormDatumTest, EinAnderesFensterIstAuchVerlassen)
{
    StartForm &start = Öffnen();
    Tippen(start.Datumsen, "24.12.26");
    QWidget anderes;
    Zeigen(&anderes);
    EXPECT_EQ(Zeigt("Datumsen"), "24.12.2026");
    EXPECT_EQ(Konfig.StartDatum, Tag(24, 12));
}

TEST_F(StartFormDatumTest, UngültigesDatumBleibtOhneMeldungStehenUndDasLetzteGuteGilt)
{
    StartForm &start = Öffnen();
    for (const char *text : {"", "abc", "31.11.2026", "28.11"}) {
        Tippen(start.Datumsen, text);
        QTest::keyClick(start.Datumsen, Qt::Key_Return);
        FokusAuf(start.Tagilein);
        Klick(start.Plus);
        EXPECT_EQ(Zeigt("Datumsen"), text);
        EXPECT_EQ(Zeigt("Tagchen"), "Samstag");
        EXPECT_EQ(Zeigt("Endet"), "26.12.2026");
        EXPECT_EQ(Konfig.StartDatum, Tag(28, 11));
    }
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

} // namespace
} // namespace altardienst
