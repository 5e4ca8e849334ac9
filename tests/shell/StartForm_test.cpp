// The start dialog: load, proposal, the period and its limits.
#include "shell/StartForm.h"

#include "core/Allgemein.h"
#include "fenster/Anwendung.h"
#include "fenster/Fensterstand.h"
#include "fixed/FesteMeßdienerÜbertragen.h"
#include "shell/Programm.h"

#include <QApplication>
#include <QMainWindow>
#include <QPointer>

#include <map>

namespace altardienst {
namespace {

namespace fs = std::filesystem;

/// The disk holds a parish with a period of 28 days; the proposal is Saturday, 28.11.2026.
class StartFormTest : public Fensterstand {
  protected:
    StartFormTest()
    {
        Konfig.Tage = 28;
        AufFestplatteSpeichern();
        TabellenLeeren();
    }

    StartForm &Öffnen()
    {
        form = new StartForm([this] { ++gestartet; });
        Zeigen(form);
        return *form;
    }

    Text Zeigt(const char *name) const { return Aufschrift(Finden(form, name)); }

    void Eingeben(const char *name, const char *text) const
    {
        Finden<QLineEdit>(form, name)->setText(QString::fromUtf8(text));
    }

    void Drehen(const char *spin, const char *richtung) const
    {
        Klick(Finden(Finden(form, spin), richtung));
    }

