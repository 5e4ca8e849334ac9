// The clock and the picture of the main window.
#include "shell/Hauptstand.h"

namespace altardienst {
namespace {

namespace fs = std::filesystem;

class HauptBildTest : public Hauptstand {
  protected:
    HauptBildTest() : bild(Festplatte / PfadAus("Bild größer.png")) {}

    /// Writes a picture of one colour; the size tells two files apart.
    void BildSchreiben(Qt::GlobalColor farbe, int breite = 72) const
    {
        QImage eines(breite, 52, QImage::Format_RGB32);
        eines.fill(farbe);
        ASSERT_TRUE(eines.save(Anzeige(TextVon(bild))));
    }

    QImage Gezeigt() const { return haupt->Image1->grab().toImage(); }

    QColor Mitte() const
    {
        const QImage gezeigt = Gezeigt();
        return gezeigt.pixelColor(gezeigt.width() / 2, gezeigt.height() / 2);
    }

    /// Lets the timer strike a few times more.
    void Weiterticken()
    {
        for (int i = 0; i < 3; ++i) {
            ++Sekunden;
            const Text vorher = Zeigt(haupt->UHRZEITIGES);
            ASSERT_TRUE(Warten([&] { return Zeigt(haupt->UHRZEITIGES) != vorher; }));
        }
    }

