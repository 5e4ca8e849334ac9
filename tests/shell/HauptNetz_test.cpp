// The net in the program's own windows: what is kept before something else takes its place, what a
// failed save leaves, and what open windows show after a state was brought back.
#include "Fensterstand.h"
#include "application/Mitteilung.h"
#include "core/Allgemein.h"
#include "history/Marke.h"
#include "history/Netz.h"
#include "history/StändeForm.h"
#include "shell/Programm.h"

#include <QComboBox>

#include <algorithm>

namespace altardienst {
namespace {

namespace fs = std::filesystem;

class HauptNetzTest : public Fensterstand {
  protected:
    /// The disk and the diskette hold a parish each; the net is below the main window.
    HauptNetzTest()
    {
        Gemeinde("Diskette");
        AufFestplatteSpeichern();
        for (const auto &datei : fs::directory_iterator(Festplatte))
            fs::copy(datei, Diskette / datei.path().filename());
        Gemeinde("Platte");
        AufFestplatteSpeichern();
    }
    ~HauptNetzTest() override { NetzEinholen(); }

    static void Gemeinde(const Text &name)
    {
        TabellenLeeren();
        Konfig.Tage = 28;
        Konfig.Gemeinde = name;
        Standardmesse.Wochentag[0] = "Sonntag";
        Standardmesse.Messeart[0] = "Hochamt " + name;
        Standardmesse.Dienerzahl[0] = 4;
        MeßdienerAnlegen("Kim", "Adler");
    }

    void InsHauptfenster()
    {
        NetzSpannen();
        ProgrammStarten();
        Klick(Finden(Fenster("Start"), "Starten"));
        haupt = Fenster("Haupt");
    }

    QWidget *HolenÖffnen()
    {
        MenüWählen(haupt, "mnuDatenHolen");
        QWidget *dialog = Fenster("Dateikopie");
        Zeigen(dialog);
        auto *laufwerk = Finden<QComboBox>(dialog, "Drive1");
        FokusAuf(laufwerk);
        QTest::keyClick(laufwerk, Qt::Key_Down);
        return dialog;
    }

    static void OK(QWidget *dialog) { Auslösen(Finden<QAbstractButton>(dialog, "OKButton")); }

    static bool HatStand(const Standinhalt &inhalt)
    {
        const auto stände = AlleStände();
        return std::ranges::any_of(
            stände, [&](const Stand &stand) { return InhaltVon(stand.Ort) == inhalt; });
    }

