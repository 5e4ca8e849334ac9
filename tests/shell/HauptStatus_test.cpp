// What the status bar of the main window says: how far the plan is, and what was done last.
#include "shell/Hauptstand.h"

#include "application/Dialogfenster.h"
#include "application/Mitteilung.h"
#include "core/Allgemein.h"

#include <QComboBox>

#include <map>

namespace altardienst {
namespace {

namespace fs = std::filesystem;

class HauptStatusTest : public Hauptstand {
  protected:
    HauptStatusTest()
    {
        Konfig.StartDatum = Heute + 7;
        Konfig.Tage = 7;
    }

    Text Abschnitt(const char *name) const { return Zeigt(Finden(haupt, Text("Status") + name)); }
    Text Gesagt() const
    {
        const QWidget *feld = Finden(haupt, "StatusMitteilung");
        return feld->isHidden() ? "" : Zeigt(feld);
    }

    /// What is said after picking an entry of the menu.
    Text Nach(const char *eintrag)
    {
        MenüWählen(eintrag);
        return Gesagt();
    }
};

TEST_F(HauptStatusTest, ZeigtVonBeginnAnWieWeitDerPlanIst)
{
    MesseMitDienern(Heute + 7, 3);
    MeßdienerAnlegen("Anna", "Berg");
    Öffnen();
    EXPECT_EQ(Abschnitt("Zeitraum"), "28.11.2026 bis 05.12.2026");
    EXPECT_EQ(Abschnitt("Messen"), "1 Messe");
    EXPECT_EQ(Abschnitt("Plätze"), "0 Plätze besetzt, 3 offen");
    EXPECT_EQ(Abschnitt("Leute"), "1 Meßdiener, 0 Helfer");
    EXPECT_EQ(Gesagt(), "");
}

TEST_F(HauptStatusTest, EinSchrittÄndertDieZahlen)
{
    Standardmesse.Wochentag[0] = "Sonntag";
    Standardmesse.Dienerzahl[0] = 2;
    Standardmesse.Allgemein[0] = 2;
    Öffnen();
    EXPECT_EQ(Abschnitt("Messen"), "keine Messen");
    Klick(haupt->Messenorgani);
    EXPECT_EQ(Abschnitt("Messen"), "1 Messe");
    EXPECT_EQ(Abschnitt("Plätze"), "0 Plätze besetzt, 2 offen");
}

TEST_F(HauptStatusTest, EinLadenUndEinVerlassenerDialogAuch)
{
    Gruppe.Anzahl = 0;
    MeßdienerAnlegen("Anna", "Berg");
    AufFestplatteSpeichern();
    Öffnen();
    MeßdienerAnlegen("Ben", "Berg");
    MenüWählen("mnuDatenladen");
    EXPECT_EQ(Abschnitt("Leute"), "1 Meßdiener, 0 Helfer");

    class Dialog : public Dialogfenster {
      protected:
        void VorDemSchließen() override { HelferAnlegen("Lea", "Lang", "Lektor"); }
    };
    auto *dialog = new Dialog;
    DialogÖffnen(dialog);
    Zeigen(dialog);
    dialog->close();
    EXPECT_EQ(Abschnitt("Leute"), "1 Meßdiener, 1 Helfer");
}

TEST_F(HauptStatusTest, WerZumHauptfensterZurückkehrtSiehtWasDanebenGeändertWurde)
{
    Öffnen();
    QWidget daneben;
    DialogDanebenÖffnen(&daneben);
    daneben.setAttribute(Qt::WA_DeleteOnClose, false);
    Zeigen(&daneben);
    MeßdienerAnlegen("Anna", "Berg");
    EXPECT_EQ(Abschnitt("Leute"), "0 Meßdiener, 0 Helfer");
    Zeigen(haupt);
    EXPECT_EQ(Abschnitt("Leute"), "1 Meßdiener, 0 Helfer");
}

TEST_F(HauptStatusTest, JedesSortierenWirdGesagt)
{
    Öffnen();
    const std::map<const char *, const char *> sätze = {
        {"mnuEtiAUF", "Etikettengrößen aufsteigend sortiert"},
        {"mnuEtiAB", "Etikettengrößen absteigend sortiert"},
        {"mnuVorbMessen", "vorbesetzte Messen sortiert"},
        {"mnuGruppensort", "Gruppen sortiert"},
        {"mnuSortmessen", "Messen nach Datum sortiert"},
        {"mnuSortmessenUhr", "Messen nach Datum und Uhrzeit sortiert"},
        {"mnuWochentag", "Standardmessen nach Wochentag sortiert"},
        {"mnuMeßdienersort", "Meßdiener nach Nachname sortiert"},
        {"mnuMeßdienersort2", "Meßdiener nach Vorname sortiert"},
        {"mnuMeßdienerGruppe", "Meßdiener nach Gruppe sortiert"},
        {"mnuMeßdienerGebuSort", "Meßdiener nach Geburtstag sortiert"},
        {"mnuMeßdienerStraßSort", "Meßdiener nach Straße sortiert"},
        {"mnuMeßhelferNachsort", "Helfer nach Nachname sortiert"},
        {"mnuMeßhelferNachsort2", "Helfer nach Vorname sortiert"},
        {"mnuHelfSortDienst", "Helfer nach Dienst sortiert"},
        {"mnuHelfsortGebu", "Helfer nach Geburtstag sortiert"},
        {"mnuHelferSortStraße", "Helfer nach Straße sortiert"},
        {"DruckML", "Dienste richtig gesetzt"},
    };
    Sekunden = 9 * 3600 + 7 * 60;
    for (const auto &[eintrag, satz] : sätze)
        EXPECT_EQ(Nach(eintrag), Text("09:07 ") + satz) << eintrag;
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(HauptStatusTest, SpeichernUndLadenWerdenGesagt)
{
    Öffnen();
    EXPECT_EQ(Nach("mnuDatenspeichern"), "12:00 gespeichert");
    EXPECT_EQ(Nach("mnuDatenladen"), "12:00 geladen");
    DateiSchreiben(Festplatte / "Helfer.dat", "kaputt");
    EXPECT_EQ(Nach("mnuDatenladen"), "12:00 nicht alles geladen: bei Helfer.dat abgebrochen");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(HauptStatusTest, WasGescheitertIstGiltNichtAlsGetan)
{
    Öffnen();
    EXPECT_EQ(Nach("mnuGruppensort"), "12:00 Gruppen sortiert");
    Messe.Anzahl = 30000; // beyond the table: the sort fails
    MenüWählen("mnuSortmessen");
    EXPECT_EQ(Gesagt(), "12:00 Gruppen sortiert");
    EXPECT_EQ(GezeigteMeldungen.size(), 1U);
}

TEST_F(HauptStatusTest, AufDisketteGelingtEsNurWennAlleAchtDortSind)
{
    Öffnen();
    EXPECT_EQ(Nach("mnuDatenspeichernD"), "") << "it says nothing";
    MenüWählen("mnuDatenspeichern");
    for (const auto &datei : fs::directory_iterator(Festplatte))
        fs::copy_file(datei, Diskette / datei.path().filename());
    EXPECT_EQ(Nach("mnuDatenspeichernD"), "12:00 auf Diskette gespeichert");
    MenüWählen("mnuDatenspeichern");
    EXPECT_EQ(Nach("mnuDatenladenD"), "12:00 gespeichert") << "answered with Nein";
    Antworten = {true};
    EXPECT_EQ(Nach("mnuDatenladenD"),
              "12:00 Einstellungen und Standardmessen von Diskette geladen");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(HauptStatusTest, SichernSagtZuerstDasSpeichernUndDannDieKopie)
{
    Öffnen();
    MenüWählen("mnuDatenSichern");
    EXPECT_EQ(Gesagt(), "12:00 gespeichert");
    QWidget *dialog = Fenster("Datensicherung");
    Zeigen(dialog);
    auto *laufwerk = Finden<QComboBox>(dialog, "Drive1");
    FokusAuf(laufwerk);
    QTest::keyClick(laufwerk, Qt::Key_Down);
    Auslösen(Finden<QAbstractButton>(dialog, "OKButton"));
    EXPECT_EQ(Gesagt(), "12:00 8 Dateien nach " + OrdnerText(Diskette) + " kopiert");
    EXPECT_TRUE(Warten([&] { return haupt->isActiveWindow(); }));
    EXPECT_EQ(Gesagt(), "12:00 8 Dateien nach " + OrdnerText(Diskette) + " kopiert");
}

TEST_F(HauptStatusTest, DerTextSagtWohinErGeschriebenWurde)
{
    MesseMitDienern(Heute + 7, 1);
    Öffnen();
    for (const char *satz : {"12:00 Plan als Text nach ", "12:00 Plan als Text an "}) {
        MenüWählen("mnuMessenlisteText");
        Auslösen(Finden<QAbstractButton>(Fenster("Dialog"), "OKButton"));
        EXPECT_TRUE(Gesagt().starts_with(satz + TextVon(Festplatte / "Datei.txt"))) << Gesagt();
        EXPECT_TRUE(Warten([] { return !IstOffen("Dialog"); }));
    }
    Mitteilen("zuvor");
    Laufwerke.Schreiben = [](const fs::path &, std::string_view) {
        throw Laufzeitfehler(Laufzeitfehler::DatenträgerVoll);
    };
    fs::remove(Festplatte / "Datei.txt");
    MenüWählen("mnuMessenlisteText");
    Auslösen(Finden<QAbstractButton>(Fenster("Dialog"), "OKButton"));
    EXPECT_EQ(Gesagt(), "12:00 zuvor");
}

TEST_F(HauptStatusTest, PasstAufDenKleinstenBildschirm)
{
    for (int i = 0; i < 100; ++i)
        MesseMitDienern(Heute + i, 20);
    Öffnen();
    DauerndMitteilen("Prüfung", "3 Befunde");
    EXPECT_LE(haupt->minimumSizeHint().width(), KleinsterBildschirm.width());
    EXPECT_LE(haupt->minimumSizeHint().height(), KleinsterBildschirm.height());
    EXPECT_EQ(Stumme(haupt), std::vector<Text>{});
}

} // namespace
} // namespace altardienst
