// From the bytes of a file to its text.
#include "core/Tabellentext.h"

#include "values/Ansi.h"

#include <cstdint>

namespace altardienst {
namespace {

unsigned char Byte(std::string_view text, std::size_t stelle)
{
    return static_cast<unsigned char>(text[stelle]);
}

/// How many bytes a character of UTF-8 has that begins here; 0 if none does. Neither halves of
/// pairs nor spellings that are longer than needed are characters.
std::size_t ZeichenAb(std::string_view text, std::size_t stelle)
{
    const unsigned char erstes = Byte(text, stelle);
    if (erstes < 0x80)
        return 1;
    const std::size_t länge = erstes >> 5 == 6    ? 2
                              : erstes >> 4 == 14 ? 3
                              : erstes >> 3 == 30 ? 4
                                                  : 0;
    if (länge == 0 || erstes < 0xC2 || erstes > 0xF4 || stelle + länge > text.size())
        return 0;
    for (std::size_t k = 1; k < länge; ++k)
        if (Byte(text, stelle + k) >> 6 != 2)
            return 0;
    const unsigned char zweites = Byte(text, stelle + 1);
    const bool fehlt = (erstes == 0xE0 && zweites < 0xA0) || (erstes == 0xED && zweites > 0x9F) ||
                       (erstes == 0xF0 && zweites < 0x90) || (erstes == 0xF4 && zweites > 0x8F);
    return fehlt ? 0 : länge;
}

/// What speaks for UTF-8 and what against it.
struct Zeichenzahlen {
    std::size_t Lange = 0;   // of more than one byte
    std::size_t Falsche = 0; // bytes with which no character begins
};

Zeichenzahlen ZeichenIn(std::string_view text)
{
    Zeichenzahlen zahlen;
    for (std::size_t stelle = 0; stelle < text.size();) {
        const std::size_t länge = ZeichenAb(text, stelle);
        zahlen.Lange += länge > 1 ? 1 : 0;
        zahlen.Falsche += länge == 0 ? 1 : 0;
        stelle += länge == 0 ? 1 : länge;
    }
    return zahlen;
}

/// With `KeinZeichen` for each byte with which none begins.
Text AusUtf8(std::string_view bytes)
{
    Text text;
    text.reserve(bytes.size());
    for (std::size_t stelle = 0; stelle < bytes.size();) {
        const std::size_t länge = ZeichenAb(bytes, stelle);
        text += länge == 0 ? KeinZeichen : bytes.substr(stelle, länge);
        stelle += länge == 0 ? 1 : länge;
    }
    return text;
}

void Utf8Anhängen(Text &text, std::uint32_t zeichen)
{
    const auto folge = [&text, zeichen](int bit) {
        text += static_cast<char>(0x80 | ((zeichen >> bit) & 0x3F));
    };
    if (zeichen < 0x80) {
        text += static_cast<char>(zeichen);
    } else if (zeichen < 0x800) {
        text += static_cast<char>(0xC0 | (zeichen >> 6));
        folge(0);
    } else if (zeichen < 0x10000) {
        text += static_cast<char>(0xE0 | (zeichen >> 12));
        folge(6);
        folge(0);
    } else {
        text += static_cast<char>(0xF0 | (zeichen >> 18));
        folge(12);
        folge(6);
        folge(0);
    }
}

/// Half of a pair becomes the sign for what is no character; half a character at the end is left
/// out.
Text AusUtf16(std::string_view bytes, bool großesEndeVorn)
{
    const auto einheit = [&](std::size_t stelle) {
        const std::uint32_t eins = Byte(bytes, stelle);
        const std::uint32_t zwei = Byte(bytes, stelle + 1);
        return großesEndeVorn ? eins << 8 | zwei : zwei << 8 | eins;
    };
    constexpr std::uint32_t Unlesbar = 0xFFFD; // `KeinZeichen`
    Text text;
    text.reserve(bytes.size());
    for (std::size_t stelle = 0; stelle + 1 < bytes.size(); stelle += 2) {
        std::uint32_t zeichen = einheit(stelle);
        if (zeichen >= 0xD800 && zeichen < 0xE000) {
            const std::uint32_t zweite =
                zeichen < 0xDC00 && stelle + 3 < bytes.size() ? einheit(stelle + 2) : 0;
            if (zweite >= 0xDC00 && zweite < 0xE000) {
                zeichen = 0x10000 + ((zeichen - 0xD800) << 10) + (zweite - 0xDC00);
                stelle += 2;
            } else {
                zeichen = Unlesbar;
            }
        }
        Utf8Anhängen(text, zeichen);
    }
    return text;
}

} // namespace

Text TextDerDatei(std::string_view bytes)
{
    if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF"))
        return AusUtf16(bytes.substr(2), bytes.starts_with("\xFE"));
    const bool hatMarke = bytes.starts_with(Utf8Marke);
    if (hatMarke)
        bytes.remove_prefix(Utf8Marke.size());
    const Zeichenzahlen zahlen = ZeichenIn(bytes);
    if (zahlen.Falsche == 0)
        return Text(bytes);
    // In the code page hardly anything looks like a long character: an umlaut stands before a
    // letter. Where these are not fewer than the wrong bytes, the wrong ones are damage.
    if (hatMarke || (zahlen.Lange > 0 && zahlen.Lange >= zahlen.Falsche))
        return AusUtf8(bytes);
    Text text;
    AusAnsi(bytes, text);
    return text;
}

} // namespace altardienst
