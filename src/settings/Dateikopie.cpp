// Copies of the eight data files between the program's directory and another.
#include "settings/Dateikopie.h"

#include "core/Laufzeitfehler.h"
#include "platform/Laufwerke.h"

#include <algorithm>

namespace altardienst {
namespace {

using std::filesystem::path;

/// The path of a file as it is stored, or in small letters if there is none yet.
path PfadDer(const path &verzeichnis, const Datei &datei)
{
    return verzeichnis / PfadAus(Laufwerke.Suchen(verzeichnis, datei.Suche).value_or(datei.Suche));
}

} // namespace

bool AlleDateienVorhanden(const path &verzeichnis)
{
    return std::ranges::all_of(Suchfolge, [&](Dateinummer nummer) {
        const Datei &datei = DateiMit(nummer);
        return Laufwerke.Suchen(verzeichnis, datei.Suche) == datei.Name;
    });
}

void DateiKopieren(const Kopierdatei &datei, const path &von, const path &nach)
{
    if (von.empty() || nach.empty())
        throw Laufzeitfehler(Laufzeitfehler::PfadNichtGefunden);
    const Datei &diese = DateiMit(datei.Nummer);
    Laufwerke.Kopieren(PfadDer(von, diese), PfadDer(nach, diese));
}

void AlleDateienKopieren(const path &von, const path &nach)
{
    for (const Kopierdatei &datei : Kopierdateien)
        DateiKopieren(datei, von, nach);
}

} // namespace altardienst
