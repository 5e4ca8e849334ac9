// The dialog that chooses the picture behind the main window.
#include "settings/HintergrundsucheForm.h"

#include "Formstand.h"
#include "application/Anwendung.h"
#include "shell/HauptForm.h"

#include <QPointer>

namespace altardienst {
namespace {

namespace fs = std::filesystem;
using Liste = std::vector<Text>;

/// The disk holds a red and a blue picture, a text and a directory with a picture.
class HintergrundsucheFormTest : public Formstand<HintergrundsucheForm> {
  protected:
    HintergrundsucheFormTest()
    {
        fs::create_directories(Festplatte / "Bilder");
        BildSchreiben(Festplatte / "blau.png", Qt::blue);
        BildSchreiben(Festplatte / PfadAus("Größe rot.png"), Qt::red);
        BildSchreiben(Festplatte / "Bilder" / PfadAus("grün.bmp"), Qt::green);
        DateiSchreiben(Festplatte / "text.txt", "kein Bild");
        haupt = new HauptForm;
        HauptfensterSetzen(haupt);
        haupt->showMaximized();
        Zeigen(haupt);
    }

    static void BildSchreiben(const fs::path &pfad, Qt::GlobalColor farbe)
    {
        QImage bild(72, 52, QImage::Format_RGB32);
        bild.fill(farbe);
        ASSERT_TRUE(bild.save(Anzeige(TextVon(pfad))));
    }

    void Öffnen()
    {
        form = new HintergrundsucheForm;
        DialogÖffnen(form);
        Zeigen(form);
    }

    static QColor Mitte(QWidget *bild)
    {
        const QImage gezeigt = bild->grab().toImage();
        return gezeigt.pixelColor(gezeigt.width() / 2, gezeigt.height() / 2);
    }

    void DateiKlicken(const char *name) const
    {
        QListWidget *liste = form->Wahl.Dateien;
        const auto zeilen = liste->findItems(QString::fromUtf8(name), Qt::MatchExactly);
        ASSERT_EQ(zeilen.size(), 1) << name;
        QTest::mouseClick(liste->viewport(), Qt::LeftButton, {},
                          liste->visualItemRect(zeilen.front()).center());
    }

