// The two simple ways of assigning servers.
#include "assignment/MEßdienerzuweiseung.h"

#include "assignment/Wurf.h"

namespace altardienst {
namespace {

class EinfacheWegeTest : public Zuweisungsstand {
  protected:
    /// Somebody whom the full way would refuse everywhere.
    static void Ausschließen(int j)
    {
        Meßdiener.Qualifikation[j] = "nnnnnn";
        Meßdiener.Wochendienst[j] = "jjjjjjjj";
        Meßdiener.Von1[j] = 0;
        Meßdiener.Bis1[j] = 99999;
        Meßdiener.Größe[j] = 50 + 30 * j;
        Meßdiener.Geschlecht[j] = j % 2 == 0 ? "männlich" : "weiblich";
    }
};

TEST_F(EinfacheWegeTest, KnappNiemandZweimalInEinerMesseAberInDerNächstenWieder)
{
    DienerAnlegen(3);
    MesseMitDienern(Sonntag, 2);
    MesseMitDienern(Sonntag, 2);
    Würfeln({0, 0, 0, 1, 1, 1, 0});
    MeßdienerKnappZuweisen();
    EXPECT_EQ(Namen(0), "N0 N1");
    EXPECT_EQ(Namen(1), "N1 N0");
    EXPECT_EQ(Slot(0, 1), "V0 N0");
    EXPECT_EQ(Gestreut, 1);
    for (int j = 0; j <= 3; ++j)
        EXPECT_EQ(Meßdiener.Belegt[j], 0); // all free after each mass
    EXPECT_EQ(Meßdiener.LetzterDienst[0], Sonntag);
}

TEST_F(EinfacheWegeTest, LeereNamenUndLeereZeileWerdenNichtGezogen)
{
    DienerAnlegen(4);
    Meßdiener.Vorname[1] = "";
    Meßdiener.Nachname[2] = "";
    MesseMitDienern(Sonntag, 1);
    Würfeln({4, 1, 2, 3});
    MeßdienerKnappZuweisen();
    EXPECT_EQ(Namen(0), "N3");
    Würfeln({4, 1, 2, 0});
    MeßdienerFreiZuweisen();
    EXPECT_EQ(Namen(0), "N0");
}

TEST_F(EinfacheWegeTest, KeineDerÜbrigenRegelnWirdGelesen)
{
    DienerAnlegen(4);
    for (int j = 0; j < 4; ++j)
        Ausschließen(j);
    MesseMitDienern(Montag, 4);
    Messe.Messeart[0] = "Wochendienst";
    for (int k = 0; k < 4; ++k)
        Messe.DienerDienst[0][k] = "Leuchter";
    Würfeln({0, 1, 2, 3});
    MeßdienerKnappZuweisen();
    EXPECT_EQ(Namen(0), "N0 N1 N2 N3");
    Würfeln({3, 2, 1, 0});
    MeßdienerFreiZuweisen();
    EXPECT_EQ(Namen(0), "N3 N2 N1 N0");
}

TEST_F(EinfacheWegeTest, HöchstensZwanzigSlotsUndNichtsDahinter)
{
    DienerAnlegen(30);
    MesseMitDienern(Sonntag, 25);
    std::vector<Wurf> zwanzig;
    for (int j = 0; j < 20; ++j)
        zwanzig.emplace_back(j);
    Würfeln(zwanzig);
    MeßdienerKnappZuweisen();
    EXPECT_EQ(Slot(0, 20), "V19 N19");
    Würfeln(zwanzig);
    MeßdienerFreiZuweisen();
    EXPECT_EQ(Slot(0, 20), "V19 N19");

    MesseMitDienern(Montag, 0);
    MesseMitDienern(Montag, -2);
    Messe.Dienerzahl[0] = 1;
    Messe.DienerNach[0][2] = "Alt";
    Messe.DienerNach[1][1] = "Alt";
    Würfeln({5});
    MeßdienerKnappZuweisen();
    EXPECT_EQ(Messe.DienerNach[0][1], "N5");
    EXPECT_EQ(Messe.DienerNach[0][2], "Alt"); // no run empties a slot
    EXPECT_EQ(Messe.DienerNach[1][1], "Alt");
}

TEST_F(EinfacheWegeTest, DieLeereMesseHinterDerLetztenWirdMitBesetzt)
{
    DienerAnlegen(4);
    MesseMitDienern(Sonntag, 1);
    Messe.Dienerzahl[1] = 1; // what a longer plan left behind
    Messe.Dienerzahl[2] = 1;
    Würfeln({0, 1});
    MeßdienerKnappZuweisen();
    EXPECT_EQ(Namen(1), "N1");
    EXPECT_EQ(Namen(2), "");
    Würfeln({2, 3});
    MeßdienerFreiZuweisen();
    EXPECT_EQ(Namen(1), "N3");
    EXPECT_EQ(Namen(2), "");
}

TEST_F(EinfacheWegeTest, FreiSperrtAmTagUndAmFolgetag)
{
    DienerAnlegen(4);
    MesseMitDienern(Samstag, 1);
    MesseMitDienern(Samstag, 1);
    MesseMitDienern(Sonntag, 1);
    MesseMitDienern(Montag, 2);
    Würfeln({0, 0, 1, 0, 1, 2, 2, 1, 0});
    MeßdienerFreiZuweisen();
    EXPECT_EQ(Namen(0), "N0");
    EXPECT_EQ(Namen(1), "N1");
    EXPECT_EQ(Namen(2), "N2");
    EXPECT_EQ(Namen(3), "N1 N0"); // free again on Monday; Sunday's server is not
    EXPECT_EQ(Gestreut, 1);
}

TEST_F(EinfacheWegeTest, FreiVergleichtTageNichtMessen)
{
    DienerAnlegen(3);
    MesseMitDienern(Samstag, 1);
    MesseMitDienern(Montag, 1); // no mass on Sunday
    Würfeln({0, 0});
    MeßdienerFreiZuweisen();
    EXPECT_EQ(Namen(1), "N0");
}

TEST_F(EinfacheWegeTest, KnappVeralteteSperreHältNurFürDieErsteMesse)
{
    DienerAnlegen(3);
    MesseMitDienern(Sonntag, 1);
    MesseMitDienern(Sonntag, 1);
    Meßdiener.Belegt[0] = 1;
    Würfeln({0, 1, 0});
    MeßdienerKnappZuweisen();
    EXPECT_EQ(Namen(0), "N1");
    EXPECT_EQ(Namen(1), "N0");
}

TEST_F(EinfacheWegeTest, KnappLöstDieSperreAuchNachEinerMesseOhneSlots)
{
    DienerAnlegen(3);
    MesseMitDienern(Sonntag, 0);
    MesseMitDienern(Sonntag, 1);
    Meßdiener.Belegt[0] = 1;
    Meßdiener.Belegt[3] = 1;
    Meßdiener.Belegt[4] = 1;
    Würfeln({0});
    MeßdienerKnappZuweisen();
    EXPECT_EQ(Namen(1), "N0");
    EXPECT_EQ(Meßdiener.Belegt[3], 0); // up to the blank row, and no further
    EXPECT_EQ(Meßdiener.Belegt[4], 1);
}

TEST_F(EinfacheWegeTest, FreiVeralteteSperreHältBisZuEinemFremdenDatum)
{
    DienerAnlegen(4);
    MesseMitDienern(Samstag, 1);
    MesseMitDienern(Sonntag, 1);
    MesseMitDienern(Montag, 1);
    for (int j : {0, 1})
        Meßdiener.Belegt[j] = 1;
    Meßdiener.LetzterDienst[0] = Samstag;     // taken on Saturday and on Sunday
    Meßdiener.LetzterDienst[1] = Samstag + 7; // free at once: only the dates decide
    Würfeln({0, 1, 0, 2, 0});
    MeßdienerFreiZuweisen();
    EXPECT_EQ(Namen(0), "N1");
    EXPECT_EQ(Namen(1), "N2");
    EXPECT_EQ(Namen(2), "N0");
}

TEST_F(EinfacheWegeTest, FreiLöstSperrenVorUndNachJederMesse)
{
    DienerAnlegen(2);
    MesseMitDienern(Sonntag, 1);
    Meßdiener.Belegt[0] = 1;
    Meßdiener.LetzterDienst[0] = 0; // the blank mass after the last has this date
    Würfeln({0});
    MeßdienerFreiZuweisen();
    EXPECT_EQ(Namen(0), "N0");
    EXPECT_EQ(Meßdiener.Belegt[0], 0); // freed by the blank mass

    // If the blank mass does not have another date, the flag stays after the last mass.
    Messe.Datum[1] = Montag;
    Würfeln({1});
    MeßdienerFreiZuweisen();
    EXPECT_EQ(Meßdiener.Belegt[1], 1);
}

TEST_F(EinfacheWegeTest, ZuWenigeBenannteEndenNicht)
{
    DienerAnlegen(1);
    MesseMitDienern(Sonntag, 2);
    SekundenProAblesung = 100; // no clock ends these draws
    Würfeln(Oft(1000, 0));
    EXPECT_THROW(MeßdienerKnappZuweisen(), std::out_of_range);
    Würfeln(Oft(1000, 0));
    EXPECT_THROW(MeßdienerFreiZuweisen(), std::out_of_range);
    EXPECT_EQ(Gezogen, 1001 - 1);
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

} // namespace
} // namespace altardienst
