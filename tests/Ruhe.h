// Lets the program work until it waits for the user.
#pragma once

#include <QAbstractEventDispatcher>
#include <QEventLoop>
#include <QTimer>

namespace altardienst {

/// However long the system takes to draw its windows, and at least so many milliseconds.
inline void Ruhe(int mindestens)
{
    QEventLoop schleife;
    bool ruht = false;
    bool genug = false;
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
                     &schleife, [&] {
                         ruht = true;
                         if (genug)
                             schleife.quit();
                     });
    QTimer::singleShot(mindestens, &schleife, [&] {
        genug = true;
        if (ruht)
            schleife.quit();
    });
    schleife.exec();
}

} // namespace altardienst
