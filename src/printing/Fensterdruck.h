// The content of a window on paper.
#pragma once

#include <QWidget>

namespace altardienst {

/// Shows the print dialog and prints the window as it stands on one page, sharp at the printer's
/// resolution and without its command buttons, which are hidden meanwhile. A failure ends it
/// without a word, as with all reports.
void FensterDrucken(QWidget *fenster);

} // namespace altardienst
