// Signals of the system, brought into the event loop. Not on Windows, which has none.
#pragma once

#include <functional>
#include <vector>

namespace altardienst {

/// From now on `f` runs in the event loop after one of these signals; several that come in between
/// may count as one. Open.
void BeiSignalen(const std::vector<int> &signale, const std::function<void()> &f);

} // namespace altardienst
