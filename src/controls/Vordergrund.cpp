// The events of a form that leaves the foreground and comes back to it.
#include "controls/Vordergrund.h"

#include <QGuiApplication>
#include <QWindow>

#include <utility>

namespace altardienst {

void BeiRückkehr(QWidget *form, std::function<void()> handler, std::function<void()> beimVerlassen)
{
    QObject::connect(qGuiApp, &QGuiApplication::focusWindowChanged, form,
                     [form, handler = std::move(handler), beimVerlassen = std::move(beimVerlassen),
                      warFort = false](const QWindow *jetzt) mutable {
                         const QWindow *eigenes = form->windowHandle(); // none before it is shown
                         if (!eigenes || !jetzt || jetzt->type() != Qt::Window)
                             return;
                         if (jetzt == eigenes) {
                             if (std::exchange(warFort, false))
                                 handler();
                         } else if (!std::exchange(warFort, true) && form->isVisible()) {
                             beimVerlassen();
                         }
                     });
}

} // namespace altardienst
