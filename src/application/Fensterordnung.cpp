// Which window stands in front.
#include "application/Fensterordnung.h"

#include "controls/Handler.h"
#include "controls/Vordergrund.h"

#include <QApplication>
#include <QCloseEvent>
#include <QPointer>
#include <QTimer>
#include <QWindow>

#include <algorithm>

namespace altardienst {
namespace {

class Fensterordnung : public QObject {
  public:
    explicit Fensterordnung(QWidget *haupt) : QObject(haupt), haupt(haupt)
    {
        qApp->installEventFilter(this);
        connect(qApp, &QGuiApplication::focusWindowChanged, this,
                Abgefangen([this](const QWindow *jetzt) { Merken(jetzt); }));
    }

    bool eventFilter(QObject *wer, QEvent *ereignis) override
    {
        if (wer != haupt) {
            if (ereignis->type() == QEvent::Show && !ereignis->spontaneous() &&
                wer->isWidgetType() && static_cast<QWidget *>(wer)->isWindow())
                Merken(static_cast<QWidget *>(wer));
            return false;
        }
        switch (ereignis->type()) {
        case QEvent::Close:
            // The exit routine closes the window itself.
            if (haupt->isEnabled() || !ereignis->spontaneous())
                return false;
            ereignis->ignore();
            Planen();
            return true;
        case QEvent::WindowActivate:
        case QEvent::WindowStateChange:
            if (!haupt->isMinimized())
                Planen();
            return false;
        default:
            return false;
        }
    }

  private:
    /// Once the desktop has done what it was about to do.
    void Planen()
    {
        QTimer::singleShot(0, this, Abgefangen([this] { Ordnen(); }));
    }

    void Ordnen() const
    {
        if (QWidget *meldung = QApplication::activeModalWidget()) {
            meldung->raise();
            meldung->activateWindow();
            return;
        }
        const QWidgetList offene = Offene();
        if (haupt->isEnabled() && !haupt->isActiveWindow())
            return;
        for (QWidget *fenster : offene)
            if (!fenster->isMinimized())
                fenster->raise();
        if (!haupt->isEnabled() && !offene.empty())
            NachVorn(offene.last());
    }

    static void NachVorn(QWidget *dialog)
    {
        dialog->setWindowState(dialog->windowState() & ~Qt::WindowMinimized);
        dialog->raise();
        dialog->activateWindow();
    }

    /// What is open beside the main window, the one that was used last at the end.
    QWidgetList Offene() const
    {
        QWidgetList offene;
        const QWidgetList alle = QApplication::topLevelWidgets();
        for (QWidget *fenster : alle)
            if (fenster != haupt && fenster->windowType() == Qt::Window && fenster->isVisible() &&
                fenster->isEnabled() && !fenster->parent() && !IstZumNachlesen(fenster))
                offene.append(fenster);
        std::ranges::stable_sort(offene, {},
                                 [this](QWidget *fenster) { return benutzt.indexOf(fenster); });
        return offene;
    }

    void Merken(const QWindow *jetzt)
    {
        const QWidgetList alle = QApplication::topLevelWidgets();
        for (QWidget *fenster : alle)
            if (jetzt && fenster->windowHandle() == jetzt)
                Merken(fenster);
    }

    /// A window that has only just come counts as used.
    void Merken(QWidget *fenster)
    {
        benutzt.removeIf(
            [&](const QPointer<QWidget> &eines) { return !eines || eines == fenster; });
        benutzt.append(fenster);
    }

    QWidget *haupt;
    QList<QPointer<QWidget>> benutzt; // the last one at the end
};

} // namespace

void FensterordnungHalten(QWidget *haupt)
{
    new Fensterordnung(haupt);
}

} // namespace altardienst
