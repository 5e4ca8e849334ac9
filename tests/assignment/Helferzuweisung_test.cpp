// The assignment of helpers.
#include "assignment/Helferzuweisung.h"

#include "assignment/Wurf.h"

namespace altardienst {
namespace {

const Text Aufgabe = "Achtung, es sind die Dienste der einzelnen Helfer zu überprüfen !!!!!!";

class HelferzuweisungTest : public Zuweisungsstand {
  protected:
    static int MesseMitHelfern(Datum tag, int lektor, int komm = 0, int kantor = 0, int kollekt = 0)
    {
        int i = MesseMitDienern(tag, 0);
        Messe.LektorZahl[i] = lektor;
        Messe.KommZahl[i] = komm;
        Messe.KantorZahl[i] = kantor;
        Messe.KollektZahl[i] = kollekt;
        return i;
    }

    /// Surnames in the eight places in order, "-" for an empty one.
    static Text Plätze(int i)
    {
        Text plätze;
        for (auto *nach :
             {&Messe.Lektor1Nach, &Messe.Lektor2Nach, &Messe.Komm1Nach, &Messe.Komm2Nach,
              &Messe.Kantor1Nach, &Messe.Kantor2Nach, &Messe.Kollekt1Nach, &Messe.Kollekt2Nach})
            plätze += (plätze.empty() ? "" : " ") + ((*nach)[i].empty() ? "-" : (*nach)[i]);
        return plätze;
    }

    /// Records 0 to 15: enough for each first service that all tests apply with two places of each
    /// a day.
    static void GenugHelfer()
    {
        HelferDienste(4, "Lektor");
        HelferDienste(4, "Kommunionhelfer");
        HelferDienste(4, "Kantor");
        HelferDienste(4, "Kollektant");
    }

