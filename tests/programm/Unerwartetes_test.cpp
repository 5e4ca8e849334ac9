// An unexpected failure within an event of the program itself.
#include "Prüfstand.h"
#include "programm/Programmlauf.h"

namespace altardienst {
namespace {

class UnerwartetesTest : public Prüfstand {};

TEST_F(UnerwartetesTest, DasProgrammMeldetEsUndGehtWeiter)
{
    const auto daten = Festplatte / "Altardienst";
    std::filesystem::copy(BEISPIELDATEN, daten, std::filesystem::copy_options::recursive);
    Programmlauf lauf(daten);
    EXPECT_EQ(lauf.Fenster("Start"), "Start");
    EXPECT_EQ(lauf.Befehl("scheitere"), "ok");
    EXPECT_EQ(lauf.Fenster("Meldung Start"), "Meldung Start");
    EXPECT_EQ(lauf.Befehl("text Meldung"),
              "Unerwarteter Fehler (probe). Was Sie zuletzt begonnen haben, ist nicht zu Ende "
              "geführt. Die Daten im Programm bleiben erhalten.");
    EXPECT_EQ(lauf.Befehl("klick OK"), "ok");
    EXPECT_EQ(lauf.Fenster("Start"), "Start");
    EXPECT_EQ(lauf.Befehl("klick Starten"), "ok");
    EXPECT_EQ(lauf.Fenster("Haupt"), "Haupt");
    EXPECT_EQ(lauf.Befehl("scheitere"), "ok"); // by itself again, so not reported again
    EXPECT_EQ(lauf.Befehl("schließe Haupt"), "ok");
    EXPECT_EQ(lauf.Ende(), 0);
}

} // namespace
} // namespace altardienst
