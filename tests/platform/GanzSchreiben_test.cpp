// A file is written whole or not at all.
#include "platform/GanzSchreiben.h"

#include "Prüfstand.h"

namespace altardienst {
namespace {

using GanzSchreibenTest = Prüfstand;
using Liste = std::vector<Text>;

TEST_F(GanzSchreibenTest, ErsetztWasDaLiegt)
{
    const auto ziel = Festplatte / "Blatt.csv";
    GanzSchreiben(ziel, "erstes");
    GanzSchreiben(ziel, "zweites");
    EXPECT_EQ(DateiLesen(ziel), "zweites");
    EXPECT_EQ(Laufwerke.Auflisten(Festplatte).Dateien, (Liste{"Blatt.csv"}));
}

TEST_F(GanzSchreibenTest, WasScheitertLässtDasAlteUndSonstNichts)
{
    const auto ziel = Festplatte / "Blatt.csv";
    GanzSchreiben(ziel, "erstes");
    const auto schreiben = Laufwerke.Schreiben;
    Laufwerke.Schreiben = [&](const std::filesystem::path &pfad, std::string_view bytes) {
        schreiben(pfad, bytes.substr(0, 3));
        throw Laufzeitfehler(Laufzeitfehler::DatenträgerVoll);
    };
    EXPECT_EQ(NummerDesFehlers([&] { GanzSchreiben(ziel, "zweites"); }), 61);
    EXPECT_EQ(DateiLesen(ziel), "erstes");
    EXPECT_EQ(Laufwerke.Auflisten(Festplatte).Dateien, (Liste{"Blatt.csv"}));
}

TEST_F(GanzSchreibenTest, EinVerzeichnisDiesesNamensBleibt)
{
    std::filesystem::create_directory(Festplatte / "Blatt.csv");
    EXPECT_EQ(NummerDesFehlers([&] { GanzSchreiben(Festplatte / "Blatt.csv", "x"); }), 75);
    EXPECT_EQ(Laufwerke.Auflisten(Festplatte).Verzeichnisse, (Liste{"Blatt.csv"}));
    EXPECT_TRUE(Laufwerke.Auflisten(Festplatte).Dateien.empty());
}

} // namespace
} // namespace altardienst
