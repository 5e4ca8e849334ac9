// The lists of services per person, operation by operation.
#include "statistics/Dienstlisten.h"

#include "printing/Druckstand.h"

#include <algorithm>
#include <functional>

namespace altardienst {
namespace {

class DienstlistenTest : public Druckstand {
  protected:
    /// The heading of a page: plain, with its empty line wherever the cursor is.
    static void Kopf(Ablauf &ablauf, const Text &titel)
    {
        for (const char *operation :
             {"FontSize 10", "FontName Liberation Sans", "FontBold aus", "FontItalic aus",
              "FontStrikethru aus", "FontUnderline aus", "FontSize 14", "CurrentY 600"})
            ablauf.Tut(operation);
        ablauf.Zeile(titel).Leerzeile().Tut("FontSize 10");
    }
    static void Schluß(Ablauf &ablauf, const std::vector<Text> &legende)
    {
        ablauf.Leerzeile().Mehrere(legende);
        ablauf.Tut("NewPage").Tut("EndDoc").Tut("Orientation 1");
    }

    const Text Diener = "Statistik Meßdiener mit Anzahl Dienste";
    const std::vector<Text> Legende = {"G: Gabenbereitung, L: Leuchter, F: Flambeau, W: Weihrauch",
                                       "K: Kreuzträger, A: Allgemein, I: Insgesamt"};
    const Text NullenA = " , G.:  0  , L.: 0  , F.: 0  , W.: 0  , K.: 0  , A.: 0  , I.: 0 ";
};

TEST_F(DienstlistenTest, Meßdiener)
{
    MeßdienerAnlegen("Anna", "Berg");
    MeßdienerAnlegen("Jörg", "Groß");
    Meßdienerzählung zählung;
    zählung[0] = {"Anna", "Berg", {1, 2, 3, 4, 5, 12}};
    zählung[1] = {"Jörg", "Groß", {}};
    MeßdienerdiensteDrucken(zählung);
    Ablauf ablauf;
    ablauf.Tut("Dialog").Tut("Orientation 2");
    Kopf(ablauf, Diener);
    ablauf.Zeile("Anna Berg , G.:  1  , L.: 2  , F.: 3  , W.: 4  , K.: 5  , A.: 12  , I.: 27 ");
    ablauf.Zeile("Jörg Groß" + NullenA);
    Schluß(ablauf, Legende);
    EXPECT_EQ(Papier.Zeilen, ablauf.Zeilen);
    EXPECT_FALSE(Papier.Anfrage.HatZweiFormen());
}

TEST_F(DienstlistenTest, Helfer)
{
    HelferAnlegen("Lea", "Lang", "Lektor");
    Helferzählung zählung;
    zählung[0] = {"Lea", "Lang", {1, 20, 0, 3}};
    HelferdiensteDrucken(zählung);
    Ablauf ablauf;
    ablauf.Tut("Dialog").Tut("Orientation 2");
    Kopf(ablauf, "Statistik Helfer mit Anzahl Dienste");
    ablauf.Zeile("Lea Lang , Lektor: 1 , Kommunion: 20 , Kantor: 0 , Kollek.: 3 ");
    Schluß(ablauf, {});
    EXPECT_EQ(Papier.Zeilen, ablauf.Zeilen);
}

TEST_F(DienstlistenTest, BeideDruckenInDerGewähltenAusrichtung)
{
    Meßdienerzählung diener;
    Helferzählung helfer;
    for (const int ausrichtung : {1, 2}) {
        Konfig.DiffJahr = ausrichtung;
        for (const auto &drucken : std::vector<std::function<void()>>{
                 [&] { MeßdienerdiensteDrucken(diener); }, [&] { HelferdiensteDrucken(helfer); }}) {
            Papier.Leeren();
            drucken();
            EXPECT_EQ(Papier.Zeilen.at(1), "Orientation " + std::to_string(ausrichtung));
        }
    }
}

TEST_F(DienstlistenTest, NachDemSeitenwechselKommtDerKopfWieder)
{
    for (int k = 0; k < 7; ++k)
        MeßdienerAnlegen("Anna", "Berg");
    Meßdienerzählung zählung;
    for (int k = 0; k < 7; ++k)
        zählung[k] = {"Anna", "Berg", {}};
    // Lines of 240 below 600. After line 1 the estimate is 1320 * (2 + 4) / 2 = 3960, after line 2
    // 1560 * 7 / 3 = 3640, after line 3 1800 * 8 / 4 = 3600, after line 4 2040 * 9 / 5 = 3672.
    Papier.Seitenhöhe = 3600 + 600; // the lower limit at 3600
    MeßdienerdiensteDrucken(zählung);
    EXPECT_EQ(Papier.WieOft("NewPage"), 8); // each first line already breaks
    EXPECT_EQ(Papier.WieOft("Print \"" + Diener + "\""), 7);

    Papier.Leeren();
    Papier.Seitenhöhe =
        3960 + 600; // after line 5 2280 * 10 / 6 = 3800, line 6 2520 * 11 / 7 = 3960
    MeßdienerdiensteDrucken(zählung);
    EXPECT_EQ(Papier.WieOft("Print \"" + Diener + "\""), 1); // after line 7 2760 * 12 / 8 = 4140
    Ablauf ende;
    ende.Zeile("Anna Berg" + NullenA).Tut("NewPage").Tut("CurrentY 600");
    Schluß(ende, Legende);
    EXPECT_TRUE(
        std::ranges::equal(ende.Zeilen, std::vector(Papier.Zeilen.end() - std::ssize(ende.Zeilen),
                                                    Papier.Zeilen.end())));
}

TEST_F(DienstlistenTest, DerKopfStehtAufJederSeiteInSeinenBeidenGrößen)
{
    Meßdienerzählung zählung;
    for (int k = 0; k < 3; ++k) {
        MeßdienerAnlegen("Anna", "Berg");
        zählung[k] = {"Anna", "Berg", {}};
    }
    Papier.Seitenhöhe = 3600 + 600; // a page for each line
    MeßdienerdiensteDrucken(zählung);
    const auto erste = std::find(Papier.Zeilen.begin(), Papier.Zeilen.end(), "NewPage");
    const auto zweite = std::find(erste + 1, Papier.Zeilen.end(), "NewPage");
    Ablauf seite;
    seite.Tut("NewPage").Tut("CurrentY 600");
    Kopf(seite, Diener);
    seite.Zeile("Anna Berg" + NullenA);
    EXPECT_EQ(std::vector(erste, zweite), seite.Zeilen);
}

TEST_F(DienstlistenTest, EineZeileWenigerUndDieSeiteReicht)
{
    for (int k = 0; k < 6; ++k)
        MeßdienerAnlegen("Anna", "Berg");
    Meßdienerzählung zählung;
    Papier.Seitenhöhe = 3960 + 600;
    MeßdienerdiensteDrucken(zählung);
    EXPECT_EQ(Papier.WieOft("NewPage"), 1);
    Papier.Leeren();
    Papier.Seitenhöhe = 3959 + 600; // less than the estimate after line 1
    MeßdienerdiensteDrucken(zählung);
    EXPECT_GT(Papier.WieOft("NewPage"), 1);
}

TEST_F(DienstlistenTest, OhneMeßdienerBleibtDieLegende)
{
    Meßdienerzählung zählung;
    MeßdienerdiensteDrucken(zählung);
    Ablauf ablauf;
    ablauf.Tut("Dialog").Tut("Orientation 2");
    Schluß(ablauf, Legende);
    EXPECT_EQ(Papier.Zeilen, ablauf.Zeilen);
}

TEST_F(DienstlistenTest, AbbrechenUndDruckerfehlerEndenOhneEinWort)
{
    MeßdienerAnlegen("Anna", "Berg");
    HelferAnlegen("Lea", "Lang", "Lektor");
    Meßdienerzählung diener;
    Helferzählung helfer;
    Papier.Antwort.reset();
    MeßdienerdiensteDrucken(diener);
    HelferdiensteDrucken(helfer);
    EXPECT_EQ(Papier.Zeilen, (std::vector<Text>{"Dialog", "Dialog"}));
    Papier.Leeren();
    Papier.Antwort = 0;
    Papier.FehlerBei = 5;
    MeßdienerdiensteDrucken(diener);
    EXPECT_EQ(Papier.Zeilen.back(), "Verwerfen");
    EXPECT_EQ(Papier.WieOft("EndDoc"), 0);
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

} // namespace
} // namespace altardienst
