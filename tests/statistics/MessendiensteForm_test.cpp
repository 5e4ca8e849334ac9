// The three windows of totals: services of servers, of helpers, and those that the helpers offer.
#include "statistics/StatMeßdienstForm.h"
#include "statistics/StatistikAllgForm.h"
#include "statistics/StatistikHelferForm.h"
#include "statistics/Statistikstand.h"

namespace altardienst {
namespace {

class MessendiensteFormTest : public Statistikstand {
  protected:
    static int NeueMesse() { return MesseMitDienern(DatumAus({2026, 11, 22}), 5); }

    /// Two masses with 7 + 14 services, a different count for each kind, four servers.
    static void Meßdienerplan()
    {
        int i = NeueMesse();
        Messe.Gabenbereitung[i] = 4;
        Messe.Leuchter[i] = 1;
        Messe.Allgemein[i] = 2;
        i = NeueMesse();
        Messe.Gabenbereitung[i] = 2;
        Messe.Leuchter[i] = 2;
        Messe.Flambeau[i] = 4;
        Messe.Weihrauch[i] = 2;
        Messe.Kreuzträger[i] = 1;
        Messe.Allgemein[i] = 3;
        for (int k = 0; k < 4; ++k)
            MeßdienerAnlegen("Anna", "Berg");
    }

