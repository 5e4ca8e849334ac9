// The plain ways of assigning servers, behind button (3).
#pragma once

namespace altardienst {

/// Few servers: nobody serves twice in one mass, and no other rule. Never ends if too few servers
/// have names.
void MeßdienerKnappZuweisen();

/// A middling number: whoever served on a date serves neither in another mass of that date nor on
/// the next day. No other rule, no end as above.
void MeßdienerFreiZuweisen();

/// Many servers: services, absences, week wishes, heights, sexes and a rotation. A search of more
/// than 80 seconds gives a message and ends the run.
void MeßdienerVollZuweisen();

} // namespace altardienst
