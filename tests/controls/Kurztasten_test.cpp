// Keys that press buttons: what they do like a click, and what the tooltip says of them.
#include "controls/Kurztasten.h"

#include "Fensterstand.h"
#include "controls/LesenOderFokus.h"
#include "core/Umwandlung.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QVBoxLayout>

namespace altardienst {
namespace {

class KurztastenTest : public Fensterstand {
  protected:
    KurztastenTest()
    {
        auto *spalte = new QVBoxLayout(&fenster);
        for (QWidget *control : std::initializer_list<QWidget *>{feld, ende, abbrechen})
            spalte->addWidget(control);
        QObject::connect(ende, &QPushButton::clicked, ende, [this] { ereignisse += "Ende "; });
        QObject::connect(abbrechen, &QPushButton::clicked, abbrechen,
                         [this] { ereignisse += "Abbrechen "; });
        BeiFokusVerlust(feld, [this] {
            ereignisse += "verlassen ";
            beimVerlassen();
        });
        Zeigen(&fenster);
        FokusAuf(feld);
    }

    void Drücken(Qt::Key taste, Qt::KeyboardModifiers dazu = Qt::ControlModifier)
    {
        QTest::keyClick(fenster.windowHandle(), taste, dazu);
    }

    QWidget fenster;
    QLineEdit *feld = Textfeld("feld");
    QPushButton *ende = Knopf("Ende", "Ende");
    QPushButton *abbrechen = Knopf("CancelButton", "Abbrechen");
    std::function<void()> beimVerlassen = [] {};
    Text ereignisse;
};

TEST_F(KurztastenTest, WieEinKlickVerläßtDieTasteZuerstDasFeld)
{
    Drücken(Qt::Key_Return);
    EXPECT_EQ(ereignisse, "verlassen Ende ");
    EXPECT_TRUE(ende->hasFocus());
    Drücken(Qt::Key_Enter);
    EXPECT_EQ(ereignisse, "verlassen Ende Ende ") << "the keypad has that key too";
}

TEST_F(KurztastenTest, EscapeVerwirftOhneDasFeldZuPrüfen)
{
    Drücken(Qt::Key_Escape, Qt::NoModifier);
    EXPECT_EQ(ereignisse, "Abbrechen ");
}

/// A desktop hands the keys over a list that hangs open to the shortcuts of the window below, too.
TEST_F(KurztastenTest, EscapeSchließtZuerstWasAufgeklapptIst)
{
    QComboBox wahl(&fenster);
    wahl.addItem("Eintrag");
    wahl.show();
    wahl.showPopup();
    ASSERT_TRUE(QApplication::activePopupWidget());
    QTest::keyClick(wahl.view(), Qt::Key_Escape);
    EXPECT_FALSE(QApplication::activePopupWidget());
    EXPECT_EQ(ereignisse.find("Abbrechen"), Text::npos);
    Drücken(Qt::Key_Escape, Qt::NoModifier);
    EXPECT_NE(ereignisse.find("Abbrechen"), Text::npos);
}

TEST_F(KurztastenTest, EineMeldungBeimVerlassenHältDenDruckAuf)
{
    MeldungenBestätigen();
    beimVerlassen = [] { Meldungen.Zeigen("falsch"); };
    Drücken(Qt::Key_Return);
    EXPECT_EQ(ereignisse, "verlassen ");
    EXPECT_EQ(GezeigteMeldungen.size(), 1U);
    beimVerlassen = [] {};
    Drücken(Qt::Key_Return);
    EXPECT_EQ(ereignisse, "verlassen Ende ");
}

TEST_F(KurztastenTest, EinFeldDasDenFokusZurückholtHältDenDruckAuf)
{
    beimVerlassen = [this] { NummerDesFehlers([this] { LesenOderFokus(feld, DatumLesen); }); };
    feld->setText("nein");
    Drücken(Qt::Key_Return);
    EXPECT_EQ(ereignisse, "verlassen ");
    EXPECT_TRUE(feld->hasFocus());
}

TEST_F(KurztastenTest, EinGesperrterOderVerborgenerKnopfAntwortetNicht)
{
    ende->setEnabled(false);
    Drücken(Qt::Key_Return);
    ende->setEnabled(true);
    ende->hide();
    Drücken(Qt::Key_Return);
    EXPECT_EQ(ereignisse, "");
}

TEST_F(KurztastenTest, DerTipNenntDieTaste)
{
    EXPECT_EQ(ende->toolTip(), "Strg+Eingabe");
    EXPECT_EQ(abbrechen->toolTip(), "Esc");
    ende->setToolTip("schreibt und schließt");
    EXPECT_EQ(ende->toolTip(), QString::fromUtf8("schreibt und schließt (Strg+Eingabe)"));
    ende->setToolTip("");
    EXPECT_EQ(ende->toolTip(), "Strg+Eingabe");
    ende->setToolTip("nimmt an\n" + ende->toolTip());
    EXPECT_EQ(ende->toolTip(), "nimmt an (Strg+Eingabe)");
    ende->setToolTip("");
    EXPECT_EQ(ende->toolTip(), "Strg+Eingabe");
    EXPECT_EQ(Knopf("x", "Ohne Taste")->toolTip(), "");
}

} // namespace
} // namespace altardienst
