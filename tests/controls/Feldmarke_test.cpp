// What is said about a text that cannot be read, and how a box shows it.
#include "controls/Feldmarke.h"

#include "Fensterstand.h"
#include "controls/Terminbox.h"
#include "controls/Textwahl.h"
#include "controls/Zahlbox.h"

#include <QVBoxLayout>

namespace altardienst {
namespace {

TEST(Feldprüfungen, NennenWasDasteht)
{
    EXPECT_EQ(KeinDatum("31.13.2026"), "31.13.2026 ist kein Datum.");
    EXPECT_EQ(KeinDatum(" 24.12 "), "24.12 ist kein Datum.");
    EXPECT_EQ(KeinDatum(""), "Hier fehlt ein Datum.");
    EXPECT_EQ(KeinDatum("24.12.2026"), "");
    EXPECT_EQ(KeineUhrzeit("25:00"), "25:00 ist keine Uhrzeit.");
    EXPECT_EQ(KeineUhrzeit("18"), "18 ist keine Uhrzeit.");
    EXPECT_EQ(KeineUhrzeit("  "), "Hier fehlt eine Uhrzeit.");
    EXPECT_EQ(KeineUhrzeit("18:00"), "");
    EXPECT_EQ(KeineZahl("abc"), "abc ist keine Zahl.");
    EXPECT_EQ(KeineZahl(""), "Hier fehlt eine Zahl.");
    EXPECT_EQ(KeineZahl("40000"), "40000 ist zu groß.");
    EXPECT_EQ(KeineZahl("-40000"), "-40000 ist zu klein.");
    EXPECT_EQ(KeineZahl("2,5"), "");
    EXPECT_EQ(KeinePostleitzahl("48999"), "");
    EXPECT_EQ(KeinePostleitzahl("D-48999"), "D-48999 ist keine Zahl.");
    EXPECT_EQ(KeinMaß("0,1"), "");
    EXPECT_EQ(KeinMaß("0.1"), "0.1 ist keine Zahl.");
}

TEST(Feldprüfungen, EinLangerTextWirdGekürzt)
{
    EXPECT_EQ(KeineZahl(Text(41, 'x')), Text(40, 'x') + "… ist keine Zahl.");
    EXPECT_EQ(KeineZahl(Text(40, 'x')), Text(40, 'x') + " ist keine Zahl.");
}

TEST(Feldprüfungen, SagenWasEineDateiZerreißt)
{
    const Feldprüfung prüfung = ZerreißtDieDatei("fehlen alle Meßdiener ab hier");
    const Text folge = " zerreißt die Datei: beim nächsten Start fehlen alle Meßdiener ab hier.";
    EXPECT_EQ(prüfung("Hauptstr. 3, links"), "Ein Komma" + folge);
    EXPECT_EQ(prüfung("oben\nunten"), "Ein Zeilenumbruch" + folge);
    EXPECT_EQ(prüfung("\"Haus"), "Ein Anführungszeichen am Anfang" + folge);
    for (const char *text : {"", "Hauptstr. 3", "Haus \"Maria\"", " vorn", "ß; ä"})
        EXPECT_EQ(prüfung(text), "") << text;
}

class FeldmarkeTest : public Fensterstand {
  protected:
    FeldmarkeTest()
    {
        auto *spalte = new QVBoxLayout(&fenster);
        spalte->addWidget(feld);
        spalte->addWidget(anderes);
        spalte->addWidget(wahl);
        feld->setToolTip("eigener Hinweis");
        feld->setAccessibleDescription("eigene Beschreibung");
        Einsetzen(feld, "24.12.2026");
        Zeigen(&fenster);
        FokusAuf(feld);
    }

    void Dunkel()
    {
        QPalette dunkel = feld->palette();
        dunkel.setColor(QPalette::Base, QColor(0x20, 0x20, 0x20));
        dunkel.setColor(QPalette::Text, Qt::white);
        feld->setPalette(dunkel);
    }

    /// The pixel of the frame in the middle of the left edge.
    QColor Rahmen() { return feld->grab().toImage().pixelColor(2, feld->height() / 2); }

