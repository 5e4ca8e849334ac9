// A line of text in a file of calendar entries.
#include "exchange/Kalenderzeile.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace altardienst {
namespace {

constexpr std::size_t Zeilenlänge = 75;

/// Appends pieces to a line that goes on in the next one where they do not fit.
class Faltzeile {
  public:
    explicit Faltzeile(std::string &bytes) : bytes(bytes), anfang(bytes.size()) {}

    std::size_t Rest() const { return Zeilenlänge - (bytes.size() - anfang); }

    void Anhängen(std::string_view stück)
    {
        if (stück.size() > Rest()) {
            bytes += "\r\n";
            anfang = bytes.size();
            bytes += ' ';
        }
        bytes += stück;
    }

  private:
    std::string &bytes;
    std::size_t anfang; // of the line
};

/// One byte long and without a meaning, by its number.
constexpr std::array<bool, 256> Einfache = [] {
    std::array<bool, 256> einfache{};
    for (std::size_t zahl = ' '; zahl < 0x7f; ++zahl)
        einfache[zahl] = zahl != '\\' && zahl != ';' && zahl != ',';
    return einfache;
}();

bool IstEinfach(char zeichen)
{
    return Einfache[static_cast<unsigned char>(zeichen)];
}

/// How many bytes of a text are one character and stay as they are.
std::size_t Zeichenlänge(std::string_view text)
{
    constexpr std::size_t Höchstens = 4;
    std::size_t länge = 1;
    while (länge < std::min(text.size(), Höchstens) &&
           (static_cast<unsigned char>(text[länge]) & 0xC0) == 0x80)
        ++länge;
    return länge;
}

std::string_view Ersatz(char zeichen)
{
    switch (zeichen) {
    case '\\':
        return "\\\\";
    case ';':
        return "\\;";
    case ',':
        return "\\,";
    case '\n':
        return "\\n";
    default:
        return ""; // a control character
    }
}

} // namespace

void TextzeileAnhängen(std::string &bytes, std::string_view name, std::string_view text)
{
    Faltzeile zeile(bytes);
    zeile.Anhängen(name);
    zeile.Anhängen(":");
    while (!text.empty()) {
        const std::size_t platz = std::min(text.size(), zeile.Rest());
        std::size_t länge = 0; // of what goes as it is, at once
        while (länge < platz && IstEinfach(text[länge]))
            ++länge;
        if (länge > 0) {
            zeile.Anhängen(text.substr(0, länge));
        } else if (IstEinfach(text[0]) || static_cast<unsigned char>(text[0]) > 0x7f) {
            länge = Zeichenlänge(text);
            zeile.Anhängen(text.substr(0, länge));
        } else {
            länge = 1;
            zeile.Anhängen(Ersatz(text[0]));
        }
        text.remove_prefix(länge);
    }
    bytes += "\r\n";
}

} // namespace altardienst