    QWidget *haupt = nullptr;
};

TEST_F(HauptNetzTest, VorDemLadenVonDisketteErstNachDemJa)
{
    InsHauptfenster();
    DateiSchreiben(Festplatte / "Helfer.dat", "inzwischen anders");
    const Standinhalt dateien = InhaltVon(Festplatte);
    Konfig.Gemeinde = "nur im Speicher";
    const Standinhalt tabellen = InhaltDerTabellen();
    const auto zahl = AlleStände().size();
    bool ja = false;
    Meldungen.FragenVorVerlust = [&ja](const Text &, const Text &) { return ja; };
    MenüWählen(haupt, "mnuDatenladenD");
    EXPECT_EQ(AlleStände().size(), zahl);
    ja = true;
    MenüWählen(haupt, "mnuDatenladenD");
    EXPECT_EQ(Konfig.Gemeinde, "Diskette");
    const auto stände = AlleStände();
    ASSERT_EQ(stände.size(), zahl + 2);
    EXPECT_TRUE(InhaltVon(stände[zahl].Ort) == dateien);
    EXPECT_TRUE(InhaltVon(stände[zahl + 1].Ort) == tabellen);
}

// Not when the dialog opens: the user may put a missing file into the directory meanwhile.
TEST_F(HauptNetzTest, BeimHolenIstAufgehobenWasDasOKÜberschreibt)
{
    InsHauptfenster();
    Konfig.Gemeinde = "neu";
    QWidget *dialog = HolenÖffnen();
    EXPECT_FALSE(MarkeLiegt());
    DateiSchreiben(Festplatte / "Helfer.dat", "inzwischen dazugelegt");
    const Standinhalt davor = InhaltVon(Festplatte);
    OK(dialog);
    EXPECT_EQ(Konfig.Gemeinde, "Diskette");
    EXPECT_TRUE(HatStand(davor));
    EXPECT_FALSE(MarkeLiegt());
    EXPECT_EQ(Mitteilungen().Letzte,
              "12:00 8 Dateien aus " + OrdnerText(Diskette) + " geholt und geladen");
}

TEST_F(HauptNetzTest, WasBeimHolenNichtLädtIstMitDemNetzRichtigGenannt)
{
    DateiSchreiben(Diskette / "Helfer.dat", "kaputt");
    InsHauptfenster();
    OK(HolenÖffnen());
    EXPECT_EQ(Mitteilungen().Letzte, "12:00 8 Dateien aus " + OrdnerText(Diskette) +
                                         " geholt, aber nicht alles geladen: bei Helfer.dat "
                                         "abgebrochen");
}

TEST_F(HauptNetzTest, EinWertDenKeineDateiFaßtLäßtDieAnderenTabellenAlsNotfallZurück)
{
    EXPECT_EQ(Programmlauf([this] {
                  InsHauptfenster();
                  Konfig.Gemeinde = "nur im Speicher";
                  Meßdiener.Geburtstag[0] = 1e300;
                  MenüWählen(haupt, "mnuDatenspeichern");
              }),
              6);
    const Stand notfall = AlleStände().back();
    EXPECT_EQ(notfall.Art, Standart::Notfall);
    const Standinhalt inhalt = InhaltVon(notfall.Ort);
    for (const Standdatei &datei : inhalt.Dateien)
        EXPECT_EQ(datei.Bytes.has_value(), &datei != &inhalt.Dateien[DateiMeßdiener]);
    EXPECT_TRUE(inhalt.Dateien[DateiKonfig].Bytes->starts_with("nur im Speicher"));
}

// What came back must not be written over by a window that shows what was there before.
TEST_F(HauptNetzTest, NachDemZurückholenZeigtDieMessenlisteDieZurückgeholtenMessen)
{
    NetzSpannen();
    ProgrammStarten();
    Konfig.StartDatum = Heute;
    MesseMitDienern(Heute + 1, 3);
    Messe.Messeart[0] = "zurückgeholt";
    AufFestplatteSpeichern();
    StandSichern(InhaltVon(Festplatte));
    const fs::path ort = AlleStände().back().Ort;
    Klick(Finden(Fenster("Start"), "Starten"));
    haupt = Fenster("Haupt");
    Klick(Finden(haupt, "Messenorgani"));
    QWidget *liste = Fenster("Messenliste");
    Zeigen(liste);
    EXPECT_EQ(Messe.Messeart[0], "Hochamt Platte");
    Einsetzen(Finden(liste, "vor1"), "getippt");
    Zeigen(haupt);
    MenüWählen(haupt, "mnuStände");
    auto *stände = dynamic_cast<StändeForm *>(Fenster("Stände"));
    ASSERT_TRUE(stände);
    EXPECT_TRUE(
        Warten([&] { return stände->Liste->item(stände->Liste->rowCount() - 1, 5) != nullptr; }));
    stände->Liste->selectRow(0);
    Antworten = {true};
    Klick(stände->Zurückholen);
    EXPECT_EQ(Messe.Messeart[0], "zurückgeholt");
    Zeigen(liste);
    liste->close(); // writes what it shows
    EXPECT_EQ(Messe.Messeart[0], "zurückgeholt");
    EXPECT_EQ(Messe.DienerVor[0][1], "");
    const Gelesenes davor = InhaltLesen(InhaltVon(AlleStände().back().Ort));
    EXPECT_EQ(davor.Tabellen.Messen->DienerVor[0][1], "getippt") << "it was kept before";
}

TEST_F(HauptNetzTest, MitDemStartenSchließenSichDieFrüherenStände)
{
    DateiSchreiben(Festplatte / "Helfer.dat", "kaputt");
    NetzSpannen();
    ProgrammStarten();
    Klick(Finden(Fenster("Start"), "FrühereStände"));
    EXPECT_TRUE(IstOffen("Stände"));
    Klick(Finden(Fenster("Start"), "Starten"));
    EXPECT_FALSE(IstOffen("Stände"));
    EXPECT_TRUE(IstOffen("Haupt"));
    EXPECT_TRUE(Fenster("Haupt")->isEnabled());
}

} // namespace
} // namespace altardienst
