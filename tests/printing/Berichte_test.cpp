// What holds for every report alike: cancel, and a printer error at any of its operations.
#include "anniversaries/JubiGebuDruck.h"
#include "printing/Druckstand.h"
#include "printing/Erfassungsbogen.h"
#include "printing/Etikettendruck.h"
#include "printing/Listen.h"
#include "printing/Plandruck.h"

#include <functional>

namespace altardienst {
namespace {

struct Bericht {
    const char *Name;
    int Modus;
    std::function<void()> Drucken;
};

void Etikettenlauf()
{
    EtikettenDrucken(EtikettenAllerMeßdiener(), [] { return Etikettenplatz{1, 1}; });
}

void Geburtstagslauf()
{
    GeburtstageSuchen(Gruppende::Alle, 12);
    GeburtstageDrucken(Gruppende::Alle, 12);
}

void Jubiläumslauf()
{
    JubiläenSuchen(15);
    JubiläenDrucken(15);
}

const Bericht Berichte[] = {
    {"Plan", 0, PlanDrucken},
    {"Helferbogen", 1, PlanDrucken},
    {"AlleDiener", 0, AlleMeßdienerDrucken},
    {"AlleDienerKompakt", 1, AlleMeßdienerDrucken},
    {"Gruppe", 0, [] { MeßdienergruppeDrucken("Die Großen"); }},
    {"GruppeKompakt", 1, [] { MeßdienergruppeDrucken("Die Großen"); }},
    {"Helfer", 0, AlleHelferDrucken},
    {"HelferKompakt", 1, AlleHelferDrucken},
    {"Wunschpartner", 0, WunschpartnerlisteDrucken},
    {"Standardmessen", 0, StandardmessenDrucken},
    {"BogenDiener", 0, [] { ErfassungsbogenMeßdienerDrucken("1", "2"); }},
    {"BogenHelfer", 0, [] { ErfassungsbogenHelferDrucken("1", "2"); }},
    {"Etikettenformate", 0, EtikettengrößenDrucken},
    {"Etiketten", 0, Etikettenlauf},
    {"Geburtstage", 0, Geburtstagslauf},
    {"Mitgliedsjahre", 0, Jubiläumslauf},
};

class BerichteTest : public Druckstand, public ::testing::WithParamInterface<Bericht> {
  protected:
    BerichteTest()
    {
        for (int i = 0; i < 3; ++i) {
            MesseMitDienern(DatumAus({2026, 11, 22 + i}), 3);
            HelferAnlegen("Lea", "Lang", "Lektor");
            Meßdiener.Gruppe[MeßdienerAnlegen("Anna", "Berg")] = "Die Großen";
        }
        Etikett.Reihen[0] = 2;
        Etikett.Spalten[0] = 1;
        Papier.Seitenhöhe = 4500; // a page turn in the middle
    }

    std::vector<Text> Drucken(int fehlerBei = 0)
    {
        Papier.Leeren();
        Papier.FehlerBei = fehlerBei;
        bericht.Drucken();
        return Papier.Zeilen;
    }

    const Bericht &bericht = GetParam();
};

TEST_P(BerichteTest, AbgebrochenGibtErNichtsAus)
{
    Papier.Antwort = std::nullopt;
    EXPECT_EQ(Drucken(), std::vector<Text>{"Dialog"});
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_P(BerichteTest, EndetMitEndDocUndStelltDieSeiteWiederHoch)
{
    Papier.Antwort = bericht.Modus;
    std::vector<Text> zeilen = Drucken();
    if (zeilen[1] == "Orientation 2") {
        EXPECT_EQ(zeilen.back(), "Orientation 1");
        zeilen.pop_back();
    }
    EXPECT_EQ(zeilen.back(), "EndDoc");
    EXPECT_EQ(Papier.WieOft("EndDoc"), 1);
    EXPECT_EQ(Papier.WieOft("Verwerfen"), 0);
}

TEST_P(BerichteTest, EinFehlerBeiIrgendeinerOperationHältIhnSofortUndStillAn)
{
    Papier.Antwort = bericht.Modus;
    const std::vector<Text> ganz = Drucken();
    for (std::size_t n = 1; n <= ganz.size(); ++n) {
        std::vector<Text> erwartet(ganz.begin(), ganz.begin() + static_cast<std::ptrdiff_t>(n));
        erwartet.emplace_back("Verwerfen");
        ASSERT_EQ(Drucken(static_cast<int>(n)), erwartet);
    }
    EXPECT_TRUE(GezeigteMeldungen.empty());
    EXPECT_EQ(Drucken(), ganz); // and the next one is complete again
}

INSTANTIATE_TEST_SUITE_P(Alle, BerichteTest, ::testing::ValuesIn(Berichte),
                         [](const auto &info) { return Text(info.param.Name); });

} // namespace
} // namespace altardienst
