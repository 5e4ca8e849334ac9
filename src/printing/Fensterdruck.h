// The content of a window on paper.
#pragma once

#include <QWidget>

namespace altardienst {

/// Shows the print dialog and prints the window as it is on one page, sharp at the printer's
/// resolution and without its command buttons, which are hidden in the meantime. A failure ends it
/// silently, as in all reports.
void FensterDrucken(QWidget *fenster);

} // namespace altardienst
