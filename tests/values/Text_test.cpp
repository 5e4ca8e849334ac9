// Text counts characters, not bytes, and is compared in binary order.
#include "values/Text.h"

#include "Prüfstand.h"

#include <algorithm>

namespace altardienst {
namespace {

TEST(Text, LängeZähltZeichen)
{
    EXPECT_EQ(Länge(""), 0);
    EXPECT_EQ(Länge("Messe"), 5);
    EXPECT_EQ(Länge("Größe"), 5);
    EXPECT_EQ(Länge("€ß"), 2);
}

TEST(Text, LinksGibtDieErstenZeichen)
{
    EXPECT_EQ(Links("Taufe", 4), "Tauf");
    EXPECT_EQ(Links("Gößner", 3), "Göß");
    EXPECT_EQ(Links("Göß", 9), "Göß");
    EXPECT_EQ(Links("Göß", 0), "");
    EXPECT_EQ(NummerDesFehlers([] { return Links("Göß", -1); }), 5);
}

TEST(Text, MitteZähltAbEins)
{
    EXPECT_EQ(Mitte("Gößner", 1, 1), "G");
    EXPECT_EQ(Mitte("Gößner", 2, 2), "öß");
    EXPECT_EQ(Mitte("Gößner", 5, 9), "er");
    EXPECT_EQ(Mitte("Gößner", 6, 1), "r");
    EXPECT_EQ(Mitte("Gößner", 7, 1), "");
    EXPECT_EQ(Mitte("Gößner", 70, 1), "");
    EXPECT_EQ(Mitte("Gößner", 2, 0), "");
}

TEST(Text, MitteVorDemAnfangIstEinFehler)
{
    EXPECT_EQ(NummerDesFehlers([] { return Mitte("abc", 0, 1); }), 5);
    EXPECT_EQ(NummerDesFehlers([] { return Mitte("abc", -1, 1); }), 5);
    EXPECT_EQ(NummerDesFehlers([] { return Mitte("abc", 1, -1); }), 5);
}

TEST(Text, FlagsWerdenNachPositionGelesen)
{
    EXPECT_TRUE(IstJa("jnj", 1));
    EXPECT_FALSE(IstJa("jnj", 2));
    EXPECT_TRUE(IstJa("jnj", 3));
    EXPECT_FALSE(IstJa("jnj", 4)) << "past the end";
    EXPECT_FALSE(IstJa("", 1));
    EXPECT_FALSE(IstJa("J", 1)) << "case counts";
    EXPECT_TRUE(IstJa("ßj", 2));
}

TEST(Text, FlagsWerdenNachPositionGesetzt)
{
    EXPECT_EQ(MitFlag("jjj", 1, false), "njj");
    EXPECT_EQ(MitFlag("nnn", 3, true), "nnj");
    EXPECT_EQ(MitFlag("jxj", 2, true), "jjj") << "anything else gives way";
    EXPECT_EQ(MitFlag("jjjjjjjx", 6, false), "jjjjjnjx") << "the others pass through";
    EXPECT_EQ(MitFlag("j", 4, true), "jnnj");
    EXPECT_EQ(MitFlag("", 2, false), "nn");
    EXPECT_EQ(MitFlag("ßj", 2, false), "ßn") << "characters, not bytes";
}

TEST(Text, VergleichtBinär)
{
    std::vector<Text> texte = {"Ähre", "apfel", "", "Zaun", "ßa", "zaun", "Apfel", "öl", "Apfe"};
    std::ranges::sort(texte);
    EXPECT_EQ(texte, (std::vector<Text>{"", "Apfe", "Apfel", "Zaun", "apfel", "zaun", "Ähre", "ßa",
                                        "öl"}));
}

TEST(Text, KleinMachtDieBuchstabenDerCodepageKlein)
{
    EXPECT_EQ(Klein("AZaz09.@["), "azaz09.@[");
    EXPECT_EQ(Klein("MEßDIENER ÄÖÜ"), "meßdiener äöü");
    EXPECT_EQ(Klein("ÀÞ×÷ß"), "àþ×÷ß");
    EXPECT_EQ(Klein("ŒŠŽŸ"), "œšžÿ");
    EXPECT_EQ(Klein("œšžÿ€"), "œšžÿ€");
    EXPECT_EQ(Klein("\xC3"), "\xC3") << "half a character stays";
}

} // namespace
} // namespace altardienst
