// The services of each server and each helper through their windows.
#include "people/MeßdienerForm.h"
#include "statistics/StatDienstForm.h"
#include "statistics/StatHelferForm.h"
#include "statistics/Statistikstand.h"

#include <type_traits>

namespace altardienst {
namespace {

class DienstblattFormTest : public Statistikstand {
  protected:
    DienstblattFormTest()
    {
        Konfig.Schriftart = "Liberation Sans";
        Konfig.Schriftgröße = 10;
        Konfig.Überschriftgröße = 14;
        Konfig.RandLinks = 20;
        Konfig.RandOben = 15;
        Konfig.DiffJahr = 2;
        for (const char *vorname : {"Anna", "Ben", "Cara"})
            MeßdienerAnlegen(vorname, "Berg");
        HelferAnlegen("Lea", "Lang", "Lektor");
        HelferAnlegen("Max", "Moos", "Kantor");
        // Anna serves once in the first kind, twice in the second, up to six times.
        int wieOft = 0;
        for (const char *dienst :
             {"Gabenbereitung", "Leuchter", "Flambeau", "Weihrauch", "Kreuzträger", "Allgemein"}) {
            const int i = MesseMitDienern(DatumAus({2026, 11, 22}), 7);
            ++wieOft;
            for (int slot = 1; slot <= wieOft; ++slot)
                Einteilen(i, slot, "Anna", dienst);
        }
        Einteilen(0, 7, "Ben", "Leuchter");
        // Lea serves once, twice, three and four times.
        wieOft = 0;
        for (const auto &[vor, nach] : {std::pair(&Messe.Lektor1Vor, &Messe.Lektor1Nach),
                                        {&Messe.Komm1Vor, &Messe.Komm1Nach},
                                        {&Messe.Kantor1Vor, &Messe.Kantor1Nach},
                                        {&Messe.Kollekt1Vor, &Messe.Kollekt1Nach}}) {
            ++wieOft;
            for (int i = 0; i < wieOft; ++i) {
                (*vor)[i] = "Lea";
                (*nach)[i] = "Lang";
            }
        }
        Messe.Komm2Vor[5] = Messe.Kollekt1Vor[5] = "Max";
        Messe.Komm2Nach[5] = Messe.Kollekt1Nach[5] = "Moos";
    }

    static void Einteilen(int i, int slot, const char *vorname, const char *dienst)
    {
        Messe.DienerVor[i][slot] = vorname;
        Messe.DienerNach[i][slot] = "Berg";
        Messe.DienerDienst[i][slot - 1] = dienst;
    }

