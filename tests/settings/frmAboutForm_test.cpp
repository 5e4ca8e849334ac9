// What the program says about itself.
#include "settings/frmAboutForm.h"

#include "Formstand.h"
#include "application/Anwendung.h"
#include "platform/Systeminfo.h"
#include "shell/HauptForm.h"

#include <QPointer>

namespace altardienst {
namespace {

namespace fs = std::filesystem;
using Liste = std::vector<Text>;

/// A platform without a tool; what is started is recorded.
class frmAboutFormTest : public Formstand<frmAboutForm> {
  protected:
    frmAboutFormTest() : zuvor(Systeminfo)
    {
        Systeminfo.Registrierung = [](const char *, const char *) -> std::optional<Text> {
            return std::nullopt;
        };
        Systeminfo.ImSuchpfad = [](const char *) -> std::optional<fs::path> {
            return std::nullopt;
        };
        Systeminfo.Starten = [this](const fs::path &programm) {
            gestartet.push_back(TextVon(programm));
        };
        haupt = new HauptForm;
        HauptfensterSetzen(haupt);
        haupt->showMaximized();
        Zeigen(haupt);
        MenüWählen(haupt, "mnuHelpAbout");
        form = static_cast<frmAboutForm *>(Fenster("frmAbout"));
        Zeigen(form);
    }

    ~frmAboutFormTest() override { Systeminfo = zuvor; }

    SysteminfoDienst zuvor;
    Liste gestartet;
    QPointer<HauptForm> haupt;
};

TEST_F(frmAboutFormTest, ZeigtNameVersionLizenzUndWarnung)
{
    EXPECT_EQ(form->windowTitle(), "Info zu Altardienst");
    EXPECT_EQ(Zeigt("lblTitle"), "Altardienst");
    EXPECT_EQ(Zeigt("lblVersion"), "Version " VERSION_DES_BAUS);
    EXPECT_EQ(Zeigt("lblDescription"), "Beschreibung: ");
    EXPECT_EQ(Zeigt("LBLXXXX"), "Verwaltung der Messen und Einteilung von Meßdiener und Meßhelfer "
                                "zu den einzelnen Messen.");
    EXPECT_EQ(Zeigt("Writen"), "© 2026 die Mitwirkenden an Altardienst. Freie Software unter der "
                               "GNU General Public License, Version 3 oder später.");
    EXPECT_EQ(Zeigt("lblDisclaimer"),
              "Warnung: Für dieses Programm besteht keine Gewährleistung, soweit das Gesetz es "
              "zulässt. Prüfen Sie jeden Plan vor dem Aushang und sichern Sie Ihre Daten.");
    EXPECT_EQ(Zeigt("cmdOK"), "OK");
    EXPECT_EQ(Zeigt("cmdSysInfo"), "&Systeminfo...");
    EXPECT_TRUE(Finden("picIcon")->isVisible());
}

TEST_F(frmAboutFormTest, DasHauptfensterBleibtWieEsWar)
{
    EXPECT_TRUE(haupt->isEnabled());
    EXPECT_TRUE(haupt->isMaximized());
    Klick(form->cmdOK);
    EXPECT_TRUE(Warten([&] { return !form; }));
    EXPECT_TRUE(haupt->isEnabled());
    EXPECT_TRUE(haupt->isMaximized());
}

TEST_F(frmAboutFormTest, EinZweitesMalZeigtDasselbeFenster)
{
    MenüWählen(haupt, "mnuHelpAbout");
    int offen = 0;
    for (const QWidget *fenster : QApplication::topLevelWidgets())
        offen += fenster->objectName() == "frmAbout";
    EXPECT_EQ(offen, 1);
    form->close();
    EXPECT_TRUE(Warten([&] { return !form; }));
    MenüWählen(haupt, "mnuHelpAbout");
    EXPECT_TRUE(IstOffen("frmAbout"));
}

TEST_F(frmAboutFormTest, EscapeSchließtBeiJedemFokus)
{
    FokusAuf(form->cmdSysInfo);
    QTest::keyClick(form->windowHandle(), Qt::Key_A);
    EXPECT_TRUE(form->isVisible());
    QTest::keyClick(form->windowHandle(), Qt::Key_Escape);
    EXPECT_TRUE(Warten([&] { return !form; }));
}

TEST_F(frmAboutFormTest, OhneWerkzeugKommtDieMeldung)
{
    Klick(form->cmdSysInfo);
    EXPECT_EQ(GezeigteMeldungen, Liste{"Systeminformationen sind momentan nicht verfügbar"});
    EXPECT_TRUE(gestartet.empty());
    EXPECT_TRUE(form->isVisible());
}

TEST_F(frmAboutFormTest, DasWerkzeugWirdGestartetUndDasFensterBleibt)
{
    Systeminfo.ImSuchpfad = [](const char *name) { return fs::path("/usr/bin") / name; };
    Klick(form->cmdSysInfo);
    EXPECT_EQ(gestartet.size(), 1U);
    EXPECT_TRUE(GezeigteMeldungen.empty());
    EXPECT_TRUE(form->isVisible());
}

TEST_F(frmAboutFormTest, EinFehlerBeimStartWirdÜbergangen)
{
    Systeminfo.ImSuchpfad = [](const char *name) { return fs::path("/usr/bin") / name; };
    Systeminfo.Starten = [this](const fs::path &) {
        gestartet.emplace_back("versucht");
        throw Laufzeitfehler(Laufzeitfehler::DateiNichtGefunden);
    };
    Klick(form->cmdSysInfo);
    EXPECT_EQ(gestartet, Liste{"versucht"});
    EXPECT_TRUE(GezeigteMeldungen.empty());
    EXPECT_TRUE(form->isVisible());
}

TEST_F(frmAboutFormTest, EinLeererEintragGiltAlsGefunden)
{
    Systeminfo.Registrierung = [](const char *, const char *) -> std::optional<Text> { return ""; };
    Klick(form->cmdSysInfo);
    EXPECT_EQ(gestartet, Liste{""});
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(frmAboutFormTest, DerStartIstEinEchtesProgramm)
{
    const fs::path spur = Festplatte / "spur";
#ifdef _WIN32
    const fs::path programm = Festplatte / "werk zeug.bat";
    DateiSchreiben(programm, "@echo. >\"" + TextVon(spur) + "\"\r\n");
#else
    const fs::path programm = Festplatte / "werk zeug";
    DateiSchreiben(programm, "#!/bin/sh\ntouch '" + spur.string() + "'\n");
#endif
    fs::permissions(programm, fs::perms(0755));
    zuvor.Starten(programm);
    EXPECT_TRUE(Warten([&] { return fs::exists(spur); }));
    zuvor.Starten(Festplatte / "gibt es nicht");
    zuvor.Starten("");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(frmAboutFormTest, TabFolgtDemAugeUndAllesPasst)
{
    FokusAuf(form->cmdOK);
    EXPECT_EQ(Tabfolge(form), (Liste{"cmdOK", "cmdSysInfo"}));
    EXPECT_EQ(Stumme(form), Liste{});
    EXPECT_LE(form->width(), KleinsterBildschirm.width());
    EXPECT_LE(form->height(), KleinsterBildschirm.height());
    for (const char *name : {"LBLXXXX", "Writen", "lblDisclaimer"}) {
        auto *label = Finden<QLabel>(name);
        EXPECT_GE(label->height(), label->heightForWidth(label->width())) << name;
    }
}

} // namespace
} // namespace altardienst
