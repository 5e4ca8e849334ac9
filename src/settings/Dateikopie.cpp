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

constexpr std::size_t AlleAcht = Kopierdateien.size();

Text Aufzählung(const std::vector<Text> &teile)
{
    Text text;
    for (const Text &teil : teile)
        text += (text.empty() ? "" : ", ") + teil;
    return text;
}

/// "1 Datei", "8 Dateien".
Text Zahlwort(std::size_t zahl, const char *eine, const char *mehrere)
{
    return std::to_string(zahl) + " " + (zahl == 1 ? eine : mehrere);
}

Text FehltSatz(const std::vector<Text> &fehlend)
{
    if (fehlend.size() == AlleAcht)
        return "Hier liegt keine der acht Dateien.";
    return (fehlend.size() == 1 ? "Hier fehlt: " : "Hier fehlen: ") + Aufzählung(fehlend);
}

Text AndersSatz(const std::vector<Schreibung> &anders)
{
    const Text beispiel = anders.front().Gespeichert + " statt " + anders.front().Eigene;
    return anders.size() == 1 ? "Hier heißt 1 Datei anders: " + beispiel
                              : "Hier heißen " + std::to_string(anders.size()) +
                                    " Dateien anders, etwa " + beispiel;
}

/// A file system that ignores case may take two spellings for the same name and leave the file as
/// it is. Then it goes by way of a name that nothing has.
void Umschreiben(const path &verzeichnis, const Schreibung &datei)
{
    const path von = verzeichnis / PfadAus(datei.Gespeichert);
    const path nach = verzeichnis / PfadAus(datei.Eigene);
    Laufwerke.Umbenennen(von, nach);
    if (Laufwerke.Suchen(verzeichnis, datei.Eigene) == datei.Eigene)
        return;
    const path umweg = verzeichnis / PfadAus(datei.Eigene + ".umbenannt");
    Laufwerke.Umbenennen(von, umweg);
    try {
        Laufwerke.Umbenennen(umweg, nach);
    } catch (const Laufzeitfehler &) {
        Laufwerke.Umbenennen(umweg, von);
        throw;
    }
}

} // namespace

bool AlleDateienVorhanden(const path &verzeichnis)
{
    return std::ranges::all_of(Suchfolge, [&](Dateinummer nummer) {
        const Datei &datei = DateiMit(nummer);
        return Laufwerke.Suchen(verzeichnis, datei.Suche) == datei.Name;
    });
}

Dateimängel DateimängelIn(const path &verzeichnis)
{
    Dateimängel mängel;
    std::vector<Text> namen;
    try {
        namen = Laufwerke.Auflisten(verzeichnis).Dateien;
    } catch (const Laufzeitfehler &) {
        // A directory that cannot be read holds none of them.
    }
    for (const Dateinummer nummer : Suchfolge) {
        const Datei &datei = DateiMit(nummer);
        const auto gefunden = Laufwerke.Suchen(verzeichnis, datei.Suche);
        if (!gefunden)
            mängel.Fehlend.emplace_back(datei.Name);
        else if (*gefunden != datei.Name)
            (std::ranges::count(namen, Text(datei.Name)) > 0 ? mängel.Doppelt : mängel.Anders)
                .push_back({*gefunden, datei.Name});
    }
    return mängel;
}

Text DateimängelSatz(const Dateimängel &mängel)
{
    if (!mängel.Fehlend.empty())
        return FehltSatz(mängel.Fehlend);
    if (!mängel.Doppelt.empty())
        return "Hier liegen " + mängel.Doppelt.front().Gespeichert + " und " +
               mängel.Doppelt.front().Eigene + " nebeneinander; eine von beiden muss weg.";
    return mängel.Anders.empty() ? "" : AndersSatz(mängel.Anders);
}

Text NamenBerichtigen(const path &verzeichnis)
{
    const std::vector<Schreibung> anders = DateimängelIn(verzeichnis).Anders;
    std::vector<Text> geblieben;
    for (const Schreibung &datei : anders) {
        try {
            Umschreiben(verzeichnis, datei);
        } catch (const Laufzeitfehler &fehler) {
            geblieben.push_back(datei.Gespeichert + " (" + fehler.what() + ")");
        }
    }
    const std::size_t berichtigt = anders.size() - geblieben.size();
    if (berichtigt == 0)
        return "Kein Name berichtigt: " + Aufzählung(geblieben);
    const Text satz = Zahlwort(berichtigt, "Name", "Namen") + " berichtigt";
    return geblieben.empty() ? satz + "." : satz + ", nicht aber: " + Aufzählung(geblieben);
}

Text KopiertSatz(int dateien, const path &ziel)
{
    return Zahlwort(static_cast<std::size_t>(dateien), "Datei", "Dateien") + " nach " +
           OrdnerText(ziel) + " kopiert";
}

Text GeholtSatz(int dateien, const path &quelle, const Ladebericht &bericht)
{
    return Zahlwort(static_cast<std::size_t>(dateien), "Datei", "Dateien") + " aus " +
           OrdnerText(quelle) + (bericht.Abgebrochen ? " geholt, aber " : " geholt und ") +
           Festplattenbericht(bericht);
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
