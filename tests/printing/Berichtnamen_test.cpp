// How each report introduces itself to the print dialog.
#include "printing/Druckstand.h"

#include "anniversaries/JubiGebuDruck.h"
#include "printing/Aufnahmebestätigung.h"
#include "printing/Erfassungsbogen.h"
#include "printing/Etikettendruck.h"
#include "printing/Listen.h"
#include "printing/PlanZeilen.h"
#include "printing/Plandruck.h"
#include "statistics/Dienstlisten.h"

namespace altardienst {
namespace {

class BerichtnamenTest : public Druckstand {
  protected:
    Text Name(const std::function<void()> &drucken)
    {
        Papier.Anfrage = {};
        drucken();
        return Papier.Anfrage.Name;
    }
    Text Etiketten(const Etikettenleute &leute)
    {
        return Name([&] { EtikettenDrucken(leute, [] { return Etikettenplatz{1, 1}; }); });
    }
};

TEST_F(BerichtnamenTest, JederBerichtHatSeinenNamen)
{
    Meßdienerzählung diener;
    Helferzählung helfer;
    EXPECT_EQ(Name(PlanDrucken), "Altardienst");
    EXPECT_EQ(Name(StandardmessenDrucken), "Standardmessen");
    EXPECT_EQ(Name(AlleMeßdienerDrucken), "Meßdienerliste");
    EXPECT_EQ(Name([] { MeßdienergruppeDrucken("Große"); }), "Meßdienerliste Große");
    EXPECT_EQ(Name(WunschpartnerlisteDrucken), "Wunschpartnerliste");
    EXPECT_EQ(Name(AlleHelferDrucken), "Helferliste");
    EXPECT_EQ(Name([] { ErfassungsbogenMeßdienerDrucken("", ""); }), "Erfassungsbogen Meßdiener");
    EXPECT_EQ(Name([] { ErfassungsbogenHelferDrucken("", ""); }), "Erfassungsbogen Helfer");
    EXPECT_EQ(Name(EtikettengrößenDrucken), "Etikettengrößen");
    EXPECT_EQ(Name([] {
                  Aufnahme aufnahme;
                  aufnahme.Vorname = "Anna";
                  aufnahme.Nachname = "Berg";
                  AufnahmebestätigungDrucken(aufnahme);
              }),
              "Aufnahmebestätigung Anna Berg");
    EXPECT_EQ(Name([] { GeburtstageDrucken(Gruppende::Messdien, 3); }), "Geburtstage März");
    EXPECT_EQ(Name([] { JubiläenDrucken(10); }), "Jubiläen 10 Jahre");
    EXPECT_EQ(Name([&] { MeßdienerdiensteDrucken(diener); }), "Dienste der Meßdiener");
    EXPECT_EQ(Name([&] { HelferdiensteDrucken(helfer); }), "Dienste der Helfer");
}

TEST_F(BerichtnamenTest, EtikettenNachDenLeuten)
{
    EXPECT_EQ(Etiketten(EtikettenAllerMeßdiener()), "Etiketten Meßdiener");
    EXPECT_EQ(Etiketten(EtikettenDerGruppe("Große")), "Etiketten Große");
    EXPECT_EQ(Etiketten(EtikettenAllerHelfer()), "Etiketten Helfer");
    EXPECT_EQ(Etiketten(EtikettenDerGeburtstage()), "Etiketten Geburtstage");
    EXPECT_EQ(Etiketten(EtikettenDerJubiläen()), "Etiketten Jubiläen");
}

TEST_F(BerichtnamenTest, DerPlanHeißtNachSeinemErstenTag)
{
    EXPECT_EQ(PlanDateiname(), "Altardienst 2026-11-21") << "today, without masses";
    MesseMitDienern(Heute + 9, 1);
    MesseMitDienern(Heute + 7, 1); // not in order
    MesseMitDienern(Heute + 14, 1);
    PlanDrucken();
    EXPECT_EQ(Papier.Anfrage.Dateiname, "Altardienst 2026-11-28");
    Messe.Datum[1] = 0; // an empty mass at the end of the list
    EXPECT_EQ(PlanDateiname(), "Altardienst 2026-11-30");
}

TEST_F(BerichtnamenTest, EinUnmöglichesDatumVerhindertDenDruckNicht)
{
    MesseMitDienern(Heute, 1);
    Messe.Datum[0] = 1e9;
    EXPECT_EQ(PlanDateiname(), "Altardienst 2026-11-21");
    Messe.Anzahl = 30000;
    EXPECT_EQ(PlanDateiname(), "Altardienst 2026-11-21");
}

} // namespace
} // namespace altardienst
