// What may go from the place of the states.
#include "history/Aufräumen.h"

#include "history/Unterschiede.h"
#include "platform/Einzellauf.h"
#include "platform/Laufwerke.h"
#include "platform/Uhr.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <set>
#include <string>

namespace altardienst {
namespace {

using std::filesystem::path;

constexpr std::size_t Wenigste = 10;

constexpr std::array<const char *, 4> Restnamen = {"unfertig", "geloescht", "Notfall unfertig",
                                                   "Speichern"};
constexpr const char *Reservename = "Reserve";

void Versuchen(const auto &schritt)
{
    try {
        schritt();
    } catch (const Laufzeitfehler &) {
        // It is tried again the next time.
    }
}

Text NameIn(Rest rest)
{
    return Restnamen[static_cast<std::size_t>(rest)];
}

bool HatName(const Text &name, const Text &vorne)
{
    return name == vorne || (name.starts_with(vorne + " ") &&
                             name.find_first_not_of("0123456789 ", vorne.size()) == Text::npos);
}

/// The newest whose files load whole, and the newest of these that is not an empty parish.
std::set<path> Unentbehrliche(const std::vector<Stand> &stände)
{
    std::set<path> orte;
    for (auto stand = stände.rbegin(); stand != stände.rend(); ++stand) {
        const Gelesenes gelesenes = InhaltLesen(InhaltVon(stand->Ort));
        if (gelesenes.Befund.Was != Ladebefund::Vollständig)
            continue;
        const bool leer = ÜbersichtVon(gelesenes.Tabellen).Leer();
        if (orte.empty() || !leer)
            orte.insert(stand->Ort);
        if (!leer)
            break;
    }
    return orte;
}

/// From which day on the states are reckoned by their age.
Datum Bezugstag(const std::vector<Stand> &stände)
{
    return stände.size() < Wenigste
               ? Uhr.Heute()
               : std::min(Uhr.Heute(), stände[stände.size() - Wenigste].Zeit.Tag);
}

} // namespace

std::vector<Stand> Entbehrliche(std::vector<Stand> stände, Datum heute)
{
    constexpr int AlleTage = 7;
    constexpr int LetzterDesTages = 60;      // days
    constexpr int LetzterDesMonats = 5 * 12; // months

    const auto monat = [](Datum tag) {
        const Kalendertag k = KalendertagVon(tag);
        return k.Jahr * 12 + k.Monat;
    };
    std::ranges::sort(stände, {}, &Stand::Zeit);
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

int StändeAufräumen()
{
    int gegangen = 0;
    const std::vector<Stand> alle = AlleStände();
    std::vector<Stand> entbehrlich = Entbehrliche(alle, Bezugstag(alle));
    std::erase_if(entbehrlich, WartetAufEntscheidung);
    if (entbehrlich.empty())
        return gegangen;
    const std::set<path> bleiben = Unentbehrliche(alle);
    for (const Stand &stand : entbehrlich)
        if (!bleiben.contains(stand.Ort))
            Versuchen([&] {
                VerzeichnisEntfernen(stand.Ort);
                ++gegangen;
            });
    return gegangen;
}

void MitPlatz(const std::function<void()> &schritt)
{
    try {
        return schritt();
    } catch (const Laufzeitfehler &fehler) {
        if (fehler.Nummer() != Laufzeitfehler::DatenträgerVoll || StändeAufräumen() == 0)
            throw;
    }
    schritt();
}

Text Restname(Rest rest)
{
    return NameIn(rest) + " " + std::to_string(Prozessnummer());
}

bool IstRest(const Text &name, Rest rest)
{
    return HatName(name, NameIn(rest));
}

void ResteEntfernen()
{
    const auto entfernen = [](const path &ort, const std::vector<Text> &namen) {
        for (const Text &name : namen)
            if (IstRest(name, Rest::InArbeit) || IstRest(name, Rest::ZuLöschen) ||
                IstRest(name, Rest::NotfallInArbeit) || HatName(name, Reservename))
                Versuchen([&] { Laufwerke.Löschen(ort / PfadAus(name)); });
    };
    std::vector<path> orte = Laufwerke.Ausweichverzeichnisse();
    orte.push_back(Ständeverzeichnis());
    for (const path &ort : orte)
        Versuchen([&] {
            const Verzeichnisinhalt inhalt = Laufwerke.Auflisten(ort);
            entfernen(ort, inhalt.Verzeichnisse);
            entfernen(ort, inhalt.Dateien);
        });
}

path Platzreserve()
{
    return Ständeverzeichnis() / PfadAus(Text(Reservename) + " " + std::to_string(Prozessnummer()));
}

void PlatzReservieren()
{
    constexpr std::size_t Reichlich = std::size_t(4) << 20; // for all eight files, full of names
    Versuchen([] {
        StändeverzeichnisAnlegen();
        try {
            Laufwerke.Schreiben(Platzreserve(), std::string(Reichlich, ' '));
        } catch (const Laufzeitfehler &) {
            PlatzFreigeben(); // what little there is may be needed
        }
    });
}

void PlatzFreigeben()
{
    Versuchen([] { Laufwerke.Löschen(Platzreserve()); });
}

} // namespace altardienst
