// How one moves in the grid of the plan, how it is copied and enlarged, and where it stands after a
// change.
#include "overview/Planstand.h"

#include "application/Gemerktes.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>

namespace altardienst {
namespace {

class PlantafelFormTest : public Planstand {
  protected:
    static Text Zwischenablage() { return QApplication::clipboard()->text().toStdString(); }
};

TEST_F(PlantafelFormTest, DiePfeiltastenUndPos1UndEndeFührenDurchDasRaster)
{
    PlanÖffnen();
    Anklicken(Zelle(0, Plätze));
    Drücken(Qt::Key_Right);
    EXPECT_EQ(plan->Tafel->currentIndex(), Zelle(0, Plätze + 1));
    Drücken(Qt::Key_Down);
    EXPECT_EQ(plan->Tafel->currentIndex(), Zelle(1, Plätze + 1));
    Drücken(Qt::Key_End);
    EXPECT_EQ(plan->Tafel->currentIndex(), Zelle(1, Plätze + 2));
    Drücken(Qt::Key_Home);
    EXPECT_EQ(plan->Tafel->currentIndex(), Zelle(1, 0));
    Drücken(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(plan->Tafel->currentIndex(), Zelle(3, Plätze + 2));
}

TEST_F(PlantafelFormTest, DieVorderenSpaltenBleibenBeimRollenStehen)
{
    Messe.Dienerzahl[0] = 20;
    PlanÖffnen();
    haupt->showNormal();
    haupt->resize(1024, 720);
    QCoreApplication::processEvents();
    const int links = plan->Tafel->Vorn->visualRect(Zelle(0, Planmodell::Art)).left();
    Anklicken(Zelle(0, Plätze));
    Drücken(Qt::Key_End);
    EXPECT_GT(plan->Tafel->horizontalScrollBar()->value(), 0);
    EXPECT_EQ(plan->Tafel->Vorn->visualRect(Zelle(0, Planmodell::Art)).left(), links);
    EXPECT_TRUE(plan->Tafel->Vorn->isVisible());
    for (int spalte = Plätze + 18; spalte >= Plätze; --spalte) {
        Drücken(Qt::Key_Left);
        EXPECT_GE(plan->Tafel->visualRect(plan->Tafel->currentIndex()).left(),
                  plan->Tafel->Vorn->width())
            << "the cell is in sight, column " << spalte;
    }
}

TEST_F(PlantafelFormTest, EineTabelleLäßtSichKopieren)
{
    PlanÖffnen();
    Anklicken(Zelle(0, Planmodell::Datumspalte));
    plan->Tafel->selectionModel()->select(
        QItemSelection(Zelle(0, Planmodell::Datumspalte), Zelle(1, Plätze + 1)),
        QItemSelectionModel::ClearAndSelect);
    Drücken(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(Zwischenablage(), "28.11.2026\t10:00\tMesse\tAnna Adler\tCem Cohn\n"
                                "29.11.2026\t10:00\tHochamt\tAnna Arndt (Leuchter)\tDoris Dorn");
}

TEST_F(PlantafelFormTest, WasDazwischenNichtGewähltIstBleibtBeimKopierenLeer)
{
    PlanÖffnen();
    plan->Tafel->selectionModel()->select(Zelle(0, Plätze), QItemSelectionModel::ClearAndSelect);
    plan->Tafel->selectionModel()->select(Zelle(1, Plätze + 1), QItemSelectionModel::Select);
    plan->Tafel->Kopieren();
    EXPECT_EQ(Zwischenablage(), "Anna Adler\t\n\tDoris Dorn");
}

TEST_F(PlantafelFormTest, StrgMitPlusMinusNullUndRadVergrößert)
{
    PlanÖffnen();
    const int höhe = plan->Tafel->rowHeight(0);
    const int breite = plan->Tafel->columnWidth(Plätze);
    Drücken(Qt::Key_Plus, Qt::ControlModifier);
    Drücken(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(plan->Tafel->Zoom(), 120);
    EXPECT_GT(plan->Tafel->rowHeight(0), höhe);
    EXPECT_GT(plan->Tafel->columnWidth(Plätze), breite);
    EXPECT_EQ(plan->Tafel->Vorn->rowHeight(0), plan->Tafel->rowHeight(0));
    Drücken(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(plan->Tafel->Zoom(), 110);
    Drücken(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(plan->Tafel->rowHeight(0), höhe);
    for (QWidget *fläche : {plan->Tafel->viewport(), plan->Tafel->Vorn->viewport()}) {
        QWheelEvent rad(QPointF(5, 5), fläche->mapToGlobal(QPointF(5, 5)), {}, {0, 120}, {},
                        Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(fläche, &rad);
    }
    EXPECT_EQ(plan->Tafel->Zoom(), 120);
}

TEST_F(PlantafelFormTest, DieVergrößerungUndDieSpaltenMerktSichDasProgramm)
{
    PlanÖffnen();
    plan->Tafel->Zoomen(150);
    plan->Tafel->horizontalHeader()->resizeSection(Plätze, 300);
    plan->Tafel->Vorn->horizontalHeader()->resizeSection(Planmodell::Art, 180);
    EXPECT_EQ(plan->Tafel->columnWidth(Planmodell::Art), 180) << "both views are one grid";
    Wiederkommen();
    EXPECT_EQ(plan->Tafel->Zoom(), 150);
    EXPECT_EQ(plan->Tafel->columnWidth(Plätze), 300);
    EXPECT_EQ(plan->Tafel->Vorn->columnWidth(Planmodell::Art), 180);
    plan->Tafel->resizeColumnToContents(Plätze); // as a double click on its edge does
    const int passend = plan->Tafel->columnWidth(Plätze);
    EXPECT_LT(passend, 300);
    delete haupt;
    Öffnen();
    EXPECT_EQ(haupt->Plan->Tafel->columnWidth(Plätze), passend);
}

TEST_F(PlantafelFormTest, NachEinerÄnderungStehtDasRasterWoEsStand)
{
    VieleMessen();
    PlanÖffnen();
    plan->Tafel->Wählen(Dienerplatznr(30, 1));
    const int oben = plan->Tafel->verticalScrollBar()->value();
    EXPECT_GT(oben, 0);
    Stellen(30, 1, 3);
    plan->Nachziehen();
    EXPECT_EQ(plan->Tafel->currentIndex(), Zelle(30, Plätze));
    EXPECT_EQ(plan->Tafel->verticalScrollBar()->value(), oben);
}

TEST_F(PlantafelFormTest, AuchWennEineMesseHinzukommtOderGehtBleibtManBeiDerselben)
{
    VieleMessen();
    PlanÖffnen();
    plan->Tafel->Wählen(Dienerplatznr(30, 1));
    const Text oberste = Steht(plan->Tafel->rowAt(0), Planmodell::Datumspalte);
    const Text gewählte = Steht(30, Planmodell::Datumspalte);
    FelderTauschen(Messe.Felder(), 0, Messe.Anzahl - 1);
    --Messe.Anzahl; // the first mass is gone
    for (int i = 0; i + 1 < Messe.Anzahl; ++i)
        FelderTauschen(Messe.Felder(), i, i + 1);
    plan->Nachziehen();
    const QModelIndex jetzt = plan->Tafel->currentIndex();
    EXPECT_EQ(Steht(jetzt.row(), Planmodell::Datumspalte), gewählte);
    EXPECT_EQ(jetzt.column(), Plätze);
    EXPECT_EQ(Steht(plan->Tafel->rowAt(0), Planmodell::Datumspalte), oberste);
}

} // namespace
} // namespace altardienst
