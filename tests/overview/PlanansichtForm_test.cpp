// The plan at a glance: what stands there, and that it follows every change.
#include "overview/Planstand.h"

#include <QMenu>
#include <QSignalSpy>

namespace altardienst {
namespace {

using Liste = std::vector<Text>;

class PlanansichtFormTest : public Planstand {
  protected:
    Liste Köpfe() const
    {
        Liste köpfe;
        for (int spalte = 0; spalte < plan->Tafel->model()->columnCount(); ++spalte)
            if (!plan->Tafel->isColumnHidden(spalte))
                köpfe.push_back(plan->Tafel->model()
                                    ->headerData(spalte, Qt::Horizontal)
                                    .toString()
                                    .toStdString());
        return köpfe;
    }

    Liste Zeile(int zeile) const
    {
        Liste texte;
        for (int spalte = 0; spalte < plan->Tafel->model()->columnCount(); ++spalte)
            if (!plan->Tafel->isColumnHidden(spalte))
                texte.push_back(Steht(zeile, spalte));
        return texte;
    }
};

TEST_F(PlanansichtFormTest, EineZeileJeMesseUndEineSpalteJePlatz)
{
    PlanÖffnen();
    EXPECT_EQ(Köpfe(),
              (Liste{"", "Tag", "Datum", "Zeit", "Art", "Diener 1", "Diener 2", "Lektor 1"}));
    EXPECT_EQ(Zeile(0), (Liste{"", "Sa", "28.11.", "10:00", "Messe", "Anna Ad.", "Cem C.", ""}));
    EXPECT_EQ(Zeile(1), (Liste{"", "So", "29.11.", "10:00", "Hochamt", "Anna Ar. Leuchter",
                               "Doris D.", "Lea L."}));
    EXPECT_EQ(plan->Tafel->model()->rowCount(), 4);
}

TEST_F(PlanansichtFormTest, NurWasEineMesseWünschtHatEineSpalteOderGiltAlsPlatz)
{
    Messe.KollektZahl[2] = 2;
    Messe.Dienerzahl[3] = 4;
    PlanÖffnen();
    EXPECT_EQ(Köpfe(), (Liste{"", "Tag", "Datum", "Zeit", "Art", "Diener 1", "Diener 2", "Diener 3",
                              "Diener 4", "Lektor 1", "Kollektant 1", "Kollektant 2"}));
    EXPECT_TRUE(Modell()->Zelle(3, Plätze + 3).Gewollt);
    EXPECT_FALSE(Modell()->Zelle(0, Plätze + 3).Gewollt);
    EXPECT_FALSE(Modell()->Zelle(0, Plätze + 4).Gewollt);
}

TEST_F(PlanansichtFormTest, WochenStehenZusammenVomWochentagDesPlansAn)
{
    PlanÖffnen();
    const auto anfänge = [&] {
        std::vector<bool> erste;
        for (int zeile = 0; zeile < 4; ++zeile)
            erste.push_back(Modell()->BeginntWoche(zeile));
        return erste;
    };
    EXPECT_EQ(anfänge(), (std::vector{false, false, false, true})) << "from Saturday to Friday";
    Konfig.StartWochentag = 1;
    plan->Nachziehen();
    EXPECT_EQ(anfänge(), (std::vector{false, true, false, true}));
}

TEST_F(PlanansichtFormTest, DerZettelNenntDenGanzenNamenDenDienstUndWasNichtStimmt)
{
    PlanÖffnen();
    EXPECT_EQ(Zelle(1, Plätze).data(Qt::ToolTipRole).toString(), "Anna Arndt – Leuchter");
    const Text offen = Zelle(3, Plätze + 1).data(Qt::ToolTipRole).toString().toStdString();
    ASSERT_FALSE(Modell()->Prüfung().Von(3).empty());
    const Befund &befund = Modell()->Prüfung().Von(3).front();
    EXPECT_EQ(offen, "offen – Allgemein\n" + Satz(GemeinsameTabellen(), befund));
    EXPECT_EQ(Modell()->Zelle(3, Plätze + 1).Zeichen, befund.Grad);
    EXPECT_EQ(Modell()->Gravierendstes(3), Stufe::Verstoß);
    EXPECT_FALSE(Modell()->Zelle(0, Plätze).Zeichen);
}

TEST_F(PlanansichtFormTest, EineÄnderungAnEinemPlatzErneuertNurIhreZeile)
{
    PlanÖffnen();
    const QSignalSpy neu(Modell(), &QAbstractItemModel::modelReset);
    const QSignalSpy geändert(Modell(), &QAbstractItemModel::dataChanged);
    Meßdiener.Anzahl = 4;
    plan->Nachziehen();
    EXPECT_EQ(geändert.count(), 0) << "nothing has changed";
    Stellen(3, 2, 2);
    plan->Nachziehen();
    EXPECT_EQ(Steht(3, Plätze + 1), "Cem C.");
    EXPECT_EQ(neu.count(), 0);
    ASSERT_EQ(geändert.count(), 1);
    EXPECT_EQ(geändert[0][0].toModelIndex().row(), 3);
    EXPECT_EQ(geändert[0][1].toModelIndex().row(), 3);
    EXPECT_FALSE(Modell()->Zelle(3, Plätze + 1).Zeichen) << "the finding is gone";
}

TEST_F(PlanansichtFormTest, EineUmbenennungGehtDurchDenGanzenPlan)
{
    PlanÖffnen();
    for (const int messe : {1, 3})
        Messe.DienerNach[messe][1] = "Zorn";
    Meßdiener.Nachname[1] = "Zorn";
    plan->Nachziehen();
    EXPECT_EQ(Steht(1, Plätze), "Anna Z. Leuchter");
    EXPECT_EQ(Steht(0, Plätze), "Anna A.") << "there is only one Anna A. left";
}

TEST_F(PlanansichtFormTest, EinUnbekannterNameKürztDieAnderenMit)
{
    PlanÖffnen();
    EXPECT_EQ(Steht(0, Plätze + 1), "Cem C.");
    Messe.DienerVor[3][2] = "Cem";
    Messe.DienerNach[3][2] = "Clausen";
    plan->Nachziehen();
    EXPECT_EQ(Steht(3, Plätze + 1), "Cem Cl.");
    EXPECT_EQ(Steht(0, Plätze + 1), "Cem Co.");
}

TEST_F(PlanansichtFormTest, WerGegangenWarWirdUnterschiedenWennErWiederkommt)
{
    PlanÖffnen();
    const auto clausen = [this](const char *vorname, const char *nachname) {
        Messe.DienerVor[3][2] = vorname;
        Messe.DienerNach[3][2] = nachname;
        plan->Nachziehen();
    };
    clausen("Cem", "Clausen");
    clausen("", "");
    Meßdiener.Größe[0] = 151; // everything is read again
    plan->Nachziehen();
    EXPECT_EQ(Steht(0, Plätze + 1), "Cem C.");
    clausen("Cem", "Clausen");
    EXPECT_EQ(Steht(3, Plätze + 1), "Cem Cl.");
    EXPECT_EQ(Steht(0, Plätze + 1), "Cem Co.");
}

TEST_F(PlanansichtFormTest, EineGruppeDieEsNichtMehrGibtFehltSofort)
{
    Gruppe.Anzahl = 1;
    Gruppe.Bezeichnung[0] = "Große";
    Messe.DienerVor[3][2] = "Gruppe";
    Messe.DienerNach[3][2] = "Große";
    PlanÖffnen();
    EXPECT_FALSE(Modell()->Zelle(3, Plätze + 1).Zeichen);
    Gruppe.Anzahl = 0;
    plan->Nachziehen();
    EXPECT_EQ(Modell()->Zelle(3, Plätze + 1).Zeichen, Stufe::Verstoß);
}

TEST_F(PlanansichtFormTest, IstDieMesseInOrdnungGebrachtStehtManAufDerNächsten)
{
    for (const int messe : {0, 1, 2})
        Messe.DienerVor[messe][2] = Messe.DienerNach[messe][2] = "";
    PlanÖffnen();
    Klick(plan->NurAuffälliges);
    ASSERT_EQ(plan->Tafel->model()->rowCount(), 4);
    Anklicken(Zelle(1, Plätze + 1));
    Stellen(1, 2, 3);
    plan->Nachziehen();
    ASSERT_EQ(plan->Tafel->model()->rowCount(), 3);
    EXPECT_EQ(Steht(1, Planmodell::Datumspalte), "03.12.");
    EXPECT_EQ(plan->Tafel->currentIndex(), Zelle(1, Plätze + 1));
    EXPECT_TRUE(plan->WerKannHier->isEnabled());
    Anklicken(Zelle(2, Plätze + 1));
    Stellen(3, 2, 3);
    plan->Nachziehen();
    EXPECT_EQ(plan->Tafel->currentIndex(), Zelle(1, Plätze + 1)) << "the last one that is left";
}

TEST_F(PlanansichtFormTest, WerMarkiertWirdÄndertKeineSpalte)
{
    PlanÖffnen();
    plan->Tafel->setColumnWidth(Plätze, 33); // as no column is set by itself
    int gewählt = 0;
    const auto zuvor = plan->Tafel->BeiWahl;
    plan->Tafel->BeiWahl = [&] {
        ++gewählt;
        zuvor();
    };
    plan->Tafel->setCurrentIndex(Zelle(0, Plätze));
    EXPECT_GE(Modell()->Markierter(), 0);
    EXPECT_EQ(gewählt, 1);
    EXPECT_EQ(plan->Tafel->columnWidth(Plätze), 33);
}

TEST_F(PlanansichtFormTest, NurAuffälligesBlendetDieÜbrigenMessenAus)
{
    PlanÖffnen();
    Klick(plan->NurAuffälliges);
    Liste übrige;
    for (int zeile = 0; zeile < plan->Tafel->model()->rowCount(); ++zeile) {
        übrige.push_back(Steht(zeile, Planmodell::Datumspalte));
        EXPECT_TRUE(Modell()->Gravierendstes(zeile));
    }
    EXPECT_LT(übrige.size(), 4U);
    EXPECT_EQ(übrige.back(), "06.12.");
    EXPECT_EQ(Modell()->Ort(Zelle(static_cast<int>(übrige.size()) - 1, Plätze)),
              Dienerplatznr(3, 1));
    Klick(plan->NurAuffälliges);
    EXPECT_EQ(plan->Tafel->model()->rowCount(), 4);
}

TEST_F(PlanansichtFormTest, ZweiDiensteAmSelbenTagStehenAlsSolcheInDerFolge)
{
    PlanÖffnen();
    Messe.Datum[1] = Messe.Datum[0];
    Messe.Uhrzeit[1] = ZeitAus(18 * 3600);
    Stellen(1, 2, 0);
    plan->Nachziehen();
    Anklicken(Zelle(0, Plätze));
    EXPECT_EQ(Zeigt(plan->Abstände),
              "28.11. Allgemein · am selben Tag Allgemein · nach 5 Tagen 03.12. Allgemein");
}

TEST_F(PlanansichtFormTest, EineAbgewählteRegelHatKeinZeichenZähltNichtUndStehtNichtInDerListe)
{
    PlanÖffnen();
    Stellen(1, 2, 1); // Anna Arndt twice in the Hochamt
    plan->Nachziehen();
    ASSERT_EQ(Modell()->Gravierendstes(1), Stufe::Verstoß);
    QMenu *menü = plan->Regelmenü;
    const auto regel = [&](const QString &name) {
        const auto einträge = menü->actions();
        return *std::ranges::find_if(einträge, [&](const QAction *eintrag) {
            return eintrag->text().section('\t', 0, 0) == name;
        });
    };
    Klick(plan->Regeln);
    ASSERT_TRUE(menü->isVisible());
    EXPECT_EQ(regel("Doppelt in der Messe")->text().section('\t', 1), "1");
    QTest::mouseClick(menü, Qt::LeftButton, {},
                      menü->actionGeometry(regel("Doppelt in der Messe")).center());
    EXPECT_TRUE(menü->isVisible()) << "for the next rule";
    menü->close();
    EXPECT_FALSE(Modell()->Gravierendstes(1));
    EXPECT_EQ(Zelle(1, Plätze + 1).data(Qt::ToolTipRole).toString().count('\n'), 0);
    EXPECT_EQ(plan->Liste->Befunde->model()->rowCount(), 1);
    EXPECT_EQ(Zeigt(plan->Liste->Zahlen), "1 Verstoß (nicht beachtet: Doppelt in der Messe)");
    Wiederkommen();
    EXPECT_FALSE(Modell()->Gravierendstes(1)) << "remembered";
    menü = plan->Regelmenü;
    regel("alle")->trigger();
    EXPECT_EQ(Modell()->Gravierendstes(1), Stufe::Verstoß);
}

} // namespace
} // namespace altardienst