    QPointer<StartForm> form;
    int gestartet = 0;
};

Datum Tag(int tag, int monat, int jahr = 2026)
{
    return DatumAus({jahr, monat, tag});
}

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
        EXPECT_TRUE(Finden<SpinButton>(form, spin)->isVisible()) << spin;
}

TEST_F(StartFormTest, UhrFolgtAlle50Millisekunden)
{
    Öffnen();
    auto *takt = Finden<QTimer>(form, "Timer1");
    EXPECT_EQ(takt->interval(), 50);
    EXPECT_TRUE(takt->isActive());
    Sekunden = 7 * 3600 + 5 * 60 + 9;
    EXPECT_TRUE(Warten([&] { return Zeigt("UHRZEIT") == "07:05:09 Uhr"; })) << Zeigt("UHRZEIT");
}

TEST_F(StartFormTest, LädtDieDatenUndSchlägtVor)
{
    Konfig.Tage = 40;
    Konfig.StartWochentag = 1;
    Konfig.VorlaufWochen = 3;
    Gruppe.Anzahl = 1;
    Gruppe.Bezeichnung[0] = "Die Großen";
    AufFestplatteSpeichern();
    TabellenLeeren();
    Öffnen();
    EXPECT_EQ(Gruppe.Bezeichnung[0], "Die Großen");
    EXPECT_EQ(Zeigt("Tagilein"), "40");
    EXPECT_EQ(Zeigt("Datumsen"), "06.12.2026"); // 21 days and one day back to Sunday
    EXPECT_EQ(Zeigt("Tagchen"), "Sonntag");
    EXPECT_EQ(Zeigt("Endet"), "15.01.2027");
    EXPECT_EQ(Zeigt("Dayig"), "Freitag");
    EXPECT_EQ(Konfig.StartDatum, Tag(6, 12));
    EXPECT_EQ(Konfig.Tage, 40);
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(StartFormTest, AmSamstagIstDerNächsteSamstagVorgeschlagen)
{
    Öffnen();
    EXPECT_EQ(Zeigt("Datumsen"), "28.11.2026");
    EXPECT_EQ(Konfig.StartDatum, Heute + 7);
}

TEST_F(StartFormTest, AmSonntagIstDerSamstagDerNächstenWocheVorgeschlagen)
{
    Heute = Tag(22, 11);
    Öffnen();
    EXPECT_EQ(Zeigt("Datumsen"), "05.12.2026");
    EXPECT_EQ(Zeigt("Tagchen"), "Samstag");
    EXPECT_EQ(Konfig.StartDatum, Heute + 13);
}

TEST_F(StartFormTest, WochentagUndVorlaufAußerhalbWerdenSamstagUndEineWoche)
{
    for (auto [wochentag, vorlauf] : {std::pair(0, 0), std::pair(8, 21)}) {
        Konfig.StartWochentag = wochentag;
        Konfig.VorlaufWochen = vorlauf;
        AufFestplatteSpeichern();
        StartForm neu([] {});
        EXPECT_EQ(Aufschrift(neu.Datumsen), "28.11.2026");
        EXPECT_EQ(Konfig.StartWochentag, 7);
        EXPECT_EQ(Konfig.VorlaufWochen, 1);
    }
}

TEST_F(StartFormTest, GrenzeAuslöseAußerhalbVon0Bis99Wird60)
{
    for (auto [gelesen, danach] : {std::pair(-1, 60), {0, 0}, {99, 99}, {100, 60}}) {
        Konfig.GrenzeAuslöse = gelesen;
        AufFestplatteSpeichern();
        StartForm neu([] {});
        EXPECT_EQ(Konfig.GrenzeAuslöse, danach) << gelesen;
    }
}

TEST_F(StartFormTest, DasLadenSchließtDieFesteZuordnung)
{
    FesteZuordnungOffen = true;
    Öffnen();
    EXPECT_FALSE(FesteZuordnungOffen);
}

TEST_F(StartFormTest, EinGescheitertesLadenLässtAchtVorgabenStehen)
{
    fs::remove(Festplatte / "Konfig.cfg");
    Konfig.XSkala = Konfig.YSkala = 0;
    for (auto *skala :
         {&Konfig.Skal1, &Konfig.Skal2, &Konfig.Skal3, &Konfig.Skal4, &Konfig.Skal5, &Konfig.Skal6})
        *skala = 0;
    Öffnen();
    const KonfigDatensatz vorgabe;
    EXPECT_EQ(Konfig.XSkala, vorgabe.XSkala);
    EXPECT_EQ(Konfig.YSkala, vorgabe.YSkala);
    EXPECT_EQ(Konfig.Skal1, vorgabe.Skal1);
    EXPECT_EQ(Konfig.Skal2, vorgabe.Skal2);
    EXPECT_EQ(Konfig.Skal3, vorgabe.Skal3);
    EXPECT_EQ(Konfig.Skal4, vorgabe.Skal4);
    EXPECT_EQ(Konfig.Skal5, vorgabe.Skal5);
    EXPECT_EQ(Konfig.Skal6, vorgabe.Skal6);
}

TEST_F(StartFormTest, ErsterStartGibtEineMeldungUndSchlägtTrotzdemVor)
{
    fs::remove_all(Festplatte);
    Öffnen();
    EXPECT_EQ(GezeigteMeldungen,
              std::vector<Text>{"Bitte Daten von Diskette einlesen oder kopieren, da Datei - "
                                "etiketten.dat - im Verzeichnis - C:\\programm\\Altardienst\\ - "
                                "fehlt!"});
    EXPECT_TRUE(fs::is_directory(Festplatte));
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(Zeigt("Datumsen"), "28.11.2026");
    EXPECT_EQ(Zeigt("Tagilein"), "7"); // nothing was read: 0 days are too few
    EXPECT_EQ(Konfig.Tage, 7);
}

TEST_F(StartFormTest, AnzahlTageBleibtZwischen7Und180)
{
    Öffnen();
    const std::map<const char *, int> fälle = {
        {"3", 7},     {"6", 7},       {"7", 7},       {"8", 8},      {"179", 179},
        {"180", 180}, {"181", 180},   {"500", 180},   {"-5", 7},     {"0", 7},
        {"6,6", 7},   {"180,4", 180}, {"99999", 180}, {"-99999", 7}, {"123456789012", 180}};
    for (auto [text, tage] : fälle) {
        Eingeben("Tagilein", "28");
        Eingeben("Tagilein", text);
        EXPECT_EQ(Zeigt("Tagilein"), std::to_string(tage)) << text;
        EXPECT_EQ(Konfig.Tage, tage) << text;
    }
}

TEST_F(StartFormTest, GetippteDreiWirdSieben)
{
    StartForm &start = Öffnen();
    FokusAuf(start.Tagilein);
    start.Tagilein->selectAll();
    QTest::keyClick(start.Tagilein, Qt::Key_3);
    EXPECT_EQ(Zeigt("Tagilein"), "7");
    EXPECT_EQ(Konfig.Tage, 7);
}

TEST_F(StartFormTest, LetzterTagIstStartPlusTageUndFolgtDerZahl)
{
    Öffnen();
    Eingeben("Tagilein", "7");
    EXPECT_EQ(Zeigt("Endet"), "05.12.2026"); // from a Saturday to the next: eight calendar days
    EXPECT_EQ(Zeigt("Dayig"), "Samstag");
    Eingeben("Tagilein", "8");
    EXPECT_EQ(Zeigt("Endet"), "06.12.2026");
    EXPECT_EQ(Zeigt("Dayig"), "Sonntag");
    Eingeben("Tagilein", "180");
    EXPECT_EQ(Zeigt("Endet"), "27.05.2027");
    EXPECT_EQ(Zeigt("Dayig"), "Donnerstag");
}

TEST_F(StartFormTest, AnzahlTageÜbernimmtAuchEinGetipptesDatum)
{
    Öffnen();
    Eingeben("Datumsen", "1.12.26");
    EXPECT_EQ(Konfig.StartDatum, Tag(28, 11)); // typing alone changes nothing
    Eingeben("Tagilein", "10");
    EXPECT_EQ(Konfig.StartDatum, Tag(1, 12));
    EXPECT_EQ(Zeigt("Datumsen"), "01.12.2026");
    EXPECT_EQ(Zeigt("Endet"), "11.12.2026");
}

TEST_F(StartFormTest, WasKeineZahlIstBleibtOhneMeldungStehen)
{
    Öffnen();
    for (const char *text : {"", "abc", "12x"}) {
        Eingeben("Tagilein", text);
        EXPECT_EQ(Zeigt("Tagilein"), text);
        EXPECT_EQ(Konfig.Tage, 28);
        EXPECT_EQ(Zeigt("Endet"), "26.12.2026");
    }
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(StartFormTest, DerselbeTextIstKeineÄnderung)
{
    Öffnen();
    Konfig.Tage = 99;
    Eingeben("Tagilein", "28");
    EXPECT_EQ(Konfig.Tage, 99);
}

TEST_F(StartFormTest, Änderung1ZähltTage)
{
    Öffnen();
    Drehen("Änderung1", "auf");
    EXPECT_EQ(Zeigt("Tagilein"), "29");
    EXPECT_EQ(Konfig.Tage, 29);
    EXPECT_EQ(Zeigt("Endet"), "27.12.2026");
    EXPECT_EQ(Zeigt("Dayig"), "Sonntag");
    Drehen("Änderung1", "ab");
    Drehen("Änderung1", "ab");
    EXPECT_EQ(Zeigt("Tagilein"), "27");
    EXPECT_EQ(Zeigt("Endet"), "25.12.2026");
    EXPECT_EQ(Konfig.Tage, 27);
}

TEST_F(StartFormTest, Änderung1BleibtInDenGrenzenUndÜbernimmtDasDatum)
{
    Öffnen();
    Eingeben("Tagilein", "7");
    Drehen("Änderung1", "ab");
    EXPECT_EQ(Zeigt("Tagilein"), "7");
    Eingeben("Tagilein", "180");
    Drehen("Änderung1", "auf");
    EXPECT_EQ(Zeigt("Tagilein"), "180");
    Eingeben("Datumsen", "2.12.2026");
    Drehen("Änderung1", "auf");
    EXPECT_EQ(Konfig.StartDatum, Tag(2, 12));
    Eingeben("Tagilein", "x");
    Eingeben("Datumsen", "3.12.2026");
    Drehen("Änderung1", "auf");
    EXPECT_EQ(Zeigt("Tagilein"), "x");
    EXPECT_EQ(Konfig.StartDatum, Tag(3, 12)); // the date is taken before the number fails
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(StartFormTest, SpinButton1GehtTageweiseÜberMonatsgrenzen)
{
    Öffnen();
    for (int i = 0; i < 3; ++i)
        Drehen("SpinButton1", "auf");
    EXPECT_EQ(Zeigt("Datumsen"), "01.12.2026");
    EXPECT_EQ(Zeigt("Tagchen"), "Dienstag");
    EXPECT_EQ(Zeigt("Endet"), "29.12.2026");
    EXPECT_EQ(Zeigt("Dayig"), "Dienstag");
    EXPECT_EQ(Konfig.StartDatum, Tag(1, 12));
    Drehen("SpinButton1", "ab");
    EXPECT_EQ(Zeigt("Datumsen"), "30.11.2026");
    EXPECT_EQ(Zeigt("Tagchen"), "Montag");
    EXPECT_EQ(Konfig.StartDatum, Tag(30, 11));
}

TEST_F(StartFormTest, SpinButton1GehtMitDenPfeiltasten)
{
    StartForm &start = Öffnen();
    FokusAuf(start.SpinButton1);
    QTest::keyClick(start.SpinButton1, Qt::Key_Up);
    EXPECT_EQ(Zeigt("Datumsen"), "29.11.2026");
    QTest::keyClick(start.SpinButton1, Qt::Key_Down);
    QTest::keyClick(start.SpinButton1, Qt::Key_Down);
    EXPECT_EQ(Zeigt("Datumsen"), "27.11.2026");
    EXPECT_EQ(Konfig.StartDatum, Tag(27, 11));
}

TEST_F(StartFormTest, SpinButton1HältBeiHeute)
{
    Öffnen();
    Eingeben("Datumsen", "21.11.2026");
    Drehen("SpinButton1", "ab");
    EXPECT_EQ(Zeigt("Datumsen"), "21.11.2026");
    EXPECT_EQ(Zeigt("Tagchen"), "Samstag");
    EXPECT_EQ(Konfig.StartDatum, Heute);
}

TEST_F(StartFormTest, SpinButton1RechnetVorherMitDemGetipptenDatum)
{
    Öffnen();
    Eingeben("Datumsen", "1.1.2020"); // long past: today, then a day on
    Drehen("SpinButton1", "auf");
    EXPECT_EQ(Zeigt("Datumsen"), "22.11.2026");
    Eingeben("Datumsen", "31.2.2027");
    Drehen("SpinButton1", "auf");
    EXPECT_EQ(Zeigt("Datumsen"), "31.2.2027");
    EXPECT_EQ(Konfig.StartDatum, Tag(22, 11));
    EXPECT_EQ(Zeigt("Tagchen"), "Sonntag");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(StartFormTest, PlusUndMinusVerschiebenBeimDrückenUndRechnenBeimLoslassen)
{
    StartForm &start = Öffnen();
    QTest::mousePress(start.Plus, Qt::LeftButton);
    EXPECT_EQ(Zeigt("Datumsen"), "29.11.2026");
    EXPECT_EQ(Zeigt("Tagchen"), "Samstag");
    EXPECT_EQ(Konfig.StartDatum, Tag(28, 11));
    QTest::mouseRelease(start.Plus, Qt::LeftButton);
    EXPECT_EQ(Zeigt("Tagchen"), "Sonntag");
    EXPECT_EQ(Zeigt("Endet"), "27.12.2026");
    EXPECT_EQ(Konfig.StartDatum, Tag(29, 11));

    QTest::mousePress(start.Minus, Qt::LeftButton);
    EXPECT_EQ(Zeigt("Datumsen"), "28.11.2026");
    EXPECT_EQ(Konfig.StartDatum, Tag(29, 11));
    QTest::mouseRelease(start.Minus, Qt::LeftButton);
    EXPECT_EQ(Konfig.StartDatum, Tag(28, 11));
}

TEST_F(StartFormTest, MinusZeigtGesternNurBisZurNeuberechnung)
{
    StartForm &start = Öffnen();
    Eingeben("Datumsen", "21.11.2026");
    QTest::mousePress(start.Minus, Qt::LeftButton);
    EXPECT_EQ(Zeigt("Datumsen"), "20.11.2026");
    QTest::mouseRelease(start.Minus, Qt::LeftButton);
    EXPECT_EQ(Zeigt("Datumsen"), "21.11.2026");
    EXPECT_EQ(Konfig.StartDatum, Heute);
}

TEST_F(StartFormTest, NurDieErsteMaustasteVerschiebt)
{
    StartForm &start = Öffnen();
    for (QPushButton *knopf : {start.Plus, start.Minus}) {
        QTest::mouseClick(knopf, Qt::RightButton);
        QTest::mouseClick(knopf, Qt::MiddleButton);
    }
    EXPECT_EQ(Zeigt("Datumsen"), "28.11.2026");
}

TEST_F(StartFormTest, ZweiteHälfteEinesDoppelklicksZähltMit)
{
    StartForm &start = Öffnen();
    Klick(start.Plus);
    QTest::mouseDClick(start.Plus, Qt::LeftButton); // the second press and no first one
    QTest::mouseRelease(start.Plus, Qt::LeftButton);
    EXPECT_EQ(Konfig.StartDatum, Tag(30, 11));
}

TEST_F(StartFormTest, EineTasteAufPlusRechnetErstUndVerschiebtDann)
{
    StartForm &start = Öffnen();
    FokusAuf(start.Plus);
    Eingeben("Datumsen", "1.12.26");
    QTest::keyClick(start.Plus, Qt::Key_X);
    EXPECT_EQ(Zeigt("Datumsen"), "02.12.2026");
    EXPECT_EQ(Konfig.StartDatum, Tag(1, 12));
    FokusAuf(start.Minus);
    QTest::keyClick(start.Minus, Qt::Key_X);
    EXPECT_EQ(Konfig.StartDatum, Tag(2, 12));
    EXPECT_EQ(Zeigt("Datumsen"), "01.12.2026");
}

TEST_F(StartFormTest, LeertasteUndEingabetasteDrückenDenKnopf)
{
    StartForm &start = Öffnen();
    for (auto taste : {Qt::Key_Space, Qt::Key_Return}) {
        const Datum zuvor = Konfig.StartDatum;
        FokusAuf(start.Plus);
        QTest::keyClick(start.Plus, taste);
        EXPECT_EQ(Konfig.StartDatum, zuvor + 1);
        FokusAuf(start.Minus);
        QTest::keyClick(start.Minus, taste);
        EXPECT_EQ(Konfig.StartDatum, zuvor);
    }
}

TEST_F(StartFormTest, TabVerschiebtNicht)
{
    StartForm &start = Öffnen();
    FokusAuf(start.Minus);
    QTest::keyClick(start.windowHandle(), Qt::Key_Tab);
    EXPECT_TRUE(start.Plus->hasFocus());
    EXPECT_EQ(Zeigt("Datumsen"), "28.11.2026");
}

TEST_F(StartFormTest, EingabetasteImDatumRechnet)
{
    StartForm &start = Öffnen();
    Tippen(start.Datumsen, "1.12.26");
    EXPECT_EQ(Zeigt("Tagchen"), "Samstag");
    QTest::keyClick(start.Datumsen, Qt::Key_Return);
    EXPECT_EQ(Zeigt("Datumsen"), "01.12.2026");
    EXPECT_EQ(Zeigt("Tagchen"), "Dienstag");
    EXPECT_EQ(Zeigt("Endet"), "29.12.2026");
    EXPECT_EQ(Zeigt("Dayig"), "Dienstag");
    EXPECT_EQ(Konfig.StartDatum, Tag(1, 12));
}

TEST_F(StartFormTest, JederWochentagHatSeinenNamen)
{
    Öffnen();
    const char *namen[] = {"Sonntag",    "Montag",  "Dienstag", "Mittwoch",
                           "Donnerstag", "Freitag", "Samstag"};
    for (int i = 0; i < 7; ++i) {
        Eingeben("Datumsen", (std::to_string(22 + i) + ".11.2026").c_str());
        Drehen("Änderung1", "auf");
        EXPECT_EQ(Zeigt("Tagchen"), namen[i]);
    }
}

TEST_F(StartFormTest, EinDatumVorHeuteWirdHeute)
{
    StartForm &start = Öffnen();
    Tippen(start.Datumsen, "20.11.2026");
    QTest::keyClick(start.Datumsen, Qt::Key_Return);
    EXPECT_EQ(Zeigt("Datumsen"), "21.11.2026");
    EXPECT_EQ(Zeigt("Tagchen"), "Samstag");
    EXPECT_EQ(Konfig.StartDatum, Heute);
    Tippen(start.Datumsen, "21.11.2026");
    QTest::keyClick(start.Datumsen, Qt::Key_Return);
    EXPECT_EQ(Konfig.StartDatum, Heute);
}

TEST_F(StartFormTest, VerlassenDesDatumsRechnet)
{
    StartForm &start = Öffnen();
    Tippen(start.Datumsen, "24.12.2026");
    FokusAuf(start.Tagilein);
    EXPECT_EQ(Zeigt("Tagchen"), "Donnerstag");
    EXPECT_EQ(Zeigt("Endet"), "21.01.2027");
    EXPECT_EQ(Konfig.StartDatum, Tag(24, 12));
    Tippen(start.Datumsen, "25.12.26");
    Klick(start.Starten); // by mouse as well
    EXPECT_EQ(Konfig.StartDatum, Tag(25, 12));
}

TEST_F(StartFormTest, EinAnderesFensterIstAuchVerlassen)
{
    StartForm &start = Öffnen();
    Tippen(start.Datumsen, "24.12.26");
    QWidget anderes;
    Zeigen(&anderes);
    EXPECT_EQ(Zeigt("Datumsen"), "24.12.2026");
    EXPECT_EQ(Konfig.StartDatum, Tag(24, 12));
}

TEST_F(StartFormTest, UngültigesDatumBleibtOhneMeldungStehenUndDasLetzteGuteGilt)
{
    StartForm &start = Öffnen();
    for (const char *text : {"", "abc", "31.11.2026", "28.11"}) {
        Tippen(start.Datumsen, text);
        QTest::keyClick(start.Datumsen, Qt::Key_Return);
        FokusAuf(start.Tagilein);
        Klick(start.Plus);
        EXPECT_EQ(Zeigt("Datumsen"), text);
        EXPECT_EQ(Zeigt("Tagchen"), "Samstag");
        EXPECT_EQ(Zeigt("Endet"), "26.12.2026");
        EXPECT_EQ(Konfig.StartDatum, Tag(28, 11));
    }
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(StartFormTest, StartenRechnetÜbergibtUndVerschwindetOhneEntladenZuWerden)
{
    StartForm &start = Öffnen();
    Eingeben("Datumsen", "1.12.26");
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
    EXPECT_EQ(Tabfolge(&start), (std::vector<Text>{"Datumsen", "SpinButton1", "Minus", "Plus",
                                                   "Tagilein", "Änderung1", "Starten"}));
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
        EXPECT_EQ(Grundfarbe(knopf), QColor(0, 255, 0)) << Aufschrift(knopf);
        FokusAuf(start.Datumsen);
        EXPECT_EQ(Grundfarbe(knopf), QColor(192, 192, 192)) << Aufschrift(knopf);
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
