// Messages and questions as message boxes on the screen.
#pragma once

namespace altardienst {

/// From now on `Meldungen` (platform/Meldungen.h) shows message boxes.
void MeldungsfensterEinrichten();

} // namespace altardienst
