// The partner way of assigning servers, behind button (4).
#pragma once

namespace altardienst {

/// Draws by the tests of the full way without its heights, and places a free wish partner in the
/// next slot. Servers with a fixed entry for the day of a mass or the day before are out of its
/// draw; services set by hand are left open. A search of more than 100 seconds gives a message and
/// ends the run. Reads `DienstProDiener`. Failure 9 for a mass of more than 20 servers.
void WunschpartnerZuweisen();

} // namespace altardienst
