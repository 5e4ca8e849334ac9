// Every window opens where and as large as it was last time.
#pragma once

#include <QApplication>
#include <QList>
#include <QRect>

namespace altardienst {

/// From now on the places of all windows are kept in `Gemerktes`, but that of
/// the main window, which is always maximised, and those of message boxes.
/// Deleting the object ends it.
QObject *FensterplätzeMerken(QApplication &anwendung);

/// A frame moved, and made smaller, so that all of it lies on that of the
/// screens on which most of it lies; on the first one if it lies on none.
QRect AufEinenBildschirm(const QRect &rahmen, const QList<QRect> &bildschirme);

} // namespace altardienst
