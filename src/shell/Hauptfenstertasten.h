// Keys of the main window that also work in the windows that stand beside it.
#pragma once

#include <QKeySequence>
#include <QWidget>

#include <functional>

namespace altardienst {

/// From now on the key does this in every other window of the program too, as long as `haupt` is in
/// use: not while a dialog blocks it or a message waits for its answer.
void TasteAuchDaneben(QWidget *haupt, const QKeySequence &taste, std::function<void()> aktion);

} // namespace altardienst
