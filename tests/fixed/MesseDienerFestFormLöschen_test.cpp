// The dialog of the fixed entries: deleting an entry.
#include "fixed/Blätterstand.h"

namespace altardienst {
namespace {

class MesseDienerFestFormLöschenTest : public Blätterstand {};

TEST_F(MesseDienerFestFormLöschenTest, LöschenFragtUndNeinÄndertNichts)
{
    Öffnen(1);
    Klick("Löschen");
    ASSERT_EQ(GestellteFragen.size(), 1U);
    EXPECT_EQ(GestellteFragen[0].Titel, "Löschen der Zuordnung Meßdiener Messe");
    EXPECT_EQ(GestellteFragen[0].Wortlaut, "Wirklich?");
    EXPECT_EQ(MesseDienerFest.Anzahl, 3);
    EXPECT_EQ(Wo(), Eins);
}

TEST_F(MesseDienerFestFormLöschenTest, LöschenZeigtDenNachrückendenEintrag)
{
    Öffnen(1);
    Antworten = {true};
    Klick("Löschen");
    EXPECT_EQ(MesseDienerFest.Anzahl, 2);
    EXPECT_EQ(Zeigt("MaxIndex"), "2");
    EXPECT_EQ(Wo(), "1: 24.11.2026,08:00:00 Conrad,Kim 3");
    EXPECT_EQ(Messentext(), "22.11.2026,18:00:00"); // still that of the deleted one
    EXPECT_EQ(Gespeichert(0, 1), "Kim|Abel");
}

TEST_F(MesseDienerFestFormLöschenTest, LöschenAufDemLeerenEintragGehtZurückAufDieAnzahl)
{
    Öffnen(3);
    Antworten = {true};
    Klick("Löschen");
    EXPECT_EQ(MesseDienerFest.Anzahl, 2);
    EXPECT_EQ(Wo(), Zwei); // after the last one now, but still there
}

/// The number may differ from the entry on the screen while a bad date holds up its change.
TEST_F(MesseDienerFestFormLöschenTest, GelöschtWirdDerEintragDerNummer)
{
    Öffnen(1);
    FokusAuf("Index");
    Einsetzen("DatumD", "abc");
    Einsetzen("Index", "0");
    EXPECT_EQ(MesseDienerFest.Cursor, 1);
    Antworten = {true};
    Klick("Löschen");
    EXPECT_EQ(Gespeichert(0, 1), "Kim|Bauer");
    EXPECT_EQ(Gespeichert(1, 1), "Kim|Conrad");
    EXPECT_EQ(MesseDienerFest.Cursor, 0);
    EXPECT_EQ(Wo(), "0: 22.11.2026,18:00:00 Bauer,Kim 2");
}

/// Only the buttons and keys bring the mass in line with the entry, and OK takes the date from it.
TEST_F(MesseDienerFestFormLöschenTest, NachDemDrehenUndLöschenSchreibtOkDenTerminDesVorigen)
{
    Öffnen();
    Drehen("DatensatzWechsel", "auf");
    Klick("OKbutton");
    EXPECT_EQ(Termin(1), "22.11.2026,10:00:00"); // that of entry 0
    EXPECT_EQ(Gespeichert(1, 1), "Kim|Bauer");
    EXPECT_TRUE(Warten([&] { return !form; }));
    Öffnen(1);
    Antworten = {true};
    Klick("Löschen");
    Klick("OKbutton");
    EXPECT_EQ(Termin(1), "22.11.2026,18:00:00"); // that of the deleted one
    EXPECT_EQ(Gespeichert(1, 1), "Kim|Conrad");
}

TEST_F(MesseDienerFestFormLöschenTest, MitWenigerAlsZweiEinträgenTutLöschenNichts)
{
    Öffnen();
    for (const int anzahl : {1, 0}) {
        MesseDienerFest.Anzahl = anzahl;
        Antworten = {true};
        Klick("Löschen");
        EXPECT_TRUE(GestellteFragen.empty());
        EXPECT_EQ(MesseDienerFest.Anzahl, anzahl);
    }
    EXPECT_EQ(Gespeichert(0, 1), "Kim|Abel");
    MesseDienerFest.Anzahl = 2;
    Klick("Löschen");
    EXPECT_EQ(MesseDienerFest.Anzahl, 1);
    EXPECT_EQ(Gespeichert(0, 1), "Kim|Bauer");
}

} // namespace
} // namespace altardienst
