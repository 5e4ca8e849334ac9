// Reading the boxes of a form for a save.
#pragma once

#include "core/Laufzeitfehler.h"
#include "fenster/Bausteine.h"

#include <string_view>

namespace altardienst {

/// What `lesen` makes of the text of a box. If it fails, the box takes the focus, so that the
/// message, which names no box, leaves the user where the mistake is.
template <class Wert> Wert Gelesen(QLineEdit *feld, Wert (*lesen)(std::string_view))
{
    try {
        return lesen(TextVon(feld));
    } catch (const Laufzeitfehler &) {
        feld->setFocus();
        throw;
    }
}

} // namespace altardienst
