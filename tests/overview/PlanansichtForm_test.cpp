// The plan in one grid: what stands there, how one moves in it, and that it follows every change.
#include "overview/Planstand.h"

#include "application/Gemerktes.h"
#include "overview/WerKannHierForm.h"
#include "planning/MessenlisteForm.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QMenu>
#include <QSignalSpy>

namespace altardienst {
namespace {

using Liste = std::vector<Text>;

class PlanansichtFormTest : public Planstand {
  protected:
    Liste Köpfe() const
    {
        Liste köpfe;
        for (int spalte = 0; spalte < plan->Tafel->model()->columnCount(); ++spalte)
            if (!plan->Tafel->isColumnHidden(spalte))
                köpfe.push_back(plan->Tafel->model()
                                    ->headerData(spalte, Qt::Horizontal)
                                    .toString()
                                    .toStdString());
        return köpfe;
    }

    Liste Zeile(int zeile) const
    {
        Liste texte;
        for (int spalte = 0; spalte < plan->Tafel->model()->columnCount(); ++spalte)
            if (!plan->Tafel->isColumnHidden(spalte))
                texte.push_back(Steht(zeile, spalte));
        return texte;
    }

    static Text Zwischenablage() { return QApplication::clipboard()->text().toStdString(); }

    Planmodell *Modell() const { return static_cast<Planmodell *>(plan->Tafel->model()); }

    /// So many masses that they do not fit into the window.
    static void VieleMessen()
    {
        for (int tag = 7; tag <= 60; ++tag)
            MesseAnlegen(DatumAus({2026, 12, 1}) + tag);
    }

