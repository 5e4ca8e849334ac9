// Whether the tables have changed since one last looked, without a copy of them.
#pragma once

#include <cstddef>
#include <vector>

namespace altardienst {

/// A number that is another one as soon as the tables are: whoever shows the plan compares it
/// instead of being told of every change. It takes about a millisecond for full tables.
struct Planabdruck {
    std::vector<std::size_t> Messen; // one for each mass, of all its fields
    std::size_t Übriges = 0;         // people, fixed entries and settings

    bool operator==(const Planabdruck &) const = default;
};

Planabdruck AbdruckNehmen();

} // namespace altardienst
