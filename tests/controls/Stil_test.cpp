// The look of command buttons.
#include "controls/Stil.h"

#include "Fensterstand.h"

#include <QApplication>
#include <QListView>
#include <QMessageBox>
#include <QPalette>
#include <QStyle>
#include <QVBoxLayout>

#include <cstdlib>

namespace altardienst {
namespace {

constexpr QColor Hellgrün(0x00, 0xff, 0x00);
constexpr QColor Hellgrau(0xc0, 0xc0, 0xc0);

/// How many pixels of the button look like this.
int Punkte(QWidget *knopf, const QColor &farbe)
{
    const QImage bild = knopf->grab().toImage();
    int anzahl = 0;
    for (int y = 0; y < bild.height(); ++y)
        for (int x = 0; x < bild.width(); ++x)
            anzahl += bild.pixelColor(x, y) == farbe;
    return anzahl;
}

class StilTest : public Fensterstand {
  protected:
    StilTest()
    {
        auto *spalte = new QVBoxLayout(&fenster);
        spalte->addWidget(feld);
        spalte->addWidget(knopf);
        Zeigen(&fenster);
        FokusAuf(feld);
    }

    QWidget fenster;
    QLineEdit *feld = Textfeld("Feld");
    QPushButton *knopf = Knopf("Knopf", "Drucken");
};

TEST_F(StilTest, DieFlächeIstHellgrünMitUndHellgrauOhneFokus)
{
    const int fläche = knopf->width() * knopf->height() / 2;
    EXPECT_GT(Punkte(knopf, Hellgrau), fläche);
    EXPECT_EQ(Punkte(knopf, Hellgrün), 0);
    FokusAuf(knopf);
    EXPECT_GT(Punkte(knopf, Hellgrün), fläche);
    EXPECT_EQ(Punkte(knopf, Hellgrau), 0);
}

/// A desktop may hand over a dark palette whose grey is still that of a light one.
TEST_F(StilTest, WasGrauIstLäßtSichAufJedemGrundLesen)
{
    for (const QColor &grund : {QColor(Qt::white), QColor(0x23, 0x26, 0x29)}) {
        const bool dunkel = grund.lightness() < 128;
        const QColor schrift = dunkel ? QColor(0xef, 0xf0, 0xf1) : QColor(Qt::black);
        for (const QColor &grau : {QColor(0, 0, 0, 128), QColor(255, 255, 255, 128), grund}) {
            QPalette farben(grund);
            farben.setColor(QPalette::Base, grund);
            farben.setColor(QPalette::Text, schrift);
            farben.setColor(QPalette::PlaceholderText, grau);
            QApplication::style()->polish(farben);
            const QColor neu = farben.color(QPalette::PlaceholderText);
            const int auf = grund.red() + (neu.red() - grund.red()) * neu.alpha() / 255;
            EXPECT_GE(std::abs(auf - grund.red()), 55) << grund.name().toStdString();
            EXPECT_LT(std::abs(auf - grund.red()), 160) << "it steps back";
        }
    }
    QPalette eigene; // a colour of the desktop's own that can be read stays
    eigene.setColor(QPalette::PlaceholderText, QColor(0x66, 0x77, 0x88));
    QApplication::style()->polish(eigene);
    EXPECT_EQ(eigene.color(QPalette::PlaceholderText), QColor(0x66, 0x77, 0x88));
}

TEST_F(StilTest, DieSchriftIstSchwarzAuchAufEinemDunklenBildschirm)
{
    QPalette dunkel;
    dunkel.setColor(QPalette::ButtonText, Qt::white);
    knopf->setPalette(dunkel);
    EXPECT_GT(Punkte(knopf, Qt::black), 0);
    EXPECT_EQ(Punkte(knopf, Qt::white), 0);
}

TEST_F(StilTest, EinGesperrterKnopfIstBlaß)
{
    knopf->setEnabled(false);
    EXPECT_EQ(Punkte(knopf, Hellgrau), 0);
    EXPECT_EQ(Punkte(knopf, Qt::black), 0);
    EXPECT_EQ(Grundfarbe(knopf), QColor(0xd8, 0xd8, 0xd8));
}

TEST_F(StilTest, EinGedrückterKnopfHatEinenBreitenRand)
{
    const auto rand = [this] { return knopf->grab().toImage().pixelColor(1, knopf->height() / 2); };
    EXPECT_EQ(rand(), Hellgrau);
    QTest::mousePress(knopf, Qt::LeftButton);
    EXPECT_EQ(rand(), QColor(0x60, 0x60, 0x60));
    QTest::mouseRelease(knopf, Qt::LeftButton);
}

TEST_F(StilTest, UmDieSchriftBleibtPlatz)
{
    const QSize schrift = knopf->fontMetrics().size(Qt::TextShowMnemonic, knopf->text());
    EXPECT_EQ(knopf->sizeHint(), schrift + QSize(26, 10));
}

TEST_F(StilTest, DerRahmenEinerListeMitFokusIstAuchAufDunklemGrundZuSehen)
{
    auto *liste = new QListView;
    fenster.layout()->addWidget(liste);
    liste->show();
    const auto abstand = [&](const QColor &grund) {
        QPalette farben;
        farben.setColor(QPalette::Window, grund);
        farben.setColor(QPalette::Base, grund);
        liste->setPalette(farben);
        FokusAuf(liste);
        const QColor rahmen = liste->grab().toImage().pixelColor(0, liste->height() / 2);
        return std::abs(qGray(rahmen.rgb()) - qGray(grund.rgb()));
    };
    EXPECT_GT(abstand(Qt::white), 100);
    EXPECT_GT(abstand(QColor(0x28, 0x28, 0x28)), 80);
}

TEST_F(StilTest, WasGewähltIstBehältSeineFarbeWennDieTastaturAnderswoIst)
{
    QPalette farben;
    for (const auto rolle : {QPalette::Highlight, QPalette::HighlightedText})
        farben.setColor(QPalette::Inactive, rolle, Hellgrau);
    farben.setColor(QPalette::Active, QPalette::Highlight, Qt::darkBlue);
    farben.setColor(QPalette::Active, QPalette::HighlightedText, Qt::white);
    Stil().polish(farben);
    EXPECT_EQ(farben.color(QPalette::Inactive, QPalette::Highlight), QColor(Qt::darkBlue));
    EXPECT_EQ(farben.color(QPalette::Inactive, QPalette::HighlightedText), QColor(Qt::white));
}

TEST_F(StilTest, DieKnöpfeEinerMeldungTragenKeineBilder)
{
    QMessageBox meldung(QMessageBox::Question, "Frage", "Wirklich?",
                        QMessageBox::Yes | QMessageBox::No);
    for (const QAbstractButton *antwort : meldung.buttons())
        EXPECT_TRUE(antwort->icon().isNull()) << Zeigt(antwort);
}

} // namespace
} // namespace altardienst
