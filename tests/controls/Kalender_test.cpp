// The calendar of a date box: opening it, picking a day, leaving it.
#include "controls/Kalender.h"

#include "Fensterstand.h"
#include "controls/Feldmarke.h"
#include "controls/Handler.h"
#include "controls/Terminbox.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QScopeGuard>
#include <QTextCharFormat>
#include <QToolButton>
#include <QVBoxLayout>

namespace altardienst {
namespace {

class KalenderTest : public Fensterstand {
  protected:
    KalenderTest()
    {
        auto *spalte = new QVBoxLayout(&fenster);
        spalte->addWidget(feld);
        spalte->addWidget(anderes);
        Einsetzen(feld, "24.12.2026");
        QObject::connect(feld, &QLineEdit::textEdited, feld, [this] { ereignisse += "getippt "; });
        QObject::connect(feld, &QLineEdit::textChanged, feld,
                         [this] { ereignisse += "geändert "; });
        BeiFokusVerlust(feld, [this] { ereignisse += "verlassen "; });
        Zeigen(&fenster);
        FokusAuf(feld);
    }

    QCalendarWidget *Öffnen()
    {
        QTest::keyClick(feld, Qt::Key_Down, Qt::AltModifier);
        QWidget *offen = QApplication::activePopupWidget();
        if (!offen || offen->objectName() != "Kalender")
            throw std::runtime_error("no calendar opened");
        return Finden<QCalendarWidget>(offen, "Tage");
    }

    /// Where the cursor is, once the box has scrolled to it, which it does when it is drawn.
    QRect Stelle() const
    {
        feld->grab();
        return feld->inputMethodQuery(Qt::ImCursorRectangle).toRect();
    }

    static void KalenderTaste(Qt::Key taste)
    {
        QTest::keyClick(QApplication::focusWidget(), taste);
    }

    static bool IstZu() { return !QApplication::activePopupWidget(); }

