// The plain ways of assigning servers, which button (3) starts.
#pragma once

namespace altardienst {

/// Few servers: nobody serves twice in one mass; no other rule. Never ends if too few servers have
/// names.
void MeßdienerKnappZuweisen();

/// A medium number: whoever served on a date serves neither in another mass on that date nor on the
/// next day. No other rule; may never end, as above.
void MeßdienerFreiZuweisen();

/// Many servers: services, absences, week wishes, heights, sexes and a rotation. A search of more
/// than 80 seconds shows a message and ends the run.
void MeßdienerVollZuweisen();

} // namespace altardienst
