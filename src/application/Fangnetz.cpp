// The application object.
#include "application/Fangnetz.h"

#include "controls/Unerwartetes.h"

#include <QEvent>

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

} // namespace

bool Fangnetz::notify(QObject *empfänger, QEvent *ereignis)
{
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
