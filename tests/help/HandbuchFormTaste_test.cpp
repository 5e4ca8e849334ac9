// F1 and the menu entry: what opens the handbook, and what it leaves alone.
#include "help/Handbuchstand.h"

#include "application/Anwendung.h"
#include "core/Allgemein.h"
#include "help/Fensterseiten.h"
#include "help/Hilfetaste.h"
#include "paper/Druckdialog.h"
#include "people/GruppeForm.h"
#include "planning/MessenlisteForm.h"
#include "platform/Meldungen.h"
#include "shell/HauptForm.h"
#include "shell/Programm.h"
#include "shell/StartForm.h"

#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QMenuBar>
#include <QScopeGuard>
#include <QTimer>

namespace altardienst {
namespace {

using Liste = std::vector<Text>;

class HandbuchFormTasteTest : public Handbuchstand {
  protected:
    HandbuchFormTasteTest()
    {
        HilfetasteEinrichten(*qApp);
        haupt = new HauptForm;
        HauptfensterSetzen(haupt);
        haupt->showMaximized();
        Fensterstand::Zeigen(haupt);
    }

    static HandbuchForm *Handbuch() { return static_cast<HandbuchForm *>(Fenster("Handbuch")); }

    static int OffeneHandbücher()
    {
        const QWidgetList fenster = QApplication::topLevelWidgets();
        return static_cast<int>(std::ranges::count_if(fenster, [](const QWidget *eines) {
            return eines->objectName() == "Handbuch" && eines->isVisible();
        }));
    }

    /// F1 as the platform sends it, to the window that is active.
    static void F1(Qt::KeyboardModifiers dazu = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::activeWindow()->windowHandle(), Qt::Key_F1, dazu);
    }

    static void Aktivieren(QWidget *fenster)
    {
        fenster->activateWindow();
        if (!QTest::qWaitForWindowActive(fenster) || !QTest::qWaitForWindowExposed(fenster) ||
            !Warten([&] { return QApplication::activeWindow() == fenster; }))
            throw std::runtime_error("did not become active");
    }

    /// The place that is open, as the table of the windows says it.
    static Text Aufgeschlagen()
    {
        HandbuchForm *form = Handbuch();
        const QTreeWidgetItem *eintrag = form->Inhalt->currentItem();
        const QTreeWidgetItem *seite = eintrag;
        while (seite->parent())
            seite = seite->parent();
        const auto seiten = HandbuchLesen();
        const Handbuchseite &eine = seiten.at(static_cast<std::size_t>(
            form->Inhalt->indexOfTopLevelItem(const_cast<QTreeWidgetItem *>(seite))));
        if (eintrag == seite)
            return eine.Name;
        return eine.Name + "#" + AnkerVon(eintrag->text(0).toStdString());
    }

