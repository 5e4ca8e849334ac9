// The ends of the program that come from outside: a signal, and the end of the desktop session.
#pragma once

#include <QWidget>

#include <functional>

namespace altardienst {

/// From now on `verlassen` runs in the event loop after SIGTERM, SIGHUP or SIGINT, and when the
/// desktop session ends.
void BeiEndeVonAußen(const std::function<void()> &verlassen);

/// Whether that has happened: the event loop of the program may not have been entered by then.
bool EndeVonAußen();

/// Closes every open window but this one, without a message or a question that nobody could answer:
/// what was typed there is written as if the user had closed it.
void AndereFensterSchließen(const QWidget *außer);

} // namespace altardienst
