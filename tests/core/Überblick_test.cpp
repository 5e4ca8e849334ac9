// What the main window counts of the plan.
#include "core/Überblick.h"

#include "core/Plätze.h"

#include "Prüfstand.h"

namespace altardienst {
namespace {

/// The period goes from Saturday, 28.11.2026, to Saturday, 26.12.2026.
class ÜberblickTest : public Prüfstand {
  protected:
    ÜberblickTest()
    {
        Konfig.StartDatum = Heute + 7;
        Konfig.Tage = 28;
    }

    static void Besetzen(int messe, int n, const Text &vorname, const Text &nachname)
    {
        Messe.DienerVor[messe][n] = vorname;
        Messe.DienerNach[messe][n] = nachname;
    }

    static Abschnitt Mit(const char *name)
    {
        for (const Abschnitt &einer : ÜberblickAbschnitte())
            if (einer.Name == name)
                return einer;
        ADD_FAILURE() << "no section " << name;
        return {};
    }
    static Text Sagt(const char *name) { return Mit(name).Inhalt; }
};

TEST_F(ÜberblickTest, ImLeerenPlanGibtEsNichtsZuZählen)
{
    const Überblick stand = ÜberblickZählen();
    EXPECT_EQ(stand.Messen, 0);
    EXPECT_EQ(stand.Dienerplätze.Alle(), 0);
    EXPECT_EQ(stand.Helferplätze.Alle(), 0);
    EXPECT_EQ(Sagt("Messen"), "keine Messen");
    EXPECT_EQ(Sagt("Plätze"), "");
    EXPECT_EQ(Sagt("Leute"), "0 Meßdiener, 0 Helfer");
}

TEST_F(ÜberblickTest, DieAbschnitteStehenInFesterFolge)
{
    std::vector<Text> namen;
    for (const Abschnitt &einer : ÜberblickAbschnitte())
        namen.push_back(einer.Name);
    EXPECT_EQ(namen, (std::vector<Text>{"Zeitraum", "Messen", "Plätze", "Leute"}));
}

TEST_F(ÜberblickTest, EinPlatzIstBesetztWennEinNameDarinSteht)
{
    const int messe = MesseMitDienern(Heute + 7, 4);
    Besetzen(messe, 1, "Anna", "Berg");
    Besetzen(messe, 2, "", "Berg");
    Besetzen(messe, 3, "Gruppe", "");
    const Überblick stand = ÜberblickZählen();
    EXPECT_EQ(stand.Dienerplätze.Besetzt, 3);
    EXPECT_EQ(stand.Dienerplätze.Offen, 1);
}

TEST_F(ÜberblickTest, NamenAußerhalbDerPlätzeZählenNicht)
{
    const int messe = MesseMitDienern(Heute + 7, 2);
    Besetzen(messe, 0, "Anna", "Berg"); // no slot
    Besetzen(messe, 3, "Ben", "Berg");  // a row that has disappeared
    EXPECT_EQ(ÜberblickZählen().Dienerplätze.Besetzt, 0);
    EXPECT_EQ(ÜberblickZählen().Dienerplätze.Offen, 2);
}

TEST_F(ÜberblickTest, MehrAlsZwanzigDienerHatKeineMesse)
{
    MesseMitDienern(Heute + 7, 25);
    MesseMitDienern(Heute + 7, -3);
    EXPECT_EQ(ÜberblickZählen().Dienerplätze.Offen, 20);
}

TEST_F(ÜberblickTest, VonDenHelfernZähltWasDieMesseWill)
{
    const int messe = MesseMitDienern(Heute + 7, 0);
    for (const Helferplatz &platz : Helferplätze)
        (Messe.*platz.Vor)[messe] = "Lea";
    EXPECT_EQ(ÜberblickZählen().Helferplätze.Alle(), 0);
    Messe.LektorZahl[messe] = 2;
    Messe.KollektZahl[messe] = 1;
    EXPECT_EQ(ÜberblickZählen().Helferplätze.Besetzt, 3);
    Messe.Lektor2Vor[messe] = "";
    EXPECT_EQ(ÜberblickZählen().Helferplätze.Besetzt, 2);
    EXPECT_EQ(ÜberblickZählen().Helferplätze.Offen, 1);
    Messe.Lektor2Nach[messe] = "Lang";
    EXPECT_EQ(ÜberblickZählen().Helferplätze.Besetzt, 3);
}

TEST_F(ÜberblickTest, DerZeitraumGehörtZuBeidenEnden)
{
    EXPECT_EQ(Sagt("Zeitraum"), "28.11.2026 bis 26.12.2026");
    for (const int tag : {6, 7, 35, 36})
        MesseMitDienern(Heute + tag, 1);
    EXPECT_EQ(ÜberblickZählen().ImZeitraum, 2);
    EXPECT_EQ(Sagt("Messen"), "4 Messen, 2 nicht im Zeitraum");
    Konfig.StartDatum = 0; // not set yet
    EXPECT_EQ(Sagt("Zeitraum"), "");
}

TEST_F(ÜberblickTest, MessenEinesAnderenZeitraumsFallenAuf)
{
    MesseMitDienern(Heute + 40, 1);
    EXPECT_EQ(Sagt("Messen"), "1 Messe, nicht im Zeitraum");
    MesseMitDienern(Heute + 7, 1);
    EXPECT_EQ(Sagt("Messen"), "2 Messen, 1 nicht im Zeitraum");
    Messe.Datum[0] = Heute + 8;
    EXPECT_EQ(Sagt("Messen"), "2 Messen");
    EXPECT_EQ(Mit("Messen").Erklärung, "vom 28.11.2026 bis 29.11.2026");
}

TEST_F(ÜberblickTest, PlätzeInEinemSatz)
{
    const int messe = MesseMitDienern(Heute + 7, 2);
    EXPECT_EQ(Sagt("Plätze"), "0 Plätze besetzt, 2 offen");
    Besetzen(messe, 1, "Anna", "Berg");
    EXPECT_EQ(Sagt("Plätze"), "1 Platz besetzt, 1 offen");
    Besetzen(messe, 2, "Ben", "Berg");
    EXPECT_EQ(Sagt("Plätze"), "alle 2 Plätze besetzt");
    Messe.LektorZahl[messe] = 1;
    EXPECT_EQ(Sagt("Plätze"), "2 Plätze besetzt, 1 offen");
    EXPECT_EQ(Mit("Plätze").Erklärung, "Meßdiener: 2 besetzt, 0 offen; Helfer: 0 besetzt, 1 offen");
}

TEST_F(ÜberblickTest, LeuteWieInIhrenFenstern)
{
    MeßdienerAnlegen("Anna", "Berg");
    MeßdienerAnlegen("Ben", "Berg");
    HelferAnlegen("Lea", "Lang", "Lektor");
    EXPECT_EQ(Sagt("Leute"), "2 Meßdiener, 1 Helfer");
}

TEST_F(ÜberblickTest, EineDateiKannMehrMessenBehauptenAlsEsGibt)
{
    Messe.Anzahl = 30000;
    EXPECT_EQ(ÜberblickZählen().Messen, 603);
    Messe.Anzahl = -1;
    EXPECT_EQ(ÜberblickZählen().Messen, 0);
    EXPECT_EQ(Sagt("Messen"), "keine Messen");
}

} // namespace
} // namespace altardienst
