// Copies of the eight data files between the program's directory and another.
#include "settings/Dateikopie.h"

#include "platform/Laufwerke.h"
#include "values/Laufzeitfehler.h"

#include <algorithm>

namespace altardienst {
namespace {

using std::filesystem::path;

/// The name under which a directory stores a file, or this one if it has none.
Text NameIn(const path &verzeichnis, const Datei &datei, const Text &sonst)
{
    return Laufwerke.Suchen(verzeichnis, datei.Suche).value_or(sonst);
}

} // namespace

bool AlleDateienVorhanden(const path &verzeichnis)
{
    return std::ranges::all_of(Suchfolge, [&](Dateinummer nummer) {
        const Datei &datei = DateiMit(nummer);
        return Laufwerke.Suchen(verzeichnis, datei.Suche) == datei.Name;
    });
}

void DateiKopieren(const Kopierdatei &datei, const path &von, const path &nach, NeueDatei neue)
{
    if (von.empty() || nach.empty())
        throw Laufzeitfehler(Laufzeitfehler::PfadNichtGefunden);
    const Datei &diese = DateiMit(datei.Nummer);
    const Text quelle = NameIn(von, diese, diese.Suche);
    const Text ziel = NameIn(nach, diese, neue == NeueDatei::Klein ? diese.Suche : quelle);
    Laufwerke.Kopieren(von / PfadAus(quelle), nach / PfadAus(ziel));
}

void AlleDateienKopieren(const path &von, const path &nach, NeueDatei neue)
{
    for (const Kopierdatei &datei : Kopierdateien)
        DateiKopieren(datei, von, nach, neue);
}

} // namespace altardienst
