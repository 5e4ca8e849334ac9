// Character positions in UTF-8 text.
#include "values/Text.h"

#include "values/Laufzeitfehler.h"

namespace altardienst {
namespace {

bool IstFolgebyte(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

/// The byte at which character `zeichen` (from 0) begins, or the end.
std::size_t ByteVon(std::string_view text, int zeichen)
{
    std::size_t byte = 0;
    while (zeichen > 0 && byte < text.size()) {
        do
            ++byte;
        while (byte < text.size() && IstFolgebyte(text[byte]));
        --zeichen;
    }
    return byte;
}

} // namespace

int Länge(std::string_view text)
{
    int anzahl = 0;
    for (char c : text)
        anzahl += !IstFolgebyte(c);
    return anzahl;
}

Text Links(std::string_view text, int anzahl)
{
    return Mitte(text, 1, anzahl);
}

Text Mitte(std::string_view text, int ab, int anzahl)
{
    if (ab < 1 || anzahl < 0)
        throw Laufzeitfehler(Laufzeitfehler::UngültigerAufruf);
    std::string_view rest = text.substr(ByteVon(text, ab - 1));
    return Text(rest.substr(0, ByteVon(rest, anzahl)));
}

bool IstJa(std::string_view flags, int position)
{
    std::size_t byte = ByteVon(flags, position - 1);
    return byte < flags.size() && flags[byte] == 'j';
}

Text MitFlag(std::string_view flags, int position, bool ja)
{
    Text neu = Links(flags, position - 1);
    for (int n = Länge(neu); n < position - 1; ++n)
        neu += 'n';
    neu += ja ? 'j' : 'n';
    const std::size_t rest = ByteVon(flags, position);
    return neu.append(flags.substr(rest));
}

Text Klein(std::string_view text)
{
    Text klein(text);
    for (std::size_t i = 0; i < klein.size(); ++i) {
        auto c = static_cast<unsigned char>(klein[i]);
        auto nächstes = i + 1 < klein.size() ? static_cast<unsigned char>(klein[i + 1]) : 0;
        if (c >= 'A' && c <= 'Z') {
            klein[i] = static_cast<char>(c + 32);
        } else if (c == 0xC3 && nächstes >= 0x80 && nächstes <= 0x9E && nächstes != 0x97) {
            klein[i + 1] = static_cast<char>(nächstes + 32); // U+00C0..U+00DE without "×"
        } else if (c == 0xC5 && (nächstes == 0x92 || nächstes == 0xA0 || nächstes == 0xBD)) {
            klein[i + 1] = static_cast<char>(nächstes + 1); // Œ Š Ž
        } else if (c == 0xC5 && nächstes == 0xB8) {
            klein[i] = static_cast<char>(0xC3); // Ÿ
            klein[i + 1] = static_cast<char>(0xBF);
        }
    }
    return klein;
}

} // namespace altardienst
