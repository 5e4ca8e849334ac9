// The record mover: six ways of moving, and the number box.
#include "controls/Datensatzwahl.h"

#include "Fensterstand.h"

#include <QVBoxLayout>

namespace altardienst {
namespace {

class DatensatzwahlTest : public Fensterstand {
  protected:
    DatensatzwahlTest()
    {
        auto *spalte = new QVBoxLayout(&fenster);
        spalte->addWidget(anderes);
        spalte->addWidget(wahl);
        wahl->BeiSchritt([this](int richtung) { ereignisse += richtung > 0 ? "+" : "-"; });
        wahl->BeiWechsel([this] { ereignisse += "[" + Zeigt(wahl->Nummer) + "]"; });
        Zeigen(&fenster);
        FokusAuf(anderes);
    }

    QWidget fenster;
    QLineEdit *anderes = Textfeld("anderes");
    Datensatzwahl *wahl = new Datensatzwahl({"Nummer", "PLUS", "MINUS", "DPM"});
    Text ereignisse;
};

TEST_F(DatensatzwahlTest, KnöpfeUndSpinBewegen)
{
    Klick(Finden<QPushButton>(&fenster, "PLUS"));
    Klick(Finden<QPushButton>(&fenster, "MINUS"));
    Klick(Finden(Finden<SpinButton>(&fenster, "DPM"), "auf"));
    Klick(Finden(Finden<SpinButton>(&fenster, "DPM"), "ab"));
    EXPECT_EQ(ereignisse, "+-+-");
}

TEST_F(DatensatzwahlTest, BildAufUndBildAbBewegenImGanzenFenster)
{
    for (QWidget *control : std::initializer_list<QWidget *>{anderes, wahl->Nummer, wahl->Plus}) {
        ereignisse.clear();
        FokusAuf(control);
        QTest::keyClick(control, Qt::Key_PageUp);
        QTest::keyClick(control, Qt::Key_PageDown);
        EXPECT_EQ(ereignisse, "+-") << control->objectName().toStdString();
    }
}

TEST_F(DatensatzwahlTest, JedeÄnderungDerNummerIstEinWechsel)
{
    Tippen(wahl->Nummer, "12");
    Einsetzen(wahl->Nummer, "12");
    Einsetzen(wahl->Nummer, "7");
    EXPECT_EQ(ereignisse, "[1][12][7]");
}

TEST_F(DatensatzwahlTest, DieTastenDerBildrichtungÄndernKeinenText)
{
    Einsetzen(anderes, "5");
    FokusAuf(anderes);
    QTest::keyClick(anderes, Qt::Key_PageUp);
    EXPECT_EQ(Zeigt(anderes), "5");
}

TEST_F(DatensatzwahlTest, TabFolgtDemAugeUndJedesControlSpricht)
{
    EXPECT_EQ(Tabfolge(&fenster), (std::vector<Text>{"anderes", "Nummer"}));
    anderes->setAccessibleName("x");
    EXPECT_EQ(Stumme(&fenster), std::vector<Text>{});
}

} // namespace
} // namespace altardienst
