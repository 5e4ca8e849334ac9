// The net below loading and saving.
#include "history/Netz.h"

#include "core/Allgemein.h"
#include "core/Umwandlung.h"
#include "history/Notwehr.h"
#include "platform/Laufwerke.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace altardienst {
namespace {

using std::filesystem::path;

constexpr const char *MarkenName = "Speichern";

Netzlage lage;

/// What hangs on the file system and on the load, and what was there before.
struct Aufhängung {
    LaufwerkeDienst Laufwerke;
    std::function<void()> TabellenGeladen;
    path ZuletztGelesenAus;
    bool Speichert = false;  // between the first and the last file of a save
    bool HoltZurück = false; // the tables are kept already
};

std::unique_ptr<Aufhängung> netz;

path Marke()
{
    return Ständeverzeichnis() / MarkenName;
}

bool MarkeLiegt()
{
    try {
        const auto namen = Laufwerke.Auflisten(Ständeverzeichnis()).Verzeichnisse;
        return std::ranges::find(namen, MarkenName) != namen.end();
    } catch (const Laufzeitfehler &) {
        return false;
    }
}

void Gescheitert(const Laufzeitfehler &fehler)
{
    lage.Gescheitert = fehler.what();
}

/// Runs a step of the net. What it cannot do is told and changes nothing else.
template <class F> bool Gelingt(F schritt) noexcept
{
    try {
        schritt();
        return true;
    } catch (const Laufzeitfehler &fehler) {
        Gescheitert(fehler);
    } catch (const std::exception &) {
        Gescheitert(Laufzeitfehler(Laufzeitfehler::ZugriffVerweigert));
    }
    return false;
}

void Sichern(const Standinhalt &inhalt)
{
    if (StandSichern(inhalt))
        lage.Gescheitert.clear();
    StändeAufräumen();
}

/// Whether the state so many places before the newest holds these files.
bool LiegtDa(std::size_t vomEnde, const Standinhalt &inhalt)
{
    const std::vector<Stand> stände = AlleStände();
    return stände.size() > vomEnde && InhaltVon(stände[stände.size() - 1 - vomEnde].Ort) == inhalt;
}

void DateienSichern()
{
    const Standinhalt dateien = InhaltVon(Laufwerke.Programmverzeichnis());
    // The whole of a torn file may have been kept after it.
    if (!(LiegtDa(1, dateien) && LiegtDa(0, OhneKommas(dateien))))
        Sichern(dateien);
}

// One save: the mark lies from before the first file until the last is on the medium.

bool IstEine(const path &pfad, const Datei &datei)
{
    return pfad.parent_path() == (Laufwerke.Programmverzeichnis() / "x").parent_path() &&
           Klein(TextVon(pfad.filename())) == datei.Suche;
}

bool IstEineDerAcht(const path &pfad)
{
    return std::ranges::any_of(Dateien, [&](const Datei &datei) { return IstEine(pfad, datei); });
}

void MarkeSetzen()
{
    const path verzeichnis = Laufwerke.Programmverzeichnis();
    Laufwerke.Auflisten(verzeichnis); // failure 76: to make it is not our part
    const Standinhalt inhalt = InhaltVon(verzeichnis);
    if (MarkeLiegt()) // of a save that did not end; the start has kept what is in it
        VerzeichnisEntfernen(Marke());
    Laufwerke.VerzeichnisAnlegen(Ständeverzeichnis());
    VerzeichnisSchreiben(Ständeverzeichnis(), MarkenName, inhalt);
}

void MarkeLöschen()
{
    if (MarkeLiegt())
        VerzeichnisEntfernen(Marke());
}

void AlleAchtDurchschreiben()
{
    const path verzeichnis = Laufwerke.Programmverzeichnis();
    for (const Datei &datei : Dateien)
        if (const auto name = Laufwerke.Suchen(verzeichnis, datei.Name))
            Laufwerke.Durchschreiben(verzeichnis / PfadAus(*name));
    Laufwerke.Durchschreiben(verzeichnis);
}

void WechselBeginnt()
{
    Gelingt(MarkeSetzen);
}

/// The mark stays if the medium does not hold the files.
void WechselGelungen()
{
    Gelingt([] {
        AlleAchtDurchschreiben();
        MarkeLöschen();
    });
    NotfälleErledigen();
    lage.SpeichernAbgebrochen = false;
    lage.Notfall.reset();
    NetzlageGeändert();
}

void SpeichernGescheitert()
{
    netz->Speichert = false;
    Gelingt([] { NotfallSichern(InhaltDerTabellen()); });
    NetzlageGeändert();
}

/// A step of a save; its failure stays what it is.
template <class F> void Speicherschritt(const path &pfad, F schritt)
{
    if (!IstEineDerAcht(pfad))
        return schritt();
    try {
        schritt();
    } catch (...) {
        if (!netz->HoltZurück)
            SpeichernGescheitert();
        throw;
    }
}

void Schreiben(const path &pfad, std::string_view bytes)
{
    if (IstEine(pfad, Dateien.front()) && !std::exchange(netz->Speichert, true))
        WechselBeginnt();
    Speicherschritt(pfad, [&] { netz->Laufwerke.Schreiben(pfad, bytes); });
    if (IstEine(pfad, Dateien.back()) && std::exchange(netz->Speichert, false))
        WechselGelungen();
}

// One load.

/// A file torn by a comma is there as a whole, only the reader does not get it so.
void KommaHeilen(const Standinhalt &inhalt)
{
    const Standinhalt heil = OhneKommas(inhalt);
    if (InhaltLesen(heil).Befund.Was != Ladebefund::Vollständig)
        return;
    Sichern(heil);
    lage.OhneKomma = true;
}

void NachDemLaden()
{
    if (netz->ZuletztGelesenAus != (Laufwerke.Programmverzeichnis() / "x").parent_path())
        return; // from a diskette, which brings only a part anyway
    const Standinhalt inhalt = InhaltVon(Laufwerke.Programmverzeichnis());
    lage.Befund = {};
    if (!inhalt.Leer() || !AlleStände().empty()) // else a parish that is just starting
        lage.Befund = InhaltLesen(inhalt).Befund;
    lage.OhneKomma = false;
    if (lage.Befund.Komma > 0)
        Gelingt([&] { KommaHeilen(inhalt); });
    NetzlageGeändert();
}

void Aufhängen()
{
    netz = std::make_unique<Aufhängung>();
    netz->Laufwerke = Laufwerke;
    netz->TabellenGeladen = TabellenGeladen;
    Laufwerke.Schreiben = Schreiben;
    Laufwerke.AttributeLöschen = [](const path &pfad) {
        Speicherschritt(pfad, [&] { netz->Laufwerke.AttributeLöschen(pfad); });
    };
    Laufwerke.Lesen = [](const path &pfad) {
        netz->ZuletztGelesenAus = pfad.parent_path();
        return netz->Laufwerke.Lesen(pfad);
    };
    TabellenGeladen = [] {
        netz->TabellenGeladen();
        Gelingt(NachDemLaden);
    };
}

// The start.

/// Of two saves: the files as they lie there become a state, and after it those from before the
/// save. A start that follows without a save in between finds both already there.
void AbgebrochenesSpeichernSichern()
{
    const Standinhalt dateien = InhaltVon(Laufwerke.Programmverzeichnis());
    const Standinhalt zuvor = InhaltVon(Marke());
    lage.SpeichernAbgebrochen = true;
    if (LiegtDa(0, zuvor) && LiegtDa(1, dateien))
        return;
    if (!zuvor.Leer())
        StandSichern(dateien);
    Sichern(zuvor.Leer() ? dateien : zuvor);
}

void NotfallSuchen()
{
    const std::vector<Stand> stände = AlleStände();
    const auto notfall = std::find_if(stände.rbegin(), stände.rend(), [](const Stand &stand) {
        return stand.Art == Standart::Notfall;
    });
    if (notfall == stände.rend())
        return;
    // What lies on the disk anyway is not worth a word.
    if (InhaltVon(notfall->Ort) == InhaltVon(Laufwerke.Programmverzeichnis()))
        return NotfälleErledigen();
    lage.Notfall = *notfall;
}

Text ZeitText(const Stand &stand)
{
    return KurzesDatum(stand.Zeit.Tag) + ", " + StundenUndMinuten(ZeitAus(stand.Zeit.Sekunde)) +
           " Uhr";
}

// Bringing a state back.

void DateiZurückholen(const Stand &stand, const Standdatei &datei, const Datei &diese)
{
    const path verzeichnis = Laufwerke.Programmverzeichnis();
    const auto dort = Laufwerke.Suchen(verzeichnis, diese.Name);
    const path ziel = verzeichnis / PfadAus(dort.value_or(datei.Name));
    if (dort == diese.Name) // read-only as it may be, a save would write it too
        Laufwerke.AttributeLöschen(ziel);
    Laufwerke.Kopieren(stand.Ort / PfadAus(datei.Name), ziel);
}

void AlleZurückholen(const Stand &stand, const Standinhalt &inhalt)
{
    MarkeSetzen();
    for (std::size_t i = 0; i < inhalt.Dateien.size(); ++i)
        DateiZurückholen(stand, inhalt.Dateien[i], Dateien[i]);
    WechselGelungen();
}

void NurVollzählige(const Standinhalt &inhalt)
{
    for (const Standdatei &datei : inhalt.Dateien)
        if (!datei.Bytes)
            throw Laufzeitfehler(datei.Name.empty() ? Laufzeitfehler::DateiNichtGefunden
                                                    : Laufzeitfehler::ZugriffVerweigert);
}

} // namespace

