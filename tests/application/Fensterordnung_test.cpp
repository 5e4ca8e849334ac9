// Nothing that is open gets lost below the main window.
#include "application/Fensterordnung.h"

#include "Fensterstand.h"
#include "application/Anwendung.h"
#include "controls/Vordergrund.h"

#include <QCloseEvent>
#include <QExposeEvent>
#include <QMainWindow>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QWindow>

#include <functional>
#include <utility>
#include <vector>

namespace altardienst {
namespace {

class FensterordnungTest : public Fensterstand {
  protected:
    /// Counts how often its window was raised.
    class Zähler : public QObject {
      public:
        explicit Zähler(
            QWidget *fenster, std::function<void()> gehoben = [] {})
            : gehoben(std::move(gehoben))
        {
            fenster->installEventFilter(this);
        }

        bool eventFilter(QObject *, QEvent *ereignis) override
        {
            if (ereignis->type() == QEvent::ZOrderChange) {
                ++Gehoben;
                gehoben();
            }
            return false;
        }

        int Gehoben = 0;

      private:
        std::function<void()> gehoben;
    };

    /// Notes whether it is asked to close.
    class Hauptfenster : public QMainWindow {
      public:
        int Geschlossen = 0;

      protected:
        void closeEvent(QCloseEvent *ereignis) override
        {
            ++Geschlossen;
            QMainWindow::closeEvent(ereignis);
        }
    };

    FensterordnungTest()
    {
        haupt->setObjectName("Haupt");
        HauptfensterSetzen(haupt);
        haupt->showMaximized();
        Zeigen(haupt);
    }

    static QWidget *Daneben(const char *name)
    {
        auto *fenster = Benannt(new QWidget, name);
        DialogDanebenÖffnen(fenster);
        EXPECT_TRUE(Warten([&] { return fenster->isActiveWindow(); }));
        return fenster;
    }

    static QWidget *Dialog(const char *name)
    {
        auto *fenster = Benannt(new QWidget, name);
        DialogÖffnen(fenster);
        EXPECT_TRUE(Warten([&] { return fenster->isActiveWindow(); }));
        return fenster;
    }

    /// As the task bar does it.
    static void Hervorholen(QWidget *fenster)
    {
        fenster->showMaximized();
        fenster->activateWindow();
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }
    void Hervorholen() const { Hervorholen(haupt); }

    /// A request that comes to the window from outside.
    static void SchließenVomSchreibtisch(const QWidget *fenster)
    {
        QCloseEvent ereignis;
        QApplication::sendEvent(fenster->windowHandle(), &ereignis);
    }
    void SchließenVomSchreibtisch() const { SchließenVomSchreibtisch(haupt); }

    /// A form disabled below the dialog that it has opened.
    static QWidget *DialogÜber(QWidget *form)
    {
        form->setEnabled(false);
        form->showMinimized();
        return Daneben("Dialog");
    }

