// The event of a form that comes back to the foreground.
#pragma once

#include <QWidget>

#include <functional>

namespace altardienst {

/// Runs when the user comes back to the form from another form of the program. Message boxes and
/// other programs do not count: what was begun on the screen goes on behind them.
void BeiRückkehr(QWidget *form, std::function<void()> handler);

} // namespace altardienst
