// The way from a hit to the place where it stands, from whatever window is open.
#pragma once

#include "search/Suche.h"

#include <QAbstractButton>
#include <QWidget>

namespace altardienst {

/// The window that has to be left before the hit can be shown; null if there is none. `vorn` is the
/// window in which one is.
QWidget *Hindernis(const Fund &treffer, QWidget *vorn);

/// The button by which the window can be left from here: "Ende", or "OK" where there is no
/// "Abbrechen". Null for the others: they take or drop what was typed, which is for the user to
/// decide.
QAbstractButton *Endeknopf(const QWidget *fenster);

/// Shows the record of the hit and gives the focus to its place. What is open is left by its
/// button, and a form that is open at another record makes a step like PLUS; where one of the two
/// does not succeed, it stays as it is. Otherwise the form opens as from the menu.
void Hingehen(const Fund &treffer, QWidget *vorn);

} // namespace altardienst