    Text Zeile(std::initializer_list<const char *> namen) const
    {
        Text zeile;
        for (const char *name : namen)
            zeile += (zeile.empty() ? "" : " ") + Zeigt(name);
        return zeile;
    }
    Text Diener() const { return Zeile({"V", "N", "G", "L", "F", "W", "K", "A", "I"}); }
    Text Helferzeile() const { return Zeile({"V1", "N1", "LE1", "KM1", "KN1", "KL1", "IN1"}); }
    Text Nummer(const char *name = "INDEXLEIN") const { return Zeigt(name); }
};

TEST_F(DienstblattFormTest, MeßdienerMitIhrenBeschriftungen)
{
    Öffnen<StatDienstForm>();
    EXPECT_EQ(Nummer(), "0");
    EXPECT_EQ(ZeileBis("V"), "Vorname|Anna");
    EXPECT_EQ(ZeileBis("N"), "Nachname|Berg");
    EXPECT_EQ(ZeileBis("G"), "Gabenbereitung|1");
    EXPECT_EQ(ZeileBis("L"), "Leuchter|2");
    EXPECT_EQ(ZeileBis("F"), "Flambeau|3");
    EXPECT_EQ(ZeileBis("W"), "Weihrauch|4");
    EXPECT_EQ(ZeileBis("K"), "Kreuzträger|5");
    EXPECT_EQ(ZeileBis("A"), "Allgemein|6");
    EXPECT_EQ(Diener(), "Anna Berg 1 2 3 4 5 6 21");
    EXPECT_EQ(ZeileBis("I"), "Insgesamt|21");
}

TEST_F(DienstblattFormTest, HelferMitIhrenBeschriftungen)
{
    Öffnen<StatHelferForm>();
    EXPECT_EQ(Nummer("Indexchen"), "0");
    EXPECT_EQ(ZeileBis("V1"), "Vorname|Lea");
    EXPECT_EQ(ZeileBis("N1"), "Nachname|Lang");
    EXPECT_EQ(ZeileBis("LE1"), "Lektor|1");
    EXPECT_EQ(ZeileBis("KM1"), "Kommunionhelfer|2");
    EXPECT_EQ(ZeileBis("KN1"), "Kantor|3");
    EXPECT_EQ(ZeileBis("KL1"), "Kollektant|4");
    EXPECT_EQ(ZeileBis("IN1"), "Insgesamt|10");
    Klick("PLUS");
    EXPECT_EQ(Nummer("Indexchen"), "1");
    EXPECT_EQ(Helferzeile(), "Max Moos 0 1 0 1 2");
    Klick("PLUS"); // stays at the last one
    EXPECT_EQ(Nummer("Indexchen"), "1");
    Klick("MINUS");
    EXPECT_EQ(Helferzeile(), "Lea Lang 1 2 3 4 10");
}

TEST_F(DienstblattFormTest, PlusUndMinusBleibenInDenSätzen)
{
    Öffnen<StatDienstForm>();
    Klick("MINUS");
    EXPECT_EQ(Nummer(), "0");
    Klick("PLUS");
    EXPECT_EQ(Diener(), "Ben Berg 0 1 0 0 0 0 1");
    Klick("PLUS");
    EXPECT_EQ(Diener(), "Cara Berg 0 0 0 0 0 0 0");
    Klick("PLUS");
    EXPECT_EQ(Nummer(), "2");
    Klick("MINUS");
    EXPECT_EQ(Nummer(), "1");
}

TEST_F(DienstblattFormTest, EineNummerAußerhalbFälltAufNull)
{
    Öffnen<StatDienstForm>();
    for (const char *zahl : {"3", "4", "99", "32767", "32768", "40000", "2,6"}) {
        Tippen("INDEXLEIN", "1");
        EXPECT_EQ(Zeigt("V"), "Ben");
        Tippen("INDEXLEIN", zahl);
        EXPECT_EQ(Nummer(), "0") << zahl;
        EXPECT_EQ(Zeigt("V"), "Anna") << zahl;
    }
    Tippen("INDEXLEIN", "2");
    EXPECT_EQ(Zeigt("V"), "Cara");
    Tippen("INDEXLEIN", "1,6"); // rounded to the last one
    EXPECT_EQ(Zeigt("V"), "Cara");
    delete form;
    Meßdiener.Anzahl = 2;
    Öffnen<StatDienstForm>();
    Einsetzen("INDEXLEIN", "1,6"); // rounded to the one after the last
    EXPECT_EQ(Nummer(), "0");
    EXPECT_EQ(Zeigt("V"), "Anna");
}

TEST_F(DienstblattFormTest, WasKeineNummerIstLäßtDieZeileStehen)
{
    Öffnen<StatDienstForm>();
    for (const char *text : {"", "x", "-1"}) {
        Tippen("INDEXLEIN", "1");
        Tippen("INDEXLEIN", text);
        EXPECT_EQ(Nummer(), text);
        EXPECT_EQ(Zeigt("V"), "Ben");
    }
    Tippen("INDEXLEIN", "x");
    Klick("PLUS");
    Klick("MINUS");
    EXPECT_EQ(Nummer(), "x");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(DienstblattFormTest, OhneMeßdienerBleibtDieZeileNull)
{
    Meßdiener.Anzahl = 0;
    Öffnen<StatDienstForm>();
    EXPECT_EQ(Nummer(), "0");
    EXPECT_EQ(Zeigt("V"), "Anna"); // the record after the last one, as it is
    Klick("PLUS");
    EXPECT_EQ(Nummer(), "0");
    Tippen("INDEXLEIN", "1");
    EXPECT_EQ(Nummer(), "0");
    delete form;
    Helfer.Anzahl = 0;
    Öffnen<StatHelferForm>();
    EXPECT_EQ(Nummer("Indexchen"), "0");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(DienstblattFormTest, ZuVieleSätzeSindEinFehler)
{
    Messe.Anzahl = 603;
    EXPECT_EQ(Scheitert<StatDienstForm>(),
              "Laufzeitfehler '9': Index außerhalb des gültigen Bereichs");
    EXPECT_EQ(Scheitert<StatHelferForm>(),
              "Laufzeitfehler '9': Index außerhalb des gültigen Bereichs");
}

TEST_F(DienstblattFormTest, MeßdienerlisteAufPapier)
{
    Öffnen<StatDienstForm>();
    EXPECT_EQ(Zeigt("Druckern"), "Drucken");
    Messe.DienerVor[0][1] = "Cara"; // after the window opened
    Klick("Druckern");
    const Text papier = PdfText(datei);
    for (const char *zeile : {"Statistik Meßdiener mit Anzahl Dienste",
                              "Anna Berg , G.: 1 , L.: 2 , F.: 3 , W.: 4 , K.: 5 , A.: 6 , I.: 21",
                              "Ben Berg , G.: 0 , L.: 1 , F.: 0 , W.: 0 , K.: 0 , A.: 0 , I.: 1",
                              "Cara Berg , G.: 0 , L.: 0 , F.: 0 , W.: 0 , K.: 0 , A.: 0 , I.: 0",
                              "G: Gabenbereitung, L: Leuchter, F: Flambeau, W: Weihrauch",
                              "K: Kreuzträger, A: Allgemein, I: Insgesamt"})
        EXPECT_NE(papier.find(zeile), Text::npos) << zeile << "\n" << papier;
    const PdfInhalt pdf = PdfLesen(datei);
    ASSERT_EQ(pdf.Seiten.size(), 1U);
    EXPECT_GT(pdf.Seiten[0].Breite, pdf.Seiten[0].Höhe); // as set for the lists of people
}

TEST_F(DienstblattFormTest, HelferlisteAufPapier)
{
    Öffnen<StatHelferForm>();
    EXPECT_EQ(Zeigt("Dluckeln"), "Drucken");
    Messe.Lektor1Vor[0] = "Max"; // after the window opened
    Klick("Dluckeln");
    const Text papier = PdfText(datei);
    for (const char *zeile : {"Statistik Helfer mit Anzahl Dienste",
                              "Lea Lang , Lektor: 1 , Kommunion: 2 , Kantor: 3 , Kollek.: 4",
                              "Max Moos , Lektor: 0 , Kommunion: 1 , Kantor: 0 , Kollek.: 1"})
        EXPECT_NE(papier.find(zeile), Text::npos) << zeile << "\n" << papier;
}

TEST_F(DienstblattFormTest, OhneGewählteAusrichtungKommtKeinPapier)
{
    Konfig.DiffJahr = 0;
    Öffnen<StatDienstForm>();
    Klick("Druckern");
    delete form;
    Öffnen<StatHelferForm>();
    Klick("Dluckeln");
    EXPECT_FALSE(std::filesystem::exists(datei.toStdString()));
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(DienstblattFormTest, DieDiensteFolgenEinemNeuenNamenNurBeiEnde)
{
    const auto umbenennen = [&](const char *name, const std::function<void()> &weg) {
        Meßdiener.Cursor = 1;
        Öffnen<MeßdienerForm>();
        Einsetzen("Vornamen", name);
        SchließtMit(weg);
        Öffnen<StatDienstForm>();
        Klick("PLUS");
        EXPECT_EQ(Zeigt("V"), name);
        const Text insgesamt = Zeigt("I");
        SchließtMit([&] { form->close(); });
        return insgesamt;
    };
    EXPECT_EQ(umbenennen("Bernd", [&] { Klick("Ende"); }), "1");
    EXPECT_EQ(umbenennen("Bodo", [&] { form->close(); }), "0");
}

TEST_F(DienstblattFormTest, Ordnung)
{
    const auto prüfen = [&]<class Form>(std::type_identity<Form>, const char *name,
                                        const char *titel, const std::vector<Text> &tabfolge) {
        Öffnen<Form>();
        EXPECT_EQ(form->objectName().toStdString(), name);
        EXPECT_EQ(form->windowTitle().toStdString(), titel);
        EXPECT_EQ(Zeigt("Ende"), "Ende");
        IstOrdentlich(tabfolge);
        SchließtMit([&] { Klick("Ende"); });
        Öffnen<Form>();
        SchließtMit([&] { form->close(); });
    };
    prüfen(std::type_identity<StatDienstForm>(), "StatDienst", "Statistik Dienste Meßdiener",
           {"INDEXLEIN", "Druckern", "Ende"});
    prüfen(std::type_identity<StatHelferForm>(), "StatHelfer", "Statistik Dienste Helfer",
           {"Indexchen", "Dluckeln", "Ende"});
}

} // namespace
} // namespace altardienst
