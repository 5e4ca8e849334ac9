// The event of a form that comes back to the foreground.
#include "fenster/Vordergrund.h"

#include <QGuiApplication>
#include <QWindow>

#include <utility>

namespace altardienst {

void BeiRückkehr(QWidget *form, std::function<void()> handler)
{
    QObject::connect(
        qGuiApp, &QGuiApplication::focusWindowChanged, form,
        [form, handler = std::move(handler), warFort = false](const QWindow *jetzt) mutable {
            const QWindow *eigenes = form->windowHandle(); // none before it is shown
            if (!eigenes || !jetzt || jetzt->type() != Qt::Window)
                return;
            if (jetzt != eigenes)
                warFort = true;
            else if (std::exchange(warFort, false))
                handler();
        });
}

} // namespace altardienst
