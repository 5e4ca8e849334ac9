// The tables survive a bad end of the program.
#pragma once

namespace altardienst {

/// From now on, if the process dies of a fatal signal, of a failure that nobody caught or by an
/// exit in the middle of the work, the tables as they are then, or as they were put aside, are
/// written as an emergency: beside the states, or where that fails, in the user's own places. All
/// that is needed for it is prepared here, also the room on the medium, since nothing can be
/// counted on then. Never fails.
void NotwehrBereitstellen();

/// The end is a good one.
void NotwehrBeenden();

} // namespace altardienst
