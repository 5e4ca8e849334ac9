// The window "Verteilung".
#include "fairness/VerteilungForm.h"

#include "Formstand.h"
#include "fairness/Archiv.h"
#include "printing/Druckprotokoll.h"
#include "statistics/QCustomPlot.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>

#include <utility>

namespace altardienst {
namespace {

class VerteilungFormTest : public Formstand<VerteilungForm> {
  protected:
    using Liste = std::vector<Text>;

    VerteilungFormTest()
    {
        for (const char *name : {"Adler", "Busch", "Clausen"})
            MeßdienerAnlegen("Kim", name);
        HelferAnlegen("Maria", "Linde", "Lektor");
        for (int woche = 0; woche < 3; ++woche)
            MesseMitDienern(Heute + 7 * woche, 2);
        Messe.Leuchter[0] = 1;
        Messe.LektorZahl[1] = 1;
        for (int i = 0; i < 3; ++i)
            Besetzen(Messe, Dienerplatznr(i, 1), "Kim", "Busch");
        Besetzen(Messe, Dienerplatznr(2, 2), "Kim", "Clausen");
        Besetzen(Messe, Helferplatznr(1, 0), "Maria", "Linde");
    }
    ~VerteilungFormTest() override { QApplication::clipboard()->clear(); }

    void Öffnen()
    {
        form = new VerteilungForm;
        Zeigen(form);
    }

    int Spalte(const Text &kopf) const
    {
        for (int spalte = 0; spalte < form->Tafel->columnCount(); ++spalte)
            if (form->Tafel->horizontalHeaderItem(spalte)->text().toStdString() == kopf)
                return spalte;
        throw std::runtime_error("no column " + kopf);
    }

    /// From the first row to the last.
    Liste Werte(const Text &kopf) const
    {
        Liste werte;
        for (int zeile = 0; zeile < form->Tafel->rowCount(); ++zeile)
            werte.push_back(form->Tafel->item(zeile, Spalte(kopf))->text().toStdString());
        return werte;
    }

    void KopfAnklicken(const Text &kopf) const
    {
        QHeaderView *leiste = form->Tafel->horizontalHeader();
        form->Tafel->scrollTo(form->Tafel->model()->index(0, Spalte(kopf)));
        QTest::mouseClick(
            leiste->viewport(), Qt::LeftButton, {},
            {leiste->sectionViewportPosition(Spalte(kopf)) + 5, leiste->height() / 2});
    }

    static void Wählen(QComboBox *wahl, const QString &eintrag)
    {
        FokusAuf(wahl);
        for (int proben = 0; proben < 8 && wahl->currentText() != eintrag; ++proben)
            QTest::keyClick(wahl, Qt::Key_Down);
        ASSERT_EQ(wahl->currentText(), eintrag);
    }

    /// The counts of the bars, from none on.
    std::vector<int> Balken() const
    {
        auto *bild = form->Bild->findChild<QCustomPlot *>();
        const auto *balken = dynamic_cast<QCPBars *>(bild->plottable(0));
        std::vector<int> anzahl;
        for (int k = 0; k < balken->dataCount(); ++k)
            anzahl.push_back(static_cast<int>(balken->dataMainValue(k)));
        return anzahl;
    }

    /// The plan becomes one of the past: the masses are two months later.
    void AufhebenUndVerschieben()
    {
        PlanArchivieren();
        for (int i = 0; i < 3; ++i)
            Messe.Datum[i] += 60;
    }

