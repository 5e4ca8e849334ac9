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
        case QEvent::Show:
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

    /// What one reads stays in front of the main window, unless it covers its buttons: one presses
    /// these while reading about them.
    QWidgetList Danebengelegte() const
    {
        QWidgetList gelegte;
        const QWidgetList alle = QApplication::topLevelWidgets();
        for (QWidget *fenster : alle)
            if (haupt->isEnabled() && fenster->isVisible() && IstZumNachlesen(fenster) &&
                LäßtKnöpfeFrei(fenster))
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
};

} // namespace

void FensterordnungHalten(QWidget *haupt)
{
    new Fensterordnung(haupt);
}

} // namespace altardienst