    Text ereignisse; // outlives the window
    QWidget fenster;
    QLineEdit *feld = Datumsbox("Feld");
    QLineEdit *anderes = Textfeld("anderes");
};

TEST_F(KalenderTest, ZeigtDenTagDesFeldesAufDeutschUndBeginntMitMontag)
{
    const QCalendarWidget *kalender = Öffnen();
    EXPECT_EQ(kalender->selectedDate(), QDate(2026, 12, 24));
    EXPECT_EQ(kalender->firstDayOfWeek(), Qt::Monday);
    EXPECT_EQ(kalender->locale().monthName(3), "März");
    EXPECT_EQ(kalender->accessibleName(), "Kalender");
}

TEST_F(KalenderTest, DasWochenendeIstAuchAufDunklemGrundZuLesen)
{
    const auto sonntag = [this] {
        const QCalendarWidget *kalender = Öffnen();
        return kalender->weekdayTextFormat(Qt::Sunday).foreground().color();
    };
    EXPECT_EQ(sonntag(), QColor(Qt::red));
    KalenderTaste(Qt::Key_Escape);
    const QPalette hell = QApplication::palette();
    QPalette dunkel = hell;
    dunkel.setColor(QPalette::Base, QColor(0x24, 0x24, 0x24));
    QApplication::setPalette(dunkel);
    const auto zurück = qScopeGuard([&] { QApplication::setPalette(hell); });
    EXPECT_GT(qGray(sonntag().rgb()), 0x24 + 100);
}

TEST_F(KalenderTest, OhneLesbaresDatumBeginntErHeute)
{
    Einsetzen(feld, "x");
    EXPECT_EQ(Öffnen()->selectedDate(), QDate(2026, 11, 21));
}

TEST_F(KalenderTest, WoKeinTagStehtBeginntErBeiHeute)
{
    for (const char *text : {"", "00:00:00", "18:30:00", "30.12.1899"}) {
        Einsetzen(feld, text);
        EXPECT_EQ(Öffnen()->selectedDate(), QDate(2026, 11, 21)) << text;
        KalenderTaste(Qt::Key_Escape);
    }
    Einsetzen(feld, "29.12.1899");
    EXPECT_EQ(Öffnen()->selectedDate(), QDate(1899, 12, 29));
}

TEST_F(KalenderTest, AuchMarkiertStehtDasDatumGanzDa)
{
    Einsetzen(feld, "31.13.2026");
    ASSERT_TRUE(IstMarkiert(feld));
    feld->setCursorPosition(0);
    const int anfang = Stelle().x();
    feld->setCursorPosition(static_cast<int>(feld->text().size()));
    EXPECT_EQ(Stelle().x() - anfang, feld->fontMetrics().horizontalAdvance(feld->text()));
    const auto *knopf = feld->findChild<QToolButton *>(QString(), Qt::FindDirectChildrenOnly);
    EXPECT_LE(Stelle().center().x(), knopf->x());
}

TEST_F(KalenderTest, DerKnopfImFeldÖffnetIhn)
{
    FokusAuf(anderes);
    auto *knopf = feld->findChild<QToolButton *>(QString(), Qt::FindDirectChildrenOnly);
    ASSERT_TRUE(knopf);
    EXPECT_TRUE(feld->rect().contains(knopf->geometry()));
    EXPECT_EQ(knopf->focusPolicy(), Qt::NoFocus);
    EXPECT_EQ(knopf->toolTip(), "Kalender (Alt+Pfeil ab)");
    Klick(knopf);
    ASSERT_TRUE(QApplication::activePopupWidget());
    EXPECT_EQ(QApplication::activePopupWidget()->objectName(), "Kalender");
    KalenderTaste(Qt::Key_Escape);
    EXPECT_TRUE(IstZu());
    EXPECT_TRUE(feld->hasFocus());
}

TEST_F(KalenderTest, EinGewählterTagIstEineÄnderungWieGetippt)
{
    Öffnen();
    KalenderTaste(Qt::Key_Right);
    EXPECT_EQ(ereignisse, ""); // looking around changes nothing
    KalenderTaste(Qt::Key_Return);
    EXPECT_TRUE(IstZu());
    EXPECT_EQ(Zeigt(feld), "25.12.2026");
    EXPECT_EQ(ereignisse, "getippt geändert ");
    EXPECT_TRUE(feld->hasFocus());
}

TEST_F(KalenderTest, EinKlickAufEinenTagWähltIhnEinmal)
{
    QCalendarWidget *kalender = Öffnen();
    kalender->clicked(QDate(2027, 1, 6));
    kalender->activated(QDate(2027, 1, 6)); // the second click of two
    EXPECT_TRUE(IstZu());
    EXPECT_EQ(Zeigt(feld), "06.01.2027");
    EXPECT_EQ(ereignisse, "getippt geändert ");
}

TEST_F(KalenderTest, DieRegelnDesFeldesGelten)
{
    QObject::connect(feld, &QLineEdit::textChanged, feld, Abgefangen([this] {
                         if (Zeigt(feld) == "25.12.2026")
                             Einsetzen(feld, "01.01.2000");
                     }));
    Öffnen();
    KalenderTaste(Qt::Key_Right);
    KalenderTaste(Qt::Key_Return);
    EXPECT_EQ(Zeigt(feld), "01.01.2000");
}

TEST_F(KalenderTest, EscSchließtNurIhn)
{
    Öffnen();
    KalenderTaste(Qt::Key_Right);
    KalenderTaste(Qt::Key_Escape);
    EXPECT_TRUE(IstZu());
    EXPECT_TRUE(fenster.isVisible());
    EXPECT_EQ(Zeigt(feld), "24.12.2026");
    EXPECT_EQ(ereignisse, ""); // not even left
    EXPECT_TRUE(feld->hasFocus());
}

TEST_F(KalenderTest, EinFeldZumLesenHatKeinen)
{
    feld->setReadOnly(true);
    QTest::keyClick(feld, Qt::Key_Down, Qt::AltModifier);
    EXPECT_TRUE(IstZu());
}

TEST_F(KalenderTest, DasZeichenFolgtDerFarbeDesTextes)
{
    const auto hellePunkte = [this] {
        auto *knopf = feld->findChild<QToolButton *>(QString(), Qt::FindDirectChildrenOnly);
        const QImage bild = knopf->icon().pixmap(16, 16).toImage();
        int deckend = 0;
        for (int y = 0; y < 16; ++y)
            for (int x = 0; x < 16; ++x)
                deckend +=
                    bild.pixelColor(x, y).alpha() > 100 && bild.pixelColor(x, y).lightness() > 200;
        return deckend;
    };
    EXPECT_EQ(hellePunkte(), 0);
    const QPalette zuvor = QApplication::palette();
    QPalette dunkel = zuvor;
    dunkel.setColor(QPalette::Text, Qt::white);
    QApplication::setPalette(dunkel);
    const int hell = hellePunkte();
    QApplication::setPalette(zuvor);
    EXPECT_GT(hell, 20);
}

} // namespace
} // namespace altardienst