    QPointer<HauptForm> haupt;
};

TEST_F(HandbuchFormTasteTest, DerMenüeintragStehtÜberDerInfo)
{
    const auto einträge = Finden<QMenu>(haupt, "mnuHelp")->actions();
    ASSERT_EQ(einträge.size(), 2);
    EXPECT_EQ(einträge[0]->objectName(), "mnuHandbuch");
    EXPECT_EQ(einträge[0]->text(), "&Handbuch");
    EXPECT_EQ(einträge[0]->shortcut(), QKeySequence(Qt::Key_F1));
    EXPECT_EQ(einträge[1]->objectName(), "mnuHelpAbout");
    einträge[0]->trigger();
    EXPECT_EQ(Aufgeschlagen(), Fensterseiten().at("Haupt"));
    EXPECT_TRUE(haupt->isEnabled());
    EXPECT_TRUE(haupt->isMaximized());
}

TEST_F(HandbuchFormTasteTest, DasProgrammRichtetDieTasteEin)
{
    qApp->removeEventFilter(qApp->findChild<QObject *>("Hilfetaste"));
    QWidget fenster;
    Fensterstand::Zeigen(&fenster);
    F1();
    EXPECT_EQ(OffeneHandbücher(), 0);
    AufFestplatteSpeichern(); // or else the copy dialog would come
    ProgrammStarten();
    QWidget *start = Fenster("Start");
    Aktivieren(start);
    F1();
    EXPECT_EQ(OffeneHandbücher(), 1);
}

/// Opens every window that the menu has, and looks where F1 leads from there.
TEST_F(HandbuchFormTasteTest, F1ÖffnetInJedemFensterDessenSeite)
{
    Liste geöffnet;
    for (QAction *eintrag : haupt->findChildren<QAction *>()) {
        const QString name = eintrag->objectName();
        if (!name.startsWith("mnu", Qt::CaseInsensitive) || name == "mnuFileExit" ||
            name == "mnuHandbuch" || eintrag->menu() || name.startsWith("mnuDatenladen"))
            continue;
        eintrag->trigger();
        QCoreApplication::processEvents();
        QPointer<QWidget> fenster = QApplication::activeWindow();
        if (fenster == haupt)
            continue; // it sorts or saves
        SCOPED_TRACE(fenster->objectName().toStdString());
        geöffnet.push_back(fenster->objectName().toStdString());
        const bool war = haupt->isEnabled();
        F1();
        ASSERT_EQ(OffeneHandbücher(), 1);
        EXPECT_EQ(Aufgeschlagen(), Fensterseiten().at(geöffnet.back()));
        EXPECT_EQ(QApplication::activeWindow(), Handbuch());
        EXPECT_TRUE(fenster->isVisible());
        EXPECT_TRUE(fenster->isEnabled());
        EXPECT_FALSE(fenster->isMinimized());
        EXPECT_EQ(haupt->isEnabled(), war);
        fenster->close();
        Warten([&] { return !fenster; });
        Aktivieren(haupt);
    }
    EXPECT_GT(geöffnet.size(), 18U);
}

TEST_F(HandbuchFormTasteTest, EsGibtNurEinHandbuchUndEsKommtNachVorn)
{
    F1();
    QPointer<HandbuchForm> erstes = Handbuch();
    erstes->showMinimized();
    Aktivieren(haupt);
    F1();
    EXPECT_EQ(Handbuch(), erstes);
    EXPECT_FALSE(erstes->isMinimized());
    EXPECT_EQ(QApplication::activeWindow(), erstes);
    EXPECT_EQ(OffeneHandbücher(), 1);
    erstes->close();
    EXPECT_EQ(OffeneHandbücher(), 0);
    Aktivieren(haupt);
    F1(); // the first one may not be deleted yet
    EXPECT_EQ(OffeneHandbücher(), 1);
    EXPECT_TRUE(Warten([&] { return !erstes; }));
    EXPECT_EQ(OffeneHandbücher(), 1);
}

TEST_F(HandbuchFormTasteTest, ImHandbuchFührtF1ZurErstenSeite)
{
    F1();
    Handbuch()->Aufschlagen({"leute.md", "helfer"});
    F1();
    EXPECT_EQ(Aufgeschlagen(), "README.md");
    Handbuch()->close();
    EXPECT_TRUE(Warten([&] { return QApplication::activeWindow() == haupt; }))
        << "back to where one came from";
}

TEST_F(HandbuchFormTasteTest, SchließenFührtZurückWoherManKam)
{
    DialogÖffnen<GruppeForm>();
    QWidget *gruppe = Fenster("Gruppe");
    Aktivieren(gruppe);
    F1();
    EXPECT_EQ(Aufgeschlagen(), "leute.md#gruppen");
    EXPECT_FALSE(haupt->isEnabled());
    EXPECT_TRUE(haupt->isMinimized());
    QTest::keyClick(Handbuch()->windowHandle(), Qt::Key_Escape);
    EXPECT_TRUE(Warten([&] { return QApplication::activeWindow() == gruppe; }));
    EXPECT_FALSE(haupt->isEnabled());
    EXPECT_TRUE(haupt->isMinimized());
}

TEST_F(HandbuchFormTasteTest, NurF1Allein)
{
    for (const auto dazu : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier})
        F1(dazu);
    QTest::keyClick(haupt->windowHandle(), Qt::Key_F2);
    EXPECT_EQ(OffeneHandbücher(), 0);
}

TEST_F(HandbuchFormTasteTest, EinMenüKlapptZu)
{
    auto *menü = Finden<QMenu>(haupt, "mnuDaten");
    menü->popup(haupt->mapToGlobal(QPoint(50, 50)));
    ASSERT_EQ(QApplication::activePopupWidget(), menü);
    QTest::keyClick(menü, Qt::Key_F1);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(OffeneHandbücher(), 1);
    EXPECT_EQ(Aufgeschlagen(), Fensterseiten().at("Haupt"));
}

