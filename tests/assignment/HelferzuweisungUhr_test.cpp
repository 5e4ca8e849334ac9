// The clock limit of the helpers, and the one search that continues on the clock of another.
#include "assignment/Helferzuweisung.h"

#include "assignment/Wurf.h"

namespace altardienst {
namespace {

const Text Aufgabe = "Achtung, es sind die Dienste der einzelnen Helfer zu überprüfen !!!!!!";

class HelferzuweisungUhrTest : public Zuweisungsstand {
  protected:
    static constexpr int Niemand = 20; // the blank row

    HelferzuweisungUhrTest()
    {
        for (const char *dienst : {"Lektor", "Kommunionhelfer", "Kantor", "Kollektant"})
            HelferDienste(5, dienst);
    }

    static int MesseMitHelfern(Datum tag, int lektor, int komm, int kantor, int kollekt)
    {
        int i = MesseMitDienern(tag, 0);
        Messe.LektorZahl[i] = lektor;
        Messe.KommZahl[i] = komm;
        Messe.KantorZahl[i] = kantor;
        Messe.KollektZahl[i] = kollekt;
        return i;
    }

    /// Whether a run with these draws ends without giving up.
    bool Durch(std::vector<Wurf> würfe)
    {
        GezeigteMeldungen.clear();
        HelferWürfeln(std::move(würfe));
        HelferZuweisen();
        EXPECT_TRUE(GezeigteMeldungen.empty() || GezeigteMeldungen == std::vector<Text>{Aufgabe});
        return GezeigteMeldungen.empty();
    }
};

TEST_F(HelferzuweisungUhrTest, FünfSekundenGehenNochSechsBeendenDenLauf)
{
    MesseMitHelfern(Sonntag, 2, 0, 0, 0);
    MesseMitHelfern(Sonntag + 7, 1, 0, 0, 0);
    EXPECT_TRUE(Durch({{Niemand, 5}, 0, 1, 2}));
    EXPECT_FALSE(Durch({3, {4, 6}})); // though the draw would have passed
    EXPECT_EQ(Messe.Lektor1Nach[0], "N3");
    EXPECT_EQ(Messe.Lektor2Nach[0], "N1"); // what was there
    EXPECT_EQ(Messe.Lektor1Nach[1], "N2");
}

TEST_F(HelferzuweisungUhrTest, AufgegebeneMesseWirdNichtAbgeschlossen)
{
    MesseMitHelfern(Sonntag, 1, 0, 0, 0);
    MesseMitHelfern(Sonntag + 7, 1, 0, 0, 0);
    EXPECT_FALSE(Durch({0, {1, 6}}));
    EXPECT_EQ(Messe.Lektor1Nach[0], "N0");
    EXPECT_EQ(Helfer.Belegt[0], 1); // the closing of the second mass would have freed him
}

TEST_F(HelferzuweisungUhrTest, KeineNeustarts)
{
    MesseMitHelfern(Sonntag, 2, 0, 0, 0);
    EXPECT_TRUE(Durch({0, {Niemand, 3}, {Niemand, 2}, 1}));
    EXPECT_EQ(Messe.Lektor1Nach[0], "N0");
    EXPECT_EQ(Messe.Lektor2Nach[0], "N1");
}

TEST_F(HelferzuweisungUhrTest, JederPlatzAußerDemErstenKantorHatSeineEigeneSuchzeit)
{
    MesseMitHelfern(Sonntag, 2, 2, 2, 2);
    std::vector<Wurf> würfe;
    for (int platz = 0; platz < 8; ++platz) {
        würfe.emplace_back(Niemand, 5);
        würfe.emplace_back(platz);
    }
    EXPECT_TRUE(Durch(würfe)); // with a second Kommunionhelfer the first Kantor has his own, too
    EXPECT_EQ(Messe.Kollekt2Nach[0], "N7");
}

TEST_F(HelferzuweisungUhrTest, ErsterKantorSuchtMitDerUhrDesPlatzesDavor)
{
    MesseMitHelfern(Sonntag, 0, 1, 1, 0);
    EXPECT_TRUE(Durch({{Niemand, 2}, 0, {Niemand, 3}, 1}));  // 5 together
    EXPECT_FALSE(Durch({{Niemand, 2}, 0, {Niemand, 4}, 1})); // 6 together
    Messe.KommZahl[0] = 2; // a fourth place filled just before restarts the clock
    EXPECT_TRUE(Durch({0, {Niemand, 2}, 1, {Niemand, 5}, 2}));
    EXPECT_FALSE(Durch({0, {Niemand, 2}, 1, {Niemand, 6}, 2}));
    Messe.KommZahl[0] = 0;
    Messe.LektorZahl[0] = 2;
    EXPECT_FALSE(Durch({0, {Niemand, 2}, 1, {Niemand, 4}, 2}));
}

TEST_F(HelferzuweisungUhrTest, ErsterKantorSuchtMitDerUhrEinerFrüherenMesse)
{
    MesseMitHelfern(Sonntag, 0, 2, 0, 0);
    MesseMitHelfern(Sonntag + 7, 0, 0, 1, 0);
    EXPECT_TRUE(Durch({0, {Niemand, 2}, 1, {Niemand, 3}, 2}));
    // A second Kommunionhelfer in an earlier mass does not restart it.
    EXPECT_FALSE(Durch({0, {Niemand, 2}, 1, {Niemand, 4}, 2}));
    EXPECT_EQ(Messe.Komm2Nach[0], "N1");
}

TEST_F(HelferzuweisungUhrTest, ZweiterKantorHatWiederSeineEigene)
{
    MesseMitHelfern(Sonntag, 0, 0, 2, 1);
    EXPECT_TRUE(Durch({{Niemand, 5}, 0, {Niemand, 5}, 1, {Niemand, 5}, 2}));
}

TEST_F(HelferzuweisungUhrTest, OhneFrühereSucheZähltDerBeginnDesLaufs)
{
    MesseMitHelfern(Sonntag, 0, 0, 1, 0);
    SucheStart = Sekunden - 1000; // from an earlier run
    EXPECT_TRUE(Durch({{Niemand, 5}, 0}));
    EXPECT_FALSE(Durch({{Niemand, 6}, 0}));
}

TEST_F(HelferzuweisungUhrTest, ÜberMitternachtGreiftDieGrenzeNicht)
{
    Uhr.Sekunden = [this] { return Sekunden % SekundenProTag; };
    MesseMitHelfern(Sonntag, 1, 0, 0, 0);
    Sekunden = SekundenProTag - 1;
    EXPECT_TRUE(Durch({{Niemand, 30}, 0}));
}

} // namespace
} // namespace altardienst
