// Whether the user may write where the program keeps its files.
#include "platform/Schreibrecht.h"

#include "platform/Dateizugriff.h"
#include "platform/Einzellauf.h"
#include "values/Laufzeitfehler.h"

namespace altardienst {
namespace {

namespace fs = std::filesystem;

bool Besteht(const fs::path &verzeichnis)
{
    const fs::path probe = verzeichnis / PfadAus("Schreibprobe " + std::to_string(Prozessnummer()));
    try {
        dateizugriff::Schreiben(probe, "");
    } catch (const Laufzeitfehler &fehler) {
        return fehler.Nummer() == Laufzeitfehler::DatenträgerVoll;
    }
    try {
        dateizugriff::Löschen(probe);
    } catch (const Laufzeitfehler &) {
        // A virus scanner may hold it for a moment, which says nothing about the right.
    }
    return true;
}

} // namespace

SchreibrechtDienst Schreibrecht{Besteht};

} // namespace altardienst
