// The fixture of the tests that drive real windows.
#include "Fensterstand.h"

#include "application/Anwendung.h"
#include "application/Fangnetz.h"
#include "application/Gemerktes.h"
#include "application/Mitteilung.h"
#include "controls/Textwahl.h"
#include "controls/Unerwartetes.h"
#include "paper/Druckdialog.h"
#include "platform/Drucker.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFocusEvent>
#include <QPointer>
#include <QTemporaryDir>
#include <QTimer>

namespace altardienst {
namespace {

constexpr int Geduld = 5000; // ms

MeldungenDienst Meldungsfenster; // the message boxes that the program installs

QWidget *OffenesFenster(const char *name)
{
    const QWidgetList fenster = QApplication::topLevelWidgets();
    for (QWidget *eines : fenster)
        if (eines->isVisible() && eines->objectName() == QString::fromUtf8(name))
            return eines;
    return nullptr;
}

void AlleLöschen()
{
    HauptfensterSetzen(nullptr);
    const QWidgetList fenster = QApplication::topLevelWidgets();
    std::vector<QPointer<QWidget>> eigene(fenster.begin(), fenster.end());
    for (const auto &eines : eigene)
        if (eines && !eines->parent()) {
            eines->hide(); // as the program does: focus-out handlers run on an intact window
            delete eines;
        }
}

} // namespace

Text NamenIn(const QObject *fenster)
{
    Text namen;
    for (const QObject *kind : fenster->findChildren<QObject *>())
        if (!kind->objectName().isEmpty() && !kind->objectName().startsWith("qt_"))
            namen += kind->objectName().toStdString() + " ";
    return namen;
}

Text Zeigt(const QWidget *control)
{
    if (auto *label = qobject_cast<const QLabel *>(control))
        return label->text().toStdString();
    if (auto *feld = qobject_cast<const QLineEdit *>(control))
        return feld->text().toStdString();
    if (auto *wahl = qobject_cast<const QComboBox *>(control))
        return TextVon(wahl);
    if (auto *knopf = qobject_cast<const QAbstractButton *>(control))
        return knopf->text().toStdString();
    throw std::runtime_error(control->objectName().toStdString() + " shows no text");
}

bool Angekreuzt(const QWidget *control)
{
    if (auto *knopf = qobject_cast<const QAbstractButton *>(control))
        return knopf->isChecked();
    throw std::runtime_error(control->objectName().toStdString() + " cannot be marked");
}

void Klick(QWidget *control)
{
    QTest::mouseClick(control, Qt::LeftButton);
}

void Ankreuzen(QWidget *option)
{
    QTest::mouseClick(option, Qt::LeftButton, {}, {10, option->height() / 2});
}

void Drehen(QWidget *spin, const Text &richtung)
{
    Klick(Finden(spin, richtung));
}

void FokusAuf(QWidget *control)
{
    control->setFocus(Qt::TabFocusReason);
    if (!control->hasFocus())
        throw std::runtime_error(control->objectName().toStdString() + " did not take the focus");
}

void Tippen(QWidget *feld, const Text &text)
{
    FokusAuf(feld);
    QTest::keyClick(feld, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(feld, Qt::Key_Delete);
    for (const QChar zeichen : Anzeige(text)) // umlauts too
        QTest::sendKeyEvent(QTest::Click, feld, Qt::Key_unknown, QString(zeichen), Qt::NoModifier);
}

void Einfügen(QWidget *feld, const Text &text)
{
    FokusAuf(feld);
    QApplication::clipboard()->setText(Anzeige(text));
    QTest::keyClick(feld, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(feld, Qt::Key_V, Qt::ControlModifier);
}

void Taste(Qt::Key taste)
{
    QTest::keyClick(QApplication::focusWidget(), taste);
}

void Taste(QWidget *control, Qt::Key taste)
{
    FokusAuf(control);
    QTest::keyClick(control, taste);
}

void Einsetzen(QWidget *feld, const Text &text)
{
    if (auto *wahl = qobject_cast<QComboBox *>(feld))
        return Setzen(wahl, text);
    if (auto *box = qobject_cast<QLineEdit *>(feld))
        return box->setText(Anzeige(text));
    throw std::runtime_error(feld->objectName().toStdString() + " takes no text");
}

void Auslösen(QAbstractButton *knopf)
{
    knopf->click();
}

void DrehungAuslösen(QWidget *spin, int richtung)
{
    Auslösen(Finden<QAbstractButton>(spin, richtung > 0 ? "auf" : "ab"));
}

void FokusWeg(QWidget *feld)
{
    QFocusEvent ereignis(QEvent::FocusOut, Qt::TabFocusReason);
    QApplication::sendEvent(feld, &ereignis);
}

void MenüWählen(const QObject *fenster, const Text &eintrag)
{
    Finden<QAction>(fenster, eintrag)->trigger();
}

QColor Grundfarbe(QWidget *knopf)
{
    return knopf->grab().toImage().pixelColor(5, knopf->height() / 2);
}

std::vector<Text> Tabfolge(QWidget *fenster)
{
    std::vector<Text> namen;
    const QWidget *erster = QApplication::focusWidget();
    const QWidget *jetzt = erster;
    do {
        namen.push_back(jetzt->objectName().toStdString());
        QTest::keyClick(fenster->windowHandle(), Qt::Key_Tab);
        jetzt = QApplication::focusWidget();
    } while (jetzt && jetzt != erster && namen.size() < 100);
    return namen;
}

std::vector<Text> Stumme(QWidget *fenster)
{
    std::vector<Text> namen;
    for (QWidget *control : fenster->findChildren<QWidget *>()) {
        if (!control->isVisibleTo(fenster) || control->focusPolicy() == Qt::NoFocus)
            continue;
        QAccessibleInterface *hilfe = QAccessible::queryAccessibleInterface(control);
        if (!hilfe || hilfe->text(QAccessible::Name).isEmpty())
            namen.push_back(control->objectName().toStdString());
    }
    return namen;
}

Fensterstand::Fensterstand()
{
    Gemerktes().clear();
    const auto wählen = [this](QWidget *, const Dateiwunsch &wunsch) {
        Dateiwünsche.push_back(wunsch);
        return GewählteDatei;
    };
    Dateiwahl = {wählen, wählen, wählen};
}

Fensterstand::~Fensterstand()
{
    AlleLöschen();
    Dateiwahl = {};
    for (const Text &text : GezeigteMeldungen)
        if (text.starts_with("Unerwarteter Fehler"))
            ADD_FAILURE() << text;
    Meldungen.Zeigen = [](const Text &text) { ADD_FAILURE() << "after the test: " << text; };
    UnerwartetesZeigen();
    GegebenePdfNamen().clear(); // the next dialog would propose them
    Mitteilungen() = {};
}

void Fensterstand::Zeigen(QWidget *fenster)
{
    fenster->show();
    fenster->activateWindow();
    if (!QTest::qWaitForWindowActive(fenster))
        throw std::runtime_error(fenster->objectName().toStdString() + " did not become active");
}

QWidget *Fensterstand::Fenster(const char *name)
{
    if (!Warten([&] { return IstOffen(name); }))
        throw std::runtime_error("the window " + Text(name) + " did not open");
    return OffenesFenster(name);
}

bool Fensterstand::IstOffen(const char *name)
{
    return OffenesFenster(name) != nullptr;
}

bool Fensterstand::Warten(const std::function<bool()> &bedingung)
{
    return QTest::qWaitFor(bedingung, Geduld);
}

int Fensterstand::Programmlauf(const std::function<void()> &beginn)
{
    constexpr int NichtBeendet = -99;
    QTimer wache;
    wache.setSingleShot(true);
    QObject::connect(&wache, &QTimer::timeout, [] { QApplication::exit(NichtBeendet); });
    wache.start(Geduld);
    QTimer::singleShot(0, [&] {
        try {
            beginn();
        } catch (const std::exception &fehler) {
            ADD_FAILURE() << fehler.what();
            QApplication::exit(NichtBeendet);
        }
    });
    const int ergebnis = QApplication::exec();
    if (ergebnis == NichtBeendet)
        throw std::runtime_error("the program did not end");
    return ergebnis;
}

void Fensterstand::EchteMeldungen()
{
    Meldungen = Meldungsfenster;
}

void Fensterstand::MeldungenBestätigen()
{
    EchteMeldungen();
    Meldungen.Zeigen = [this, zeigen = Meldungen.Zeigen](const Text &text) {
        GezeigteMeldungen.push_back(text);
        const QPointer<QWidget> zuvor = QApplication::activeWindow();
        Beantworten([](QMessageBox *box) {
            EXPECT_TRUE(QTest::qWaitForWindowActive(box));
            box->accept();
        });
        zeigen(text);
        if (zuvor)
            Zeigen(zuvor); // as a desktop does
    };
}

void Fensterstand::Beantworten(const std::function<void(QMessageBox *)> &antwort)
{
    QTimer::singleShot(1, [antwort] {
        const QPointer box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        try {
            if (box)
                antwort(box);
            else
                ADD_FAILURE() << "no message box opened";
        } catch (...) { // or else the box would wait for ever
            if (box)
                box->reject();
            throw;
        }
    });
}

namespace {

/// The program's application object, except that whatever a fixture throws within an event fails
/// the test.
class Prüfanwendung : public Fangnetz {
  public:
    using Fangnetz::Fangnetz;

  protected:
    bool Auffangen(QEvent *ereignis) override
    {
        try {
            throw;
        } catch (const std::runtime_error &fehler) {
            ADD_FAILURE() << fehler.what();
            return true;
        } catch (...) {
            return Fangnetz::Auffangen(ereignis);
        }
    }
};

} // namespace
} // namespace altardienst

int main(int argc, char *argv[])
{
#ifdef Q_OS_WIN
    // On the screen: the other platform has no fonts there, and this one is the user's.
    qputenv("QT_QPA_FONTDIR",
            qgetenv("WINDIR") + "\\Fonts"); // for whoever asks for it none the less
#else
    qputenv("QT_QPA_PLATFORM", "offscreen");
#endif
    ::testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir verzeichnis;
    altardienst::Prüfanwendung anwendung(argc, argv);
    altardienst::GemerktesIn(verzeichnis.filePath("Gemerktes.ini"));
    altardienst::DruckerDienst *ohneDrucker = altardienst::Drucker;
    altardienst::AnwendungEinrichten(anwendung);
    altardienst::Drucker = ohneDrucker; // a print dialog would wait for someone
    altardienst::Meldungsfenster = altardienst::Meldungen;
    return RUN_ALL_TESTS();
}
