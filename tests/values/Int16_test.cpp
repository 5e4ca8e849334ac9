// The checked 16-bit whole number.
#include "values/Int16.h"

#include "Prüfstand.h"

namespace altardienst {
namespace {

TEST(Int16, HältSeinenBereich)
{
    EXPECT_EQ(Int16(32767), 32767);
    EXPECT_EQ(Int16(-32768), -32768);
    EXPECT_EQ(NummerDesFehlers([] { return Int16(32768); }), 6);
    EXPECT_EQ(NummerDesFehlers([] { return Int16(-32769); }), 6);
}

TEST(Int16, RechnungenLaufenÜber)
{
    Int16 groß = 32767;
    EXPECT_EQ(NummerDesFehlers([&] { return groß + 1; }), 6);
    EXPECT_EQ(NummerDesFehlers([&] { return groß + groß; }), 6);
    EXPECT_EQ(NummerDesFehlers([&] { return 2 * groß; }), 6);
    EXPECT_EQ(NummerDesFehlers([&] { return Int16(-32768) - 1; }), 6);
    EXPECT_EQ(NummerDesFehlers([&] { ++groß; }), 6);
    EXPECT_EQ(groß - 1, 32766);
}

TEST(Int16, IstAnfangsNull)
{
    EXPECT_EQ(Int16(), 0);
}

TEST(Int16, VerändertSichNichtBeimÜberlauf)
{
    Int16 wert = 32767;
    EXPECT_EQ(NummerDesFehlers([&] { wert += 1; }), 6);
    EXPECT_EQ(wert, 32767);
    wert = -32768;
    EXPECT_EQ(NummerDesFehlers([&] { --wert; }), 6);
    EXPECT_EQ(NummerDesFehlers([&] { wert -= 1; }), 6);
    EXPECT_EQ(wert, -32768);
}

TEST(Int16, RechnetMitKommazahlenOhneGrenze)
{
    EXPECT_EQ(40000.5 + Int16(1), 40001.5);
    EXPECT_EQ(Int16(2) * 0.25, 0.5);
}

} // namespace
} // namespace altardienst
