// Loading and saving all tables, on the hard disk and on the diskette.
#include "core/Allgemein.h"

#include "core/Dateien.h"
#include "core/SchleifenZähler.h"
#include "platform/Laufwerke.h"
#include "platform/Meldungen.h"

#include <algorithm>

namespace altardienst {
namespace {

using std::filesystem::path;

bool Vorhanden(const path &verzeichnis, const Datei &datei)
{
    return Laufwerke.Suchen(verzeichnis, datei.Suche).has_value();
}

/// The path of the file under its stored name, or in its own spelling if there is none yet.
path PfadDer(const path &verzeichnis, const Datei &datei)
{
    return verzeichnis / PfadAus(Laufwerke.Suchen(verzeichnis, datei.Name).value_or(datei.Name));
}

void DateiLesen(const path &verzeichnis, const Datei &datei)
{
    std::string inhalt = Laufwerke.Lesen(PfadDer(verzeichnis, datei));
    Zeilenleser zeilen(inhalt);
    datei.Lesen(zeilen);
}

void KonfigUndStandardmessenLesen(const path &verzeichnis)
{
    DateiLesen(verzeichnis, DateiMit(DateiKonfig));
    SkalenBegrenzen();
    DateiLesen(verzeichnis, DateiMit(DateiStandardmesse));
}

void AlleDateienSchreiben(const path &verzeichnis)
{
    std::string inhalt;
    for (const Datei &datei : Dateien) {
        inhalt.clear();
        datei.Schreiben(inhalt);
        Laufwerke.Schreiben(PfadDer(verzeichnis, datei), inhalt);
    }
}

/// The first-run path, taken on any failure of the load: only the first missing file is named,
/// whatever failed. True if the load is to continue after what failed.
bool ErststartPfad(const path &verzeichnis)
{
    NachKopie = 0;
    bool MeldungGezeigt = false;
    Laufwerke.VerzeichnisAnlegen(verzeichnis);
    for (Dateinummer nummer : Suchfolge) {
        const Datei &datei = DateiMit(nummer);
        if (Vorhanden(verzeichnis, datei))
            continue;
        if (!MeldungGezeigt) {
            DateienKopierenZeigen();
            Meldungen.Zeigen("Bitte Daten von Diskette einlesen oder kopieren, da Datei - " +
                             Text(datei.Suche) +
                             " - im Verzeichnis - C:\\programm\\Altardienst\\ - fehlt!");
        }
        MeldungGezeigt = true;
        // Cleared above, so it has been set while the message was open.
        if (NachKopie != 0)
            return true;
    }
    return false;
}

} // namespace

int NachKopie = 0;
std::function<void()> DateienKopierenZeigen = [] {};
std::function<void()> TabellenGeladen = [] {};

void VonFestplatteLaden()
{
    const path verzeichnis = Laufwerke.Programmverzeichnis();
    const auto geht = [&](const auto &schritt) {
        try {
            schritt();
            return true;
        } catch (const Laufzeitfehler &) {
            TabellenGeladen();
            return ErststartPfad(verzeichnis);
        }
    };
    for (const Datei &datei : Dateien) {
        if (!geht([&] { DateiLesen(verzeichnis, datei); }))
            return;
        if (&datei == &DateiMit(DateiKonfig))
            SkalenBegrenzen();
    }
    TabellenGeladen();
}

void AufFestplatteSpeichern()
{
    path verzeichnis = Laufwerke.Programmverzeichnis();
    for (const Datei &datei : Dateien) {
        // A file whose name differs in case keeps its attributes, so it may refuse to be written.
        if (Laufwerke.Suchen(verzeichnis, datei.Suche) == datei.Name)
            Laufwerke.AttributeLöschen(verzeichnis / PfadAus(datei.Name));
    }
    AlleDateienSchreiben(verzeichnis);
}

void VonDisketteLaden()
{
    if (!Meldungen.FragenVorVerlust(
            "Das Laden der Daten von Diskette kann zu Problemen und Fehlern führen, "
            "denn es könnte sich z.B. um alte Daten handeln! Wollen Sie die Daten "
            "wirklich laden??",
            "Laden der Daten von Diskette"))
        return;
    path verzeichnis = Laufwerke.Diskette();
    try {
        KonfigUndStandardmessenLesen(verzeichnis);
        // Loading from a diskette breaks off after the header of the servers: the test for the end
        // of the file asks a channel that is never open. The people stay as they are in memory.
        std::string inhalt = Laufwerke.Lesen(PfadDer(verzeichnis, DateiMit(DateiMeßdiener)));
        Zeilenleser zeilen(inhalt);
        MeßdienerKopfLesen(zeilen);
        SchleifenZähler = 0; // the loop over them has begun
    } catch (const Laufzeitfehler &) {
        // Missing files are reported below, any other failure is not.
    }
    TabellenGeladen();
    for (Dateinummer nummer : Suchfolge) {
        const Datei &datei = DateiMit(nummer);
        if (!Vorhanden(verzeichnis, datei))
            Meldungen.Zeigen("Datei " + Text(datei.Suche) + " nicht auf Diskette vorhanden!");
    }
}

void AufDisketteSpeichern()
{
    path verzeichnis = Laufwerke.Diskette();
    for (const Datei &datei : Dateien)
        Laufwerke.AttributeLöschen(PfadDer(verzeichnis, datei));
    AlleDateienSchreiben(verzeichnis);
}

} // namespace altardienst
