// Back and forward.
#include "help/Verlauf.h"

#include <gtest/gtest.h>

namespace altardienst {
namespace {

TEST(Verlauf, GehtZurückUndWiederVor)
{
    Verlauf<int> verlauf;
    EXPECT_TRUE(verlauf.IstLeer());
    EXPECT_FALSE(verlauf.KannZurück());
    EXPECT_FALSE(verlauf.KannVor());
    for (const int ort : {1, 2, 3})
        verlauf.Gehen(ort);
    EXPECT_FALSE(verlauf.IstLeer());
    EXPECT_FALSE(verlauf.KannVor());
    verlauf.Zurück();
    EXPECT_EQ(verlauf.Jetzt(), 2);
    EXPECT_TRUE(verlauf.KannVor());
    verlauf.Zurück();
    verlauf.Zurück();
    EXPECT_EQ(verlauf.Jetzt(), 1);
    EXPECT_FALSE(verlauf.KannZurück());
    verlauf.Vor();
    verlauf.Vor();
    verlauf.Vor();
    EXPECT_EQ(verlauf.Jetzt(), 3);
}

TEST(Verlauf, EinNeuerWegVergißtWasVornLag)
{
    Verlauf<int> verlauf;
    for (const int ort : {1, 2, 3})
        verlauf.Gehen(ort);
    verlauf.Zurück();
    verlauf.Zurück();
    verlauf.Gehen(4);
    EXPECT_EQ(verlauf.Jetzt(), 4);
    EXPECT_FALSE(verlauf.KannVor());
    verlauf.Zurück();
    EXPECT_EQ(verlauf.Jetzt(), 1);
}

TEST(Verlauf, WasGezeigtWirdLäßtSichÄndern)
{
    Verlauf<int> verlauf;
    verlauf.Gehen(1);
    verlauf.Gehen(2);
    verlauf.Jetzt() = 5;
    verlauf.Zurück();
    verlauf.Vor();
    EXPECT_EQ(verlauf.Jetzt(), 5);
}

} // namespace
} // namespace altardienst
