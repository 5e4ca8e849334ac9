// Tables as text: single fields.
#include "core/Tabellentext.h"

#include "core/Suchwörter.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace altardienst {
namespace {

constexpr std::string_view HartesLeerzeichen = "\xC2\xA0";

// What spreadsheets make a date of beside a number, and what they take for a truth.
constexpr std::array<std::string_view, 12> Monate = {"jan", "feb", "mär", "apr", "mai", "jun",
                                                     "jul", "aug", "sep", "okt", "nov", "dez"};
constexpr std::array<std::string_view, 5> AndereMonate = {"mar", "may", "oct", "dec", "mrz"};
constexpr std::array<std::string_view, 4> Wahrheiten = {"wahr", "falsch", "true", "false"};

bool IstBlank(char zeichen)
{
    return zeichen == ' ' || zeichen == '\t' || zeichen == '\r' || zeichen == '\n';
}

/// A letter, or part of any character beyond ASCII.
bool IstBuchstabe(char zeichen)
{
    return (zeichen >= 'A' && zeichen <= 'Z') || (zeichen >= 'a' && zeichen <= 'z') ||
           static_cast<unsigned char>(zeichen) >= 0x80;
}

/// Whether the words of a text, digits aside, are such as stand in a number, a date or a time.
bool NurZahlenUndMonate(const Text &klein)
{
    for (std::size_t stelle = 0; stelle < klein.size();) {
        if (!IstBuchstabe(klein[stelle])) {
            ++stelle;
            continue;
        }
        const std::size_t von = stelle;
        while (stelle < klein.size() && IstBuchstabe(klein[stelle]))
            ++stelle;
        const std::string_view wort = std::string_view(klein).substr(von, stelle - von);
        const auto beginntDamit = [wort](std::string_view monat) {
            return wort.starts_with(monat);
        };
        if (wort.size() > 2 && wort != "€" && wort != "eur" &&
            std::ranges::none_of(Monate, beginntDamit) &&
            std::ranges::none_of(AndereMonate, beginntDamit))
            return false;
    }
    return true;
}

// What stands in a text, as bits.
constexpr std::uint8_t Ziffer = 1;
constexpr std::uint8_t NurInZitat = 2; // all separators, so that a reader finds that of the table

constexpr std::array<std::uint8_t, 256> Zeichenarten = [] {
    std::array<std::uint8_t, 256> arten{};
    for (char ziffer = '0'; ziffer <= '9'; ++ziffer)
        arten[static_cast<unsigned char>(ziffer)] = Ziffer;
    for (const char zeichen : {';', ',', '\t', '"', '\r', '\n'})
        arten[static_cast<unsigned char>(zeichen)] = NurInZitat;
    return arten;
}();

std::uint8_t ArtenIn(std::string_view text)
{
    std::uint8_t arten = 0;
    for (const char zeichen : text)
        arten |= Zeichenarten[static_cast<unsigned char>(zeichen)];
    return arten;
}

/// Without blanks around it, hard ones included.
std::string_view OhneRand(std::string_view text)
{
    while (true) {
        if (!text.empty() && IstBlank(text.front()))
            text.remove_prefix(1);
        else if (!text.empty() && IstBlank(text.back()))
            text.remove_suffix(1);
        else if (text.starts_with(HartesLeerzeichen))
            text.remove_prefix(HartesLeerzeichen.size());
        else if (text.ends_with(HartesLeerzeichen))
            text.remove_suffix(HartesLeerzeichen.size());
        else
            return text;
    }
}

std::size_t Ziffernzahl(std::string_view text)
{
    return std::min(text.find_first_not_of("0123456789"), text.size());
}

/// A number that is shown and saved as it stands, and telephone numbers in two parts: "48999",
/// "0251 123456", "0251/123456".
bool BleibtWasEsIst(std::string_view text)
{
    constexpr std::size_t Längste = 10; // a longer number is shown with an exponent
    constexpr std::size_t Vorwahl = 4;  // a shorter one may be a day, a month or a year
    constexpr std::size_t Rufnummer = 3;
    const std::size_t vorn = Ziffernzahl(text);
    if (text.front() != '0')
        return vorn == text.size() && vorn <= Längste;
    const std::string_view rest = text.substr(vorn);
    if (vorn < Vorwahl || rest.empty() || (rest[0] != ' ' && rest[0] != '/' && rest[0] != '-'))
        return false;
    return rest.size() > Rufnummer && Ziffernzahl(rest.substr(1)) == rest.size() - 1;
}

bool WürdeUmgedeutet(std::string_view text, std::uint8_t arten)
{
    if (text.empty())
        return false;
    constexpr std::string_view Formelzeichen = "=+-@'";
    if (Formelzeichen.find(text.front()) != std::string_view::npos || OhneRand(text) != text)
        return true;
    if ((arten & Ziffer) != 0)
        return !BleibtWasEsIst(text) && NurZahlenUndMonate(Klein(text));
    constexpr std::string_view Anfänge = "WwFfTt"; // a look at each text's first letter costs least
    return Anfänge.find(text.front()) != std::string_view::npos &&
           std::ranges::count(Wahrheiten, Klein(text)) > 0;
}

/// The text with each of its quotes twice.
Text MitDoppeltenZitaten(std::string_view text)
{
    Text doppelt;
    for (const char zeichen : text) {
        doppelt += zeichen;
        if (zeichen == '"')
            doppelt += '"';
    }
    return doppelt;
}

Text MitEinfachenZitaten(std::string_view text)
{
    Text einfach;
    for (std::size_t k = 0; k < text.size(); ++k) {
        einfach += text[k];
        if (text[k] == '"' && text.substr(k + 1).starts_with('"'))
            ++k;
    }
    return einfach;
}

} // namespace

void FeldAnhängen(std::string &bytes, std::string_view feld)
{
    if ((ArtenIn(feld) & NurInZitat) == 0) {
        bytes += feld;
        return;
    }
    bytes += '"' + MitDoppeltenZitaten(feld) + '"';
}

void TextfeldAnhängen(std::string &bytes, std::string_view text)
{
    const std::uint8_t arten = ArtenIn(text);
    if (WürdeUmgedeutet(text, arten))
        FeldAnhängen(bytes, "=\"" + MitDoppeltenZitaten(text) + "\"");
    else if ((arten & NurInZitat) != 0)
        FeldAnhängen(bytes, text);
    else
        bytes += text;
}

Text TextDesFelds(std::string_view feld)
{
    feld = OhneRand(feld);
    if (feld.size() >= 3 && feld.starts_with("=\"") && feld.ends_with('"'))
        return MitEinfachenZitaten(feld.substr(2, feld.size() - 3));
    return Text(feld);
}

} // namespace altardienst
