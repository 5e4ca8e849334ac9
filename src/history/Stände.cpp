// Earlier states of the eight files.
#include "history/Stände.h"

#include "history/Aufräumen.h"
#include "platform/Einzellauf.h"
#include "platform/Laufwerke.h"
#include "platform/Uhr.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

namespace altardienst {
namespace {

using std::filesystem::path;

/// What stands after the time in the name of a state.
constexpr std::array<std::pair<Standart, const char *>, 5> Zusätze = {{
    {Standart::Gewöhnlich, ""},
    {Standart::Notfall, " Notfall"},
    {Standart::NotfallErledigt, " Notfall erledigt"},
    {Standart::VorAbbruch, " vor Abbruch"},
    {Standart::OhneKomma, " ohne Komma"},
}};

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

/// Of now, but later than every state, even if the clock went back meanwhile: the newest state
/// must be the last one.
Standzeit NächsteZeit(const std::vector<Stand> &stände)
{
    Standzeit zeit;
    do { // not over midnight
        zeit = {Uhr.Heute(), Uhr.Sekunden(), 1};
    } while (zeit.Tag != Uhr.Heute());
    if (!stände.empty() && stände.back().Zeit >= zeit) {
        zeit = stände.back().Zeit;
        ++zeit.Nummer;
    }
    return zeit;
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

void Versuchen(const auto &schritt)
{
    try {
        schritt();
    } catch (const Laufzeitfehler &) {
        // It is tried again the next time.
    }
}

void Umbenennen(Standart von, Standart nach)
{
    for (const Stand &stand : AlleStände())
        if (stand.Art == von)
            Versuchen([&] {
                const path ziel = stand.Ort.parent_path() / PfadAus(Standname(stand.Zeit, nach));
                Laufwerke.Umbenennen(stand.Ort, ziel);
            });
}

} // namespace

Text Standname(const Standzeit &zeit, Standart art)
{
    const Kalendertag tag = KalendertagVon(zeit.Tag);
    Text name = Formatiert("%04d-%02d-%02d %02d-%02d-%02d", tag.Jahr, tag.Monat, tag.Tag,
                           zeit.Sekunde / 3600, zeit.Sekunde / 60 % 60, zeit.Sekunde % 60);
    if (zeit.Nummer > 1)
        name += Formatiert(" (%d)", zeit.Nummer);
    const auto *zusatz = std::ranges::find(Zusätze, art, &std::pair<Standart, const char *>::first);
    return name + zusatz->second;
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
        for (const auto &zusatz : Zusätze) {
            stand.Art = zusatz.first;
            if (Standname(stand.Zeit, stand.Art) == name) // nothing more and nothing less
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

bool WartetAufEntscheidung(const Stand &stand)
{
    return stand.Art == Standart::Notfall || stand.Art == Standart::VorAbbruch;
}

path StändeverzeichnisAnlegen()
{
    const path darüber = Laufwerke.Programmverzeichnis();
    const auto namen = Laufwerke.Auflisten(darüber).Verzeichnisse;
    path verzeichnis = Ständeverzeichnis();
    Laufwerke.VerzeichnisAnlegen(verzeichnis);
    ZugangWieZurDatei(verzeichnis, darüber / PfadAus(DateiMit(DateiMeßdiener).Name));
    if (std::ranges::count(namen, TextVon(verzeichnis.filename())) == 0)
        Laufwerke.Durchschreiben(darüber);
    return verzeichnis;
}

bool SchonAufgehoben(const Standinhalt &inhalt)
{
    const std::vector<Stand> stände = AlleStände();
    for (auto stand = stände.rbegin(); stand != stände.rend(); ++stand) {
        if (InhaltVon(stand->Ort) == inhalt)
            return true;
        if (stand->Art != Standart::OhneKomma && !WartetAufEntscheidung(*stand))
            break;
    }
    return false;
}

bool StandSichern(const Standinhalt &inhalt, Standart art)
{
    if (inhalt.Leer() || SchonAufgehoben(inhalt))
        return false;
    const path verzeichnis = StändeverzeichnisAnlegen();
    MitPlatz([&] {
        VerzeichnisSchreiben(verzeichnis, Standname(NächsteZeit(AlleStände()), art), inhalt);
    });
    return true;
}

void NotfallSichern(const Standinhalt &inhalt)
{
    const Text name = Standname(NächsteZeit(AlleStände()), Standart::Notfall);
    try {
        PlatzFreigeben();
        const path verzeichnis = StändeverzeichnisAnlegen();
        return MitPlatz([&] { VerzeichnisSchreiben(verzeichnis, name, inhalt); });
    } catch (const Laufzeitfehler &) {
        const std::vector<path> auswege = Laufwerke.Ausweichverzeichnisse();
        for (const path &ausweg : auswege) {
            try {
                Laufwerke.VerzeichnisAnlegen(ausweg);
                ZugangWieZurDatei(ausweg, {});
                return VerzeichnisSchreiben(ausweg, name, inhalt);
            } catch (const Laufzeitfehler &) {
                if (ausweg == auswege.back())
                    throw;
            }
        }
        throw;
    }
}

void AlsNeuestenStand(const path &verzeichnis, Standart art)
{
    const Text name = Standname(NächsteZeit(AlleStände()), art);
    Laufwerke.Umbenennen(verzeichnis, Ständeverzeichnis() / PfadAus(name));
    Laufwerke.Durchschreiben(Ständeverzeichnis());
}

void NotfälleErledigen()
{
    Umbenennen(Standart::Notfall, Standart::NotfallErledigt);
}

void AbbrücheErledigen()
{
    Umbenennen(Standart::VorAbbruch, Standart::Gewöhnlich);
}

void ZukünftigeUmbenennen()
{
    constexpr int Wenige = 10;
    const std::vector<Stand> stände = AlleStände();
    const Datum morgen = Uhr.Heute() + 1; // a clock of another country is no wrong one
    const auto erster =
        std::ranges::find_if(stände, [&](const Stand &stand) { return stand.Zeit.Tag > morgen; });
    if (erster == stände.begin() || stände.end() - erster >= Wenige)
        return;
    Standzeit zeit = NächsteZeit({stände.begin(), erster});
    for (auto stand = erster; stand != stände.end(); ++stand, ++zeit.Nummer)
        Versuchen([&] {
            const Text name = Standname(zeit, stand->Art);
            Laufwerke.Umbenennen(stand->Ort, stand->Ort.parent_path() / PfadAus(name));
        });
}

void AusweichständeHolen()
{
    for (const Stand &stand : AlleStände())
        if (stand.Ort.parent_path() != Ständeverzeichnis())
            Versuchen([&] {
                VerzeichnisSchreiben(StändeverzeichnisAnlegen(), Standname(stand.Zeit, stand.Art),
                                     InhaltVon(stand.Ort));
                VerzeichnisEntfernen(stand.Ort);
            });
}

void VerzeichnisSchreiben(const path &verzeichnis, const Text &name, const Standinhalt &inhalt)
{
    const path daneben = verzeichnis / PfadAus(Restname(Rest::InArbeit));
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

/// What cannot be deleted then, the next start deletes.
void VerzeichnisEntfernen(const path &verzeichnis)
{
    static int zahl = 0; // what was not deleted is not in the way of the next
    const path weg = verzeichnis.parent_path() /
                     PfadAus(Restname(Rest::ZuLöschen) + " " + std::to_string(++zahl));
    Laufwerke.Umbenennen(verzeichnis, weg);
    Laufwerke.Durchschreiben(weg.parent_path());
    Versuchen([&] { Laufwerke.Löschen(weg); });
}

} // namespace altardienst
