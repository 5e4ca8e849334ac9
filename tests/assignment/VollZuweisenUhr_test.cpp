// The clock limits of the full way: restarts of a mass, and giving up.
#include "assignment/MEßdienerzuweiseung.h"

#include "assignment/Wurf.h"

namespace altardienst {
namespace {

const Text Aufgabe = "Es sind die Qualifikationen der Meßdiener bzw. die Größendifferenz "
                     "anzupassen!!!!!";

class VollZuweisenUhrTest : public Zuweisungsstand {
  protected:
    static constexpr int Niemand = 10; // the blank row, which every test refuses

    VollZuweisenUhrTest()
    {
        DienerAnlegen(10);
        MesseMitDienern(Sonntag, 2);
    }

    void Lauf(std::vector<Wurf> würfe)
    {
        Würfeln(std::move(würfe));
        MeßdienerVollZuweisen();
    }

    /// Draws that use up all five restarts at the current slot.
    static std::vector<Wurf> NachFünfNeustarts(std::vector<Wurf> vorher, std::vector<Wurf> nachher)
    {
        for (const Wurf &wurf : Oft(5, {Niemand, 3}))
            vorher.push_back(wurf);
        vorher.insert(vorher.end(), nachher.begin(), nachher.end());
        return vorher;
    }
};

TEST_F(VollZuweisenUhrTest, ZweiSekundenSuchenStartenNichtNeu)
{
    Lauf({0, {Niemand, 2}, 1});
    EXPECT_EQ(Namen(0), "N0 N1");
    EXPECT_EQ(Neustarts, 0);
}

TEST_F(VollZuweisenUhrTest, DreiSekundenStartenDieMesseNeuUndNichtsWirdFrei)
{
    Lauf({0, {Niemand, 3}, 0, 1, 0, 1, 2});
    EXPECT_EQ(Namen(0), "N1 N2"); // server 0 from the abandoned attempt stays out
    EXPECT_EQ(Meßdiener.Belegt[0], 1);
    EXPECT_EQ(Meßdiener.LetzterDienst[0], Sonntag);
}

TEST_F(VollZuweisenUhrTest, NeustartLässtDieGeschriebenenNamenStehen)
{
    Messe.Dienerzahl[0] = 3;
    Lauf(NachFünfNeustarts({0, 1}, {2, {Niemand, 81}}));
    EXPECT_EQ(Namen(0), "N2 N1");
    for (int j = 0; j < 4; ++j)
        EXPECT_EQ(Meßdiener.Belegt[j], j < 3) << j;
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{Aufgabe});
}

TEST_F(VollZuweisenUhrTest, DerWurfDesZuLangenSuchensWirdVerworfen)
{
    Lauf({0, {1, 3}, 2, 3});
    EXPECT_EQ(Namen(0), "N2 N3");
    EXPECT_EQ(Gezogen, 4);
}

TEST_F(VollZuweisenUhrTest, JederSlotHatSeineEigeneSuchzeit)
{
    Lauf({{Niemand, 2}, 0, {Niemand, 2}, 1});
    EXPECT_EQ(Namen(0), "N0 N1");
    EXPECT_EQ(Neustarts, 0);
    Lauf({{0, 2}, {Niemand, 2}, 1}); // the passing draw's time belongs to its own slot
    EXPECT_EQ(Namen(0), "N0 N1");
}

TEST_F(VollZuweisenUhrTest, EinNeustartBeginntDieSuchzeitVonVorn)
{
    Lauf({0, {Niemand, 3}, {Niemand, 2}, 1, 2});
    EXPECT_EQ(Namen(0), "N1 N2");
    EXPECT_EQ(Gezogen, 5);
}

TEST_F(VollZuweisenUhrTest, NeustartAmErstenSlotGehtEinfachWeiter)
{
    Messe.Dienerzahl[0] = 1;
    Lauf({{Niemand, 3}, 0});
    EXPECT_EQ(Namen(0), "N0");
    EXPECT_EQ(Gezogen, 2);
}

TEST_F(VollZuweisenUhrTest, HöchstensFünfNeustarts)
{
    Lauf(NachFünfNeustarts({0}, {1, {Niemand, 3}, {Niemand, 70}, 2}));
    EXPECT_EQ(Namen(0), "N1 N2"); // the sixth would have gone back to slot 1
    EXPECT_TRUE(GezeigteMeldungen.empty());

    // Four restarts leave one more.
    Lauf({0, {Niemand, 3}, {Niemand, 3}, {Niemand, 3}, {Niemand, 3}, 1, {Niemand, 3}, 2, 3});
    EXPECT_EQ(Namen(0), "N2 N3");
}

TEST_F(VollZuweisenUhrTest, NeustartsZählenJeMesse)
{
    MesseMitDienern(Sonntag + 7, 2);
    Lauf(NachFünfNeustarts({}, NachFünfNeustarts({0, 1, 2}, {3, 4})));
    EXPECT_EQ(Namen(0), "N0 N1");
    EXPECT_EQ(Namen(1), "N3 N4");
}

TEST_F(VollZuweisenUhrTest, AchtzigSekundenGehenNoch)
{
    Lauf(NachFünfNeustarts({}, {0, {Niemand, 80}, 1}));
    EXPECT_EQ(Namen(0), "N0 N1");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(VollZuweisenUhrTest, EinundachtzigSekundenBeendenDenLauf)
{
    MesseMitDienern(Sonntag + 7, 1);
    Messe.DienerNach[1][1] = "Alt";
    Messe.DienerNach[0][2] = "Alt";
    Lauf(NachFünfNeustarts({}, {0, {1, 81}})); // though the draw would have passed
    EXPECT_EQ(Namen(0), "N0 Alt");
    EXPECT_EQ(Namen(1), "Alt"); // later masses keep what they had
    EXPECT_EQ(Meßdiener.Belegt[0], 1);
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{Aufgabe});
}

TEST_F(VollZuweisenUhrTest, AufgegebeneMesseWirdNichtAbgeschlossen)
{
    Konfig.GrenzeAuslöse = 0;
    Meßdiener.LetzterDienst[0] = 0;
    BelegtProzent = -1;
    Lauf(NachFünfNeustarts({}, {{Niemand, 81}}));
    EXPECT_EQ(BelegtProzent, -1);
}

TEST_F(VollZuweisenUhrTest, SolangeNeustartsBleibenWirdNichtAufgegeben)
{
    Lauf({0, {Niemand, 500}, 1, 2});
    EXPECT_EQ(Namen(0), "N1 N2");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(VollZuweisenUhrTest, DieUhrWirdFürJedeGrenzeNeuGelesen)
{
    // Each reading advances the clock by one second: start 0; 1 and 2 for the first draw; 3 is
    // beyond the limit, and a further reading sets the new start; so each attempt has one full
    // test.
    Messe.Dienerzahl[0] = 1;
    SekundenProAblesung = 1;
    Lauf({Niemand, Niemand, Niemand, Niemand, 0});
    EXPECT_EQ(Namen(0), "N0");
    EXPECT_EQ(Neustarts, 0); // of the blank mass
    EXPECT_EQ(Sekunden, 12 * 3600 + 11);
}

TEST_F(VollZuweisenUhrTest, AufgabegrenzeHatIhreEigeneAblesung)
{
    // The first reading after the draw is within the limit, the second beyond it.
    Messe.Dienerzahl[0] = 1;
    auto würfe = NachFünfNeustarts({}, {0});
    Würfeln(würfe);
    auto ziehen = Zufall.Nächste;
    Zufall.Nächste = [this, ziehen] {
        Single r = ziehen();
        if (Gezogen == 6)
            SekundenProAblesung = 81; // starting with the reading that checks for a restart
        return r;
    };
    MeßdienerVollZuweisen();
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{Aufgabe});
    EXPECT_EQ(Namen(0), "");
}

TEST_F(VollZuweisenUhrTest, ÜberMitternachtGreiftKeineGrenze)
{
    Uhr.Sekunden = [this] { return Sekunden % SekundenProTag; };
    Sekunden = SekundenProTag - 2;
    Lauf({0, {Niemand, 4}, {Niemand, 40000}, 1});
    EXPECT_EQ(Namen(0), "N0 N1");
    EXPECT_EQ(Neustarts, 0);

    // Until the time of day has passed the start time again.
    Sekunden = SekundenProTag - 10;
    Lauf({0, {Niemand, 20}, {Niemand, SekundenProTag - 20 + 2}, {Niemand, 1}, 1, 2});
    EXPECT_EQ(Namen(0), "N1 N2");

    Sekunden = SekundenProTag - 20; // the restarts are over before midnight
    Lauf(NachFünfNeustarts({}, {0, {Niemand, 1000}, 1}));
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

} // namespace
} // namespace altardienst