TEST_F(HandbuchFormTasteTest, EineAufgeklappteListeKlapptZuUndBehältIhreWahl)
{
    QWidget fenster;
    fenster.setObjectName("Helfer");
    QComboBox liste(&fenster);
    liste.addItems({"eins", "zwei", "drei"});
    liste.setCurrentIndex(1);
    Fensterstand::Zeigen(&fenster);
    liste.showPopup();
    QWidget *aufgeklappt = QApplication::activePopupWidget();
    ASSERT_NE(aufgeklappt, nullptr);
    QTest::keyClick(aufgeklappt, Qt::Key_Down);
    QTest::keyClick(aufgeklappt, Qt::Key_F1);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(liste.currentIndex(), 1);
    EXPECT_EQ(Aufgeschlagen(), "leute.md#helfer");
}

TEST_F(HandbuchFormTasteTest, ÜberEinerMeldungLäßtEsSichLesen)
{
    EchteMeldungen();
    bool gelesen = false;
    Beantworten([&](QMessageBox *box) {
        Aktivieren(box);
        F1();
        HandbuchForm *handbuch = Handbuch();
        EXPECT_EQ(Aufgeschlagen(), Fensterseiten().at("Haupt/Meldung"));
        EXPECT_EQ(QApplication::activeWindow(), handbuch);
        handbuch->Suchwort->setFocus();
        for (const Qt::Key taste : {Qt::Key_A, Qt::Key_B})
            QTest::keyClick(handbuch->windowHandle(), taste);
        EXPECT_EQ(Zeigt(handbuch->Suchwort), "ab") << "it is not blocked";
        QPointer<HandbuchForm> noch = handbuch;
        QTest::keyClick(handbuch->windowHandle(), Qt::Key_Escape);
        EXPECT_TRUE(Warten([&] { return !noch; }));
        EXPECT_TRUE(box->isVisible());
        gelesen = true;
        Klick(box->button(QMessageBox::Ok));
    });
    Meldungen.Zeigen("Zuwenig Meßdiener !!!!");
    EXPECT_TRUE(gelesen);
}

TEST_F(HandbuchFormTasteTest, EsBleibtWennDieMeldungGeht)
{
    EchteMeldungen();
    Beantworten([](QMessageBox *box) {
        Aktivieren(box);
        F1();
        Klick(box->button(QMessageBox::Ok));
    });
    Meldungen.Zeigen("Fertig");
    HandbuchForm *handbuch = Handbuch();
    EXPECT_TRUE(handbuch->isVisible());
    EXPECT_EQ(handbuch->windowHandle()->transientParent(), nullptr);
    Aktivieren(handbuch);
    handbuch->Suchwort->setFocus();
    QTest::keyClick(handbuch->windowHandle(), Qt::Key_C);
    EXPECT_EQ(Zeigt(handbuch->Suchwort), "c");
}

TEST_F(HandbuchFormTasteTest, EinOffenesHandbuchKommtÜberDieMeldung)
{
    EchteMeldungen();
    F1();
    HandbuchForm *handbuch = Handbuch();
    const QRect platz = handbuch->geometry();
    Aktivieren(haupt);
    Beantworten([&](QMessageBox *box) {
        Aktivieren(box);
        handbuch->Suchwort->setFocus();
        QTest::keyClick(handbuch->windowHandle(), Qt::Key_A);
        EXPECT_EQ(Zeigt(handbuch->Suchwort), "") << "the message blocks what was open before";
        F1();
        EXPECT_EQ(Handbuch(), handbuch);
        EXPECT_EQ(handbuch->geometry(), platz);
        handbuch->Suchwort->setFocus();
        QTest::keyClick(handbuch->windowHandle(), Qt::Key_B);
        EXPECT_EQ(Zeigt(handbuch->Suchwort), "b");
        Klick(box->button(QMessageBox::Ok));
    });
    Meldungen.Zeigen("Fertig");
    EXPECT_EQ(OffeneHandbücher(), 1);
}

TEST_F(HandbuchFormTasteTest, EineFrageBleibtUnbeantwortet)
{
    EchteMeldungen();
    Beantworten([](QMessageBox *box) {
        Aktivieren(box);
        F1();
        QTest::keyClick(Handbuch()->windowHandle(), Qt::Key_Escape);
        Warten([] { return OffeneHandbücher() == 0; });
        EXPECT_TRUE(box->isVisible());
        Klick(box->button(QMessageBox::Yes));
    });
    EXPECT_TRUE(Meldungen.Fragen("Wirklich?", "Wirklich?"));
}

