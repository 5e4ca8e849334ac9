// The directory picker: drives, directories, files.
#include "controls/Verzeichniswahl.h"

#include "Fensterstand.h"

#include <QAbstractItemView>
#include <QElapsedTimer>
#include <QScrollBar>
#include <QVBoxLayout>

namespace altardienst {
namespace {

namespace fs = std::filesystem;

/// The disk holds the directories Texte and Bilder and two files.
class VerzeichniswahlTest : public Fensterstand {
  protected:
    VerzeichniswahlTest()
    {
        fs::create_directories(Festplatte / "Texte" / PfadAus("Größen"));
        fs::create_directories(Festplatte / "Bilder");
        DateiSchreiben(Festplatte / "b.txt", "");
        DateiSchreiben(Festplatte / PfadAus("Äpfel.txt"), "");
        DateiSchreiben(Diskette / "alt.txt", "");
    }

    Verzeichniswahl &Öffnen()
    {
        wahl = std::make_unique<Verzeichniswahl>("Drive1", "Dir1", "Dateien");
        auto *spalte = new QVBoxLayout(&fenster);
        for (QWidget *liste :
             std::initializer_list<QWidget *>{wahl->Laufwerk, wahl->Verzeichnis, wahl->Dateien})
            spalte->addWidget(liste);
        Zeigen(&fenster);
        wahl->Öffnen(Festplatte);
        wahl->BeiWechsel = [this] { ++wechsel; };
        return *wahl;
    }

    static std::vector<Text> Zeilen(const QListWidget *liste)
    {
        std::vector<Text> zeilen;
        for (int i = 0; i < liste->count(); ++i)
            zeilen.push_back(liste->item(i)->text().toStdString());
        return zeilen;
    }

    static void ZeileWählen(QListWidget *liste, int zeile)
    {
        liste->setFocus();
        liste->setCurrentRow(zeile);
        QTest::keyClick(liste, Qt::Key_Return);
    }

    /// Moves to the next entry of the drive list by key, as a user would.
    void NächstesLaufwerk() const
    {
        FokusAuf(wahl->Laufwerk);
        QTest::keyClick(wahl->Laufwerk, Qt::Key_Down);
    }

