// Nothing that is open gets lost below the main window.
#include "application/Fensterordnung.h"

#include "Fensterstand.h"
#include "application/Anwendung.h"
#include "controls/Vordergrund.h"

#include <QCloseEvent>
#include <QMainWindow>
#include <QPointer>
#include <QTimer>
#include <QWindow>

namespace altardienst {
namespace {

class FensterordnungTest : public Fensterstand {
  protected:
    /// Counts how often its window was raised.
    class Zähler : public QObject {
      public:
        explicit Zähler(QWidget *fenster) : QObject(fenster) { fenster->installEventFilter(this); }

        bool eventFilter(QObject *, QEvent *ereignis) override
        {
            Gehoben += ereignis->type() == QEvent::ZOrderChange;
            return false;
        }

        int Gehoben = 0;
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
    void Hervorholen() const
    {
        haupt->showMaximized();
        haupt->activateWindow();
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }

    /// A request that comes to the window from outside.
    void SchließenVomSchreibtisch() const
    {
        QCloseEvent ereignis;
        QApplication::sendEvent(haupt->windowHandle(), &ereignis);
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
    liste->setEnabled(false);
    liste->showMinimized();
    QWidget *dialog = Daneben("Dialog");
    Hervorholen();
    EXPECT_TRUE(Warten([&] { return dialog->isActiveWindow(); }));
    EXPECT_TRUE(liste->isMinimized());
    EXPECT_FALSE(liste->isEnabled());
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
    QWidget *handbuch = Daneben("Handbuch");
    weg->showMinimized();
    ZumNachlesen(handbuch);
    Zähler beiListe(liste);
    Zähler beiWeg(weg);
    Zähler beiHandbuch(handbuch);
    Hervorholen();
    EXPECT_GT(beiListe.Gehoben, 0);
    EXPECT_TRUE(haupt->isActiveWindow()) << "it is in use all the same";
    EXPECT_TRUE(haupt->isEnabled());
    EXPECT_EQ(beiWeg.Gehoben, 0);
    EXPECT_TRUE(weg->isMinimized());
    EXPECT_EQ(beiHandbuch.Gehoben, 0) << "it would cover the buttons that one reads about";
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
