// The partner way of assigning servers, which button (4) starts.
#pragma once

namespace altardienst {

/// Draws by the tests of the full way except heights, and places a free wish partner in the next
/// slot. Servers with a fixed entry for the day of a mass or the day before are not drawn for it;
/// services set by hand are left open. A search of more than 100 seconds shows a message and ends
/// the run. Reads `DienstProDiener`. Failure 9 for a mass of more than 20 servers.
void WunschpartnerZuweisen();

} // namespace altardienst
