// The choice of how much of a name leaves the house, in every form that gives names away.
#pragma once

#include "exchange/Namenform.h"

#include <QComboBox>

namespace altardienst {

/// Proposes `vorschlag` until the user has chosen another form, which is remembered under the name
/// of the window; each output has its own.
QComboBox *Namenformwahl(const char *name, const char *fenster,
                         Namenform vorschlag = Namenvorschlag);

Namenform GewählteNamenform(const QComboBox *wahl);

} // namespace altardienst
