// The calendar of a date box.
#pragma once

#include <QLineEdit>

namespace altardienst {

/// Gives a date box a small button at its end; it and Alt+Down open a calendar below the box, which
/// begins at the date in the box, or today. A day that is picked goes into the box the way a pasted
/// text does: one change, after which the same handlers run as after typing. Escape and a click
/// elsewhere close the calendar and change nothing. The box keeps counting as the one being filled
/// in: it is not left for its calendar.
void KalenderAnfügen(QLineEdit *feld);

} // namespace altardienst