    fs::path bild;
};

TEST_F(HauptBildTest, DieUhrZeigtAlle50MillisekundenDieZeitOhneZusatz)
{
    Sekunden = 9 * 3600 + 8 * 60 + 7;
    Öffnen();
    EXPECT_EQ(Zeigt(haupt->UHRZEITIGES), "09:08:07");
    auto *takt = Finden<QTimer>(haupt, "Timer1");
    EXPECT_EQ(takt->interval(), 50);
    EXPECT_TRUE(takt->isActive());
    Sekunden = 86399;
    EXPECT_TRUE(Warten([&] { return Zeigt(haupt->UHRZEITIGES) == "23:59:59"; }));
}

// A message would come again with the next of the 20 ticks of each second.
TEST_F(HauptBildTest, EinTaktDerVersagtSchweigt)
{
    Öffnen();
    auto versagt = std::make_shared<int>(0);
    const auto uhr = Uhr.Sekunden;
    Uhr.Sekunden = [versagt]() -> int {
        ++*versagt;
        throw std::bad_alloc();
    };
    EXPECT_TRUE(Warten([&] { return *versagt >= 3; }));
    Uhr.Sekunden = uhr;
    Sekunden = 86399;
    EXPECT_TRUE(Warten([&] { return Zeigt(haupt->UHRZEITIGES) == "23:59:59"; }));
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(HauptBildTest, OhneHintergrundStehtDasEingebauteBildInSchwarzUndWeiß)
{
    Öffnen();
    haupt->Image1->setFixedSize(720, 520);
    Warten([&] { return haupt->Image1->width() == 720; });
    const QImage gezeigt = Gezeigt();
    ASSERT_EQ(gezeigt.size(), QSize(720, 520));
    int schwarz = 0;
    int weiß = 0;
    for (int y = 0; y < gezeigt.height(); ++y)
        for (int x = 0; x < gezeigt.width(); ++x) {
            schwarz += gezeigt.pixel(x, y) == qRgb(0, 0, 0);
            weiß += gezeigt.pixel(x, y) == qRgb(255, 255, 255);
        }
    EXPECT_GT(schwarz, 1000);
    EXPECT_EQ(schwarz + weiß, 720 * 520);
    EXPECT_EQ(haupt->Image1->Dekodiert(), 0);
}

// Where a line ends must not blur over more than one pixel, however large the picture.
TEST_F(HauptBildTest, DasEingebauteBildIstInJederGrößeScharf)
{
    Öffnen();
    haupt->Image1->setFixedSize(4 * 720, 4 * 520);
    Warten([&] { return haupt->Image1->width() == 4 * 720; });
    const QImage gezeigt = Gezeigt();
    const int zeile = 4 * 350; // through the tower, below the clock
    int kanten = 0;
    for (int x = 1; x + 1 < gezeigt.width(); ++x) {
        const int links = qGray(gezeigt.pixel(x - 1, zeile));
        const int rechts = qGray(gezeigt.pixel(x + 1, zeile));
        kanten += links == 255 && rechts == 0;
    }
    EXPECT_GT(kanten, 3);
}

TEST_F(HauptBildTest, DasEingebauteBildFolgtDenFarbenDesBildschirms)
{
    Öffnen();
    QPalette dunkel;
    dunkel.setColor(QPalette::Base, QColor(0x20, 0x20, 0x20));
    dunkel.setColor(QPalette::Text, QColor(0xf0, 0xf0, 0xf0));
    haupt->setPalette(dunkel);
    const QImage gezeigt = Gezeigt();
    const int rand = (gezeigt.height() - gezeigt.width() * 520 / 720) / 2;
    EXPECT_EQ(gezeigt.pixelColor(2, std::max(2, rand + 2)), QColor(0x20, 0x20, 0x20));
}

TEST_F(HauptBildTest, DasBildStehtSchonBeimÖffnen)
{
    BildSchreiben(Qt::red);
    Konfig.Hintergrund = TextVon(bild);
    Öffnen();
    EXPECT_EQ(Mitte(), QColor(Qt::red));
}

TEST_F(HauptBildTest, EinNeuerPfadWirdBeimNächstenSchlagGezeigt)
{
    Öffnen();
    BildSchreiben(Qt::red);
    Konfig.Hintergrund = TextVon(bild);
    EXPECT_TRUE(Warten([&] { return Mitte() == QColor(Qt::red); }));
}

TEST_F(HauptBildTest, DasBildWirdNurNeuGelesenWennDieDateiSichÄndert)
{
    BildSchreiben(Qt::red);
    Konfig.Hintergrund = TextVon(bild);
    Öffnen();
    Weiterticken();
    EXPECT_EQ(haupt->Image1->Dekodiert(), 1);
    BildSchreiben(Qt::blue, 720);
    EXPECT_TRUE(Warten([&] { return Mitte() == QColor(Qt::blue); }));
    Weiterticken();
    EXPECT_EQ(haupt->Image1->Dekodiert(), 2);
    fs::last_write_time(bild, fs::last_write_time(bild) - std::chrono::hours(1));
    EXPECT_TRUE(Warten([&] { return haupt->Image1->Dekodiert() == 3; })); // the same size
}

TEST_F(HauptBildTest, FehlendeOderUnlesbareBilderÄndernNichts)
{
    BildSchreiben(Qt::red);
    Konfig.Hintergrund = TextVon(bild);
    Öffnen();
    fs::remove(bild);
    Weiterticken();
    EXPECT_EQ(Mitte(), QColor(Qt::red));
    Konfig.Hintergrund = "/gibt/es/nicht.png";
    Weiterticken();
    EXPECT_EQ(Mitte(), QColor(Qt::red));
    DateiSchreiben(bild, "kein Bild");
    Konfig.Hintergrund = TextVon(bild);
    Weiterticken();
    EXPECT_EQ(Mitte(), QColor(Qt::red));
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(HauptBildTest, OhnePfadKommtDasEingebauteBildZurück)
{
    Öffnen();
    const QImage eingebaut = Gezeigt();
    BildSchreiben(Qt::red);
    Konfig.Hintergrund = TextVon(bild);
    ASSERT_TRUE(Warten([&] { return Mitte() == QColor(Qt::red); }));
    Konfig.Hintergrund.clear();
    EXPECT_TRUE(Warten([&] { return Gezeigt() == eingebaut; }));
    Konfig.Hintergrund = TextVon(bild);
    EXPECT_TRUE(Warten([&] { return Mitte() == QColor(Qt::red); }));
}

TEST_F(HauptBildTest, DasBildWirdNichtVerzerrt)
{
    BildSchreiben(Qt::red, 52); // a square
    Konfig.Hintergrund = TextVon(bild);
    Öffnen();
    const QImage gezeigt = Gezeigt();
    int breite = 0;
    int höhe = 0;
    for (int x = 0; x < gezeigt.width(); ++x)
        breite += gezeigt.pixelColor(x, gezeigt.height() / 2) == QColor(Qt::red);
    for (int y = 0; y < gezeigt.height(); ++y)
        höhe += gezeigt.pixelColor(gezeigt.width() / 2, y) == QColor(Qt::red);
    EXPECT_EQ(breite, höhe);
    EXPECT_EQ(std::max(breite, höhe), std::min(gezeigt.width(), gezeigt.height()));
}

} // namespace
} // namespace altardienst