    QPointer<Hauptfenster> haupt = new Hauptfenster;
};

TEST_F(FensterordnungTest, WerDasGesperrteHauptfensterHoltBekommtDenDialog)
{
    QWidget *dialog = Dialog("Dialog");
    Zähler zähler(dialog);
    Hervorholen();
    EXPECT_TRUE(Warten([&] { return dialog->isActiveWindow(); }));
    EXPECT_GT(zähler.Gehoben, 0);
    EXPECT_FALSE(haupt->isEnabled());
}

TEST_F(FensterordnungTest, AuchEinVerkleinerterDialogKommt)
{
    QWidget *dialog = Dialog("Dialog");
    dialog->showMinimized();
    Hervorholen();
    EXPECT_TRUE(Warten([&] { return dialog->isActiveWindow(); }));
    EXPECT_FALSE(dialog->isMinimized());
}

TEST_F(FensterordnungTest, VonZweienKommtDerZuletztBenutzte)
{
    QWidget *liste = Daneben("Liste");
    QWidget *dialog = Dialog("Dialog");
    for (QWidget *einer : {liste, dialog, liste}) {
        Zeigen(einer);
        Hervorholen();
        EXPECT_TRUE(Warten([&] { return einer->isActiveWindow(); }));
        EXPECT_TRUE(liste->isVisible() && dialog->isVisible());
    }
}

TEST_F(FensterordnungTest, EinDialogDerFürEinenAnderenGesperrtIstKommtNicht)
{
    QWidget *liste = Dialog("Liste");
    QWidget *dialog = DialogÜber(liste);
    Hervorholen();
    EXPECT_TRUE(Warten([&] { return dialog->isActiveWindow(); }));
    EXPECT_TRUE(liste->isMinimized());
    EXPECT_FALSE(liste->isEnabled());
}

TEST_F(FensterordnungTest, WerDenGesperrtenHoltBekommtDenAnderen)
{
    QWidget *liste = Dialog("Liste");
    QWidget *dialog = DialogÜber(liste);
    Zähler zähler(dialog);
    Hervorholen(liste);
    EXPECT_TRUE(Warten([&] { return dialog->isActiveWindow(); }));
    EXPECT_GT(zähler.Gehoben, 0);
    EXPECT_FALSE(liste->isEnabled());
}

TEST_F(FensterordnungTest, DerGesperrteLäßtSichNichtSchließen)
{
    QPointer<QWidget> liste = Dialog("Liste");
    QPointer<QWidget> dialog = DialogÜber(liste);
    dialog->showMinimized();
    SchließenVomSchreibtisch(liste);
    ASSERT_TRUE(liste);
    EXPECT_TRUE(liste->isVisible());
    EXPECT_FALSE(haupt->isEnabled());
    EXPECT_TRUE(Warten([&] { return dialog->isActiveWindow(); }));
    liste->setEnabled(true);
    SchließenVomSchreibtisch(liste);
    EXPECT_FALSE(liste && liste->isVisible());
}

TEST_F(FensterordnungTest, DasGesperrteHauptfensterLäßtSichNichtSchließen)
{
    QPointer<QWidget> dialog = Dialog("Dialog");
    SchließenVomSchreibtisch();
    EXPECT_EQ(haupt->Geschlossen, 0);
    EXPECT_TRUE(haupt->isVisible());
    ASSERT_TRUE(dialog);
    EXPECT_TRUE(Warten([&] { return dialog->isActiveWindow(); }));
    dialog->close();
    HauptfensterZurück();
    SchließenVomSchreibtisch();
    EXPECT_EQ(haupt->Geschlossen, 1);
    EXPECT_FALSE(haupt->isVisible());
}

TEST_F(FensterordnungTest, DasProgrammSelbstSchließtAuchDasGesperrte)
{
    Dialog("Dialog");
    haupt->close();
    EXPECT_EQ(haupt->Geschlossen, 1);
    EXPECT_FALSE(haupt->isVisible());
}

TEST_F(FensterordnungTest, WasDanebenStehtBleibtVorDemHauptfenster)
{
    QWidget *liste = Daneben("Liste");
    QWidget *weg = Daneben("Weg");
    weg->showMinimized();
    Zähler beiListe(liste);
    Zähler beiWeg(weg);
    Hervorholen();
    EXPECT_GT(beiListe.Gehoben, 0);
    EXPECT_TRUE(haupt->isActiveWindow()) << "it is in use all the same";
    EXPECT_TRUE(haupt->isEnabled());
    EXPECT_EQ(beiWeg.Gehoben, 0);
    EXPECT_TRUE(weg->isMinimized());
}

TEST_F(FensterordnungTest, DasHandbuchBleibtVornWoEsDieKnöpfeFreiLäßt)
{
    auto *knopf = new QPushButton("(1)", haupt);
    knopf->setGeometry(10, 10, 100, 30);
    knopf->show();
    QWidget *handbuch = Daneben("Handbuch");
    ZumNachlesen(handbuch);
    const QPoint ecke = knopf->mapToGlobal(QPoint(0, 0));
    handbuch->setGeometry(QRect(ecke, QSize(300, 200)));
    QCoreApplication::processEvents();
    Zähler zähler(handbuch);
    Hervorholen();
    EXPECT_EQ(zähler.Gehoben, 0) << "it would cover the button that one reads about";
    Zeigen(handbuch);
    handbuch->setGeometry(QRect(ecke + QPoint(150, 0), QSize(300, 200)));
    QCoreApplication::processEvents();
    zähler.Gehoben = 0;
    Hervorholen();
    EXPECT_GT(zähler.Gehoben, 0);
    EXPECT_TRUE(haupt->isActiveWindow()) << "it is in use all the same";
}

TEST_F(FensterordnungTest, DasHandbuchVerschwindetAuchNichtWennEinDialogOffenIst)
{
    auto *knopf = new QPushButton("(1)", haupt);
    knopf->setGeometry(10, 10, 100, 30);
    knopf->show();
    QWidget *handbuch = Daneben("Handbuch");
    ZumNachlesen(handbuch);
    handbuch->setGeometry(QRect(knopf->mapToGlobal(QPoint(0, 0)), QSize(300, 200)));
    QWidget *dialog = Dialog("Dialog");
    std::vector<QWidget *> gehoben;
    const Zähler beiHandbuch(handbuch, [&] { gehoben.push_back(handbuch); });
    const Zähler beiDialog(dialog, [&] { gehoben.push_back(dialog); });
    Hervorholen(); // there are no buttons to be pressed now
    EXPECT_TRUE(Warten([&] { return dialog->isActiveWindow(); }));
    EXPECT_GT(beiHandbuch.Gehoben, 0);
    ASSERT_FALSE(gehoben.empty());
    EXPECT_EQ(gehoben.back(), dialog) << "it comes before the handbook";
}

/// A desktop puts the window in front in which one clicks, and tells nobody if it is active.
TEST_F(FensterordnungTest, JederKlickInsHauptfensterLäßtVornWasDanebenSteht)
{
    auto *knopf = new QPushButton("(1)", haupt);
    knopf->setGeometry(10, 10, 100, 30);
    knopf->show();
    QWidget *liste = Daneben("Liste");
    Zeigen(haupt);
    QCoreApplication::processEvents();
    Zähler zähler(liste);
    for (QWidget *wo : {static_cast<QWidget *>(haupt), static_cast<QWidget *>(knopf)}) {
        QTest::mousePress(wo, Qt::LeftButton);
        EXPECT_TRUE(Warten([&] { return zähler.Gehoben > 0; })) << wo->metaObject()->className();
        QTest::mouseRelease(wo, Qt::LeftButton);
        zähler.Gehoben = 0;
    }
    EXPECT_TRUE(haupt->isActiveWindow()) << "it is in use all the same";
    QExposeEvent frei(QRegion(haupt->rect())); // what a click on its title bar leads to
    QApplication::sendEvent(haupt->windowHandle(), &frei);
    EXPECT_TRUE(Warten([&] { return zähler.Gehoben > 0; }));
}

TEST_F(FensterordnungTest, EinAufgeklapptesMenüBleibtVorn)
{
    QWidget *liste = Daneben("Liste");
    Zeigen(haupt);
    QCoreApplication::processEvents();
    QMenu menü(haupt);
    menü.addAction("Eintrag");
    menü.popup(haupt->mapToGlobal(QPoint(5, 5)));
    Zähler zähler(liste);
    QExposeEvent frei(QRegion(haupt->rect()));
    QApplication::sendEvent(haupt->windowHandle(), &frei);
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    EXPECT_EQ(zähler.Gehoben, 0);
    menü.close();
    EXPECT_TRUE(Warten([&] { return zähler.Gehoben > 0; }));
}

/// Some desktops let the user minimise a message, although it asks them not to.
TEST_F(FensterordnungTest, EineVerkleinerteMeldungKommtWieder)
{
    EchteMeldungen();
    Zeigen(haupt);
    Beantworten([&](QMessageBox *box) {
        box->showMinimized();
        Hervorholen();
        EXPECT_TRUE(Warten([&] { return !box->isMinimized() && box->isActiveWindow(); }));
        box->accept();
    });
    Meldungen.Zeigen("Fertig");
}

TEST_F(FensterordnungTest, NachEinemDialogStehtDieListeWiederVorn)
{
    QWidget *liste = Daneben("Liste");
    QPointer<QWidget> dialog = Dialog("Dialog");
    Zähler zähler(liste);
    dialog->close();
    HauptfensterZurück();
    EXPECT_TRUE(Warten([&] { return zähler.Gehoben > 0; }));
    EXPECT_TRUE(haupt->isActiveWindow());
}

TEST_F(FensterordnungTest, EineMeldungBleibtVorn)
{
    EchteMeldungen();
    QWidget *liste = Daneben("Liste");
    Zeigen(haupt);
    Beantworten([&](QMessageBox *box) {
        Zähler beiListe(liste);
        Zähler beiMeldung(box);
        Hervorholen();
        EXPECT_TRUE(Warten([&] { return beiMeldung.Gehoben > 0; }));
        EXPECT_EQ(beiListe.Gehoben, 0);
        box->accept();
    });
    Meldungen.Zeigen("Fertig");
}

} // namespace
} // namespace altardienst
