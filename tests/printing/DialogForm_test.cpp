// The dialog that writes the plan as a text file.
#include "printing/DialogForm.h"

#include "fenster/Anwendung.h"
#include "fenster/Fensterstand.h"

#include <QMainWindow>
#include <QPointer>

#include <map>

namespace altardienst {
namespace {

namespace fs = std::filesystem;

/// The disk holds the directory texte and the file plan.txt; the plan has one mass.
class DialogFormTest : public Fensterstand {
  protected:
    DialogFormTest()
    {
        fs::create_directories(Festplatte / "texte");
        DateiSchreiben(Festplatte / "plan.txt", "alt\r\n");
        Konfig.Gemeinde = "St. Martin";
        MesseMitDienern(DatumAus({2026, 11, 29}), 0);
        haupt->setObjectName("Haupt");
        haupt->showMaximized();
        Zeigen(haupt);
        HauptfensterSetzen(haupt);
    }

    DialogForm &Öffnen()
    {
        form = new DialogForm;
        DialogÖffnen(form);
        Zeigen(form);
        return *form;
    }

    Text Ziel() const { return Aufschrift(form->Datei); }
    static Text Pfad(const fs::path &pfad) { return TextVon(pfad); }

    bool WählerStehtAuf(const char *name) const
    {
        const bool gewählt = Finden<QRadioButton>(form, name)->isChecked();
        EXPECT_NE(form->Anhang->isChecked(), form->Überschreib->isChecked()); // exactly one
        return gewählt;
    }

    static std::vector<Text> Zeilen(const QListWidget *liste)
    {
        std::vector<Text> zeilen;
        for (int i = 0; i < liste->count(); ++i)
            zeilen.push_back(liste->item(i)->text().toStdString());
        return zeilen;
    }

    void VerzeichnisÖffnen(int zeile) const
    {
        form->Wahl.Verzeichnis->setFocus();
        form->Wahl.Verzeichnis->setCurrentRow(zeile);
        QTest::keyClick(form->Wahl.Verzeichnis, Qt::Key_Return);
    }

    bool ZurückImHauptfenster() const
    {
        return !form && haupt->isEnabled() && haupt->isMaximized();
    }

