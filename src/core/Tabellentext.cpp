// Tables as text: reading.
#include "core/Tabellentext.h"

#include "core/Umwandlung.h"

#include <algorithm>
#include <array>
#include <map>
#include <utility>

namespace altardienst {
namespace {

constexpr std::array<char, 3> Trenner = {';', '\t', ','};
constexpr int Probezeilen = 20;

/// What other programs open with these bytes.
struct Dateianfang {
    std::string_view Bytes;
    const char *Was;
};
constexpr std::array<Dateianfang, 5> FremdeAnfänge = {{
    {"PK\x03\x04", "eine Arbeitsmappe oder ein Archiv"},
    {"\xD0\xCF\x11\xE0", "eine Arbeitsmappe"},
    {"%PDF", "ein Druckbild"},
    {"\xFF\xD8\xFF", "ein Bild"},
    {"\x89PNG", "ein Bild"},
}};

Text KeineTabelle(std::string_view bytes)
{
    if (bytes.empty())
        return "Die Datei ist leer.";
    if (bytes.size() > GrößteTabelle)
        return ZuGroßeTabelle();
    for (const Dateianfang &anfang : FremdeAnfänge)
        if (bytes.starts_with(anfang.Bytes))
            return Text("Die Datei ist ") + anfang.Was +
                   ". Eingelesen wird Text: in der Tabellenkalkulation „Speichern unter“ und dort "
                   "„CSV“ wählen.";
    return "";
}

bool IstText(std::string_view text)
{
    return std::ranges::none_of(text, [](char zeichen) {
        const auto byte = static_cast<unsigned char>(zeichen);
        return byte < 0x20 && byte != '\t' && byte != '\n' && byte != '\r';
    });
}

/// How many lines end within this: by CR, LF or both.
int Zeilenenden(std::string_view enden)
{
    int anzahl = 0;
    for (std::size_t k = 0; k < enden.size(); ++k)
        anzahl += enden[k] == '\n' && k > 0 && enden[k - 1] == '\r' ? 0 : 1;
    return anzahl;
}

/// The line "sep=;", by which some programs tell the separator; 0 without.
char GenannterTrenner(std::string_view text)
{
    constexpr std::string_view Wort = "sep=";
    if (!text.starts_with(Wort) || text.size() == Wort.size())
        return 0;
    const char genannt = text[Wort.size()];
    const std::string_view danach = text.substr(Wort.size() + 1);
    const bool allein = danach.empty() || danach[0] == '\r' || danach[0] == '\n';
    return allein && std::ranges::count(Trenner, genannt) > 0 ? genannt : '\0';
}

/// Where a quote begins a field, whatever separates the fields: the place after the one that ends
/// it or, if none does, the place after itself.
std::size_t NachZitat(std::string_view text, std::size_t stelle)
{
    for (std::size_t zitat = stelle + 1;; ++zitat) {
        zitat = text.find('"', zitat);
        if (zitat == std::string_view::npos)
            return stelle + 1;
        if (zitat + 1 == text.size() || text[++zitat] != '"')
            return zitat;
    }
}

/// Counts the separators of one line after the other, outside of quotes.
class Trennerzähler {
  public:
    explicit Trennerzähler(std::string_view text) : text(text) {}

    std::array<std::size_t, Trenner.size()> Zahlen{};

    /// Goes to the next line that has a character; false if there is none.
    bool Weiter()
    {
        Zahlen.fill(0);
        stelle = std::min(text.find_first_not_of("\r\n", stelle), text.size());
        if (stelle == text.size())
            return false;
        bool amAnfang = true; // of a field
        while (stelle < text.size() && text[stelle] != '\r' && text[stelle] != '\n') {
            const auto *const trenner = std::ranges::find(Trenner, text[stelle]);
            if (trenner != Trenner.end())
                ++Zahlen[static_cast<std::size_t>(trenner - Trenner.begin())];
            stelle = amAnfang && text[stelle] == '"' ? NachZitat(text, stelle) : stelle + 1;
            amAnfang = trenner != Trenner.end();
        }
        return true;
    }

