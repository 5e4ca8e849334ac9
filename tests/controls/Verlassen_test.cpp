// Leaving a box: what the user does counts; what a message or a failed save does to the focus does
// not.
#include "controls/Verlassen.h"

#include "Fensterstand.h"
#include "controls/LesenOderFokus.h"
#include "controls/Textwahl.h"
#include "core/Umwandlung.h"

#include <QVBoxLayout>

namespace altardienst {
namespace {

/// A window with a text box, a combo and a button; each time one is left is recorded.
class VerlassenTest : public Fensterstand {
  protected:
    VerlassenTest()
    {
        auto *spalte = new QVBoxLayout(&fenster);
        for (QWidget *control : std::initializer_list<QWidget *>{feld, wahl, knopf})
            spalte->addWidget(control);
        BeiFokusVerlust(feld, [this] { Verlassen("Feld"); });
        BeiVerlassen(wahl, [this] { Verlassen("Wahl"); });
        Zeigen(&fenster);
    }

    void Verlassen(const Text &was)
    {
        verlassen.push_back(was);
        if (was == meldet)
            Meldungen.Zeigen(was);
    }

    std::vector<Text> verlassen; // outlives the window, which may still lose its focus
    Text meldet;                 // the box whose rule shows a message
    QWidget fenster;
    QLineEdit *feld = Textfeld("Feld");
    QComboBox *wahl = Textwahl("Wahl", "Wahl");
    QPushButton *knopf = Knopf("Knopf", "Knopf");
};

using Liste = std::vector<Text>;

TEST_F(VerlassenTest, DieMeldungEinerBoxVerläßtNichtDieNächste)
{
    MeldungenBestätigen();
    FokusAuf(knopf);
    for (const auto &[von, nach] : {std::pair<QWidget *, QWidget *>{feld, wahl}, {wahl, feld}}) {
        verlassen.clear();
        GezeigteMeldungen.clear();
        meldet = von->objectName().toStdString();
        FokusAuf(von);
        nach->setFocus(Qt::TabFocusReason);
        EXPECT_EQ(verlassen, Liste{meldet});
        EXPECT_EQ(GezeigteMeldungen, Liste{meldet});
        EXPECT_TRUE(nach->hasFocus()) << "again, after it";
        meldet.clear();
        FokusAuf(knopf);
        EXPECT_EQ(verlassen.size(), 2U) << "left by the user";
        EXPECT_EQ(verlassen.back(), nach->objectName().toStdString());
    }
}

TEST_F(VerlassenTest, EineMeldungDieAnderswoHerkommtVerläßtKeineBox)
{
    MeldungenBestätigen();
    FokusAuf(feld);
    Meldungen.Zeigen("Fertig");
    EXPECT_EQ(verlassen, Liste{});
    EXPECT_TRUE(feld->hasFocus());
    Beantworten([](QMessageBox *box) {
        EXPECT_TRUE(QTest::qWaitForWindowActive(box));
        box->accept();
    });
    Meldungen.Fragen("Wirklich?", "Frage");
    EXPECT_EQ(verlassen, Liste{});
    Zeigen(&fenster);
    FokusAuf(knopf);
    EXPECT_EQ(verlassen, Liste{"Feld"});
}

TEST_F(VerlassenTest, EinGescheitertesSpeichernVerläßtNichtWasDenFokusHatte)
{
    Einsetzen(feld, "x");
    FokusAuf(wahl);
    verlassen.clear();
    EXPECT_EQ(NummerDesFehlers([this] { LesenOderFokus(feld, Int16Lesen); }), 13);
    EXPECT_TRUE(feld->hasFocus());
    EXPECT_EQ(verlassen, Liste{});
    FokusAuf(wahl);
    FokusAuf(knopf);
    EXPECT_EQ(verlassen, (Liste{"Feld", "Wahl"})) << "as always";
}

TEST_F(VerlassenTest, MehrereGründeZusammenGeltenBisZumLetzten)
{
    FokusAuf(feld);
    {
        const OhneVerlassen außen;
        {
            const OhneVerlassen innen;
        }
        FokusAuf(knopf);
        EXPECT_EQ(verlassen, Liste{});
    }
    FokusAuf(feld);
    FokusAuf(knopf);
    EXPECT_EQ(verlassen, Liste{"Feld"});
}

} // namespace
} // namespace altardienst