TEST_F(HandbuchFormTasteTest, ImDruckdialogUndSeinenFenstern)
{
    Druckanfrage anfrage;
    DruckdialogForm dialog(anfrage, {});
    bool gelesen = false;
    QTimer::singleShot(0, [&] {
        const auto schließen = qScopeGuard([&] { dialog.reject(); });
        Aktivieren(&dialog);
        F1();
        EXPECT_EQ(Aufgeschlagen(), Fensterseiten().at("CommonDialog1"));
        QTest::keyClick(Handbuch()->windowHandle(), Qt::Key_Escape);
        EXPECT_TRUE(Warten([] { return OffeneHandbücher() == 0; }));
        EXPECT_TRUE(dialog.isVisible());
        QDialog darüber(&dialog); // such as the choice of a file, which has no place of its own
        darüber.show();
        Aktivieren(&darüber);
        F1();
        EXPECT_EQ(Aufgeschlagen(), Fensterseiten().at("CommonDialog1"));
        gelesen = true;
    });
    dialog.exec();
    EXPECT_TRUE(gelesen);
}

/// What was begun in a box goes on after a look into the handbook, as after one into another
/// program: the box is not left, and nothing is checked, rewritten or stored.
TEST_F(HandbuchFormTasteTest, EinBegonnenesFeldWirdNichtVerlassen)
{
    QWidget fenster;
    fenster.setObjectName("Gruppe");
    QLineEdit feld(&fenster);
    int verlassen = 0;
    BeiFokusVerlust(&feld, [&] { ++verlassen; });
    Fensterstand::Zeigen(&fenster);
    FokusAuf(&feld);
    F1();
    ASSERT_EQ(QApplication::activeWindow(), Handbuch());
    EXPECT_EQ(verlassen, 0);
    Aktivieren(&fenster);
    EXPECT_TRUE(feld.hasFocus());
    EXPECT_EQ(verlassen, 0);
    Aktivieren(haupt);
    EXPECT_EQ(verlassen, 1) << "another form does count";
}

TEST_F(HandbuchFormTasteTest, DasStartdatumBleibtWieGetippt)
{
    auto *start = new StartForm([] {});
    Fensterstand::Zeigen(start);
    Tippen(start->Datumsen, "1.1.27");
    F1();
    ASSERT_EQ(QApplication::activeWindow(), Handbuch());
    EXPECT_EQ(Zeigt(start->Datumsen), "1.1.27");
    Handbuch()->close();
    EXPECT_EQ(Zeigt(start->Datumsen), "1.1.27");
    Aktivieren(start);
    EXPECT_EQ(Zeigt(start->Datumsen), "1.1.27");
    Aktivieren(haupt);
    EXPECT_NE(Zeigt(start->Datumsen), "1.1.27") << "the box was left";
}

TEST_F(HandbuchFormTasteTest, DieMessenlisteWirdBeimLesenNichtGeschrieben)
{
    Messe.Anzahl = 2;
    Messe.Cursor = 0;
    Messe.Messeart[0] = "Hochamt";
    DialogDanebenÖffnen<MessenlisteForm>();
    QWidget *liste = Fenster("Messenliste");
    Aktivieren(liste);
    Tippen(Finden(liste, "Messewesen"), "Vesper");
    F1();
    ASSERT_EQ(QApplication::activeWindow(), Handbuch());
    QApplication::processEvents();
    EXPECT_EQ(Messe.Messeart[0], "Hochamt");
    Handbuch()->close();
    Aktivieren(haupt);
    QApplication::processEvents();
    EXPECT_EQ(Messe.Messeart[0], "Vesper") << "the main window does count";
}

TEST_F(HandbuchFormTasteTest, DasEndeDesProgrammsNimmtEsMit)
{
    F1();
    QPointer<HandbuchForm> handbuch = Handbuch();
    AlleFormenEntladen();
    EXPECT_FALSE(handbuch->isVisible());
    EXPECT_TRUE(Warten([&] { return !handbuch; }));
}

TEST_F(HandbuchFormTasteTest, DasSchließenDesStartsBeendetAuchMitHandbuch)
{
    haupt->hide();
    EXPECT_EQ(Programmlauf([] {
                  auto *start = new StartForm([] {});
                  Fensterstand::Zeigen(start);
                  F1();
                  Handbuch();
                  start->close();
              }),
              0);
}

} // namespace
} // namespace altardienst
