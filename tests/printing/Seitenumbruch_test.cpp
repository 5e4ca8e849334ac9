// Where each report breaks its pages: the lines it counts, and the lines it assumes the next row
// needs.
#include "printing/Druckstand.h"
#include "printing/Listen.h"
#include "printing/Plandruck.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace altardienst {
namespace {

/// A multiple of most counts that occur, so that a page may end exactly at the estimate.
constexpr Single Höhe = 27720;

/// Adds a row to the table of the report.
using Anlegen = std::function<void()>;

void Diener()
{
    MeßdienerAnlegen("Anna", "Berg");
    Meßdiener.Gruppe[Meßdiener.Anzahl - 1] = "Die Großen";
}

void HelferReihe()
{
    HelferAnlegen("Lea", "Lang", "Lektor");
}

/// A mass whose servers fill `dienerzahl` / 2 lines.
Anlegen MesseMit(int dienerzahl, const Text &art = "Messe")
{
    return [=] {
        const int i = MesseMitDienern(DatumAus({2026, 11, 22}), dienerzahl);
        Messe.Messeart[i] = art;
        for (int s = 1; s <= dienerzahl; ++s)
            Messe.DienerVor[i][s] = "Anna";
    };
}

/// The same row, with these settings for what the forms offer.
Anlegen MitFlags11(const Text &flags, const Anlegen &reihe)
{
    return [=] {
        Konfig.Flags11 = flags;
        reihe();
    };
}

/// A mass with two servers and these helpers.
Anlegen MesseMitHelfern(int lektor, int komm, int kantor, int kollekt)
{
    return [=] {
        MesseMit(2)();
        const int i = Messe.Anzahl - 1;
        Messe.LektorZahl[i] = lektor;
        Messe.KommZahl[i] = komm;
        Messe.KantorZahl[i] = kantor;
        Messe.KollektZahl[i] = kollekt;
    };
}

/// Two rows on paper: how many lines down the page each ends (the upper margin is one line), how
/// many lines the report has counted by then, and the k of its check.
struct Fall {
    const char *Name;
    int Modus;
    Anlegen Reihe;
    std::function<void()> Bericht;
    int Titel;  // lines of the opening
    int Anfang; // `Zeilen` after the title
    int Zeilen; // lines printed for a row
    int Zuwachs;
    double K; // after a row that another one follows
    double KLetzte;
    int Schluss = 1; // page turns after the last row

    /// The lowest limit, in whole twips, at which the page is not turned.
    Single Schätzung(int reihen, double k) const
    {
        return Grenze(1 + Titel + reihen * Zeilen, Anfang + reihen * Zuwachs, k);
    }
    Single SchätzungAufNeuerSeite() const { return Grenze(1 + Zeilen, Zuwachs, KLetzte); }

  private:
    static Single Grenze(int linien, int gezählt, double k)
    {
        const double schätzung = static_cast<double>(Höhe) * linien * (gezählt + k) / gezählt;
        return static_cast<Single>(std::ceil(schätzung));
    }
};

const auto Gruppenliste = [] { MeßdienergruppeDrucken("Die Großen"); };

const Fall Fälle[] = {
    {"AlleDienerBreit", 0, Diener, AlleMeßdienerDrucken, 2, 3, 4, 4, 3, 3},
    {"AlleDienerKompakt", 1, Diener, AlleMeßdienerDrucken, 2, 3, 2, 2, 2, 2},
    {"GruppeBreit", 0, Diener, Gruppenliste, 5, 5, 3, 3, 3, 3},
    {"GruppeKompakt", 1, Diener, Gruppenliste, 5, 5, 2, 2, 2, 2},
    {"HelferBreit", 0, HelferReihe, AlleHelferDrucken, 2, 3, 3, 3, 2, 2},
    {"HelferKompakt", 1, HelferReihe, AlleHelferDrucken, 2, 3, 2, 2, 2, 2},
    {"Wunschpartner", 0, Diener, WunschpartnerlisteDrucken, 3, 8, 2, 2, 2, 2},
    // Heading, servers two per line, blank line; k is half the next mass's servers plus 6.
    {"PlanOhneDiener", 0, MesseMit(0), PlanDrucken, 4, 5, 2, 3, 6, 6},
    {"PlanMitVierDienern", 0, MesseMit(4), PlanDrucken, 4, 5, 4, 5, 8, 6},
    {"PlanMitZweiHelferdiensten", 0, MesseMitHelfern(1, 0, 2, 0), PlanDrucken, 4, 5, 5, 6, 7, 6},
    {"PlanMitAnderenHelferdiensten", 0, MesseMitHelfern(0, 1, 0, 1), PlanDrucken, 4, 5, 5, 6, 7, 6},
    {"PlanMitAllenHelferdiensten", 0, MesseMitHelfern(1, 1, 1, 1), PlanDrucken, 4, 5, 7, 8, 7, 6},
    {"PlanMitNegativenHelferzahlen", 0, MesseMitHelfern(-1, -1, -1, -1), PlanDrucken, 4, 5, 3, 4, 7,
     6},
    {"Helferbogen", 1, MesseMit(2), PlanDrucken, 4, 5, 7, 6, 6, 6, 0},
    {"HelferbogenOhneHelferdienste", 1, MitFlags11("jnjjjjjjjjj", MesseMit(2)), PlanDrucken, 4, 5,
     2, 2, 6, 6, 0},
    {"HelferbogenWochendienst", 1, MesseMit(2, "Wochendienst"), PlanDrucken, 4, 5, 2, 2, 6, 6, 0},
    {"HelferbogenFastWochendienst", 1, MesseMit(2, "Wochendienst "), PlanDrucken, 4, 5, 7, 6, 6, 6,
     0},
};

class SeitenumbruchStand : public Druckstand {
  protected:
    SeitenumbruchStand()
    {
        Konfig.YSkala = Höhe;
        Konfig.RandOben = 1;
        Konfig.RandUnten = 2;
        Papier.Zeilenhöhe = Höhe;
    }

