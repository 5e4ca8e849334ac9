// The services and places of a mass, written out a second time by hand.
#include "core/Plätze.h"

#include "Prüfstand.h"

#include <set>

namespace altardienst {
namespace {

class PlätzeTest : public Prüfstand {};

TEST_F(PlätzeTest, DienstartenInDerFolgeDerSlots)
{
    struct Erwartet {
        const char *Name;
        const char *Kurz;
        const void *InMesse;
        const void *InStandardmesse;
        int Höchstens;
        int Stelle;
    };
    const std::vector<Erwartet> erwartet = {
        {"Gabenbereitung", "Gabenber.", &Messe.Gabenbereitung, &Standardmesse.Gabenbereitung, 2, 1},
        {"Leuchter", "Leuchter", &Messe.Leuchter, &Standardmesse.Leuchter, 2, 2},
        {"Flambeau", "Flambeau", &Messe.Flambeau, &Standardmesse.Flambeau, 8, 3},
        {"Weihrauch", "Weihrauch", &Messe.Weihrauch, &Standardmesse.Weihrauch, 2, 4},
        {"Kreuzträger", "Kreuztr.", &Messe.Kreuzträger, &Standardmesse.Kreuzträger, 2, 5},
        {"Allgemein", "Allgemein", &Messe.Allgemein, &Standardmesse.Allgemein, 20, 0},
    };
    ASSERT_EQ(Dienstarten.size(), erwartet.size());
    for (std::size_t k = 0; k < erwartet.size(); ++k) {
        const Dienstart &art = Dienstarten[k];
        EXPECT_EQ(art.Name, erwartet[k].Name);
        EXPECT_EQ(art.Kurz, erwartet[k].Kurz);
        EXPECT_EQ(&art.Zahl.In(Messe), erwartet[k].InMesse);
        EXPECT_EQ(&art.Zahl.In(Standardmesse), erwartet[k].InStandardmesse);
        EXPECT_EQ(art.Höchstens, erwartet[k].Höchstens);
        EXPECT_EQ(art.Stelle, erwartet[k].Stelle);
    }
    EXPECT_EQ(BesondereDienste.size(), 5U);
    EXPECT_EQ(HöchsterDienstSlot, 16);
    EXPECT_EQ(Flambeau.Name, "Flambeau");
    EXPECT_EQ(Weihrauch.Name, "Weihrauch");
    EXPECT_EQ(Kreuzträger.Name, "Kreuzträger");
    EXPECT_EQ(Allgemein.Name, "Allgemein");
}

TEST_F(PlätzeTest, HelferplätzeInDerFolgeDesFüllens)
{
    struct Erwartet {
        const char *Name;
        const char *Aufschrift;
        const char *Platz;
        const void *Zahl, *Standardzahl, *Vor, *Nach;
    };
    const std::vector<Erwartet> erwartet = {
        {"Lektor", "Lektor", "Lektor 1", &Messe.LektorZahl, &Standardmesse.Lektor,
         &Messe.Lektor1Vor, &Messe.Lektor1Nach},
        {"Lektor", "Lektor", "Lektor 2", &Messe.LektorZahl, &Standardmesse.Lektor,
         &Messe.Lektor2Vor, &Messe.Lektor2Nach},
        {"Kommunionhelfer", "Kommunionhelfer", "Kommunionhelfer 1", &Messe.KommZahl,
         &Standardmesse.Kommunion, &Messe.Komm1Vor, &Messe.Komm1Nach},
        {"Kommunionhelfer", "Kommunionhelfer", "Kommunionhelfer 2", &Messe.KommZahl,
         &Standardmesse.Kommunion, &Messe.Komm2Vor, &Messe.Komm2Nach},
        {"Kantor", "Kantor/in", "Kantor 1", &Messe.KantorZahl, &Standardmesse.Kantor,
         &Messe.Kantor1Vor, &Messe.Kantor1Nach},
        {"Kantor", "Kantor/in", "Kantor 2", &Messe.KantorZahl, &Standardmesse.Kantor,
         &Messe.Kantor2Vor, &Messe.Kantor2Nach},
        {"Kollektant", "Kollektant", "Kollektant 1", &Messe.KollektZahl, &Standardmesse.Kollektant,
         &Messe.Kollekt1Vor, &Messe.Kollekt1Nach},
        {"Kollektant", "Kollektant", "Kollektant 2", &Messe.KollektZahl, &Standardmesse.Kollektant,
         &Messe.Kollekt2Vor, &Messe.Kollekt2Nach},
    };
    ASSERT_EQ(Helferplätze.size(), erwartet.size());
    for (std::size_t k = 0; k < erwartet.size(); ++k) {
        const Helferplatz &platz = Helferplätze[k];
        EXPECT_EQ(&platz.Art, &Helferarten[k / 2]);
        EXPECT_EQ(NummerDer(platz.Art), k / 2);
        EXPECT_EQ(platz.Nummer, static_cast<int>(k % 2) + 1);
        EXPECT_EQ(platz.Art.Name, erwartet[k].Name);
        EXPECT_EQ(platz.Art.Aufschrift, erwartet[k].Aufschrift);
        EXPECT_EQ(platz.Aufschrift(), erwartet[k].Platz);
        EXPECT_EQ(&platz.Art.Zahl.In(Messe), erwartet[k].Zahl);
        EXPECT_EQ(&platz.Art.Zahl.In(Standardmesse), erwartet[k].Standardzahl);
        EXPECT_EQ(&(Messe.*platz.Vor), erwartet[k].Vor);
        EXPECT_EQ(&(Messe.*platz.Nach), erwartet[k].Nach);
    }
    for (const Helferart &art : Helferarten)
        EXPECT_EQ(PlätzeFür(art), 2);
    EXPECT_EQ(Zahlspalten(Helferarten, Messe), (std::array{&Messe.LektorZahl, &Messe.KommZahl,
                                                           &Messe.KantorZahl, &Messe.KollektZahl}));
}

TEST_F(PlätzeTest, EinPlatzIstNötigSobaldDieZahlIhnErreicht)
{
    for (const Helferplatz &platz : Helferplätze)
        for (int zahl : {-1, 0, 1, 2, 3}) {
            platz.Art.Zahl.In(Messe)[7] = zahl;
            EXPECT_EQ(platz.Nötig(Messe, 7), zahl >= platz.Nummer);
        }
}

TEST_F(PlätzeTest, DerDienstEinesSlotsStehtEinePositionTiefer)
{
    for (int k = 0; k <= 20; ++k)
        Messe.DienerDienst[3][k] = std::to_string(k);
    for (int n = 1; n <= 20; ++n)
        EXPECT_EQ(DienstDesSlots(3, n), std::to_string(n - 1));
    DienstDesSlots(3, 5) = "Leuchter";
    EXPECT_EQ(Messe.DienerDienst[3][4], "Leuchter");
    EXPECT_EQ(DienstDesSlots(Messe, 3, 5), "Leuchter");
    EXPECT_EQ(NummerDesFehlers([] { DienstDesSlots(3, 0); }), 9);
    EXPECT_EQ(NummerDesFehlers([] { DienstDesSlots(3, 22); }), 9);
    EXPECT_EQ(NummerDesFehlers([] { DienstDesSlots(603, 1); }), 9);
}

TEST_F(PlätzeTest, AusgelasseneSpaltenBleiben)
{
    Messe.Messeart[0] = "Hochamt";
    Messe.Kennung[0] = "s";
    Messe.DienerVor[0][20] = "Max";
    Messe.DienerDienst[0][20] = "Leuchter";
    FelderÜbernehmen(Messe.Felder(), 1, 0, {&Messe.Kennung, &Messe.DienerDienst});
    EXPECT_EQ(Messe.Messeart[1], "Hochamt");
    EXPECT_EQ(Messe.Kennung[1], "");
    EXPECT_EQ(Messe.DienerVor[1][20], "Max");
    EXPECT_EQ(Messe.DienerDienst[1][20], "");

    std::set<const void *> besucht;
    FürJedeSpalteAußer(Messe.Felder(), {&Messe.Datum, &Messe.Kollekt2Nach},
                       [&](auto &spalte) { besucht.insert(&spalte); });
    std::set<const void *> alle;
    FürJedeSpalte(Messe.Felder(), [&](auto &spalte) { alle.insert(&spalte); });
    EXPECT_EQ(besucht.size() + 2, alle.size());
    EXPECT_FALSE(besucht.contains(&Messe.Datum));
    EXPECT_FALSE(besucht.contains(&Messe.Kollekt2Nach));
}

} // namespace
} // namespace altardienst
