// The events of a form that leaves the foreground and comes back to it.
#include "controls/Vordergrund.h"

#include <QGuiApplication>
#include <QWindow>

#include <utility>

namespace altardienst {
namespace {

constexpr const char *Nachlesen = "zumNachlesen"; // the property of such a window

} // namespace

void BeiRückkehr(QWidget *form, std::function<void()> handler, std::function<void()> beimVerlassen)
{
    QObject::connect(qGuiApp, &QGuiApplication::focusWindowChanged, form,
                     [form, handler = std::move(handler), beimVerlassen = std::move(beimVerlassen),
                      warFort = false](const QWindow *jetzt) mutable {
                         const QWindow *eigenes = form->windowHandle(); // none before it is shown
                         if (!eigenes || !jetzt || jetzt->type() != Qt::Window ||
                             IstZumNachlesen(jetzt))
                             return;
                         if (jetzt == eigenes) {
                             if (std::exchange(warFort, false))
                                 handler();
                         } else if (!std::exchange(warFort, true) && form->isVisible()) {
                             beimVerlassen();
                         }
                     });
}

void ZumNachlesen(QWidget *fenster)
{
    fenster->winId(); // it has a handle only from here on
    fenster->windowHandle()->setProperty(Nachlesen, true);
}

bool IstZumNachlesen(const QWindow *fenster)
{
    return fenster && fenster->property(Nachlesen).toBool();
}

bool IstZumNachlesen(const QWidget *fenster)
{
    return fenster && IstZumNachlesen(fenster->windowHandle());
}

} // namespace altardienst
