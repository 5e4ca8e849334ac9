// From the grid to the places: who could stand there, emptying one, and the windows in which they
// are edited.
#include "overview/Planstand.h"

#include "core/Messenname.h"
#include "overview/Planwege.h"
#include "overview/WerKannHierForm.h"
#include "planning/MessenlisteForm.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>

namespace altardienst {
namespace {

using Liste = std::vector<Text>;

class PlanwegeFormTest : public Planstand {
  protected:
    static WerKannHierForm *Gefragt()
    {
        return static_cast<WerKannHierForm *>(Fenster("WerKannHier"));
    }
};

TEST_F(PlanwegeFormTest, EinKlickAufEinenNamenMarkiertAllePlätzeDerPerson)
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

TEST_F(PlanwegeFormTest, VonMehrerenFestenEinträgenZähltDerLetzteDerDenPlatzNennt)
{
    MesseDienerFest.Anzahl = 4;
    for (const int k : {0, 1, 2}) {
        MesseDienerFest.Datum[k] = Messe.Datum[1];
        MesseDienerFest.Uhrzeit[k] = Messe.Uhrzeit[1];
    }
    for (const int k : {0, 1}) {
        MesseDienerFest.Vorname[k][2] = "Doris";
        MesseDienerFest.Nachname[k][2] = "Dorn";
    }
    const auto eintrag = [](const Planplatz &ort) { return FesterEintragVon(ort).Satz; };
    EXPECT_EQ(eintrag(Dienerplatznr(1, 2)), 1);
    EXPECT_EQ(eintrag(Dienerplatznr(1, 1)), 2) << "none names somebody for it";
    EXPECT_EQ(eintrag({1, Planplatz::Art::Messe, 0}), 2);
    EXPECT_EQ(FesterEintragVon(Dienerplatznr(0, 1)).Wo, Fundort::Messe);
    MesseDienerFest.Anzahl = 1;
    EXPECT_EQ(eintrag({1, Planplatz::Art::Messe, 0}), 0) << "as the window counts";
}

TEST_F(PlanwegeFormTest, EinePersonWirdAuchInAusgeblendetenMessenGezeigt)
{
    PlanÖffnen();
    Klick(plan->NurAuffälliges);
    ASSERT_EQ(plan->Tafel->model()->rowCount(), 1);
    plan->PersonZeigen("Anna", "Adler");
    EXPECT_FALSE(plan->NurAuffälliges->isChecked());
    EXPECT_EQ(plan->Tafel->currentIndex(), Zelle(0, Plätze));
}

TEST_F(PlanwegeFormTest, DieEingabetasteFragtWerHierKann)
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

TEST_F(PlanwegeFormTest, EntfLeertNurDiesenPlatz)
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

TEST_F(PlanwegeFormTest, WasInEinemFensterDanebenGetipptIstGehtBeimLeerenNichtVerloren)
{
    PlanÖffnen();
    DialogDanebenÖffnen<MessenlisteForm>();
    auto *liste = static_cast<MessenlisteForm *>(Fenster("Messenliste"));
    ASSERT_TRUE(Warten([&] { return QApplication::activeWindow() == liste; }));
    Tippen(liste->Messewesen, "Amt");
    haupt->activateWindow();
    ASSERT_TRUE(Warten([&] { return QApplication::activeWindow() == haupt; }));
    Anklicken(Zelle(0, Plätze));
    Drücken(Qt::Key_Delete);
    EXPECT_EQ(Messe.Messeart[0], "Amt");
    EXPECT_EQ(Messe.DienerNach[0][1], "");
    EXPECT_EQ(Zeigt(liste->Slots.nach[0]), "") << "the form beside it shows the place empty";
}

TEST_F(PlanwegeFormTest, EinDoppelklickFührtInDieMessenlisteUndZurückStehtAllesWoEsStand)
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

TEST_F(PlanwegeFormTest, EinDoppelklickAufEinenHelferFührtZuDenHelfernDerMesse)
{
    PlanÖffnen();
    Doppelklicken(Zelle(1, Plätze + 2));
    QWidget *helfer = Fenster("Lektorrenusw");
    EXPECT_EQ(Zeigt(Finden(helfer, "Lecki1Vor")), "Lea");
    EXPECT_TRUE(Warten([&] { return Finden(helfer, "LH1")->hasFocus(); }));
}

TEST_F(PlanwegeFormTest, DieNadelFührtZurFestenZuordnung)
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

TEST_F(PlanwegeFormTest, DasKontextmenüNenntDieWege)
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
    EXPECT_EQ(einträge,
              (Liste{"Wer kann hier?", "Leeren", "Zu \"Lektoren und ...\"", "Zur Messenliste",
                     "Zu Lea Lang", "E-Mail an diese Messe...", "Kopieren"}));
}

TEST_F(PlanwegeFormTest, AusDemKontextmenüGehtEineEMailAnDieMesse)
{
    PlanÖffnen();
    Anklicken(Zelle(1, Plätze + 2));
    QTimer::singleShot(0, [] {
        auto *menü = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        for (QAction *eintrag : menü->actions())
            if (eintrag->text() == "E-Mail an diese Messe...")
                eintrag->trigger();
        menü->close();
    });
    QContextMenuEvent rechts(QContextMenuEvent::Mouse, Punkt(Zelle(1, Plätze + 2)), QCursor::pos());
    QApplication::sendEvent(plan->Tafel->viewport(), &rechts);
    QWidget *form = Fenster("EMail");
    ASSERT_TRUE(form);
    EXPECT_EQ(Zeigt(Finden(form, "An")), "eine Messe");
    EXPECT_EQ(Zeigt(Finden(form, "EineMesse")), Messenzeile(1));
}

} // namespace
} // namespace altardienst