    QWidget fenster;
    QLineEdit *feld = Datumsbox("Feld");
    QLineEdit *anderes = Textfeld("anderes");
    QComboBox *wahl = Textwahl("Wahl", "Wahl");
};

TEST_F(FeldmarkeTest, StehtSolangeDerTextNichtLesbarIst)
{
    EXPECT_FALSE(IstMarkiert(feld));
    EXPECT_EQ(feld->toolTip(), "eigener Hinweis");
    Tippen(feld, "31.13.2026");
    EXPECT_TRUE(IstMarkiert(feld));
    EXPECT_EQ(feld->toolTip(), "31.13.2026 ist kein Datum.");
    EXPECT_EQ(feld->accessibleDescription(), "31.13.2026 ist kein Datum.");
    QTest::keyClick(feld, Qt::Key_Backspace);
    EXPECT_EQ(feld->toolTip(), "31.13.202 ist kein Datum."); // follows what stands there
    Tippen(feld, "31.12.2026");
    EXPECT_FALSE(IstMarkiert(feld));
    EXPECT_EQ(feld->toolTip(), "eigener Hinweis");
    EXPECT_EQ(feld->accessibleDescription(), "eigene Beschreibung");
}

TEST_F(FeldmarkeTest, ÄndertWederTextNochFokusNochEreignisse)
{
    Text ereignisse;
    QObject::connect(feld, &QLineEdit::textEdited, feld, [&] { ereignisse += "getippt "; });
    QObject::connect(feld, &QLineEdit::textChanged, feld, [&] { ereignisse += "geändert "; });
    QTest::keyClick(feld, Qt::Key_End);
    QTest::keyClicks(feld, "x");
    EXPECT_EQ(Zeigt(feld), "24.12.2026x");
    EXPECT_EQ(feld->cursorPosition(), 11);
    EXPECT_TRUE(feld->hasFocus());
    EXPECT_EQ(ereignisse, "getippt geändert ");
    QTest::keyClick(feld, Qt::Key_Backspace);
    EXPECT_EQ(ereignisse, "getippt geändert getippt geändert ");
    EXPECT_FALSE(IstMarkiert(feld));
}

TEST_F(FeldmarkeTest, EinFeldDasLeerGeöffnetWirdIstVonAnfangAnMarkiert)
{
    QLineEdit *neu = Zahleneingabe("neu");
    EXPECT_FALSE(IstMarkiert(neu));
    fenster.layout()->addWidget(neu);
    neu->show();
    EXPECT_TRUE(IstMarkiert(neu));
    EXPECT_EQ(neu->toolTip(), "Hier fehlt eine Zahl.");
}

TEST_F(FeldmarkeTest, EinHinweisDerInzwischenKommtGiltDanach)
{
    Einsetzen(feld, "x");
    EXPECT_EQ(EigenerHinweis(feld), "eigener Hinweis");
    feld->setToolTip("neuer Hinweis");
    EXPECT_EQ(feld->toolTip(), "x ist kein Datum.");
    EXPECT_EQ(EigenerHinweis(feld), "neuer Hinweis");
    Einsetzen(feld, "1.1.2027");
    EXPECT_EQ(feld->toolTip(), "neuer Hinweis");
    EXPECT_EQ(EigenerHinweis(feld), "neuer Hinweis");
}

TEST_F(FeldmarkeTest, WasWieEineAuszeichnungAussiehtErscheintAlsText)
{
    Einsetzen(feld, "<b>x</b>");
    EXPECT_EQ(feld->toolTip(), "&lt;b&gt;x&lt;/b&gt; ist kein Datum.");
}

TEST_F(FeldmarkeTest, EineListeSagtWasIhrTextfeldHat)
{
    FeldPrüfen(wahl->lineEdit(), ZerreißtDieDatei("fehlt alles"));
    Einsetzen(wahl, "a,b");
    EXPECT_TRUE(IstMarkiert(wahl->lineEdit()));
    EXPECT_EQ(wahl->toolTip(), "Ein Komma zerreißt die Datei: beim nächsten Start fehlt alles.");
    EXPECT_EQ(wahl->accessibleDescription(), wahl->toolTip());
    Einsetzen(wahl, "a");
    EXPECT_EQ(wahl->toolTip(), "");
    EXPECT_EQ(wahl->accessibleDescription(), "");
}

TEST_F(FeldmarkeTest, RahmenUndZeichenSindRotHellWieDunkel)
{
    for (const bool dunkel : {false, true}) {
        SCOPED_TRACE(dunkel);
        if (dunkel)
            Dunkel();
        Einsetzen(feld, "1.1.2027");
        const QImage ohne = feld->grab().toImage();
        Einsetzen(feld, "1.1.2027x");
        const QColor rot = Rahmen();
        EXPECT_GT(rot.red(), rot.green() + 80);
        EXPECT_GT(rot.red(), rot.blue() + 80);
        const QColor grund = feld->palette().color(QPalette::Base);
        EXPECT_GT(std::abs(rot.lightness() - grund.lightness()), 80); // stands out against it
        EXPECT_NE(feld->grab().toImage(), ohne);
        // The sign stands between the text and the button of the calendar.
        const QImage bild = feld->grab().toImage();
        int punkte = 0;
        for (int x = feld->width() / 2; x < feld->width() - 6; ++x)
            for (int y = 5; y < feld->height() - 5; ++y)
                punkte += bild.pixelColor(x, y) == rot;
        EXPECT_GT(punkte, 50);
        Einsetzen(feld, "1.1.2027");
        EXPECT_NE(Rahmen(), rot);
    }
}

TEST_F(FeldmarkeTest, DerFokusBleibtSichtbar)
{
    Einsetzen(feld, "x");
    feld->deselect();
    feld->setCursorPosition(0);
    const auto rand = [this] { // all that lies around the red frame
        return feld->grab().toImage().copy(0, 0, feld->width(), 2);
    };
    const QImage mit = rand();
    FokusAuf(anderes);
    EXPECT_NE(rand(), mit);
}

} // namespace
} // namespace altardienst
