// The spin button: down and up, by mouse and by key.
#include "controls/SpinButton.h"

#include "Fensterstand.h"

#include <QToolButton>
#include <QVBoxLayout>

namespace altardienst {
namespace {

class SpinButtonTest : public Fensterstand {
  protected:
    SpinButtonTest()
    {
        auto *spalte = new QVBoxLayout(&fenster);
        spalte->addWidget(feld);
        spalte->addWidget(spin);
        spin->BeiAb([this] { ereignisse += "ab "; });
        spin->BeiAuf([this] { ereignisse += "auf "; });
        Zeigen(&fenster);
        FokusAuf(feld);
    }

    Text ereignisse; // outlives the window, which may still lose its focus
    QWidget fenster;
    QLineEdit *feld = Textfeld("Feld");
    SpinButton *spin = new SpinButton("DPM", "Datensatz wechseln");
};

TEST_F(SpinButtonTest, JederClickIstEinEreignis)
{
    Klick(Finden(spin, "ab"));
    Klick(Finden(spin, "auf"));
    Klick(Finden(spin, "auf"));
    EXPECT_EQ(ereignisse, "ab auf auf ");
}

TEST_F(SpinButtonTest, PfeiltastenWirkenMitDemFokus)
{
    QTest::keyClick(feld, Qt::Key_Down);
    EXPECT_EQ(ereignisse, "");
    FokusAuf(spin);
    for (auto taste : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Left, Qt::Key_Space, Qt::Key_Return})
        QTest::keyClick(spin, taste);
    EXPECT_EQ(ereignisse, "ab auf ");
}

TEST_F(SpinButtonTest, EinGrünerRahmenZeigtDenFokus)
{
    const auto ecke = [this] { return spin->grab().toImage().pixelColor(0, 0); };
    EXPECT_NE(ecke(), QColor(0x00, 0x80, 0x00));
    FokusAuf(spin);
    EXPECT_EQ(ecke(), QColor(0x00, 0x80, 0x00));
    FokusAuf(feld);
    EXPECT_NE(ecke(), QColor(0x00, 0x80, 0x00));
}

TEST_F(SpinButtonTest, FesthaltenWiederholt)
{
    auto *auf = Finden<QToolButton>(spin, "auf");
    auf->setAutoRepeatDelay(1);
    auf->setAutoRepeatInterval(1);
    QTest::mousePress(auf, Qt::LeftButton);
    EXPECT_TRUE(Warten([&] { return ereignisse.starts_with("auf auf auf "); }));
    QTest::mouseRelease(auf, Qt::LeftButton);
    EXPECT_EQ(ereignisse.find("ab"), Text::npos);
}

TEST_F(SpinButtonTest, NimmtDenFokusBevorSeinEreignisLäuft)
{
    BeiFokusVerlust(feld, [this] { ereignisse += "verlassen "; });
    Klick(Finden(spin, "ab"));
    EXPECT_EQ(ereignisse, "verlassen ab ");
    EXPECT_TRUE(spin->hasFocus());
}

TEST_F(SpinButtonTest, IstEinHaltFürTab)
{
    EXPECT_EQ(Tabfolge(&fenster), (std::vector<Text>{"Feld"}));
    EXPECT_EQ(spin->accessibleName(), "Datensatz wechseln");
    EXPECT_FALSE(Finden(spin, "ab")->accessibleName().isEmpty());
    EXPECT_FALSE(Finden(spin, "auf")->accessibleName().isEmpty());
}

TEST_F(SpinButtonTest, ZeigtSeinenFokus)
{
    const QImage ohne = spin->grab().toImage();
    FokusAuf(spin);
    EXPECT_NE(spin->grab().toImage(), ohne);
}

TEST_F(SpinButtonTest, OhneHandlerGeschiehtNichts)
{
    SpinButton leer("leer", "leer");
    Klick(Finden(&leer, "ab"));
    Klick(Finden(&leer, "auf"));
}

TEST_F(SpinButtonTest, DiePfeiltastenWirkenAuchInIhremFeld)
{
    PfeiltastenVerbinden(feld, spin);
    for (const auto taste : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Down, Qt::Key_Left})
        QTest::keyClick(feld, taste);
    EXPECT_EQ(ereignisse, "auf ab ab ");
    EXPECT_TRUE(feld->hasFocus());
    for (const auto mit : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier})
        QTest::keyClick(feld, Qt::Key_Up, mit);
    EXPECT_EQ(ereignisse, "auf ab ab ");
    feld->setReadOnly(true);
    QTest::keyClick(feld, Qt::Key_Up);
    EXPECT_EQ(ereignisse, "auf ab ab ");
}

TEST_F(SpinButtonTest, MitEinerGehaltenenTasteGehenSieZumNächsten)
{
    PfeiltastenVerbinden(feld, spin, Pfeilstufen[1]);
    PfeiltastenVerbinden(feld, Pfeilstufen[2],
                         [this](int richtung) { ereignisse += richtung > 0 ? "+ " : "- "; });
    QTest::keyClick(feld, Qt::Key_Up);
    EXPECT_EQ(ereignisse, "");
    QTest::keyClick(feld, Qt::Key_Up, Qt::ShiftModifier);
    QTest::keyClick(feld, Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(ereignisse, "auf - ");
}

TEST_F(SpinButtonTest, EinKlickGibtIhmDenFokusTabNicht)
{
    EXPECT_EQ(spin->focusPolicy(), Qt::ClickFocus);
    Klick(Finden(spin, "auf"));
    EXPECT_TRUE(spin->hasFocus());
}

TEST_F(SpinButtonTest, DerPfeilNachObenStehtOben)
{
    EXPECT_LT(Finden(spin, "auf")->y(), Finden(spin, "ab")->y());
    EXPECT_LE(spin->height(), feld->height() + 2);
    EXPECT_LE(spin->width(), 24);
}

} // namespace
} // namespace altardienst
