// Reads any bytes as one of the eight data files and does no more with them: a table is large, and
// in the time of one round trip thousands of inputs can be read. Nothing is emptied in between,
// since no reader looks at what a table holds.
#include "Prüfling.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *daten, std::size_t größe)
{
    altardienst::Lesen({reinterpret_cast<const char *>(daten), größe});
    return 0;
}