    void Lauf(std::vector<Wurf> würfe)
    {
        HelferWürfeln(std::move(würfe));
        HelferZuweisen();
    }
};

TEST_F(HelferzuweisungTest, AchtPlätzeInFesterReihenfolge)
{
    GenugHelfer();
    MesseMitHelfern(Sonntag, 2, 2, 2, 2);
    Lauf({0, 1, 2, 3, 4, 5, 6, 7});
    EXPECT_EQ(Plätze(0), "N0 N1 N2 N3 N4 N5 N6 N7");
    EXPECT_EQ(Messe.Lektor1Vor[0], "V0");
    EXPECT_EQ(Messe.Lektor2Vor[0], "V1");
    EXPECT_EQ(Messe.Komm1Vor[0], "V2");
    EXPECT_EQ(Messe.Komm2Vor[0], "V3");
    EXPECT_EQ(Messe.Kantor1Vor[0], "V4");
    EXPECT_EQ(Messe.Kantor2Vor[0], "V5");
    EXPECT_EQ(Messe.Kollekt1Vor[0], "V6");
    EXPECT_EQ(Messe.Kollekt2Vor[0], "V7");
    EXPECT_EQ(Gestreut, 1);
    EXPECT_EQ(Helfer.LetzterDienst[0], Sonntag);
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(HelferzuweisungTest, ZahlBestimmtDieNötigenPlätzeUndMehrAlsZweiGibtEsNicht)
{
    GenugHelfer();
    for (auto *nach : {&Messe.Lektor1Nach, &Messe.Komm2Nach})
        (*nach)[0] = "Alt";
    MesseMitHelfern(Sonntag, 0, 2);
    Lauf({1, 0});
    EXPECT_EQ(Plätze(0), "Alt - N1 N0 - - - -"); // what is not needed keeps its name
    Messe.KommZahl[0] = 3;
    HelferDienste(2, "Kommunionhelfer");
    Lauf({2, 3});
    EXPECT_EQ(Plätze(0), "Alt - N2 N3 - - - -");
    Messe.KommZahl[0] = -1;
    Messe.KantorZahl[0] = 1;
    Messe.KollektZahl[0] = 1;
    Lauf({0, 1});
    EXPECT_EQ(Plätze(0), "Alt - N2 N3 N0 - N1 -");
}

TEST_F(HelferzuweisungTest, OhneBedarfWirdNichtGezogen)
{
    MesseMitHelfern(Sonntag, 0);
    HelferWürfeln({});
    HelferZuweisen();
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(HelferzuweisungTest, WenigerAlsZweiTageEinesDienstesHebtAlleTestsAuf)
{
    // Services in the order of the places; each in turn is one helper short.
    const char *dienste[] = {"Lektor", "Kommunionhelfer", "Kantor", "Kollektant"};
    for (int knapp = 0; knapp <= 4; ++knapp) {
        TabellenLeeren();
        for (int d = 0; d < 4; ++d)
            HelferDienste(d == knapp ? 3 : 4, dienste[d]);
        const int ohne = HelferAnlegen("Ohne", "Ohne", "Küster"); // no Lektor
        MesseMitHelfern(Sonntag, 1, 1, 1, 1);
        MesseMitHelfern(Sonntag, 1, 1, 1, 1);
        Lauf({ohne, 0, 4, 8, 12, 1, 5, 9, 13});
        const bool frei = knapp < 4;
        EXPECT_EQ(Messe.Lektor1Nach[0], frei ? "Ohne" : "N0") << knapp;
        EXPECT_EQ(Gezogen, frei ? 8 : 9) << knapp;
    }
}

TEST_F(HelferzuweisungTest, ZweiterDienstZähltNichtMitAberBefähigtZumLektor)
{
    HelferDienste(1, "Lektor");
    HelferDienste(5, "Kantor", "Lektor");
    HelferDienste(1, "Küster");
    MesseMitHelfern(Sonntag, 1);
    Lauf({6}); // one Lektor for two: no tests
    EXPECT_EQ(Plätze(0), "N6 - - - - - - -");
    HelferDienste(1, "Lektor"); // record 7
    Lauf({6, 3});
    EXPECT_EQ(Plätze(0), "N3 - - - - - - -");
}

TEST_F(HelferzuweisungTest, TagessummeNurÜberBenachbarteMessen)
{
    HelferDienste(2, "Lektor");
    HelferDienste(1, "Küster");
    MesseMitHelfern(Sonntag, 1);
    MesseMitHelfern(Montag, 0);
    MesseMitHelfern(Sonntag, 1);
    Lauf({2, 0, 0, 1}); // tests apply, though Sunday needs two; the table is not sorted
    EXPECT_EQ(Plätze(0), "N0 - - - - - - -");
    EXPECT_EQ(Plätze(2), "N1 - - - - - - -"); // closing Monday's mass kept Sunday's blocked
    EXPECT_EQ(Messe.Datum[1], Montag);

    Messe.Datum[1] = Sonntag;
    Lauf({2, 2}); // now no tests
    EXPECT_EQ(Plätze(0), "N2 - - - - - - -");
    EXPECT_EQ(Plätze(2), "N2 - - - - - - -");
}

TEST_F(HelferzuweisungTest, ÜberlaufEinerTagessummeAuchWennEinAndererDienstKnappIst)
{
    HelferDienste(1, "Lektor");
    MesseMitHelfern(Sonntag, 0, 1, 0, 20000); // no Kommunionhelfer at all
    MesseMitHelfern(Sonntag, 0, 0, 0, 20000);
    EXPECT_EQ(NummerDesFehlers([this] { Lauf(Oft(10, 0)); }), 6);
}

TEST_F(HelferzuweisungTest, OhneTestsZähltNurDerName)
{
    HelferDienste(3, "Küster");
    Helfer.Vorname[0] = "";
    Helfer.Nachname[1] = "";
    Helfer.Bis1[2] = 99999;
    MesseMitHelfern(Sonntag, 2, 1, 1, 1);
    MesseMitHelfern(Sonntag, 1);
    SekundenProAblesung = 100; // no clock either
    Lauf({3, 0, 1, 2, 2, 2, 2, 2, 2});
    EXPECT_EQ(Plätze(0), "N2 N2 N2 - N2 - N2 -");
    EXPECT_EQ(Plätze(1), "N2 - - - - - - -");
    EXPECT_EQ(Helfer.Belegt[2], 1);
    EXPECT_EQ(Helfer.LetzterDienst[2], Sonntag);
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(HelferzuweisungTest, OhneTestsEndetDieZiehungOhneBenannteNicht)
{
    MesseMitHelfern(Sonntag, 1);
    SekundenProAblesung = 100;
    HelferWürfeln(Oft(1000, 0));
    EXPECT_THROW(HelferZuweisen(), std::out_of_range);
}

TEST_F(HelferzuweisungTest, NamenUndZeiträumeWerdenGeprüft)
{
    GenugHelfer();
    Helfer.Vorname[0] = "";
    Helfer.Nachname[1] = "";
    MesseMitHelfern(Sonntag, 1);
    Lauf({16, 0, 1, 2});
    EXPECT_EQ(Plätze(0), "N2 - - - - - - -");

    using Spalte = HelferTabelle::Spalte<Datum>;
    const std::pair<Spalte *, Spalte *> zeiträume[] = {
        {&Helfer.Von1, &Helfer.Bis1}, {&Helfer.Von2, &Helfer.Bis2}, {&Helfer.Von3, &Helfer.Bis3}};
    for (const auto &[von, bis] : zeiträume) {
        auto dient = [&](Datum ab, Datum ende) {
            (*von)[2] = ab;
            (*bis)[2] = ende;
            Lauf({2, 3});
            return Messe.Lektor1Nach[0] == "N2";
        };
        EXPECT_FALSE(dient(Sonntag, Sonntag));
        EXPECT_FALSE(dient(Samstag, Sonntag));
        EXPECT_FALSE(dient(Sonntag, Montag));
        EXPECT_TRUE(dient(Samstag, Samstag));
        EXPECT_TRUE(dient(Montag, Montag));
        EXPECT_TRUE(dient(0, 0));
    }
}

TEST_F(HelferzuweisungTest, LektorBrauchtSeinenDienstInEinemFeld)
{
    GenugHelfer();
    const int zweiter = HelferAnlegen("Z", "Zweiter", "Kantor", "Lektor");
    const int beide = HelferAnlegen("B", "Beide", "Lektor", "Lektor");
    MesseMitHelfern(Sonntag, 2);
    Lauf({4, 8, 12, zweiter, 4, 8, 12, beide});
    EXPECT_EQ(Plätze(0), "Zweiter Beide - - - - - -");
    EXPECT_EQ(Gezogen, 8);
}

TEST_F(HelferzuweisungTest, DieÜbrigenPlätzeLehnenNurAbWerDenDienstZweimalHat)
{
    GenugHelfer();
    for (const char *dienst : {"Kommunionhelfer", "Kantor", "Kollektant"})
        HelferAnlegen(dienst, dienst, dienst, dienst); // records 16 to 18
    HelferAnlegen("Ohne", "Ohne", "");
    MesseMitHelfern(Sonntag, 0, 2, 2, 2);
    // Each place first refuses the helper who has its service twice.
    Lauf({16, 0, 16, 19, 17, 16, 17, 1, 18, 17, 18, 5});
    EXPECT_EQ(Plätze(0), "- - N0 Ohne Kommunionhelfer N1 Kantor N5");
}

TEST_F(HelferzuweisungTest, NiemandZweimalAmTagUndAmFolgetag)
{
    HelferDienste(10, "Lektor");
    MesseMitHelfern(Samstag, 2);
    MesseMitHelfern(Samstag, 1);
    MesseMitHelfern(Sonntag, 1);
    MesseMitHelfern(Montag, 0); // closing it frees Saturday's
    MesseMitHelfern(Montag, 2);
    Lauf({0, 0, 1, 0, 1, 2, 0, 1, 2, 3, 3, 0, 1});
    EXPECT_EQ(Plätze(0), "N0 N1 - - - - - -");
    EXPECT_EQ(Plätze(1), "N2 - - - - - - -");
    EXPECT_EQ(Plätze(2), "N3 - - - - - - -");
    EXPECT_EQ(Plätze(4), "N0 N1 - - - - - -");
}

TEST_F(HelferzuweisungTest, LaufBeginntMitFreienHelfernAberBehältDenLetztenDienst)
{
    HelferDienste(4, "Lektor");
    for (int h = 0; h <= 300; ++h) {
        Helfer.Belegt[h] = 1;
        Helfer.LetzterDienst[h] = Sonntag;
    }
    MesseMitHelfern(Sonntag, 1);
    Lauf({0});
    EXPECT_EQ(Plätze(0), "N0 - - - - - - -");
    EXPECT_EQ(Helfer.Belegt[300], 0);
    EXPECT_EQ(Helfer.LetzterDienst[300], Sonntag);
}

TEST_F(HelferzuweisungTest, UnabhängigVonDenMeßdienern)
{
    HelferDienste(2, "Lektor");
    MeßdienerAnlegen("V0", "N0");
    MesseMitHelfern(Sonntag, 1);
    Messe.DienerVor[0][1] = "V0";
    Messe.DienerNach[0][1] = "N0";
    Meßdiener.Belegt[0] = 1;
    Lauf({0});
    EXPECT_EQ(Plätze(0), "N0 - - - - - - -");
    EXPECT_EQ(Meßdiener.LetzterDienst[0], 0);
}

TEST_F(HelferzuweisungTest, DieLeereMesseHinterDerLetztenGehörtDazu)
{
    HelferDienste(4, "Lektor");
    MesseMitHelfern(Sonntag, 1);
    for (int i : {1, 2}) { // what a longer plan left behind
        Messe.LektorZahl[i] = 1;
        Messe.Datum[i] = Sonntag + 7 * i;
    }
    Lauf({0, 1});
    EXPECT_EQ(Plätze(1), "N1 - - - - - - -");
    EXPECT_EQ(Plätze(2), "- - - - - - - -");

    for (int h = 0; h < 4; ++h)
        Helfer.Dienst1[h] = "Küster";
    Lauf({2, 3}); // now without the tests
    EXPECT_EQ(Plätze(1), "N3 - - - - - - -");
    EXPECT_EQ(Plätze(2), "- - - - - - - -");
}

TEST_F(HelferzuweisungTest, DieLeereZeileHinterDemLetztenHelferZähltMit)
{
    HelferDienste(1, "Lektor");
    HelferDienste(1, "Küster");
    Helfer.Dienst1[Helfer.Anzahl] = "Lektor"; // what a deleted helper left behind
    MesseMitHelfern(Sonntag, 1);
    Lauf({1, 0}); // two for one a day: the tests apply
    EXPECT_EQ(Plätze(0), "N0 - - - - - - -");
    Helfer.Dienst1[Helfer.Anzahl] = "";
    Helfer.Dienst1[Helfer.Anzahl + 1] = "Lektor"; // no further row does
    Lauf({1, 0});
    EXPECT_EQ(Plätze(0), "N1 - - - - - - -");
}

TEST_F(HelferzuweisungTest, AuchDieLeereZeileWirdWiederFrei)
{
    GenugHelfer();
    const int leer = Helfer.Anzahl;
    Helfer.Vorname[leer] = "V";
    Helfer.Nachname[leer] = "Leer";
    Helfer.Dienst1[leer] = "Lektor";
    MesseMitHelfern(Sonntag, 1);
    MesseMitHelfern(Montag, 1);
    MesseMitHelfern(Sonntag + 2, 0); // closing it frees Sunday's
    MesseMitHelfern(Sonntag + 2, 1);
    Lauf({leer, leer, 0, leer, 1});
    EXPECT_EQ(Plätze(0), "Leer - - - - - - -");
    EXPECT_EQ(Plätze(1), "N0 - - - - - - -");
    EXPECT_EQ(Plätze(3), "Leer - - - - - - -");
}

} // namespace
} // namespace altardienst
