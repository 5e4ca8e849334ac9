// A sign of life from whatever reads, writes or prints.
#include "platform/Lebenszeichen.h"

namespace altardienst {

std::function<void()> Lebenszeichen = [] {};
std::function<void()> VorLangemSchritt = [] {};

} // namespace altardienst
