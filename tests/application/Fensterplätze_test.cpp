// Windows open where and as large as they were last time.
#include "application/Fensterplätze.h"

#include "Fensterstand.h"
#include "application/Gemerktes.h"

#include <QMainWindow>
#include <QPointer>
#include <QScreen>
#include <QVBoxLayout>

#include <memory>

namespace altardienst {
namespace {

class FensterplätzeTest : public Fensterstand {
  protected:
    FensterplätzeTest()
    {
        GemerktesIn(Datei());
        plätze.reset(FensterplätzeMerken(*qApp));
    }

    ~FensterplätzeTest() override
    {
        plätze.reset();
        GemerktesIn(zuvor);
    }

    QString Datei() const { return Anzeige((Festplatte / "Fenster.ini").string()); }

    static QWidget *Öffnen(const char *name = "Liste")
    {
        auto *fenster = Benannt(new QWidget, name);
        fenster->setAttribute(Qt::WA_DeleteOnClose);
        Zeigen(fenster);
        return fenster;
    }

    static void Schließen(QPointer<QWidget> fenster)
    {
        fenster->close();
        EXPECT_TRUE(Warten([&] { return !fenster; }));
    }

    static void Hinstellen(QWidget *fenster, const QRect &platz)
    {
        fenster->setGeometry(platz);
        QCoreApplication::processEvents();
    }

    static QRect Platz(const QWidget *fenster) { return fenster->geometry(); }

    QString zuvor = Gemerktes().fileName();
    std::unique_ptr<QObject> plätze;
};

TEST_F(FensterplätzeTest, EsÖffnetSichWoUndSoGroßEsWar)
{
    const QRect platz(120, 90, 400, 300);
    QWidget *liste = Öffnen();
    Hinstellen(liste, platz);
    Schließen(liste);
    QWidget *anderes = Öffnen("Anderes");
    EXPECT_NE(Platz(anderes), platz);
    EXPECT_EQ(Platz(Öffnen()), platz);
}

TEST_F(FensterplätzeTest, AuchBeimNächstenStart)
{
    const QRect platz(130, 80, 410, 310);
    QWidget *liste = Öffnen();
    Hinstellen(liste, platz);
    Schließen(liste);
    Gemerktes().sync();
    GemerktesIn(Anzeige((Festplatte / "Andere.ini").string()));
    QWidget *ohne = Öffnen();
    EXPECT_NE(Platz(ohne), platz);
    Hinstellen(ohne, {10, 10, 300, 200});
    Schließen(ohne);
    GemerktesIn(Datei());
    EXPECT_EQ(Platz(Öffnen()), platz);
}

TEST_F(FensterplätzeTest, EinFensterDasVerborgenWarWandertNicht)
{
    QWidget *liste = Öffnen();
    const QRect platz(150, 70, 350, 250);
    Hinstellen(liste, platz);
    for (int i = 0; i < 10; ++i) {
        liste->hide();
        Zeigen(liste);
        EXPECT_EQ(Platz(liste), platz);
    }
}

TEST_F(FensterplätzeTest, MaximiertBleibtMaximiertUndKehrtZurück)
{
    const QRect platz(140, 60, 360, 260);
    QWidget *liste = Öffnen();
    Hinstellen(liste, platz);
    Schließen(liste);
    liste = Öffnen();
    liste->showMaximized();
    Schließen(liste);
    liste = Öffnen();
    EXPECT_TRUE(liste->isMaximized());
    liste->showNormal();
    EXPECT_TRUE(Warten([&] { return liste->size() == platz.size(); }));
    Schließen(liste);
    EXPECT_FALSE(Öffnen()->isMaximized());
}

TEST_F(FensterplätzeTest, VerkleinertGiltNicht)
{
    const QRect platz(140, 60, 360, 260);
    QWidget *liste = Öffnen();
    Hinstellen(liste, platz);
    Schließen(liste);
    liste = Öffnen();
    liste->showMinimized();
    Schließen(liste);
    liste = Öffnen();
    EXPECT_EQ(Platz(liste), platz);
    EXPECT_FALSE(liste->isMinimized());
}

TEST_F(FensterplätzeTest, WasNichtAufDenSchirmPaßtKommtHinein)
{
    const QRect schirm = QGuiApplication::primaryScreen()->availableGeometry();
    for (const QRect &platz : {QRect(5000, 4000, 300, 200), QRect(-4000, -300, 300, 200),
                               QRect(0, 0, 9000, 9000), QRect(schirm.right() - 20, 50, 300, 200)}) {
        const QRect rahmen = platz.adjusted(-2, -20, 2, 5);
        Gemerktes().setValue("Fenster/Liste/Platz", platz);
        Gemerktes().setValue("Fenster/Liste/Rahmen", rahmen);
        QWidget *liste = Öffnen();
        EXPECT_TRUE(schirm.contains(Platz(liste).adjusted(-2, -20, 2, 5)));
        EXPECT_EQ(liste->width() == 300, platz.width() == 300);
        liste->setObjectName("");
        Schließen(liste);
    }
}

TEST_F(FensterplätzeTest, EineGewählteGrößeGehtVorDerDesInhalts)
{
    const auto öffnen = [] {
        auto *fenster = Benannt(new QWidget, "Liste");
        auto *spalte = new QVBoxLayout(fenster);
        auto *inhalt = new QWidget;
        inhalt->setMinimumSize(200, 100);
        spalte->addWidget(inhalt);
        GrößeAnpassen(fenster);
        fenster->setAttribute(Qt::WA_DeleteOnClose);
        Zeigen(fenster);
        return fenster;
    };
    QWidget *liste = öffnen();
    EXPECT_LT(liste->width(), 300);
    Hinstellen(liste, {50, 50, 500, 400});
    Schließen(liste);
    EXPECT_EQ(öffnen()->size(), QSize(500, 400));
}

TEST_F(FensterplätzeTest, HauptfensterUndMeldungenBleibenWieSieKommen)
{
    EchteMeldungen();
    Beantworten([](QMessageBox *box) {
        box->move(10, 10);
        box->accept();
    });
    Meldungen.Zeigen("Fertig");
    QMainWindow haupt;
    haupt.setObjectName("Haupt");
    Zeigen(&haupt);
    haupt.hide();
    EXPECT_EQ(Gemerktes().allKeys(), QStringList());
}

TEST_F(FensterplätzeTest, VonZweiBildschirmenDerAufDemDasMeisteLiegt)
{
    const QRect links(0, 0, 1000, 700);
    const QRect rechts(1000, 0, 800, 600);
    const QList<QRect> beide = {links, rechts};
    EXPECT_EQ(AufEinenBildschirm({1100, 100, 300, 200}, beide), QRect(1100, 100, 300, 200));
    EXPECT_EQ(AufEinenBildschirm({900, 100, 300, 200}, beide), QRect(1000, 100, 300, 200));
    EXPECT_EQ(AufEinenBildschirm({800, 100, 300, 200}, beide), QRect(700, 100, 300, 200));
    EXPECT_EQ(AufEinenBildschirm({1700, 500, 300, 200}, beide), QRect(1500, 400, 300, 200));
    EXPECT_EQ(AufEinenBildschirm({1100, 100, 900, 900}, beide), rechts);
    EXPECT_EQ(AufEinenBildschirm({-900, 100, 300, 200}, beide), QRect(0, 100, 300, 200));
    EXPECT_EQ(AufEinenBildschirm({1, 2, 3, 4}, {}), QRect(1, 2, 3, 4));
}

} // namespace
} // namespace altardienst
