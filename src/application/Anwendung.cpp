// What holds for all windows.
#include "application/Anwendung.h"

#include "application/Deutsch.h"
#include "application/Nebenfenster.h"
#include "application/Wartezeiger.h"
#include "controls/Bausteine.h"
#include "controls/Stil.h"
#include "controls/Verlassen.h"
#include "core/Allgemein.h"
#include "paper/Druckdialog.h"
#include "platform/Laufwerke.h"
#include "platform/Meldungen.h"
#include "platform/Systeminfo.h"

#include <QLocale>
#include <QMessageBox>
#include <QPointer>
#include <QProcess>
#include <QTimer>

#include <vector>

namespace altardienst {
namespace {

QPointer<QWidget> Hauptfenster;
QPointer<QWidget> FokusZuvor; // in the main window, before a dialog disabled it

/// A form that is hidden, and the dialog in its place.
struct Vertretung {
    QPointer<QWidget> Form;
    QPointer<QWidget> Dialog;
};

std::vector<Vertretung> vertretungen; // the last one of a form counts

class Mausschlucker : public QObject {
  public:
    using QObject::QObject;
    bool eventFilter(QObject *, QEvent *ereignis) override
    {
        return ereignis->type() == QEvent::MouseButtonPress;
    }
};

/// Leaving a box with a mouse press may bring up a message. The press then reaches its button only
/// after the message, and its release never does: the button would stay down, or a spin button keep
/// running.
void DruckVerwerfen()
{
    auto *schlucker = new Mausschlucker(qApp);
    qApp->installEventFilter(schlucker);
    QTimer::singleShot(0, schlucker, &QObject::deleteLater);
}

QMessageBox::StandardButton MeldungZeigen(const Text &text, const Text &titel,
                                          QMessageBox::StandardButtons knöpfe,
                                          QMessageBox::StandardButton vorgabe)
{
    const OhneWartezeiger ohne;
    const OhneVerlassen ruhe; // the box that loses the focus to the message has it again after it
    QMessageBox box(QApplication::activeWindow());
    box.setObjectName("Meldung");
    box.setWindowTitle(Anzeige(titel));
    box.setTextFormat(Qt::PlainText);
    box.setText(Anzeige(text));
    box.setStandardButtons(knöpfe);
    for (const auto &[art, wort] :
         {std::pair(QMessageBox::Ok, "OK"), {QMessageBox::Yes, "&Ja"}, {QMessageBox::No, "&Nein"}})
        if (QAbstractButton *knopf = box.button(art))
            knopf->setText(wort);
    box.setDefaultButton(vorgabe);
    const bool beiMausdruck = QGuiApplication::mouseButtons() != Qt::NoButton;
    const auto antwort = static_cast<QMessageBox::StandardButton>(box.exec());
    if (beiMausdruck)
        DruckVerwerfen();
    return antwort;
}

} // namespace

void AnwendungEinrichten(QApplication &anwendung)
{
    // No display name is set: it would be added to the title of every window.
    QApplication::setApplicationName("Altardienst");
    QApplication::setQuitOnLastWindowClosed(false);
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    QApplication::installTranslator(new Deutsch(&anwendung));
    QApplication::setStyle(new Stil);

    TabellenGeladen = OffeneFormenBelassen;
    Systeminfo.Starten = [](const std::filesystem::path &programm) {
        QProcess::startDetached(Anzeige(TextVon(programm)), {});
    };
    static DruckerQt drucker(DruckdialogZeigen);
    Drucker = &drucker;
    Meldungen.Zeigen = [](const Text &text) {
        MeldungZeigen(text, "Altardienst", QMessageBox::Ok, QMessageBox::Ok);
    };
    Meldungen.Fragen = [](const Text &text, const Text &titel) {
        return MeldungZeigen(text, titel, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes) ==
               QMessageBox::Yes;
    };
}

void HauptfensterSetzen(QWidget *haupt)
{
    Hauptfenster = haupt;
}

bool HauptfensterBereit()
{
    return Hauptfenster && Hauptfenster->isEnabled();
}

void DialogDanebenÖffnen(QWidget *dialog)
{
    std::erase_if(vertretungen, [dialog](const Vertretung &v) {
        return !v.Form || !v.Dialog || v.Form == dialog;
    });
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setEnabled(true);
    dialog->setWindowState(dialog->windowState() & ~Qt::WindowMinimized);
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
}

void DialogAnStelleÖffnen(QWidget *form, QWidget *dialog)
{
    form->hide();
    vertretungen.push_back({form, dialog});
    DialogDanebenÖffnen(dialog);
}

QWidget *AufDemSchirm(QWidget *form)
{
    if (form->isVisible())
        return form;
    for (auto v = vertretungen.rbegin(); v != vertretungen.rend(); ++v) // the latest counts
        if (v->Form == form && v->Dialog)
            if (QWidget *vorn = AufDemSchirm(v->Dialog))
                return vorn;
    return nullptr;
}

void DialogÖffnen(QWidget *dialog)
{
    if (Hauptfenster) {
        if (Hauptfenster->isEnabled())
            FokusZuvor = Hauptfenster->focusWidget();
        Hauptfenster->setEnabled(false);
        Hauptfenster->showMinimized();
    }
    DialogDanebenÖffnen(dialog);
}

void HauptfensterZurück()
{
    if (!Hauptfenster)
        return;
    Hauptfenster->setEnabled(true);
    Hauptfenster->showMaximized();
    Hauptfenster->activateWindow();
    if (FokusZuvor)
        FokusZuvor->setFocus();
    FokusZuvor.clear();
}

void AlleFormenEntladen()
{
    const QWidgetList fenster = QApplication::topLevelWidgets();
    for (QWidget *form : fenster) {
        if (!form->isWindow() || form->parent())
            continue;
        form->hide();
        form->deleteLater();
    }
}

} // namespace altardienst
