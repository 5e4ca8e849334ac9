// The wait cursor during a step that may search for a while.
#include "application/Wartezeiger.h"

#include <QGuiApplication>
#include <QScopeGuard>

namespace altardienst {

void UnterWartezeiger(const std::function<void()> &aktion)
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const auto zurück = qScopeGuard(QGuiApplication::restoreOverrideCursor);
    aktion();
}

OhneWartezeiger::OhneWartezeiger()
{
    if (const QCursor *zeiger = QGuiApplication::overrideCursor()) {
        zuvor = *zeiger;
        QGuiApplication::restoreOverrideCursor();
    }
}

OhneWartezeiger::~OhneWartezeiger()
{
    if (zuvor)
        QGuiApplication::setOverrideCursor(*zuvor);
}

} // namespace altardienst
