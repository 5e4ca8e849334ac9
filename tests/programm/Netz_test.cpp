// The net in the program itself.
#include "history/Netzstand.h"
#include "programm/Programmlauf.h"

#include <csignal>

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

TEST_F(ProgrammnetzTest, EinSignalEndetWieBeenden)
{
    for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
        SCOPED_TRACE(signal);
        fs::remove(daten / "Helfer.dat"); // only a save brings it back
        fs::copy_file(fs::path(BEISPIELDATEN) / "Helfer.dat", daten / "Helfer.dat");
        Programmlauf lauf(daten);
        InsHauptfenster(lauf);
        fs::remove(daten / "Helfer.dat");
        lauf.Signal(signal);
        EXPECT_EQ(lauf.Ende(), 0);
        EXPECT_TRUE(InhaltVon(daten) == InhaltVon(BEISPIELDATEN));
    }
    for (const Stand &stand : AlleStände())
        EXPECT_EQ(stand.Art, Standart::Gewöhnlich);
}

TEST_F(ProgrammnetzTest, DasEndeDerSitzungEndetWieBeenden)
{
    Programmlauf lauf(daten);
    InsHauptfenster(lauf);
    EXPECT_EQ(lauf.Befehl("klick Messenorgani"), "ok");
    EXPECT_EQ(lauf.Warten("meldungen", "1"), "1");
    EXPECT_EQ(lauf.Befehl("klick OK"), "ok");
    EXPECT_EQ(lauf.Fenster("Haupt Messenliste"), "Haupt Messenliste");
    EXPECT_EQ(lauf.Befehl("sitzungsende"), "ok");
    EXPECT_EQ(lauf.Ende(), 0);
    EXPECT_FALSE(InhaltVon(daten) == InhaltVon(BEISPIELDATEN)) << "the new plan is saved";
    EXPECT_EQ(InhaltLesen(InhaltVon(daten)).Befund.Was, Ladebefund::Vollständig);
    for (const Stand &stand : AlleStände())
        EXPECT_EQ(stand.Art, Standart::Gewöhnlich);
}

TEST_F(ProgrammnetzTest, EinSignalVorDemHauptfensterSpeichertNichts)
{
    Programmlauf lauf(daten);
    EXPECT_EQ(lauf.Fenster("Start"), "Start");
    fs::remove(daten / "Helfer.dat");
    lauf.Signal(SIGTERM);
    EXPECT_EQ(lauf.Ende(), 0);
    EXPECT_FALSE(fs::exists(daten / "Helfer.dat"));
}

// The message of the first start comes before the event loop of the program.
TEST_F(ProgrammnetzTest, EinSignalWährendDerErstenMeldungEndetAuch)
{
    fs::remove(daten / "Helfer.dat");
    Programmlauf lauf(daten);
    EXPECT_EQ(lauf.Fenster("DateienKopieren Meldung"), "DateienKopieren Meldung");
    lauf.Signal(SIGTERM);
    EXPECT_EQ(lauf.Ende(), 0);
    EXPECT_FALSE(fs::exists(daten / "Helfer.dat"));
}

TEST_F(ProgrammnetzTest, EinSignalDasNichtGeltenSollGiltNicht)
{
    Programmlauf lauf(daten, PROGRAMM, SIGHUP); // as under nohup
    InsHauptfenster(lauf);
    lauf.Signal(SIGHUP);
    for (int i = 0; i < 10; ++i, QThread::msleep(30)) // long enough to leave
        ASSERT_EQ(lauf.Befehl("fenster"), "Haupt");
    lauf.Signal(SIGTERM);
    EXPECT_EQ(lauf.Ende(), 0);
}

TEST_F(ProgrammnetzTest, EinSignalWährendEinerMeldungEndetAuch)
{
    Programmlauf lauf(daten);
    InsHauptfenster(lauf);
    EXPECT_EQ(lauf.Befehl("klick Dienstus"), "ok");
    EXPECT_EQ(lauf.Fenster("Haupt Meldung"), "Haupt Meldung");
    fs::remove(daten / "Helfer.dat");
    lauf.Signal(SIGTERM);
    EXPECT_EQ(lauf.Ende(), 0);
    EXPECT_TRUE(InhaltVon(daten) == InhaltVon(BEISPIELDATEN));
}

TEST_F(ProgrammnetzTest, EinAbsturzLäßtEinenNotfallZurückDenDerNächsteStartAnbietet)
{
    {
        Programmlauf lauf(daten);
        InsHauptfenster(lauf);
        EXPECT_EQ(lauf.Befehl("klick Messenorgani"), "ok"); // the plan differs from what is saved
        EXPECT_EQ(lauf.Warten("meldungen", "1"), "1");
        EXPECT_EQ(lauf.Befehl("klick OK"), "ok");
        EXPECT_EQ(lauf.Warten("meldungen", "1"), "1");
        lauf.Signal(SIGSEGV);
        EXPECT_EQ(lauf.Ende(), -1);
    }
    EXPECT_EQ(AlleStände().back().Art, Standart::Notfall);
    EXPECT_TRUE(InhaltVon(daten) == InhaltVon(BEISPIELDATEN)) << "the eight files are not touched";
    Programmlauf lauf(daten);
    EXPECT_EQ(lauf.Fenster("Start"), "Start");
    EXPECT_TRUE(lauf.Befehl("text Hinweis").starts_with("Das Programm hat ein schlechtes Ende"));
    EXPECT_EQ(lauf.Befehl("text FrühereStände"), "&Frühere Stände");
    EXPECT_EQ(lauf.Befehl("klick FrühereStände"), "ok");
    EXPECT_EQ(lauf.Fenster("Start Stände"), "Start Stände");
}

} // namespace
} // namespace altardienst
