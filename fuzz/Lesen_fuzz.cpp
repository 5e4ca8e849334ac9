// Reads any bytes as one of the eight data files and does no more with them: a table is large, and
// thousands of inputs can be read in the time of one round trip. Nothing is cleared in between,
// since no reader looks at what a table holds.
#include "Prüfling.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *daten, std::size_t größe)
{
    altardienst::Lesen({reinterpret_cast<const char *>(daten), größe});
    return 0;
}
