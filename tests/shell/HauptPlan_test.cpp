// The right side of the main window: the picture, or the plan.
#include "overview/Planstand.h"

#include "application/Mitteilung.h"
#include "core/Allgemein.h"
#include "planning/MessenlisteForm.h"

#include <QAbstractButton>
#include <QApplication>

namespace altardienst {
namespace {

using Liste = std::vector<Text>;

class HauptPlanTest : public Planstand {
  protected:
    Liste Sichtbare() const
    {
        Liste namen;
        for (const QWidget *control : haupt->findChildren<QWidget *>())
            if (control->isVisible() && !control->objectName().isEmpty())
                namen.push_back(control->objectName().toStdString());
        return namen;
    }

    Text Gezählt() const
    {
        for (const auto &[abschnitt, text] : Mitteilungen().Dauernd)
            if (abschnitt == "Befunde")
                return text;
        return "";
    }
};

TEST_F(HauptPlanTest, ZuerstStehtDasBildDaUndVomPlanIstNichtsGemacht)
{
    Öffnen();
    EXPECT_TRUE(haupt->Image1->isVisible());
    EXPECT_FALSE(haupt->Plan);
    EXPECT_FALSE(haupt->findChild<QWidget *>("Planansicht"));
    EXPECT_FALSE(Finden<QAction>(haupt, "mnuPlanAnzeigen")->isChecked());
    EXPECT_EQ(Gezählt(), "");
}

TEST_F(HauptPlanTest, F5ZeigtDenPlanUndWiederDasBild)
{
    Öffnen();
    haupt->Helfend->setFocus();
    const Liste zuvor = Sichtbare();
    QTest::keyClick(haupt, Qt::Key_F5);
    EXPECT_FALSE(haupt->Image1->isVisible());
    EXPECT_TRUE(haupt->Plan->isVisible());
    EXPECT_TRUE(haupt->Plan->Tafel->hasFocus());
    EXPECT_TRUE(Finden<QAction>(haupt, "mnuPlanAnzeigen")->isChecked());
    QTest::keyClick(haupt, Qt::Key_F5);
    EXPECT_EQ(Sichtbare(), zuvor) << "as it was to the last control";
    EXPECT_TRUE(haupt->Messenorgani->hasFocus());
}

TEST_F(HauptPlanTest, DieWahlGiltAuchBeimNächstenMal)
{
    Öffnen();
    MenüWählen("mnuPlanAnzeigen");
    delete haupt;
    Öffnen();
    EXPECT_TRUE(haupt->Plan && haupt->Plan->isVisible());
    MenüWählen("mnuPlanAnzeigen");
    delete haupt;
    Öffnen();
    EXPECT_FALSE(haupt->Plan);
}

TEST_F(HauptPlanTest, SolangeDerPlanDastehtZähltDieStatuszeileDieBefunde)
{
    PlanÖffnen();
    EXPECT_EQ(Gezählt(), Zeigt(plan->Liste->Zahlen));
    EXPECT_NE(Gezählt(), "");
    MenüWählen("mnuPlanAnzeigen");
    EXPECT_EQ(Gezählt(), "");
}

TEST_F(HauptPlanTest, DieZifferntastenDrückenDieSchritteAuchAusDemPlan)
{
    PlanÖffnen();
    for (QWidget *control : QWidgetList{plan->Tafel, plan->Liste->Befunde, plan->NurAuffälliges}) {
        GezeigteMeldungen.clear();
        FokusAuf(control);
        QTest::sendKeyEvent(QTest::Click, control, Qt::Key_5, "5", Qt::NoModifier,
                            -1); // stands in the row of digits
        EXPECT_EQ(GezeigteMeldungen, Liste{"Fertig mit Helfer Messen zuordnen"})
            << control->objectName().toStdString();
    }
}

TEST_F(HauptPlanTest, EinSchrittZeigtSichSofort)
{
    Messe.KantorZahl[2] = 1;
    PlanÖffnen();
    EXPECT_EQ(Steht(2, Plätze + 3), "");
    Klick(haupt->Helfend);
    EXPECT_EQ(Steht(2, Plätze + 3), "Kai K.");
}

TEST_F(HauptPlanTest, EinLadenZeigtSichSofort)
{
    AufFestplatteSpeichern();
    Stellen(0, 1, 3);
    PlanÖffnen();
    EXPECT_EQ(Steht(0, Plätze), "Doris D.");
    MenüWählen("mnuDatenladen");
    EXPECT_EQ(Steht(0, Plätze), "Anna Ad.");
}

TEST_F(HauptPlanTest, WasEinFensterAnSeinerStelleÄndertStehtDaSobaldEsWiederkommt)
{
    PlanÖffnen();
    Klick(haupt->AnzMesse);
    auto *liste = static_cast<MessenlisteForm *>(Fenster("Messenliste"));
    ASSERT_TRUE(Warten([&] { return QApplication::activeWindow() == liste; }));
    Tippen(liste->Slots.vor[0], "Zoe");
    liste->close();
    EXPECT_EQ(Steht(0, Plätze), "Zoe A.");
}

TEST_F(HauptPlanTest, WasDieMessenlisteDanebenSchreibtZeigtSichSofort)
{
    PlanÖffnen();
    DialogDanebenÖffnen<MessenlisteForm>();
    auto *liste = static_cast<MessenlisteForm *>(Fenster("Messenliste"));
    ASSERT_TRUE(Warten([&] { return QApplication::activeWindow() == liste; }));
    Tippen(liste->Slots.vor[0], "Zoe");
    EXPECT_EQ(Steht(0, Plätze), "Anna Ad.");
    Klick(liste->Wahl->Plus);
    EXPECT_TRUE(Warten([&] { return Steht(0, Plätze) == "Zoe A."; }));
}

TEST_F(HauptPlanTest, PasstAuchMitDemPlanAufDenKleinstenBildschirm)
{
    PlanÖffnen();
    haupt->showNormal();
    haupt->resize(KleinsterBildschirm);
    QCoreApplication::processEvents();
    EXPECT_LE(haupt->width(), KleinsterBildschirm.width());
    EXPECT_LE(haupt->height(), KleinsterBildschirm.height());
    for (const auto *knopf : haupt->findChildren<QAbstractButton *>())
        if (knopf->isVisible()) {
            const QRect ort(knopf->mapTo(haupt, QPoint()), knopf->size());
            EXPECT_TRUE(haupt->rect().contains(ort)) << knopf->objectName().toStdString();
            EXPECT_GE(knopf->width(), knopf->minimumSizeHint().width())
                << knopf->objectName().toStdString();
        }
    EXPECT_GT(plan->Tafel->viewport()->height(), 3 * plan->Tafel->rowHeight(0));
}

TEST_F(HauptPlanTest, AllesImPlanIstMitTabErreichbarUndHatEinenNamen)
{
    PlanÖffnen();
    plan->WerKannHier->setEnabled(true);
    haupt->Messenorgani->setFocus();
    const Liste folge = Tabfolge(haupt);
    for (const char *name : {"WerKannHierKnopf", "NurAuffälliges", "Plan", "BefundeNachPerson",
                             "Prüflistendruck", "Befunde"})
        EXPECT_TRUE(std::ranges::count(folge, name) == 1) << name;
    EXPECT_EQ(Stumme(haupt), Liste{});
}

} // namespace
} // namespace altardienst
