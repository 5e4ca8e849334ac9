// The dialog that copies the eight files out of the program's directory, and what the three copy
// dialogs share.
#include "settings/Kopierstand.h"

#include "core/Allgemein.h"

namespace altardienst {
namespace {

namespace fs = std::filesystem;

class DatensicherungFormTest : public Kopierstand {
  protected:
    DatensicherungFormTest() { AchtSchreiben(Festplatte, "neu "); }

    KopierForm &Öffnen() { return Kopierstand::Öffnen<DatensicherungForm>(); }

    void Sichern(bool alle = true)
    {
        Öffnen();
        NächstesLaufwerk();
        if (!alle)
            Klick(form->Einzel);
        Klick(form->OKButton);
    }
};

TEST_F(DatensicherungFormTest, JedesControlTrägtSeinenNamenUndSeineBeschriftung)
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
        EXPECT_EQ(Aufschrift(Finden(form, name)), text) << name;
    EXPECT_EQ(Finden<QGroupBox>(form, "EoA")->title(), "Daten ?");
    EXPECT_EQ(Finden<QGroupBox>(form, "Welche")->title(), "Welche ?");
    EXPECT_TRUE(Finden<QComboBox>(form, "Drive1")->isVisible());
    EXPECT_TRUE(Finden<QListWidget>(form, "Dir1")->isVisible());
    EXPECT_TRUE(Finden<QListWidget>(form, "Dateien")->isVisible());
    EXPECT_TRUE(Finden<QLabel>(form, "Datei")->isVisible());
}

TEST_F(DatensicherungFormTest, BeginntMitAllenAufDemErstenLaufwerk)
{
    Öffnen();
    EXPECT_TRUE(form->Alle->isChecked());
    EXPECT_FALSE(form->Einzel->isChecked());
    EXPECT_FALSE(form->Welche->isVisible());
    EXPECT_EQ(form->Wahl.Pfad(), laufwerk);
    EXPECT_EQ(Datei(), TextVon(laufwerk) + "/");
    EXPECT_TRUE(ZeigtOK());
    EXPECT_FALSE(haupt->isEnabled());
    EXPECT_TRUE(haupt->isMinimized());
}

TEST_F(DatensicherungFormTest, EinzelZeigtDieDateienUndWähltDieErste)
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

TEST_F(DatensicherungFormTest, DerPfadFolgtVerzeichnisUndLaufwerkUndEndetMitEinemTrenner)
{
    fs::create_directories(laufwerk / "Größen");
    Öffnen();
    VerzeichnisÖffnen("Größen");
    EXPECT_EQ(Datei(), TextVon(laufwerk) + "/Größen/");
    NächstesLaufwerk();
    EXPECT_EQ(Datei(), TextVon(Diskette) + "/");
    NächstesLaufwerk(-1);
    EXPECT_EQ(Datei(), TextVon(laufwerk) + "/") << "not the last directory on that drive";
}

TEST_F(DatensicherungFormTest, EineWurzelHatKeinenZweitenTrenner)
{
    Laufwerke.Wurzeln = [] { return std::vector<Wurzel>{{"Dateisystem", "/"}}; };
    Öffnen();
    EXPECT_EQ(Datei(), "/");
}

TEST_F(DatensicherungFormTest, EinUnlesbaresLaufwerkLässtAllesStehen)
{
    Öffnen();
    fs::remove_all(Diskette);
    NächstesLaufwerk();
    EXPECT_EQ(Datei(), TextVon(laufwerk) + "/");
    EXPECT_EQ(form->Wahl.Laufwerk->currentText(), "Platte");
    EXPECT_TRUE(ZeigtOK());
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(DatensicherungFormTest, OhneLesbaresLaufwerkGibtEsKeinOK)
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

TEST_F(DatensicherungFormTest, FehltEineDateiDesProgrammsGibtEsKeinOKWelchesZielAuchImmer)
{
    for (const auto &[name, klein] : AchtNamen) {
        SCOPED_TRACE(name);
        fs::rename(Festplatte / PfadAus(name), Festplatte / PfadAus(klein));
        Öffnen();
        EXPECT_FALSE(ZeigtOK()) << "stored in small letters";
        fs::remove(Festplatte / PfadAus(klein));
        NächstesLaufwerk();
        EXPECT_FALSE(ZeigtOK());
        Klick(form->Einzel);
        EXPECT_FALSE(ZeigtOK()) << "not for a single file either";
        AchtSchreiben(Diskette, "");
        NächstesLaufwerk(-1);
        NächstesLaufwerk();
        EXPECT_FALSE(ZeigtOK()) << "the target is not tested";
        DateiSchreiben(Festplatte / PfadAus(name), "neu " + Text(name));
        NächstesLaufwerk(-1);
        EXPECT_TRUE(ZeigtOK());
        form->close();
    }
}

TEST_F(DatensicherungFormTest, AlleAchtEntstehenInKleinbuchstabenUndDasHauptfensterKehrtZurück)
{
    Sichern();
    EXPECT_TRUE(Warten([&] { return ZurückImHauptfenster(); }));
    EXPECT_EQ(DateienIn(Diskette).size(), 8U);
    for (const auto &[name, klein] : AchtNamen)
        EXPECT_EQ(DateiLesen(Diskette / PfadAus(klein)), "neu " + Text(name));
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(DatensicherungFormTest, SichernLädtNichts)
{
    Konfig.Gemeinde = "im Speicher";
    Sichern();
    ASSERT_EQ(DateienIn(Diskette).size(), 8U);
    EXPECT_EQ(Konfig.Gemeinde, "im Speicher");
    EXPECT_EQ(NachKopie, 0);
}

TEST_F(DatensicherungFormTest, JedeOptionSichertIhreDateiAllein)
{
    for (std::size_t k = 0; k < AchtNamen.size(); ++k) {
        Öffnen();
        NächstesLaufwerk();
        EinzelneWählen(k);
        Klick(form->OKButton);
        EXPECT_EQ(DateienIn(Diskette), Liste{AchtNamen[k].second});
        fs::remove(Diskette / PfadAus(AchtNamen[k].second));
    }
}

TEST_F(DatensicherungFormTest, DerRundwegBringtDieAchtDateienByteFürByteZurück)
{
    Konfig.Gemeinde = "St. Martin";
    MeßdienerAnlegen("Jörg", "Größe");
    fs::remove_all(Festplatte);
    fs::create_directories(Festplatte);
    AufFestplatteSpeichern();
    std::map<Text, std::string> zuvor;
    for (const auto &[name, klein] : AchtNamen)
        zuvor[name] = DateiLesen(Festplatte / PfadAus(name));

    Öffnen();
    NächstesLaufwerk();
    Tippen(form->VZ, "Sicherung");
    Klick(form->Verzeichnis);
    VerzeichnisÖffnen("Sicherung");
    Klick(form->OKButton);

    // What the program offers for restoring it: nothing, until the files bear their own names.
    Kopierstand::Öffnen<DateikopieForm>();
    NächstesLaufwerk();
    VerzeichnisÖffnen("Sicherung");
    EXPECT_FALSE(ZeigtOK());
    form->close();
    for (const auto &[name, klein] : AchtNamen)
        fs::rename(Diskette / "Sicherung" / PfadAus(klein), Diskette / "Sicherung" / PfadAus(name));

    TabellenLeeren();
    AufFestplatteSpeichern();
    Kopierstand::Öffnen<DateikopieForm>();
    NächstesLaufwerk();
    VerzeichnisÖffnen("Sicherung");
    ASSERT_TRUE(ZeigtOK());
    Klick(form->OKButton);
    EXPECT_EQ(DateienIn(Festplatte).size(), 8U);
    for (const auto &[name, klein] : AchtNamen)
        EXPECT_TRUE(DateiLesen(Festplatte / PfadAus(name)) == zuvor[name]) << name;
    EXPECT_EQ(Konfig.Gemeinde, "St. Martin");
    EXPECT_EQ(Meßdiener.Nachname[0], "Größe");
    AufFestplatteSpeichern();
    for (const auto &[name, klein] : AchtNamen)
        EXPECT_TRUE(DateiLesen(Festplatte / PfadAus(name)) == zuvor[name]) << name;
}

TEST_F(DatensicherungFormTest, EinFehlerWirdGezeigtUndDerDialogBleibt)
{
    AchtSchreiben(Diskette, "alt ");
    for (auto art : {Laufzeitfehler::DatenträgerVoll, Laufzeitfehler::ZugriffVerweigert}) {
        GezeigteMeldungen.clear();
        auto kopieren = Laufwerke.Kopieren;
        Laufwerke.Kopieren = [=](const path &von, const path &nach) {
            if (von.filename() == "Gruppen.dat")
                throw Laufzeitfehler(art);
            kopieren(von, nach);
        };
        Sichern();
        EXPECT_EQ(GezeigteMeldungen, Liste{Laufzeitfehler(art).Meldung()});
        EXPECT_TRUE(form->isVisible());
        EXPECT_FALSE(haupt->isEnabled());
        EXPECT_EQ(DateiLesen(Diskette / "Etiketten.dat"), "neu Etiketten.dat");
        EXPECT_EQ(DateiLesen(Diskette / "Gruppen.dat"), "alt Gruppen.dat");
        EXPECT_EQ(DateiLesen(Diskette / "Helfer.dat"), "alt Helfer.dat");
        Laufwerke.Kopieren = kopieren;
        form->close();
    }
}

TEST_F(DatensicherungFormTest, EinSchreibgeschütztesZielBleibt)
{
    DateiSchreiben(Diskette / "konfig.cfg", "alt");
    fs::permissions(Diskette / "konfig.cfg", fs::perms::owner_read);
    Sichern();
    EXPECT_EQ(GezeigteMeldungen, Liste{"Laufzeitfehler '75': Zugriff verweigert"});
    EXPECT_EQ(DateiLesen(Diskette / "konfig.cfg"), "alt");
    EXPECT_EQ(DateienIn(Diskette), Liste{"konfig.cfg"});
}

TEST_F(DatensicherungFormTest, EinVerschwundenesZielUndEineDateiAnSeinerStelle)
{
    for (bool datei : {false, true}) {
        GezeigteMeldungen.clear();
        fs::create_directories(Diskette / "Ziel");
        Öffnen();
        NächstesLaufwerk();
        VerzeichnisÖffnen("Ziel");
        fs::remove(Diskette / "Ziel");
        if (datei)
            DateiSchreiben(Diskette / "Ziel", "x");
        Klick(form->OKButton);
        ASSERT_EQ(GezeigteMeldungen.size(), 1U);
        EXPECT_TRUE(GezeigteMeldungen[0].starts_with("Laufzeitfehler '76'"));
        EXPECT_EQ(fs::exists(Diskette / "Ziel"), datei);
        form->close();
        fs::remove(Diskette / "Ziel");
    }
}

TEST_F(DatensicherungFormTest, DasVerzeichnisDesProgrammsAlsZielZerstörtNichts)
{
    Öffnen();
    VerzeichnisÖffnen("Altardienst");
    ASSERT_TRUE(ZeigtOK());
    Klick(form->OKButton);
    EXPECT_EQ(GezeigteMeldungen, Liste{"Laufzeitfehler '75': Zugriff verweigert"});
    for (const auto &[name, klein] : AchtNamen)
        EXPECT_EQ(DateiLesen(Festplatte / PfadAus(name)), "neu " + Text(name));
    EXPECT_EQ(DateienIn(Festplatte).size(), 8U);
}

TEST_F(DatensicherungFormTest, VerzeichnisErstellenLegtAnUndBetrittNicht)
{
    Öffnen();
    NächstesLaufwerk();
    Klick(form->Verzeichnis); // an empty box makes nothing
    EXPECT_EQ(form->Wahl.Verzeichnis->count(), 1);
    Tippen(form->VZ, "Größen");
    DateiSchreiben(Diskette / "später", "");
    Klick(form->Verzeichnis);
    EXPECT_TRUE(fs::is_directory(Diskette / PfadAus("Größen")));
    ASSERT_EQ(form->Wahl.Verzeichnis->count(), 2);
    EXPECT_EQ(form->Wahl.Verzeichnis->item(1)->text(), QString::fromUtf8("Größen"));
    EXPECT_EQ(form->Wahl.Dateien->count(), 1) << "the files are read anew too";
    EXPECT_EQ(Datei(), TextVon(Diskette) + "/");
}

TEST_F(DatensicherungFormTest, DieEingabetasteErstelltAuch)
{
    Öffnen();
    NächstesLaufwerk();
    Tippen(form->VZ, "Größen");
    QTest::keyClick(form->VZ, Qt::Key_Return);
    EXPECT_TRUE(fs::is_directory(Diskette / PfadAus("Größen")));
    EXPECT_EQ(form->Wahl.Verzeichnis->count(), 2);
    EXPECT_TRUE(form->isVisible());
}

TEST_F(DatensicherungFormTest, EinVerzeichnisDasNichtGehtWirdÜbergangen)
{
    DateiSchreiben(Diskette / "im Weg", "x");
    Öffnen();
    NächstesLaufwerk();
    DateiSchreiben(Diskette / "später", "");
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

TEST_F(DatensicherungFormTest, VZWirdHellgrünUndWiederWeiß)
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

TEST_F(DatensicherungFormTest, KnöpfeSindGrünMitUndGrauOhneFokus)
{
    Öffnen();
    for (QPushButton *knopf : {form->Verzeichnis, form->OKButton, form->CancelButton}) {
        FokusAuf(knopf);
        EXPECT_EQ(Grundfarbe(knopf), QColor(0, 255, 0)) << Aufschrift(knopf);
        FokusAuf(form->VZ);
        EXPECT_EQ(Grundfarbe(knopf), QColor(192, 192, 192)) << Aufschrift(knopf);
    }
}

TEST_F(DatensicherungFormTest, AbbrechenUndSchließenKopierenNichts)
{
    for (bool abbrechen : {true, false}) {
        Öffnen();
        NächstesLaufwerk();
        if (abbrechen)
            Klick(form->CancelButton);
        else
            form->close();
        EXPECT_TRUE(Warten([&] { return ZurückImHauptfenster(); }));
        EXPECT_TRUE(DateienIn(Diskette).empty());
    }
}

TEST_F(DatensicherungFormTest, TabFolgtDemAuge)
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

TEST_F(DatensicherungFormTest, PasstAufDenKleinstenBildschirmAuchMitLangemPfad)
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
