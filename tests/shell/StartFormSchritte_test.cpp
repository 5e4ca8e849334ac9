// The start dialog: the steps from one day to the next.
#include "shell/Startstand.h"

namespace altardienst {
namespace {

class StartFormSchritteTest : public Startstand {};

TEST_F(StartFormSchritteTest, SpinButton1GehtTageweiseÜberMonatsgrenzen)
{
    Öffnen();
    for (int i = 0; i < 3; ++i)
        Drehen("SpinButton1", "auf");
    EXPECT_EQ(Zeigt("Datumsen"), "01.12.2026");
    EXPECT_EQ(Zeigt("Tagchen"), "Dienstag");
    EXPECT_EQ(Zeigt("Endet"), "29.12.2026");
    EXPECT_EQ(Zeigt("Dayig"), "Dienstag");
    EXPECT_EQ(Konfig.StartDatum, Tag(1, 12));
    Drehen("SpinButton1", "ab");
    EXPECT_EQ(Zeigt("Datumsen"), "30.11.2026");
    EXPECT_EQ(Zeigt("Tagchen"), "Montag");
    EXPECT_EQ(Konfig.StartDatum, Tag(30, 11));
}

TEST_F(StartFormSchritteTest, SpinButton1GehtMitDenPfeiltasten)
{
    StartForm &start = Öffnen();
    FokusAuf(start.SpinButton1);
    QTest::keyClick(start.SpinButton1, Qt::Key_Up);
    EXPECT_EQ(Zeigt("Datumsen"), "29.11.2026");
    QTest::keyClick(start.SpinButton1, Qt::Key_Down);
    QTest::keyClick(start.SpinButton1, Qt::Key_Down);
    EXPECT_EQ(Zeigt("Datumsen"), "27.11.2026");
    EXPECT_EQ(Konfig.StartDatum, Tag(27, 11));
}

TEST_F(StartFormSchritteTest, SpinButton1HältBeiHeute)
{
    Öffnen();
    Einsetzen("Datumsen", "21.11.2026");
    Drehen("SpinButton1", "ab");
    EXPECT_EQ(Zeigt("Datumsen"), "21.11.2026");
    EXPECT_EQ(Zeigt("Tagchen"), "Samstag");
    EXPECT_EQ(Konfig.StartDatum, Heute);
}

TEST_F(StartFormSchritteTest, SpinButton1RechnetVorherMitDemGetipptenDatum)
{
    Öffnen();
    Einsetzen("Datumsen", "1.1.2020"); // long past: today, then a day on
    Drehen("SpinButton1", "auf");
    EXPECT_EQ(Zeigt("Datumsen"), "22.11.2026");
    Einsetzen("Datumsen", "31.2.2027");
    Drehen("SpinButton1", "auf");
    EXPECT_EQ(Zeigt("Datumsen"), "31.2.2027");
    EXPECT_EQ(Konfig.StartDatum, Tag(22, 11));
    EXPECT_EQ(Zeigt("Tagchen"), "Sonntag");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(StartFormSchritteTest, PlusUndMinusVerschiebenBeimDrückenUndRechnenBeimLoslassen)
{
    StartForm &start = Öffnen();
    QTest::mousePress(start.Plus, Qt::LeftButton);
    EXPECT_EQ(Zeigt("Datumsen"), "29.11.2026");
    EXPECT_EQ(Zeigt("Tagchen"), "Samstag");
    EXPECT_EQ(Konfig.StartDatum, Tag(28, 11));
    QTest::mouseRelease(start.Plus, Qt::LeftButton);
    EXPECT_EQ(Zeigt("Tagchen"), "Sonntag");
    EXPECT_EQ(Zeigt("Endet"), "27.12.2026");
    EXPECT_EQ(Konfig.StartDatum, Tag(29, 11));

    QTest::mousePress(start.Minus, Qt::LeftButton);
    EXPECT_EQ(Zeigt("Datumsen"), "28.11.2026");
    EXPECT_EQ(Konfig.StartDatum, Tag(29, 11));
    QTest::mouseRelease(start.Minus, Qt::LeftButton);
    EXPECT_EQ(Konfig.StartDatum, Tag(28, 11));
}

TEST_F(StartFormSchritteTest, MinusZeigtGesternNurBisZurNeuberechnung)
{
    StartForm &start = Öffnen();
    Einsetzen("Datumsen", "21.11.2026");
    QTest::mousePress(start.Minus, Qt::LeftButton);
    EXPECT_EQ(Zeigt("Datumsen"), "20.11.2026");
    QTest::mouseRelease(start.Minus, Qt::LeftButton);
    EXPECT_EQ(Zeigt("Datumsen"), "21.11.2026");
    EXPECT_EQ(Konfig.StartDatum, Heute);
}

TEST_F(StartFormSchritteTest, NurDieErsteMaustasteVerschiebt)
{
    StartForm &start = Öffnen();
    for (QPushButton *knopf : {start.Plus, start.Minus}) {
        QTest::mouseClick(knopf, Qt::RightButton);
        QTest::mouseClick(knopf, Qt::MiddleButton);
    }
    EXPECT_EQ(Zeigt("Datumsen"), "28.11.2026");
}

TEST_F(StartFormSchritteTest, ZweiteHälfteEinesDoppelklicksZähltMit)
{
    StartForm &start = Öffnen();
    Klick(start.Plus);
    QTest::mouseDClick(start.Plus, Qt::LeftButton); // the second press and no first one
    QTest::mouseRelease(start.Plus, Qt::LeftButton);
    EXPECT_EQ(Konfig.StartDatum, Tag(30, 11));
}

TEST_F(StartFormSchritteTest, EineTasteAufPlusRechnetErstUndVerschiebtDann)
{
    StartForm &start = Öffnen();
    FokusAuf(start.Plus);
    Einsetzen("Datumsen", "1.12.26");
    QTest::keyClick(start.Plus, Qt::Key_X);
    EXPECT_EQ(Zeigt("Datumsen"), "02.12.2026");
    EXPECT_EQ(Konfig.StartDatum, Tag(1, 12));
    FokusAuf(start.Minus);
    QTest::keyClick(start.Minus, Qt::Key_X);
    EXPECT_EQ(Konfig.StartDatum, Tag(2, 12));
    EXPECT_EQ(Zeigt("Datumsen"), "01.12.2026");
}

TEST_F(StartFormSchritteTest, LeertasteUndEingabetasteDrückenDenKnopf)
{
    StartForm &start = Öffnen();
    for (auto taste : {Qt::Key_Space, Qt::Key_Return}) {
        const Datum zuvor = Konfig.StartDatum;
        FokusAuf(start.Plus);
        QTest::keyClick(start.Plus, taste);
        EXPECT_EQ(Konfig.StartDatum, zuvor + 1);
        FokusAuf(start.Minus);
        QTest::keyClick(start.Minus, taste);
        EXPECT_EQ(Konfig.StartDatum, zuvor);
    }
}

TEST_F(StartFormSchritteTest, TabVerschiebtNicht)
{
    StartForm &start = Öffnen();
    FokusAuf(start.Plus);
    QTest::keyClick(start.windowHandle(), Qt::Key_Tab);
    EXPECT_TRUE(start.Tagilein->hasFocus());
    EXPECT_EQ(Zeigt("Datumsen"), "28.11.2026");
}

} // namespace
} // namespace altardienst