std::function<void()> NetzlageGeändert = [] {};

const Netzlage &Netz()
{
    return lage;
}

Text Starthinweis()
{
    Text hinweis;
    const auto absatz = [&](const Text &text) { hinweis += (hinweis.empty() ? "" : "\n") + text; };
    if (const Text satz = lage.Befund.Satz(); !satz.empty())
        absatz(satz + " Was danach kommt, fehlt im Programm, und das Beenden speichert es so.");
    if (lage.OhneKomma)
        absatz(
            "Ein Stand mit Semikolon an Stelle des Kommas, in dem nichts fehlt, ist aufgehoben.");
    if (lage.SpeichernAbgebrochen)
        absatz("Das letzte Speichern ist nicht zu Ende gekommen: Die acht Dateien können aus zwei "
               "Speicherungen stammen. Der Stand davor ist aufgehoben.");
    if (lage.Notfall)
        absatz("Das Programm hat ein schlechtes Ende genommen. Was es am " +
               ZeitText(*lage.Notfall) + ", im Speicher hatte, ist als Notfall aufgehoben.");
    return hinweis;
}

Text Dauerhinweis()
{
    if (lage.Befund.Was != Ladebefund::Vollständig)
        return "Nicht alles geladen: " + lage.Befund.Datei;
    if (lage.SpeichernAbgebrochen)
        return "Letztes Speichern unvollständig";
    if (!lage.Gescheitert.empty())
        return "Kein früherer Stand aufgehoben: " + lage.Gescheitert;
    return "";
}

