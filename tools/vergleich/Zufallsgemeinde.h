// Random parishes of all degrees of difficulty.
#pragma once

#include <cstdint>

namespace altardienst {

/// Fills the tables. With the seed the parishes become tighter and loose again: from twice the
/// servers that the days need to fewer than they need.
void GemeindeErfinden(std::uint32_t saat);

} // namespace altardienst