    std::filesystem::path Datei() const
    {
        return Festplatte / "Archiv" / Archivname({Heute, Heute + 14});
    }
};

TEST_F(VerteilungFormTest, ZeigtJedenMitSeinenDienstenUndDasBildDazu)
{
    Öffnen();
    EXPECT_EQ(Werte("Name"), (Liste{"Adler, Kim", "Busch, Kim", "Clausen, Kim"}));
    EXPECT_EQ(Werte("Dienste"), (Liste{"0", "3", "1"}));
    EXPECT_EQ(Werte("Anteil"), (Liste{"2,0", "2,0", "2,0"}));
    EXPECT_EQ(Werte("Abweichung"), (Liste{"-2,0", "+1,0", "-1,0"}));
    EXPECT_EQ(Werte("Leuchter"), (Liste{"", "1", ""}));
    EXPECT_EQ(Werte("erster"), (Liste{"", "21.11.2026", "05.12.2026"}));
    EXPECT_EQ(Werte("nächster"), (Liste{"", "21.11.2026", "05.12.2026"}));
    EXPECT_EQ(Werte("längster Abstand"), (Liste{"", "7 Tage", ""}));
    EXPECT_EQ(Balken(), (std::vector<int>{1, 1, 0, 1})) << "how many serve not at all, once, ...";
    EXPECT_FALSE(form->Hinweis->isVisible());
}

TEST_F(VerteilungFormTest, EinKlickAufDenKopfSortiertNachZahlen)
{
    Besetzen(Messe, Dienerplatznr(0, 2), "Kim", "Clausen");
    for (int woche = 3; woche < 11; ++woche) // 11 services are more than 2
        Besetzen(Messe, Dienerplatznr(MesseMitDienern(Heute + 7 * woche, 1), 1), "Kim", "Busch");
    Öffnen();
    KopfAnklicken("Dienste");
    EXPECT_EQ(Werte("Dienste"), (Liste{"0", "2", "11"}));
    KopfAnklicken("Dienste");
    EXPECT_EQ(Werte("Dienste"), (Liste{"11", "2", "0"}));
    EXPECT_EQ(Werte("Name"), (Liste{"Busch, Kim", "Clausen, Kim", "Adler, Kim"}));
    KopfAnklicken("letzter");
    EXPECT_EQ(Werte("letzter"), (Liste{"", "05.12.2026", "30.01.2027"}));
}

TEST_F(VerteilungFormTest, HelferHabenIhreEigenenSpalten)
{
    Öffnen();
    Wählen(form->Wer, "Helfer");
    EXPECT_EQ(Werte("Name"), Liste{"Linde, Maria"});
    EXPECT_EQ(Werte("Lektor"), Liste{"1"});
    EXPECT_EQ(Balken(), (std::vector<int>{0, 1}));
    EXPECT_THROW(Spalte("Leuchter"), std::runtime_error);
}

TEST_F(VerteilungFormTest, DasArchivZähltAufWunschMit)
{
    AufhebenUndVerschieben();
    Öffnen();
    EXPECT_EQ(Werte("Archiv"), (Liste{"", "", ""}));
    Wählen(form->Zeitraum, "mit den letzten 3 Monaten");
    EXPECT_EQ(Werte("Archiv"), (Liste{"", "3", "1"}));
    EXPECT_EQ(Werte("Dienste"), (Liste{"0", "3", "1"})) << "of this plan";
    EXPECT_EQ(Werte("Anteil"), (Liste{"3,0", "0,5", "2,5"}))
        << "all reach the same together, but nobody more than a service a week";
    Wählen(form->Wer, "Helfer");
    EXPECT_EQ(Werte("Archiv"), Liste{"1"});
}

TEST_F(VerteilungFormTest, EineUnlesbareDateiZähltNichtUndWirdGenannt)
{
    AufhebenUndVerschieben();
    const auto lesen = Laufwerke.Lesen;
    Laufwerke.Lesen = [](const std::filesystem::path &) -> std::string {
        throw Laufzeitfehler(Laufzeitfehler::ZugriffVerweigert);
    };
    Öffnen();
    EXPECT_FALSE(form->Hinweis->isVisible()) << "not asked for";
    Wählen(form->Zeitraum, "mit den letzten 3 Monaten");
    EXPECT_EQ(Zeigt("Hinweis"), "Eine Datei im Archiv ist nicht lesbar und zählt nicht mit.");
    EXPECT_TRUE(form->Hinweis->isVisible());
    EXPECT_EQ(Werte("Archiv"), (Liste{"", "", ""}));
    EXPECT_TRUE(GezeigteMeldungen.empty());
    Laufwerke.Lesen = lesen;
    Wählen(form->Zeitraum, "mit den letzten 6 Monaten");
    EXPECT_EQ(Werte("Archiv"), (Liste{"", "3", "1"}));
    EXPECT_FALSE(form->Hinweis->isVisible());
}

TEST_F(VerteilungFormTest, EinVerzeichnisAnStelleDerDateiZähltNicht)
{
    std::filesystem::create_directories(Datei());
    for (int i = 0; i < 3; ++i)
        Messe.Datum[i] += 60;
    Öffnen();
    Wählen(form->Zeitraum, "mit den letzten 3 Monaten");
    EXPECT_EQ(Werte("Archiv"), (Liste{"", "", ""}));
    EXPECT_EQ(Werte("Dienste"), (Liste{"0", "3", "1"}));
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(VerteilungFormTest, KopierenLegtDieTabelleInDieZwischenablage)
{
    Öffnen();
    Taste(form->Kopieren, Qt::Key_Space);
    const QStringList zeilen = QApplication::clipboard()->text().split('\n');
    ASSERT_EQ(zeilen.size(), 5); // a heading, three persons, the end of the last line
    EXPECT_TRUE(
        zeilen[0].startsWith("Name\tDienste\tAnteil\tAbweichung\tArchiv\tGabenbereitung\t"));
    EXPECT_TRUE(zeilen[2].startsWith("Busch, Kim\t3\t2,0\t+1,0\t\t\t1\t"));
    EXPECT_EQ(Zeigt("Hinweis"), "Die Tabelle liegt in der Zwischenablage.");
    EXPECT_TRUE(form->Hinweis->isVisible());
}

TEST_F(VerteilungFormTest, DruckenBringtJedenAufsPapier)
{
    Druckprotokoll papier;
    DruckerDienst *zuvor = std::exchange(Drucker, &papier);
    Konfig.Gemeinde = "Sankt Beispiel";
    Öffnen();
    Klick("Drucken");
    EXPECT_EQ(papier.WieOft("Print \"Verteilung der Dienste, Meßdiener\""), 1);
    EXPECT_EQ(papier.WieOft("Print \"Sankt Beispiel\""), 1);
    EXPECT_EQ(papier.WieOft("Print \"Adler, Kim: 0 Dienste (Anteil 2,0)\""), 1);
    EXPECT_EQ(
        papier.WieOft("Print \"Busch, Kim: 3 Dienste (Anteil 2,0), 1 Leuchter, 2 Allgemein\""), 1);
    EXPECT_EQ(papier.WieOft("Print \"Clausen, Kim: 1 Dienst (Anteil 2,0), 1 Allgemein\""), 1);
    EXPECT_EQ(papier.WieOft("NewPage"), 1);
    EXPECT_EQ(papier.WieOft("EndDoc"), 1);
    papier.Leeren();
    Wählen(form->Wer, "Helfer");
    Klick("Drucken");
    EXPECT_EQ(papier.WieOft("Print \"Verteilung der Dienste, Helfer\""), 1);
    EXPECT_EQ(papier.WieOft("Print \"Linde, Maria: 1 Dienst (Anteil 1,0), 1 Lektor\""), 1);
    papier.Leeren();
    papier.Antwort.reset(); // cancelled
    Klick("Drucken");
    EXPECT_EQ(papier.WieOft("Print \"Verteilung der Dienste, Helfer\""), 0);
    EXPECT_EQ(papier.WieOft("EndDoc"), 0);
    Drucker = zuvor;
}

TEST_F(VerteilungFormTest, EineLangeListeGehtAufMehrereSeiten)
{
    Druckprotokoll papier;
    DruckerDienst *zuvor = std::exchange(Drucker, &papier);
    for (int j = 0; j < 150; ++j)
        MeßdienerAnlegen("V" + std::to_string(j), "N");
    Öffnen();
    Klick("Drucken");
    EXPECT_GE(papier.WieOft("NewPage"), 3);
    for (int j = 0; j < 150; ++j)
        EXPECT_EQ(papier.WieOft("Print \"N, V" + std::to_string(j) + ": 0 Dienste (Anteil 0,0)\""),
                  1)
            << j;
    Drucker = zuvor;
}

TEST_F(VerteilungFormTest, OhneLeuteIstDieTafelLeer)
{
    Meßdiener.Anzahl = 0;
    Messe.Anzahl = 0;
    Öffnen();
    EXPECT_EQ(form->Tafel->rowCount(), 0);
    Klick("Kopieren");
    Klick("Ende");
    EXPECT_FALSE(IstOffen("Verteilung"));
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

} // namespace
} // namespace altardienst
