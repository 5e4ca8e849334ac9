// The lines of the full plan for one mass.
#include "printing/PlanZeilen.h"

#include "Prüfstand.h"
#include "assignment/Dienste.h"

namespace altardienst {
namespace {

using Zeilen = std::vector<Text>;

class PlanZeilenTest : public Prüfstand {
  protected:
    PlanZeilenTest()
    {
        MesseMitDienern(DatumAus({2026, 11, 22}), 4, ZeitAus(9 * 3600 + 5 * 60));
        Messe.Messeart[0] = "Hochamt";
        for (int s = 1; s <= 20; ++s) {
            Messe.DienerVor[0][s] = "V" + std::to_string(s);
            Messe.DienerNach[0][s] = "N" + std::to_string(s);
        }
        for (int k = 0; k <= 20; ++k)
            Messe.DienerDienst[0][k] = "ohne Dienst";
    }

    static void Dienst(const Text &dienst, std::initializer_list<int> positionen)
    {
        for (int p : positionen)
            Messe.DienerDienst[0][p] = dienst;
    }

    static void AlleAuf(const Text &dienst)
    {
        for (int k = 0; k <= 20; ++k)
            Messe.DienerDienst[0][k] = dienst;
    }

    static Zeilen Diener() { return PlanZeilenDer(0).Diener; }
};

TEST_F(PlanZeilenTest, ÜberschriftMitUhrzeit)
{
    EXPECT_EQ(PlanZeilenDer(0).Überschrift, "Sonntag, 22.11.2026 , 09:05Uhr, Hochamt");
    Messe.Uhrzeit[0] = ZeitAus(18 * 3600 + 30 * 60);
    EXPECT_EQ(PlanZeilenDer(0).Überschrift, "Sonntag, 22.11.2026 , 18:30Uhr, Hochamt");
    Messe.Uhrzeit[0] = 0;
    EXPECT_EQ(PlanZeilenDer(0).Überschrift, "Sonntag, 22.11.2026 , 00:00Uhr, Hochamt");
}

TEST_F(PlanZeilenTest, ÜberschriftDesWochendienstesOhneUhrzeitAberMitSeinenDienern)
{
    Messe.Messeart[0] = "Wochendienst";
    Dienst("Leuchter", {0});
    EXPECT_EQ(PlanZeilenDer(0).Überschrift, "Ab Sonntag dem 22.11.2026 , Wochendienst");
    EXPECT_EQ(Diener(), Zeilen{"Leuchter: V1 N1"});
    Messe.Messeart[0] = "Wochendienst ";
    EXPECT_EQ(PlanZeilenDer(0).Überschrift, "Sonntag, 22.11.2026 , 09:05Uhr, Wochendienst ");
}

TEST_F(PlanZeilenTest, ZweierZeilenNehmenDieErstenZwei)
{
    for (const char *dienst : {"Gabenbereitung", "Leuchter", "Weihrauch", "Kreuzträger"}) {
        AlleAuf("ohne Dienst");
        EXPECT_EQ(Diener(), Zeilen{});
        Dienst(dienst, {4});
        EXPECT_EQ(Diener(), Zeilen{Text(dienst) + ": V5 N5"});
        Dienst(dienst, {9, 12, 19});
        EXPECT_EQ(Diener(), Zeilen{Text(dienst) + ": V5 N5, V10 N10"});
    }
}

TEST_F(PlanZeilenTest, LeererSlotErgibtBeschriftungUndBlank)
{
    for (int s : {1, 2, 3, 4})
        Messe.DienerVor[0][s] = Messe.DienerNach[0][s] = "";
    Dienst("Leuchter", {0, 4});
    Dienst("Flambeau", {1});
    Dienst("Weihrauch", {5, 2});
    EXPECT_EQ(Diener(), (Zeilen{"Leuchter:  , V5 N5", "Flambeau:  ", "Weihrauch:  , V6 N6"}));
}

TEST_F(PlanZeilenTest, FlambeauInVierPaaren)
{
    Dienst("Flambeau", {0});
    EXPECT_EQ(Diener(), Zeilen{"Flambeau: V1 N1"});
    Dienst("Flambeau", {2, 3});
    EXPECT_EQ(Diener(), (Zeilen{"Flambeau: V1 N1, V3 N3", "Flambeau: V4 N4"}));
    AlleAuf("Flambeau"); // all but eight are left out
    EXPECT_EQ(Diener(), (Zeilen{"Flambeau: V1 N1, V2 N2", "Flambeau: V3 N3, V4 N4",
                                "Flambeau: V5 N5, V6 N6", "Flambeau: V7 N7, V8 N8"}));
}

TEST_F(PlanZeilenTest, AllgemeinInZehnPaarenOhneBeschriftung)
{
    AlleAuf("Allgemein");
    Zeilen erwartet;
    for (int s = 1; s <= 20; s += 2) {
        const Text a = std::to_string(s);
        const Text b = std::to_string(s + 1);
        erwartet.push_back("V" + a + " N" + a + ", V" + b + " N" + b);
    }
    EXPECT_EQ(Diener(), erwartet);
}

TEST_F(PlanZeilenTest, AllgemeinÜbergehtLeereZähltSieAberMit)
{
    AlleAuf("Allgemein");
    for (int s = 1; s <= 20; ++s)
        if (s != 2 && s != 3 && s != 6)
            Messe.DienerVor[0][s] = "";
    // Slot 1 is empty, so slot 2 is alone after a comma; slots 3 and 6 are half-filled lines.
    EXPECT_EQ(Diener(), (Zeilen{", V2 N2", "V3 N3", ", V6 N6"}));
    Messe.DienerVor[0][5] = "Ohne"; // only the first name decides
    Messe.DienerNach[0][5] = "";
    EXPECT_EQ(Diener(), (Zeilen{", V2 N2", "V3 N3", "Ohne , V6 N6"}));
}

TEST_F(PlanZeilenTest, ReihenfolgeDesPlansNichtDerSlots)
{
    Dienst("Allgemein", {0});
    Dienst("Kreuzträger", {1});
    Dienst("Weihrauch", {2});
    Dienst("Flambeau", {3});
    Dienst("Leuchter", {4});
    Dienst("Gabenbereitung", {5});
    EXPECT_EQ(Diener(), (Zeilen{"Gabenbereitung: V6 N6", "Leuchter: V5 N5", "Flambeau: V4 N4",
                                "Weihrauch: V3 N3", "Kreuzträger: V2 N2", "V1 N1"}));
}

TEST_F(PlanZeilenTest, DieDienerzahlBegrenztNichtAberPosition20WirdNichtGelesen)
{
    Messe.Dienerzahl[0] = 1;
    Dienst("Leuchter", {19, 20});
    EXPECT_EQ(Diener(), Zeilen{"Leuchter: V20 N20"});
    Dienst("leuchter", {0});
    Dienst("Anführer", {1});
    EXPECT_EQ(Diener(), Zeilen{"Leuchter: V20 N20"});
}

TEST_F(PlanZeilenTest, DreiLeuchterUndNeunFlambeauNachDemVerteilen)
{
    Messe.Leuchter[0] = 3;
    Messe.Flambeau[0] = 9;
    DiensteVerteilen();
    const Zeilen diener = Diener();
    ASSERT_EQ(diener.size(), 10U);
    EXPECT_EQ(diener[0], "Leuchter: V1 N1, V2 N2");
    EXPECT_EQ(diener[1], "Flambeau: V3 N3, V4 N4");
    EXPECT_EQ(diener[4], "Flambeau: V9 N9, V10 N10");
    EXPECT_EQ(diener[5], "V11 N11, V12 N12");
    EXPECT_EQ(diener[9], "V19 N19, V20 N20");
}

TEST_F(PlanZeilenTest, HelferNachZahlInFesterReihenfolge)
{
    Messe.Lektor1Vor[0] = "L1";
    Messe.Lektor1Nach[0] = "La";
    Messe.Lektor2Vor[0] = "L2";
    Messe.Lektor2Nach[0] = "Lb";
    Messe.Komm1Vor[0] = "K1";
    Messe.Komm1Nach[0] = "Ka";
    Messe.Komm2Vor[0] = "K2";
    Messe.Komm2Nach[0] = "Kb";
    Messe.Kantor1Vor[0] = "C1";
    Messe.Kantor1Nach[0] = "Ca";
    Messe.Kantor2Vor[0] = "C2";
    Messe.Kantor2Nach[0] = "Cb";
    Messe.Kollekt1Vor[0] = "S1";
    Messe.Kollekt1Nach[0] = "Sa";
    Messe.Kollekt2Vor[0] = "S2";
    Messe.Kollekt2Nach[0] = "Sb";
    auto helfer = [](int zahl) {
        for (auto *spalte :
             {&Messe.LektorZahl, &Messe.KommZahl, &Messe.KantorZahl, &Messe.KollektZahl})
            (*spalte)[0] = zahl;
        return PlanZeilenDer(0).Helfer;
    };
    EXPECT_EQ(helfer(0), Zeilen{});
    EXPECT_EQ(helfer(-1), Zeilen{});
    EXPECT_EQ(helfer(1), (Zeilen{"Lektor: L1 La", "Kommunionhelfer: K1 Ka", "Kantor/in: C1 Ca",
                                 "Kollektant: S1 Sa"}));
    const Zeilen zwei = {"Lektor: L1 La, L2 Lb", "Kommunionhelfer: K1 Ka, K2 Kb",
                         "Kantor/in: C1 Ca, C2 Cb", "Kollektant: S1 Sa, S2 Sb"};
    EXPECT_EQ(helfer(2), zwei);
    EXPECT_EQ(helfer(3), zwei);
    helfer(0);
    Messe.KantorZahl[0] = 1;
    EXPECT_EQ(PlanZeilenDer(0).Helfer, Zeilen{"Kantor/in: C1 Ca"});
}

TEST_F(PlanZeilenTest, TitelUndZeitraum)
{
    Konfig.Gemeinde = "St. Mauritius";
    MesseMitDienern(DatumAus({2026, 12, 6}), 1);
    EXPECT_EQ(PlanTitel(), "Messen der Pfarrei St. Mauritius");
    EXPECT_EQ(PlanZeitraum(), "vom 22.11.2026 bis 06.12.2026 ");
}

} // namespace
} // namespace altardienst
