// "Plan ausgleichen" on the shipped parish and on random ones.
#include "eigenschaften/Regeln.h"

#include "assignment/Dienste.h"
#include "assignment/MEßdienerzuweiseung.h"
#include "core/Allgemein.h"
#include "core/Sortierbefehle.h"
#include "core/Umwandlung.h"
#include "fairness/Ausgleich.h"
#include "fixed/FesteMeßdienerÜbertragen.h"
#include "overview/Planprüfung.h"
#include "planning/MessenBestimmen.h"

#include <chrono>
#include <cmath>
#include <cstdint>
#include <set>

namespace altardienst {
namespace {

namespace fs = std::filesystem;

/// All names in all places of all masses.
std::vector<Text> AlleNamen()
{
    std::vector<Text> namen;
    for (int i = 0; i <= MesseTabelle::HöchsterIndex; ++i) {
        for (int slot = 0; slot <= MesseTabelle::HöchsterSlot; ++slot)
            namen.push_back(Messe.DienerVor[i][slot] + "," + Messe.DienerNach[i][slot] + "," +
                            Messe.DienerDienst[i][slot]);
        for (const Helferplatz &platz : Helferplätze)
            namen.push_back((Messe.*platz.Vor)[i] + "," + (Messe.*platz.Nach)[i]);
    }
    return namen;
}

int Verstöße(Planplatz::Art art)
{
    const Planprüfung prüfung;
    int zahl = 0;
    for (const Befund &befund : prüfung.Alle())
        zahl += befund.Grad == Stufe::Verstoß && befund.Wo.Was == art;
    return zahl;
}

/// Services by name, counted over the wanted places of the plan.
std::map<Text, int> DiensteNachNamen()
{
    std::map<Text, int> dienste;
    for (int i = 0; i < Messe.Anzahl; ++i)
        for (int slot = 1; slot <= std::min<int>(Messe.Dienerzahl[i], 20); ++slot)
            ++dienste[Messe.DienerVor[i][slot] + " " + Messe.DienerNach[i][slot]];
    return dienste;
}

class AusgleichTest : public Gemeindestand {
  protected:
    static constexpr unsigned Gemeinden = 300;

    void BeispielLaden()
    {
        fs::remove_all(Festplatte);
        fs::copy(PfadAus(BEISPIELDATEN), Festplatte);
        VonFestplatteLaden();
        Konfig.StartDatum = DatumAus({2026, 11, 28});
        MessenBestimmen();
    }

