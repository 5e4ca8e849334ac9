// Wall sheet and slips read back from the paper: everything stands there, within the sheet.
#include "paper/Druckziel.h"

#include "exchange/Aushang.h"
#include "exchange/Aushangstand.h"
#include "exchange/Zetteldruck.h"

#include <algorithm>
#include <cmath>

namespace altardienst {
namespace {

constexpr double Mm = 72 / 25.4;

class BlattpapierTest : public DruckzielTest {
  protected:
    BlattpapierTest() { Konfig.Gemeinde = "St. Ägid"; }

    /// Masses with names of all lengths, also with umlauts.
    static void PlanFüllen(int messen, int diener)
    {
        static constexpr const char *Vornamen[] = {"Änne", "Jörg", "Maximilian", "Zoë", "Li"};
        static constexpr const char *Nachnamen[] = {"Groß", "Öttinger-Übermann", "Wu",
                                                    "Freiherr von Südfeld"};
        for (int i = 0; i < messen; ++i) {
            const int messe = VolleMesse(i % 9 == 3 ? diener : std::min(diener, 4));
            Messe.Leuchter[messe] = 2;
            Messe.LektorZahl[messe] = 1;
            Besetzen(Messe, Helferplatznr(messe, 0), "Maria", "Linde");
            for (int slot = 1; slot <= Messe.Dienerzahl[messe]; ++slot)
                Besetzen(Messe, Dienerplatznr(messe, slot), Vornamen[(i + slot) % 5],
                         Nachnamen[(i * 3 + slot) % 4]);
        }
    }

    /// The words of all names that stand in places, as often as they do.
    static std::map<Text, int> Namenswörter()
    {
        std::map<Text, int> wörter;
        const auto zählen = [&](const Platzname &name) {
            for (const Text &teil : {name.Vorname, name.Nachname})
                for (const QString &wort : Anzeige(teil).split(' '))
                    ++wörter[wort.toStdString()];
        };
        for (int i = 0; i < Messe.Anzahl; ++i) {
            for (int slot = 1; slot <= Messe.Dienerzahl[i]; ++slot)
                zählen(NameAm(Messe, Dienerplatznr(i, slot)));
            zählen(NameAm(Messe, Helferplatznr(i, 0)));
        }
        return wörter;
    }

    static void ImBlatt(const PdfInhalt &pdf, double rand)
    {
        for (const PdfWort &wort : pdf.Wörter) {
            const PdfSeite &seite = pdf.Seiten[static_cast<std::size_t>(wort.Seite - 1)];
            EXPECT_GE(wort.Links, rand - 1) << wort.Inhalt;
            EXPECT_LE(wort.Rechts, seite.Breite - rand + 1) << wort.Inhalt;
            EXPECT_GE(wort.Oben, rand - 6) << wort.Inhalt; // room above the letters
            EXPECT_LE(wort.Unten, seite.Höhe - rand + 1) << wort.Inhalt;
        }
    }

    /// No two words lie over each other.
    static int Überlappungen(const PdfInhalt &pdf)
    {
        int zahl = 0;
        for (const PdfWort &a : pdf.Wörter)
            for (const PdfWort &b : pdf.Wörter) {
                const double breite = std::min(a.Rechts, b.Rechts) - std::max(a.Links, b.Links);
                const double höhe = std::min(a.Unten, b.Unten) - std::max(a.Oben, b.Oben);
                const double schrift = a.Unten - a.Oben;
                if (&a < &b && a.Seite == b.Seite && breite > 0.5 && höhe > schrift * 0.35)
                    ++zahl;
            }
        return zahl;
    }
};

TEST_F(BlattpapierTest, DerAushangAufEinemBlattMitAllenNamen)
{
    for (const auto &[messen, diener] : {std::pair{1, 4}, {27, 4}, {27, 20}, {40, 8}}) {
        SCOPED_TRACE(messen * 100 + diener);
        Messe.Anzahl = 0;
        PlanFüllen(messen, diener);
        EXPECT_EQ(AushangDrucken(), "");
        const PdfInhalt pdf = PdfLesen(datei);
        ASSERT_EQ(pdf.Seiten.size(), 1U);
        EXPECT_GT(pdf.Seiten[0].Breite, pdf.Seiten[0].Höhe);
        ImBlatt(pdf, 10 * Mm);
        EXPECT_EQ(Überlappungen(pdf), 0);
        std::map<Text, int> gedruckt;
        for (const PdfWort &wort : pdf.Wörter)
            ++gedruckt[wort.Inhalt];
        for (const auto &[wort, zahl] : Namenswörter())
            EXPECT_EQ(gedruckt[wort], zahl) << wort;
    }
}

TEST_F(BlattpapierTest, VieleMessenMitKurzenNamenAufEinemBlatt)
{
    modus = DruckerDienst::ZweiteForm;
    PlanFüllen(113, 4);
    EXPECT_EQ(AushangDrucken(), "");
    const PdfInhalt pdf = PdfLesen(datei);
    ASSERT_EQ(pdf.Seiten.size(), 1U);
    ImBlatt(pdf, 10 * Mm);
    EXPECT_EQ(Überlappungen(pdf), 0);
}

TEST_F(BlattpapierTest, DreihundertMessenAufMehrerenBlätternOhneDassEtwasFehlt)
{
    PlanFüllen(300, 4);
    EXPECT_NE(AushangDrucken(), "");
    const PdfInhalt pdf = PdfLesen(datei);
    EXPECT_GT(pdf.Seiten.size(), 1U);
    EXPECT_LT(pdf.Seiten.size(), 8U);
    ImBlatt(pdf, 10 * Mm);
    std::map<Text, int> gedruckt;
    for (const PdfWort &wort : pdf.Wörter)
        ++gedruckt[wort.Inhalt];
    gedruckt["von"] -= static_cast<int>(pdf.Seiten.size()); // "Blatt 1 von 3"
    for (const auto &[wort, zahl] : Namenswörter())
        EXPECT_EQ(gedruckt[wort], zahl) << wort;
}

TEST_F(BlattpapierTest, NachDemAushangIstDasBlattWiederHoch)
{
    PlanFüllen(2, 2);
    AushangDrucken();
    ZettelDrucken(DienstzettelVon(GemeinsameTabellen(), {}), "Altardienst");
    const PdfInhalt pdf = PdfLesen(datei);
    EXPECT_LT(pdf.Seiten[0].Breite, pdf.Seiten[0].Höhe);
}

TEST_F(BlattpapierTest, DieDienstzettelImBlatt)
{
    PlanFüllen(113, 20);
    Messe.Messeart[5] = "Hochamt mit Taufe und anschließender Prozession zum Friedhof";
    ZettelDrucken(DienstzettelVon(GemeinsameTabellen(), {}), "Altardienst");
    const PdfInhalt pdf = PdfLesen(datei);
    ImBlatt(pdf, 10 * Mm);
    EXPECT_EQ(Überlappungen(pdf), 0);
    const double mitte = pdf.Seiten[0].Breite / 2;
    for (const PdfWort &wort : pdf.Wörter)
        EXPECT_FALSE(wort.Links < mitte && wort.Rechts > mitte) << "cut through: " << wort.Inhalt;
    std::map<Text, int> gedruckt;
    for (const PdfWort &wort : pdf.Wörter)
        ++gedruckt[wort.Inhalt];
    EXPECT_EQ(gedruckt["Lektor"], 113);
    EXPECT_EQ(gedruckt["Leuchter"], 226);
}

} // namespace
} // namespace altardienst
