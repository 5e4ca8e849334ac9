// What holds for all windows: message boxes, and the main window that dialogs leave and return to.
#include "application/Anwendung.h"

#include "Fensterstand.h"
#include "application/Wartezeiger.h"

#include <QMainWindow>
#include <QPushButton>
#include <QVBoxLayout>

namespace altardienst {
namespace {

class AnwendungTest : public Fensterstand {
  protected:
    AnwendungTest()
    {
        auto *mitte = new QWidget;
        auto *spalte = new QVBoxLayout(mitte);
        spalte->addWidget(erster);
        spalte->addWidget(zweiter);
        haupt->setObjectName("Haupt");
        haupt->setCentralWidget(mitte);
        HauptfensterSetzen(haupt);
        haupt->showMaximized();
        Zeigen(haupt);
    }

    static QWidget *NeuerDialog()
    {
        auto *dialog = Benannt(new QWidget, "Dialog");
        DialogÖffnen(dialog);
        return dialog;
    }

    QPushButton *erster = Knopf("erster", "erster");
    QPushButton *zweiter = Knopf("zweiter", "zweiter");
    QPointer<QMainWindow> haupt = new QMainWindow;
};

TEST_F(AnwendungTest, EinDialogSperrtUndVerkleinertDasHauptfenster)
{
    QWidget *dialog = NeuerDialog();
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_FALSE(haupt->isEnabled());
    EXPECT_TRUE(haupt->isMinimized());
    EXPECT_TRUE(Warten([&] { return dialog->isActiveWindow(); }));
}

TEST_F(AnwendungTest, ErstKommtDerDialogDannDasGraueHauptfenster)
{
    NeuerDialog();
    EXPECT_FALSE(haupt->updatesEnabled());
    EXPECT_TRUE(Warten([&] { return haupt->updatesEnabled(); })) << "where it stays in sight";
    NeuerDialog()->close();
    EXPECT_FALSE(haupt->updatesEnabled());
    HauptfensterZurück();
    EXPECT_TRUE(haupt->updatesEnabled()) << "at once";
}

TEST_F(AnwendungTest, ZurückIstDasHauptfensterFreiUndMaximiert)
{
    NeuerDialog()->close();
    HauptfensterZurück();
    EXPECT_TRUE(haupt->isEnabled());
    EXPECT_TRUE(haupt->isMaximized());
    EXPECT_FALSE(haupt->isMinimized());
    EXPECT_TRUE(Warten([&] { return haupt->isActiveWindow(); }));
}

TEST_F(AnwendungTest, ZurückHatDerKnopfDenFokusDerIhnHatte)
{
    FokusAuf(zweiter);
    NeuerDialog()->close();
    HauptfensterZurück();
    EXPECT_TRUE(Warten([&] { return zweiter->hasFocus(); }));
    EXPECT_EQ(Grundfarbe(zweiter), QColor(0, 255, 0));
}

TEST_F(AnwendungTest, EinGeschlossenerDialogIstEntladen)
{
    QPointer<QWidget> dialog = NeuerDialog();
    dialog->close();
    EXPECT_TRUE(Warten([&] { return !dialog; }));
}

TEST_F(AnwendungTest, OhneHauptfensterGehenDialogeTrotzdem)
{
    HauptfensterSetzen(nullptr);
    EXPECT_TRUE(NeuerDialog()->isVisible());
    HauptfensterZurück();
    EXPECT_TRUE(haupt->isEnabled());
}

TEST_F(AnwendungTest, EntladenFragtKeinFenster)
{
    class Störrisch : public QWidget {
      public:
        bool gefragt = false;

      protected:
        void closeEvent(QCloseEvent *) override { gefragt = true; }
    };
    Störrisch fenster;
    fenster.show();
    QPointer<QWidget> dialog = NeuerDialog();
    AlleFormenEntladen();
    EXPECT_FALSE(fenster.gefragt);
    EXPECT_FALSE(fenster.isVisible());
    EXPECT_FALSE(dialog->isVisible());
    QCoreApplication::removePostedEvents(&fenster, QEvent::DeferredDelete);
    EXPECT_TRUE(Warten([&] { return !dialog && !haupt; }));
}

TEST_F(AnwendungTest, EineMeldungHatTitelTextUndOk)
{
    EchteMeldungen();
    bool gesehen = false;
    Beantworten([&](QMessageBox *box) {
        gesehen = true;
        EXPECT_EQ(box->windowTitle(), "Altardienst");
        EXPECT_EQ(box->text(), QString::fromUtf8("Fertig <b>mit</b> Meßdiener"));
        EXPECT_EQ(box->textFormat(), Qt::PlainText);
        EXPECT_EQ(box->standardButtons(), QMessageBox::Ok);
        EXPECT_EQ(box->button(QMessageBox::Ok)->text().remove('&'), "OK");
        Klick(box->button(QMessageBox::Ok));
    });
    Meldungen.Zeigen("Fertig <b>mit</b> Meßdiener");
    EXPECT_TRUE(gesehen);
}

// The message of a box that a press of the mouse has left.
TEST_F(AnwendungTest, EinKnopfHängtNichtHinterEinerMeldung)
{
    EchteMeldungen();
    int meldungen = 0;
    Beantworten([&](QMessageBox *box) {
        ++meldungen;
        box->accept();
    });
    int klicks = 0;
    QObject::connect(erster, &QPushButton::clicked, erster, [&] { ++klicks; });
    BeiFokusVerlust(zweiter, [&] {
        if (meldungen == 0)
            Meldungen.Zeigen("falsch");
    });
    FokusAuf(zweiter);
    const QPoint stelle = erster->mapTo(haupt, erster->rect().center());
    QTest::mousePress(haupt->windowHandle(), Qt::LeftButton, {}, stelle);
    EXPECT_EQ(meldungen, 1);
    EXPECT_FALSE(erster->isDown());
    QTest::mouseRelease(haupt->windowHandle(), Qt::LeftButton, {}, stelle);
    EXPECT_EQ(klicks, 0);
    QCoreApplication::processEvents();
    QTest::mouseClick(haupt->windowHandle(), Qt::LeftButton, {}, stelle);
    EXPECT_EQ(klicks, 1);
}

TEST_F(AnwendungTest, EineFrageHatTitelTextJaUndNein)
{
    EchteMeldungen();
    for (auto [knopf, ja] : {std::pair(QMessageBox::Yes, true), {QMessageBox::No, false}}) {
        Beantworten([knopf = knopf](QMessageBox *box) {
            EXPECT_EQ(box->windowTitle(), "Wirklich?");
            EXPECT_EQ(box->text(), QString::fromUtf8("Wollen Sie die Größe ändern?"));
            EXPECT_EQ(box->standardButtons(), QMessageBox::Yes | QMessageBox::No);
            EXPECT_EQ(box->button(QMessageBox::Yes)->text().remove('&'), "Ja");
            EXPECT_EQ(box->button(QMessageBox::No)->text().remove('&'), "Nein");
            Klick(box->button(knopf));
        });
        EXPECT_EQ(Meldungen.Fragen("Wollen Sie die Größe ändern?", "Wirklich?"), ja);
    }
}

TEST_F(AnwendungTest, EingabetasteIstJaUndAbbrechenIstNein)
{
    EchteMeldungen();
    for (auto [taste, ja] : {std::pair(Qt::Key_Return, true), {Qt::Key_Escape, false}}) {
        Beantworten([taste = taste](QMessageBox *box) { QTest::keyClick(box, taste); });
        EXPECT_EQ(Meldungen.Fragen("?", "Wirklich?"), ja);
    }
}

TEST_F(AnwendungTest, WährendEinerMeldungIstDerWartezeigerWeg)
{
    EchteMeldungen();
    bool gesehen = false;
    auto ohneZeiger = [&](QMessageBox *box) {
        gesehen = true;
        EXPECT_FALSE(QApplication::overrideCursor());
        box->accept();
    };
    UnterWartezeiger([&] {
        ASSERT_TRUE(QApplication::overrideCursor());
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        Beantworten(ohneZeiger);
        Meldungen.Zeigen("anzupassen");
        ASSERT_TRUE(QApplication::overrideCursor()); // the step goes on
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    });
    EXPECT_TRUE(gesehen);
    EXPECT_FALSE(QApplication::overrideCursor());

    Beantworten(ohneZeiger);
    Meldungen.Zeigen("Fertig");
    EXPECT_FALSE(QApplication::overrideCursor()); // none comes from a message alone
}

TEST_F(AnwendungTest, EinFenstertitelStehtFürSich)
{
    // With a display name of its own the application would add it to the title of each window.
    QCoreApplication::setApplicationName("anders");
    EXPECT_EQ(QGuiApplication::applicationDisplayName(), "anders");
    QCoreApplication::setApplicationName("Altardienst");
}

} // namespace
} // namespace altardienst
