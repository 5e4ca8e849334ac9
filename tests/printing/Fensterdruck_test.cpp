// A window's content on paper, read back from the PDF.
#include "printing/Fensterdruck.h"

#include "Fensterstand.h"
#include "paper/DruckerQt.h"
#include "printing/Druckprotokoll.h"
#include "printing/PdfLesen.h"

#include <QFile>
#include <QVBoxLayout>

#include <utility>

namespace altardienst {
namespace {

constexpr double Rand = 15 / 25.4 * 72; // points

class FensterdruckTest : public Fensterstand {
  protected:
    FensterdruckTest() : zuvor(std::exchange(Drucker, &drucker))
    {
        fenster.setObjectName("Probe");
        auto *spalte = new QVBoxLayout(&fenster);
        spalte->setContentsMargins(0, 0, 0, 0);
        oben = Beschriftung("oben", "Oberster");
        mitte = Beschriftung("mitte", "Größter");
        knopf = Knopf("Druck", "Drucken");
        versteckt = Knopf("Versteckt", "Versteckt");
        for (QWidget *teil : std::initializer_list<QWidget *>{oben, mitte, knopf, versteckt})
            spalte->addWidget(teil);
        versteckt->hide();
        fenster.resize(400, 300);
        Zeigen(&fenster);
        knopf->setFocus();
    }
    ~FensterdruckTest() override { Drucker = zuvor; }

    PdfInhalt Gedruckt()
    {
        FensterDrucken(&fenster);
        return PdfLesen(datei);
    }

