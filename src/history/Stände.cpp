// Earlier states of the eight files.
#include "history/Stände.h"

#include "platform/Laufwerke.h"
#include "platform/Uhr.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <set>

namespace altardienst {
namespace {

using std::filesystem::path;

// Directories of these names are no states.
constexpr const char *InArbeit = "unfertig";
constexpr const char *ZuLöschen = "geloescht";

constexpr const char *NotfallZusatz = " Notfall";
constexpr const char *ErledigtZusatz = " Notfall erledigt";

Text Zusatz(Standart art)
{
    switch (art) {
    case Standart::Notfall:
        return NotfallZusatz;
    case Standart::NotfallErledigt:
        return ErledigtZusatz;
    case Standart::Gewöhnlich:
        break;
    }
    return "";
}

template <class... Werte> Text Formatiert(const char *muster, Werte... werte)
{
    char puffer[64];
    std::snprintf(puffer, sizeof puffer, muster, werte...);
    return puffer;
}

std::vector<Stand> StändeIn(const path &verzeichnis)
{
    std::vector<Stand> stände;
    try {
        for (const Text &name : Laufwerke.Auflisten(verzeichnis).Verzeichnisse)
            if (auto stand = StandAusName(name)) {
                stand->Ort = verzeichnis / PfadAus(name);
                stände.push_back(std::move(*stand));
            }
    } catch (const Laufzeitfehler &) {
        // There are none yet.
    }
    return stände;
}

void NachZeitOrdnen(std::vector<Stand> &stände)
{
    std::ranges::sort(stände, {}, &Stand::Zeit);
}

/// Of now, and later than every state of this second.
Standzeit JetzigeZeit(const std::vector<Stand> &stände)
{
    Standzeit zeit{Uhr.Heute(), Uhr.Sekunden(), 1};
    for (const Stand &stand : stände)
        if (stand.Zeit.Tag == zeit.Tag && stand.Zeit.Sekunde == zeit.Sekunde)
            zeit.Nummer = std::max(zeit.Nummer, stand.Zeit.Nummer + 1);
    return zeit;
}

/// Raises failure 76 if the program's own directory is not there: to make that is not our part.
path StändeverzeichnisAnlegen()
{
    Laufwerke.Auflisten(Laufwerke.Programmverzeichnis());
    path verzeichnis = Ständeverzeichnis();
    Laufwerke.VerzeichnisAnlegen(verzeichnis);
    return verzeichnis;
}

void DateienSchreiben(const path &verzeichnis, const Standinhalt &inhalt)
{
    for (const Standdatei &datei : inhalt.Dateien) {
        if (!datei.Bytes)
            continue;
        const path ort = verzeichnis / PfadAus(datei.Name);
        Laufwerke.Schreiben(ort, *datei.Bytes);
        Laufwerke.Durchschreiben(ort);
    }
    Laufwerke.Durchschreiben(verzeichnis);
}

bool LädtGanz(const Stand &stand)
{
    return InhaltLesen(InhaltVon(stand.Ort)).Befund.Was == Ladebefund::Vollständig;
}

void Versuchen(const auto &schritt)
{
    try {
        schritt();
    } catch (const Laufzeitfehler &) {
        // It is tried again the next time.
    }
}

} // namespace

Text Standname(const Standzeit &zeit, Standart art)
{
    const Kalendertag tag = KalendertagVon(zeit.Tag);
    Text name = Formatiert("%04d-%02d-%02d %02d-%02d-%02d", tag.Jahr, tag.Monat, tag.Tag,
                           zeit.Sekunde / 3600, zeit.Sekunde / 60 % 60, zeit.Sekunde % 60);
    if (zeit.Nummer > 1)
        name += Formatiert(" (%d)", zeit.Nummer);
    return name + Zusatz(art);
}

std::optional<Stand> StandAusName(const Text &name)
{
    Kalendertag tag{};
    int stunde = 0;
    int minute = 0;
    int sekunde = 0;
    int nummer = 1;
    const int felder = std::sscanf(name.c_str(), "%4d-%2d-%2d %2d-%2d-%2d (%d)", &tag.Jahr,
                                   &tag.Monat, &tag.Tag, &stunde, &minute, &sekunde, &nummer);
    if (felder < 6 || stunde > 23 || minute > 59 || sekunde > 59)
        return std::nullopt;
    try {
        Stand stand;
        stand.Zeit = {DatumAus(tag), stunde * 3600 + minute * 60 + sekunde, nummer};
        for (const Standart art :
             {Standart::Gewöhnlich, Standart::Notfall, Standart::NotfallErledigt}) {
            stand.Art = art;
            if (Standname(stand.Zeit, art) == name) // nothing more and nothing less
                return stand;
        }
    } catch (const Laufzeitfehler &) {
        // There is no such day.
    }
    return std::nullopt;
}

path Ständeverzeichnis()
{
    return Laufwerke.Programmverzeichnis() / PfadAus("Stände");
}

std::vector<Stand> AlleStände()
{
    std::vector<Stand> stände = StändeIn(Ständeverzeichnis());
    for (const path &verzeichnis : Laufwerke.Ausweichverzeichnisse())
        std::ranges::move(StändeIn(verzeichnis), std::back_inserter(stände));
    NachZeitOrdnen(stände);
    return stände;
}

bool StandSichern(const Standinhalt &inhalt)
{
    if (inhalt.Leer())
        return false;
    const std::vector<Stand> stände = AlleStände();
    if (!stände.empty() && InhaltVon(stände.back().Ort) == inhalt)
        return false;
    VerzeichnisSchreiben(StändeverzeichnisAnlegen(),
                         Standname(JetzigeZeit(stände), Standart::Gewöhnlich), inhalt);
    return true;
}

void NotfallSichern(const Standinhalt &inhalt)
{
    const Text name = Standname(JetzigeZeit(AlleStände()), Standart::Notfall);
    try {
        return VerzeichnisSchreiben(StändeverzeichnisAnlegen(), name, inhalt);
    } catch (const Laufzeitfehler &) {
        const std::vector<path> auswege = Laufwerke.Ausweichverzeichnisse();
        for (const path &ausweg : auswege) {
            try {
                Laufwerke.VerzeichnisAnlegen(ausweg);
                return VerzeichnisSchreiben(ausweg, name, inhalt);
            } catch (const Laufzeitfehler &) {
                if (ausweg == auswege.back())
                    throw;
            }
        }
        throw;
    }
}

void NotfälleErledigen()
{
    for (const Stand &stand : AlleStände())
        if (stand.Art == Standart::Notfall)
            Versuchen([&] {
                const Text name = Standname(stand.Zeit, Standart::NotfallErledigt);
                Laufwerke.Umbenennen(stand.Ort, stand.Ort.parent_path() / PfadAus(name));
            });
}

std::vector<Stand> Entbehrliche(std::vector<Stand> stände, Datum heute)
{
    constexpr int AlleTage = 7;
    constexpr int LetzterDesTages = 60;      // days
    constexpr int LetzterDesMonats = 5 * 12; // months
    constexpr std::size_t Wenigste = 10;

    const auto monat = [](Datum tag) {
        const Kalendertag k = KalendertagVon(tag);
        return k.Jahr * 12 + k.Monat;
    };
    NachZeitOrdnen(stände);
    std::set<Datum> tage;
    std::set<int> monate;
    std::vector<Stand> entbehrlich;
    std::size_t behalten = 0;
    for (auto stand = stände.rbegin(); stand != stände.rend(); ++stand) {
        const Datum alter = heute - stand->Zeit.Tag;
        const bool letzterDesTages = tage.insert(stand->Zeit.Tag).second;
        const bool letzterDesMonats = monate.insert(monat(stand->Zeit.Tag)).second;
        if (behalten < Wenigste || alter < AlleTage ||
            (letzterDesTages && alter < LetzterDesTages) ||
            (letzterDesMonats && monat(heute) - monat(stand->Zeit.Tag) < LetzterDesMonats))
            ++behalten;
        else
            entbehrlich.push_back(*stand);
    }
    return entbehrlich;
}

void StändeAufräumen()
{
    const std::vector<Stand> alle = AlleStände();
    const std::vector<Stand> entbehrlich = Entbehrliche(alle, Uhr.Heute());
    if (entbehrlich.empty())
        return;
    const auto ganz = std::find_if(alle.rbegin(), alle.rend(), LädtGanz);
    for (const Stand &stand : entbehrlich)
        if (ganz == alle.rend() || stand.Ort != ganz->Ort)
            Versuchen([&] { VerzeichnisEntfernen(stand.Ort); });
}

void VerzeichnisSchreiben(const path &verzeichnis, const Text &name, const Standinhalt &inhalt)
{
    const path daneben = verzeichnis / InArbeit;
    const path ziel = verzeichnis / PfadAus(name);
    Laufwerke.Löschen(daneben);
    try {
        Laufwerke.VerzeichnisAnlegen(daneben);
        DateienSchreiben(daneben, inhalt);
        Laufwerke.Umbenennen(daneben, ziel);
    } catch (...) {
        Versuchen([&] { Laufwerke.Löschen(daneben); });
        throw;
    }
    Laufwerke.Durchschreiben(verzeichnis);
}

void VerzeichnisEntfernen(const path &verzeichnis)
{
    const path weg = verzeichnis.parent_path() / ZuLöschen;
    Laufwerke.Löschen(weg);
    Laufwerke.Umbenennen(verzeichnis, weg);
    Laufwerke.Löschen(weg);
}

void ResteEntfernen()
{
    std::vector<path> orte = Laufwerke.Ausweichverzeichnisse();
    orte.push_back(Ständeverzeichnis());
    for (const path &ort : orte)
        for (const char *rest : {InArbeit, ZuLöschen, NotfallInArbeit})
            Versuchen([&] { Laufwerke.Löschen(ort / rest); });
}

} // namespace altardienst
