// The charts of age and membership. Today is 21.11.2026.
#include "statistics/DiagrammeForm.h"

#include "statistics/Diagrammbild.h"
#include "statistics/QCustomPlot.h"
#include "statistics/StatistikForm.h"
#include "statistics/Statistikstand.h"

#include <QApplication>
#include <QImage>
#include <QPalette>
#include <QScopeGuard>

#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>

namespace altardienst {
namespace {

double Leuchtdichte(const QColor &farbe)
{
    const auto linear = [](double teil) {
        return teil <= 0.04045 ? teil / 12.92 : std::pow((teil + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(farbe.redF()) + 0.7152 * linear(farbe.greenF()) +
           0.0722 * linear(farbe.blueF());
}

double Kontrast(const QColor &eine, const QColor &andere)
{
    const auto [dunkler, heller] = std::minmax({Leuchtdichte(eine), Leuchtdichte(andere)});
    return (heller + 0.05) / (dunkler + 0.05);
}

class DiagrammeFormTest : public Statistikstand {
  protected:
    /// Ages and years of membership: 8/0, 9/0, 12/3, 12/3, 12/4, 20/11, 24/15, 30/16.
    DiagrammeFormTest()
    {
        for (const auto &[alter, jahre] : std::vector<std::pair<int, int>>{
                 {8, 0}, {9, 0}, {12, 3}, {12, 3}, {12, 4}, {20, 11}, {24, 15}, {30, 16}}) {
            const int i = MeßdienerAnlegen("Anna", "Berg");
            Meßdiener.Geburtstag[i] = DatumAus({2026 - alter, 11, 30});
            Meßdiener.Eintrittsdatum[i] = DatumAus({2026 - jahre, 11, 30});
        }
    }

    void ÖffnenMitStatistik()
    {
        statistik = Öffnen<StatistikForm>();
        Klick("Diagramm");
        form = Fenster("Diagramme");
        Zeigen(form);
    }

    QCustomPlot *Bild(const char *name) const
    {
        for (QObject *kind : Finden(name)->children())
            if (auto *bild = dynamic_cast<QCustomPlot *>(kind))
                return bild;
        throw std::runtime_error("no chart in " + Text(name));
    }

    static Text Titel(QCustomPlot *bild)
    {
        return dynamic_cast<QCPTextElement *>(bild->plotLayout()->element(0, 0))
            ->text()
            .toStdString();
    }

    static std::vector<Text> Klassen(const QCPAxis *achse)
    {
        const auto ticks = qSharedPointerDynamicCast<QCPAxisTickerText>(achse->ticker())->ticks();
        std::vector<Text> klassen;
        for (const QString &klasse : ticks)
            klassen.push_back(klasse.toStdString());
        return klassen;
    }

    static std::vector<int> Werte(QCustomPlot *bild)
    {
        const auto *balken = dynamic_cast<QCPBars *>(bild->plottable(0));
        std::vector<int> werte;
        for (int k = 0; k < balken->dataCount(); ++k) {
            EXPECT_EQ(balken->dataMainKey(k), k + 1);
            werte.push_back(static_cast<int>(balken->dataMainValue(k)));
        }
        return werte;
    }

    static std::vector<Text> Reihe(int von, int bis, const Text &dahinter)
    {
        std::vector<Text> reihe;
        for (int jahre = von; jahre <= bis; ++jahre)
            reihe.push_back(std::to_string(jahre) + dahinter);
        return reihe;
    }

    /// The figures that are written into the chart, by their place.
    static std::map<std::pair<int, int>, int> Geschrieben(QCustomPlot *bild)
    {
        std::map<std::pair<int, int>, int> zahlen;
        for (int k = 0; k < bild->itemCount(); ++k)
            if (const auto *text = dynamic_cast<QCPItemText *>(bild->item(k)))
                zahlen[{static_cast<int>(text->position->key()),
                        static_cast<int>(text->position->value())}] = text->text().toInt();
        return zahlen;
    }

    /// The bars, counted from 1, whose height is written at their upper end.
    static std::map<std::pair<int, int>, int> ÜberDenBalken(const std::vector<int> &werte)
    {
        std::map<std::pair<int, int>, int> zahlen;
        int stelle = 0;
        for (const int wert : werte)
            zahlen[{++stelle, wert}] = wert;
        return zahlen;
    }

    StatistikForm *statistik = nullptr;
};

TEST_F(DiagrammeFormTest, Alter)
{
    ÖffnenMitStatistik();
    QCustomPlot *bild = Bild("MSChart1");
    EXPECT_EQ(Titel(bild), "Alter der Meßdiener");
    EXPECT_EQ(Klassen(bild->xAxis), Reihe(9, 20, " Jahre "));
    const std::vector werte = {2, 0, 0, 3, 0, 0, 0, 0, 0, 0, 0, 3};
    EXPECT_EQ(Werte(bild), werte);
    EXPECT_EQ(Geschrieben(bild), ÜberDenBalken(werte));
    EXPECT_EQ(bild->xAxis->label(), "Alter");
    EXPECT_EQ(bild->yAxis->label(), "Anzahl Meßdiener");
}

TEST_F(DiagrammeFormTest, Zugehörigkeit)
{
    ÖffnenMitStatistik();
    QCustomPlot *bild = Bild("MSChart2");
    EXPECT_EQ(Titel(bild), "Zugehörigkeit der Meßdiener in Jahren");
    EXPECT_EQ(Klassen(bild->xAxis), Reihe(0, 15, " Jahre "));
    const std::vector werte = {2, 0, 0, 2, 1, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 2};
    EXPECT_EQ(Werte(bild), werte);
    EXPECT_EQ(Geschrieben(bild), ÜberDenBalken(werte));
    EXPECT_EQ(bild->xAxis->label(), "Zugehörigkeit");
    EXPECT_EQ(bild->yAxis->label(), "Anzahl Meßdiener");
}

TEST_F(DiagrammeFormTest, Gegenüberstellung)
{
    ÖffnenMitStatistik();
    QCustomPlot *bild = Bild("MSChart3");
    EXPECT_EQ(Titel(bild), "Alter und Zugehörigkeit der Meßdiener Gegenübergestellt");
    EXPECT_EQ(Klassen(bild->xAxis), Reihe(9, 24, " Jahre (Alter)"));
    EXPECT_EQ(Klassen(bild->yAxis), Reihe(0, 15, " Jahre (Zugehörigkeit)"));
    auto zahlen = Geschrieben(bild);
    EXPECT_EQ(zahlen.size(), 256U);
    // Fields are counted from 1: age 9 is 1, zero years are 1. Under 9 is shown at 9, over 24 at
    // 24.
    const std::map<std::pair<int, int>, int> erwartet = {
        {{1, 1}, 2}, {{4, 4}, 2}, {{4, 5}, 1}, {{12, 12}, 1}, {{16, 16}, 2}};
    for (const auto &[ort, zahl] : zahlen)
        EXPECT_EQ(zahl, erwartet.contains(ort) ? erwartet.at(ort) : 0)
            << ort.first << " " << ort.second;
    EXPECT_EQ(bild->xAxis->label(), "Alter");
    EXPECT_EQ(bild->yAxis->label(), "Zugehörigkeit");
}

/// They come from the window, not from the tables.
TEST_F(DiagrammeFormTest, DieBalkenZeigenDieZahlenDesFensters)
{
    statistik = Öffnen<StatistikForm>();
    statistik->a[1]->setText("17");
    statistik->d[1]->setText("19");
    Klick("Diagramm");
    form = Fenster("Diagramme");
    EXPECT_EQ(Werte(Bild("MSChart1"))[1], 17);
    EXPECT_EQ(Werte(Bild("MSChart2"))[1], 19);
}

TEST_F(DiagrammeFormTest, DieWahlZeigtEinesDerDrei)
{
    ÖffnenMitStatistik();
    const auto sichtbar = [&] {
        Text namen;
        for (const char *name : {"MSChart1", "MSChart2", "MSChart3"})
            if (Finden(name)->isVisible())
                namen += name;
        return namen;
    };
    EXPECT_EQ(sichtbar(), "MSChart1");
    EXPECT_TRUE(Finden<QRadioButton>("Atlert")->isChecked());
    for (const auto &[option, text, bild] :
         std::vector<std::tuple<const char *, Text, Text>>{{"Zug", "Zugehörigkeit", "MSChart2"},
                                                           {"Meßdierne", "Meßdiener", "MSChart3"},
                                                           {"Atlert", "Alter", "MSChart1"}}) {
        auto *knopf = Finden<QRadioButton>(option);
        EXPECT_EQ(Zeigt(knopf), text);
        EXPECT_EQ(knopf->parent()->objectName(), "F1");
        Auslösen(knopf);
        EXPECT_EQ(sichtbar(), bild);
    }
}

/// Whatever the height of the bars, the axis counts whole people from 0 and reaches above them.
TEST_F(DiagrammeFormTest, DieAchseDerAnzahlHatNurGanzeZahlen)
{
    for (const int höchste : {0, 1, 2, 3, 7, 48, 400, 1234}) {
        Diagrammbild bild("Bild", "Titel");
        bild.BalkenZeigen({"Klasse", {"a", "b"}}, "Anzahl", {höchste, 0});
        bild.resize(680, 400);
        bild.show();
        auto *plot = dynamic_cast<QCustomPlot *>(bild.children().back());
        plot->replot();
        EXPECT_EQ(plot->yAxis->range().lower, 0);
        EXPECT_GT(plot->yAxis->range().upper, höchste);
        const auto striche = plot->yAxis->tickVector();
        EXPECT_GE(striche.size(), 2) << höchste;
        for (const double strich : striche)
            EXPECT_EQ(strich, std::round(strich)) << höchste;
        for (const QString &zahl : plot->yAxis->tickVectorLabels())
            EXPECT_FALSE(zahl.contains(',')) << zahl.toStdString();
        EXPECT_FALSE(plot->yAxis->subTicks());
        EXPECT_EQ(dynamic_cast<QCPItemText *>(plot->item(0))->text().toStdString(),
                  höchste == 1234 ? "1.234" : std::to_string(höchste));
    }
}

/// Only lightness tells them apart: the more, the darker, and each figure contrasts enough with its
/// field.
TEST_F(DiagrammeFormTest, DieFelderUnterscheidetIhreHelligkeit)
{
    constexpr int Höchste = 12;
    Diagrammbild bild("Bild", "Titel");
    std::vector<int> anzahl;
    std::vector<Text> klassen;
    for (int k = 0; k <= Höchste; ++k) {
        anzahl.push_back(k);
        klassen.push_back(std::to_string(k));
    }
    bild.KreuztafelZeigen({"quer", klassen}, {"hoch", {"eine"}}, anzahl);
    auto *plot = dynamic_cast<QCustomPlot *>(bild.children().back());
    std::map<int, double> felder = {{1, 1.0}}; // the first is white
    for (int k = 0; k < plot->itemCount(); ++k)
        if (const auto *feld = dynamic_cast<QCPItemRect *>(plot->item(k)))
            felder[static_cast<int>(std::lround(feld->topLeft->key() + 0.5))] =
                Leuchtdichte(feld->brush().color());
    ASSERT_EQ(felder.size(), Höchste + 1U);
    for (int k = 2; k <= Höchste + 1; ++k)
        EXPECT_LT(felder[k], felder[k - 1]) << k;
    for (int k = 0; k < plot->itemCount(); ++k)
        if (const auto *text = dynamic_cast<QCPItemText *>(plot->item(k))) {
            const double feld = felder[static_cast<int>(text->position->key())];
            const double schrift = Leuchtdichte(text->color());
            const double kontrast =
                (std::max(feld, schrift) + 0.05) / (std::min(feld, schrift) + 0.05);
            EXPECT_GE(kontrast, 4.5) << text->text().toStdString();
        }
}

TEST_F(DiagrammeFormTest, NurLangeKlassenStehenSchräg)
{
    for (const auto &[klassen, winkel] :
         {std::pair(std::vector<Text>{"0", "12"}, 0.0), {{"9 Jahre", "10 Jahre"}, -60.0}}) {
        Diagrammbild bild("Bild", "Titel");
        bild.BalkenZeigen({"Klasse", klassen}, "Anzahl", {3, 1});
        EXPECT_EQ(dynamic_cast<QCustomPlot *>(bild.children().back())->xAxis->tickLabelRotation(),
                  winkel);
    }
}

/// How far the figures in a chart stand out from what they are written on, at least.
double KleinsterKontrast(QCustomPlot &plot, const QColor &grund)
{
    std::map<std::pair<int, int>, QColor> felder;
    for (int k = 0; k < plot.itemCount(); ++k)
        if (const auto *feld = dynamic_cast<QCPItemRect *>(plot.item(k)))
            felder[{static_cast<int>(std::lround(feld->topLeft->key() + 0.5)),
                    static_cast<int>(std::lround(feld->topLeft->value() - 0.5))}] =
                feld->brush().color();
    double kleinster = 21;
    for (int k = 0; k < plot.itemCount(); ++k)
        if (const auto *text = dynamic_cast<QCPItemText *>(plot.item(k))) {
            const auto feld = felder.find({static_cast<int>(text->position->key()),
                                           static_cast<int>(text->position->value())});
            kleinster = std::min(
                kleinster, Kontrast(text->color(), feld == felder.end() ? grund : feld->second));
        }
    return kleinster;
}

/// On a dark screen a chart is dark, too; on paper it is as ever.
TEST_F(DiagrammeFormTest, AufDunklemGrundIstAllesZuLesenUndAufPapierWieSonst)
{
    const QColor dunkel(0x24, 0x24, 0x24);
    QPalette nachts;
    nachts.setColor(QPalette::Base, dunkel);
    nachts.setColor(QPalette::Text, Qt::white);
    Diagrammbild balken("Balken", "Titel");
    balken.BalkenZeigen({"Klasse", {"a", "b"}}, "Anzahl", {3, 1});
    Diagrammbild tafel("Tafel", "Titel");
    std::vector<int> anzahl(13);
    std::iota(anzahl.begin(), anzahl.end(), 0);
    tafel.KreuztafelZeigen({"quer", std::vector<Text>(13, "k")}, {"hoch", {"eine"}}, anzahl);
    for (Diagrammbild *bild : {&balken, &tafel}) {
        auto *plot = dynamic_cast<QCustomPlot *>(bild->children().back());
        bild->resize(680, 400);
        bild->show();
        const QImage tags = bild->grab().toImage();
        EXPECT_EQ(tags.pixelColor(2, 2), QColor(Qt::white));
        const int teile = plot->itemCount();
        bild->setPalette(nachts);
        const QImage nacht = bild->grab().toImage();
        EXPECT_EQ(nacht.pixelColor(2, 2), dunkel);
        EXPECT_EQ(plot->itemCount(), teile) << "nothing stands there twice";
        EXPECT_GE(KleinsterKontrast(*plot, dunkel), 4.5);
        for (const QCPAxis *achse : {plot->xAxis, plot->yAxis})
            for (const QColor &farbe : {achse->labelColor(), achse->tickLabelColor(),
                                        achse->basePen().color(), achse->tickPen().color()})
                EXPECT_GE(Kontrast(farbe, dunkel), 4.5);
        bild->setPalette(QPalette());
        EXPECT_EQ(bild->grab().toImage(), tags);
    }
}

/// A print sets the colours of the window to black on white.
TEST_F(DiagrammeFormTest, EinDruckVonEinemDunklenBildschirmIstWeiß)
{
    QPalette nachts;
    for (const auto rolle : {QPalette::Base, QPalette::Window})
        nachts.setColor(rolle, QColor(0x24, 0x24, 0x24));
    for (const auto rolle : {QPalette::Text, QPalette::WindowText})
        nachts.setColor(rolle, Qt::white);
    const QPalette zuvor = QApplication::palette();
    QApplication::setPalette(nachts);
    const auto zurück = qScopeGuard([&] { QApplication::setPalette(zuvor); });
    ÖffnenMitStatistik();
    EXPECT_EQ(Bild("MSChart1")->grab().toImage().pixelColor(2, 2), QColor(0x24, 0x24, 0x24));
    Klick("Druck");
    const QImage seite = PdfBild(datei);
    std::map<QRgb, int> farben;
    for (int y = 0; y < seite.height(); ++y)
        for (int x = 0; x < seite.width(); ++x)
            ++farben[seite.pixel(x, y)];
    EXPECT_GT(farben[QColor(Qt::white).rgb()], seite.width() * seite.height() / 2);
    EXPECT_LT(farben[QColor(0x24, 0x24, 0x24).rgb()], 100) << "but for the edges of letters";
    EXPECT_EQ(Bild("MSChart1")->grab().toImage().pixelColor(2, 2), QColor(0x24, 0x24, 0x24))
        << "the screen stays dark";
}

TEST_F(DiagrammeFormTest, DruckenGibtDasGewählteScharfUndOhneKnöpfe)
{
    ÖffnenMitStatistik();
    for (const auto &[option, titel, klasse] : std::vector<std::tuple<const char *, Text, Text>>{
             {"Atlert", "Alter der Meßdiener", "20Jahre"},
             {"Zug", "Zugehörigkeit der Meßdiener in Jahren", "15Jahre"},
             {"Meßdierne", "Alter und Zugehörigkeit der Meßdiener Gegenübergestellt",
              "24Jahre(Alter)"}}) {
        Auslösen(option);
        Klick("Druck");
        const Text papier = PdfText(datei);
        EXPECT_NE(papier.find(titel), Text::npos) << papier;
        EXPECT_NE(Gedruckt().find(klasse), Text::npos) << Gedruckt(); // the last one too
        for (const char *knopf : {"Drucken", "OK", "Abbrechen"})
            EXPECT_EQ(papier.find(knopf), Text::npos) << knopf;
        // Letters and strokes, not a bitmap of them.
        EXPECT_EQ(Aufruf("pdfimages", {"-list", datei}).find("image"), Text::npos);
        EXPECT_EQ(PdfLesen(datei).Seiten.size(), 1U);
    }
}

/// Its numbers came from there; whoever has unloaded it, closing needs it no more.
TEST_F(DiagrammeFormTest, SchließtAuchWennDasFensterFortIst)
{
    ÖffnenMitStatistik();
    delete statistik;
    Klick("OKButton");
    EXPECT_TRUE(Warten([] { return !IstOffen("Diagramme"); }));
}

TEST_F(DiagrammeFormTest, Ordnung)
{
    ÖffnenMitStatistik();
    EXPECT_EQ(form->windowTitle(), "Diagramm");
    EXPECT_EQ(Zeigt("OKButton"), "OK");
    EXPECT_EQ(Zeigt("CancelButton"), "Abbrechen");
    IstOrdentlich({"Atlert", "Druck", "OKButton", "CancelButton"});
    Klick("OKButton");
    EXPECT_TRUE(statistik->isVisible());
}

} // namespace
} // namespace altardienst