    /// A random parish whose plan is, depending on the seed, untouched, drawn or half empty, with
    /// its fixed entries carried over.
    void PlanErwürfeln(unsigned saat)
    {
        GemeindeErwürfeln(saat);
        Würfel w(saat + 77);
        if (saat % 3 > 0) {
            MessenSortieren();
            LaufDiensteVerteilen();
            MeßdienerFreiZuweisen();
        }
        for (int i = 0; i < Messe.Anzahl; ++i)
            for (int slot = 1; slot <= 20; ++slot)
                if (saat % 3 == 2 && w.Prozent(40))
                    Leeren(Messe, Dienerplatznr(i, slot));
        FesteMeßdienerÜbertragen();
    }
};

TEST_F(AusgleichTest, ImBeispielDientJederZweiOderDreimalOhneVerstoß)
{
    BeispielLaden();
    MeßdienerVollZuweisen();
    const auto anfang = std::chrono::steady_clock::now();
    const Ausgleichsergebnis ergebnis = PlanAusgleichen(GemeinsameTabellen(), {});
    const std::chrono::duration<double> dauer = std::chrono::steady_clock::now() - anfang;
    EXPECT_LT(dauer.count(), 5.0) << "far more than it takes";
    EXPECT_GT(ergebnis.Diener.Vorher.Meiste, 3);
    EXPECT_EQ(ergebnis.Diener.Nachher.Verstöße, 0);
    EXPECT_EQ(ergebnis.Diener.Nachher.Wenigste, 2);
    EXPECT_EQ(ergebnis.Diener.Nachher.Meiste, 3);
    EXPECT_TRUE(ergebnis.Diener.Bewiesen);
    EXPECT_EQ(ergebnis.Helfer.Nachher.Verstöße, 0);
    EXPECT_EQ(ergebnis.Diener.Anteile.size(), 48U);
    AusgleichÜbernehmen(ergebnis);
    EXPECT_EQ(Verstöße(Planplatz::Art::Diener), 0);
    EXPECT_EQ(Verstöße(Planplatz::Art::Helfer), 0);
    for (const auto &[name, dienste] : DiensteNachNamen())
        EXPECT_TRUE(dienste == 2 || dienste == 3) << name << " " << dienste;
    EXPECT_EQ(DiensteNachNamen().size(), 48U);
}

TEST_F(AusgleichTest, EinGerechterPlanBleibtWieErIst)
{
    BeispielLaden();
    AusgleichÜbernehmen(PlanAusgleichen(GemeinsameTabellen(), {}));
    const Ausgleichsergebnis nochmal = PlanAusgleichen(GemeinsameTabellen(), {.Saat = 2});
    EXPECT_LT(nochmal.Wechsel.size(), 60U); // of 187
    EXPECT_LE(nochmal.Diener.Nachher.Ungleichheit, nochmal.Diener.Vorher.Ungleichheit);
}

TEST_F(AusgleichTest, LiestNurUndGibtZurSelbenSaatDenselbenPlan)
{
    for (unsigned saat = 0; saat < 12; ++saat) {
        PlanErwürfeln(saat);
        const std::vector<Text> vorher = AlleNamen();
        const Ausgleichsergebnis erster =
            PlanAusgleichen(GemeinsameTabellen(), {.Saat = saat, .Aufwand = 0.1});
        const Ausgleichsergebnis zweiter =
            PlanAusgleichen(GemeinsameTabellen(), {.Saat = saat, .Aufwand = 0.1});
        ASSERT_EQ(AlleNamen(), vorher) << saat;
        ASSERT_EQ(erster.Wechsel.size(), zweiter.Wechsel.size()) << saat;
        for (std::size_t k = 0; k < erster.Wechsel.size(); ++k) {
            ASSERT_EQ(erster.Wechsel[k].Wo, zweiter.Wechsel[k].Wo) << saat;
            ASSERT_EQ(erster.Wechsel[k].VornameNachher, zweiter.Wechsel[k].VornameNachher) << saat;
        }
    }
}

TEST_F(AusgleichTest, WirdNieSchlechterUndDieZahlenStimmen)
{
    for (unsigned saat = 0; saat < Gemeinden; ++saat) {
        PlanErwürfeln(saat);
        const int vorher = Verstöße(Planplatz::Art::Diener);
        const int helferVorher = Verstöße(Planplatz::Art::Helfer);
        const Ausgleichsergebnis ergebnis =
            PlanAusgleichen(GemeinsameTabellen(), {.Aufwand = 0.03});
        ASSERT_EQ(ergebnis.Diener.Vorher.Verstöße, vorher) << saat;
        AusgleichÜbernehmen(ergebnis);
        ASSERT_LE(Verstöße(Planplatz::Art::Diener), vorher) << saat;
        ASSERT_LE(Verstöße(Planplatz::Art::Helfer), helferVorher) << saat;
        ASSERT_EQ(ergebnis.Diener.Nachher.Verstöße, Verstöße(Planplatz::Art::Diener)) << saat;
        ASSERT_EQ(ergebnis.Diener.Offen.size(),
                  static_cast<std::size_t>(ergebnis.Diener.Nachher.Verstöße));
        std::map<Text, int> dienste = DiensteNachNamen();
        int wenigste = 1000;
        int meiste = 0;
        double quadrate = 0;
        for (const Personenanteil &anteil : ergebnis.Diener.Anteile) {
            const int zahl =
                dienste[Meßdiener.Vorname[anteil.Nr] + " " + Meßdiener.Nachname[anteil.Nr]];
            ASSERT_EQ(anteil.Nachher, zahl) << saat << " " << anteil.Nr;
            if (anteil.Kann || zahl > 0)
                wenigste = std::min(wenigste, zahl);
            meiste = std::max(meiste, zahl);
            quadrate += (zahl - anteil.Soll) * (zahl - anteil.Soll);
        }
        ASSERT_EQ(ergebnis.Diener.Nachher.Wenigste, wenigste == 1000 ? 0 : wenigste) << saat;
        ASSERT_EQ(ergebnis.Diener.Nachher.Meiste, meiste) << saat;
        ASSERT_NEAR(ergebnis.Diener.Nachher.Ungleichheit, std::sqrt(quadrate), 1e-9) << saat;
    }
}

TEST_F(AusgleichTest, FesteVonHandGesetzteUndVergangenePlätzeBleiben)
{
    for (unsigned saat = 0; saat < Gemeinden; ++saat) {
        PlanErwürfeln(saat);
        const Datum abTag = Beginn + static_cast<int>(saat % 8);
        const Ausgleichsergebnis ergebnis =
            PlanAusgleichen(GemeinsameTabellen(), {.AbTag = abTag, .Aufwand = 0.01});
        for (const Platzwechsel &wechsel : ergebnis.Wechsel) {
            const auto [i, art, nr] = wechsel.Wo;
            ASSERT_GE(Messe.Datum[i], abTag) << saat;
            ASSERT_TRUE(IstGewünscht(Messe, wechsel.Wo)) << saat;
            if (art != Planplatz::Art::Diener)
                continue;
            const Text dienst = DienstAm(Messe, wechsel.Wo);
            ASSERT_FALSE(dienst == "Weihrauch" && Konfig.ManuellWeihrauch == 1) << saat;
            ASSERT_FALSE(dienst == "Kreuzträger" && Konfig.ManuellKreuzträger == 1) << saat;
            for (int r = 0; r < FesteZeilen; ++r)
                ASSERT_FALSE(MesseDienerFest.Datum[r] == Messe.Datum[i] &&
                             MesseDienerFest.Uhrzeit[r] == Messe.Uhrzeit[i] &&
                             IstBelegt(MesseDienerFest, r, nr))
                    << saat;
        }
    }
}

TEST_F(AusgleichTest, EinFesterEintragKommtAnSeinenPlatz)
{
    MeßdienerAnlegen("Anna", "Arndt");
    MeßdienerAnlegen("Berta", "Bach");
    const int messe = MesseMitDienern(Beginn, 2);
    MesseDienerFest.Datum[0] = Messe.Datum[messe];
    MesseDienerFest.Uhrzeit[0] = Messe.Uhrzeit[messe];
    MesseDienerFest.Vorname[0][2] = "Anna";
    MesseDienerFest.Nachname[0][2] = "Arndt";
    MesseDienerFest.Anzahl = 1;
    Besetzen(Messe, Dienerplatznr(messe, 1), "Anna", "Arndt");
    AusgleichÜbernehmen(PlanAusgleichen(GemeinsameTabellen(), {}));
    EXPECT_EQ(Messe.DienerVor[messe][1], "Berta");
    EXPECT_EQ(Messe.DienerVor[messe][2], "Anna");
}

TEST_F(AusgleichTest, WoEinVerstoßBleibtKannNiemandAndererStehen)
{
    int geprüft = 0;
    for (unsigned saat = 0; saat < Gemeinden / 3; ++saat) {
        PlanErwürfeln(saat);
        Meßdiener.Anzahl = Meßdiener.Anzahl / 3;
        const Ausgleichsergebnis ergebnis =
            PlanAusgleichen(GemeinsameTabellen(), {.Helfer = false, .Aufwand = 0.05});
        AusgleichÜbernehmen(ergebnis);
        const int verstöße = Verstöße(Planplatz::Art::Diener);
        for (const Engpass &engpass : ergebnis.Diener.Offen) {
            if (engpass.Bleibt)
                continue;
            ++geprüft;
            ASSERT_NE(engpass.Warum, "") << saat << " " << engpass.Satz;
            const Planplatz wo = engpass.Was.Wo;
            const Text vorname = NameAm(Messe, wo).Vorname;
            const Text nachname = NameAm(Messe, wo).Nachname;
            for (int j = 0; j < Meßdiener.Anzahl; ++j) {
                if (Meßdiener.Vorname[j].empty() || Meßdiener.Nachname[j].empty())
                    continue;
                Besetzen(Messe, wo, Meßdiener.Vorname[j], Meßdiener.Nachname[j]);
                ASSERT_GE(Verstöße(Planplatz::Art::Diener), verstöße)
                    << saat << " " << engpass.Satz << " " << Meßdiener.Vorname[j];
            }
            Besetzen(Messe, wo, vorname, nachname);
        }
    }
    EXPECT_GT(geprüft, 50);
}

TEST_F(AusgleichTest, JederzeitBeendetBleibtEinGanzerPlan)
{
    for (unsigned saat = 0; saat < 60; ++saat) {
        PlanErwürfeln(saat);
        const int vorher = Verstöße(Planplatz::Art::Diener);
        unsigned gefragt = 0;
        const Ausgleichsergebnis ergebnis = PlanAusgleichen(
            GemeinsameTabellen(),
            {.Helfer = false, .Abbruch = [&] { return ++gefragt > saat * saat / 4; }});
        AusgleichÜbernehmen(ergebnis);
        ASSERT_LE(Verstöße(Planplatz::Art::Diener), vorher) << saat;
        ASSERT_EQ(ergebnis.Diener.Nachher.Verstöße, Verstöße(Planplatz::Art::Diener)) << saat;
    }
}

TEST_F(AusgleichTest, WerVorherOftGedientHatKommtSeltenerDran)
{
    for (int j = 0; j < 4; ++j)
        MeßdienerAnlegen("V" + std::to_string(j), "N");
    for (int woche = 0; woche < 8; ++woche)
        MesseMitDienern(Beginn + 7 * woche, 1);
    const Ausgleichsergebnis ergebnis =
        PlanAusgleichen(GemeinsameTabellen(), {.DienerBisher = {4, 0, 0, 0}});
    ASSERT_EQ(ergebnis.Diener.Anteile.size(), 4U);
    EXPECT_EQ(ergebnis.Diener.Anteile[0].Nachher, 0);
    EXPECT_NEAR(ergebnis.Diener.Anteile[0].Soll, 0, 1e-9);
    EXPECT_NEAR(ergebnis.Diener.Anteile[1].Soll, 8.0 / 3, 0.001);
    EXPECT_EQ(ergebnis.Diener.Nachher.Meiste, 3);
}

TEST_F(AusgleichTest, WerOftDienenWillBekommtEinViertelMehr)
{
    for (int j = 0; j < 5; ++j)
        MeßdienerAnlegen("V" + std::to_string(j), "N");
    Meßdiener.Häufigkeit[0] = 2;
    for (int woche = 0; woche < 21; ++woche)
        MesseMitDienern(Beginn + 7 * woche, 1);
    const Ausgleichsergebnis ergebnis = PlanAusgleichen(GemeinsameTabellen(), {});
    EXPECT_EQ(ergebnis.Diener.Anteile[0].Nachher, 5);
    for (std::size_t j = 1; j < 5; ++j)
        EXPECT_EQ(ergebnis.Diener.Anteile[j].Nachher, 4);
    EXPECT_NEAR(ergebnis.Diener.Nachher.Ungleichheit, 0, 1e-6);
}

TEST_F(AusgleichTest, WunschpartnerStehenBeieinander)
{
    for (int j = 0; j < 8; ++j)
        MeßdienerAnlegen("V" + std::to_string(j), "N");
    Meßdiener.WunschVorname[0] = "V5";
    Meßdiener.WunschNachname[0] = "N";
    for (int woche = 0; woche < 4; ++woche)
        MesseMitDienern(Beginn + 7 * woche, 4);
    const Ausgleichsergebnis ergebnis = PlanAusgleichen(GemeinsameTabellen(), {});
    EXPECT_EQ(ergebnis.Diener.Nachher.Paare, 2);
    EXPECT_EQ(ergebnis.Diener.Nachher.Meiste, 2);
}

TEST_F(AusgleichTest, WasUngernGedientWirdBleibtAnderen)
{
    for (int j = 0; j < 4; ++j)
        MeßdienerAnlegen("V" + std::to_string(j), "N");
    Meßdiener.Wochendienst[0] = "nnnjnnnn"; // not on Wednesdays
    Meßdiener.Wochendienst[1] = "jnnnnnnn"; // no service of the week
    const Datum mittwoch = DatumAus({2026, 12, 2});
    for (int woche = 0; woche < 8; ++woche) {
        MesseMitDienern(mittwoch + 7 * woche, 1);
        Messe.Messeart[MesseMitDienern(mittwoch + 7 * woche + 3, 1)] = "Wochendienst";
    }
    for (std::uint32_t saat = 1; saat <= 8; ++saat) {
        const Ausgleichsergebnis ergebnis =
            PlanAusgleichen(GemeinsameTabellen(), {.Saat = saat, .Aufwand = 0.2});
        EXPECT_EQ(ergebnis.Diener.Nachher.Verstöße, 0);
        EXPECT_EQ(ergebnis.Diener.Nachher.Wenigste, 4);
        for (const Platzwechsel &wechsel : ergebnis.Wechsel) {
            const bool istMittwoch = Messe.Wochentag[wechsel.Wo.Messe] == "Mittwoch";
            EXPECT_NE(wechsel.VornameNachher, istMittwoch ? "V0" : "V1");
        }
    }
}

TEST_F(AusgleichTest, WerKeinenWochendienstWillBekommtAuchDannKeinenWennErSonstNichtDient)
{
    for (int j = 0; j < 2; ++j)
        MeßdienerAnlegen("V" + std::to_string(j), "N");
    Meßdiener.Wochendienst[0] = "jnnnnnnn";
    for (int woche = 0; woche < 4; ++woche)
        Messe.Messeart[MesseMitDienern(Beginn + 7 * woche, 1)] = "Wochendienst";
    const Ausgleichsergebnis ergebnis = PlanAusgleichen(GemeinsameTabellen(), {.Saat = 1});
    EXPECT_EQ(ergebnis.Diener.Nachher.Verstöße, 0);
    ASSERT_EQ(ergebnis.Wechsel.size(), 4U);
    for (const Platzwechsel &wechsel : ergebnis.Wechsel)
        EXPECT_EQ(wechsel.VornameNachher, "V1");
}

TEST_F(AusgleichTest, DieAbständeSindGleichmäßigUndJederDienstGehtReihum)
{
    for (int j = 0; j < 4; ++j)
        MeßdienerAnlegen("V" + std::to_string(j), "N");
    for (int woche = 0; woche < 8; ++woche) {
        const int messe = MesseMitDienern(Beginn + 7 * woche, 2);
        Messe.Leuchter[messe] = 1;
        for (int slot = 1; slot <= 2; ++slot) // even, but one after the other
            Besetzen(Messe, Dienerplatznr(messe, slot),
                     "V" + std::to_string(woche / 4 * 2 + slot - 1), "N");
    }
    AusgleichÜbernehmen(PlanAusgleichen(GemeinsameTabellen(), {}));
    for (int j = 0; j < 4; ++j) {
        int leuchter = 0;
        std::vector<int> wochen;
        for (int i = 0; i < 8; ++i)
            for (int slot = 1; slot <= 2; ++slot)
                if (Messe.DienerVor[i][slot] == Meßdiener.Vorname[j]) {
                    wochen.push_back(i);
                    leuchter += slot == 1;
                }
        ASSERT_EQ(wochen.size(), 4U) << j;
        EXPECT_EQ(leuchter, 2) << j;
        for (std::size_t k = 1; k < wochen.size(); ++k)
            EXPECT_EQ(wochen[k] - wochen[k - 1], 2) << j;
    }
}

TEST_F(AusgleichTest, EineAndereSaatGibtEinenAnderenPlan)
{
    BeispielLaden();
    std::set<std::vector<Text>> pläne;
    for (std::uint32_t saat = 1; saat <= 3; ++saat) {
        std::vector<Text> namen;
        for (const Platzwechsel &wechsel :
             PlanAusgleichen(GemeinsameTabellen(), {.Saat = saat, .Aufwand = 0.1}).Wechsel)
            namen.push_back(wechsel.VornameNachher + " " + wechsel.NachnameNachher);
        pläne.insert(namen);
    }
    EXPECT_EQ(pläne.size(), 3U);
}

TEST_F(AusgleichTest, EineToleranzOhneGrenzenPaßtFürAlle)
{
    for (const int spielraum : {32767, -32768}) {
        TabellenLeeren();
        for (int j = 0; j < 4; ++j)
            MeßdienerAnlegen("V" + std::to_string(j), "N", 120 + 20 * j);
        for (int woche = 0; woche < 4; ++woche)
            MesseMitDienern(Beginn + 7 * woche, 2);
        Konfig.DiffGröße = spielraum;
        const Ausgleichsergebnis ergebnis = PlanAusgleichen(GemeinsameTabellen(), {});
        EXPECT_EQ(ergebnis.Diener.Nachher.Verstöße, 0) << spielraum;
        EXPECT_EQ(ergebnis.Diener.Nachher.Wenigste, 2) << spielraum;
        EXPECT_TRUE(ergebnis.Diener.Bewiesen) << spielraum;
    }
}

TEST_F(AusgleichTest, WasÜbereinstimmtBehältSeineNamen)
{
    for (int j = 0; j < 6; ++j)
        MeßdienerAnlegen("V" + std::to_string(j), "N");
    for (int woche = 0; woche < 6; ++woche) {
        const int messe = MesseMitDienern(Beginn + 7 * woche, 2);
        for (int slot = 1; slot <= 2; ++slot) {
            const int j = (2 * woche + slot - 1) % 6;
            Besetzen(Messe, Dienerplatznr(messe, slot), Meßdiener.Vorname[j],
                     Meßdiener.Nachname[j]);
        }
    }
    // Everybody serves every third week: nothing could be better, and other plans are as good.
    EXPECT_EQ(PlanAusgleichen(GemeinsameTabellen(), {}).Wechsel.size(), 0U);
}

TEST_F(AusgleichTest, NamenKehrenHeimWoEsNichtsKostet)
{
    for (int j = 0; j < 100; ++j)
        MeßdienerAnlegen("V" + std::to_string(j), "N");
    for (int j = 0; j < 99; ++j)
        Besetzen(Messe, Dienerplatznr(MesseMitDienern(Beginn + 2 * j, 1), 1), Meßdiener.Vorname[j],
                 Meßdiener.Nachname[j]);
    MesseMitDienern(Beginn + 2 * 99, 1);
    Meßdiener.Von1[99] = Beginn + 1; // there only for the first mass
    Meßdiener.Bis1[99] = Beginn + 1000;
    // All plans in which everybody serves once are equal: somebody makes room for the last one and
    // goes to the empty place.
    EXPECT_EQ(PlanAusgleichen(GemeinsameTabellen(), {}).Wechsel.size(), 2U);
}

/// The most difficult case: far too few servers for a large plan.
TEST_F(AusgleichTest, EsHörtSofortAufAuchWoNichtsZuRettenIst)
{
    for (int j = 0; j < 12; ++j)
        MeßdienerAnlegen("V" + std::to_string(j), "N");
    for (int messe = 0; messe < 300; ++messe)
        MesseMitDienern(Beginn + messe, 12);
    using Zeit = std::chrono::steady_clock;
    const auto anfang = Zeit::now();
    Zeit::time_point ende;
    bool beendet = false;
    const Ausgleichsergebnis ergebnis = PlanAusgleichen(
        GemeinsameTabellen(),
        {.Helfer = false, .Abbruch = [&] {
             if (!beendet && Zeit::now() - anfang > std::chrono::milliseconds(300)) {
                 beendet = true;
                 ende = Zeit::now();
             }
             return beendet;
         }});
    ASSERT_TRUE(beendet);
    EXPECT_TRUE(ergebnis.Abgebrochen);
    const std::chrono::duration<double> gewartet = Zeit::now() - ende;
    EXPECT_LT(gewartet.count(), 2) << "far more than it takes";
}

TEST_F(AusgleichTest, AuchBeimNachbessernFragtEsObEsAufhörenSoll)
{
    for (int j = 0; j < 12; ++j)
        MeßdienerAnlegen("V" + std::to_string(j), "N");
    for (int messe = 0; messe < 100; ++messe)
        MesseMitDienern(Beginn + messe, 12);
    int gefragt = 0;
    PlanAusgleichen(GemeinsameTabellen(),
                    {.Helfer = false, .Aufwand = 0.0001, .Abbruch = [&] { return ++gefragt < 0; }});
    EXPECT_GT(gefragt, 100 * 12 * 3 / 2) << "once a place while it is filled, once later";
}

TEST_F(AusgleichTest, NenntDenPlatzFürDenNiemandDaIst)
{
    MeßdienerAnlegen("Anna", "Arndt");
    MeßdienerAnlegen("Berta", "Bach");
    for (int j = 0; j < 2; ++j)
        Meßdiener.Qualifikation[j] = "jnjjjj";
    const int messe = MesseMitDienern(DatumAus({2026, 12, 8}), 2);
    Messe.Leuchter[messe] = 1;
    const Ausgleichsergebnis ergebnis = PlanAusgleichen(GemeinsameTabellen(), {});
    ASSERT_EQ(ergebnis.Diener.Offen.size(), 1U);
    EXPECT_EQ(ergebnis.Diener.Offen[0].Was.Wo, Dienerplatznr(messe, 1));
    EXPECT_EQ(ergebnis.Diener.Offen[0].Warum, "Niemand paßt: 2 nicht für Leuchter.");
    EXPECT_EQ(ergebnis.Diener.Offen[0].Abhilfe, "Es hülfe: einmal mehr Leuchter am 08.12.");
    EXPECT_TRUE(ergebnis.Diener.Bewiesen);
}

} // namespace
} // namespace altardienst
