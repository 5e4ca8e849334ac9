// Lines of text in calendar files.
#include "exchange/Kalenderzeile.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace altardienst {
namespace {

std::string Zeile(std::string_view text, std::string_view name = "SUMMARY")
{
    std::string bytes;
    TextzeileAnhängen(bytes, name, text);
    return bytes;
}

/// The lines of a file; empty if one does not end as a line does there.
std::vector<std::string> Zeilen(const std::string &bytes)
{
    std::vector<std::string> zeilen;
    for (std::size_t von = 0; von < bytes.size();) {
        const std::size_t ende = bytes.find_first_of("\r\n", von);
        if (ende == std::string::npos || bytes.compare(ende, 2, "\r\n") != 0)
            return {};
        zeilen.push_back(bytes.substr(von, ende - von));
        von = ende + 2;
    }
    return zeilen;
}

/// What a calendar reads from the lines.
std::string Gelesen(const std::vector<std::string> &zeilen)
{
    std::string ganz;
    for (const std::string &zeile : zeilen)
        ganz += &zeile == &zeilen.front() ? zeile : zeile.substr(1);
    std::string text;
    for (std::size_t i = ganz.find(':') + 1; i < ganz.size(); ++i)
        if (ganz[i] != '\\')
            text += ganz[i];
        else
            text += ganz[++i] == 'n' ? '\n' : ganz[i];
    return text;
}

bool BeginntMitEinemZeichen(const std::string &zeile)
{
    return zeile.size() > 1 && zeile[0] == ' ' &&
           (static_cast<unsigned char>(zeile[1]) & 0xC0) != 0x80;
}

TEST(KalenderzeileTest, WasEineBedeutungHatWirdGeschützt)
{
    EXPECT_EQ(Zeile("a,b;c\\d\ne:f\"g"), "SUMMARY:a\\,b\\;c\\\\d\\ne:f\"g\r\n");
    EXPECT_EQ(Zeile("", "X-WR-CALNAME"), "X-WR-CALNAME:\r\n");
}

TEST(KalenderzeileTest, SteuerzeichenFallenWeg)
{
    EXPECT_EQ(Zeile("a\r\nb\tc\x01"
                    "d\x1f"
                    "e\x7f"
                    "f"),
              "SUMMARY:a\\nbcdef\r\n");
}

TEST(KalenderzeileTest, Nach75BytesGehtEsInDerNächstenZeileWeiter)
{
    const std::string voll(75 - 8, 'x');
    EXPECT_EQ(Zeile(voll), "SUMMARY:" + voll + "\r\n");
    EXPECT_EQ(Zeile(voll + "y"), "SUMMARY:" + voll + "\r\n y\r\n");
    const std::string zweite(74, 'z');
    EXPECT_EQ(Zeile(voll + zweite), "SUMMARY:" + voll + "\r\n " + zweite + "\r\n");
    EXPECT_EQ(Zeile(voll + zweite + "z"), "SUMMARY:" + voll + "\r\n " + zweite + "\r\n z\r\n");
}

TEST(KalenderzeileTest, NichtsWirdZerrissen)
{
    const std::string fast(75 - 8 - 1, 'x');
    EXPECT_EQ(Zeile(fast + "ä"), "SUMMARY:" + fast + "\r\n ä\r\n");
    EXPECT_EQ(Zeile(fast + "\n"), "SUMMARY:" + fast + "\r\n \\n\r\n");
    EXPECT_EQ(Zeile(fast + ","), "SUMMARY:" + fast + "\r\n \\,\r\n");
    EXPECT_EQ(Zeile(fast + "x"), "SUMMARY:" + fast + "x\r\n");
}

TEST(KalenderzeileTest, AuchWasKeinTextIstWirdGefaltet)
{
    for (const std::string &zeile : Zeilen(Zeile(std::string(300, '\x80'))))
        EXPECT_LE(zeile.size(), 75U);
}

TEST(KalenderzeileTest, JederTextKommtZurückWieErWar)
{
    const std::vector<std::string> zeichen = {"a", "Z",  " ",  "ä", "€", "\U0001F56F",
                                              ",", "\n", "\\", ";", ":", "n"};
    std::mt19937 zufall(5);
    for (int länge = 0; länge < 400; ++länge)
        for (int mal = 0; mal < 5; ++mal) {
            std::string text;
            for (int i = 0; i < länge; ++i)
                text += mal == 0 ? "x" : zeichen[zufall() % zeichen.size()];
            const std::vector<std::string> zeilen = Zeilen(Zeile(text, "DESCRIPTION"));
            ASSERT_FALSE(zeilen.empty()) << text;
            ASSERT_EQ(Gelesen(zeilen), text);
            for (const std::string &zeile : zeilen) {
                ASSERT_LE(zeile.size(), 75U) << text;
                ASSERT_TRUE(&zeile == &zeilen.front() || BeginntMitEinemZeichen(zeile)) << text;
            }
        }
}

} // namespace
} // namespace altardienst
