// The program started a second time.
#include "programm/Programmlauf.h"

#include "Prüfstand.h"

namespace altardienst {
namespace {

namespace fs = std::filesystem;

class ZweitstartTest : public Prüfstand {
  protected:
    ZweitstartTest() { fs::copy(BEISPIELDATEN, daten, fs::copy_options::recursive); }

    fs::path daten = Festplatte / "Altardienst";
};

TEST_F(ZweitstartTest, DerZweiteEndetUndDerErsteLebt)
{
    Programmlauf erster(daten);
    EXPECT_EQ(erster.Fenster("Start"), "Start");
    Programmlauf zweiter(daten / "." / ""); // the same by another name
    EXPECT_EQ(zweiter.Ende(), 0);
    EXPECT_EQ(erster.Befehl("fenster"), "Start");
    EXPECT_EQ(erster.Befehl("klick Starten"), "ok");
    EXPECT_EQ(erster.Fenster("Haupt"), "Haupt");
    EXPECT_EQ(erster.Befehl("schließe Haupt"), "ok");
    EXPECT_EQ(erster.Ende(), 0);
    Programmlauf nachher(daten);
    EXPECT_EQ(nachher.Fenster("Start"), "Start") << "the place is free again";
}

TEST_F(ZweitstartTest, DerZweiteHebtKeinenStandAuf)
{
    Programmlauf erster(daten);
    EXPECT_EQ(erster.Fenster("Start"), "Start");
    fs::remove_all(daten / PfadAus("Stände"));
    Programmlauf zweiter(daten);
    EXPECT_EQ(zweiter.Ende(), 0);
    EXPECT_FALSE(fs::exists(daten / PfadAus("Stände")));
}

TEST_F(ZweitstartTest, AufAnderenDateienLaufenZwei)
{
    const fs::path andere = Festplatte / "andere";
    fs::copy(BEISPIELDATEN, andere, fs::copy_options::recursive);
    Programmlauf erster(daten);
    Programmlauf zweiter(andere);
    EXPECT_EQ(erster.Fenster("Start"), "Start");
    EXPECT_EQ(zweiter.Fenster("Start"), "Start");
}

TEST_F(ZweitstartTest, WerAbgestürztIstHältDenPlatzNicht)
{
    {
        Programmlauf erster(daten);
        EXPECT_EQ(erster.Fenster("Start"), "Start");
        erster.Signal(SIGKILL);
        EXPECT_EQ(erster.Ende(), -1);
    }
    Programmlauf nächster(daten);
    EXPECT_EQ(nächster.Fenster("Start"), "Start");
}

} // namespace
} // namespace altardienst
