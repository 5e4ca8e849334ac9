// What holds for all windows.
#include "application/Anwendung.h"

#include "application/Dateiwahl.h"
#include "application/Deutsch.h"
#include "application/Druckmitteilung.h"
#include "application/Fensterordnung.h"
#include "application/Meldungsfenster.h"
#include "application/Nebenfenster.h"
#include "application/Wartezeiger.h"
#include "controls/Bausteine.h"
#include "controls/Handler.h"
#include "controls/Stil.h"
#include "core/Allgemein.h"
#include "paper/Druckdialog.h"
#include "platform/Betrachter.h"
#include "platform/Laufwerke.h"
#include "platform/Systeminfo.h"

#include <QDesktopServices>
#include <QLocale>
#include <QPointer>
#include <QProcess>
#include <QTimer>
#include <QUrl>

#include <filesystem>
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

/// What opens comes first: the main window is drawn grey a moment later, if the desktop has not put
/// it away by then.
void HauptfensterSperren()
{
    constexpr int Augenblick = 150; // milliseconds
    Hauptfenster->setUpdatesEnabled(false);
    Hauptfenster->setEnabled(false);
    Hauptfenster->showMinimized();
    QTimer::singleShot(Augenblick, Hauptfenster,
                       Nebenbei([haupt = Hauptfenster.data()] { haupt->setUpdatesEnabled(true); }));
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
    Betrachter.Öffnen = [](const std::filesystem::path &datei) {
        return QDesktopServices::openUrl(QUrl::fromLocalFile(Anzeige(TextVon(datei))));
    };
    Betrachter.Verweis = [](const Text &verweis) {
        return QDesktopServices::openUrl(
            QUrl::fromEncoded(QByteArray::fromStdString(verweis), QUrl::StrictMode));
    };
    DateiwahlEinrichten();
    DateiwartezeigerEinrichten();
    DruckgewohnheitenMerken();
    static DruckerQt drucker(DruckdialogZeigen, DruckMitteilen);
    Drucker = &drucker;
    MeldungsfensterEinrichten();
}

void HauptfensterSetzen(QWidget *haupt)
{
    if (haupt && haupt != Hauptfenster)
        FensterordnungHalten(haupt);
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
        HauptfensterSperren();
    }
    DialogDanebenÖffnen(dialog);
}

void HauptfensterZurück()
{
    if (!Hauptfenster)
        return;
    Hauptfenster->setUpdatesEnabled(true);
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
