// The handbook as text: the headings of a page, the places that links lead to, the order of pages.
#include "help/Handbuchtext.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <optional>
#include <string_view>

namespace altardienst {
namespace {

using std::string_view;

string_view OhneRand(string_view text)
{
    constexpr string_view Leer = " \t\r";
    const auto von = text.find_first_not_of(Leer);
    return von == string_view::npos ? string_view()
                                    : text.substr(von, text.find_last_not_of(Leer) - von + 1);
}

/// Calls this for every line outside of blocks of code, in which "#" begins no heading.
template <class F> void JedeZeile(string_view markdown, F tun)
{
    Text zaun; // that of the block of code one is in
    while (!markdown.empty()) {
        const auto ende = std::min(markdown.find('\n'), markdown.size());
        const string_view zeile = OhneRand(markdown.substr(0, ende));
        markdown.remove_prefix(std::min(ende + 1, markdown.size()));
        const string_view anfang = zeile.substr(0, 3);
        if (!zaun.empty()) {
            if (anfang == zaun)
                zaun.clear();
        } else if (anfang == "```" || anfang == "~~~") {
            zaun = anfang;
        } else {
            tun(zeile);
        }
    }
}

/// The target after the "]" of a link or picture: what stands in its round brackets.
std::optional<string_view> Ziel(string_view abKlammer)
{
    if (!abKlammer.starts_with("]("))
        return std::nullopt;
    const auto ende = abKlammer.find(')');
    if (ende == string_view::npos)
        return std::nullopt;
    return abKlammer.substr(2, ende - 2);
}

/// The words as they are read: without the signs for bold, italic, code and links.
Text OhneAuszeichnung(string_view zeile)
{
    Text worte;
    for (std::size_t i = 0; i < zeile.size(); ++i) {
        const string_view rest = zeile.substr(i);
        if (rest.front() == '\\' && rest.size() > 1) {
            worte += rest[1];
            ++i;
        } else if (const auto ziel = Ziel(rest)) {
            i += ziel->size() + 2;
        } else if (string_view("*`[").find(rest.front()) == string_view::npos) {
            worte += rest.front();
        }
    }
    return worte;
}

std::optional<std::pair<int, Text>> AlsÜberschrift(string_view zeile)
{
    const auto stufe = std::min(zeile.find_first_not_of('#'), zeile.size());
    if (stufe < 1 || stufe > 6 || (stufe < zeile.size() && zeile[stufe] != ' '))
        return std::nullopt;
    string_view worte = OhneRand(zeile.substr(stufe));
    const auto letztes = worte.find_last_not_of('#');
    const auto ende = letztes == string_view::npos ? 0 : letztes + 1;
    if (ende == 0 || worte[ende - 1] == ' ') // "#" as an end, not as the last letter of "C#"
        worte = OhneRand(worte.substr(0, ende));
    return std::pair(static_cast<int>(stufe), OhneAuszeichnung(worte));
}

/// The bytes of the character that begins the text.
string_view ErstesZeichen(string_view text)
{
    std::size_t bytes = 1;
    while (bytes < text.size() && (static_cast<unsigned char>(text[bytes]) & 0xC0) == 0x80)
        ++bytes;
    return text.substr(0, bytes);
}

/// The signs from no-break space to inverted question mark, "×", "÷", and the typographic ones.
bool IstSatzzeichen(string_view zeichen)
{
    if (zeichen.size() == 1) {
        const char c = zeichen.front();
        const bool wort = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
                          (c >= '0' && c <= '9') || c == '-' || c == '_' || c == ' ';
        return !wort;
    }
    return (zeichen.size() == 2 && zeichen[0] == '\xC2') || zeichen == "×" || zeichen == "÷" ||
           zeichen.starts_with("\xE2\x80") || zeichen.starts_with("\xE2\x81");
}

/// "%C3%BC" as "ü".
Text OhneProzentzeichen(string_view verweis)
{
    Text text;
    for (std::size_t i = 0; i < verweis.size(); ++i) {
        unsigned char byte = 0;
        const char *anfang = verweis.data() + i + 1;
        if (verweis[i] == '%' && i + 2 < verweis.size() &&
            std::from_chars(anfang, anfang + 2, byte, 16).ptr == anfang + 2) {
            text += static_cast<char>(byte);
            i += 2;
        } else {
            text += verweis[i];
        }
    }
    return text;
}

} // namespace

std::vector<Titelzeile> Überschriften(const Text &markdown)
{
    std::vector<Titelzeile> alle;
    std::map<Text, int> gleiche;
    JedeZeile(markdown, [&](string_view zeile) {
        const auto überschrift = AlsÜberschrift(zeile);
        if (!überschrift)
            return;
        Text anker = AnkerVon(überschrift->second);
        if (const int wievielte = gleiche[anker]++; wievielte > 0)
            anker += "-" + std::to_string(wievielte);
        alle.push_back({überschrift->first, überschrift->second, anker});
    });
    return alle;
}

Text AnkerVon(const Text &worte)
{
    const Text klein = Klein(worte);
    Text anker;
    for (string_view rest = klein; !rest.empty();) {
        const string_view zeichen = ErstesZeichen(rest);
        rest.remove_prefix(zeichen.size());
        if (zeichen == " ")
            anker += '-';
        else if (!IstSatzzeichen(zeichen))
            anker += zeichen;
    }
    return anker;
}

Handbuchstelle StelleVon(const Text &verweis, const Text &aufSeite)
{
    const auto raute = std::min(verweis.find('#'), verweis.size());
    const Text seite = OhneProzentzeichen(string_view(verweis).substr(0, raute));
    return {seite.empty() ? aufSeite : seite,
            raute == verweis.size() ? Text()
                                    : OhneProzentzeichen(string_view(verweis).substr(raute + 1))};
}

bool FührtHinaus(const Text &verweis)
{
    const Text klein = Klein(verweis);
    return std::ranges::any_of(std::initializer_list<const char *>{"http:", "https:", "mailto:"},
                               [&](const char *art) { return klein.starts_with(art); });
}

std::vector<Text> Verweise(const Text &markdown)
{
    std::vector<Text> alle;
    JedeZeile(markdown, [&](string_view zeile) {
        for (auto klammer = zeile.find(']'); klammer != string_view::npos;
             klammer = zeile.find(']', klammer + 1))
            if (const auto ziel = Ziel(zeile.substr(klammer)))
                alle.emplace_back(*ziel);
    });
    return alle;
}

std::vector<Text> Seitenfolge(const Text &ersteSeite, const std::vector<Text> &namen)
{
    std::vector<Text> folge;
    const auto anhängen = [&](const Text &name) {
        if (std::ranges::count(namen, name) > 0 && std::ranges::count(folge, name) == 0)
            folge.push_back(name);
    };
    anhängen(ErsteSeite);
    for (const Text &verweis : Verweise(ersteSeite))
        anhängen(StelleVon(verweis, ErsteSeite).Seite);
    for (const Text &name : namen)
        anhängen(name);
    return folge;
}

} // namespace altardienst