    const std::string plan = "Messen der Pfarrei St. Martin\r\n"
                             "vom 29.11.2026 bis 29.11.2026 \r\n"
                             "\r\n"
                             "Sonntag, 29.11.2026 , 10:00Uhr, Messe\r\n"
                             "\r\n";
    QPointer<QMainWindow> haupt = new QMainWindow;
    QPointer<DialogForm> form;
};

using Liste = std::vector<Text>;

TEST_F(DialogFormTest, JedesControlTrägtSeinenNamenUndSeineBeschriftung)
{
    Öffnen();
    EXPECT_EQ(form->objectName(), "Dialog");
    EXPECT_EQ(form->windowTitle(), "Messenliste als Textdatei speichern");
    const std::map<const char *, const char *> beschriftungen = {
        {"Verzeichnis", "Verzeichnis erstellen"},
        {"Überschreib", "überschreiben"},
        {"Anhang", "anhängen"},
        {"OKButton", "OK"},
        {"CancelButton", "Abbrechen"},
        {"Dateiname", ""},
        {"VZ", ""},
    };
    for (const auto &[name, text] : beschriftungen)
        EXPECT_EQ(Aufschrift(Finden(form, name)), text) << name;
    EXPECT_EQ(Finden<QGroupBox>(form, "Datend")->title(), "Daten an Datei");
    for (const char *name : {"Drive1", "Dir1", "Dateien", "Datei"})
        EXPECT_TRUE(Finden(form, name)->isVisible()) << name;
    EXPECT_EQ(form->Dateiname->placeholderText(), "Datei");
    EXPECT_EQ(form->VZ->placeholderText(), "neues Verzeichnis");
    EXPECT_TRUE(form->Dateiname->hasFocus());
}

TEST_F(DialogFormTest, ÖffnetInDerErstenWurzelMitDemNamenDatei)
{
    Öffnen();
    EXPECT_EQ(form->Wahl.Pfad(), Festplatte);
    EXPECT_EQ(Zeilen(form->Wahl.Verzeichnis), (Liste{"..", "texte"}));
    EXPECT_EQ(Zeilen(form->Wahl.Dateien), Liste{"plan.txt"});
    EXPECT_EQ(Ziel(), Pfad(Festplatte / "Datei.txt"));
    EXPECT_TRUE(WählerStehtAuf("Überschreib"));
}

TEST_F(DialogFormTest, DasZielFolgtDemNamen)
{
    Öffnen();
    Tippen(form->Dateiname, "neu");
    EXPECT_EQ(Ziel(), Pfad(Festplatte / "neu.txt"));
    Tippen(form->Dateiname, "neu.txt");
    EXPECT_EQ(Ziel(), Pfad(Festplatte / "neu.txt.txt"));
    Tippen(form->Dateiname, "");
    EXPECT_EQ(Ziel(), Pfad(Festplatte / "Datei.txt"));
}

TEST_F(DialogFormTest, DasZielFolgtDemVerzeichnis)
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

TEST_F(DialogFormTest, DasZielFolgtDemLaufwerk)
{
    DateiSchreiben(Diskette / "Datei.txt", "");
    Öffnen();
    FokusAuf(form->Wahl.Laufwerk);
    QTest::keyClick(form->Wahl.Laufwerk, Qt::Key_Down);
    EXPECT_EQ(Ziel(), Pfad(Diskette / "Datei.txt"));
    EXPECT_EQ(Zeilen(form->Wahl.Dateien), Liste{"Datei.txt"});
    EXPECT_TRUE(WählerStehtAuf("Anhang"));
}

TEST_F(DialogFormTest, EinUnlesbaresLaufwerkLässtZielUndListenStehen)
{
    Öffnen();
    Tippen(form->Dateiname, "plan");
    Klick(form->Überschreib);
    fs::remove_all(Diskette);
    DateiSchreiben(Festplatte / "später.txt", "");
    FokusAuf(form->Wahl.Laufwerk);
    QTest::keyClick(form->Wahl.Laufwerk, Qt::Key_Down);
    EXPECT_EQ(Ziel(), Pfad(Festplatte / "plan.txt"));
    EXPECT_TRUE(WählerStehtAuf("Überschreib")) << "nothing is formed anew";
    EXPECT_EQ(Zeilen(form->Wahl.Dateien), Liste{"plan.txt"});
    EXPECT_EQ(form->Wahl.Laufwerk->currentText(), "Festplatte");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(DialogFormTest, EineVorhandeneDateiWirdFortgesetztOhneAufGroßUndKleinZuAchten)
{
    Öffnen();
    for (const char *name : {"plan", "PLAN", "Plan"}) {
        Tippen(form->Dateiname, name);
        EXPECT_TRUE(WählerStehtAuf("Anhang")) << name;
        EXPECT_EQ(Ziel(), Pfad(Festplatte / (Text(name) + ".txt")));
        Tippen(form->Dateiname, (Text(name) + "x").c_str());
        EXPECT_TRUE(WählerStehtAuf("Überschreib")) << name;
    }
}

TEST_F(DialogFormTest, EinNeuerNameFrischtDieDateilisteAuf)
{
    Öffnen();
    DateiSchreiben(Festplatte / "später.txt", "");
    EXPECT_EQ(Zeilen(form->Wahl.Dateien), Liste{"plan.txt"});
    Tippen(form->Dateiname, "x");
    EXPECT_EQ(Zeilen(form->Wahl.Dateien), (Liste{"plan.txt", "später.txt"}));
}

TEST_F(DialogFormTest, EinClickInDieDateilistePrüftNeu)
{
    Öffnen();
    DateiSchreiben(Festplatte / "Datei.txt", "");
    EXPECT_TRUE(WählerStehtAuf("Überschreib"));
    QListWidget *dateien = form->Wahl.Dateien;
    QTest::mouseClick(dateien->viewport(), Qt::LeftButton, {},
                      dateien->visualItemRect(dateien->item(0)).center());
    EXPECT_TRUE(WählerStehtAuf("Anhang"));
    EXPECT_EQ(Ziel(), Pfad(Festplatte / "Datei.txt")); // the list does not name the file
}

TEST_F(DialogFormTest, AnhängenOhneDateiFälltSofortZurück)
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

TEST_F(DialogFormTest, DiePfeiltastenWählenWieEinClick)
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

TEST_F(DialogFormTest, VerzeichnisErstellenLegtEsAnUndZeigtEs)
{
    Öffnen();
    Klick(form->Verzeichnis); // an empty box makes nothing
    EXPECT_EQ(Zeilen(form->Wahl.Verzeichnis), (Liste{"..", "texte"}));
    Tippen(form->VZ, "Größen");
    Klick(form->Verzeichnis);
    EXPECT_TRUE(fs::is_directory(Festplatte / PfadAus("Größen")));
    EXPECT_EQ(Zeilen(form->Wahl.Verzeichnis), (Liste{"..", "Größen", "texte"}));
    EXPECT_EQ(form->Wahl.Pfad(), Festplatte);
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(DialogFormTest, EinVerzeichnisDasNichtGehtWirdGemeldet)
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

TEST_F(DialogFormTest, DieEingabetasteErstelltAuchEinVerzeichnis)
{
    Öffnen();
    Tippen(form->VZ, "neu");
    QTest::keyClick(form->VZ, Qt::Key_Return);
    EXPECT_EQ(Zeilen(form->Wahl.Verzeichnis), (Liste{"..", "neu", "texte"}));
    EXPECT_FALSE(fs::exists(Festplatte / "Datei.txt")) << "the plan is not written";
}

TEST_F(DialogFormTest, OkSchreibtEineNeueDateiUndKehrtZurück)
{
    Öffnen();
    EXPECT_FALSE(haupt->isEnabled());
    EXPECT_TRUE(haupt->isMinimized());
    Tippen(form->Dateiname, "neu");
    Klick(form->OKButton);
    EXPECT_EQ(DateiLesen(Festplatte / "neu.txt"), plan);
    EXPECT_TRUE(Warten([&] { return ZurückImHauptfenster(); }));
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(DialogFormTest, EinZweiterExportHängtDenGanzenPlanAn)
{
    for (int mal = 0; mal < 2; ++mal) {
        Öffnen();
        Tippen(form->Dateiname, "neu");
        Klick(form->OKButton);
    }
    EXPECT_EQ(DateiLesen(Festplatte / "neu.txt"), plan + plan);
}

TEST_F(DialogFormTest, ÜberschreibenLeertDieDateiVorher)
{
    Öffnen();
    Tippen(form->Dateiname, "plan");
    Klick(form->Überschreib);
    Klick(form->OKButton);
    EXPECT_EQ(DateiLesen(Festplatte / "plan.txt"), plan);
}

TEST_F(DialogFormTest, AnhängenLässtStehenWasDaWar)
{
    Öffnen();
    Tippen(form->Dateiname, "plan");
    Klick(form->OKButton);
    EXPECT_EQ(DateiLesen(Festplatte / "plan.txt"), "alt\r\n" + plan);
}

TEST_F(DialogFormTest, OhneNamenEntstehtDateiTxt)
{
    Öffnen();
    FokusAuf(form->OKButton);
    QTest::keyClick(form->OKButton, Qt::Key_Return);
    EXPECT_EQ(DateiLesen(Festplatte / "Datei.txt"), plan);
}

TEST_F(DialogFormTest, EinFehlerBeimSchreibenWirdGemeldetUndDerDialogBleibt)
{
    auto scheitern = [](const fs::path &, std::string_view) {
        throw Laufzeitfehler(Laufzeitfehler::DatenträgerVoll);
    };
    Laufwerke.Schreiben = scheitern;
    Laufwerke.Anhängen = scheitern;
    Öffnen();
    for (const char *name : {"neu", "plan"}) {
        GezeigteMeldungen.clear();
        Tippen(form->Dateiname, name);
        Klick(form->OKButton);
        EXPECT_EQ(GezeigteMeldungen, Liste{"Datei konnte nicht geschrieben werden!!"});
        EXPECT_TRUE(form->isVisible());
        EXPECT_FALSE(haupt->isEnabled());
    }
}

TEST_F(DialogFormTest, EineUnlesbareWurzelIstKeinStillesGelingen)
{
    Laufwerke.Wurzeln = [this] { return std::vector<Wurzel>{{"weg", Festplatte / "weg"}}; };
    Öffnen();
    EXPECT_TRUE(WählerStehtAuf("Überschreib"));
    Klick(form->OKButton);
    EXPECT_EQ(GezeigteMeldungen, Liste{"Datei konnte nicht geschrieben werden!!"});
    EXPECT_TRUE(form->isVisible());
}

TEST_F(DialogFormTest, AbbrechenUndSchließenSchreibenNichts)
{
    for (bool abbrechen : {true, false}) {
        Öffnen();
        Tippen(form->Dateiname, "neu");
        if (abbrechen)
            Klick(form->CancelButton);
        else
            form->close();
        EXPECT_TRUE(Warten([&] { return ZurückImHauptfenster(); }));
        EXPECT_FALSE(fs::exists(Festplatte / "neu.txt"));
    }
    EXPECT_EQ(DateiLesen(Festplatte / "plan.txt"), "alt\r\n");
}

TEST_F(DialogFormTest, TabFolgtDemAuge)
{
    Öffnen();
    FokusAuf(form->Wahl.Laufwerk);
    EXPECT_EQ(Tabfolge(form), (Liste{"Drive1", "Dir1", "VZ", "Verzeichnis", "Dateiname", "Dateien",
                                     "Überschreib", "OKButton", "CancelButton"}));
    EXPECT_EQ(Stumme(form), Liste{});
}

TEST_F(DialogFormTest, KnöpfeSindGrünMitUndGrauOhneFokus)
{
    Öffnen();
    for (QPushButton *knopf : {form->Verzeichnis, form->OKButton, form->CancelButton}) {
        FokusAuf(knopf);
        EXPECT_EQ(Grundfarbe(knopf), QColor(0, 255, 0)) << Aufschrift(knopf);
        FokusAuf(form->Dateiname);
        EXPECT_EQ(Grundfarbe(knopf), QColor(192, 192, 192)) << Aufschrift(knopf);
    }
}

TEST_F(DialogFormTest, PasstAufDenKleinstenBildschirmAuchMitLangemPfad)
{
    Öffnen();
    const int breite = form->width();
    form->Dateiname->setText(QString(200, 'w'));
    QCoreApplication::processEvents();
    EXPECT_EQ(form->width(), breite);
    const QSize platz = form->size();
    EXPECT_LE(platz.width(), KleinsterBildschirm.width());
    EXPECT_LE(platz.height(), KleinsterBildschirm.height());
}

} // namespace
} // namespace altardienst
