// The number box: reading, clipping, spinning.
#include "controls/Zahlbox.h"

#include "Fensterstand.h"
#include "core/tables.h"

namespace altardienst {
namespace {

class ZahlboxTest : public Fensterstand {
  protected:
    ZahlboxTest()
    {
        ZahlboxAnordnen(new QGridLayout(&fenster), 0, 0, "Leuchter:", box);
        QObject::connect(box.Feld, &QLineEdit::textChanged, box.Feld, [this] { ++änderungen; });
        Zeigen(&fenster);
    }

    QWidget fenster;
    Zahlbox box = ZahlboxAnlegen("Dienster2", "Ä3", "Leuchter:");
    int änderungen = 0;
};

TEST_F(ZahlboxTest, BeginntLeerUndHatSprechendeNamen)
{
    EXPECT_EQ(Zeigt(box.Feld), "");
    EXPECT_EQ(Finden<QLineEdit>(&fenster, "Dienster2"), box.Feld);
    EXPECT_EQ(Finden<SpinButton>(&fenster, "Ä3"), box.Spin);
    EXPECT_EQ(box.Feld->accessibleName(), "Leuchter");
    EXPECT_EQ(box.Spin->accessibleName(), "Leuchter ändern");
    EXPECT_EQ(Stumme(&fenster), std::vector<Text>{});
}

TEST_F(ZahlboxTest, LiestGanzeZahlen)
{
    for (const auto &[text, zahl] : {std::pair("0", 0),
                                     {"7", 7},
                                     {" 7 ", 7},
                                     {"-3", -3},
                                     {"007", 7},
                                     {"2,5", 2},
                                     {"3,5", 4},
                                     {"32767", 32767},
                                     {"-32768", -32768}}) {
        Einsetzen(box.Feld, text);
        EXPECT_EQ(ZahlIn(box.Feld), zahl) << text;
    }
}

TEST_F(ZahlboxTest, WasKeineZahlIstIstFehler13ZuGroßesFehler6)
{
    for (const auto &[text, fehler] : {std::pair("", 13),
                                       {"abc", 13},
                                       {"1 2", 13},
                                       {"31.02.2027", 13},
                                       {"25:61", 13},
                                       {"40000", 6},
                                       {"-32769", 6}}) {
        Einsetzen(box.Feld, text);
        EXPECT_EQ(NummerDesFehlers([&] { ZahlIn(box.Feld); }), fehler) << text;
    }
}

TEST_F(ZahlboxTest, BegrenzenSchneidetAnBeidenEndenSoGroßDieZahlAuchIst)
{
    for (const auto &[text, zahl] : {std::pair("-1", 0),
                                     {"0", 0},
                                     {"1", 1},
                                     {"8", 8},
                                     {"9", 8},
                                     {"8,4", 8},
                                     {"-0,4", 0},
                                     {"40000", 8},
                                     {"-40000", 0},
                                     {"999999999999", 8}}) {
        Einsetzen(box.Feld, text);
        EXPECT_EQ(Begrenzen(box.Feld, 0, 8), zahl) << text;
        EXPECT_EQ(Zeigt(box.Feld), std::to_string(zahl)) << text;
    }
}

TEST_F(ZahlboxTest, BegrenzenLässtStehenWasInDenGrenzenIst)
{
    for (const char *text : {"3", " 3", "03", "2,5"}) {
        Einsetzen(box.Feld, text);
        änderungen = 0;
        Begrenzen(box.Feld, 0, 8);
        EXPECT_EQ(Zeigt(box.Feld), text);
        EXPECT_EQ(änderungen, 0);
    }
    Einsetzen(box.Feld, "abc");
    EXPECT_EQ(NummerDesFehlers([&] { Begrenzen(box.Feld, 0, 8); }), 13);
    EXPECT_EQ(Zeigt(box.Feld), "abc");
}

TEST_F(ZahlboxTest, DrehenGehtUmEins)
{
    DrehenVerbinden(box);
    ZahlSetzen(box.Feld, 0);
    Klick(Finden(box.Spin, "auf"));
    EXPECT_EQ(Zeigt(box.Feld), "1");
    Klick(Finden(box.Spin, "ab"));
    Klick(Finden(box.Spin, "ab"));
    EXPECT_EQ(Zeigt(box.Feld), "-1"); // limits are up to the change rule
    FokusAuf(box.Spin);
    QTest::keyClick(box.Spin, Qt::Key_Up);
    EXPECT_EQ(Zeigt(box.Feld), "0");
    EXPECT_EQ(änderungen, 5);
}

TEST_F(ZahlboxTest, DrehenZähltWeiterWasAuchDasteht)
{
    DrehenVerbinden(box);
    for (const auto &[text, auf, ab] : {std::tuple("2,5", "3,5", "2,5"),
                                        {"-0,25", "0,75", "-0,25"},
                                        {" 7 ", "8", "7"},
                                        {"32767", "32768", "32767"},
                                        {"-40000", "-39999", "-40000"}}) {
        Einsetzen(box.Feld, text);
        Klick(Finden(box.Spin, "auf"));
        EXPECT_EQ(Zeigt(box.Feld), auf) << text;
        Klick(Finden(box.Spin, "ab"));
        EXPECT_EQ(Zeigt(box.Feld), ab) << text;
    }
}

TEST_F(ZahlboxTest, DrehenLässtStehenWasKeineZahlIst)
{
    DrehenVerbinden(box);
    for (const char *text : {"", "abc"}) {
        Einsetzen(box.Feld, text);
        Klick(Finden(box.Spin, "auf"));
        EXPECT_EQ(Zeigt(box.Feld), text);
    }
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{});
}

TEST_F(ZahlboxTest, ZahlenSchreibenEndetVorDemErstenFeldOhneZahl)
{
    const Zahlbox zweite = ZahlboxAnlegen("z", "zs", "z");
    const std::array felder = {box.Feld, zweite.Feld};
    const std::array spalten = {&Messe.Leuchter, &Messe.Flambeau};
    Messe.Leuchter[4] = 1;
    Messe.Flambeau[4] = 6;
    ZahlenZeigen(felder, spalten, 4);
    EXPECT_EQ(Zeigt(box.Feld), "1");
    EXPECT_EQ(Zeigt(zweite.Feld), "6");
    Einsetzen(box.Feld, "2");
    Einsetzen(zweite.Feld, "x");
    EXPECT_EQ(NummerDesFehlers([&] { ZahlenSchreiben(felder, spalten, 4); }), 13);
    EXPECT_EQ(Messe.Leuchter[4], 2);
    EXPECT_EQ(Messe.Flambeau[4], 6);
    Einsetzen(box.Feld, "x");
    FokusAuf(box.Spin);
    EXPECT_EQ(NummerDesFehlers([&] { ZahlenSchreiben(felder, spalten, 4); }), 13);
    EXPECT_TRUE(box.Feld->hasFocus());
    delete zweite.Feld;
    delete zweite.Spin;
}

} // namespace
} // namespace altardienst
