// The net in the program itself.
#include "history/Netzstand.h"
#include "programm/Programmlauf.h"

namespace altardienst {
namespace {

namespace fs = std::filesystem;

class ProgrammnetzTest : public Prüfstand {
  protected:
    ProgrammnetzTest()
    {
        daten = Festplatte / "Altardienst";
        fs::copy(BEISPIELDATEN, daten, fs::copy_options::recursive);
        Laufwerke.Programmverzeichnis = [this] { return daten; };
    }

    static void InsHauptfenster(Programmlauf &lauf)
    {
        EXPECT_EQ(lauf.Fenster("Start"), "Start");
        EXPECT_EQ(lauf.Befehl("klick Starten"), "ok");
        EXPECT_EQ(lauf.Fenster("Haupt"), "Haupt");
    }

    fs::path daten;
};

TEST_F(ProgrammnetzTest, EinLaufHebtDenStandSeinesStartsAufUndHinterläßtSonstNichts)
{
    for (int lauf = 0; lauf < 2; ++lauf) {
        Programmlauf programm(daten);
        InsHauptfenster(programm);
        EXPECT_EQ(programm.Befehl("schließe Haupt"), "ok");
        EXPECT_EQ(programm.Ende(), 0);
    }
    const auto stände = AlleStände();
    ASSERT_EQ(stände.size(), 1U) << "the sample parish is saved as it was loaded";
    EXPECT_TRUE(InhaltVon(stände[0].Ort) == InhaltVon(BEISPIELDATEN));
    EXPECT_EQ(std::distance(fs::directory_iterator(Ständeverzeichnis()), {}), 1);
}

} // namespace
} // namespace altardienst
