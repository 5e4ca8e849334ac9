// The application object.
#include "application/Fangnetz.h"

#include "controls/Unerwartetes.h"

#include <QAbstractButton>
#include <QEvent>
#include <QMenu>
#include <QMenuBar>
#include <QScopeGuard>
#include <QTimer>

namespace altardienst {
namespace {

Anlaß AnlaßVon(const QEvent &ereignis)
{
    switch (ereignis.type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Close:
        return Anlaß::Benutzer;
    default:
        return Anlaß::VonSelbst;
    }
}

/// The focus of a button concerns nobody, nor does a menu that closes.
bool HatInhalt(const QObject *empfänger)
{
    return empfänger->isWidgetType() && !qobject_cast<const QAbstractButton *>(empfänger) &&
           !qobject_cast<const QMenu *>(empfänger) && !qobject_cast<const QMenuBar *>(empfänger);
}

bool IstTakt(const QObject *empfänger)
{
    const auto *uhr = qobject_cast<const QTimer *>(empfänger);
    return uhr && !uhr->isSingleShot();
}

bool KannÄndern(const QObject *empfänger, QEvent::Type art)
{
    switch (art) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::Drop:
    case QEvent::WindowActivate:
    case QEvent::WindowDeactivate:
    case QEvent::MetaCall:
    case QEvent::SockAct:
    case QEvent::DeferredDelete:
        return true;
    case QEvent::Close:
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        return HatInhalt(empfänger);
    case QEvent::Timer:
        return !IstTakt(empfänger);
    default:
        return false;
    }
}

} // namespace

std::uint64_t Fangnetz::ereignisse = 0;

bool Fangnetz::notify(QObject *empfänger, QEvent *ereignis)
{
    // Afterwards the receiver may be gone.
    const bool zählt = KannÄndern(empfänger, ereignis->type());
    const auto zählen = qScopeGuard([zählt] { ereignisse += zählt ? 1 : 0; });
    try {
        return QApplication::notify(empfänger, ereignis);
    } catch (...) {
        return Auffangen(ereignis);
    }
}

bool Fangnetz::Auffangen(QEvent *ereignis)
{
    if (ereignis->type() == QEvent::Close)
        ereignis->ignore();
    UnerwartetesMelden(AnlaßVon(*ereignis));
    return true;
}

} // namespace altardienst