void NetzSpannen()
{
    NetzEinholen();
    ResteEntfernen();
    Gelingt([] {
        if (MarkeLiegt())
            AbgebrochenesSpeichernSichern();
        else
            DateienSichern();
    });
    Gelingt(NotfallSuchen);
    Gelingt(Aufhängen);
}

void NetzEinholen()
{
    lage = {};
    if (!netz)
        return;
    NotwehrBeenden();
    Laufwerke.Schreiben = netz->Laufwerke.Schreiben;
    Laufwerke.AttributeLöschen = netz->Laufwerke.AttributeLöschen;
    Laufwerke.Lesen = netz->Laufwerke.Lesen;
    TabellenGeladen = netz->TabellenGeladen;
    netz.reset();
    NetzlageGeändert();
}

void ArbeitBeginnt()
{
    if (netz)
        NotwehrBereitstellen();
}

void VorWechselSichern(Vorher was)
{
    if (!netz)
        return;
    Gelingt(DateienSichern);
    if (was == Vorher::DateienUndTabellen)
        Gelingt([] { Sichern(InhaltDerTabellen()); });
    NetzlageGeändert();
}

void StandZurückholen(const Stand &stand)
{
    const Standinhalt inhalt = InhaltVon(stand.Ort);
    NurVollzählige(inhalt);
    StandSichern(InhaltVon(Laufwerke.Programmverzeichnis()));
    StandSichern(InhaltDerTabellen());
    const auto melden = [](bool holtZurück) {
        if (netz)
            netz->HoltZurück = holtZurück;
    };
    melden(true);
    try {
        AlleZurückholen(stand, inhalt);
    } catch (...) {
        melden(false);
        throw;
    }
    melden(false);
    VonFestplatteLaden();
}

} // namespace altardienst
