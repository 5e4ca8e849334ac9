// Age, membership and composition through the window. Today is 21.11.2026.
#include "statistics/StatistikForm.h"

#include "statistics/Statistikstand.h"

namespace altardienst {
namespace {

class StatistikFormTest : public Statistikstand {
  protected:
    static void Anlegen(Datum geburtstag, Datum eintritt, const Text &geschlecht,
                        const Text &qualifikation)
    {
        const int i = MeßdienerAnlegen("Anna", "Berg", 160, geschlecht);
        Meßdiener.Geburtstag[i] = geburtstag;
        Meßdiener.Eintrittsdatum[i] = eintritt;
        Meßdiener.Qualifikation[i] = qualifikation;
    }

    /// Six servers. Months of age: 107, 119, 131, 132, 239, 240 (sum 968); of membership: 0, 11,
    /// 12, 179, 180, -12 (sum 370).
    void Gemeinde()
    {
        Anlegen(DatumAus({2017, 12, 31}), DatumAus({2026, 11, 1}), "männlich", "jnnnnn");  // 8, 0
        Anlegen(DatumAus({2016, 12, 1}), DatumAus({2025, 12, 31}), "männlich", "jjnnnn");  // 9, 0
        Anlegen(DatumAus({2015, 12, 31}), DatumAus({2025, 11, 30}), "weiblich", "jjjnnj"); // 10, 1
        Anlegen(DatumAus({2015, 11, 30}), DatumAus({2011, 12, 1}), "weiblich", "jjjjnj");  // 11, 14
        Anlegen(DatumAus({2006, 12, 1}), DatumAus({2011, 11, 30}), "weiblich", "jjjjjn");  // 19, 15
        Anlegen(DatumAus({2006, 11, 30}), DatumAus({2027, 11, 1}), "", "nnnnnn"); // 20, in a year
    }
};

TEST_F(StatistikFormTest, Alterstafel)
{
    Gemeinde();
    Öffnen<StatistikForm>();
    EXPECT_EQ(Zeigt("Tagchen"), "21.11.2026");
    EXPECT_EQ(ZeileBis("Tagchen"), "am|21.11.2026");
    EXPECT_EQ(ZeileBis("aa9"), "bis 9|2|33,33%"); // 2 / 6
    EXPECT_EQ(ZeileBis("AA10"), "10|1|16,67%");   // 1 / 6
    EXPECT_EQ(ZeileBis("aa11"), "11|1|16,67%");
    EXPECT_EQ(ZeileBis("aa12"), "12|0|0,00%");
    EXPECT_EQ(ZeileBis("aa19"), "19|1|16,67%");
    EXPECT_EQ(ZeileBis("aa20"), "ab 20|1|16,67%");
    EXPECT_EQ(Kopf("b10"), "Alter (Jahre)");
    EXPECT_EQ(Kopf("a10"), "Anzahl absolut");
    EXPECT_EQ(Kopf("AA10"), "Anzahl relativ");
    for (int jahre = 10; jahre <= 19; ++jahre)
        EXPECT_EQ(Zeigt("b" + std::to_string(jahre)), std::to_string(jahre));
    int summe = 0;
    for (int jahre = 9; jahre <= 20; ++jahre)
        summe += std::stoi(Zeigt("a" + std::to_string(jahre)));
    EXPECT_EQ(summe, 6);
}

TEST_F(StatistikFormTest, Zugehörigkeitstafel)
{
    Gemeinde();
    Öffnen<StatistikForm>();
    linkeGrenze = Finden<QLabel>("c0")->mapTo(form, QPoint()).x();
    EXPECT_EQ(ZeileBis("dd0"), "0|2|33,33%");
    EXPECT_EQ(ZeileBis("dd1"), "1|1|16,67%");
    EXPECT_EQ(ZeileBis("dd13"), "13|0|0,00%");
    EXPECT_EQ(ZeileBis("dd14"), "14|1|16,67%");
    EXPECT_EQ(ZeileBis("dd15"), "15 und mehr|1|16,67%");
    EXPECT_EQ(Kopf("c0"), "Zugehörigkeit (Jahre)");
    EXPECT_EQ(Kopf("d0"), "Anzahl absolut");
    EXPECT_EQ(Kopf("dd0"), "Anzahl relativ");
    for (int jahre = 0; jahre <= 14; ++jahre)
        EXPECT_EQ(Zeigt("c" + std::to_string(jahre)), std::to_string(jahre));
}

TEST_F(StatistikFormTest, Zusammensetzungstafel)
{
    Gemeinde();
    Öffnen<StatistikForm>();
    linkeGrenze = Finden<QLabel>("dd0")->mapTo(form, QPoint(Finden<QLabel>("dd0")->width(), 0)).x();
    EXPECT_EQ(ZeileBis("ee0"), "männlich|2|33,33%");
    EXPECT_EQ(ZeileBis("ee1"), "weiblich|3|50,00%");
    EXPECT_EQ(ZeileBis("ee2"), "Gaben- bereitung|5|83,33%");
    EXPECT_EQ(ZeileBis("ee3"), "Leuchter|4|66,67%");
    EXPECT_EQ(ZeileBis("ee4"), "Flammbeau|3|50,00%");
    EXPECT_EQ(ZeileBis("ee5"), "Weihrauch|2|33,33%");
    EXPECT_EQ(ZeileBis("ee6"), "Kreuzträger|1|16,67%");
    EXPECT_EQ(ZeileBis("ee7"), "Meßdiener insgesamt|6|100,00%");
    EXPECT_EQ(Kopf("e0"), "absolut");
    EXPECT_EQ(Kopf("ee0"), "relativ");
}

TEST_F(StatistikFormTest, Durchschnitte)
{
    Gemeinde();
    Öffnen<StatistikForm>();
    EXPECT_EQ(Zeigt("b0"), "13,444"); // 968 / (6 * 12) = 13.4444
    EXPECT_EQ(Zeigt("c20"), "5,139"); // 370 / (6 * 12) = 5.1389
    linkeGrenze = Finden<QLabel>("dd0")->mapTo(form, QPoint(Finden<QLabel>("dd0")->width(), 0)).x();
    EXPECT_EQ(ZeileBis("b0"), "Durchschnittsalter|13,444");
    EXPECT_EQ(ZeileBis("c20"), "Durchschnitt |5,139");
    EXPECT_EQ(Danach("b0"), "Jahre");
    EXPECT_EQ(Danach("c20"), "Jahre");
}

TEST_F(StatistikFormTest, TausendeJahreStehenInGruppen)
{
    Anlegen(DatumAus({100, 1, 1}), DatumAus({926, 11, 1}), "", "");
    Öffnen<StatistikForm>();
    EXPECT_EQ(Zeigt("b0"), "1.926,833"); // 1926 years and 10 months
    EXPECT_EQ(Zeigt("c20"), "1.100,000");
}

TEST_F(StatistikFormTest, OhneMeßdienerDivisionDurchNull)
{
    EXPECT_EQ(Scheitert<StatistikForm>(), "Laufzeitfehler '11': Division durch Null");
}

TEST_F(StatistikFormTest, ZeigtDenStandBeimÖffnen)
{
    Gemeinde();
    Öffnen<StatistikForm>();
    MeßdienerAnlegen("Ben", "Berg");
    EXPECT_EQ(Zeigt("e7"), "6");
}

TEST_F(StatistikFormTest, DiagrammVerbirgtDasFensterBisEsZuIst)
{
    Gemeinde();
    Meßdiener.Eintrittsdatum[5] = Heute;
    for (const char *knopf : {"OKButton", "CancelButton", ""}) {
        Öffnen<StatistikForm>();
        Klick("Diagramm");
        QWidget *diagramme = Fenster("Diagramme");
        EXPECT_EQ(diagramme->windowTitle(), "Diagramm");
        EXPECT_FALSE(form->isVisible());
        EXPECT_FALSE(haupt.isEnabled());
        if (*knopf)
            Klick(Finden(diagramme, knopf));
        else
            diagramme->close();
        EXPECT_TRUE(Warten([] { return !IstOffen("Diagramme"); }));
        ASSERT_TRUE(form) << knopf;
        EXPECT_TRUE(form->isVisible()) << knopf;
        EXPECT_FALSE(haupt.isEnabled());
        SchließtMit([&] { form->close(); });
    }
}

/// There is no row for them in the table of age against membership.
TEST_F(StatistikFormTest, OhneDiagrammWennEinerErstInEinemJahrEintritt)
{
    Gemeinde();
    Öffnen<StatistikForm>();
    Klick("Diagramm");
    EXPECT_EQ(GezeigteMeldungen.back(),
              "Laufzeitfehler '9': Index außerhalb des gültigen Bereichs");
    EXPECT_FALSE(IstOffen("Diagramme"));
    EXPECT_TRUE(form->isVisible());
}

TEST_F(StatistikFormTest, DrucktSichOhneKnöpfe)
{
    Gemeinde();
    Öffnen<StatistikForm>();
    Klick("Druck");
    const Text papier = PdfText(datei);
    for (const char *text : {"21.11.2026", "Durchschnittsalter", "13,444", "Flammbeau", "83,33%"})
        EXPECT_NE(papier.find(text), Text::npos) << text << "\n" << papier;
    for (const char *text : {"Ende", "Drucken", "Diagramm"})
        EXPECT_EQ(papier.find(text), Text::npos) << text;
    for (const char *knopf : {"Ende", "Druck", "Diagramm"})
        EXPECT_TRUE(Finden(knopf)->isVisible()) << knopf;
}

TEST_F(StatistikFormTest, DieTafelnStehenAufEinerHöheUndKeinKopfIstAbgeschnitten)
{
    Gemeinde();
    Öffnen<StatistikForm>();
    for (const QSize &größe : {form->sizeHint(), KleinsterBildschirm, form->minimumSizeHint()}) {
        SCOPED_TRACE(größe.width());
        form->resize(größe);
        QCoreApplication::processEvents();
        const auto oben = [this](const char *name) {
            return Finden(name)->mapTo(form, QPoint()).y();
        };
        EXPECT_EQ(oben("a9"), oben("d0"));
        EXPECT_EQ(oben("a9"), oben("e0"));
        for (const QLabel *label : form->findChildren<QLabel *>())
            EXPECT_TRUE(!label->wordWrap() ||
                        label->height() >= label->heightForWidth(label->width()))
                << label->text().toStdString();
    }
}

TEST_F(StatistikFormTest, Ordnung)
{
    Gemeinde();
    Öffnen<StatistikForm>();
    EXPECT_EQ(form->objectName(), "Statistik");
    EXPECT_EQ(form->windowTitle(), "Statistik");
    EXPECT_EQ(Zeigt("Ende"), "Ende");
    IstOrdentlich({"Ende", "Diagramm", "Druck"});
    SchließtMit([&] { Klick("Ende"); });
    Öffnen<StatistikForm>();
    SchließtMit([&] { form->close(); });
}

} // namespace
} // namespace altardienst
