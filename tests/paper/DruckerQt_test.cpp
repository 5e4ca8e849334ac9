// The printer on Qt: the PDF that it makes, read back.
#include "paper/DruckerQt.h"

#include "Fensterstand.h"
#include "controls/Bausteine.h"
#include "printing/PdfLesen.h"

#include <QFontDatabase>

#include <algorithm>

namespace altardienst {
namespace {

constexpr double Punkt = 20; // twips
constexpr double MmInPunkten = 72 / 25.4;

class DruckerQtTest : public Prüfstand {
  protected:
    DruckerQtTest()
    {
        drucker.Dialog({});
        drucker.FontName("Liberation Sans");
        drucker.FontSize(10);
    }

    void Zeile(const Text &text, Single x = 1440, Single y = -1)
    {
        drucker.CurrentX(x);
        if (y >= 0)
            drucker.CurrentY(y);
        drucker.Print(text);
    }

    PdfInhalt Fertig()
    {
        drucker.EndDoc();
        return PdfLesen(datei);
    }

    const QString datei = Anzeige(Festplatte.string()) + "/Bericht.pdf";
    DruckerQt drucker{[this](const Druckanfrage &) { return Druckauswahl{0, PdfDrucker(datei)}; }};
};

TEST_F(DruckerQtTest, UmlauteUndßKommenRichtigAufsPapier)
{
    const Text text = "Größe für Meßdiener: ÄÖÜ äöü ß é € „so“ – [ ]oft";
    Zeile(text);
    drucker.EndDoc();
    EXPECT_NE(PdfText(datei).find(text), Text::npos) << PdfText(datei);
}

TEST_F(DruckerQtTest, WortabständeBleiben)
{
    Zeile("  Ort, Datum              Unterschrift");
    const PdfInhalt pdf = Fertig();
    EXPECT_NEAR(pdf.Wörter[0].Links, 72 + 2 * 2.78, 0.2); // two blanks of 0.278 em
    EXPECT_GT(pdf.Wörter[2].Links - pdf.Wörter[1].Rechts, 14 * 2.7);
}

TEST_F(DruckerQtTest, NenntDieSchriftenDerPlattformInIhrerFolge)
{
    const std::vector<Text> schriften = drucker.Schriften();
    EXPECT_EQ(std::ranges::count(schriften, "Liberation Sans"), 1);
    const QStringList alle = QFontDatabase::families();
    qsizetype stelle = -1;
    for (const Text &name : schriften) {
        const qsizetype nächste = alle.indexOf(Anzeige(name));
        EXPECT_GT(nächste, stelle) << name;
        stelle = nächste;
    }
    EXPECT_TRUE(Drucker->Schriften().empty()); // without a printer
}

TEST_F(DruckerQtTest, MillimeterSindMillimeter)
{
    constexpr Single Skala = 56.6857F; // the default
    constexpr std::array<std::pair<Single, Single>, 3> orte = {
        {{20, 15}, {100.5F, 148}, {180, 280}}};
    for (const auto &[x, y] : orte)
        Zeile("H" + std::to_string(static_cast<int>(x)), x * Skala, y * Skala);
    const PdfInhalt pdf = Fertig();
    ASSERT_EQ(pdf.Wörter.size(), orte.size());
    for (const auto &[x, y] : orte) {
        const PdfWort &wort = pdf.Wort("H" + std::to_string(static_cast<int>(x)));
        EXPECT_NEAR(wort.Links / MmInPunkten, x, 0.05);
        EXPECT_NEAR(wort.Oben / MmInPunkten, y, 0.3);
    }
    const double abstand = pdf.Wort("H180").Oben - pdf.Wort("H100").Oben;
    EXPECT_NEAR(abstand / MmInPunkten, 280 - 148, 0.05);
}

TEST_F(DruckerQtTest, EineZeileGehtUmIhreHöheAbwärtsUndNachLinks)
{
    drucker.CurrentY(1000);
    drucker.CurrentX(2000);
    drucker.Print("eins");
    const Single höhe = drucker.CurrentY() - 1000;
    drucker.Print("zwei");
    drucker.Print("");
    drucker.Print("vier");
    drucker.FontSize(20);
    const Single vorher = drucker.CurrentY();
    drucker.Print("fünf");
    EXPECT_NEAR(drucker.CurrentY() - vorher, 2 * höhe, 0.1 * höhe);
    const PdfInhalt pdf = Fertig();
    EXPECT_NEAR(höhe / Punkt, 11.5, 0.5); // 10 pt with its leading
    const PdfWort &zwei = pdf.Wort("zwei");
    EXPECT_NEAR(pdf.Wort("eins").Links, 100, 0.1);
    EXPECT_NEAR(zwei.Links, 0, 0.1);
    EXPECT_NEAR(zwei.Oben - pdf.Wort("eins").Oben, höhe / Punkt, 0.1);
    EXPECT_NEAR(pdf.Wort("vier").Oben - zwei.Oben, 2 * höhe / Punkt, 0.1);
}

TEST_F(DruckerQtTest, A4HochUndQuer)
{
    EXPECT_EQ(drucker.Height(), 16838);
    Zeile("hoch");
    PdfInhalt pdf = Fertig();
    EXPECT_NEAR(pdf.Seiten[0].Breite, 210 * MmInPunkten, 0.5);
    EXPECT_NEAR(pdf.Seiten[0].Höhe, 297 * MmInPunkten, 0.5);

    drucker.Dialog({});
    drucker.Orientation(2);
    EXPECT_EQ(drucker.Height(), 11906);
    Zeile("quer", 270 * 56.6857F, 190 * 56.6857F);
    pdf = Fertig();
    EXPECT_NEAR(pdf.Seiten[0].Breite, 297 * MmInPunkten, 0.5);
    EXPECT_NEAR(pdf.Seiten[0].Höhe, 210 * MmInPunkten, 0.5);
    EXPECT_NEAR(pdf.Wörter[0].Links / MmInPunkten, 270, 0.05);

    drucker.Dialog({}); // the orientation stays
    Zeile("quer");
    EXPECT_NEAR(Fertig().Seiten[0].Breite, 297 * MmInPunkten, 0.5);
    drucker.Orientation(1);
    EXPECT_EQ(drucker.Height(), 16838);
}

TEST_F(DruckerQtTest, AlleSchriftenSindEingebettetUndFettUndKursivEcht)
{
    Zeile("gewöhnlich");
    drucker.FontBold(true);
    Zeile("fett");
    drucker.FontBold(false);
    drucker.FontItalic(true);
    Zeile("kursiv");
    drucker.EndDoc();
    const Text schriften = Aufruf("pdffonts", {datei});
    const QStringList zeilen = Anzeige(schriften).trimmed().split('\n').mid(2);
    EXPECT_EQ(zeilen.size(), 3) << schriften;
    static const QRegularExpression eingebettet(
        "\\byes +(yes|no) +yes +\\d+ +\\d+$"); // emb sub uni
    for (const QString &zeile : zeilen)
        EXPECT_TRUE(eingebettet.match(zeile).hasMatch()) << zeile.toStdString();
    for (const char *name : {"LiberationSans ", "LiberationSans-Bold", "LiberationSans-Italic"})
        EXPECT_NE(schriften.find(name), Text::npos) << schriften;
}

/// The longest run of dark pixels in any row of the picture.
int LängsterStrich(const QImage &bild)
{
    int längster = 0;
    for (int y = 0; y < bild.height(); ++y) {
        int lauf = 0;
        for (int x = 0; x < bild.width(); ++x) {
            lauf = qGray(bild.pixel(x, y)) < 128 ? lauf + 1 : 0;
            längster = std::max(längster, lauf);
        }
    }
    return längster;
}

TEST_F(DruckerQtTest, UnterstrichenUndDurchgestrichenSindStriche)
{
    const auto strich = [&](bool unter, bool durch) {
        drucker.Dialog({});
        drucker.FontSize(24);
        drucker.FontUnderline(unter);
        drucker.FontStrikethru(durch);
        Zeile("mmmmmmmmmm", 0, 1440); // 8.33 em, 70 mm
        drucker.EndDoc();
        return LängsterStrich(PdfBild(datei)) / 4.0;
    };
    EXPECT_LT(strich(false, false), 10);
    EXPECT_NEAR(strich(true, false), 70.5, 2);
    EXPECT_NEAR(strich(false, true), 70.5, 2);
    EXPECT_LT(strich(false, false), 10);
}

TEST_F(DruckerQtTest, EineLeereSeiteGibtKeinBlatt)
{
    drucker.NewPage();
    Zeile("erste");
    drucker.NewPage();
    drucker.NewPage();
    Zeile("zweite");
    drucker.NewPage();
    const PdfInhalt pdf = Fertig();
    ASSERT_EQ(pdf.Seiten.size(), 2U);
    EXPECT_EQ(pdf.Wort("zweite").Seite, 2);
}

TEST_F(DruckerQtTest, EineNeueSeiteBeginntOben)
{
    Zeile("a", 0, 5000);
    drucker.NewPage();
    EXPECT_EQ(drucker.CurrentY(), 0);
    drucker.Print("b");
    EXPECT_NEAR(Fertig().Wort("b").Oben, 0, 1);
}

/// The fonts in the document, one per line.
QStringList Schriften(const QString &datei)
{
    return Anzeige(Aufruf("pdffonts", {datei})).trimmed().split('\n').mid(2);
}

TEST_F(DruckerQtTest, AufDerNeuenSeiteGehtDieSchriftWeiter)
{
    drucker.FontSize(20);
    drucker.FontBold(true);
    Zeile("kopf");
    drucker.FontSize(10);
    drucker.FontBold(false);
    Zeile("eins");
    drucker.NewPage();
    Zeile("zwei");
    const PdfInhalt pdf = Fertig();
    const auto höhe = [&](const char *wort) { return pdf.Wort(wort).Unten - pdf.Wort(wort).Oben; };
    EXPECT_EQ(pdf.Wort("zwei").Seite, 2);
    EXPECT_NEAR(höhe("kopf"), 2 * höhe("eins"), 0.1);
    EXPECT_NEAR(höhe("zwei"), höhe("eins"), 0.01);
    const QStringList schriften = Schriften(datei);
    EXPECT_EQ(schriften.size(), 2) << schriften.join('\n').toStdString();
}

// As in the list of birthdays, which keeps the font that the previous report set.
TEST_F(DruckerQtTest, DieSchriftBleibtInDasNächsteDokument)
{
    drucker.FontName("Liberation Serif");
    Zeile("eins");
    drucker.EndDoc();
    drucker.Dialog({});
    drucker.FontSize(12);
    Zeile("zwei");
    drucker.EndDoc();
    const QStringList schriften = Schriften(datei);
    ASSERT_EQ(schriften.size(), 1);
    EXPECT_TRUE(schriften[0].contains("LiberationSerif")) << schriften[0].toStdString();
}

TEST_F(DruckerQtTest, EinZweitesDokumentBeginntVonVorn)
{
    Zeile("eins", 3000, 9000);
    drucker.EndDoc();
    EXPECT_EQ(drucker.CurrentY(), 0);
    drucker.Dialog({});
    drucker.Print("zwei");
    const PdfInhalt pdf = Fertig();
    ASSERT_EQ(pdf.Wörter.size(), 1U);
    EXPECT_EQ(pdf.Wörter[0].Inhalt, "zwei");
    EXPECT_NEAR(pdf.Wörter[0].Links, 0, 0.1);
    EXPECT_NEAR(pdf.Wörter[0].Oben, 0, 1);
}

TEST_F(DruckerQtTest, EineUnbekannteSchriftWirdErsetzt)
{
    for (const char *name : {"Gibt es nicht", ""}) {
        drucker.Dialog({});
        drucker.FontName(name);
        Zeile("Größe");
        EXPECT_EQ(Fertig().Wörter[0].Inhalt, "Größe");
    }
}

TEST_F(DruckerQtTest, DieKleinsteUndDieGrößteSchrift)
{
    for (const int punkte : {0, -1, 2161})
        EXPECT_EQ(NummerDesFehlers([&] { drucker.FontSize(punkte); }), 482) << punkte;
    for (const int punkte : {1, 2160}) {
        drucker.Dialog({});
        drucker.FontSize(punkte);
        Zeile("x");
        EXPECT_EQ(Fertig().Seiten.size(), 1U) << punkte;
    }
    for (const int richtung : {0, 3, -1})
        EXPECT_EQ(NummerDesFehlers([&] { drucker.Orientation(richtung); }), 482) << richtung;
}

} // namespace
} // namespace altardienst
