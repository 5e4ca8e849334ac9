// What the program remembers of its windows from one run to the next: their places, what is folded
// away. It lies in a file of its own, never in one of the eight, and the program works without it.
#pragma once

#include <QSettings>
#include <QString>

namespace altardienst {

/// The user's own file, unless another one was set; written by itself in idle moments and at the
/// end. A value that cannot be stored is forgotten without a word. Needs the application object.
QSettings &Gemerktes();

/// Uses another file from now on, so that tests and planlauf leave the user's alone; an empty name
/// stands for the user's.
void GemerktesIn(const QString &datei);

} // namespace altardienst
