// Reads any bytes as one of the eight data files. Whatever came in must go out in the fixed shape,
// and come in again as it went out.
#include "core/Dateien.h"
#include "core/tables.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

#ifndef DATEINUMMER
#error "DATEINUMMER names the file by its number, 0 to 7"
#endif

namespace altardienst {
namespace {

const Datei &Prüfling = Dateien[DATEINUMMER];

/// False if the content fails; what came before the failure stays in the table.
bool Lesen(std::string_view inhalt)
{
    Zeilenleser zeilen(inhalt);
    try {
        Prüfling.Lesen(zeilen);
    } catch (const Laufzeitfehler &) {
        return false;
    }
    return true;
}

std::string Schreiben()
{
    std::string inhalt;
    Prüfling.Schreiben(inhalt);
    return inhalt;
}

void Erwarte(bool bedingung, const char *was)
{
    if (bedingung)
        return;
    std::fprintf(stderr, "%s: %s\n", Prüfling.Name, was);
    std::abort();
}

/// Only a value in quotes brings the servers a text that does not survive the next write: one with
/// a comma, a line end or a blank at its start.
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
