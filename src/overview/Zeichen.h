// The signs of the findings. Their shapes alone tell them apart, and their two colours are ones
// that nobody confuses.
#pragma once

#include "overview/Befund.h"

#include <QColor>
#include <QPalette>
#include <QPixmap>

namespace altardienst {

/// Orange for what breaks a rule, blue for what is worth a look; lighter on a dark ground.
QColor Stufenfarbe(Stufe stufe, const QPalette &palette);

/// A filled triangle with an exclamation mark, or a ring with a dot; `maß` in points of the screen.
QPixmap Stufenzeichen(Stufe stufe, const QPalette &palette, int maß, qreal punktdichte);

/// A pin: fixed ahead of the draw.
QPixmap Nadelzeichen(const QPalette &palette, int maß, qreal punktdichte);

/// What steps back behind the names: between the colour of the text and that of its ground.
QColor Nebenfarbe(const QPalette &palette);
/// The thin lines between rows.
QColor Linienfarbe(const QPalette &palette);

} // namespace altardienst