    const QString datei = Anzeige(Festplatte.string()) + "/Fenster.pdf";
    DruckerQt drucker{[this](const Druckanfrage &) { return Druckauswahl{0, PdfDrucker(datei)}; }};
    DruckerDienst *zuvor;
    QWidget fenster;
    QLabel *oben;
    QLabel *mitte;
    QPushButton *knopf;
    QPushButton *versteckt;
};

TEST_F(FensterdruckTest, DerInhaltOhneBefehlsknöpfeAufEinerSeite)
{
    const PdfInhalt pdf = Gedruckt();
    ASSERT_EQ(pdf.Seiten.size(), 1U);
    ASSERT_EQ(pdf.Wörter.size(), 2U); // neither of the buttons
    EXPECT_EQ(pdf.Wörter[0].Inhalt, "Oberster");
    EXPECT_EQ(pdf.Wörter[1].Inhalt, "Größter");
}

TEST_F(FensterdruckTest, SoBreitWieDieSeiteOhneRänder)
{
    // 400 x 300 dots fill 180 mm, so 300 dots are 135 mm
    oben->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    mitte->setAlignment(Qt::AlignRight | Qt::AlignBottom);
    const PdfInhalt pdf = Gedruckt();
    EXPECT_NEAR(pdf.Wort("Oberster").Links, Rand, 2);
    EXPECT_NEAR(pdf.Wort("Oberster").Oben, Rand, 4);
    EXPECT_NEAR(pdf.Wort("Größter").Rechts, pdf.Seiten[0].Breite - Rand, 2);
    EXPECT_NEAR(pdf.Wort("Größter").Unten, Rand + 135 / 25.4 * 72, 4);
}

TEST_F(FensterdruckTest, EinHohesFensterBleibtAufDerSeite)
{
    fenster.resize(100, 900);
    mitte->setAlignment(Qt::AlignRight | Qt::AlignBottom);
    const PdfInhalt pdf = Gedruckt();
    ASSERT_EQ(pdf.Seiten.size(), 1U);
    EXPECT_NEAR(pdf.Wort("Größter").Unten, pdf.Seiten[0].Höhe - Rand, 4);
    // 900 dots fill 267 mm, so 100 dots are 29.7 mm
    EXPECT_NEAR(pdf.Wort("Größter").Rechts, Rand + 29.67 / 25.4 * 72, 2);
}

TEST_F(FensterdruckTest, ScharfAlsBuchstabenNichtAlsBild)
{
    FensterDrucken(&fenster);
    EXPECT_EQ(Aufruf("pdfimages", {"-list", datei}).find("image"), Text::npos);
    EXPECT_NE(Aufruf("pdffonts", {datei}).find("TrueType"), Text::npos);
}

TEST_F(FensterdruckTest, SchwarzAufWeißAuchVonEinemDunklenBildschirm)
{
    QPalette dunkel;
    dunkel.setColor(QPalette::Window, Qt::black);
    dunkel.setColor(QPalette::WindowText, Qt::yellow);
    for (QWidget *teil : std::initializer_list<QWidget *>{&fenster, oben, mitte})
        teil->setPalette(dunkel);
    FensterDrucken(&fenster);
    const QImage bild = PdfBild(datei);
    bool schwarzes = false;
    for (int y = 0; y < bild.height(); ++y)
        for (int x = 0; x < bild.width(); ++x) {
            const QColor punkt = bild.pixelColor(x, y);
            ASSERT_LE(punkt.hsvSaturation(), 10) << x << " " << y;
            schwarzes = schwarzes || punkt.lightness() < 50;
        }
    EXPECT_TRUE(schwarzes);
    EXPECT_GT(bild.pixelColor(bild.width() / 2, 62).lightness(), 250); // next to the text
    EXPECT_EQ(fenster.palette().color(QPalette::Window), QColor(Qt::black));
    EXPECT_EQ(oben->palette().color(QPalette::WindowText), QColor(Qt::yellow));
}

TEST_F(FensterdruckTest, DanachIstDasFensterWieZuvor)
{
    const QImage vorher = fenster.grab().toImage();
    FensterDrucken(&fenster);
    EXPECT_TRUE(knopf->isVisible());
    EXPECT_TRUE(versteckt->isHidden());
    EXPECT_TRUE(knopf->hasFocus());
    EXPECT_EQ(fenster.size(), QSize(400, 300));
    EXPECT_EQ(fenster.grab().toImage(), vorher);
}

TEST_F(FensterdruckTest, EinDokumentMitEinerSeite)
{
    Druckprotokoll papier;
    Drucker = &papier;
    FensterDrucken(&fenster);
    EXPECT_EQ(papier.Zeilen, (std::vector<Text>{"Dialog", "Picture", "EndDoc"}));
    EXPECT_FALSE(papier.Anfrage.HatZweiFormen());
}

TEST_F(FensterdruckTest, DerBerichtHeißtWieDasFenster)
{
    Druckprotokoll papier;
    Drucker = &papier;
    fenster.setWindowTitle("Statistik (Meßdienergröße)");
    FensterDrucken(&fenster);
    EXPECT_EQ(papier.Anfrage.Name, "Statistik (Meßdienergröße)");
}

TEST_F(FensterdruckTest, WährendDesDialogsStehenDieKnöpfeNoch)
{
    bool sichtbar = false;
    DruckerQt abbruch{[&](const Druckanfrage &) -> std::optional<Druckauswahl> {
        sichtbar = knopf->isVisible();
        return std::nullopt;
    }};
    Drucker = &abbruch;
    FensterDrucken(&fenster);
    EXPECT_TRUE(sichtbar);
    EXPECT_TRUE(knopf->isVisible());
    EXPECT_FALSE(QFile::exists(datei));
}

TEST_F(FensterdruckTest, EinDruckerfehlerEndetOhneEinWort)
{
    Druckprotokoll papier;
    papier.FehlerBei = 2;
    Drucker = &papier;
    FensterDrucken(&fenster);
    EXPECT_EQ(papier.Zeilen.back(), "Verwerfen");
    EXPECT_TRUE(knopf->isVisible());
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(FensterdruckTest, QuerIstDieSeiteBreiter)
{
    drucker.Orientation(DruckerDienst::Querformat);
    mitte->setAlignment(Qt::AlignRight | Qt::AlignBottom);
    const PdfInhalt pdf = Gedruckt();
    EXPECT_GT(pdf.Seiten[0].Breite, pdf.Seiten[0].Höhe);
    // 300 dots fill 180 mm, so 400 dots are 240 mm
    EXPECT_NEAR(pdf.Wort("Größter").Unten, pdf.Seiten[0].Höhe - Rand, 4);
    EXPECT_NEAR(pdf.Wort("Größter").Rechts, Rand + 240 / 25.4 * 72, 2);
}

} // namespace
} // namespace altardienst
