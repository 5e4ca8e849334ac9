// The net below loading and saving.
#include "history/Netz.h"

#include "core/Allgemein.h"
#include "history/Aufräumen.h"
#include "history/Marke.h"
#include "history/Notwehr.h"
#include "platform/Einzellauf.h"
#include "platform/Laufwerke.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace altardienst {
namespace {

using std::filesystem::path;

Netzlage lage;

enum class Wechsel { Keiner, Speichern, Holen, Zurückholen };

/// What hangs on the file system and on the load, and what was there before.
struct Aufhängung {
    LaufwerkeDienst Laufwerke;
    std::function<void()> TabellenGeladen;
    path ZuletztGelesenAus;
    Wechsel Läuft = Wechsel::Keiner;
    bool MarkeGesetzt = false; // for what is going on
    bool Gerettet = false;     // the tables, since a save failed
};

std::unique_ptr<Aufhängung> netz;
std::unique_ptr<Alleinlauf> alleinlauf;

bool Allein()
{
    return alleinlauf && alleinlauf->Gilt();
}

constexpr const char *KeinStand = "Kein Stand aufgehoben";

/// Runs a step of the net. What it cannot do is told and changes nothing else.
template <class F> bool Gelingt(F schritt, const char *sonst = KeinStand) noexcept
{
    const auto sagen = [&](const Laufzeitfehler &fehler) {
        lage.Gescheitert = Text(sonst) + ": " + fehler.what();
    };
    try {
        schritt();
        return true;
    } catch (const Laufzeitfehler &fehler) {
        sagen(fehler);
    } catch (const std::exception &) {
        sagen(Laufzeitfehler(Laufzeitfehler::ZugriffVerweigert));
    }
    return false;
}

void Sichern(const Standinhalt &inhalt, Standart art = Standart::Gewöhnlich)
{
    StandSichern(inhalt, art);
    lage.Gescheitert.clear();
    StändeAufräumen();
}

void DateienSichern()
{
    Sichern(InhaltVon(Laufwerke.Programmverzeichnis()));
}

// One change of the eight files: the mark lies from before the first one is written until all are
// on the medium.

bool IstEine(const path &pfad, const Datei &datei)
{
    return pfad.parent_path() == (Laufwerke.Programmverzeichnis() / "x").parent_path() &&
           Klein(TextVon(pfad.filename())) == datei.Suche;
}

bool IstEineDerAcht(const path &pfad)
{
    return std::ranges::any_of(Dateien, [&](const Datei &datei) { return IstEine(pfad, datei); });
}

void AlleAchtDurchschreiben()
{
    const path verzeichnis = Laufwerke.Programmverzeichnis();
    for (const Datei &datei : Dateien)
        if (const auto name = Laufwerke.Suchen(verzeichnis, datei.Name))
            Laufwerke.Durchschreiben(verzeichnis / PfadAus(*name));
    Laufwerke.Durchschreiben(verzeichnis);
}

void WechselBeginnt(Wechsel wechsel)
{
    netz->MarkeGesetzt = Gelingt([] {
        MarkeSetzen();
        lage.Gescheitert.clear();
    });
    if (netz->MarkeGesetzt && wechsel == Wechsel::Speichern)
        Gelingt([] { UnlesbareBeiseitelegen(); });
    netz->Läuft = wechsel;
}

/// The mark stays if the medium does not hold the files.
void WechselGelungen()
{
    const Wechsel wechsel = std::exchange(netz->Läuft, Wechsel::Keiner);
    if (!Gelingt(AlleAchtDurchschreiben, "Nicht fest auf dem Datenträger"))
        return NetzlageGeändert();
    const bool aufheben = wechsel == Wechsel::Holen || lage.Befund.Was != Ladebefund::Vollständig;
    if (std::exchange(netz->MarkeGesetzt, false))
        Gelingt([&] { MarkeAbnehmen(aufheben); });
    if (wechsel != Wechsel::Holen) { // what was copied in is not what the program knows
        if (Allein())
            Gelingt(LeereMarkenEntfernen);
        NotfälleErledigen();
        AbbrücheErledigen();
        lage.SpeichernAbgebrochen = false;
        lage.Notfall.reset();
    }
    NetzlageGeändert();
}

void WechselGescheitert()
{
    netz->Läuft = Wechsel::Keiner;
    if (std::exchange(netz->MarkeGesetzt, false))
        Gelingt([] { UnlesbareZurücklegen(Marke()); });
}

void SpeichernGescheitert()
{
    WechselGescheitert();
    netz->Gerettet = Gelingt([] { NotfallSichern(InhaltDerTabellen()); });
    NetzlageGeändert();
}

/// A step of a save; its failure stays what it is.
template <class F> void Speicherschritt(const path &pfad, F schritt)
{
    if (!IstEineDerAcht(pfad) || netz->Läuft == Wechsel::Zurückholen)
        return schritt();
    try {
        schritt();
    } catch (...) {
        SpeichernGescheitert();
        throw;
    }
}

void Schreiben(const path &pfad, std::string_view bytes)
{
    if (IstEine(pfad, Dateien.front()) && netz->Läuft != Wechsel::Speichern)
        WechselBeginnt(Wechsel::Speichern);
    Speicherschritt(pfad, [&] { netz->Laufwerke.Schreiben(pfad, bytes); });
    if (IstEine(pfad, Dateien.back()) && netz->Läuft == Wechsel::Speichern)
        WechselGelungen();
}

/// A copy over one of the eight files. That one may be unreadable, and then there is no other copy.
void Hereinkopieren(const path &von, const path &nach)
{
    if (netz->Läuft != Wechsel::Holen)
        WechselBeginnt(Wechsel::Holen);
    if (netz->MarkeGesetzt)
        Gelingt([&] { UnlesbareBeiseitelegen(nach); });
    try {
        netz->Laufwerke.Kopieren(von, nach);
    } catch (...) {
        Gelingt([] { UnlesbareZurücklegen(Marke()); });
        throw;
    }
}

// One load.

/// A file torn by a comma is there as a whole, only the reader does not get it so.
void KommaHeilen(const Standinhalt &inhalt)
{
    const Standinhalt heil = OhneKommas(inhalt);
    if (InhaltLesen(heil).Befund.Was != Ladebefund::Vollständig)
        return;
    Sichern(heil, Standart::OhneKomma);
    lage.OhneKomma = true;
}

void NachDemLaden()
{
    if (netz->ZuletztGelesenAus != (Laufwerke.Programmverzeichnis() / "x").parent_path())
        return; // from a diskette, which brings only a part anyway
    if (netz->Läuft == Wechsel::Holen)
        WechselGelungen();
    const Standinhalt inhalt = InhaltVon(Laufwerke.Programmverzeichnis());
    lage.Befund = {};
    if (!inhalt.Leer() || !AlleStände().empty()) // else a parish that is just starting
        lage.Befund = InhaltLesen(inhalt).Befund;
    lage.OhneKomma = false;
    // A mixture of two saves is not worth it; those from before are there.
    if (lage.Befund.Komma > 0 && !lage.SpeichernAbgebrochen)
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
    Laufwerke.Kopieren = [](const path &von, const path &nach) {
        if (IstEineDerAcht(nach) && netz->Läuft != Wechsel::Zurückholen)
            Hereinkopieren(von, nach);
        else
            netz->Laufwerke.Kopieren(von, nach);
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

std::optional<Stand> NeuesterDerArt(Standart art)
{
    const std::vector<Stand> stände = AlleStände();
    const auto stand =
        std::find_if(stände.rbegin(), stände.rend(), [&](const Stand &s) { return s.Art == art; });
    return stand == stände.rend() ? std::nullopt : std::optional(*stand);
}

/// What is left of runs that were killed.
void HinterlassenesOrdnen()
{
    ResteEntfernen();
    AusweichständeHolen();
    ZukünftigeUmbenennen();
    Gelingt(MarkenAufheben);
}

/// Of two saves: the files as they lie there are a state, and the newest one are those from before
/// the save.
void AbgebrochenesSpeichernSuchen()
{
    const std::optional<Stand> davor = NeuesterDerArt(Standart::VorAbbruch);
    lage.DavorAufgehoben = davor.has_value();
    lage.SpeichernAbgebrochen = davor || (Allein() && FremdeMarkeLiegt());
    if (davor && AlleStände().back().Ort != davor->Ort)
        AlsNeuestenStand(davor->Ort, Standart::VorAbbruch);
}

void NotfallSuchen()
{
    const std::optional<Stand> notfall = NeuesterDerArt(Standart::Notfall);
    if (!notfall)
        return;
    // What lies on the disk anyway is not worth a word.
    if (InhaltVon(notfall->Ort) == InhaltVon(Laufwerke.Programmverzeichnis()))
        return NotfälleErledigen();
    lage.Notfall = *notfall;
}

// Bringing a state back.

void DateiZurückholen(const path &stand, const Standdatei &datei, const Datei &diese)
{
    const path verzeichnis = Laufwerke.Programmverzeichnis();
    const auto dort = Laufwerke.Suchen(verzeichnis, diese.Name);
    const path ziel = verzeichnis / PfadAus(dort.value_or(datei.Name));
    if (dort)
        Laufwerke.AttributeLöschen(ziel); // read-only as it may be
    Laufwerke.Kopieren(stand / PfadAus(datei.Name), ziel);
}

void AlleZurückholen(const path &stand, const Standinhalt &inhalt)
{
    for (std::size_t i = 0; i < inhalt.Dateien.size(); ++i)
        if (inhalt.Dateien[i].Bytes)
            DateiZurückholen(stand, inhalt.Dateien[i], Dateien[i]);
}

void NurVollzählige(const Standinhalt &inhalt)
{
    for (const Standdatei &datei : inhalt.Dateien)
        if (!datei.Bytes)
            throw Laufzeitfehler(datei.Name.empty() ? Laufzeitfehler::DateiNichtGefunden
                                                    : Laufzeitfehler::ZugriffVerweigert);
}

/// After a failure halfway. If the files cannot be put back either, the mark keeps them.
void Zurücknehmen()
{
    const bool wieZuvor = Gelingt([] {
        UnlesbareZurücklegen(Marke());
        AlleZurückholen(Marke(), InhaltVon(Marke()));
        AlleAchtDurchschreiben();
        MarkeAbnehmen(false);
    });
    if (wieZuvor)
        return;
    lage.SpeichernAbgebrochen = true;
    lage.DavorAufgehoben = true; // before it began
}

} // namespace

std::function<void()> NetzlageGeändert = [] {};

const Netzlage &Netz()
{
    return lage;
}

void NetzSpannen()
{
    NetzEinholen();
    alleinlauf = std::make_unique<Alleinlauf>(Laufwerke.Programmverzeichnis());
    if (Allein())
        HinterlassenesOrdnen();
    Gelingt(DateienSichern);
    Gelingt(AbgebrochenesSpeichernSuchen);
    Gelingt(NotfallSuchen);
    Gelingt(Aufhängen);
}

void NetzEinholen()
{
    lage = {};
    alleinlauf.reset();
    if (!netz)
        return;
    NotwehrBeenden();
    Laufwerke.Schreiben = netz->Laufwerke.Schreiben;
    Laufwerke.AttributeLöschen = netz->Laufwerke.AttributeLöschen;
    Laufwerke.Kopieren = netz->Laufwerke.Kopieren;
    Laufwerke.Lesen = netz->Laufwerke.Lesen;
    TabellenGeladen = netz->TabellenGeladen;
    netz.reset();
    NetzlageGeändert();
}

void ArbeitBeginnt()
{
    if (!netz)
        return;
    if (!Allein()) // the directory may not have been there at the start
        alleinlauf = std::make_unique<Alleinlauf>(Laufwerke.Programmverzeichnis());
    NotwehrBereitstellen();
}

void VorWechselSichern()
{
    if (!netz)
        return;
    Gelingt(DateienSichern);
    Gelingt([] { Sichern(InhaltDerTabellen()); });
    NetzlageGeändert();
}

void SpeichernIstGescheitert()
{
    if (netz && !std::exchange(netz->Gerettet, false))
        SpeichernGescheitert();
}

void StandZurückholen(const Stand &stand)
{
    const Standinhalt inhalt = InhaltVon(stand.Ort);
    NurVollzählige(inhalt);
    StandSichern(InhaltVon(Laufwerke.Programmverzeichnis()));
    StandSichern(InhaltDerTabellen());
    MarkeSetzen();
    if (netz)
        netz->Läuft = Wechsel::Zurückholen;
    try {
        UnlesbareBeiseitelegen();
        AlleZurückholen(stand.Ort, inhalt);
    } catch (...) {
        Zurücknehmen();
        if (netz)
            netz->Läuft = Wechsel::Keiner;
        NetzlageGeändert();
        throw;
    }
    if (netz) {
        netz->MarkeGesetzt = true;
        WechselGelungen();
    } else {
        MarkeAbnehmen(false);
    }
    VonFestplatteLaden();
}

} // namespace altardienst