    static void Helferplan()
    {
        int i = NeueMesse();
        Messe.LektorZahl[i] = 2;
        Messe.KommZahl[i] = 1;
        i = NeueMesse();
        Messe.LektorZahl[i] = 1;
        Messe.KollektZahl[i] = 2;
        for (int k = 0; k < 4; ++k)
            HelferAnlegen("Lea", "Lang", "Lektor", "Kantor");
        Helfer.Dienst2[3] = "Kollektant";
        Helfer.Dienst2[2] = "";
    }
};

TEST_F(MessendiensteFormTest, Meßdiener)
{
    Meßdienerplan();
    Öffnen<StatMeßdienstForm>();
    EXPECT_EQ(Kopf("MGges"), "Insgesamt");
    EXPECT_EQ(Kopf("MGMes"), "pro Messe");
    EXPECT_EQ(ZeileBis("MGMes"), "Gabenbereitung|6|3,000");
    EXPECT_EQ(ZeileBis("MLMes"), "Leuchter|3|1,500");
    EXPECT_EQ(ZeileBis("MFMes"), "Flambeau|4|2,000");
    EXPECT_EQ(ZeileBis("MWMes"), "Weihrauch|2|1,000");
    EXPECT_EQ(ZeileBis("MKMes"), "Kreuzträger|1|0,500");
    EXPECT_EQ(ZeileBis("MAMes"), "Allgemein|5|2,500");
    EXPECT_EQ(ZeileBis("DMges"), "Dienste Meßdiener gesamt|021,0"); // at least three digits
    EXPECT_EQ(ZeileBis("DMm"), "Dienste je Messe|10,500");          // 21 / 2
    EXPECT_EQ(ZeileBis("DjM"), "Dienste je Meßdiener|5,250");       // 21 / 4
    EXPECT_EQ(form->findChild<QGroupBox *>()->title(), "Meßdienerdienste");
    EXPECT_EQ(Köpfe(), (std::vector<Text>{"Messendienst", "Insgesamt", "pro Messe"}));
}

TEST_F(MessendiensteFormTest, TausendDiensteStehenInGruppen)
{
    for (int k = 0; k < 600; ++k)
        Messe.Allgemein[NeueMesse()] = 20;
    MeßdienerAnlegen("Anna", "Berg");
    Öffnen<StatMeßdienstForm>();
    EXPECT_EQ(Zeigt("MAges"), "12000");
    EXPECT_EQ(Zeigt("DMges"), "12.000,0");
    EXPECT_EQ(Zeigt("DjM"), "12.000,000");
    delete form;
    for (int i = 0; i < 600; ++i)
        Messe.LektorZahl[i] = Messe.KommZahl[i] = Messe.KantorZahl[i] = Messe.KollektZahl[i] = 2;
    HelferAnlegen("Lea", "Lang", "Lektor");
    Öffnen<StatistikHelferForm>();
    EXPECT_EQ(Zeigt("DHI"), "4800");
    EXPECT_EQ(Zeigt("DHM"), "8,000");
    EXPECT_EQ(Zeigt("DHH"), "4.800,000");
}

TEST_F(MessendiensteFormTest, OhneMessenSindAlleNull)
{
    Öffnen<StatMeßdienstForm>();
    EXPECT_EQ(ZeileBis("MGMes"), "Gabenbereitung|0|0,000");
    EXPECT_EQ(Zeigt("DMges"), "000,0");
    EXPECT_EQ(Zeigt("DMm"), "0,000");
    EXPECT_EQ(Zeigt("DjM"), "0,000");
    delete form;
    Öffnen<StatistikHelferForm>();
    EXPECT_EQ(ZeileBis("LL2"), "Lektor|0|0,00%");
    EXPECT_EQ(Zeigt("DHI"), "0");
    EXPECT_EQ(Zeigt("DHM"), "0,000");
    EXPECT_EQ(Zeigt("DHH"), "0,000");
    delete form;
    Öffnen<StatistikAllgForm>();
    EXPECT_EQ(ZeileBis("Le2"), "Lektor|0|0,00%");
    EXPECT_EQ(ZeileBis("I2"), "Insgesamt|0|0,00%");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(MessendiensteFormTest, DiensteOhneLeuteDivisionDurchNull)
{
    Meßdienerplan();
    Helferplan();
    Meßdiener.Anzahl = 0;
    Helfer.Anzahl = 0;
    EXPECT_EQ(Scheitert<StatMeßdienstForm>(), "Laufzeitfehler '11': Division durch Null");
    EXPECT_EQ(Scheitert<StatistikHelferForm>(), "Laufzeitfehler '11': Division durch Null");
    EXPECT_EQ(GezeigteMeldungen.size(), 2U);
}

TEST_F(MessendiensteFormTest, Helfer)
{
    Helferplan();
    Öffnen<StatistikHelferForm>();
    EXPECT_EQ(Kopf("LL1"), "Insgesamt");
    EXPECT_EQ(Kopf("LL2"), "pro Messe");
    EXPECT_EQ(ZeileBis("LL2"), "Lektor|3|50,00%"); // 3 / 6
    EXPECT_EQ(ZeileBis("KOR2"), "Kommunionhelfer|1|16,67%");
    EXPECT_EQ(ZeileBis("KAR2"), "Kantor|0|0,00%");
    EXPECT_EQ(ZeileBis("KLR2"), "Kollektor|2|33,33%");
    EXPECT_EQ(ZeileBis("DHI"), "Dienste Helfer insgesamt|6");
    EXPECT_EQ(ZeileBis("DHM"), "Dienste je Messe|3,000");  // 6 / 2
    EXPECT_EQ(ZeileBis("DHH"), "Dienste je Helfer|1,500"); // 6 / 4
    EXPECT_EQ(form->findChild<QGroupBox *>()->title(), "Helferdienste");
    EXPECT_EQ(Köpfe(), (std::vector<Text>{"Messendienst", "Insgesamt", "pro Messe"}));
}

TEST_F(MessendiensteFormTest, Angebot)
{
    Helferplan();
    Öffnen<StatistikAllgForm>();
    EXPECT_EQ(ZeileBis("DD1"), "Dienste der Helfer in Verteilung am|21.11.2026");
    EXPECT_EQ(Köpfe(), (std::vector<Text>{"Dienste", "Anzahl Wert", "Anzahl Prozentual"}));
    EXPECT_EQ(Kopf("LE1"), "Anzahl Wert");
    EXPECT_EQ(Kopf("Le2"), "Anzahl Prozentual");
    EXPECT_EQ(ZeileBis("Le2"), "Lektor|4|57,14%"); // 4 / 7
    EXPECT_EQ(ZeileBis("Kom2"), "Kommunionhelfer|0|0,00%");
    EXPECT_EQ(ZeileBis("Ka2"), "Kantor|2|28,57%");
    EXPECT_EQ(ZeileBis("Kol2"), "Kollektant|1|14,29%");
    EXPECT_EQ(ZeileBis("I2"), "Insgesamt|7|100,00%");
}

TEST_F(MessendiensteFormTest, AlleDreiDruckenSichOhneKnöpfe)
{
    Meßdienerplan();
    Helferplan();
    const auto drucken = [&](const Text &etwas) {
        Klick("Druck");
        const Text papier = PdfText(datei);
        EXPECT_NE(papier.find(etwas), Text::npos) << papier;
        EXPECT_EQ(papier.find("Ende"), Text::npos);
        EXPECT_EQ(papier.find("Drucken"), Text::npos);
    };
    Öffnen<StatMeßdienstForm>();
    drucken("Dienste Meßdiener gesamt");
    Öffnen<StatistikHelferForm>();
    drucken("Kollektor");
    Öffnen<StatistikAllgForm>();
    drucken("Dienste der Helfer in Verteilung am 21.11.2026");
}

TEST_F(MessendiensteFormTest, AbbrechenDrucktNichts)
{
    Öffnen<StatistikAllgForm>();
    abgebrochen = true;
    Klick("Druck");
    EXPECT_FALSE(std::filesystem::exists(datei.toStdString()));
    EXPECT_TRUE(Finden("Druck")->isVisible());
}

template <class Form> struct Fensterbeschreibung {
    using Typ = Form;
};

TEST_F(MessendiensteFormTest, Ordnung)
{
    Meßdienerplan();
    Helferplan();
    const auto prüfen = [&]<class Form>(Fensterbeschreibung<Form>, const char *name,
                                        const char *titel, const char *ende) {
        Öffnen<Form>();
        EXPECT_EQ(form->objectName().toStdString(), name);
        EXPECT_EQ(form->windowTitle().toStdString(), titel);
        EXPECT_EQ(Zeigt(ende), "Ende");
        IstOrdentlich({ende, "Druck"});
        SchließtMit([&] { Klick(ende); });
        Öffnen<Form>();
        SchließtMit([&] { form->close(); });
    };
    prüfen(Fensterbeschreibung<StatMeßdienstForm>(), "StatMeßdienst", "Statistik Messendienst",
           "Ende");
    prüfen(Fensterbeschreibung<StatistikHelferForm>(), "StatistikHelfer",
           "Statistik Helferdienste Messe", "Ende");
    prüfen(Fensterbeschreibung<StatistikAllgForm>(), "StatistikAllg", "Statistik Helfer allgemein",
           "Ente");
}

TEST_F(MessendiensteFormTest, DieSpaltenDerZahlenSindGleichBreit)
{
    Öffnen<StatistikAllgForm>();
    EXPECT_NEAR(Finden("LE1")->width(), Finden("Le2")->width(), 1);
    Öffnen<StatistikHelferForm>();
    EXPECT_NEAR(Finden("LL1")->width(), Finden("LL2")->width(), 1);
}

} // namespace
} // namespace altardienst
