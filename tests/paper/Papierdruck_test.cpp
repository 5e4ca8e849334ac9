// A report that fails: none of it comes out of the printer, and the next one prints as usual.
#include "paper/Druckziel.h"

#include "paper/Papierdrucker.h"
#include "printing/Listen.h"
#include "printing/Plandruck.h"

#include <algorithm>

namespace altardienst {
namespace {

class PapierdruckTest : public DruckzielTest {
  protected:
    PapierdruckTest()
    {
        ziel = papier;
        Konfig.Gemeinde = "St. Ägid";
        MesseMitDienern(Heute, 1);
    }

    /// A failure after the title, which the report writes in a font of its own.
    static void Scheitern(void (*bericht)())
    {
        const Int16 größe = std::exchange(Konfig.Schriftgröße, 0);
        bericht();
        Konfig.Schriftgröße = größe;
    }

    /// The width of the plan's page in points, on a PDF.
    double Planbreite()
    {
        ziel = nullptr;
        PlanDrucken();
        return PdfLesen(datei).Seiten[0].Breite;
    }

    std::shared_ptr<Papierdrucker> papier = std::make_shared<Papierdrucker>();
    Papierwerk &Werk = papier->Werk;
};

TEST_F(PapierdruckTest, EinFehlerHinterDemTitelLässtNichtsHeraus)
{
    Scheitern(PlanDrucken);
    EXPECT_EQ(Werk.Aufträge, 0);
    EXPECT_TRUE(GezeigteMeldungen.empty());
    PlanDrucken();
    EXPECT_EQ(Werk.Aufträge, 1);
    EXPECT_EQ(Werk.Seiten, 1);
    ASSERT_FALSE(Werk.Zeilen.empty());
    EXPECT_EQ(Werk.Zeilen.front(), "Messen der Pfarrei St. Ägid"); // of the second one only
    EXPECT_EQ(std::ranges::count(Werk.Zeilen, Werk.Zeilen.front()), 1);
}

TEST_F(PapierdruckTest, AuchNachVielenSeitenNicht)
{
    for (int i = 0; i < 200; ++i)
        MeßdienerAnlegen("Max", "Moos");
    EXPECT_EQ(NummerDesFehlers([&] {
                  drucker.Dialog({});
                  for (int seite = 0; seite < 5; ++seite) {
                      drucker.Print("x");
                      drucker.NewPage();
                  }
                  drucker.FontSize(0);
              }),
              482);
    drucker.Verwerfen();
    EXPECT_EQ(Werk.Aufträge, 0);
    AlleMeßdienerDrucken();
    EXPECT_EQ(Werk.Aufträge, 1);
    EXPECT_GT(Werk.Seiten, 5);
    EXPECT_EQ(std::ranges::count(Werk.Zeilen, "Qualifikationen: Gabenbereitung, Leuchter, "
                                              "Flambeau, Weihrauch, Kreuzträger"),
              Meßdiener.Anzahl);
}

TEST_F(PapierdruckTest, EinGestörterDruckerEndetStillUndDerNächsteBerichtGeht)
{
    Werk.Gestört = true;
    PlanDrucken();
    EXPECT_TRUE(GezeigteMeldungen.empty());
    Werk.Gestört = false;
    Werk.Aufträge = 0;
    PlanDrucken();
    EXPECT_EQ(Werk.Aufträge, 1);
}

TEST_F(PapierdruckTest, NachEinerGescheitertenQuerenListeStehtDieSeiteWiederHoch)
{
    Konfig.DiffJahr = 2;
    HelferAnlegen("Lea", "Lang", "Lektor");
    for (const auto liste : {AlleMeßdienerDrucken, AlleHelferDrucken}) {
        Scheitern(liste);
        EXPECT_EQ(drucker.Height(), 16838);
    }
    ziel = nullptr;
    const QString gut = std::exchange(datei, "/gibt/es/nicht.pdf");
    AlleMeßdienerDrucken(); // fails only when it is sent to the printer
    datei = gut;
    EXPECT_NEAR(Planbreite(), 595, 1);
}

TEST_F(PapierdruckTest, GedrucktWirdAufA4AuchWoEtwasAnderesEingestelltIst)
{
    ziel = PdfDrucker(datei);
    ziel->setPageSize(QPageSize(QPageSize::Letter));
    PlanDrucken();
    const PdfSeite seite = PdfLesen(datei).Seiten[0];
    EXPECT_NEAR(seite.Breite, 595, 1);
    EXPECT_NEAR(seite.Höhe, 842, 1);
}

} // namespace
} // namespace altardienst
