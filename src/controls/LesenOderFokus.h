// Reading a box for a save, or moving the focus to it if that fails.
#pragma once

#include "controls/Bausteine.h"
#include "controls/Verlassen.h"
#include "values/Laufzeitfehler.h"

#include <string_view>

namespace altardienst {

/// What `lesen` makes of the text in a box. If it fails, the box takes the focus and scrolls into
/// view, so that the message, which names no box, leaves the user where the mistake is. This does
/// not count as leaving the box that had the focus.
template <class Wert> Wert LesenOderFokus(QLineEdit *feld, Wert (*lesen)(std::string_view))
{
    try {
        return lesen(TextVon(feld));
    } catch (const Laufzeitfehler &) {
        const OhneVerlassen ruhe;
        feld->setFocus();
        InSicht(feld);
        throw;
    }
}

} // namespace altardienst
