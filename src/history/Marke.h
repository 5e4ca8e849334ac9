// The mark of one change of the eight files: they lie aside as they were, in the place of the
// states, from before the first of them is written until all are on the medium.
#pragma once

#include <filesystem>

namespace altardienst {

/// Of this run.
std::filesystem::path Marke();
bool MarkeLiegt();

/// Lays the eight files aside. One that lies there already, of a change that came to no end,
/// becomes a state. Failures 61, 75, 76.
void MarkeSetzen();

/// A file that cannot be read cannot be copied either: before it is overwritten it moves into the
/// mark itself. Does nothing with one that can be read, or that would not be overwritten.
void UnlesbareBeiseitelegen();
void UnlesbareBeiseitelegen(const std::filesystem::path &datei);

/// Those of them that were not overwritten after all come back to where they were.
void UnlesbareZurücklegen(const std::filesystem::path &marke);

/// The change is done. What lies in the mark becomes a state, if it is asked for or if there is no
/// other copy of it, and is not kept already; or it goes.
void MarkeAbnehmen(bool aufheben);

/// At the start of the only run: what lies in marks are the files before changes that did not end.
/// They become states; an empty one, of a change before which there was nothing, stays.
void MarkenAufheben();

/// Whether one of another run lies there.
bool FremdeMarkeLiegt();

/// At the end of a change of the only run.
void LeereMarkenEntfernen();

} // namespace altardienst
