// The dialog that writes the plan as a text file.
#include "printing/Dialogstand.h"

#include <map>

namespace altardienst {
namespace {

namespace fs = std::filesystem;

class DialogFormTest : public Dialogstand {};

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
        EXPECT_EQ(Zeigt(name), text) << name;
    EXPECT_EQ(Finden<QGroupBox>("Datend")->title(), "Daten an Datei");
    for (const char *name : {"Drive1", "Dir1", "Dateien", "Datei"})
        EXPECT_TRUE(Finden(name)->isVisible()) << name;
    EXPECT_EQ(form->Dateiname->placeholderText(), "Datei");
    EXPECT_EQ(form->VZ->placeholderText(), "neues Verzeichnis");
    EXPECT_TRUE(form->Dateiname->hasFocus());
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

TEST_F(DialogFormTest, ReichtDerSpeicherNichtBleibtDerDialogOffen)
{
    Öffnen();
    Laufwerke.Schreiben = [](const std::filesystem::path &, std::string_view) {
        throw std::bad_alloc();
    };
    Klick(form->OKButton);
    EXPECT_TRUE(form->isVisible());
    EXPECT_TRUE(Warten([this] { return GezeigteMeldungen.size() == 1; }));
    EXPECT_TRUE(GezeigteMeldungen.at(0).starts_with("Der Arbeitsspeicher reicht nicht aus."));
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

TEST_F(DialogFormTest, EineVorhandeneDateiWirdUnterIhremNamenFortgesetztUndÜberschrieben)
{
    NUR_WO_ES_GIBT(Schreibungen);
    fs::rename(Festplatte / "plan.txt", Festplatte / "PLAN.TXT");
    Öffnen();
    Tippen(form->Dateiname, "plan");
    EXPECT_EQ(Zeigt(form->Datei), TextVon(Festplatte / "plan.txt")) << "as typed";
    ASSERT_TRUE(WählerStehtAuf("Anhang"));
    Klick(form->OKButton);
    EXPECT_EQ(Laufwerke.Auflisten(Festplatte).Dateien, Liste{"PLAN.TXT"});
    EXPECT_EQ(DateiLesen(Festplatte / "PLAN.TXT"), "alt\r\n" + plan);

    Öffnen();
    Tippen(form->Dateiname, "Plan");
    Klick(form->Überschreib);
    Klick(form->OKButton);
    EXPECT_EQ(Laufwerke.Auflisten(Festplatte).Dateien, Liste{"PLAN.TXT"});
    EXPECT_EQ(DateiLesen(Festplatte / "PLAN.TXT"), plan);
    EXPECT_TRUE(GezeigteMeldungen.empty());
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

TEST_F(DialogFormTest, WasVorEinemFehlerGeschriebenWarBleibtInDerDatei)
{
    const std::string hälfte = plan.substr(0, plan.size() / 2);
    Laufwerke.Anhängen = [&, anhängen = Laufwerke.Anhängen](const fs::path &pfad,
                                                            std::string_view text) {
        EXPECT_EQ(text, plan);
        anhängen(pfad, hälfte);
        throw Laufzeitfehler(Laufzeitfehler::DatenträgerVoll);
    };
    Öffnen();
    Tippen(form->Dateiname, "plan");
    Klick(form->OKButton);
    EXPECT_EQ(GezeigteMeldungen, Liste{"Datei konnte nicht geschrieben werden!!"});
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(DateiLesen(Festplatte / "plan.txt"), "alt\r\n" + hälfte);
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
        EXPECT_EQ(Grundfarbe(knopf), QColor(0, 255, 0)) << Zeigt(knopf);
        FokusAuf(form->Dateiname);
        EXPECT_EQ(Grundfarbe(knopf), QColor(192, 192, 192)) << Zeigt(knopf);
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
