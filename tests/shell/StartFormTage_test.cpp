// The start dialog: the number of days and its limits.
#include "shell/Startstand.h"

#include <map>

namespace altardienst {
namespace {

class StartFormTageTest : public Startstand {};

TEST_F(StartFormTageTest, AnzahlTageBleibtZwischen7Und180)
{
    Öffnen();
    const std::map<const char *, int> fälle = {
        {"3", 7},     {"6", 7},       {"7", 7},       {"8", 8},      {"179", 179},
        {"180", 180}, {"181", 180},   {"500", 180},   {"-5", 7},     {"0", 7},
        {"6,6", 7},   {"180,4", 180}, {"99999", 180}, {"-99999", 7}, {"123456789012", 180}};
    for (auto [text, tage] : fälle) {
        Einsetzen("Tagilein", "28");
        Einsetzen("Tagilein", text);
        EXPECT_EQ(Zeigt("Tagilein"), std::to_string(tage)) << text;
        EXPECT_EQ(Konfig.Tage, tage) << text;
    }
}

TEST_F(StartFormTageTest, GetippteDreiWirdSieben)
{
    StartForm &start = Öffnen();
    FokusAuf(start.Tagilein);
    start.Tagilein->selectAll();
    QTest::keyClick(start.Tagilein, Qt::Key_3);
    EXPECT_EQ(Zeigt("Tagilein"), "7");
    EXPECT_EQ(Konfig.Tage, 7);
}

TEST_F(StartFormTageTest, LetzterTagIstStartPlusTageUndFolgtDerZahl)
{
    Öffnen();
    Einsetzen("Tagilein", "7");
    EXPECT_EQ(Zeigt("Endet"), "05.12.2026"); // from a Saturday to the next: eight calendar days
    EXPECT_EQ(Zeigt("Dayig"), "Samstag");
    Einsetzen("Tagilein", "8");
    EXPECT_EQ(Zeigt("Endet"), "06.12.2026");
    EXPECT_EQ(Zeigt("Dayig"), "Sonntag");
    Einsetzen("Tagilein", "180");
    EXPECT_EQ(Zeigt("Endet"), "27.05.2027");
    EXPECT_EQ(Zeigt("Dayig"), "Donnerstag");
}

TEST_F(StartFormTageTest, AnzahlTageÜbernimmtAuchEinGetipptesDatum)
{
    Öffnen();
    Einsetzen("Datumsen", "1.12.26");
    EXPECT_EQ(Konfig.StartDatum, Tag(28, 11)); // typing alone changes nothing
    Einsetzen("Tagilein", "10");
    EXPECT_EQ(Konfig.StartDatum, Tag(1, 12));
    EXPECT_EQ(Zeigt("Datumsen"), "01.12.2026");
    EXPECT_EQ(Zeigt("Endet"), "11.12.2026");
}

TEST_F(StartFormTageTest, WasKeineZahlIstBleibtOhneMeldungStehen)
{
    Öffnen();
    for (const char *text : {"", "abc", "12x"}) {
        Einsetzen("Tagilein", text);
        EXPECT_EQ(Zeigt("Tagilein"), text);
        EXPECT_EQ(Konfig.Tage, 28);
        EXPECT_EQ(Zeigt("Endet"), "26.12.2026");
    }
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(StartFormTageTest, DerselbeTextIstKeineÄnderung)
{
    Öffnen();
    Konfig.Tage = 99;
    Einsetzen("Tagilein", "28");
    EXPECT_EQ(Konfig.Tage, 99);
}

TEST_F(StartFormTageTest, Änderung1ZähltTage)
{
    Öffnen();
    Drehen("Änderung1", "auf");
    EXPECT_EQ(Zeigt("Tagilein"), "29");
    EXPECT_EQ(Konfig.Tage, 29);
    EXPECT_EQ(Zeigt("Endet"), "27.12.2026");
    EXPECT_EQ(Zeigt("Dayig"), "Sonntag");
    Drehen("Änderung1", "ab");
    Drehen("Änderung1", "ab");
    EXPECT_EQ(Zeigt("Tagilein"), "27");
    EXPECT_EQ(Zeigt("Endet"), "25.12.2026");
    EXPECT_EQ(Konfig.Tage, 27);
}

// The setting is rounded, a half to the even neighbour, but the box is not.
TEST_F(StartFormTageTest, EinBruchVonTagenBleibtBeimDrehenEinBruch)
{
    Öffnen();
    Einsetzen("Tagilein", "7,5");
    EXPECT_EQ(Konfig.Tage, 8);
    Drehen("Änderung1", "auf");
    EXPECT_EQ(Zeigt("Tagilein"), "8,5");
    EXPECT_EQ(Konfig.Tage, 8);
    Drehen("Änderung1", "auf");
    EXPECT_EQ(Zeigt("Tagilein"), "9,5");
    EXPECT_EQ(Konfig.Tage, 10);
}

TEST_F(StartFormTageTest, Änderung1BleibtInDenGrenzenUndÜbernimmtDasDatum)
{
    Öffnen();
    Einsetzen("Tagilein", "7");
    Drehen("Änderung1", "ab");
    EXPECT_EQ(Zeigt("Tagilein"), "7");
    Einsetzen("Tagilein", "180");
    Drehen("Änderung1", "auf");
    EXPECT_EQ(Zeigt("Tagilein"), "180");
    Einsetzen("Datumsen", "2.12.2026");
    Drehen("Änderung1", "auf");
    EXPECT_EQ(Konfig.StartDatum, Tag(2, 12));
    Einsetzen("Tagilein", "x");
    Einsetzen("Datumsen", "3.12.2026");
    Drehen("Änderung1", "auf");
    EXPECT_EQ(Zeigt("Tagilein"), "x");
    EXPECT_EQ(Konfig.StartDatum, Tag(3, 12)); // the date is taken before the number fails
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

} // namespace
} // namespace altardienst
