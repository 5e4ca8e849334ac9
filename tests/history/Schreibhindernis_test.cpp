// What is told where the program may not write its files.
#include "history/Schreibhindernis.h"

#include "Prüfstand.h"

namespace altardienst {
namespace {

class SchreibhindernisTest : public Prüfstand {
  protected:
    void VerzeichnisFehlt()
    {
        Laufwerke.Programmverzeichnis = [this] { return Festplatte / "fehlt"; };
    }
};

TEST_F(SchreibhindernisTest, WoGeschriebenWerdenDarfGibtEsNichtsZuSagen)
{
    EXPECT_EQ(Schreibhindernis(), "");
    EXPECT_EQ(KurzesSchreibhindernis(), "");
}

TEST_F(SchreibhindernisTest, SonstStehtDaWoUndWerHilft)
{
    VerzeichnisFehlt();
    const Text satz = Schreibhindernis();
    EXPECT_TRUE(satz.starts_with("Im Verzeichnis " + OrdnerText(Festplatte / "fehlt") +
                                 " darf das Programm nicht schreiben: Nichts lässt sich speichern. "
                                 "Bitten Sie den, der diesen Rechner verwaltet"))
        << satz;
    EXPECT_EQ(KurzesSchreibhindernis(), "Hier lässt sich nichts speichern");
}

#ifdef _WIN32
TEST_F(SchreibhindernisTest, UnterWindowsStehenDieBefehleDa)
{
    VerzeichnisFehlt();
    const Text ort = TextVon(Festplatte / "fehlt");
    EXPECT_TRUE(Schreibhindernis().ends_with("\nmkdir " + ort + "\nicacls " + ort +
                                             " /grant *S-1-5-32-545:(OI)(CI)M"));
}
#endif

} // namespace
} // namespace altardienst
