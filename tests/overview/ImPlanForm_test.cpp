// "Im Plan zeigen": from a record to its places in the plan.
#include "overview/Planstand.h"

#include "people/HelferForm.h"
#include "people/ImPlan.h"
#include "people/MeßdienerForm.h"

#include <QApplication>

namespace altardienst {
namespace {

using ImPlanFormTest = Planstand;

TEST_F(ImPlanFormTest, FührtAusDemDatensatzInDenPlan)
{
    Öffnen();
    Meßdiener.Cursor = 2;
    MenüWählen("mnuMeßdiener");
    QPointer<QWidget> form = Fenster("Meßdiener");
    Klick(Finden(form, "ImPlan"));
    EXPECT_TRUE(Warten([&] { return !form; }));
    EXPECT_TRUE(haupt->isEnabled());
    plan = haupt->Plan;
    ASSERT_TRUE(plan && plan->isVisible());
    EXPECT_EQ(plan->Tafel->currentIndex(), Zelle(0, Plätze + 1));
    EXPECT_TRUE(Zeigt(plan->Person).starts_with("Cem Cohn: 2 Dienste")) << Zeigt(plan->Person);
    EXPECT_TRUE(Finden<QAction>(haupt, "mnuPlanAnzeigen")->isChecked());
}

TEST_F(ImPlanFormTest, WerNichtDientIstTrotzdemGenannt)
{
    Messe.DienerNach[1][2] = "Anders";
    PlanÖffnen();
    Meßdiener.Cursor = 3;
    MenüWählen("mnuMeßdiener");
    Klick(Finden(Fenster("Meßdiener"), "ImPlan"));
    EXPECT_EQ(Zeigt(plan->Person), "Doris Dorn: kein Dienst in diesem Plan");
    EXPECT_EQ(Modell()->Markierter(), -1);
}

TEST_F(ImPlanFormTest, EinHelferFindetSeinenPlatz)
{
    PlanÖffnen();
    Helfer.Cursor = 0;
    MenüWählen("mnuHelfer");
    Klick(Finden(Fenster("Helfer"), "ImPlan"));
    EXPECT_EQ(plan->Tafel->currentIndex(), Zelle(1, Plätze + 2));
}

TEST_F(ImPlanFormTest, WasGetipptIstWirdVorherÜbernommen)
{
    PlanÖffnen();
    Meßdiener.Cursor = 0;
    MenüWählen("mnuMeßdiener");
    auto *form = static_cast<MeßdienerForm *>(Fenster("Meßdiener"));
    ASSERT_TRUE(Warten([&] { return QApplication::activeWindow() == form; }));
    Tippen(form->Angaben.Person.Nachname, "Zorn");
    Klick(Finden(form, "ImPlan"));
    EXPECT_EQ(Meßdiener.Nachname[0], "Zorn");
    EXPECT_EQ(Messe.DienerNach[0][1], "Zorn") << "a rename goes through the plan";
    EXPECT_TRUE(Zeigt(plan->Person).starts_with("Anna Zorn: 2 Dienste")) << Zeigt(plan->Person);
}

TEST_F(ImPlanFormTest, LäßtSichDasFensterNichtVerlassenSoBleibtEs)
{
    PlanÖffnen();
    MenüWählen("mnuMeßdiener");
    auto *form = static_cast<MeßdienerForm *>(Fenster("Meßdiener"));
    Einsetzen(form->Angaben.Groß.Feld, "viel");
    Klick(Finden(form, "ImPlan"));
    EXPECT_TRUE(form->isVisible());
    EXPECT_FALSE(haupt->isEnabled());
}

TEST_F(ImPlanFormTest, OhneHauptfensterGibtEsDenKnopfNicht)
{
    MeßdienerForm diener;
    HelferForm helfer;
    for (QWidget *form : {static_cast<QWidget *>(&diener), static_cast<QWidget *>(&helfer)}) {
        form->show();
        EXPECT_FALSE(Finden(form, "ImPlan")->isVisible());
        form->hide();
    }
    Öffnen();
    delete haupt;
    EXPECT_FALSE(ImPlanZeigen);
}

TEST_F(ImPlanFormTest, DieFensterPassenMitDemKnopfAufDenKleinstenBildschirm)
{
    Öffnen();
    MeßdienerForm diener;
    HelferForm helfer;
    for (QWidget *form : {static_cast<QWidget *>(&diener), static_cast<QWidget *>(&helfer)}) {
        Zeigen(form);
        form->resize(KleinsterBildschirm);
        QCoreApplication::processEvents();
        EXPECT_LE(form->width(), KleinsterBildschirm.width());
        for (const auto *knopf : form->findChildren<QPushButton *>())
            EXPECT_TRUE(!knopf->isVisible() || knopf->text().size() == 1 ||
                        knopf->width() >= knopf->minimumSizeHint().width())
                << knopf->text().toStdString();
        form->hide();
    }
}

} // namespace
} // namespace altardienst
