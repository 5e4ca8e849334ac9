// Reads any bytes as one of the eight data files. Whatever was read must be written in the fixed
// format and read back unchanged.
#include "Prüfling.h"

#include "core/tables.h"

#include <cstdint>

namespace altardienst {
namespace {

std::string Schreiben()
{
    std::string inhalt;
    Prüfling.Schreiben(inhalt);
    return inhalt;
}

/// Only a quoted value can give the servers a text that does not survive the next write: one with a
/// comma, a line end or a blank at its start.
bool KommtZurück(std::string_view bytes)
{
    return DATEINUMMER != DateiMeßdiener || bytes.find('"') == std::string_view::npos;
}

void Versuchen(std::string_view bytes)
{
    TabellenLeeren();
    std::string leer = Schreiben();
    Lesen(bytes);
    SkalenBegrenzen();
    std::string erstes = Schreiben();
    if (!KommtZurück(bytes))
        return;
    Erwarte(Lesen(erstes), "what was written does not read back");
    Erwarte(Schreiben() == erstes, "the second write differs from the first");
    TabellenLeeren();
    Erwarte(Schreiben() == leer, "the tables do not empty");
    Erwarte(Lesen(erstes), "what was written does not read into empty tables");
    Erwarte(Schreiben() == erstes, "a write after a fresh read differs");
}

} // namespace
} // namespace altardienst

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *daten, std::size_t größe)
{
    altardienst::Versuchen({reinterpret_cast<const char *>(daten), größe});
    return 0;
}
