// Writing a file whole or not at all.
#include "platform/GanzSchreiben.h"

#include "platform/Laufwerke.h"
#include "values/Laufzeitfehler.h"

namespace altardienst {

void GanzSchreiben(const std::filesystem::path &ziel, std::string_view bytes)
{
    std::filesystem::path daneben = ziel;
    daneben += ".unfertig"; // nobody gives a file of his own such a name
    Laufwerke.Löschen(daneben);
    try {
        Laufwerke.Schreiben(daneben, bytes);
        Laufwerke.Durchschreiben(daneben);
        Laufwerke.Kopieren(daneben, ziel);
        Laufwerke.Durchschreiben(ziel);
    } catch (...) {
        try {
            Laufwerke.Löschen(daneben);
        } catch (const Laufzeitfehler &) {
            // The next time.
        }
        throw;
    }
    Laufwerke.Löschen(daneben);
}

} // namespace altardienst
