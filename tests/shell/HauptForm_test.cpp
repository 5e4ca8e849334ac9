// The main window: its controls and the seven steps.
#include "shell/Hauptstand.h"

#include <map>

namespace altardienst {
namespace {

class HauptFormTest : public Hauptstand {
  protected:
    /// Six servers and one mass for two of them.
    static void KleinePfarrei()
    {
        for (const char *name : {"Adler", "Busch", "Clausen", "Dorn", "Eich", "Fuchs"})
            MeßdienerAnlegen("Kim", name);
        MesseMitDienern(DatumAus({2026, 11, 29}), 2);
    }
};

using Liste = std::vector<Text>;

TEST_F(HauptFormTest, JedesControlTrägtSeinenNamenUndSeineBeschriftung)
{
    Öffnen();
    const std::map<const char *, const char *> beschriftungen = {
        {"Messenorgani", "(1) Messen bestimmen"},
        {"Meßdienernern", "(2) Meßdiener für bestimmte Messen"},
        {"Dienstus", "(3) Messen mit Meßdiener besetzen"},
        {"MeßdienerMessen", "(4) Meßdiener - Wunschpartner berücksichtigen"},
        {"Helfend", "(5) Messen mit Messehelfer besetzen"},
        {"AnzMesse", "(6) Messenliste anzeigen"},
        {"Messendruck", "(7) Druck des Altardienstes"},
        {"ODER1", "ODER"},
        {"Uhriger", "Uhr"},
        {"UHRZEITIGES", "12:00:00"},
    };
    for (const auto &[name, text] : beschriftungen)
        EXPECT_EQ(Zeigt(Finden(haupt, name)), text) << name;
    EXPECT_TRUE(Finden(haupt, "Image1")->isVisible());
    EXPECT_EQ(haupt->objectName(), "Haupt");
    EXPECT_EQ(haupt->windowTitle(), "Altardienst ");
}

TEST_F(HauptFormTest, DieSchritteStehenUntereinanderMitOderZwischenDreiUndVier)
{
    Öffnen();
    int unten = 0;
    for (const char *name : {"Messenorgani", "Meßdienernern", "Dienstus", "ODER1",
                             "MeßdienerMessen", "Helfend", "AnzMesse", "Messendruck"}) {
        const QWidget *control = Finden(haupt, name);
        EXPECT_GE(control->y(), unten) << name;
        unten = control->geometry().bottom();
    }
}

TEST_F(HauptFormTest, EinsBestimmtDieMessenUndVerwirftDenPlanDavor)
{
    Konfig.StartDatum = DatumAus({2026, 11, 22});
    Konfig.Tage = 7;
    Standardmesse.Wochentag[0] = "Sonntag";
    Standardmesse.Dienerzahl[0] = 4;
    MesseDienerFest.Anzahl = 2;
    MesseDienerFest.Cursor = 1;
    Messe.Cursor = 5;
    Öffnen();
    Klick(haupt->Messenorgani);
    EXPECT_EQ(Messe.Anzahl, 2);
    EXPECT_EQ(Messe.Cursor, 0);
    EXPECT_EQ(MesseDienerFest.Anzahl, 0);
    EXPECT_EQ(MesseDienerFest.Cursor, 0);
    EXPECT_EQ(GezeigteMeldungen, Liste{"Fertig mit Messen bestimmen"});
    EXPECT_TRUE(haupt->isEnabled());
}

TEST_F(HauptFormTest, DreiFragtZuerstUndNeinÄndertNichts)
{
    KleinePfarrei();
    Öffnen();
    Klick(haupt->Dienstus);
    ASSERT_EQ(GestellteFragen.size(), 1U);
    EXPECT_EQ(GestellteFragen[0].Titel, "Wirklich?");
    EXPECT_EQ(GestellteFragen[0].Wortlaut,
              "Sicherer ist ~(4)Meßdiener-Wunschpartner berücksichtigen~ und ohne Probleme. Wollen "
              "Sie Wirklich diese Funktion ausführen?");
    EXPECT_EQ(Messe.DienerNach[0][1], "");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(HauptFormTest, DreiBesetztAufJa)
{
    KleinePfarrei();
    Antworten = {true};
    Öffnen();
    Klick(haupt->Dienstus);
    EXPECT_NE(Messe.DienerNach[0][1], "");
    EXPECT_NE(Messe.DienerNach[0][2], "");
    EXPECT_EQ(GezeigteMeldungen, Liste{"Fertig mit Meßdiener Messen zuweisen"});
}

TEST_F(HauptFormTest, DreiMeldetZuWenigeAuchFürEineÜbergroßeMesse)
{
    KleinePfarrei();
    Messe.Dienerzahl[0] = 20000;
    Antworten = {true};
    Öffnen();
    Klick(haupt->Dienstus);
    EXPECT_EQ(GezeigteMeldungen,
              (Liste{"Zuwenig Meßdiener !!!!", "Fertig mit Meßdiener Messen zuweisen"}));
    EXPECT_EQ(Messe.DienerNach[0][1], "");
}

TEST_F(HauptFormTest, VierBesetztOhneFrage)
{
    KleinePfarrei();
    Öffnen();
    Klick(haupt->MeßdienerMessen);
    EXPECT_NE(Messe.DienerNach[0][1], "");
    EXPECT_TRUE(GestellteFragen.empty());
    EXPECT_EQ(GezeigteMeldungen, Liste{"Fertig mit Meßdiener Messen zuweisen unter "
                                       "Berücksichtigung des Wunschpartners"});
}

TEST_F(HauptFormTest, VierErinnertAnWasVonHandGesetztWird)
{
    KleinePfarrei();
    Konfig.ManuellKreuzträger = Konfig.ManuellWeihrauch = 1;
    Öffnen();
    Klick(haupt->MeßdienerMessen);
    EXPECT_EQ(GezeigteMeldungen, (Liste{"Meßdiener Kreuzträger sind noch nachzutragen!!",
                                        "Meßdiener Weihrauch sind noch nachzutragen!!",
                                        "Fertig mit Meßdiener Messen zuweisen unter "
                                        "Berücksichtigung des Wunschpartners"}));
}

TEST_F(HauptFormTest, FünfBesetztDieHelfer)
{
    KleinePfarrei();
    Messe.LektorZahl[0] = 1;
    HelferAnlegen("Maria", "Linde", "Lektor");
    Öffnen();
    Klick(haupt->Helfend);
    EXPECT_EQ(Messe.Lektor1Nach[0], "Linde");
    EXPECT_EQ(GezeigteMeldungen, Liste{"Fertig mit Helfer Messen zuordnen"});
}

TEST_F(HauptFormTest, SiebenSetztZuerstDieDiensteNachDenZahlen)
{
    KleinePfarrei();
    Messe.Leuchter[0] = 2;
    Öffnen();
    Klick(haupt->Messendruck);
    EXPECT_EQ(Messe.DienerDienst[0][1], "Leuchter");
}

TEST_F(HauptFormTest, DieSchritteDieSuchenZeigenDenWartezeiger)
{
    KleinePfarrei();
    Messe.LektorZahl[0] = 1;
    HelferAnlegen("Maria", "Linde", "Lektor");
    Meldungen.Fragen = [](const Text &, const Text &) { return true; };
    bool zeiger = false;
    Meldungen.Zeigen = [&](const Text &) { zeiger = QApplication::overrideCursor() != nullptr; };
    Öffnen();
    // Step (1) last, as it discards the mass.
    for (QPushButton *knopf :
         {haupt->Dienstus, haupt->MeßdienerMessen, haupt->Helfend, haupt->Messenorgani}) {
        zeiger = false;
        Klick(knopf);
        EXPECT_TRUE(zeiger) << Zeigt(knopf);
        QCoreApplication::processEvents(); // the event that wrote the archive is over
        EXPECT_FALSE(QApplication::overrideCursor()) << Zeigt(knopf);
    }
}

TEST_F(HauptFormTest, EinFehlerWirdGezeigtUndDasFensterBleibt)
{
    MesseMitDienern(DatumAus({2026, 11, 29}), 2); // without any server
    Öffnen();
    Klick(haupt->MeßdienerMessen);
    EXPECT_EQ(GezeigteMeldungen, Liste{"Laufzeitfehler '11': Division durch Null"});
    EXPECT_FALSE(QApplication::overrideCursor());
    EXPECT_TRUE(haupt->isVisible());
}

TEST_F(HauptFormTest, MessenlisteUndFesteEinträgeSperrenDasHauptfenster)
{
    Öffnen();
    for (auto [knopf, form] : {std::pair(haupt->Meßdienernern, "NeuMesseDienerFest"),
                               {haupt->AnzMesse, "Messenliste"}}) {
        Klick(knopf);
        QWidget *dialog = Fenster(form);
        EXPECT_FALSE(haupt->isEnabled());
        EXPECT_TRUE(haupt->isMinimized());
        dialog->close();
        EXPECT_TRUE(haupt->isEnabled());
        EXPECT_TRUE(haupt->isMaximized());
    }
}

TEST_F(HauptFormTest, KnöpfeSindGrünMitUndGrauOhneFokus)
{
    Öffnen();
    for (const char *name : {"Messenorgani", "Meßdienernern", "Dienstus", "MeßdienerMessen",
                             "Helfend", "AnzMesse", "Messendruck"}) {
        auto *knopf = Finden<QPushButton>(haupt, name);
        knopf->setEnabled(true);
        FokusAuf(knopf);
        EXPECT_EQ(Grundfarbe(knopf), QColor(0, 255, 0)) << name;
        knopf->clearFocus();
        EXPECT_EQ(Grundfarbe(knopf), QColor(192, 192, 192)) << name;
    }
}

TEST_F(HauptFormTest, TabFolgtDenSchritten)
{
    Öffnen();
    EXPECT_TRUE(haupt->Messenorgani->hasFocus());
    haupt->AnzMesse->setEnabled(true);
    haupt->Messendruck->setEnabled(true);
    EXPECT_EQ(Tabfolge(haupt), (Liste{"Messenorgani", "Meßdienernern", "Dienstus",
                                      "MeßdienerMessen", "Helfend", "AnzMesse", "Messendruck"}));
    EXPECT_EQ(Stumme(haupt), Liste{});
}

TEST_F(HauptFormTest, PasstAufDenKleinstenBildschirm)
{
    const QSize platz = Öffnen().minimumSizeHint();
    EXPECT_LE(platz.width(), KleinsterBildschirm.width());
    EXPECT_LE(platz.height(), KleinsterBildschirm.height());
}

} // namespace
} // namespace altardienst
