// The small pieces of every form: controls and their events.
#include "controls/Bausteine.h"

#include "Fensterstand.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QWheelEvent>

namespace altardienst {
namespace {

/// A window with a text box, a label for it and two buttons; every event is recorded.
class BausteineTest : public Fensterstand {
  protected:
    BausteineTest()
    {
        auto *spalte = new QVBoxLayout(&fenster);
        for (QWidget *control : std::initializer_list<QWidget *>{feld, knopf, anderer})
            spalte->addWidget(control);
        Zeigen(&fenster);
    }

    std::function<void()> Merken(const char *was)
    {
        return [this, was] { ereignisse.emplace_back(was); };
    }

    std::vector<Text> ereignisse; // outlives the window, which may still lose its focus
    QWidget fenster;
    QLineEdit *feld = Textfeld("Feld");
    QPushButton *knopf = Knopf("Größe", "(1) Größe");
    QPushButton *anderer = Knopf("anderer", "anderer");
};

using Liste = std::vector<Text>;

/// Turns the wheel by one notch over a control; true if the control keeps the event to itself.
bool Raddrehung(QWidget *control)
{
    const QPointF mitte = control->rect().center();
    QWheelEvent rad(mitte, control->mapToGlobal(mitte), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
    QApplication::sendEvent(control, &rad);
    return rad.isAccepted();
}

TEST_F(BausteineTest, ImRollbarenTeilGehtDasRadAnEinerAuswahlVorbei)
{
    auto *inhalt = new QVBoxLayout;
    auto *innen = new QHBoxLayout; // nested as deep as in a form
    auto *wahl = new QComboBox;
    auto *woanders = new QComboBox;
    for (QComboBox *eine : {wahl, woanders})
        eine->addItems({"Die Kleinen", "Die Großen"});
    innen->addWidget(wahl);
    inhalt->addLayout(innen);
    fenster.layout()->addWidget(Rollbar(inhalt));
    fenster.layout()->addWidget(woanders);
    EXPECT_TRUE(Raddrehung(woanders));
    EXPECT_EQ(woanders->currentIndex(), 1);
    EXPECT_FALSE(Raddrehung(wahl));
    EXPECT_EQ(wahl->currentIndex(), 0);
    EXPECT_EQ(wahl->focusPolicy(), Qt::StrongFocus); // not by the wheel
    FokusAuf(wahl);
    QTest::keyClick(wahl, Qt::Key_Down);
    EXPECT_EQ(wahl->currentIndex(), 1);
}

// The height of the window decides too: a scroll bar takes some of the width.
TEST_F(BausteineTest, WasNichtNebeneinanderPaßtStehtUntereinander)
{
    auto *links = new QLabel("links");
    auto *rechts = new QLabel("rechts");
    auto *teile = new QHBoxLayout;
    teile->setSpacing(10);
    for (QLabel *teil : {links, rechts}) {
        teil->setFixedSize(200, 100);
        teile->addWidget(teil);
    }
    auto *rollbar = static_cast<QScrollArea *>(Rollbar(teile));
    EXPECT_EQ(rollbar->sizeHint(), QSize(414, 104));
    auto stehtNebeneinander = [&](const QSize &größe) {
        rollbar->resize(größe);
        QCoreApplication::processEvents();
        EXPECT_EQ(rollbar->horizontalScrollBar()->maximum(), 0);
        EXPECT_EQ(rollbar->sizeHint(), QSize(414, 104));
        return links->y() == rechts->y();
    };
    rollbar->resize(414, 104);
    rollbar->show();
    EXPECT_TRUE(stehtNebeneinander({410, 100}));
    EXPECT_FALSE(stehtNebeneinander({409, 100}));
    EXPECT_FALSE(stehtNebeneinander({410, 99}));
    EXPECT_TRUE(stehtNebeneinander({450, 99}));
    delete rollbar;
}

TEST_F(BausteineTest, NamenUndBeschriftungenKommenMitUmlautenAn)
{
    EXPECT_EQ(Finden<QPushButton>(&fenster, "Größe"), knopf);
    EXPECT_EQ(Zeigt(knopf), "(1) Größe");
    Einsetzen(feld, "Meßdiener für Änderung");
    EXPECT_EQ(TextVon(feld), "Meßdiener für Änderung");
}

TEST_F(BausteineTest, EineBeschriftungGehörtZuIhremFeldUndGibtIhmDenGesprochenenNamen)
{
    QLabel *label = Beschriftung("Tagezahl", "Anzahl Tage: ", feld);
    EXPECT_EQ(label->buddy(), feld);
    EXPECT_EQ(feld->accessibleName(), "Anzahl Tage");
    EXPECT_EQ(label->text(), "Anzahl Tage: ");
    delete label;
}

TEST_F(BausteineTest, EineBeschriftungZeigtTextUndKeineAuszeichnung)
{
    std::unique_ptr<QLabel> label(Beschriftung("Datei", "<b>plan</b>.txt"));
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
}

TEST_F(BausteineTest, WasDieDateienNichtHaltenWirdSofortFragezeichen)
{
    Einsetzen(feld, "Łukasz €äß");
    EXPECT_EQ(TextVon(feld), "?ukasz €äß");
    QApplication::clipboard()->setText(QString::fromUtf8("Дом😀x"));
    feld->clear();
    feld->paste();
    EXPECT_EQ(TextVon(feld), "????x");
}

TEST_F(BausteineTest, EinZeilenumbruchWirdEinLeerzeichen)
{
    for (const char *text : {"Hoch\namt", "Hoch\r\namt", "Hoch\ramt"}) {
        feld->clear();
        QApplication::clipboard()->setText(text);
        QTest::keyClick(feld, Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(Zeigt(feld), "Hoch amt");
        EXPECT_EQ(feld->cursorPosition(), 8);
    }
    Einsetzen(feld, "\n\n");
    EXPECT_EQ(Zeigt(feld), "  ");
}

TEST_F(BausteineTest, DerCursorBleibtHinterDemFragezeichen)
{
    for (const char *fremd : {"Ł", "😀"}) {
        Einsetzen(feld, "abcd");
        feld->setCursorPosition(2);
        feld->insert(QString::fromUtf8(fremd));
        EXPECT_EQ(TextVon(feld), "ab?cd") << fremd;
        EXPECT_EQ(feld->cursorPosition(), 3) << fremd;
    }
}

TEST_F(BausteineTest, DerÄnderungshandlerSiehtZuletztDasFragezeichen)
{
    Text gesehen;
    QObject::connect(feld, &QLineEdit::textChanged, feld, [&] { gesehen = TextVon(feld); });
    Einsetzen(feld, "Ł");
    EXPECT_EQ(gesehen, "?");
}

TEST_F(BausteineTest, FokusVerlustKommtBeimVerlassenUndBeimÖffnenEinesFensters)
{
    BeiFokusVerlust(feld, Merken("verlassen"));
    FokusAuf(feld);
    EXPECT_EQ(ereignisse, Liste{});
    FokusAuf(knopf);
    EXPECT_EQ(ereignisse, Liste{"verlassen"});
    FokusAuf(feld);
    Klick(anderer); // a click on a button takes the focus too
    EXPECT_EQ(ereignisse, (Liste{"verlassen", "verlassen"}));
    FokusAuf(feld);
    QWidget anderes;
    Zeigen(&anderes);
    EXPECT_EQ(ereignisse, (Liste{"verlassen", "verlassen", "verlassen"}));
}

TEST_F(BausteineTest, EinAnderesProgrammIstKeinVerlassen)
{
    BeiFokusVerlust(feld, Merken("verlassen"));
    FokusAuf(feld);
    QApplication::setActiveWindow(nullptr);
    EXPECT_FALSE(feld->hasFocus());
    EXPECT_EQ(ereignisse, Liste{});
}

TEST_F(BausteineTest, DasEigeneKontextmenüIstKeinVerlassen)
{
    BeiFokusVerlust(feld, Merken("verlassen"));
    QFocusEvent menü(QEvent::FocusOut, Qt::PopupFocusReason);
    QApplication::sendEvent(feld, &menü);
    EXPECT_EQ(ereignisse, Liste{});
}

TEST_F(BausteineTest, FokusVerlustLäuftVorDemClickDesNeuenKnopfs)
{
    BeiFokusVerlust(feld, Merken("verlassen"));
    QObject::connect(knopf, &QPushButton::clicked, knopf, Merken("geklickt"));
    FokusAuf(feld);
    Klick(knopf);
    EXPECT_EQ(ereignisse, (Liste{"verlassen", "geklickt"}));
}

TEST_F(BausteineTest, EingabetasteImFeld)
{
    BeiEingabetaste(feld, Merken("Eingabe"));
    FokusAuf(feld);
    QTest::keyClick(feld, Qt::Key_A);
    EXPECT_EQ(ereignisse, Liste{});
    QTest::keyClick(feld, Qt::Key_Return);
    QTest::keyClick(feld, Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(ereignisse, (Liste{"Eingabe", "Eingabe"}));
}

TEST_F(BausteineTest, MausdruckKommtVorDemClickUndNurVonDerErstenTaste)
{
    BeiMausdruck(knopf, Merken("gedrückt"));
    QObject::connect(knopf, &QPushButton::clicked, knopf, Merken("geklickt"));
    QTest::mousePress(knopf, Qt::LeftButton);
    EXPECT_EQ(ereignisse, Liste{"gedrückt"});
    QTest::mouseRelease(knopf, Qt::LeftButton);
    EXPECT_EQ(ereignisse, (Liste{"gedrückt", "geklickt"}));
    QTest::mouseClick(knopf, Qt::RightButton);
    QTest::mouseMove(knopf);
    EXPECT_EQ(ereignisse, (Liste{"gedrückt", "geklickt"}));
}

TEST_F(BausteineTest, EinGesperrterKnopfMeldetKeinenMausdruck)
{
    BeiMausdruck(knopf, Merken("gedrückt"));
    knopf->setEnabled(false);
    Klick(knopf);
    EXPECT_EQ(ereignisse, Liste{});
}

TEST_F(BausteineTest, TastendruckMeintTastenMitZeichen)
{
    BeiTastendruck(knopf, Merken("Taste"));
    FokusAuf(knopf);
    for (auto taste : {Qt::Key_Tab, Qt::Key_Shift, Qt::Key_F5, Qt::Key_Left})
        QTest::sendKeyEvent(QTest::Press, knopf, taste,
                            taste == Qt::Key_Tab ? QString("\t") : QString(), Qt::NoModifier);
    QTest::sendKeyEvent(QTest::Press, knopf, Qt::Key_C, QString("c"), Qt::ControlModifier);
    QTest::sendKeyEvent(QTest::Press, knopf, Qt::Key_D, QString("d"), Qt::AltModifier);
    EXPECT_EQ(ereignisse, Liste{});
    FokusAuf(knopf);
    QTest::keyClick(knopf, Qt::Key_A);
    QTest::keyClick(knopf, Qt::Key_Space);
    QTest::keyClick(knopf, Qt::Key_Return);
    EXPECT_EQ(ereignisse, (Liste{"Taste", "Taste", "Taste"}));
}

TEST_F(BausteineTest, LeertasteUndBeideEingabetastenDrückenDenKnopfMitDemFokus)
{
    QObject::connect(knopf, &QPushButton::clicked, knopf, Merken("geklickt"));
    FokusAuf(knopf);
    for (auto taste : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter})
        QTest::keyClick(knopf, taste);
    EXPECT_EQ(ereignisse.size(), 3U);
    FokusAuf(feld);
    QTest::keyClick(feld, Qt::Key_Return); // no button answers for a text box
    EXPECT_EQ(ereignisse.size(), 3U);
}

TEST_F(BausteineTest, EinTextfeldKürztNichts)
{
    const Text lang(40000, 'x');
    Setzen(feld, lang);
    EXPECT_EQ(TextVon(feld), lang);
}

TEST_F(BausteineTest, KnöpfeSindGrünMitUndGrauOhneFokus)
{
    FokusAuf(knopf);
    EXPECT_EQ(Grundfarbe(knopf), QColor(0, 255, 0));
    EXPECT_EQ(Grundfarbe(anderer), QColor(192, 192, 192));
    FokusAuf(anderer);
    EXPECT_EQ(Grundfarbe(knopf), QColor(192, 192, 192));
    EXPECT_EQ(Grundfarbe(anderer), QColor(0, 255, 0));
    FokusAuf(feld);
    EXPECT_EQ(Grundfarbe(anderer), QColor(192, 192, 192));
}

} // namespace
} // namespace altardienst
