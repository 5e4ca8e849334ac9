// The message boxes in use.
#include "platform/Meldungen.h"

namespace altardienst {

MeldungenDienst Meldungen = {[](const Text &) {}, [](const Text &, const Text &) { return false; }};

bool FragtVorVerlust(const Text &frage)
{
    return frage == "Wirklich?"                         // before every delete
           || frage.starts_with("Sicherer ist ~(4)") || // another draw of the servers
           frage.starts_with("Das Laden der Daten von Diskette ") ||
           frage.ends_with(" wird vorher als eigener Stand aufgehoben.") ||
           frage.ends_with(" Soll sie ersetzt werden?"); // a file
}

} // namespace altardienst
