// The menu of the main window: its shape, and what its entries open.
#include "shell/Hauptstand.h"

#include <QMenu>
#include <QMenuBar>

#include <map>

namespace altardienst {
namespace {

using Liste = std::vector<Text>;

class HauptMenüTest : public Hauptstand {
  protected:
    HauptMenüTest() { Öffnen(); }

    /// One line for each menu, entry and separator: its depth, name and caption.
    static void Auflisten(const QWidget *menü, const Text &einzug, Liste &zeilen)
    {
        for (const QAction *eintrag : menü->actions()) {
            const QMenu *unter = eintrag->menu();
            const QObject *benannt = eintrag;
            if (unter)
                benannt = unter;
            zeilen.push_back(einzug + benannt->objectName().toStdString() + " | " +
                             (eintrag->isSeparator() ? "---" : eintrag->text().toStdString()));
            if (unter)
                Auflisten(unter, einzug + "  ", zeilen);
        }
    }
};

TEST_F(HauptMenüTest, HatSeineEinträgeInIhrerFolge)
{
    Liste zeilen;
    Auflisten(haupt->menuBar(), "", zeilen);
    EXPECT_EQ(zeilen, (Liste{
                          "mnufile | &Datei",
                          "  mnuFilePrint | &Drucken...",
                          "  mnuFileBar5 | ---",
                          "  mnuFileExit | &Beenden",
                          "mnuDaten | D&aten",
                          "  mnuKonfiguration | &Konfiguration",
                          "  mnuHintergrund | Hi&ntergrund",
                          "  mnuEtiketten | Et&ikettengröße",
                          "  mnufilebar7 | ---",
                          "  mnuGruppe | &Gruppe",
                          "  mnuStandardmessen | &Standardmessen",
                          "  mnuHelfer | &Helfer",
                          "  mnuMeßdiener | &Meßdiener",
                          "  MnuMESSDIENZUMESS | Meßdiener &zu Messen",
                          "  mnuMessen | M&essen",
                          "  mnuFileBar6 | ---",
                          "  mnuJubGeb | &Jubiläen und Geburtstage",
                          "  mnuStatistiken | S&tatistik Meßdiener",
                          "    mnuStatistik | Meßdiener &allgemein",
                          "    mnuStatistikGröße | Meßdiener &Größe",
                          "    mnuMessendienst | Messendiens&t",
                          "    mnuStatDienst | Anzahl Die&nste Meßdiener im Plan",
                          "  mnuStatistikHilf | Statistik He&lfer",
                          "    mnuStatistikHilfA | Helfer &allgemein",
                          "    mnuHelferMessendienst | Messendiens&t Helfer",
                          "    mnuStatHDienst | Anzahl Die&nste Helfer im Plan",
                          "mnuSortieren | S&ortieren",
                          "  mnuEtik | &Etiketten",
                          "    mnuEtiAUF | a&ufsteigend sortieren",
                          "    mnuEtiAB | a&bsteigend sortieren",
                          "  mnufilebar8 | ---",
                          "  mnuVorbMessen | &Vorbesetzte Messen",
                          "  mnuGruppensort | &Gruppen",
                          "  mnuMess | &Messen",
                          "    mnuSortmessen | &nach Datum sortieren",
                          "    mnuSortmessenUhr | nach Datum und &Uhrzeit sortieren",
                          "  mnuStandardmess | &Standardmessen",
                          "    mnuWochentag | nach &Wochentag sortieren",
                          "  mnuFileBar1 | ---",
                          "  mnuMeßdienersortierung | M&eßdiener",
                          "    mnuMeßdienersort | nach &Nachname sortieren",
                          "    mnuMeßdienersort2 | nach &Vorname sortieren",
                          "    mnuMeßdienerGruppe | nach &Gruppe sortieren",
                          "    mnuMeßdienerGebuSort | nach G&eburtstag sortieren",
                          "    mnuMeßdienerStraßSort | nach Str&aße sortieren",
                          "  mnuMeßhelfer | Meß&helfer",
                          "    mnuMeßhelferNachsort | nach &Nachnamen sortieren",
                          "    mnuMeßhelferNachsort2 | nach &Vorname sortieren",
                          "    mnuHelfSortDienst | nach D&ienst sortieren",
                          "    mnuHelfsortGebu | nach G&eburtstag sortieren",
                          "    mnuHelferSortStraße | nach Str&aße sortieren",
                          "mnuZusatz | &Zusatz",
                          "  mnuMessenlisteText | Messenliste als &Textdatei speichern",
                          "  mnuDatend | Date&n auf Festplatte",
                          "    mnuDatenspeichern | &speichern",
                          "    mnuDatenladen | &laden",
                          "  mnuDatene | D&aten auf Diskette",
                          "    mnuDatenspeichernD | &speichern",
                          "    mnuDatenladenD | &laden",
                          "  mnuDatamenu | Dat&en",
                          "    mnuDatenHolen | Daten &holen",
                          "    mnuDatenSichern | Daten &sichern",
                          "  DruckML | Dienste &richtig setzen für Messenlistausdruck",
                          "mnuÜberblick | Ü&berblick",
                          "  mnuRückgängig | &Rückgängig",
                          "  mnuWiederholen | &Wiederholen",
                          "  mnuÜberblickBar1 | ---",
                          "  mnuPlanAnzeigen | &Plan anzeigen",
                          "  mnuAusgleich | Plan &ausgleichen",
                          "  mnuVerteilung | &Verteilung",
                          "  mnuArchiv | Ar&chiv",
                          "  mnuWeitergeben | &Weitergeben",
                          "    mnuAushang | A&ushang",
                          "    mnuDienstzettel | &Dienstzettel",
                          "    mnuKalender | &Kalender",
                          "    mnuWebseite | Web&seite",
                          "    mnuEMail | &E-Mail",
                          "    mnuTabellen | &Tabellen",
                          "  mnuEinlesen | &Einlesen",
                          "  mnuStände | &Frühere Stände",
                          "mnuHelp | &?",
                          "  mnuHandbuch | &Handbuch",
                          "  mnuHelpAbout | &Info zur Anwendung",
                      }));
}

TEST_F(HauptMenüTest, WasOhneDialogAuskommtIstWählbar)
{
    for (const char *name : {"mnuFileExit",
                             "mnuEtiAUF",
                             "mnuEtiAB",
                             "mnuVorbMessen",
                             "mnuGruppensort",
                             "mnuSortmessen",
                             "mnuSortmessenUhr",
                             "mnuWochentag",
                             "mnuMeßdienersort",
                             "mnuMeßdienersort2",
                             "mnuMeßdienerGruppe",
                             "mnuMeßdienerGebuSort",
                             "mnuMeßdienerStraßSort",
                             "mnuMeßhelferNachsort",
                             "mnuMeßhelferNachsort2",
                             "mnuHelfSortDienst",
                             "mnuHelfsortGebu",
                             "mnuHelferSortStraße",
                             "mnuMessenlisteText",
                             "mnuDatenspeichern",
                             "mnuDatenladen",
                             "mnuDatenspeichernD",
                             "mnuDatenladenD",
                             "mnuHintergrund",
                             "mnuDatenHolen",
                             "mnuDatenSichern",
                             "mnuPlanAnzeigen",
                             "mnuAusgleich",
                             "mnuVerteilung",
                             "mnuArchiv",
                             "mnuAushang",
                             "mnuDienstzettel",
                             "mnuEMail",
                             "mnuKalender",
                             "mnuWebseite",
                             "mnuTabellen",
                             "mnuEinlesen",
                             "mnuStände",
                             "mnuHelpAbout",
                             "DruckML"})
        EXPECT_TRUE(Finden<QAction>(haupt, name)->isEnabled()) << name;
}

TEST_F(HauptMenüTest, EinMenüIstWählbarWennEsEinerSeinerEinträgeIst)
{
    for (const QMenu *menü : haupt->menuBar()->findChildren<QMenu *>()) {
        if (menü->parent() == haupt->menuBar())
            continue; // the menus of the bar are always there to be looked at
        const auto einträge = menü->actions();
        const bool einer = std::any_of(einträge.begin(), einträge.end(), [](const QAction *e) {
            return e->isEnabled() && !e->isSeparator();
        });
        EXPECT_EQ(menü->menuAction()->isEnabled(), einer) << menü->objectName().toStdString();
    }
}

TEST_F(HauptMenüTest, JederEintragÖffnetSeineFormUndSperrtDasHauptfenster)
{
    const std::map<const char *, const char *> formen = {
        {"mnuFilePrint", "Druck"},
        {"mnuKonfiguration", "Konfiguration"},
        {"mnuHintergrund", "Hintergrundsuche"},
        {"mnuEtiketten", "Etiketten"},
        {"mnuGruppe", "Gruppe"},
        {"mnuStandardmessen", "Standardmessen"},
        {"mnuHelfer", "Helfer"},
        {"mnuMeßdiener", "Meßdiener"},
        {"MnuMESSDIENZUMESS", "MesseDienerFest"},
        {"mnuMessen", "Messenliste"},
        {"mnuJubGeb", "JubiGebu"},
        {"mnuStatistik", "Statistik"},
        {"mnuStatistikGröße", "Statistik2"},
        {"mnuMessendienst", "StatMeßdienst"},
        {"mnuStatDienst", "StatDienst"},
        {"mnuStatistikHilfA", "StatistikAllg"},
        {"mnuHelferMessendienst", "StatistikHelfer"},
        {"mnuStatHDienst", "StatHelfer"},
        {"mnuMessenlisteText", "Dialog"},
        {"mnuDatenHolen", "Dateikopie"},
        {"mnuDatenSichern", "Datensicherung"},
        {"mnuAusgleich", "Ausgleich"},
        {"mnuVerteilung", "Verteilung"},
        {"mnuArchiv", "Archiv"},
        {"mnuDienstzettel", "Dienstzettel"},
        {"mnuEMail", "EMail"},
        {"mnuKalender", "Kalender"},
        {"mnuWebseite", "Webseite"},
        {"mnuTabellen", "Tabellen"},
        {"mnuEinlesen", "Einlesen"},
        {"mnuStände", "Stände"},
    };
    MeßdienerAnlegen("Kim", "Adler"); // there are no figures about nobody
    for (const auto &[eintrag, form] : formen) {
        SCOPED_TRACE(eintrag);
        MenüWählen(eintrag);
        QWidget *dialog = Fenster(form);
        EXPECT_FALSE(haupt->isEnabled());
        EXPECT_TRUE(haupt->isMinimized());
        dialog->close();
        EXPECT_FALSE(IstOffen(form));
        EXPECT_TRUE(haupt->isEnabled());
        EXPECT_TRUE(haupt->isMaximized());
    }
}

TEST_F(HauptMenüTest, VorHolenUndSichernWirdGespeichert)
{
    for (const char *eintrag : {"mnuDatenHolen", "mnuDatenSichern"}) {
        Konfig.Gemeinde = eintrag;
        MenüWählen(eintrag);
        EXPECT_TRUE(DateiLesen(Festplatte / "Konfig.cfg").starts_with(Text(eintrag) + "\r\n"));
        Fenster(Text(eintrag) == "mnuDatenHolen" ? "Dateikopie" : "Datensicherung")->close();
    }
}

TEST_F(HauptMenüTest, DruckMLSetztNurDieDienste)
{
    MeßdienerAnlegen("Kim", "Adler");
    MesseMitDienern(Heute, 3);
    MesseMitDienern(Heute, 1);
    Messe.Leuchter[0] = 2;
    Messe.Kreuzträger[1] = 1;
    Messe.DienerNach[0][1] = "Adler";
    Messe.DienerDienst[1][1] = "Flambeau";
    MenüWählen("DruckML");
    EXPECT_EQ(Messe.DienerDienst[0][0], "Leuchter");
    EXPECT_EQ(Messe.DienerDienst[0][1], "Leuchter");
    EXPECT_EQ(Messe.DienerDienst[0][2], "Allgemein");
    EXPECT_EQ(Messe.DienerDienst[1][0], "Kreuzträger");
    EXPECT_EQ(Messe.DienerDienst[1][1], "Allgemein");
    EXPECT_EQ(Messe.DienerNach[0][1], "Adler");
    EXPECT_TRUE(GezeigteMeldungen.empty());
    EXPECT_TRUE(haupt->isEnabled());
}

} // namespace
} // namespace altardienst
