// The German texts of the run-time failures.
#include "values/Laufzeitfehler.h"

namespace altardienst {

const char *Laufzeitfehler::what() const noexcept
{
    switch (art) {
    case UngültigerAufruf:
        return "Ungültiger Prozeduraufruf";
    case Überlauf:
        return "Überlauf";
    case IndexAußerhalb:
        return "Index außerhalb des gültigen Bereichs";
    case DivisionDurchNull:
        return "Division durch Null";
    case TypenUnverträglich:
        return "Typen unverträglich";
    case DateiNichtGefunden:
        return "Datei nicht gefunden";
    case DateiVorhanden:
        return "Datei existiert bereits";
    case DatenträgerVoll:
        return "Datenträger voll";
    case HinterDateiende:
        return "Eingabe hinter Dateiende";
    case ZugriffVerweigert:
        return "Zugriff verweigert";
    case PfadNichtGefunden:
        return "Pfad nicht gefunden";
    case Druckerfehler:
        return "Druckerfehler";
    }
    return "Unbekannter Fehler";
}

std::string Laufzeitfehler::Meldung() const
{
    return "Laufzeitfehler '" + std::to_string(Nummer()) + "': " + what();
}

} // namespace altardienst
