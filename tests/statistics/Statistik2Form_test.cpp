// Heights through the window and as a chart.
#include "statistics/Statistik2Form.h"

#include "statistics/QCustomPlot.h"
#include "statistics/Statistikstand.h"

namespace altardienst {
namespace {

class Statistik2FormTest : public Statistikstand {
  protected:
    /// Eight servers, 1328 cm in all.
    Statistik2FormTest()
    {
        for (const int größe : {95, 101, 150, 151, 160, 220, 221, 230})
            MeßdienerAnlegen("Anna", "Berg", größe);
    }

    /// The chart in a chart window.
    static QCustomPlot *Bild(const QWidget *diagramm)
    {
        return dynamic_cast<QCustomPlot *>(Finden(diagramm, "MSChart1")->children().back());
    }
    static QStringList Klassen(const QCustomPlot *bild)
    {
        return qSharedPointerDynamicCast<QCPAxisTickerText>(bild->xAxis->ticker())
            ->ticks()
            .values();
    }
};

TEST_F(Statistik2FormTest, Tafel)
{
    Öffnen<Statistik2Form>();
    EXPECT_EQ(ZeileBis("Tagchus"), "Größe der Meßdiener am|21.11.2026");
    EXPECT_EQ(Kopf("a0"), "Größe in cm");
    EXPECT_EQ(Kopf("b0"), "Anzahl absolut");
    EXPECT_EQ(Kopf("c0"), "Anzahl relativ");
    EXPECT_EQ(ZeileBis("c0"), "bis 100|1|12,50%"); // 1 / 8
    EXPECT_EQ(ZeileBis("c1"), "101 bis 110|1|12,50%");
    EXPECT_EQ(ZeileBis("c2"), "111 bis 120|0|0,00%");
    EXPECT_EQ(ZeileBis("c5"), "141 bis 150|1|12,50%");
    EXPECT_EQ(ZeileBis("c6"), "151 bis 160|2|25,00%");
    EXPECT_EQ(ZeileBis("c11"), "201 bis 210|0|0,00%");
    EXPECT_EQ(ZeileBis("c12"), "ab 211|1|12,50%"); // 220 cm; 221 and 230 cm are in no row
}

TEST_F(Statistik2FormTest, MittelUndAbweichung)
{
    Öffnen<Statistik2Form>();
    // mean 1328 / 8 = 166
    EXPECT_EQ(ZeileBis("G"), "Durchschnittsgröße |166,000");
    EXPECT_EQ(Danach("G"), "cm");
    // 71² + 65² + 16² + 15² + 6² + 54² + 55² + 64²
    //   = 5041 + 4225 + 256 + 225 + 36 + 2916 + 3025 + 4096 = 19820; √19820 / 9 = 15.6426
    EXPECT_EQ(ZeileBis("A"), "Abweichung von|15,643");
    EXPECT_EQ(Danach("A"), "cm");
}

TEST_F(Statistik2FormTest, EinerWeichtNichtAbUndZweiUmWurzel50Drittel)
{
    Meßdiener.Anzahl = 1;
    Öffnen<Statistik2Form>();
    EXPECT_EQ(Zeigt("A"), "0,000");
    delete form;
    Meßdiener.Anzahl = 2;
    Meßdiener.Größe[0] = 150;
    Meßdiener.Größe[1] = 160;
    Öffnen<Statistik2Form>();
    EXPECT_EQ(Zeigt("A"), "2,357"); // 7.0711 / 3
}

TEST_F(Statistik2FormTest, GroßeZahlenStehenInGruppen)
{
    Meßdiener.Anzahl = 1;
    Meßdiener.Größe[0] = 12345;
    Öffnen<Statistik2Form>();
    EXPECT_EQ(Zeigt("G"), "12.345,000");
    delete form;
    Meßdiener.Anzahl = 2;
    Meßdiener.Größe[0] = 0;
    Meßdiener.Größe[1] = 32000;
    Öffnen<Statistik2Form>();
    EXPECT_EQ(Zeigt("A"), "7.542,472"); // √(2 · 16000²) / 3
}

TEST_F(Statistik2FormTest, OhneMeßdienerDivisionDurchNull)
{
    Meßdiener.Anzahl = 0;
    EXPECT_EQ(Scheitert<Statistik2Form>(), "Laufzeitfehler '11': Division durch Null");
}

TEST_F(Statistik2FormTest, DasDiagrammZeigtDieTafel)
{
    Öffnen<Statistik2Form>();
    Klick("Diagramm");
    EXPECT_FALSE(form->isVisible());
    QWidget *diagramm = Fenster("Diagramm2");
    EXPECT_EQ(diagramm->windowTitle(), "Diagramm");
    auto *bild = Bild(diagramm);
    ASSERT_TRUE(bild);
    EXPECT_EQ(dynamic_cast<QCPTextElement *>(bild->plotLayout()->element(0, 0))->text(),
              "Größe der Meßdiener");
    const auto *balken = dynamic_cast<QCPBars *>(bild->plottable(0));
    ASSERT_EQ(balken->dataCount(), 13);
    const auto klassen = Klassen(bild);
    ASSERT_EQ(klassen.size(), 13);
    for (int k = 0; k < 13; ++k) {
        const Text nummer = std::to_string(k);
        EXPECT_EQ(klassen[k].toStdString(), Zeigt("a" + nummer) + " cm ");
        EXPECT_EQ(balken->dataMainValue(k), std::stoi(Zeigt("b" + nummer)));
    }
    EXPECT_EQ(bild->xAxis->label(), "Größe");
    EXPECT_EQ(bild->yAxis->label(), "Anzahl Meßdiener");
}

/// They come from the window, not from the tables.
TEST_F(Statistik2FormTest, DasDiagrammNimmtWasImFensterSteht)
{
    auto *statistik = Öffnen<Statistik2Form>();
    statistik->b[3]->setText("17");
    statistik->a[3]->setText("x");
    Klick("Diagramm");
    auto *bild = Bild(Fenster("Diagramm2"));
    ASSERT_TRUE(bild);
    EXPECT_EQ(dynamic_cast<QCPBars *>(bild->plottable(0))->dataMainValue(3), 17);
    EXPECT_EQ(Klassen(bild)[3], "x cm ");
}

TEST_F(Statistik2FormTest, VomDiagrammZurück)
{
    Öffnen<Statistik2Form>();
    for (const char *knopf : {"OKButton", "CancelButton", ""}) {
        Klick("Diagramm");
        QWidget *diagramm = Fenster("Diagramm2");
        EXPECT_EQ(Zeigt(Finden(diagramm, "OKButton")), "OK");
        EXPECT_EQ(Zeigt(Finden(diagramm, "CancelButton")), "Abbrechen");
        if (*knopf)
            Klick(Finden(diagramm, knopf));
        else
            diagramm->close();
        EXPECT_TRUE(Warten([] { return !IstOffen("Diagramm2"); }));
        EXPECT_TRUE(form->isVisible()) << knopf;
        EXPECT_FALSE(haupt.isEnabled());
    }
}

TEST_F(Statistik2FormTest, DasDiagrammSchließtAuchWennDasFensterFortIst)
{
    Öffnen<Statistik2Form>();
    Klick("Diagramm");
    QWidget *diagramm = Fenster("Diagramm2");
    delete form;
    Klick(Finden(diagramm, "OKButton"));
    EXPECT_TRUE(Warten([] { return !IstOffen("Diagramm2"); }));
}

TEST_F(Statistik2FormTest, DruckenVonTafelUndDiagramm)
{
    Öffnen<Statistik2Form>();
    Klick("Druck");
    const Text tafel = PdfText(datei);
    EXPECT_NE(tafel.find("Größe der Meßdiener am 21.11.2026"), Text::npos) << tafel;
    EXPECT_NE(tafel.find("166,000 cm"), Text::npos) << tafel;
    Klick("Diagramm");
    Klick(Finden(Fenster("Diagramm2"), "Druck"));
    const Text diagramm = PdfText(datei);
    EXPECT_NE(diagramm.find("Größe der Meßdiener"), Text::npos) << diagramm;
    EXPECT_NE(Gedruckt().find("ab211cm"), Text::npos) << Gedruckt(); // the last one too
    for (const char *text : {"Ende", "Drucken", "OK", "Abbrechen"})
        EXPECT_EQ((tafel + diagramm).find(text), Text::npos) << text;
}

TEST_F(Statistik2FormTest, Ordnung)
{
    Öffnen<Statistik2Form>();
    EXPECT_EQ(form->objectName(), "Statistik2");
    EXPECT_EQ(form->windowTitle(), "Statistik (Meßdienergröße)");
    EXPECT_EQ(Zeigt("Ende"), "Ende");
    IstOrdentlich({"Ende", "Diagramm", "Druck"});
    SchließtMit([&] { Klick("Ende"); });
    Öffnen<Statistik2Form>();
    SchließtMit([&] { form->close(); });
}

} // namespace
} // namespace altardienst
