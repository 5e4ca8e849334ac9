// The dialog that writes the plan as a text file: which file, and whether it is continued.
#include "printing/Dialogstand.h"

namespace altardienst {
namespace {

namespace fs = std::filesystem;

class DialogFormZielTest : public Dialogstand {};

TEST_F(DialogFormZielTest, ÖffnetInDerErstenWurzelMitDemNamenDatei)
{
    Öffnen();
    EXPECT_EQ(form->Wahl.Pfad(), Festplatte);
    EXPECT_EQ(Zeilen(form->Wahl.Verzeichnis), (Liste{"..", "texte"}));
    EXPECT_EQ(Zeilen(form->Wahl.Dateien), Liste{"plan.txt"});
    EXPECT_EQ(Ziel(), Pfad(Festplatte / "Datei.txt"));
    EXPECT_TRUE(WählerStehtAuf("Überschreib"));
}

TEST_F(DialogFormZielTest, DasZielFolgtDemNamen)
{
    Öffnen();
    Tippen(form->Dateiname, "neu");
    EXPECT_EQ(Ziel(), Pfad(Festplatte / "neu.txt"));
    Tippen(form->Dateiname, "neu.txt");
    EXPECT_EQ(Ziel(), Pfad(Festplatte / "neu.txt.txt"));
    Tippen(form->Dateiname, "");
    EXPECT_EQ(Ziel(), Pfad(Festplatte / "Datei.txt"));
}

TEST_F(DialogFormZielTest, DasZielFolgtDemVerzeichnis)
{
    Öffnen();
    Tippen(form->Dateiname, "plan");
    VerzeichnisÖffnen(1);
    EXPECT_EQ(Ziel(), Pfad(Festplatte / "texte" / "plan.txt"));
    EXPECT_TRUE(WählerStehtAuf("Überschreib"));
    VerzeichnisÖffnen(0);
    EXPECT_EQ(Ziel(), Pfad(Festplatte / "plan.txt"));
    EXPECT_TRUE(WählerStehtAuf("Anhang"));
}

TEST_F(DialogFormZielTest, DasZielFolgtDemLaufwerk)
{
    DateiSchreiben(Diskette / "Datei.txt", "");
    Öffnen();
    FokusAuf(form->Wahl.Laufwerk);
    QTest::keyClick(form->Wahl.Laufwerk, Qt::Key_Down);
    EXPECT_EQ(Ziel(), Pfad(Diskette / "Datei.txt"));
    EXPECT_EQ(Zeilen(form->Wahl.Dateien), Liste{"Datei.txt"});
    EXPECT_TRUE(WählerStehtAuf("Anhang"));
}

TEST_F(DialogFormZielTest, EinUnlesbaresLaufwerkLässtZielUndListenStehen)
{
    Öffnen();
    Tippen(form->Dateiname, "plan");
    Klick(form->Überschreib);
    fs::remove_all(Diskette);
    DateiSchreiben(Festplatte / PfadAus("später.txt"), "");
    FokusAuf(form->Wahl.Laufwerk);
    QTest::keyClick(form->Wahl.Laufwerk, Qt::Key_Down);
    EXPECT_EQ(Ziel(), Pfad(Festplatte / "plan.txt"));
    EXPECT_TRUE(WählerStehtAuf("Überschreib")) << "nothing is formed anew";
    EXPECT_EQ(Zeilen(form->Wahl.Dateien), Liste{"plan.txt"});
    EXPECT_EQ(form->Wahl.Laufwerk->currentText(), "Festplatte");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(DialogFormZielTest, EineVorhandeneDateiWirdFortgesetztOhneAufGroßUndKleinZuAchten)
{
    Öffnen();
    for (const char *name : {"plan", "PLAN", "Plan"}) {
        Tippen(form->Dateiname, name);
        EXPECT_TRUE(WählerStehtAuf("Anhang")) << name;
        EXPECT_EQ(Ziel(), Pfad(Festplatte / (Text(name) + ".txt")));
        Tippen(form->Dateiname, Text(name) + "x");
        EXPECT_TRUE(WählerStehtAuf("Überschreib")) << name;
    }
}

TEST_F(DialogFormZielTest, EinNeuerNameFrischtDieDateilisteAuf)
{
    Öffnen();
    DateiSchreiben(Festplatte / PfadAus("später.txt"), "");
    EXPECT_EQ(Zeilen(form->Wahl.Dateien), Liste{"plan.txt"});
    Tippen(form->Dateiname, "x");
    EXPECT_EQ(Zeilen(form->Wahl.Dateien), (Liste{"plan.txt", "später.txt"}));
}

TEST_F(DialogFormZielTest, EinClickInDieDateilistePrüftNeu)
{
    Öffnen();
    DateiSchreiben(Festplatte / "Datei.txt", "");
    EXPECT_TRUE(WählerStehtAuf("Überschreib"));
    QListWidget *dateien = form->Wahl.Dateien;
    QTest::mouseClick(dateien->viewport(), Qt::LeftButton, {},
                      dateien->visualItemRect(dateien->item(0)).center());
    EXPECT_TRUE(WählerStehtAuf("Anhang"));
    EXPECT_EQ(Ziel(), Pfad(Festplatte / "Datei.txt")); // the list does not name the file
    ASSERT_NE(dateien->currentItem(), nullptr);
    EXPECT_EQ(dateien->currentItem()->text(), "plan.txt"); // but it stays selected
}

TEST_F(DialogFormZielTest, AnhängenOhneDateiFälltSofortZurück)
{
    Öffnen();
    Klick(form->Anhang);
    EXPECT_TRUE(WählerStehtAuf("Überschreib"));
    Tippen(form->Dateiname, "plan");
    Klick(form->Überschreib); // on purpose
    EXPECT_TRUE(WählerStehtAuf("Überschreib"));
    Klick(form->Anhang);
    EXPECT_TRUE(WählerStehtAuf("Anhang"));
}

TEST_F(DialogFormZielTest, DiePfeiltastenWählenWieEinClick)
{
    Öffnen();
    FokusAuf(form->Überschreib);
    QTest::keyClick(form->Überschreib, Qt::Key_Right); // no such file: falls back
    EXPECT_TRUE(WählerStehtAuf("Überschreib"));
    Tippen(form->Dateiname, "plan");
    FokusAuf(form->Anhang);
    QTest::keyClick(form->Anhang, Qt::Key_Left);
    EXPECT_TRUE(WählerStehtAuf("Überschreib"));
}

TEST_F(DialogFormZielTest, VerzeichnisErstellenLegtEsAnUndZeigtEs)
{
    Öffnen();
    Klick(form->Verzeichnis); // an empty box creates nothing
    EXPECT_EQ(Zeilen(form->Wahl.Verzeichnis), (Liste{"..", "texte"}));
    Tippen(form->VZ, "Größen");
    Klick(form->Verzeichnis);
    EXPECT_TRUE(fs::is_directory(Festplatte / PfadAus("Größen")));
    EXPECT_EQ(Zeilen(form->Wahl.Verzeichnis), (Liste{"..", "Größen", "texte"}));
    EXPECT_EQ(form->Wahl.Pfad(), Festplatte);
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(DialogFormZielTest, EinVerzeichnisDasNichtGehtWirdGemeldet)
{
    Öffnen();
    Tippen(form->VZ, "plan.txt");
    Klick(form->Verzeichnis);
    EXPECT_EQ(GezeigteMeldungen.size(), 1U);
    Tippen(form->VZ, "a/b");
    Klick(form->Verzeichnis);
    EXPECT_EQ(GezeigteMeldungen.size(), 2U);
    EXPECT_FALSE(fs::exists(Festplatte / "a")) << "one level, not a chain";
    EXPECT_TRUE(form->isVisible());
}

TEST_F(DialogFormZielTest, DieEingabetasteErstelltAuchEinVerzeichnis)
{
    Öffnen();
    Tippen(form->VZ, "neu");
    QTest::keyClick(form->VZ, Qt::Key_Return);
    EXPECT_EQ(Zeilen(form->Wahl.Verzeichnis), (Liste{"..", "neu", "texte"}));
    EXPECT_FALSE(fs::exists(Festplatte / "Datei.txt")) << "the plan is not written";
}

} // namespace
} // namespace altardienst
