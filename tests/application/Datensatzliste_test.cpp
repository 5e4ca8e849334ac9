// The list at the left of the editors: what it shows, its filter, its keys, how it folds.
#include "application/Datensatzliste.h"

#include "Formstand.h"
#include "application/Gemerktes.h"
#include "controls/Handler.h"

#include <QImage>

#include <algorithm>
#include <optional>
#include <utility>

namespace altardienst {
namespace {

/// An editor of ten names with nothing but the number box and a box as wide as the test wants.
class Kleineditor : public QWidget {
  public:
    explicit Kleineditor(int breite)
        : Wahl(new Datensatzwahl({"Nummer", "Plus", "Minus"})),
          Liste(new Datensatzliste(
              Wahl, {"Namen", "Mustermann, Max",
                     [this] { return Anzahl.value_or(static_cast<int>(Namen.size())); },
                     [this](int i) {
                         ++Gelesen;
                         const auto n = static_cast<std::size_t>(i);
                         return n < Namen.size() ? Namen[n] : Text("(leer)");
                     },
                     Abgefangen([this](int i) { Gewählt.push_back(i); })}))
    {
        Benannt(this, "Kleineditor");
        auto *inhalt = new QVBoxLayout;
        auto *feld = Benannt(new QLineEdit, "Feld");
        feld->setMinimumWidth(breite);
        inhalt->addWidget(feld);
        auto *spalte = Liste->Fensterspalte(this, Luft::Wenig);
        spalte->addLayout(Datensatzkopf(Wahl));
        spalte->addWidget(Rollbar(inhalt), 1);
        GrößeAnpassen(this);
        feld->setFocus();
    }

    Datensatzwahl *Wahl;
    Datensatzliste *Liste;
    std::vector<Text> Namen = {"Adler, Anna", "Berg, Bea",   "Cohn, Cem",  "Dorn, Dora",
                               "Ems, Emil",   "Frei, Franz", "Groß, Gabi", "Haas, Hanna",
                               "Ihde, Ina",   "Jung, Jan"};
    std::optional<int> Anzahl; // as a file claims it
    std::vector<int> Gewählt;
    int Gelesen = 0;
};

class DatensatzlisteTest : public Formstand<Kleineditor> {
  protected:
    void Öffnen(int breite = 200, const char *nummer = "2")
    {
        form = new Kleineditor(breite);
        form->Wahl->Nummer->setText(nummer);
        form->show();
        Zeigen(form);
    }

    std::vector<Text> Zeilen() const
    {
        QCoreApplication::processEvents();
        std::vector<Text> zeilen;
        const auto *modell = form->Liste->Liste->model();
        for (int zeile = 0; zeile < modell->rowCount(); ++zeile)
            zeilen.push_back(modell->index(zeile, 0).data().toString().toStdString());
        return zeilen;
    }

    /// The row that is marked, "" if none is.
    Text Markiert() const
    {
        QCoreApplication::processEvents();
        return form->Liste->Liste->currentIndex().data().toString().toStdString();
    }

    void KlickAuf(int zeile) const
    {
        QListView *liste = form->Liste->Liste;
        const QModelIndex stelle = liste->model()->index(zeile, 0);
        liste->scrollTo(stelle);
        QTest::mouseClick(liste->viewport(), Qt::LeftButton, {},
                          liste->visualRect(stelle).center());
    }

