// Searching the handbook: which paragraphs have the words, and the sentence to show for each.
#include "help/Handbuchsuche.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <utility>

namespace altardienst {
namespace {

using std::string_view;

constexpr int LängsterSatz = 160; // characters, about three lines of the list
constexpr int DavorHöchstens = 60;

bool IstFolgebyte(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

/// A text as it is compared, and where each byte comes from.
struct Gefaltet {
    Text Worte;
    std::vector<std::size_t> Von; // one more than bytes: the last one is the end

    /// The part of the text from which these bytes come; of a letter that became two, all of it.
    Treffer Ursprung(std::size_t ab, std::size_t bytes) const
    {
        std::size_t ende = ab + bytes;
        while (ende < Worte.size() && Von[ende] == Von[ende - 1])
            ++ende;
        return {Von[ab], Von[ende] - Von[ab]};
    }
};

constexpr std::array<std::pair<string_view, string_view>, 17> Gleich = {{
    {"ß", "ss"},
    {"ẞ", "ss"},
    {"\u00a0", " "}, // no-break space
    {"\u202f", " "}, // its narrow sister
    {"\ufffc", " "}, // a picture
    {"\u00ad", ""},  // soft hyphen
    {"„", "\""},
    {"“", "\""},
    {"”", "\""},
    {"«", "\""},
    {"»", "\""},
    {"‚", "'"},
    {"‘", "'"},
    {"’", "'"},
    {"–", "-"},
    {"—", "-"},
    {"…", "..."},
}};

Gefaltet Falten(string_view text)
{
    const Text klein = Klein(text); // byte for byte as long
    Gefaltet gefaltet;
    for (std::size_t i = 0; i < klein.size();) {
        const string_view rest = string_view(klein).substr(i);
        std::size_t bytes = 1;
        while (bytes < rest.size() && IstFolgebyte(rest[bytes]))
            ++bytes;
        string_view zeichen = rest.substr(0, bytes);
        const auto gleich =
            std::ranges::find(Gleich, zeichen, &decltype(Gleich)::value_type::first);
        if (gleich != Gleich.end())
            zeichen = gleich->second;
        gefaltet.Worte += zeichen;
        gefaltet.Von.insert(gefaltet.Von.end(), zeichen.size(), i);
        i += bytes;
    }
    gefaltet.Von.push_back(klein.size());
    return gefaltet;
}

/// How many of the words the text has.
int AnzahlDerWorte(const Gefaltet &text, const std::vector<Gefaltet> &worte)
{
    return static_cast<int>(std::ranges::count_if(
        worte, [&](const Gefaltet &wort) { return text.Worte.find(wort.Worte) != Text::npos; }));
}

std::vector<Gefaltet> Falten(const std::vector<Text> &worte)
{
    std::vector<Gefaltet> gefaltet;
    gefaltet.reserve(worte.size());
    for (const Text &wort : worte)
        gefaltet.push_back(Falten(string_view(wort)));
    std::erase_if(gefaltet, [](const Gefaltet &wort) { return wort.Worte.empty(); });
    return gefaltet;
}

/// An abbreviation or a number, after which a sentence goes on.
bool GehtWeiter(string_view vorDemPunkt)
{
    const auto trenner = vorDemPunkt.find_last_of(" \"(./");
    const string_view wort =
        trenner == string_view::npos ? vorDemPunkt : vorDemPunkt.substr(trenner + 1);
    if (Länge(wort) == 1)
        return true; // "z. B."
    if (!wort.empty() && wort.find_first_not_of("0123456789") == string_view::npos)
        return true; // "30. November"
    constexpr std::array<string_view, 7> Kürzel = {"bzw", "ca", "evtl", "Nr", "St", "Str", "vgl"};
    return std::ranges::count(Kürzel, wort) > 0;
}

bool BeginntSatz(string_view text)
{
    return text.empty() ||
           !((text.front() >= 'a' && text.front() <= 'z') || text.starts_with("ä") ||
             text.starts_with("ö") || text.starts_with("ü"));
}

/// The blank after the sentence that ends with the sign at this byte; none if it ends none.
std::optional<std::size_t> Satzende(string_view text, std::size_t zeichen)
{
    if (string_view(".!?").find(text[zeichen]) == string_view::npos)
        return std::nullopt;
    if (text[zeichen] == '.' && GehtWeiter(text.substr(0, zeichen)))
        return std::nullopt;
    const auto danach = std::min(text.find_first_not_of("\")]“”’", zeichen + 1), text.size());
    if (danach < text.size() && text[danach] != ' ')
        return std::nullopt;
    const auto nächster = std::min(text.find_first_not_of(' ', danach), text.size());
    if (!BeginntSatz(text.substr(nächster)))
        return std::nullopt;
    return danach;
}

/// So much of the sentence that it fits, from a whole word to a whole word, with the place in it.
Text Gekürzt(const Text &satz, const Treffer &stelle)
{
    if (Länge(satz) <= LängsterSatz)
        return satz;
    const int davor = Länge(string_view(satz).substr(0, stelle.Ab));
    const int ab = std::clamp(davor - DavorHöchstens, 0, Länge(satz) - LängsterSatz);
    Text teil = Mitte(satz, ab + 1, LängsterSatz);
    if (ab + LängsterSatz < Länge(satz))
        if (const auto blank = teil.rfind(' '); blank != Text::npos)
            teil = teil.substr(0, blank) + " …";
    if (ab > 0)
        if (const auto blank = teil.find(' '); blank != Text::npos)
            teil = "…" + teil.substr(blank);
    return teil;
}

Suchtreffer FundstelleIn(std::size_t nummer, const Text &absatz, const std::vector<Text> &worte,
                         const std::vector<Gefaltet> &gefaltete)
{
    Treffer bester{0, absatz.size()};
    int meiste = 0;
    for (const Treffer &satz : Sätze(absatz)) {
        const int anzahl =
            AnzahlDerWorte(Falten(string_view(absatz).substr(satz.Ab, satz.Bytes)), gefaltete);
        if (anzahl > meiste) {
            meiste = anzahl;
            bester = satz;
        }
    }
    const Text satz = absatz.substr(bester.Ab, bester.Bytes);
    const std::vector<Treffer> treffer = TrefferIn(satz, worte);
    const Treffer erster = treffer.empty() ? Treffer{0, 0} : treffer.front();
    const Text gezeigt = Gekürzt(satz, erster);
    return {nummer, {bester.Ab + erster.Ab, erster.Bytes}, gezeigt, TrefferIn(gezeigt, worte)};
}

} // namespace

std::vector<Text> Suchworte(const Text &eingabe)
{
    std::vector<Text> worte;
    for (string_view rest = eingabe;;) {
        rest.remove_prefix(std::min(rest.find_first_not_of(" \t"), rest.size()));
        if (rest.empty())
            return worte;
        worte.emplace_back(rest.substr(0, rest.find_first_of(" \t")));
        rest.remove_prefix(worte.back().size());
    }
}

std::vector<Treffer> TrefferIn(const Text &text, const std::vector<Text> &worte)
{
    const Gefaltet gefaltet = Falten(string_view(text));
    std::vector<Treffer> alle;
    for (const Gefaltet &wort : Falten(worte))
        for (auto ab = gefaltet.Worte.find(wort.Worte); ab != Text::npos;
             ab = gefaltet.Worte.find(wort.Worte, ab + wort.Worte.size()))
            alle.push_back(gefaltet.Ursprung(ab, wort.Worte.size()));
    std::ranges::sort(alle, {}, &Treffer::Ab);

    std::vector<Treffer> getrennte;
    for (const Treffer &einer : alle) {
        if (!getrennte.empty() && einer.Ab <= getrennte.back().Ab + getrennte.back().Bytes) {
            Treffer &voriger = getrennte.back();
            voriger.Bytes = std::max(voriger.Bytes, einer.Ab + einer.Bytes - voriger.Ab);
        } else {
            getrennte.push_back(einer);
        }
    }
    return getrennte;
}

std::vector<Treffer> Sätze(const Text &absatz)
{
    std::vector<Treffer> alle;
    std::size_t ab = absatz.find_first_not_of(' ');
    for (std::size_t i = ab; i < absatz.size(); ++i) {
        const auto ende = Satzende(absatz, i);
        if (!ende)
            continue;
        alle.push_back({ab, *ende - ab});
        ab = std::min(absatz.find_first_not_of(' ', *ende), absatz.size());
        i = *ende;
    }
    if (ab < absatz.size())
        alle.push_back({ab, absatz.find_last_not_of(' ') + 1 - ab});
    return alle;
}

std::vector<Suchtreffer> Suchen(const std::vector<Absatz> &absätze, const std::vector<Text> &worte)
{
    const std::vector<Gefaltet> gefaltete = Falten(worte);
    const auto alle = static_cast<int>(gefaltete.size());
    if (alle == 0)
        return {};
    std::vector<Gefaltet> texte;
    texte.reserve(absätze.size());
    for (const Absatz &absatz : absätze)
        texte.push_back(Falten(string_view(absatz.Worte)));

    std::vector<Suchtreffer> fundstellen;
    for (std::size_t i = 0; i < absätze.size(); ++i)
        if (AnzahlDerWorte(texte[i], gefaltete) == alle)
            fundstellen.push_back(FundstelleIn(i, absätze[i].Worte, worte, gefaltete));
    if (!fundstellen.empty())
        return fundstellen;

    for (std::size_t ab = 0, ende = 0; ab < absätze.size(); ab = ende) {
        Gefaltet abschnitt;
        std::size_t bester = ab;
        int meiste = 0;
        for (ende = ab; ende < absätze.size() && absätze[ende].Seite == absätze[ab].Seite &&
                        absätze[ende].Abschnitt == absätze[ab].Abschnitt;
             ++ende) {
            abschnitt.Worte += texte[ende].Worte + "\n";
            if (const int anzahl = AnzahlDerWorte(texte[ende], gefaltete); anzahl > meiste) {
                meiste = anzahl;
                bester = ende;
            }
        }
        if (AnzahlDerWorte(abschnitt, gefaltete) == alle)
            fundstellen.push_back(FundstelleIn(bester, absätze[bester].Worte, worte, gefaltete));
    }
    return fundstellen;
}

} // namespace altardienst