    QWidget fenster;
    std::unique_ptr<Verzeichniswahl> wahl;
    int wechsel = 0;
};

using Liste = std::vector<Text>;

TEST_F(VerzeichniswahlTest, ZeigtLaufwerkeVerzeichnisseUndDateien)
{
    Verzeichniswahl &w = Öffnen();
    EXPECT_EQ(w.Laufwerk->objectName(), "Drive1");
    EXPECT_EQ(w.Verzeichnis->objectName(), "Dir1");
    EXPECT_EQ(w.Dateien->objectName(), "Dateien");
    ASSERT_EQ(w.Laufwerk->count(), 2);
    EXPECT_EQ(w.Laufwerk->itemText(0), "Festplatte");
    EXPECT_EQ(w.Laufwerk->itemText(1), "Diskette");
    EXPECT_EQ(Zeilen(w.Verzeichnis), (Liste{"..", "Bilder", "Texte"}));
    EXPECT_EQ(Zeilen(w.Dateien), (Liste{"b.txt", "Äpfel.txt"}));
    EXPECT_EQ(w.Pfad(), Festplatte);
    EXPECT_EQ(Stumme(&fenster), Liste{});
}

TEST_F(VerzeichniswahlTest, EingabetasteÖffnetEinVerzeichnisUndDieDateienFolgen)
{
    Verzeichniswahl &w = Öffnen();
    ZeileWählen(w.Verzeichnis, 2);
    EXPECT_EQ(w.Pfad(), Festplatte / "Texte");
    EXPECT_EQ(Zeilen(w.Verzeichnis), (Liste{"..", "Größen"}));
    EXPECT_EQ(Zeilen(w.Dateien), Liste{});
    EXPECT_EQ(wechsel, 1);
    ZeileWählen(w.Verzeichnis, 1);
    EXPECT_EQ(w.Pfad(), Festplatte / "Texte" / PfadAus("Größen"));
    ZeileWählen(w.Verzeichnis, 0);
    EXPECT_EQ(w.Pfad(), Festplatte / "Texte");
    EXPECT_EQ(wechsel, 3);
}

TEST_F(VerzeichniswahlTest, DoppelklickÖffnetEinVerzeichnis)
{
    Verzeichniswahl &w = Öffnen();
    const QPoint stelle = w.Verzeichnis->visualItemRect(w.Verzeichnis->item(1)).center();
    QTest::mouseClick(w.Verzeichnis->viewport(), Qt::LeftButton, {}, stelle);
    EXPECT_EQ(w.Pfad(), Festplatte);
    QTest::mouseDClick(w.Verzeichnis->viewport(), Qt::LeftButton, {}, stelle);
    EXPECT_EQ(w.Pfad(), Festplatte / "Bilder");
}

TEST_F(VerzeichniswahlTest, DieWurzelHatKeinDarüber)
{
    Verzeichniswahl &w = Öffnen();
    Laufwerke.Auflisten = [](const fs::path &) { return Verzeichnisinhalt{{"home"}, {}}; };
    w.Öffnen("/");
    EXPECT_EQ(Zeilen(w.Verzeichnis), Liste{"home"});
    w.Öffnen("/home/");
    EXPECT_EQ(w.Pfad(), "/home");
    ZeileWählen(w.Verzeichnis, 0);
    EXPECT_EQ(w.Pfad(), "/");
}

TEST_F(VerzeichniswahlTest, EinLaufwerkFührtZuSeinerWurzel)
{
    Verzeichniswahl &w = Öffnen();
    NächstesLaufwerk();
    EXPECT_EQ(w.Pfad(), Diskette);
    EXPECT_EQ(Zeilen(w.Dateien), Liste{"alt.txt"});
    EXPECT_EQ(wechsel, 1);
}

TEST_F(VerzeichniswahlTest, EinUnlesbaresLaufwerkLässtDieListenStehenUndWirdGemeldet)
{
    Verzeichniswahl &w = Öffnen();
    int unlesbar = 0;
    w.BeiUnlesbaremLaufwerk = [&] { ++unlesbar; };
    fs::remove_all(Diskette);
    DateiSchreiben(Festplatte / PfadAus("später.txt"), "");
    NächstesLaufwerk();
    EXPECT_EQ(unlesbar, 1);
    EXPECT_EQ(w.Pfad(), Festplatte);
    EXPECT_EQ(w.Laufwerk->currentText(), "Festplatte") << "the drive that the lists show";
    EXPECT_EQ(Zeilen(w.Verzeichnis), (Liste{"..", "Bilder", "Texte"}));
    EXPECT_EQ(Zeilen(w.Dateien), (Liste{"b.txt", "Äpfel.txt"}));
    EXPECT_EQ(wechsel, 0);
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(VerzeichniswahlTest, NachEinemLesbarenLaufwerkKehrtDieAuswahlZuDiesemZurück)
{
    Laufwerke.Wurzeln = [this] {
        return std::vector<Wurzel>{
            {"Festplatte", Festplatte}, {"Diskette", Diskette}, {"weg", Festplatte / "weg"}};
    };
    Verzeichniswahl &w = Öffnen();
    NächstesLaufwerk();
    NächstesLaufwerk();
    EXPECT_EQ(w.Laufwerk->currentText(), "Diskette");
    EXPECT_EQ(w.Pfad(), Diskette);
    EXPECT_EQ(wechsel, 1);
}

TEST_F(VerzeichniswahlTest, AnlegenMachtEinVerzeichnisAberKeineKette)
{
    Verzeichniswahl &w = Öffnen();
    w.Anlegen("neu");
    EXPECT_TRUE(fs::is_directory(Festplatte / "neu"));
    EXPECT_EQ(w.Pfad(), Festplatte) << "it is not entered";
    EXPECT_EQ(NummerDesFehlers([&] { w.Anlegen("a/b"); }), 76);
    EXPECT_FALSE(fs::exists(Festplatte / "a"));
    w.Anlegen("Texte/b/");
    EXPECT_TRUE(fs::is_directory(Festplatte / "Texte" / "b"));
    w.Anlegen("/c");
    EXPECT_TRUE(fs::is_directory(Festplatte / "c")) << "below the open one, whatever is typed";
    EXPECT_NE(NummerDesFehlers([&] { w.Anlegen("b.txt"); }), 0);
    EXPECT_EQ(wechsel, 0);
}

TEST_F(VerzeichniswahlTest,
       AnlegenMachtWederEinVerschwundenesVerzeichnisNochEinesImArbeitsverzeichnis)
{
    Verzeichniswahl &w = Öffnen();
    w.Öffnen(Festplatte / "Texte");
    fs::remove_all(Festplatte / "Texte");
    EXPECT_EQ(NummerDesFehlers([&] { w.Anlegen("neu"); }), 76);
    EXPECT_FALSE(fs::exists(Festplatte / "Texte"));
    Verzeichniswahl ohne("a", "b", "c");
    EXPECT_EQ(NummerDesFehlers([&] { ohne.Anlegen("ohne Laufwerk"); }), 76);
    EXPECT_FALSE(fs::exists("ohne Laufwerk"));
    for (QWidget *liste :
         std::initializer_list<QWidget *>{ohne.Laufwerk, ohne.Verzeichnis, ohne.Dateien})
        delete liste;
}

TEST_F(VerzeichniswahlTest, EinVerschwundenesVerzeichnisLässtDieListenStehen)
{
    Verzeichniswahl &w = Öffnen();
    fs::remove_all(Festplatte / "Texte");
    ZeileWählen(w.Verzeichnis, 2);
    EXPECT_EQ(w.Pfad(), Festplatte);
    EXPECT_EQ(w.Verzeichnis->count(), 3);
    EXPECT_TRUE(GezeigteMeldungen.empty());
    EXPECT_EQ(NummerDesFehlers([&] { w.Öffnen(Festplatte / "Texte"); }), 76);
}

TEST_F(VerzeichniswahlTest, AuffrischenLiestNeuUndMeldetKeinenWechsel)
{
    Verzeichniswahl &w = Öffnen();
    DateiSchreiben(Festplatte / "neu.txt", "");
    fs::create_directories(Festplatte / "Neu");
    w.Auffrischen();
    EXPECT_EQ(Zeilen(w.Verzeichnis), (Liste{"..", "Bilder", "Neu", "Texte"}));
    EXPECT_EQ(Zeilen(w.Dateien), (Liste{"b.txt", "neu.txt", "Äpfel.txt"}));
    EXPECT_EQ(wechsel, 0);
}

/// Forty files, of which the selected one is far down.
TEST_F(VerzeichniswahlTest, AuffrischenLässtDieMarkeUndDenAusschnittStehen)
{
    for (int i = 10; i < 50; ++i)
        DateiSchreiben(Festplatte / ("Datei " + std::to_string(i)), "");
    Verzeichniswahl &w = Öffnen();
    fenster.resize(300, 300);
    w.Verzeichnis->setCurrentRow(2);
    w.Dateien->setCurrentRow(29);
    w.Dateien->verticalScrollBar()->setValue(20);
    QListWidgetItem *zeile = w.Dateien->currentItem();
    const auto istWieZuvor = [&] {
        EXPECT_EQ(w.Dateien->currentItem()->text(), "Datei 39");
        EXPECT_TRUE(w.Dateien->currentItem()->isSelected());
        EXPECT_EQ(w.Dateien->verticalScrollBar()->value(), 20);
        EXPECT_EQ(w.Verzeichnis->currentItem()->text(), "Texte");
    };
    w.Auffrischen();
    istWieZuvor();
    EXPECT_EQ(w.Dateien->currentItem(), zeile) << "nothing has changed, nothing is made anew";

    DateiSchreiben(Festplatte / "Datei 09", "");
    w.Auffrischen();
    istWieZuvor();
    EXPECT_EQ(w.Dateien->currentRow(), 30);

    fs::remove(Festplatte / "Datei 39");
    w.Auffrischen();
    EXPECT_EQ(w.Dateien->currentItem(), nullptr);
    EXPECT_EQ(w.Dateien->verticalScrollBar()->value(), 20);
}

TEST_F(VerzeichniswahlTest, InEinemAnderenVerzeichnisIstNichtsMarkiert)
{
    fs::create_directories(Festplatte / "Texte" / "Bilder");
    DateiSchreiben(Festplatte / "Texte" / "b.txt", "");
    Verzeichniswahl &w = Öffnen();
    w.Dateien->setCurrentRow(0);
    w.Verzeichnis->setCurrentRow(1);
    w.Öffnen(Festplatte / "Texte");
    EXPECT_EQ(Zeilen(w.Dateien), Liste{"b.txt"});
    EXPECT_EQ(Zeilen(w.Verzeichnis), (Liste{"..", "Bilder", "Größen"}));
    EXPECT_EQ(w.Dateien->currentItem(), nullptr);
    EXPECT_EQ(w.Verzeichnis->currentItem(), nullptr);
}

TEST_F(VerzeichniswahlTest, BeginntAufDemErstenLesbarenLaufwerk)
{
    Laufwerke.Wurzeln = [this] {
        return std::vector<Wurzel>{{"weg", Festplatte / "weg"},
                                   {"Datei", Festplatte / "b.txt"},
                                   {"Diskette", Diskette},
                                   {"Festplatte", Festplatte}};
    };
    Verzeichniswahl &w = Öffnen();
    Verzeichniswahl neue("a", "b", "c");
    int gewechselt = 0;
    neue.BeiWechsel = [&] { ++gewechselt; };
    neue.Beginnen();
    EXPECT_EQ(neue.Pfad(), Diskette);
    EXPECT_EQ(neue.Laufwerk->currentText(), "Diskette");
    EXPECT_EQ(Zeilen(neue.Dateien), Liste{"alt.txt"});
    EXPECT_EQ(gewechselt, 1);
    EXPECT_EQ(w.Pfad(), Festplatte);
    for (QWidget *liste :
         std::initializer_list<QWidget *>{neue.Laufwerk, neue.Verzeichnis, neue.Dateien})
        delete liste;
}

TEST_F(VerzeichniswahlTest, DasselbeLaufwerkNochEinmalFührtAusDerTiefeZurück)
{
    Verzeichniswahl &w = Öffnen();
    w.Öffnen(Festplatte / "Texte" / PfadAus("Größen"));
    FokusAuf(w.Laufwerk);
    w.Laufwerk->showPopup();
    QTest::keyClick(w.Laufwerk->view(), Qt::Key_Return);
    EXPECT_EQ(w.Pfad(), Festplatte);
}

#ifndef _WIN32

TEST_F(VerzeichniswahlTest, EinNameDerKeinTextIstLässtSichÖffnen)
{
    const Text name = "alt\xe4"; // as an old diskette has it
    fs::create_directories(Festplatte / name / "darin");
    DateiSchreiben(Festplatte / (name + ".txt"), "");
    Verzeichniswahl &w = Öffnen();
    w.Auffrischen();
    ASSERT_EQ(w.Verzeichnis->count(), 4);
    ZeileWählen(w.Verzeichnis, 3);
    EXPECT_EQ(w.Pfad(), Festplatte / name);
    EXPECT_EQ(Zeilen(w.Verzeichnis), (Liste{"..", "darin"}));
    ZeileWählen(w.Verzeichnis, 0);
    EXPECT_EQ(Verzeichniswahl::Name(w.Dateien->item(0)), name + ".txt");
}

#endif

TEST_F(VerzeichniswahlTest, SchlechteVerzeichnisseLassenDieListenStehen)
{
    NUR_WO_ES_GIBT(Verweise);
    fs::create_symlink("Kreis", Festplatte / "Kreis");
    fs::create_symlink("nirgends", Festplatte / "Verweis");
    Verzeichniswahl &w = Öffnen();
    for (const fs::path &pfad :
         {Festplatte / "Kreis", Festplatte / "Verweis", Festplatte / "b.txt",
          Festplatte / std::string(5000, 'x'), fs::path(), fs::path("relativ")})
        EXPECT_NE(NummerDesFehlers([&] { w.Öffnen(pfad); }), 0) << pfad;
    EXPECT_EQ(w.Pfad(), Festplatte);
    EXPECT_EQ(Zeilen(w.Verzeichnis), (Liste{"..", "Bilder", "Texte"}));
    EXPECT_EQ(wechsel, 0);
}

TEST_F(VerzeichniswahlTest, ZehntausendEinträgeStehenSofortDa)
{
    const fs::path voll = Festplatte / "voll";
    for (int i = 0; i < 5000; ++i) {
        fs::create_directories(voll / ("Ordner " + std::to_string(i)));
        DateiSchreiben(voll / ("Datei " + std::to_string(i)), "");
    }
    Verzeichniswahl &w = Öffnen();
    QElapsedTimer uhr;
    uhr.start();
    w.Öffnen(voll);
    QCoreApplication::processEvents();
    const auto dauer = uhr.elapsed();
    RecordProperty("ms", static_cast<int>(dauer));
    EXPECT_LT(dauer, 1000) << "far more than it takes";
    EXPECT_EQ(w.Verzeichnis->count(), 5001);
    EXPECT_EQ(w.Dateien->count(), 5000);
}

} // namespace
} // namespace altardienst
