// The table of Windows-1252 and the conversions by it.
#include "values/Ansi.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

namespace altardienst {
namespace {

/// Bytes 0x80 to 0x9F; the others stand for themselves.
constexpr std::array<char16_t, 32> Oben = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

bool IstAscii(std::string_view text)
{
    std::size_t i = 0;
    for (; i + 8 <= text.size(); i += 8) {
        std::uint64_t acht;
        std::memcpy(&acht, text.data() + i, 8);
        if (acht & 0x8080808080808080U)
            return false;
    }
    return std::all_of(text.begin() + static_cast<std::ptrdiff_t>(i), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

void Utf8Anhängen(Text &text, char16_t c)
{
    if (c < 0x80) {
        text += static_cast<char>(c);
    } else if (c < 0x800) {
        text += static_cast<char>(0xC0 | (c >> 6));
        text += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        text += static_cast<char>(0xE0 | (c >> 12));
        text += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        text += static_cast<char>(0x80 | (c & 0x3F));
    }
}

/// Takes one character off the front; what is not UTF-8 gives U+FFFD.
std::uint32_t ZeichenNehmen(std::string_view &text)
{
    auto erstes = static_cast<unsigned char>(text.front());
    text.remove_prefix(1);
    if (erstes < 0x80)
        return erstes;
    int folge = std::countl_one(erstes) - 1;
    if (folge < 1 || folge > 3)
        return 0xFFFD;
    std::uint32_t c = erstes & (0x3FU >> folge);
    for (; folge > 0; --folge) {
        if (text.empty() || (static_cast<unsigned char>(text.front()) & 0xC0) != 0x80)
            return 0xFFFD;
        c = c << 6 | (static_cast<unsigned char>(text.front()) & 0x3F);
        text.remove_prefix(1);
    }
    return c;
}

char AnsiByte(std::uint32_t c)
{
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF))
        return static_cast<char>(c);
    const auto *stelle = std::ranges::find(Oben, c);
    return stelle == Oben.end() ? '?' : static_cast<char>(0x80 + (stelle - Oben.begin()));
}

} // namespace

void AusAnsi(std::string_view bytes, Text &ziel)
{
    if (IstAscii(bytes)) {
        ziel.assign(bytes);
        return;
    }
    ziel.clear();
    for (char byte : bytes) {
        auto c = static_cast<unsigned char>(byte);
        Utf8Anhängen(ziel, c >= 0x80 && c < 0xA0 ? Oben[c - 0x80U] : c);
    }
}

void AnsiAnhängen(std::string &bytes, std::string_view text)
{
    if (IstAscii(text)) {
        bytes.append(text);
        return;
    }
    while (!text.empty())
        bytes += AnsiByte(ZeichenNehmen(text));
}

Text InAnsiDarstellbar(std::string_view text)
{
    std::string bytes;
    AnsiAnhängen(bytes, text);
    Text darstellbar;
    AusAnsi(bytes, darstellbar);
    return darstellbar;
}

} // namespace altardienst
