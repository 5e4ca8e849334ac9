// Windows-1252 to and from UTF-8.
#include "values/Ansi.h"

#include "Prüfstand.h"

namespace altardienst {
namespace {

Text AusBytes(const std::string &bytes)
{
    Text text = "was vorher dastand";
    AusAnsi(bytes, text);
    return text;
}

std::string Bytes(const Text &text)
{
    std::string bytes = ">";
    AnsiAnhängen(bytes, text);
    return bytes.substr(1);
}

TEST(Ansi, UmlauteSindEinByte)
{
    EXPECT_EQ(Bytes("äöüÄÖÜß"), "\xE4\xF6\xFC\xC4\xD6\xDC\xDF");
    EXPECT_EQ(AusBytes("\xE4\xF6\xFC\xC4\xD6\xDC\xDF"), "äöüÄÖÜß");
    EXPECT_EQ(AusBytes("Me\xDF"
                       "diener"),
              "Meßdiener");
    EXPECT_EQ(Bytes("Meßdiener in der Größe"), "Me\xDF"
                                               "diener in der Gr\xF6\xDF"
                                               "e");
}

TEST(Ansi, KenntDieZeichenZwischen80Und9F)
{
    EXPECT_EQ(AusBytes("\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E"), "€‚ƒ„…†‡ˆ‰Š‹ŒŽ");
    EXPECT_EQ(AusBytes("\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F"),
              "‘’“”•–—˜™š›œžŸ");
    EXPECT_EQ(Bytes("€„“–Ÿ"), "\x80\x84\x93\x96\x9F");
}

TEST(Ansi, JedesByteKommtZurück)
{
    for (int b = 0; b < 256; ++b) {
        std::string byte(1, static_cast<char>(b));
        EXPECT_EQ(Bytes(AusBytes(byte)), byte) << b;
        EXPECT_EQ(Länge(AusBytes(byte)), 1) << b;
    }
}

TEST(Ansi, WasDieCodepageNichtHatWirdFragezeichen)
{
    EXPECT_EQ(Bytes("Łukasz"), "?ukasz");
    EXPECT_EQ(Bytes("a😀b"), "a?b");
    EXPECT_EQ(Bytes("\xC2\x80"), "?") << "U+0080 itself is not in the code page";
    EXPECT_EQ(InAnsiDarstellbar("Łódź in Größe €"), "?ód? in Größe €");
}

TEST(Ansi, UnfertigesUtf8WirdFragezeichen)
{
    EXPECT_EQ(Bytes("a\xC3"), "a?");
    EXPECT_EQ(Bytes("\xC3z"), "?z");
    EXPECT_EQ(Bytes("\xBFz"), "?z");
    EXPECT_EQ(Bytes("\xFFz"), "?z");
    EXPECT_EQ(Bytes("\xE2\x82"), "?");
}

TEST(Ansi, LangeTexteWieKurze)
{
    for (std::size_t n = 0; n < 40; ++n) {
        std::string vorn(n, 'x');
        EXPECT_EQ(Bytes(vorn + "ß" + vorn), vorn + "\xDF" + vorn);
        EXPECT_EQ(AusBytes(vorn + "\xDF" + vorn), vorn + "ß" + vorn);
        EXPECT_EQ(AusBytes(vorn), vorn);
        EXPECT_EQ(Bytes(vorn), vorn);
    }
}

} // namespace
} // namespace altardienst
