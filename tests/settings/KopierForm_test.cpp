// What the three copy dialogs share: drive, directory and files, one file or all of them, a new
// directory.
#include "settings/Kopierstand.h"

namespace altardienst {
namespace {

namespace fs = std::filesystem;

class KopierFormTest : public Kopierstand {
  protected:
    KopierFormTest() { AchtSchreiben(Festplatte, "neu "); }

    KopierForm &Öffnen() { return Kopierstand::Öffnen<DatensicherungForm>(); }
};

TEST_F(KopierFormTest, JedesControlTrägtSeinenNamenUndSeineBeschriftung)
{
    Öffnen();
    EXPECT_EQ(form->objectName(), "Datensicherung");
    EXPECT_EQ(form->windowTitle(), "Daten sichern");
    const std::map<const char *, const char *> beschriftungen = {
        {"Alle", "Alle"},
        {"Einzel", "Einzel"},
        {"O1", "Konfiguration"},
        {"O2", "Etiketten"},
        {"O3", "Gruppen"},
        {"O4", "Helfer"},
        {"O5", "Meßdierner"},
        {"O6", "Messen"},
        {"O7", "Standardmessen"},
        {"O8", "Meßdiener für bestimmte Messen"},
        {"OKButton", "OK"},
        {"CancelButton", "Abbrechen"},
        {"VZ", ""},
        {"Verzeichnis", "Verzeichnis erstellen"},
    };
    for (const auto &[name, text] : beschriftungen)
        EXPECT_EQ(Zeigt(name), text) << name;
    EXPECT_EQ(Finden<QGroupBox>("EoA")->title(), "Daten ?");
    EXPECT_EQ(Finden<QGroupBox>("Welche")->title(), "Welche ?");
    EXPECT_TRUE(Finden<QComboBox>("Drive1")->isVisible());
    EXPECT_TRUE(Finden<QListWidget>("Dir1")->isVisible());
    EXPECT_TRUE(Finden<QListWidget>("Dateien")->isVisible());
    EXPECT_TRUE(Finden<QLabel>("Datei")->isVisible());
}

TEST_F(KopierFormTest, BeginntMitAllenAufDemErstenLaufwerk)
{
    Öffnen();
    EXPECT_TRUE(form->Alle->isChecked());
    EXPECT_FALSE(form->Einzel->isChecked());
    EXPECT_FALSE(form->Welche->isVisible());
    EXPECT_EQ(form->Wahl.Pfad(), laufwerk);
    EXPECT_EQ(Datei(), OrdnerText(laufwerk));
    EXPECT_TRUE(ZeigtOK());
    EXPECT_FALSE(haupt->isEnabled());
    EXPECT_TRUE(haupt->isMinimized());
}

TEST_F(KopierFormTest, EinzelZeigtDieDateienUndWähltDieErste)
{
    Öffnen();
    Klick(form->Einzel);
    EXPECT_TRUE(form->Welche->isVisible());
    EXPECT_TRUE(form->O[0]->isChecked());
    EinzelneWählen(4);
    EXPECT_TRUE(form->O[4]->isChecked());
    EXPECT_FALSE(form->O[0]->isChecked()) << "one file";
    Klick(form->Alle);
    EXPECT_FALSE(form->Welche->isVisible());
    Klick(form->Einzel);
    EXPECT_TRUE(form->O[0]->isChecked());
    EXPECT_FALSE(form->O[4]->isChecked());
}

TEST_F(KopierFormTest, DerPfadFolgtVerzeichnisUndLaufwerkUndEndetMitEinemTrenner)
{
    fs::create_directories(laufwerk / PfadAus("Größen"));
    Öffnen();
    VerzeichnisÖffnen("Größen");
    EXPECT_EQ(Datei(), OrdnerText(laufwerk / PfadAus("Größen")));
    NächstesLaufwerk();
    EXPECT_EQ(Datei(), OrdnerText(Diskette));
    NächstesLaufwerk(-1);
    EXPECT_EQ(Datei(), OrdnerText(laufwerk)) << "not the last directory on that drive";
}

TEST_F(KopierFormTest, EineWurzelHatKeinenZweitenTrenner)
{
    Laufwerke.Wurzeln = [] { return std::vector<Wurzel>{{"Dateisystem", "/"}}; };
    Öffnen();
    EXPECT_EQ(Datei(), OrdnerText("/"));
}

TEST_F(KopierFormTest, EinUnlesbaresLaufwerkLässtAllesStehen)
{
    Öffnen();
    fs::remove_all(Diskette);
    NächstesLaufwerk();
    EXPECT_EQ(Datei(), OrdnerText(laufwerk));
    EXPECT_EQ(form->Wahl.Laufwerk->currentText(), "Platte");
    EXPECT_TRUE(ZeigtOK());
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(KopierFormTest, OhneLesbaresLaufwerkGibtEsKeinOK)
{
    Laufwerke.Wurzeln = [this] {
        return std::vector<Wurzel>{{"weg", laufwerk / "weg"}, {"auch weg", laufwerk / "weg"}};
    };
    Öffnen();
    EXPECT_FALSE(ZeigtOK());
    EXPECT_EQ(Datei(), "");
    Tippen(form->VZ, "ohne Laufwerk");
    Klick(form->Verzeichnis);
    EXPECT_FALSE(fs::exists("ohne Laufwerk")) << "where the program was started";
    FokusAuf(form->Wahl.Laufwerk);
    QTest::keyClick(form->Wahl.Laufwerk, Qt::Key_Up);
    EXPECT_FALSE(ZeigtOK()) << "there is still nowhere to copy to";
    EXPECT_TRUE(GezeigteMeldungen.empty());
    Klick(form->CancelButton);
    EXPECT_TRUE(Warten([&] { return ZurückImHauptfenster(); }));
}

TEST_F(KopierFormTest, VerzeichnisErstellenLegtAnUndBetrittNicht)
{
    Öffnen();
    NächstesLaufwerk();
    Klick(form->Verzeichnis); // an empty box creates nothing
    EXPECT_EQ(form->Wahl.Verzeichnis->count(), 1);
    Tippen(form->VZ, "Größen");
    DateiSchreiben(Diskette / PfadAus("später"), "");
    Klick(form->Verzeichnis);
    EXPECT_TRUE(fs::is_directory(Diskette / PfadAus("Größen")));
    ASSERT_EQ(form->Wahl.Verzeichnis->count(), 2);
    EXPECT_EQ(form->Wahl.Verzeichnis->item(1)->text(), QString::fromUtf8("Größen"));
    EXPECT_EQ(form->Wahl.Dateien->count(), 1) << "the files are read anew too";
    EXPECT_EQ(Datei(), OrdnerText(Diskette));
}

TEST_F(KopierFormTest, DieEingabetasteErstelltAuch)
{
    Öffnen();
    NächstesLaufwerk();
    Tippen(form->VZ, "Größen");
    QTest::keyClick(form->VZ, Qt::Key_Return);
    EXPECT_TRUE(fs::is_directory(Diskette / PfadAus("Größen")));
    EXPECT_EQ(form->Wahl.Verzeichnis->count(), 2);
    EXPECT_TRUE(form->isVisible());
}

TEST_F(KopierFormTest, EinVerzeichnisDasNichtGehtWirdÜbergangen)
{
    DateiSchreiben(Diskette / "im Weg", "x");
    Öffnen();
    NächstesLaufwerk();
    DateiSchreiben(Diskette / PfadAus("später"), "");
    Tippen(form->VZ, "im Weg");
    Klick(form->Verzeichnis);
    EXPECT_TRUE(GezeigteMeldungen.empty());
    EXPECT_EQ(form->Wahl.Dateien->count(), 2) << "the lists are read anew nevertheless";
    Tippen(form->VZ, "a/b");
    Klick(form->Verzeichnis);
    EXPECT_FALSE(fs::exists(Diskette / "a")) << "one level, not a chain";
    EXPECT_EQ(DateiLesen(Diskette / "im Weg"), "x");
    fs::remove_all(Diskette);
    Tippen(form->VZ, "neu");
    Klick(form->Verzeichnis);
    EXPECT_FALSE(fs::exists(Diskette)) << "a stick pulled out does not come back as a directory";
    EXPECT_TRUE(GezeigteMeldungen.empty());
    EXPECT_TRUE(form->isVisible());
}

TEST_F(KopierFormTest, VZWirdHellgrünUndWiederWeiß)
{
    Öffnen();
    const auto grund = [this] {
        return form->VZ->grab().toImage().pixelColor(form->VZ->width() - 8, form->VZ->height() / 2);
    };
    FokusAuf(form->VZ);
    EXPECT_EQ(grund(), QColor(0, 255, 0));
    FokusAuf(form->CancelButton);
    EXPECT_EQ(grund(), QColor(255, 255, 255));
}

TEST_F(KopierFormTest, KnöpfeSindGrünMitUndGrauOhneFokus)
{
    Öffnen();
    for (QPushButton *knopf : {form->Verzeichnis, form->OKButton, form->CancelButton}) {
        FokusAuf(knopf);
        EXPECT_EQ(Grundfarbe(knopf), QColor(0, 255, 0)) << Zeigt(knopf);
        FokusAuf(form->VZ);
        EXPECT_EQ(Grundfarbe(knopf), QColor(192, 192, 192)) << Zeigt(knopf);
    }
}

TEST_F(KopierFormTest, TabFolgtDemAuge)
{
    Öffnen();
    FokusAuf(form->Wahl.Laufwerk);
    EXPECT_EQ(Tabfolge(form), (Liste{"Drive1", "Dir1", "VZ", "Verzeichnis", "Dateien", "Alle",
                                     "OKButton", "CancelButton"}));
    Klick(form->Einzel);
    FokusAuf(form->Wahl.Laufwerk);
    EXPECT_EQ(Tabfolge(form), (Liste{"Drive1", "Dir1", "VZ", "Verzeichnis", "Dateien", "Einzel",
                                     "O1", "OKButton", "CancelButton"}));
    EXPECT_EQ(Stumme(form), Liste{});
}

TEST_F(KopierFormTest, PasstAufDenKleinstenBildschirmAuchMitLangemPfad)
{
    fs::create_directories(laufwerk / std::string(200, 'w') / std::string(200, 'w'));
    Öffnen();
    Klick(form->Einzel);
    for (int tiefe = 0; tiefe < 2; ++tiefe) {
        VerzeichnisÖffnen(std::string(200, 'w').c_str());
        QCoreApplication::processEvents();
    }
    EXPECT_LE(form->width(), KleinsterBildschirm.width());
    EXPECT_LE(form->height(), KleinsterBildschirm.height());
    EXPECT_LE(form->minimumSizeHint().width(), KleinsterBildschirm.width());
}

} // namespace
} // namespace altardienst
