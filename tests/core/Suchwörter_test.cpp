// Looking for what somebody types: parts of words, in any order, capitals or not.
#include "core/Suchwörter.h"

#include <gtest/gtest.h>

namespace altardienst {
namespace {

bool Findet(const char *getippt, const char *text)
{
    return EnthältAlle(text, Suchwörter(getippt));
}

TEST(Suchwörter, WörterTrenntEinLeerzeichenOderEinKomma)
{
    EXPECT_EQ(Suchwörter("  Adler,An  Ä\t"), (std::vector<Text>{"adler", "an", "ä"}));
    EXPECT_EQ(Suchwörter("Maria-Luise"), (std::vector<Text>{"maria-luise"}));
    EXPECT_TRUE(Suchwörter(" , ").empty());
}

TEST(Suchwörter, EinTeilGenügtGroßUndKleinSindGleich)
{
    EXPECT_TRUE(Findet("dle", "Adler, Anna"));
    EXPECT_TRUE(Findet("ÖZD", "Özdemir, Can"));
    EXPECT_TRUE(Findet("özd", "ÖZDEMIR, Can"));
    EXPECT_FALSE(Findet("dlex", "Adler, Anna"));
}

TEST(Suchwörter, AlleWörterMüssenStehenGleichInWelcherFolge)
{
    EXPECT_TRUE(Findet("anna adler", "Adler, Anna"));
    EXPECT_TRUE(Findet("Adler,Anna", "Adler, Anna"));
    EXPECT_TRUE(Findet("r, A", "Adler, Anna"));
    EXPECT_FALSE(Findet("anna berg", "Adler, Anna"));
}

TEST(Suchwörter, NichtsGetipptPaßtAufAlles)
{
    EXPECT_TRUE(Findet("", "Adler, Anna"));
    EXPECT_TRUE(Findet(" ", ""));
}

} // namespace
} // namespace altardienst
