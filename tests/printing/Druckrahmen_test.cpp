// The frame of all reports: margins, opening, lines, the page break rule, cancel and failures.
#include "printing/Druckrahmen.h"

#include "printing/Druckstand.h"
#include "printing/Druckwerte.h"

namespace altardienst {
namespace {

using Zeilenliste = std::vector<Text>;

class DruckrahmenTest : public Druckstand {};

TEST_F(DruckrahmenTest, RänderSindMillimeterMalSkalaInEinfacherGenauigkeit)
{
    Konfig.XSkala = 56.6857F;
    Konfig.YSkala = 56.7F;
    Konfig.RandLinks = 21;
    Konfig.RandOben = 17;
    Konfig.RandUnten = 13;
    EXPECT_EQ(LinkerRand(), 21 * 56.6857F);
    EXPECT_EQ(ObererRand(), 17 * 56.7F);
    EXPECT_EQ(UntereGrenze(), 16838 - 13 * 56.7F);
    Papier.Seitenhöhe = 11906;
    EXPECT_EQ(UntereGrenze(), 11906 - 13 * 56.7F);
}

TEST_F(DruckrahmenTest, RänderGehenJedesMalNeuAusDenEinstellungenHervor)
{
    ZeileDrucken("a");
    Konfig.RandLinks = 30;
    ZeileDrucken("b");
    EXPECT_EQ(Papier.Zeilen,
              (Zeilenliste{"CurrentX 1000", "Print \"a\"", "CurrentX 1500", "Print \"b\""}));
}

TEST_F(DruckrahmenTest, EröffnungInIhrerReihenfolge)
{
    BerichtEröffnen({"Titel", "", "zweite Zeile"});
    EXPECT_EQ(Papier.Zeilen,
              (Zeilenliste{"FontSize 14", "FontName Liberation Sans", "FontBold an",
                           "FontItalic aus", "FontStrikethru aus", "FontUnderline an",
                           "CurrentY 600", "CurrentX 1000", "Print \"Titel\"", "CurrentX 1000",
                           "Print \"\"", "CurrentX 1000", "Print \"zweite Zeile\"", "CurrentX 1000",
                           "Print \"\"", "FontSize 10", "FontBold aus", "FontUnderline aus"}));
}

TEST_F(DruckrahmenTest, GrundschriftIstOhneAuszeichnung)
{
    Grundschrift();
    EXPECT_EQ(Papier.Zeilen,
              (Zeilenliste{"FontSize 10", "FontName Liberation Sans", "FontBold aus",
                           "FontItalic aus", "FontStrikethru aus", "FontUnderline aus"}));
}

TEST_F(DruckrahmenTest, LeerzeileSetztDenLinkenRandNicht)
{
    Leerzeile();
    EXPECT_EQ(Papier.Zeilen, Zeilenliste{"Print \"\""});
}

// The cursor is at 4000 after 4 lines: 1000 per line, so 6 lines in all reach 6000.
TEST_F(DruckrahmenTest, SeiteBleibtWennDieSchätzungDieGrenzeGenauTrifft)
{
    Drucker->CurrentY(4000);
    Papier.Seitenhöhe = 6000 + 600;
    Int16 Zeilen = 4;
    SeitePrüfen(Zeilen, 2);
    EXPECT_EQ(Papier.Zeilen, Zeilenliste{"CurrentY 4000"});
    EXPECT_EQ(Zeilen, 4);
    EXPECT_EQ(Papier.CurrentY(), 4000);
}

TEST_F(DruckrahmenTest, SeiteWechseltSobaldDieSchätzungDieGrenzeÜberschreitet)
{
    Drucker->CurrentY(4000);
    Papier.Seitenhöhe = 6000 + 600 - 1;
    Int16 Zeilen = 4;
    SeitePrüfen(Zeilen, 2);
    EXPECT_EQ(Papier.Zeilen, (Zeilenliste{"CurrentY 4000", "NewPage", "CurrentY 600"}));
    EXPECT_EQ(Zeilen, 0);
}

TEST_F(DruckrahmenTest, HalbeZeilenZählenMit)
{
    for (const int unterschied : {0, 1}) {
        Drucker->CurrentY(4000);
        Papier.Seitenhöhe = static_cast<Single>(6500 + 600 - unterschied);
        Int16 Zeilen = 4;
        SeitePrüfen(Zeilen, 2.5);
        EXPECT_EQ(Papier.WieOft("NewPage"), unterschied);
    }
}

TEST_F(DruckrahmenTest, DieSchätzungFolgtDerSchriftUndNichtDenMillimetern)
{
    for (const Single höhe : {240.0F, 480.0F}) { // twice the font size, half the lines
        Papier.Leeren();
        Papier.Zeilenhöhe = höhe;
        Int16 Zeilen;
        int gedruckt = 0;
        while (Papier.WieOft("NewPage") == 0) {
            ZeileDrucken("x");
            ++gedruckt;
            ++Zeilen;
            SeitePrüfen(Zeilen, 1);
        }
        EXPECT_EQ(gedruckt, static_cast<int>((16838 - 600) / höhe));
    }
}

TEST_F(DruckrahmenTest, OhneGezählteZeileIstDiePrüfungEinFehler)
{
    Int16 Zeilen;
    EXPECT_EQ(NummerDesFehlers([&] { SeitePrüfen(Zeilen, 2); }), 11);
    EXPECT_EQ(Papier.Zeilen, Zeilenliste{});
}

TEST_F(DruckrahmenTest, AbbruchImDialogEndetVorJederAusgabe)
{
    Papier.Antwort = std::nullopt;
    BerichtDrucken({}, [](int) { ADD_FAILURE() << "the report ran"; });
    EXPECT_EQ(Papier.Zeilen, Zeilenliste{"Dialog"});
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(DruckrahmenTest, DerBerichtErfährtDenModus)
{
    for (const int modus : {0, 1, 7}) {
        Papier.Antwort = modus;
        int gesehen = -1;
        BerichtDrucken({}, [&](int m) { gesehen = m; });
        EXPECT_EQ(gesehen, modus);
    }
}

TEST_F(DruckrahmenTest, EinFehlerBeendetDenBerichtStill)
{
    BerichtDrucken({}, [](int) {
        Drucker->Print("a");
        throw Laufzeitfehler(Laufzeitfehler::Druckerfehler);
    });
    EXPECT_EQ(Papier.Zeilen, (Zeilenliste{"Dialog", "Print \"a\"", "Verwerfen"}));
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(DruckrahmenTest, EinFehlerSchonImDialogIstAuchStill)
{
    Papier.FehlerBei = 1;
    BerichtDrucken({}, [](int) { ADD_FAILURE() << "the report ran"; });
    EXPECT_EQ(Papier.Zeilen, (Zeilenliste{"Dialog", "Verwerfen"}));
}

TEST(Drucker, OhneDruckerIstJederDialogWieAbgebrochen)
{
    EXPECT_EQ(Drucker->Dialog({}), std::nullopt);
    BerichtDrucken({}, [](int) { ADD_FAILURE() << "the report ran"; });
}

TEST(Druckwerte, ZahlenMitVorzeichenstelleUndBlankDahinter)
{
    EXPECT_EQ(Druckzahl(0), " 0 ");
    EXPECT_EQ(Druckzahl(43217), " 43217 ");
    EXPECT_EQ(Druckzahl(-3), "-3 ");
}

TEST(Druckwerte, DatumInKurzerFormMitBlankDahinter)
{
    EXPECT_EQ(Druckdatum(DatumAus({2026, 3, 7})), "07.03.2026 ");
    EXPECT_EQ(Druckdatum(ZeitAus(9 * 3600)), "09:00:00 ");
    EXPECT_EQ(Druckdatum(0), "00:00:00 ");
}

TEST(Druckwerte, MaßeMitDreiStellenVorUndEinerHinterDemKomma)
{
    EXPECT_EQ(Druckmaß(0), "000,0");
    EXPECT_EQ(Druckmaß(7.25F), "007,3");
    EXPECT_EQ(Druckmaß(69.8F), "069,8");
    EXPECT_EQ(Druckmaß(330.1F), "330,1");
    EXPECT_EQ(Druckmaß(-2.5F), "-002,5");
}

// The box of the form shows 15,15, which as a Single is slightly less.
TEST(Druckwerte, MaßeRundenWasDasFeldZeigt)
{
    EXPECT_EQ(Druckmaß(15.15F), "015,2");
    EXPECT_EQ(Druckmaß(15.149F), "015,1");
    EXPECT_EQ(Druckmaß(4.65F), "004,7");
    EXPECT_EQ(Druckmaß(8.95F), "009,0");
}

} // namespace
} // namespace altardienst
