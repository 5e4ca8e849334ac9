// How a person is shown in a list box.
#include "core/Namen.h"

#include <gtest/gtest.h>

namespace altardienst {
namespace {

struct Teilung {
    Text Nachname;
    Text Vorname;
    bool operator==(const Teilung &) const = default;
};

/// What the two boxes hold after a split, when they held "N" and "V" before.
Teilung Geteilt(const Text &listenname)
{
    Teilung teile{"N", "V"};
    NameTeilen(listenname, teile.Nachname, teile.Vorname);
    return teile;
}

TEST(Namen, ListennameIstNachnameKommaVornameOhneLeerzeichen)
{
    EXPECT_EQ(Listenname("Groß", "Jörg"), "Groß,Jörg");
    EXPECT_EQ(Listenname("", "Jörg"), ",Jörg");
    EXPECT_EQ(Listenname("Groß", ""), "Groß,");
    EXPECT_EQ(Listenname("", ""), ",");
}

TEST(Namen, NameTeilenTrenntAmErstenKomma)
{
    EXPECT_EQ(Geteilt("Groß,Jörg"), (Teilung{"Groß", "Jörg"}));
    EXPECT_EQ(Geteilt("Groß,Jörg,jun."), (Teilung{"Groß", "Jörg,jun."}));
    EXPECT_EQ(Geteilt("Ä,Ö"), (Teilung{"Ä", "Ö"}));
    EXPECT_EQ(Geteilt(" Groß , Jörg "), (Teilung{" Groß ", " Jörg "}));
}

TEST(Namen, NameTeilenLässtDenNachnamenStehenWennNichtsVorDemKommaSteht)
{
    EXPECT_EQ(Geteilt(",Jörg"), (Teilung{"N", "Jörg"}));
    EXPECT_EQ(Geteilt(","), (Teilung{"N", ""}));
    EXPECT_EQ(Geteilt("Jörg"), (Teilung{"N", "Jörg"}));
}

TEST(Namen, NameTeilenLeertOhneVornamenNurDiesen)
{
    EXPECT_EQ(Geteilt("Groß,"), (Teilung{"Groß", ""}));
}

TEST(Namen, NameTeilenEinesLeerenTextesLeertBeide)
{
    EXPECT_EQ(Geteilt(""), (Teilung{"", ""}));
}

} // namespace
} // namespace altardienst