    using Liste = std::vector<int>;
};

TEST_F(DatensatzlisteTest, WenigerAlsKeinDatensatzIstKeiner)
{
    Öffnen();
    ASSERT_EQ(Zeilen().size(), 10U);
    form->Anzahl = -3;
    form->Liste->Folgen();
    EXPECT_EQ(Zeilen(), std::vector<Text>{});
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(DatensatzlisteTest, ZeigtAlleZeilenUndMarkiertDenGezeigten)
{
    Öffnen();
    EXPECT_EQ(Zeilen(), form->Namen);
    EXPECT_EQ(Markiert(), "Cohn, Cem");
    EXPECT_EQ(Stumme(form), std::vector<Text>{"Feld"}) << "everything of the list has a name";
}

TEST_F(DatensatzlisteTest, DieNummerFührtDieMarkeDerLeereSatzStehtMitDarin)
{
    Öffnen();
    Einsetzen("Nummer", "7");
    EXPECT_EQ(Markiert(), "Haas, Hanna");
    for (const char *keine : {"11", "32000", "-", ""}) {
        Einsetzen("Nummer", keine);
        EXPECT_EQ(Markiert(), "") << keine;
        EXPECT_EQ(Zeilen().size(), 10U);
    }
    Einsetzen("Nummer", "10");
    EXPECT_EQ(Markiert(), "(leer)");
    EXPECT_EQ(Zeilen().size(), 11U);
}

TEST_F(DatensatzlisteTest, EinKlickWähltErstBeimLoslassenAufDerselbenZeile)
{
    Öffnen();
    KlickAuf(4);
    EXPECT_EQ(form->Gewählt, Liste{4});
    EXPECT_EQ(Markiert(), "Cohn, Cem") << "the editor stayed at its record";
    QListView *liste = form->Liste->Liste;
    const auto mitte = [&](int zeile) {
        return liste->visualRect(liste->model()->index(zeile, 0)).center();
    };
    QTest::mousePress(liste->viewport(), Qt::LeftButton, {}, mitte(1));
    QTest::mouseMove(liste->viewport(), mitte(3));
    QTest::mouseRelease(liste->viewport(), Qt::LeftButton, {}, mitte(3));
    EXPECT_EQ(form->Gewählt, Liste{4});
    EXPECT_EQ(Markiert(), "Cohn, Cem");
}

TEST_F(DatensatzlisteTest, InDerListeWähltErstDieEingabetaste)
{
    Öffnen();
    FokusAuf("Liste");
    Taste(Qt::Key_Down);
    Taste(Qt::Key_Down);
    EXPECT_TRUE(form->Gewählt.empty());
    Taste(Qt::Key_Return);
    EXPECT_EQ(form->Gewählt, Liste{4});
    Taste(Qt::Key_Down);
    FokusAuf("Feld");
    EXPECT_EQ(Markiert(), "Cohn, Cem") << "a row that was only walked over leaves no mark";
}

TEST_F(DatensatzlisteTest, DerFilterSuchtTeileOhneGroßUndKlein)
{
    Öffnen();
    Tippen("Listenfilter", "AN");
    EXPECT_EQ(Zeilen(),
              (std::vector<Text>{"Adler, Anna", "Frei, Franz", "Haas, Hanna", "Jung, Jan"}));
    EXPECT_EQ(Markiert(), "") << "the record shown is not among them";
    Tippen("Listenfilter", "cem cohn");
    EXPECT_EQ(Zeilen(), std::vector<Text>{"Cohn, Cem"});
    EXPECT_EQ(Markiert(), "Cohn, Cem");
    Taste(Qt::Key_Escape);
    EXPECT_EQ(Zeilen(), form->Namen);
    EXPECT_TRUE(form->Gewählt.empty());
}

TEST_F(DatensatzlisteTest, EingabeImFilterWähltDenErstenPfeilAbGehtInDieListe)
{
    Öffnen();
    Taste(Finden("Listenfilter"), Qt::Key_Return);
    EXPECT_TRUE(form->Gewählt.empty()) << "nothing was asked for";
    Tippen("Listenfilter", "an");
    Taste(Qt::Key_Return);
    EXPECT_EQ(form->Gewählt, Liste{0});
    Taste(Qt::Key_Down);
    EXPECT_TRUE(Finden("Liste")->hasFocus());
    Taste(Qt::Key_Down);
    Taste(Qt::Key_Enter);
    EXPECT_EQ(form->Gewählt, (Liste{0, 5}));
    Taste(Qt::Key_Up);
    QCoreApplication::processEvents();
    Tippen("Listenfilter", "niemand");
    Taste(Qt::Key_Return);
    Taste(Qt::Key_Down);
    EXPECT_TRUE(Finden("Listenfilter")->hasFocus()) << "there is nothing to go to";
    EXPECT_EQ(form->Gewählt, (Liste{0, 5}));
}

TEST_F(DatensatzlisteTest, PfeilAufÜberDerErstenZeileGehtInDenFilter)
{
    Öffnen(200, "1");
    FokusAuf("Liste");
    Taste(Qt::Key_Up);
    EXPECT_TRUE(Finden("Liste")->hasFocus());
    Taste(Qt::Key_Up);
    EXPECT_TRUE(Finden("Listenfilter")->hasFocus());
}

TEST_F(DatensatzlisteTest, FolgtDenTabellen)
{
    Öffnen();
    form->Namen[2] = "Abel, Cem";
    form->Namen.erase(form->Namen.begin() + 5);
    form->Liste->Folgen();
    EXPECT_EQ(Zeilen(), form->Namen);
    EXPECT_EQ(Markiert(), "Abel, Cem");
}

TEST_F(DatensatzlisteTest, NurWasZuSehenIstWirdGelesen)
{
    Gemerktes().setValue("Liste/Kleineditor", false);
    Öffnen();
    form->Liste->Folgen();
    Einsetzen("Nummer", "3");
    QCoreApplication::processEvents();
    EXPECT_EQ(form->Gelesen, 0) << "it is folded";
}

TEST_F(DatensatzlisteTest, ZugeklapptBleibtEsBisZumNächstenMal)
{
    Öffnen();
    ASSERT_TRUE(Finden("Liste")->isVisible());
    const int breit = form->width();
    Klick("Listengriff");
    EXPECT_FALSE(Finden("Liste")->isVisible());
    EXPECT_FALSE(Finden("Listenfilter")->isVisible());
    EXPECT_LT(form->width(), breit) << "the window needs no room for it";
    EXPECT_EQ(Finden("Listengriff")->accessibleName(), "Liste aufklappen");
    delete form;
    Öffnen();
    EXPECT_FALSE(Finden("Liste")->isVisible());
    Klick("Listengriff");
    EXPECT_TRUE(Finden("Liste")->isVisible());
    EXPECT_EQ(Markiert(), "Cohn, Cem");
    EXPECT_NEAR(form->width(), breit, 24) << "and may need a scroll bar";
    delete form;
    Öffnen();
    EXPECT_TRUE(Finden("Liste")->isVisible());
}

/// Where the ink of a picture lies, from the left to the right.
std::pair<int, int> Tinte(const QImage &bild)
{
    int links = bild.width();
    int rechts = -1;
    for (int y = 0; y < bild.height(); ++y)
        for (int x = 0; x < bild.width(); ++x)
            if (bild.pixelColor(x, y).lightness() < 160) {
                links = std::min(links, x);
                rechts = std::max(rechts, x);
            }
    return {links, rechts};
}

TEST_F(DatensatzlisteTest, EineZuLangeZeileEndetVorDemRandEineKurzeWieSieIst)
{
    Öffnen();
    form->Namen[0] = "Mustermann-Musterfrau, Maximiliana Eleonore Friederike";
    form->Namen[1] = "Ode, Jo";
    form->Liste->Folgen();
    QCoreApplication::processEvents();
    QListView *liste = form->Liste->Liste;
    liste->selectionModel()->clear();
    const auto zeile = [&](int nummer) {
        return Tinte(
            liste->viewport()->grab(liste->visualRect(liste->model()->index(nummer, 0))).toImage());
    };
    const int breite = liste->viewport()->width();
    EXPECT_GT(zeile(0).second, breite - 16); // "…", in the last bit of room
    EXPECT_LT(zeile(0).second, breite - 1);
    const int schrift = liste->fontMetrics().horizontalAdvance("Ode, Jo");
    EXPECT_NEAR(zeile(1).second - zeile(1).first, schrift, 4);
}

TEST_F(DatensatzlisteTest, DerGezeigteSatzStehtFettUndDerGewählteInDenFarbenDerWahl)
{
    Öffnen();
    QCoreApplication::processEvents();
    QListView *liste = form->Liste->Liste;
    const QRect ort = liste->visualRect(liste->model()->index(2, 0));
    const QImage gewählt = liste->viewport()->grab(ort).toImage();
    EXPECT_EQ(gewählt.pixelColor(gewählt.width() - 3, gewählt.height() / 2),
              liste->palette().color(QPalette::Highlight));
    liste->selectionModel()->clear();
    const auto [links, rechts] = Tinte(liste->viewport()->grab(ort).toImage());
    EXPECT_GT(rechts - links, liste->fontMetrics().horizontalAdvance(Anzeige(form->Namen[2])));
}

TEST_F(DatensatzlisteTest, DerPfeilAmGriffZeigtWohinErKlappt)
{
    Öffnen();
    const auto spitze = [this] { // the column with the least ink
        QToolButton *griff = form->Liste->Griff;
        const QImage bild = griff->grab().toImage();
        const auto [links, rechts] = Tinte(bild);
        const auto höhe = [&](int x) {
            int anzahl = 0;
            for (int y = 0; y < bild.height(); ++y)
                anzahl += bild.pixelColor(x, y).lightness() < 160;
            return anzahl;
        };
        return höhe(links) < höhe(rechts) ? "links" : "rechts";
    };
    EXPECT_EQ(Text(spitze()), "links");
    Klick(form->Liste->Griff);
    EXPECT_EQ(Text(spitze()), "rechts");
}

TEST_F(DatensatzlisteTest, DerGriffNimmtKeinemFeldDenFokus)
{
    Öffnen();
    Klick("Listengriff");
    EXPECT_TRUE(Finden("Feld")->hasFocus());
}

TEST_F(DatensatzlisteTest, StrgLRuftDieListeUndKlapptSieZu)
{
    const auto strgL = [this] { QTest::keyClick(form, Qt::Key_L, Qt::ControlModifier); };
    Öffnen();
    strgL();
    EXPECT_TRUE(Finden("Listenfilter")->hasFocus());
    strgL();
    EXPECT_FALSE(Finden("Liste")->isVisible());
    EXPECT_TRUE(Finden("Feld")->hasFocus()) << "where one was before";
    strgL();
    EXPECT_TRUE(Finden("Listenfilter")->hasFocus());
    EXPECT_TRUE(Finden("Liste")->isVisible());
}

TEST_F(DatensatzlisteTest, WoKeinPlatzIstGibtDieListeNach)
{
    Öffnen(300);
    QScrollArea *fläche = form->findChild<QScrollArea *>();
    const int breit = form->width();
    for (int breite = breit; breite >= form->minimumWidth() + 20; breite -= 10) {
        form->resize(breite, form->height());
        QCoreApplication::processEvents();
        if (!form->Liste->IstOffen())
            break;
        EXPECT_GE(fläche->viewport()->width(), fläche->widget()->minimumSizeHint().width())
            << "nothing rolls sideways at " << breite;
    }
    EXPECT_FALSE(form->Liste->IstOffen());
    EXPECT_FALSE(Finden("Liste")->isVisible());
    form->resize(breit, form->height());
    EXPECT_TRUE(Warten([&] { return form->Liste->IstOffen(); })) << "there is room again";
    EXPECT_TRUE(Gemerktes().allKeys().isEmpty()) << "the user has chosen nothing";
}

TEST_F(DatensatzlisteTest, OhnePlatzStehtSieNurFürEineWahlOffen)
{
    Öffnen(5000); // wider than any screen
    EXPECT_FALSE(form->Liste->IstOffen());
    Klick("Listengriff");
    EXPECT_TRUE(form->Liste->IstOffen());
    EXPECT_TRUE(Finden("Liste")->isVisible());
    QCoreApplication::processEvents();
    KlickAuf(4);
    EXPECT_EQ(form->Gewählt, Liste{4});
    QCoreApplication::processEvents();
    EXPECT_FALSE(form->Liste->IstOffen());
}

TEST_F(DatensatzlisteTest, TabErreichtSieNachAllenAnderen)
{
    Öffnen();
    FokusAuf("Feld");
    EXPECT_EQ(Tabfolge(form), (std::vector<Text>{"Feld", "Listenfilter", "Liste", "Nummer"}));
}

} // namespace
} // namespace altardienst
