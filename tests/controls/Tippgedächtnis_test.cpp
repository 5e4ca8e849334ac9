// Typing key by key into boxes that rewrite their text on every change.
#include "Fensterstand.h"
#include "controls/Handler.h"
#include "controls/Terminbox.h"
#include "controls/Zahlbox.h"

namespace altardienst {
namespace {

class TippgedächtnisTest : public Fensterstand {
  protected:
    TippgedächtnisTest() { Zeigen(feld); }

    /// Makes the box rewrite its text in this way.
    void Umschreibend(const std::function<void(QLineEdit *)> &umschreiben)
    {
        QObject::connect(feld, &QLineEdit::textChanged, feld,
                         Abgefangen([this, umschreiben] { umschreiben(feld); }));
    }

    /// Typed over the whole content, as after a Tab.
    Text Getippt(const char *tasten)
    {
        feld->selectAll();
        QTest::keyClicks(feld, tasten);
        return Zeigt(feld);
    }

    QLineEdit *feld = Textfeld("Feld");
};

TEST_F(TippgedächtnisTest, EinDatum)
{
    Umschreibend(AlsKurzesDatum);
    Einsetzen(feld, "21.11.2026");
    EXPECT_EQ(Getippt("24.12.2026"), "24.12.2026");
    EXPECT_EQ(Getippt("24.12.27"), "24.12.2027");
    EXPECT_EQ(Getippt("1.2.1999"), "01.02.1999");
}

TEST_F(TippgedächtnisTest, UmgeschriebenWirdBeiJederTaste)
{
    Umschreibend(AlsKurzesDatum);
    EXPECT_EQ(Getippt("24.12.2"), "24.12.2002");
    QTest::keyClicks(feld, "0");
    EXPECT_EQ(Zeigt(feld), "24.12.2020");
}

TEST_F(TippgedächtnisTest, EineUhrzeit)
{
    Umschreibend(AlsLangeZeit);
    Einsetzen(feld, "18:30:00");
    EXPECT_EQ(Getippt("10:30"), "10:30:00");
    EXPECT_EQ(Getippt("8:05"), "08:05:00");
    EXPECT_EQ(Getippt("08:45:15"), "08:45:15");
}

TEST_F(TippgedächtnisTest, EineZahlÜberEinerUnterenGrenze)
{
    Umschreibend([](QLineEdit *f) { Begrenzen(f, 5, 250); });
    Einsetzen(feld, "160");
    EXPECT_EQ(Getippt("1"), "5");
    EXPECT_EQ(Getippt("175"), "175");
    EXPECT_EQ(Getippt("999"), "250");
}

TEST_F(TippgedächtnisTest, DieRücktasteNimmtWasGetipptWurde)
{
    Umschreibend(AlsKurzesDatum);
    Getippt("24.12.2");
    QTest::keyClick(feld, Qt::Key_Backspace);
    EXPECT_EQ(Zeigt(feld), "24.12.");
    QTest::keyClicks(feld, "30");
    EXPECT_EQ(Zeigt(feld), "24.12.1930");
}

TEST_F(TippgedächtnisTest, WerDenCursorBewegtTipptImTextDerDaSteht)
{
    Umschreibend([](QLineEdit *f) { Begrenzen(f, 5, 250); });
    Getippt("1");
    QTest::keyClick(feld, Qt::Key_Home);
    QTest::keyClicks(feld, "2");
    EXPECT_EQ(Zeigt(feld), "25");
}

TEST_F(TippgedächtnisTest, NachEinemWechselGiltWasDaSteht)
{
    Umschreibend([](QLineEdit *f) { Begrenzen(f, 5, 250); });
    Getippt("1");
    Einsetzen(feld, "12"); // another record
    QTest::keyClicks(feld, "3");
    EXPECT_EQ(Zeigt(feld), "123");
    Getippt("1");
    feld->clearFocus();
    feld->setFocus();
    feld->end(false);
    QTest::keyClicks(feld, "7");
    EXPECT_EQ(Zeigt(feld), "57");
}

TEST_F(TippgedächtnisTest, EinNurLesbaresFeldNimmtNichts)
{
    Einsetzen(feld, "a");
    feld->setReadOnly(true);
    QTest::keyClicks(feld, "b");
    EXPECT_EQ(Zeigt(feld), "a");
}

} // namespace
} // namespace altardienst
