// Which window stands in front.
#include "application/Fensterordnung.h"

#include "controls/Handler.h"
#include "controls/Vordergrund.h"

#include <QApplication>
#include <QCloseEvent>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <utility>

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
        switch (ereignis->type()) {
        case QEvent::Expose: // a desktop may have put it in front of the others
            if (wer == haupt->windowHandle())
                Planen();
            return false;
        case QEvent::MouseButtonPress:
            if (IstInHaupt(wer))
                Planen();
            return false;
        case QEvent::Show:
        case QEvent::Hide:
        case QEvent::Close:
        case QEvent::WindowActivate:
        case QEvent::WindowStateChange:
            break;
        default:
            return false;
        }
        auto *fenster = wer->isWidgetType() ? static_cast<QWidget *>(wer) : nullptr;
        if (!fenster || !fenster->isWindow())
            return false;
        const bool gesperrt = !fenster->isEnabled() && fenster->windowType() == Qt::Window;
        switch (ereignis->type()) {
        case QEvent::Show:
            if (fenster != haupt && !ereignis->spontaneous())
                Merken(fenster);
            return false;
        case QEvent::Hide:
            if (fenster->windowType() == Qt::Popup)
                Planen(); // what was to come waits while it is open
            return false;
        case QEvent::Close:
            // The exit routine closes the windows itself.
            if (!gesperrt || !ereignis->spontaneous())
                return false;
            ereignis->ignore();
            Planen();
            return true;
        default:
            if ((gesperrt || fenster == haupt) && !fenster->isMinimized())
                Planen();
            return false;
        }
    }

  private:
    /// Most desktops put the window in front in which one clicks, also if it is active already and
    /// nothing is activated.
    bool IstInHaupt(QObject *wer) const
    {
        return wer->isWidgetType() && static_cast<QWidget *>(wer)->window() == haupt;
    }

    /// Once the desktop has done what it was about to do.
    void Planen()
    {
        if (!std::exchange(geplant, true))
            QTimer::singleShot(0, this, Abgefangen([this] { Ordnen(); }));
    }

    void Ordnen()
    {
        geplant = false;
        if (QApplication::activePopupWidget()) // a menu of the main window stays in front
            return;
        if (QWidget *meldung = QApplication::activeModalWidget())
            return NachVorn(meldung);
        const QWidgetList offene = Offene();
        if (haupt->isEnabled() && !haupt->isActiveWindow())
            return;
        for (QWidget *fenster : offene + Danebengelegte())
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

    /// What one reads stays in front of the main window, unless it covers buttons that can be
    /// pressed: one does so while reading about them.
    QWidgetList Danebengelegte() const
    {
        QWidgetList gelegte;
        const QWidgetList alle = QApplication::topLevelWidgets();
        for (QWidget *fenster : alle)
            if (fenster->isVisible() && IstZumNachlesen(fenster) &&
                (!haupt->isEnabled() || LäßtKnöpfeFrei(fenster)))
                gelegte.append(fenster);
        return gelegte;
    }

    bool LäßtKnöpfeFrei(const QWidget *fenster) const
    {
        const auto knöpfe = haupt->findChildren<QPushButton *>();
        return std::ranges::none_of(knöpfe, [&](const QPushButton *knopf) {
            const QRect platz(knopf->mapToGlobal(QPoint(0, 0)), knopf->size());
            return knopf->isVisible() && fenster->frameGeometry().intersects(platz);
        });
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
    bool geplant = false;
};

} // namespace

void FensterordnungHalten(QWidget *haupt)
{
    new Fensterordnung(haupt);
}

} // namespace altardienst
