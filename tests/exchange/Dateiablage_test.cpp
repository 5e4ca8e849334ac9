// Many files into one directory.
#include "exchange/Dateiablage.h"

#include "Prüfstand.h"
#include "values/Laufzeitfehler.h"

namespace altardienst {
namespace {

using Dateien = std::vector<AbzulegendeDatei>;

class DateiablageTest : public Prüfstand {};

TEST_F(DateiablageTest, AlleDateienUndSonstNichts)
{
    const Ablage ablage = Ablegen(Festplatte, {{"Änne.ics", "eins"}, {"Ben.ics", "zwei"}});
    EXPECT_TRUE(ablage.IstGanz());
    EXPECT_EQ(ablage.Geschrieben, 2);
    EXPECT_EQ(DateiLesen(Festplatte / PfadAus("Änne.ics")), "eins");
    EXPECT_EQ(Laufwerke.Auflisten(Festplatte).Dateien.size(), 2U);
}

TEST_F(DateiablageTest, EineDieNichtGehtHältDieAnderenNichtAuf)
{
    Laufwerke.VerzeichnisAnlegen(Festplatte / "Ben.ics");
    const Text lang = Text(300, 'x') + ".ics";
    const Ablage ablage =
        Ablegen(Festplatte, {{"Anna.ics", "1"}, {"Ben.ics", "2"}, {lang, "3"}, {"Doris.ics", "4"}});
    EXPECT_FALSE(ablage.IstGanz());
    EXPECT_EQ(ablage.Geschrieben, 2);
    EXPECT_EQ(ablage.Misslungene, (std::vector<Text>{"Ben.ics", lang}));
    EXPECT_EQ(ablage.Warum, Laufzeitfehler(Laufzeitfehler::ZugriffVerweigert).what());
    EXPECT_EQ(Laufwerke.Auflisten(Festplatte).Dateien,
              (std::vector<Text>{"Anna.ics", "Doris.ics"}));
}

TEST_F(DateiablageTest, FremdIstWasNichtAlsEigenesErkanntWird)
{
    const auto eigene = [](std::string_view bytes) { return bytes == "eigen"; };
    DateiSchreiben(Festplatte / "Anna.ics", "eigen");
    DateiSchreiben(Festplatte / "Ben.ics", "fremd");
    EXPECT_EQ(
        FremdeDateien(Festplatte, {{"Anna.ics", ""}, {"Ben.ics", ""}, {"Cem.ics", ""}}, eigene),
        std::vector<Text>{"Ben.ics"});
    EXPECT_EQ(FremdeDateien(Festplatte, {{"ben.ICS", ""}}, eigene), std::vector<Text>{"Ben.ics"});
}

} // namespace
} // namespace altardienst