    QPointer<HauptForm> haupt;
};

TEST_F(HintergrundsucheFormTest, JedesControlTrägtSeinenNamenUndSeineBeschriftung)
{
    Öffnen();
    EXPECT_EQ(form->objectName(), "Hintergrundsuche");
    EXPECT_EQ(form->windowTitle(), "Hintergrund");
    EXPECT_EQ(Zeigt("Ende"), "Ende");
    EXPECT_TRUE(Finden<QComboBox>("Laufw")->isVisible());
    EXPECT_TRUE(Finden<QListWidget>("Verz")->isVisible());
    EXPECT_TRUE(Finden<QListWidget>("Dateie")->isVisible());
    EXPECT_TRUE(Finden<QWidget>("Bild")->isVisible());
    EXPECT_EQ(form->Wahl.Dateien->count(), 3) << "all files, no filter";
    EXPECT_EQ(form->Wahl.Pfad(), Festplatte);
    EXPECT_FALSE(haupt->isEnabled());
    EXPECT_TRUE(haupt->isMinimized());
}

TEST_F(HintergrundsucheFormTest, OhneHintergrundStehtDasEingebauteBild)
{
    Öffnen();
    EXPECT_EQ(form->Bild->Dekodiert(), 0);
    const QImage gezeigt = form->Bild->grab().toImage();
    int schwarz = 0;
    for (int y = 0; y < gezeigt.height(); ++y)
        for (int x = 0; x < gezeigt.width(); ++x)
            schwarz += gezeigt.pixel(x, y) == qRgb(0, 0, 0);
    EXPECT_GT(schwarz, 500);
    EXPECT_EQ(Konfig.Hintergrund, "");
}

TEST_F(HintergrundsucheFormTest, MitHintergrundStehtSeinBild)
{
    Konfig.Hintergrund = TextVon(Festplatte / "blau.png");
    Öffnen();
    EXPECT_EQ(Mitte(form->Bild), QColor(Qt::blue));
    EXPECT_EQ(Konfig.Hintergrund, TextVon(Festplatte / "blau.png")) << "opening changes nothing";
}

TEST_F(HintergrundsucheFormTest, BeginntAufDemErstenLaufwerkWoDasBildAuchLiegt)
{
    for (const fs::path &bild : {Festplatte / "Bilder" / PfadAus("grün.bmp"), Diskette / "x.png"}) {
        Konfig.Hintergrund = TextVon(bild);
        Öffnen();
        EXPECT_EQ(form->Wahl.Pfad(), Festplatte);
        EXPECT_EQ(form->Wahl.Laufwerk->currentIndex(), 0);
        EXPECT_TRUE(form->Wahl.Dateien->selectedItems().isEmpty());
        form->close();
    }
}

TEST_F(HintergrundsucheFormTest, EinUnlesbaresLaufwerkLässtDieListenStehen)
{
    Öffnen();
    fs::remove_all(Diskette);
    fs::remove(Festplatte / "text.txt");
    FokusAuf(form->Wahl.Laufwerk);
    QTest::keyClick(form->Wahl.Laufwerk, Qt::Key_Down);
    EXPECT_EQ(form->Wahl.Pfad(), Festplatte);
    EXPECT_EQ(form->Wahl.Dateien->count(), 3);
    EXPECT_EQ(form->Wahl.Laufwerk->currentIndex(), 0);
}

TEST_F(HintergrundsucheFormTest, EinClickIstSofortDerHintergrund)
{
    Öffnen();
    DateiKlicken("Größe rot.png");
    EXPECT_EQ(Konfig.Hintergrund, TextVon(Festplatte / PfadAus("Größe rot.png")));
    EXPECT_EQ(Mitte(form->Bild), QColor(Qt::red));
    EXPECT_TRUE(Warten([&] { return Mitte(haupt->Image1) == QColor(Qt::red); }))
        << "the main window picks it up after the dialog";
    DateiKlicken("blau.png");
    EXPECT_EQ(Mitte(form->Bild), QColor(Qt::blue));
}

TEST_F(HintergrundsucheFormTest, DiePfeiltasteWähltAuch)
{
    Öffnen();
    DateiKlicken("Größe rot.png");
    QTest::keyClick(form->Wahl.Dateien, Qt::Key_Down);
    EXPECT_EQ(Konfig.Hintergrund, TextVon(Festplatte / PfadAus("blau.png")));
}

TEST_F(HintergrundsucheFormTest, DurchgehenMitTabWähltNichts)
{
    Öffnen();
    FokusAuf(form->Wahl.Laufwerk);
    Tabfolge(form);
    EXPECT_EQ(Konfig.Hintergrund, "");
}

TEST_F(HintergrundsucheFormTest, WasKeinBildIstÄndertDenHintergrundAberNichtDieVorschau)
{
    Öffnen();
    DateiKlicken("Größe rot.png");
    DateiKlicken("text.txt");
    EXPECT_EQ(Konfig.Hintergrund, TextVon(Festplatte / "text.txt"));
    EXPECT_EQ(Mitte(form->Bild), QColor(Qt::red));
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(HintergrundsucheFormTest, InEinerWurzelStehenZweiTrenner)
{
    Laufwerke.Auflisten = [](const fs::path &) {
        return Verzeichnisinhalt{{}, {"bild.png", "zwei\nzeilen.png"}};
    };
    Laufwerke.Wurzeln = [] { return std::vector<Wurzel>{{"Dateisystem", "/"}}; };
    Öffnen();
    DateiKlicken("bild.png");
    EXPECT_EQ(Konfig.Hintergrund, OrdnerText("/") + OrdnerText("/") + "bild.png");
    form->Wahl.Dateien->setCurrentRow(1);
    EXPECT_EQ(Konfig.Hintergrund, OrdnerText("/") + OrdnerText("/") + "bild.png")
        << "a line break would shift the lines of a file";
}

TEST_F(HintergrundsucheFormTest, VerzeichnisUndLaufwerkFüllenDieDateienUndWählenNichts)
{
    Öffnen();
    DateiKlicken("blau.png");
    FokusAuf(form->Wahl.Verzeichnis);
    form->Wahl.Verzeichnis->setCurrentRow(1);
    QTest::keyClick(form->Wahl.Verzeichnis, Qt::Key_Return);
    EXPECT_EQ(form->Wahl.Dateien->count(), 1);
    EXPECT_EQ(Konfig.Hintergrund, TextVon(Festplatte / "blau.png"));
    DateiKlicken("grün.bmp");
    EXPECT_EQ(Konfig.Hintergrund, TextVon(Festplatte / "Bilder" / PfadAus("grün.bmp")));
    FokusAuf(form->Wahl.Laufwerk);
    QTest::keyClick(form->Wahl.Laufwerk, Qt::Key_Down);
    EXPECT_EQ(form->Wahl.Pfad(), Diskette);
    EXPECT_EQ(form->Wahl.Dateien->count(), 0);
    EXPECT_EQ(Konfig.Hintergrund, TextVon(Festplatte / "Bilder" / PfadAus("grün.bmp")));
}

TEST_F(HintergrundsucheFormTest, SchlechteOrteÜbergehtEr)
{
    Laufwerke.Wurzeln = [this] { return std::vector<Wurzel>{{"weg", Festplatte / "weg"}}; };
    Konfig.Hintergrund = "/gibt/es/nicht.png";
    Öffnen();
    EXPECT_EQ(form->Wahl.Dateien->count(), 0);
    QTest::keyClick(form->Wahl.Laufwerk, Qt::Key_Down);
    Klick(form->Ende);
    EXPECT_EQ(Konfig.Hintergrund, "/gibt/es/nicht.png");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(HintergrundsucheFormTest, EndeUndSchließenKehrenInsHauptfensterZurück)
{
    for (bool ende : {true, false}) {
        Öffnen();
        DateiKlicken("blau.png");
        if (ende)
            Klick(form->Ende);
        else
            form->close();
        EXPECT_TRUE(Warten([&] { return !form && haupt->isEnabled() && haupt->isMaximized(); }));
        EXPECT_EQ(Konfig.Hintergrund, TextVon(Festplatte / "blau.png")) << "there is no cancel";
    }
}

TEST_F(HintergrundsucheFormTest, TabFolgtDemAugeUndAllesPasst)
{
    Öffnen();
    FokusAuf(form->Wahl.Laufwerk);
    EXPECT_EQ(Tabfolge(form), (Liste{"Laufw", "Verz", "Dateie", "Ende"}));
    EXPECT_EQ(Stumme(form), Liste{});
    EXPECT_LE(form->width(), KleinsterBildschirm.width());
    EXPECT_LE(form->height(), KleinsterBildschirm.height());
    FokusAuf(form->Ende);
    EXPECT_EQ(Grundfarbe(form->Ende), QColor(0, 255, 0));
    FokusAuf(form->Wahl.Verzeichnis);
    EXPECT_EQ(Grundfarbe(form->Ende), QColor(192, 192, 192));
}

} // namespace
} // namespace altardienst