    WerKannHierForm *Gefragt() const
    {
        return static_cast<WerKannHierForm *>(Fenster("WerKannHier"));
    }
};

TEST_F(PlanansichtFormTest, EineZeileJeMesseUndEineSpalteJePlatz)
{
    PlanÖffnen();
    EXPECT_EQ(Köpfe(),
              (Liste{"", "Tag", "Datum", "Zeit", "Art", "Diener 1", "Diener 2", "Lektor 1"}));
    EXPECT_EQ(Zeile(0), (Liste{"", "Sa", "28.11.", "10:00", "Messe", "Anna Ad.", "Cem C.", ""}));
    EXPECT_EQ(Zeile(1), (Liste{"", "So", "29.11.", "10:00", "Hochamt", "Anna Ar. Leuchter",
                               "Doris D.", "Lea L."}));
    EXPECT_EQ(plan->Tafel->model()->rowCount(), 4);
}

TEST_F(PlanansichtFormTest, NurWasEineMesseWünschtHatEineSpalteOderGiltAlsPlatz)
{
    Messe.KollektZahl[2] = 2;
    Messe.Dienerzahl[3] = 4;
    PlanÖffnen();
    EXPECT_EQ(Köpfe(), (Liste{"", "Tag", "Datum", "Zeit", "Art", "Diener 1", "Diener 2", "Diener 3",
                              "Diener 4", "Lektor 1", "Kollektant 1", "Kollektant 2"}));
    EXPECT_TRUE(Modell()->Zelle(3, Plätze + 3).Gewollt);
    EXPECT_FALSE(Modell()->Zelle(0, Plätze + 3).Gewollt);
    EXPECT_FALSE(Modell()->Zelle(0, Plätze + 4).Gewollt);
}

TEST_F(PlanansichtFormTest, WochenStehenZusammenVomWochentagDesPlansAn)
{
    PlanÖffnen();
    const auto anfänge = [&] {
        std::vector<bool> erste;
        for (int zeile = 0; zeile < 4; ++zeile)
            erste.push_back(Modell()->BeginntWoche(zeile));
        return erste;
    };
    EXPECT_EQ(anfänge(), (std::vector{false, false, false, true})) << "from Saturday to Friday";
    Konfig.StartWochentag = 1;
    plan->Nachziehen();
    EXPECT_EQ(anfänge(), (std::vector{false, true, false, true}));
}

TEST_F(PlanansichtFormTest, DerZettelNenntDenGanzenNamenDenDienstUndWasNichtStimmt)
{
    PlanÖffnen();
    EXPECT_EQ(Zelle(1, Plätze).data(Qt::ToolTipRole).toString(), "Anna Arndt – Leuchter");
    const Text offen = Zelle(3, Plätze + 1).data(Qt::ToolTipRole).toString().toStdString();
    ASSERT_FALSE(Modell()->Prüfung().Von(3).empty());
    const Befund &befund = Modell()->Prüfung().Von(3).front();
    EXPECT_EQ(offen, "offen – Allgemein\n" + Satz(GemeinsameTabellen(), befund));
    EXPECT_EQ(Modell()->Zelle(3, Plätze + 1).Zeichen, befund.Grad);
    EXPECT_EQ(Modell()->Gravierendstes(3), Stufe::Verstoß);
    EXPECT_FALSE(Modell()->Zelle(0, Plätze).Zeichen);
}

TEST_F(PlanansichtFormTest, DiePfeiltastenUndPos1UndEndeFührenDurchDasRaster)
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

TEST_F(PlanansichtFormTest, DieVorderenSpaltenBleibenBeimRollenStehen)
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

TEST_F(PlanansichtFormTest, EineTabelleLäßtSichKopieren)
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

TEST_F(PlanansichtFormTest, WasDazwischenNichtGewähltIstBleibtBeimKopierenLeer)
{
    PlanÖffnen();
    plan->Tafel->selectionModel()->select(Zelle(0, Plätze), QItemSelectionModel::ClearAndSelect);
    plan->Tafel->selectionModel()->select(Zelle(1, Plätze + 1), QItemSelectionModel::Select);
    plan->Tafel->Kopieren();
    EXPECT_EQ(Zwischenablage(), "Anna Adler\t\n\tDoris Dorn");
}

TEST_F(PlanansichtFormTest, StrgMitPlusMinusNullUndRadVergrößert)
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

TEST_F(PlanansichtFormTest, DieVergrößerungUndDieSpaltenMerktSichDasProgramm)
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

TEST_F(PlanansichtFormTest, EineÄnderungAnEinemPlatzErneuertNurIhreZeile)
{
    PlanÖffnen();
    const QSignalSpy neu(Modell(), &QAbstractItemModel::modelReset);
    const QSignalSpy geändert(Modell(), &QAbstractItemModel::dataChanged);
    Meßdiener.Anzahl = 4;
    plan->Nachziehen();
    EXPECT_EQ(geändert.count(), 0) << "nothing has changed";
    Stellen(3, 2, 2);
    plan->Nachziehen();
    EXPECT_EQ(Steht(3, Plätze + 1), "Cem C.");
    EXPECT_EQ(neu.count(), 0);
    ASSERT_EQ(geändert.count(), 1);
    EXPECT_EQ(geändert[0][0].toModelIndex().row(), 3);
    EXPECT_EQ(geändert[0][1].toModelIndex().row(), 3);
    EXPECT_FALSE(Modell()->Zelle(3, Plätze + 1).Zeichen) << "the finding is gone";
}

TEST_F(PlanansichtFormTest, EineUmbenennungGehtDurchDenGanzenPlan)
{
    PlanÖffnen();
    for (const int messe : {1, 3})
        Messe.DienerNach[messe][1] = "Zorn";
    Meßdiener.Nachname[1] = "Zorn";
    plan->Nachziehen();
    EXPECT_EQ(Steht(1, Plätze), "Anna Z. Leuchter");
    EXPECT_EQ(Steht(0, Plätze), "Anna A.") << "there is only one Anna A. left";
}

TEST_F(PlanansichtFormTest, EinUnbekannterNameKürztDieAnderenMit)
{
    PlanÖffnen();
    EXPECT_EQ(Steht(0, Plätze + 1), "Cem C.");
    Messe.DienerVor[3][2] = "Cem";
    Messe.DienerNach[3][2] = "Clausen";
    plan->Nachziehen();
    EXPECT_EQ(Steht(3, Plätze + 1), "Cem Cl.");
    EXPECT_EQ(Steht(0, Plätze + 1), "Cem Co.");
}

TEST_F(PlanansichtFormTest, NachEinerÄnderungStehtDasRasterWoEsStand)
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

TEST_F(PlanansichtFormTest, AuchWennEineMesseHinzukommtOderGehtBleibtManBeiDerselben)
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

TEST_F(PlanansichtFormTest, NurAuffälligesBlendetDieÜbrigenMessenAus)
{
    PlanÖffnen();
    Klick(plan->NurAuffälliges);
    Liste übrige;
    for (int zeile = 0; zeile < plan->Tafel->model()->rowCount(); ++zeile) {
        übrige.push_back(Steht(zeile, Planmodell::Datumspalte));
        EXPECT_TRUE(Modell()->Gravierendstes(zeile));
    }
    EXPECT_LT(übrige.size(), 4U);
    EXPECT_EQ(übrige.back(), "06.12.");
    EXPECT_EQ(Modell()->Ort(Zelle(static_cast<int>(übrige.size()) - 1, Plätze)),
              Dienerplatznr(3, 1));
    Klick(plan->NurAuffälliges);
    EXPECT_EQ(plan->Tafel->model()->rowCount(), 4);
}

TEST_F(PlanansichtFormTest, EineAbgewählteRegelHatKeinZeichenZähltNichtUndStehtNichtInDerListe)
{
    PlanÖffnen();
    Stellen(1, 2, 1); // Anna Arndt twice in the Hochamt
    plan->Nachziehen();
    ASSERT_EQ(Modell()->Gravierendstes(1), Stufe::Verstoß);
    QMenu *menü = plan->Regeln->menu();
    const auto regel = [&](const QString &name) {
        const auto einträge = menü->actions();
        return *std::ranges::find_if(einträge, [&](const QAction *eintrag) {
            return eintrag->text().section('\t', 0, 0) == name;
        });
    };
    menü->popup({});
    EXPECT_EQ(regel("Doppelt in der Messe")->text().section('\t', 1), "1");
    QTest::mouseClick(menü, Qt::LeftButton, {},
                      menü->actionGeometry(regel("Doppelt in der Messe")).center());
    EXPECT_TRUE(menü->isVisible()) << "for the next rule";
    menü->close();
    EXPECT_FALSE(Modell()->Gravierendstes(1));
    EXPECT_EQ(Zelle(1, Plätze + 1).data(Qt::ToolTipRole).toString().count('\n'), 0);
    EXPECT_EQ(plan->Liste->Befunde->model()->rowCount(), 1);
    EXPECT_EQ(Zeigt(plan->Liste->Zahlen), "1 Verstoß, ohne Doppelt in der Messe");
    Wiederkommen();
    EXPECT_FALSE(Modell()->Gravierendstes(1)) << "remembered";
    menü = plan->Regeln->menu();
    regel("alle")->trigger();
    EXPECT_EQ(Modell()->Gravierendstes(1), Stufe::Verstoß);
}

TEST_F(PlanansichtFormTest, EinKlickAufEinenNamenMarkiertAllePlätzeDerPerson)
{
    PlanÖffnen();
    Anklicken(Zelle(0, Plätze));
    EXPECT_EQ(Modell()->Markierter(), Modell()->Zelle(2, Plätze).Person);
    EXPECT_NE(Modell()->Markierter(), Modell()->Zelle(1, Plätze).Person) << "another Anna";
    EXPECT_NE(Zeigt(plan->Person).find("Anna Adler"), Text::npos) << Zeigt(plan->Person);
    EXPECT_EQ(Zeigt(plan->Abstände), "28.11. Allgemein · nach 5 Tagen 03.12. Allgemein");
    Anklicken(Zelle(3, Plätze + 1));
    EXPECT_EQ(Modell()->Markierter(), -1);
    EXPECT_EQ(Zeigt(plan->Person), "");
}

TEST_F(PlanansichtFormTest, DieEingabetasteFragtWerHierKann)
{
    PlanÖffnen();
    Anklicken(Zelle(3, Plätze + 1));
    Drücken(Qt::Key_Return);
    EXPECT_NE(Zeigt(Gefragt()->Platzname).find("06.12.2026, 10:00 Uhr, Messe: Diener 2"),
              Text::npos);
    Gefragt()->close();
    Klick(plan->WerKannHier);
    EXPECT_TRUE(IstOffen("WerKannHier"));
    Gefragt()->close();
    for (const QModelIndex &keinPlatz : {Zelle(0, Planmodell::Art), Zelle(0, Plätze + 2)}) {
        Anklicken(keinPlatz);
        Drücken(Qt::Key_Return);
        EXPECT_FALSE(IstOffen("WerKannHier"));
        EXPECT_FALSE(plan->WerKannHier->isEnabled());
    }
}

TEST_F(PlanansichtFormTest, EntfLeertNurDiesenPlatz)
{
    PlanÖffnen();
    Anklicken(Zelle(1, Plätze));
    plan->Tafel->selectionModel()->select(QItemSelection(Zelle(0, Plätze), Zelle(1, Plätze + 1)),
                                          QItemSelectionModel::ClearAndSelect);
    plan->Tafel->selectionModel()->setCurrentIndex(Zelle(1, Plätze), QItemSelectionModel::NoUpdate);
    Drücken(Qt::Key_Delete);
    EXPECT_EQ(Messe.DienerVor[1][1], "");
    EXPECT_EQ(Messe.DienerNach[1][1], "");
    EXPECT_EQ(Messe.DienerNach[0][1], "Adler");
    EXPECT_EQ(Messe.DienerNach[1][2], "Dorn");
    EXPECT_EQ(Steht(1, Plätze), "Leuchter");
    EXPECT_EQ(Zeigt(Finden(haupt, "StatusMitteilung")),
              "12:00 Diener 1 geleert: Anna Arndt (29.11., 10:00 Uhr, Hochamt)");
    EXPECT_EQ(plan->Tafel->currentIndex(), Zelle(1, Plätze));
}

TEST_F(PlanansichtFormTest, WasInEinemFensterDanebenGetipptIstGehtBeimLeerenNichtVerloren)
{
    PlanÖffnen();
    DialogDanebenÖffnen<MessenlisteForm>();
    auto *liste = static_cast<MessenlisteForm *>(Fenster("Messenliste"));
    ASSERT_TRUE(QTest::qWaitForWindowActive(liste));
    Tippen(liste->Messewesen, "Amt");
    haupt->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(haupt));
    Anklicken(Zelle(0, Plätze));
    Drücken(Qt::Key_Delete);
    EXPECT_EQ(Messe.Messeart[0], "Amt");
    EXPECT_EQ(Messe.DienerNach[0][1], "");
    EXPECT_EQ(Zeigt(liste->Slots.nach[0]), "") << "the form beside it shows the place empty";
}

TEST_F(PlanansichtFormTest, EinDoppelklickFührtInDieMessenlisteUndZurückStehtAllesWoEsStand)
{
    VieleMessen();
    PlanÖffnen();
    plan->Tafel->Wählen(Dienerplatznr(30, 2));
    const int oben = plan->Tafel->verticalScrollBar()->value();
    Doppelklicken(Zelle(30, Plätze + 1));
    auto *liste = static_cast<MessenlisteForm *>(Fenster("Messenliste"));
    EXPECT_EQ(Zeigt(liste->Wahl->Nummer), "30");
    EXPECT_TRUE(Warten([&] { return liste->Slots.vor[1]->hasFocus(); }));
    liste->close();
    EXPECT_EQ(plan->Tafel->currentIndex(), Zelle(30, Plätze + 1));
    EXPECT_EQ(plan->Tafel->verticalScrollBar()->value(), oben);
    EXPECT_TRUE(Warten([&] { return plan->Tafel->hasFocus(); }));
    Doppelklicken(Zelle(29, Planmodell::Art));
    EXPECT_EQ(Zeigt(Finden(Fenster("Messenliste"), "Datensatzus")), "29");
}

TEST_F(PlanansichtFormTest, EinDoppelklickAufEinenHelferFührtZuDenHelfernDerMesse)
{
    PlanÖffnen();
    Doppelklicken(Zelle(1, Plätze + 2));
    QWidget *helfer = Fenster("Lektorrenusw");
    EXPECT_EQ(Zeigt(Finden(helfer, "Lecki1Vor")), "Lea");
    EXPECT_TRUE(Warten([&] { return Finden(helfer, "LH1")->hasFocus(); }));
}

TEST_F(PlanansichtFormTest, DieNadelFührtZurFestenZuordnung)
{
    MesseDienerFest.Anzahl = 2;
    MesseDienerFest.Datum[0] = Messe.Datum[0];
    MesseDienerFest.Uhrzeit[0] = ZeitAus(9 * 3600); // an hour before the mass
    MesseDienerFest.Datum[1] = Messe.Datum[2];
    MesseDienerFest.Uhrzeit[1] = Messe.Uhrzeit[2];
    PlanÖffnen();
    EXPECT_FALSE(plan->Tafel->isColumnHidden(Planmodell::Fest));
    EXPECT_EQ(Steht(0, Planmodell::Fest), "");
    EXPECT_EQ(Steht(2, Planmodell::Fest), "fest");
    Doppelklicken(Zelle(2, Planmodell::Fest));
    EXPECT_EQ(Zeigt(Finden(Fenster("MesseDienerFest"), "Index")), "1");
}

TEST_F(PlanansichtFormTest, DasKontextmenüNenntDieWege)
{
    PlanÖffnen();
    Anklicken(Zelle(1, Plätze + 2));
    Liste einträge;
    QTimer::singleShot(0, [&] {
        auto *menü = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        for (const QAction *eintrag : menü->actions())
            if (!eintrag->isSeparator())
                einträge.push_back(eintrag->text().section('\t', 0, 0).toStdString());
        menü->close();
    });
    QContextMenuEvent rechts(QContextMenuEvent::Mouse, Punkt(Zelle(1, Plätze + 2)), QCursor::pos());
    QApplication::sendEvent(plan->Tafel->viewport(), &rechts);
    EXPECT_EQ(einträge, (Liste{"Wer kann hier?", "Leeren", "Zu \"Lektoren und ...\"",
                               "Zur Messenliste", "Zu Lea Lang", "Kopieren"}));
}

} // namespace
} // namespace altardienst