    /// The page turns of a report whose lower limit is `grenze`, not counting those at its end.
    int Umbrüche(const std::function<void()> &bericht, Single grenze, int schluss)
    {
        Papier.Leeren();
        Papier.Seitenhöhe = grenze + 2 * Höhe;
        bericht();
        EXPECT_EQ(Papier.WieOft("EndDoc"), 1);
        return Papier.WieOft("NewPage") - schluss;
    }
};

class SeitenumbruchTest : public SeitenumbruchStand, public ::testing::WithParamInterface<Fall> {
  protected:
    SeitenumbruchTest() { Papier.Antwort = fall.Modus; }

    /// The page turns over this many rows.
    int Umbrüche(int reihen, Single grenze)
    {
        Messe.Anzahl = 0;
        Meßdiener.Anzahl = 0;
        Helfer.Anzahl = 0;
        for (int i = 0; i < reihen; ++i)
            fall.Reihe();
        return SeitenumbruchStand::Umbrüche(fall.Bericht, grenze, fall.Schluss);
    }

    const Fall &fall = GetParam();
};

TEST_P(SeitenumbruchTest, NachDerErstenReihe)
{
    EXPECT_EQ(Umbrüche(1, fall.Schätzung(1, fall.KLetzte)), 0);
    EXPECT_EQ(Umbrüche(1, fall.Schätzung(1, fall.KLetzte) - 1), 1);
}

TEST_P(SeitenumbruchTest, VorEinerWeiterenReihe)
{
    const Single grenze = fall.Schätzung(1, fall.K);
    const auto bisZumUmbruch = [&] {
        return std::ranges::find(Papier.Zeilen, "NewPage") - Papier.Zeilen.begin();
    };
    Umbrüche(2, grenze);
    const auto zweiReihen = bisZumUmbruch();
    Umbrüche(2, grenze - 1);
    EXPECT_LT(bisZumUmbruch(), zweiReihen);
}

TEST_P(SeitenumbruchTest, NachDerZweitenReiheZähltDieErsteMit)
{
    const Single grenze = fall.Schätzung(2, fall.KLetzte);
    ASSERT_GT(grenze - 1, fall.Schätzung(1, fall.K));
    EXPECT_EQ(Umbrüche(2, grenze), 0);
    EXPECT_EQ(Umbrüche(2, grenze - 1), 1);
}

TEST_P(SeitenumbruchTest, AufDerNeuenSeiteZähltNurWasAufIhrSteht)
{
    const Single grenze = fall.SchätzungAufNeuerSeite();
    ASSERT_GT(fall.Schätzung(1, fall.K), grenze);
    EXPECT_EQ(Umbrüche(2, grenze), 1);
    EXPECT_EQ(Umbrüche(2, grenze - 1), 2);
    const auto umbruch = std::ranges::find(Papier.Zeilen, "NewPage");
    EXPECT_EQ(*(umbruch + 1), "CurrentY 27720"); // without the title
    EXPECT_EQ(Papier.WieOft("FontSize 14"), 1);
}

INSTANTIATE_TEST_SUITE_P(Berichte, SeitenumbruchTest, ::testing::ValuesIn(Fälle),
                         [](const auto &info) { return Text(info.param.Name); });

// 1.5 + 5 + 1 + 3 lines are 10, and 2.5 + 5 + 1 + 3 are 12: a half goes to the even neighbour.
TEST_F(SeitenumbruchStand, UngeradeDienerzahlRundetZurGeradenZeilenzahl)
{
    struct Zeilenzahl {
        int Diener;
        int Gedruckt; // down to the end of the mass, the upper margin included
        int Gezählt;
    };
    for (const auto &[diener, gedruckt, gezählt] :
         {Zeilenzahl{1, 8, 10}, {3, 9, 10}, {5, 10, 12}, {7, 11, 12}}) {
        Messe.Anzahl = 0;
        MesseMit(diener)();
        const Single grenze =
            Höhe * static_cast<Single>(gedruckt * (gezählt + 6)) / static_cast<Single>(gezählt);
        EXPECT_EQ(Umbrüche(PlanDrucken, grenze, 1), 0) << diener;
        EXPECT_EQ(Umbrüche(PlanDrucken, grenze - 1, 1), 1) << diener;
    }
}

// The record after the last mass is blank in a new table, but its count is read.
TEST_F(SeitenumbruchStand, HinterDerLetztenMesseZähltDieReiheDieDortSteht)
{
    MesseMit(0)();
    Messe.Dienerzahl[1] = 5;
    const Single grenze = Höhe * 7.0F * (8 + 2.5F + 6) / 8;
    EXPECT_EQ(Umbrüche(PlanDrucken, grenze, 1), 0);
    EXPECT_EQ(Umbrüche(PlanDrucken, grenze - 1, 1), 1);
}

} // namespace
} // namespace altardienst
