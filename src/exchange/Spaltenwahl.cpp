// From the headings of a file to the columns they mean.
#include "exchange/Spalten.h"

#include "core/Tabellentext.h"

#include <algorithm>
#include <array>

namespace altardienst {
namespace {

// How surely a heading means a column.
constexpr int Wörtlich = 4;
constexpr int MitAnderemNamen = 3;
constexpr int ErstesWort = 2; // "Telefon der Eltern"
constexpr int SpäteresWort = 1;

constexpr std::size_t LängsteÜberschrift = 200; // bytes; what is longer means no column

std::vector<Text> WörterIn(const Text &überschrift)
{
    std::vector<Text> wörter;
    std::size_t von = 0;
    while (von < überschrift.size()) {
        const std::size_t ende =
            std::min(überschrift.find_first_of(" -_/.,:;()\n\t", von), überschrift.size());
        if (Text wort = Vergleichsform(überschrift.substr(von, ende - von)); !wort.empty())
            wörter.push_back(std::move(wort));
        von = ende + 1;
    }
    return wörter;
}

bool HeißtAuch(const Listenspalte &spalte, const Text &wort)
{
    return wort == Vergleichsform(spalte.Name) || std::ranges::count(spalte.Auch, wort) > 0;
}

int Sicherheit(const Text &überschrift, const Listenspalte &spalte)
{
    if (überschrift.size() > LängsteÜberschrift)
        return 0;
    const Text ganz = Vergleichsform(überschrift);
    if (ganz.empty())
        return 0;
    if (ganz == Vergleichsform(spalte.Name))
        return Wörtlich;
    if (HeißtAuch(spalte, ganz))
        return MitAnderemNamen;
    const std::vector<Text> wörter = WörterIn(überschrift);
    for (std::size_t k = 0; k < wörter.size(); ++k)
        if (HeißtAuch(spalte, wörter[k]))
            return k == 0 ? ErstesWort : SpäteresWort;
    return 0;
}

/// The headings of a column that holds two of ours.
bool MeintBeide(const Text &überschrift, int doppelspalte)
{
    constexpr std::array<std::string_view, 8> Namen = {
        "vorundnachname",  "namevorname", "vornamename", "nachnamevorname",
        "vornamenachname", "vollernamen", "vollername",  "vorundzuname"};
    constexpr std::array<std::string_view, 8> Orte = {
        "plzort",   "plzundort",   "plzwohnort",      "plzundwohnort",
        "plzstadt", "plzundstadt", "postleitzahlort", "postleitzahlundort"};
    if (überschrift.size() > LängsteÜberschrift)
        return false;
    const Text form = Vergleichsform(überschrift);
    return std::ranges::count(doppelspalte == GanzerName ? Namen : Orte, form) > 0;
}

struct Treffer {
    int Sicherheit;
    int Spalte;    // of the file
    int Bedeutung; // of ours
};

/// The surest first; of equal ones the one further to the left.
std::vector<Treffer> TrefferIn(const std::vector<Text> &überschriften,
                               const std::vector<Listenspalte> &spalten)
{
    std::vector<Treffer> treffer;
    for (std::size_t k = 0; k < überschriften.size(); ++k)
        for (std::size_t b = 0; b < spalten.size(); ++b)
            if (const int sicherheit = Sicherheit(überschriften[k], spalten[b]); sicherheit > 0)
                treffer.push_back({sicherheit, static_cast<int>(k), static_cast<int>(b)});
    std::ranges::stable_sort(
        treffer, [](const Treffer &a, const Treffer &b) { return a.Sicherheit > b.Sicherheit; });
    return treffer;
}

} // namespace

const std::array<Doppelspalte, 2> Doppelspalten = {
    {{GanzerName, "Vor- und Nachname", SpalteVorname, SpalteNachname, NamenTeilen},
     {PlzUndOrt, "PLZ und Ort", SpaltePlz, SpalteOrt, PlzUndOrtTeilen}}};

bool SchließenSichAus(int eine, int andere)
{
    const auto istTeil = [](int ganze, int teil) {
        return std::ranges::any_of(Doppelspalten, [&](const Doppelspalte &doppelte) {
            return doppelte.Nummer == ganze && (doppelte.Eine == teil || doppelte.Andere == teil);
        });
    };
    return andere != KeineSpalte &&
           (eine == andere || istTeil(eine, andere) || istTeil(andere, eine));
}

Text Vergleichsform(std::string_view text)
{
    Text form;
    const Text klein = Klein(text);
    for (std::size_t k = 0; k < klein.size(); ++k) {
        const std::string_view rest = std::string_view(klein).substr(k);
        const char zeichen = klein[k];
        if ((zeichen >= 'a' && zeichen <= 'z') || (zeichen >= '0' && zeichen <= '9'))
            form += zeichen;
        else if (rest.starts_with("ä"))
            form += "ae";
        else if (rest.starts_with("ö"))
            form += "oe";
        else if (rest.starts_with("ü"))
            form += "ue";
        else if (rest.starts_with("ß"))
            form += "ss";
    }
    return form;
}

Zuordnung ZuordnungNach(const std::vector<Text> &überschriften, Personenart art)
{
    const auto &spalten = SpaltenFür(art);
    Zuordnung zuordnung(überschriften.size(), KeineSpalte);
    std::vector<bool> vergeben(spalten.size());
    for (const Doppelspalte &eine : Doppelspalten) {
        const auto stelle = std::ranges::find_if(
            überschriften, [&](const Text &text) { return MeintBeide(text, eine.Nummer); });
        if (stelle == überschriften.end())
            continue;
        zuordnung[static_cast<std::size_t>(stelle - überschriften.begin())] = eine.Nummer;
        vergeben[static_cast<std::size_t>(eine.Eine)] = true;
        vergeben[static_cast<std::size_t>(eine.Andere)] = true;
    }
    for (const Treffer &einer : TrefferIn(überschriften, spalten)) {
        const auto spalte = static_cast<std::size_t>(einer.Spalte);
        const auto bedeutung = static_cast<std::size_t>(einer.Bedeutung);
        if (zuordnung[spalte] != KeineSpalte || vergeben[bedeutung])
            continue;
        zuordnung[spalte] = einer.Bedeutung;
        vergeben[bedeutung] = true;
    }
    // "Name" is the surname where there are first names, and the whole name where there are none.
    if (!vergeben[SpalteVorname])
        std::ranges::replace(zuordnung, SpalteNachname, GanzerName);
    return zuordnung;
}

int Kopfzeile(const std::vector<std::vector<Text>> &zeilen, Personenart art)
{
    constexpr std::size_t Weiteste = 10;
    int beste = -1;
    std::ptrdiff_t meiste = 0;
    for (std::size_t z = 0; z < std::min(zeilen.size(), Weiteste); ++z) {
        const Zuordnung zuordnung = ZuordnungNach(zeilen[z], art);
        const std::ptrdiff_t bedeutungen = static_cast<std::ptrdiff_t>(zuordnung.size()) -
                                           std::ranges::count(zuordnung, KeineSpalte);
        if (bedeutungen > meiste && (bedeutungen > 1 || zuordnung.size() == 1)) {
            meiste = bedeutungen;
            beste = static_cast<int>(z);
        }
    }
    return beste;
}

void NamenTeilen(const Text &ganz, Text &vorname, Text &nachname)
{
    if (const std::size_t komma = ganz.find(','); komma != Text::npos) {
        nachname = TextDesFelds(ganz.substr(0, komma));
        vorname = TextDesFelds(ganz.substr(komma + 1));
        return;
    }
    const std::size_t blank = ganz.find_last_of(' ');
    nachname = blank == Text::npos ? ganz : ganz.substr(blank + 1);
    vorname = blank == Text::npos ? Text() : TextDesFelds(ganz.substr(0, blank));
}

void PlzUndOrtTeilen(const Text &ganz, Text &plz, Text &ort)
{
    const std::size_t ende = std::min(ganz.find_first_of(" ,/"), ganz.size());
    plz = ganz.substr(0, ende);
    if (plz.find_first_of("0123456789") == Text::npos)
        plz.clear();
    ort = plz.empty() ? ganz
                      : ganz.substr(std::min(ganz.find_first_not_of(" ,/", ende), ganz.size()));
}

} // namespace altardienst
