// The start dialog: its look, and how it is left.
#include "shell/Startstand.h"

#include "shell/Programm.h"

#include <QApplication>

#include <map>

namespace altardienst {
namespace {

namespace fs = std::filesystem;

class StartFormTest : public Startstand {};

TEST_F(StartFormTest, JedesControlTrägtSeinenNamenUndSeineBeschriftung)
{
    Öffnen();
    const std::map<const char *, const char *> beschriftungen = {
        {"berechnend", "Startberechnungsdatum für den Meßdienerplan:"},
        {"Datumsen", "28.11.2026"},
        {"Tagchen", "Samstag"},
        {"Plus", "+"},
        {"Minus", "-"},
        {"Tagezahl", "Anzahl Tage: "},
        {"Tagilein", "28"},
        {"bissig", "bis zum:"},
        {"Endet", "26.12.2026"},
        {"Dayig", "Samstag"},
        {"UHRZEIT", "12:00:00 Uhr"},
        {"Starten", "Starten"},
    };
    for (const auto &[name, text] : beschriftungen)
        EXPECT_EQ(Zeigt(name), text) << name;
    EXPECT_EQ(form->objectName(), "Start");
    for (const char *spin : {"SpinButton1", "Änderung1"})
        EXPECT_TRUE(Finden<SpinButton>(spin)->isVisible()) << spin;
}

TEST_F(StartFormTest, UhrFolgtAlle50Millisekunden)
{
    Öffnen();
    auto *takt = Finden<QTimer>("Timer1");
    EXPECT_EQ(takt->interval(), 50);
    EXPECT_TRUE(takt->isActive());
    Sekunden = 7 * 3600 + 5 * 60 + 9;
    EXPECT_TRUE(Warten([&] { return Zeigt("UHRZEIT") == "07:05:09 Uhr"; })) << Zeigt("UHRZEIT");
}

TEST_F(StartFormTest, StartenRechnetÜbergibtUndVerschwindetOhneEntladenZuWerden)
{
    StartForm &start = Öffnen();
    Einsetzen("Datumsen", "1.12.26");
    Klick(start.Starten);
    EXPECT_EQ(Konfig.StartDatum, Tag(1, 12));
    EXPECT_EQ(gestartet, 1);
    ASSERT_TRUE(form);
    EXPECT_FALSE(form->isVisible());
}

TEST_F(StartFormTest, EingabetasteStartetVonAnfangAn)
{
    StartForm &start = Öffnen();
    EXPECT_TRUE(start.Starten->hasFocus());
    QTest::keyClick(start.windowHandle(), Qt::Key_Return);
    EXPECT_EQ(gestartet, 1);
}

TEST_F(StartFormTest, StartenZeigtDasHauptfensterMaximiert)
{
    ProgrammStarten();
    QWidget *start = Fenster("Start");
    EXPECT_FALSE(IstOffen("Haupt"));
    Klick(Finden(start, "Starten"));
    QWidget *haupt = Fenster("Haupt");
    EXPECT_TRUE(haupt->isMaximized());
    EXPECT_FALSE(start->isVisible());
}

TEST_F(StartFormTest, SchließenBeendetOhneZuSpeichern)
{
    fs::remove_all(Festplatte);
    fs::create_directories(Festplatte);
    EXPECT_EQ(Programmlauf([this] { Öffnen().close(); }), 0);
    EXPECT_TRUE(fs::is_empty(Festplatte));
}

TEST_F(StartFormTest, TabFolgtDemAuge)
{
    StartForm &start = Öffnen();
    FokusAuf(start.Datumsen);
    EXPECT_EQ(Tabfolge(&start), (std::vector<Text>{"Datumsen", "Tagilein", "Starten"}));
}

TEST_F(StartFormTest, JedesControlHatEinenGesprochenenNamen)
{
    EXPECT_EQ(Stumme(&Öffnen()), std::vector<Text>{});
}

TEST_F(StartFormTest, KnöpfeSindGrünMitUndGrauOhneFokus)
{
    StartForm &start = Öffnen();
    for (QPushButton *knopf : {start.Starten, start.Plus, start.Minus}) {
        FokusAuf(knopf);
        EXPECT_EQ(Grundfarbe(knopf), QColor(0, 255, 0)) << Zeigt(knopf);
        FokusAuf(start.Datumsen);
        EXPECT_EQ(Grundfarbe(knopf), QColor(192, 192, 192)) << Zeigt(knopf);
    }
}

TEST_F(StartFormTest, PasstAufDenKleinstenBildschirm)
{
    const QSize platz = Öffnen().size();
    EXPECT_LE(platz.width(), KleinsterBildschirm.width());
    EXPECT_LE(platz.height(), KleinsterBildschirm.height());
}

} // namespace
} // namespace altardienst
