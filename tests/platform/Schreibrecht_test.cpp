// Whether the user may write in a directory, found out by trying.
#include "platform/Schreibrecht.h"

#include "Prüfstand.h"

#include <fstream>

namespace altardienst {
namespace {

namespace fs = std::filesystem;

using SchreibrechtTest = Prüfstand;

TEST_F(SchreibrechtTest, VomVersuchBleibtNichtsZurück)
{
    EXPECT_TRUE(Schreibrecht.Besteht(Festplatte));
    EXPECT_TRUE(fs::is_empty(Festplatte));
}

TEST_F(SchreibrechtTest, WoEsKeinVerzeichnisGibtBestehtKeins)
{
    EXPECT_FALSE(Schreibrecht.Besteht(Festplatte / "fehlt"));
    EXPECT_FALSE(fs::exists(Festplatte / "fehlt"));
    DateiSchreiben(Festplatte / "Datei", "bleibt");
    EXPECT_FALSE(Schreibrecht.Besteht(Festplatte / "Datei"));
    EXPECT_EQ(DateiLesen(Festplatte / "Datei"), "bleibt");
}

/// The superuser may write everywhere, so where he runs the tests nothing can be forbidden.
TEST_F(SchreibrechtTest, WasDasSystemVerbietetBestehtNicht)
{
    NUR_WO_ES_GIBT(Rechte);
    fs::permissions(Festplatte, fs::perms::owner_read | fs::perms::owner_exec);
    std::ofstream versuch(Festplatte / "Versuch");
    if (versuch.is_open())
        GTEST_SKIP() << "this user may write everywhere";
    EXPECT_FALSE(Schreibrecht.Besteht(Festplatte));
    fs::permissions(Festplatte, fs::perms::owner_all);
}

} // namespace
} // namespace altardienst
