// Boxes for a date or a time: their steps, how they are rewritten, and where the cursor stays.
#include "controls/Terminbox.h"

#include "Fensterstand.h"
#include "controls/Handler.h"

namespace altardienst {
namespace {

class TerminboxTest : public Fensterstand {
  protected:
    TerminboxTest() { Zeigen(feld); }

    Text Nach(const char *anfang, const std::function<void()> &schritt) const
    {
        Einsetzen(feld, anfang);
        schritt();
        return Zeigt(feld);
    }

    QLineEdit *feld = Textfeld("Feld");
};

TEST_F(TerminboxTest, TageMonateUndJahreFolgenDemKalender)
{
    EXPECT_EQ(Nach("28.02.2027", [&] { TageWeiter(feld, 1); }), "01.03.2027");
    EXPECT_EQ(Nach("28.02.2028", [&] { TageWeiter(feld, 1); }), "29.02.2028");
    EXPECT_EQ(Nach("01.01.2027", [&] { TageWeiter(feld, -1); }), "31.12.2026");
    EXPECT_EQ(Nach("31.01.2027", [&] { MonateWeiter(feld, 1); }), "28.02.2027");
    EXPECT_EQ(Nach("31.01.2027", [&] { MonateWeiter(feld, -1); }), "31.12.2026");
    EXPECT_EQ(Nach("29.02.2028", [&] { JahreWeiter(feld, 1); }), "28.02.2029");
    EXPECT_EQ(Nach("29.02.2028", [&] { JahreWeiter(feld, -4); }), "29.02.2024");
    EXPECT_EQ(Nach("1.2.27", [&] { TageWeiter(feld, 0); }), "01.02.2027");
}

TEST_F(TerminboxTest, StundenUndMinutenBleibenImTag)
{
    EXPECT_EQ(Nach("10:15:30", [&] { StundenWeiter(feld, 1); }), "11:15:30");
    EXPECT_EQ(Nach("23:15:30", [&] { StundenWeiter(feld, 1); }), "00:15:30");
    EXPECT_EQ(Nach("00:15:30", [&] { StundenWeiter(feld, -1); }), "23:15:30");
    EXPECT_EQ(Nach("23:58:00", [&] { MinutenWeiter(feld, 5); }), "00:03:00");
    EXPECT_EQ(Nach("00:03", [&] { MinutenWeiter(feld, -5); }), "23:58:00");
}

TEST_F(TerminboxTest, DieFormDerLandessprache)
{
    EXPECT_EQ(Nach("1/2/27", [&] { AlsKurzesDatum(feld); }), "01.02.2027");
    EXPECT_EQ(Nach("22.11.2026 18:30", [&] { AlsKurzesDatum(feld); }), "22.11.2026");
    EXPECT_EQ(Nach("9:5", [&] { AlsLangeZeit(feld); }), "09:05:00");
    EXPECT_EQ(Nach("22.11.2026 18:30", [&] { AlsLangeZeit(feld); }), "18:30:00");
}

TEST_F(TerminboxTest, WasKeinTerminIstIstFehler13UndBleibtStehen)
{
    for (const char *text : {"", "abc", "31.02.2027", "25:61", "40000", "-1"}) {
        Einsetzen(feld, text);
        EXPECT_EQ(NummerDesFehlers([&] { TageWeiter(feld, 1); }), 13) << text;
        EXPECT_EQ(NummerDesFehlers([&] { MonateWeiter(feld, 1); }), 13) << text;
        EXPECT_EQ(NummerDesFehlers([&] { StundenWeiter(feld, 1); }), 13) << text;
        EXPECT_EQ(NummerDesFehlers([&] { AlsKurzesDatum(feld); }), 13) << text;
        EXPECT_EQ(NummerDesFehlers([&] { AlsLangeZeit(feld); }), 13) << text;
        EXPECT_EQ(Zeigt(feld), text);
    }
    EXPECT_EQ(
        Nach("31.12.9999", [&] { EXPECT_EQ(NummerDesFehlers([&] { TageWeiter(feld, 1); }), 6); }),
        "31.12.9999");
}

TEST_F(TerminboxTest, InDerMitteLässtSichWeitertippenObwohlDasFeldUmgeschriebenWird)
{
    QObject::connect(feld, &QLineEdit::textChanged, feld,
                     Abgefangen([this] { AlsLangeZeit(feld); }));
    Einsetzen(feld, "08:30:00");
    feld->setSelection(0, 2);
    QTest::keyClicks(feld, "11");
    EXPECT_EQ(Zeigt(feld), "11:30:00");
    EXPECT_EQ(feld->cursorPosition(), 2);
    feld->setSelection(3, 2);
    QTest::keyClicks(feld, "45");
    EXPECT_EQ(Zeigt(feld), "11:45:00");
    EXPECT_EQ(feld->cursorPosition(), 5);
}

} // namespace
} // namespace altardienst
