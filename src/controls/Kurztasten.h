// Keys that press the command buttons: the same key for the same caption in every window.
#pragma once

#include <QAbstractButton>
#include <QKeySequence>
#include <QString>

#include <span>

namespace altardienst {

struct Kurztaste {
    const char *Beschriftung; // of a button, or of several that do the same
    QKeyCombination Taste;
};

/// Of all captions that have a key. No two that stand in one window have the same one.
std::span<const Kurztaste> AlleKurztasten();

/// Gives a button the key of its caption, if there is one, and names it in the tooltip. In the
/// window of the button the key does what a click does: the box one is in is left first, and if
/// that brings up a message, the button is not pressed. Escape, which drops what was typed, presses
/// its button at once.
void KurztasteGeben(QAbstractButton *knopf);

/// Lets a key press a button, as said above, without naming it.
void TasteDrückt(const QKeySequence &taste, QAbstractButton *knopf);

/// Names a key at the end of the button's tooltip, whatever that says now and is set to later.
void TasteNennen(QAbstractButton *knopf, const QString &taste);

} // namespace altardienst
