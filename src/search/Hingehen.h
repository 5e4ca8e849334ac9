// The way from a hit to the place where it stands, from whatever window is open.
#pragma once

#include "search/Suche.h"

#include <QWidget>

namespace altardienst {

/// The window that has to be left before the hit can be shown; null if there is none. `vorn` is the
/// window in which one is.
QWidget *Hindernis(const Fund &treffer, QWidget *vorn);

/// Whether the window can be left from here: it has a button "Ende". Others take or drop what was
/// typed, which is for the user to decide.
bool LäßtSichBeenden(const QWidget *fenster);

/// Shows the record of the hit and gives the focus to its place. What is open is left like by
/// "Ende", and a form that is open at another record makes a step like PLUS; where one of the two
/// does not succeed, it stays as it is. Otherwise the form opens as from the menu.
void Hingehen(const Fund &treffer, QWidget *vorn);

} // namespace altardienst