  private:
    std::string_view text;
    std::size_t stelle = 0;
};

} // namespace

Text ZuGroßeTabelle()
{
    return "Die Datei ist größer als " + ZahlText(static_cast<int>(GrößteTabelle >> 20)) +
           " MB: Das ist keine Liste von Leuten.";
}

char TrennerIn(std::string_view text)
{
    if (const char genannt = GenannterTrenner(text))
        return genannt;
    std::array<std::map<std::size_t, std::size_t>, Trenner.size()> zeilenJeZahl;
    Trennerzähler zähler(text);
    for (int zeile = 0; zeile < Probezeilen && zähler.Weiter(); ++zeile)
        for (std::size_t k = 0; k < Trenner.size(); ++k)
            if (zähler.Zahlen[k] > 0) // a title has none
                ++zeilenJeZahl[k][zähler.Zahlen[k]];
    char bester = Trenner[0];
    std::pair<std::size_t, std::size_t> meiste; // rows, and their separators
    for (std::size_t k = 0; k < Trenner.size(); ++k)
        for (const auto &[zahl, zeilen] : zeilenJeZahl[k])
            if (std::pair(zeilen, zahl) > meiste) {
                meiste = {zeilen, zahl};
                bester = Trenner[k];
            }
    return bester;
}

bool Tabellenleser::Weiter()
{
    const std::size_t enden = std::min(rest.find_first_not_of("\r\n"), rest.size());
    nummer += Zeilenenden(rest.substr(0, enden)) + (nummer == 0 ? 1 : 0);
    rest.remove_prefix(enden);
    if (rest.empty())
        return false;
    ZeileTeilen();
    return true;
}

void Tabellenleser::ZeileTeilen()
{
    std::size_t anzahl = 0;
    std::size_t stelle = 0;
    while (true) {
        anzahl = std::min(anzahl, MeisteTabellenspalten); // what comes then is only passed over
        if (felder.size() == anzahl)
            felder.emplace_back();
        felder[anzahl].clear();
        stelle = FeldLesen(stelle, felder[anzahl]);
        ++anzahl;
        if (stelle >= rest.size() || rest[stelle] != trenner)
            break;
        ++stelle;
    }
    felder.resize(anzahl);
    roh = rest.substr(0, stelle);
    rest.remove_prefix(stelle);
}

/// Returns where the field ends: at a separator, a line end or the end of all.
std::size_t Tabellenleser::FeldLesen(std::size_t von, Text &feld)
{
    std::size_t stelle = von;
    if (stelle < rest.size() && rest[stelle] == '"') {
        std::size_t zitat = stelle + 1;
        for (bool offen = true; offen;) {
            const std::size_t ende = rest.find('"', zitat);
            if (ende == std::string_view::npos) { // it was no quote: a character like any other
                feld.clear();
                break;
            }
            feld.append(rest.substr(zitat, ende - zitat));
            zitat = ende + 1;
            offen = zitat < rest.size() && rest[zitat] == '"';
            if (offen) {
                feld += '"';
                ++zitat;
            } else {
                stelle = zitat;
            }
        }
    }
    const char enden[] = {trenner, '\r', '\n'};
    const std::size_t ende =
        std::min(rest.find_first_of(std::string_view(enden, sizeof enden), stelle), rest.size());
    feld.append(rest.substr(stelle, ende - stelle));
    return ende;
}

Tabellenblatt TabelleLesen(std::string_view bytes)
{
    Tabellenblatt blatt;
    blatt.Mangel = KeineTabelle(bytes);
    if (!blatt.Mangel.empty())
        return blatt;
    const Text text = TextDerDatei(bytes);
    if (!IstText(text)) {
        blatt.Mangel = "Die Datei ist kein Text und keine Tabelle.";
        return blatt;
    }
    std::string_view zeilen = text;
    const char trenner = TrennerIn(zeilen);
    if (GenannterTrenner(zeilen) != 0) { // a line that no spreadsheet shows
        zeilen.remove_prefix(std::min(zeilen.find_first_of("\r\n"), zeilen.size()));
        zeilen.remove_prefix(zeilen.starts_with("\r\n") ? 2
                                                        : std::min<std::size_t>(zeilen.size(), 1));
    }
    for (Tabellenleser leser(zeilen, trenner); blatt.Mangel.empty() && leser.Weiter();) {
        if (leser.Felder().size() > MeisteTabellenspalten)
            blatt.Mangel = "Die Tabelle hat mehr als " +
                           ZahlText(static_cast<int>(MeisteTabellenspalten)) + " Spalten.";
        else if (blatt.Zeilen.size() == MeisteTabellenzeilen)
            blatt.Mangel = "Die Tabelle hat mehr als " +
                           ZahlText(static_cast<int>(MeisteTabellenzeilen)) + " Zeilen.";
        else {
            blatt.Zeilen.push_back(leser.Felder());
            blatt.Nummern.push_back(leser.Nummer());
        }
    }
    if (blatt.Mangel.empty() && blatt.Zeilen.empty())
        blatt.Mangel = "In der Datei steht keine Zeile.";
    if (!blatt.Mangel.empty())
        blatt = {.Zeilen = {}, .Nummern = {}, .Mangel = std::move(blatt.Mangel)};
    return blatt;
}

} // namespace altardienst
