// The menu of the main window: its shape and what each entry does.
#include "shell/Hauptstand.h"

#include "core/Allgemein.h"

#include <QMenu>
#include <QMenuBar>
#include <QTimer>

#include <map>

namespace altardienst {
namespace {

namespace fs = std::filesystem;
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

    void AlleAchtSpeichern(const fs::path &verzeichnis)
    {
        const fs::path zuvor = Festplatte;
        Festplatte = verzeichnis;
        AufFestplatteSpeichern();
        Festplatte = zuvor;
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
                          "mnuHelp | &?",
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
                             "mnuHelpAbout",
                             "DruckML"})
        EXPECT_TRUE(Eintrag(name)->isEnabled()) << name;
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
    };
    MeßdienerAnlegen("Kim", "Adler"); // there are no figures about nobody
    for (const auto &[eintrag, form] : formen) {
        SCOPED_TRACE(eintrag);
        Wählen(eintrag);
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
        Wählen(eintrag);
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
    Wählen("DruckML");
    EXPECT_EQ(Messe.DienerDienst[0][0], "Leuchter");
    EXPECT_EQ(Messe.DienerDienst[0][1], "Leuchter");
    EXPECT_EQ(Messe.DienerDienst[0][2], "Allgemein");
    EXPECT_EQ(Messe.DienerDienst[1][0], "Kreuzträger");
    EXPECT_EQ(Messe.DienerDienst[1][1], "Allgemein");
    EXPECT_EQ(Messe.DienerNach[0][1], "Adler");
    EXPECT_TRUE(GezeigteMeldungen.empty());
    EXPECT_TRUE(haupt->isEnabled());
}

TEST_F(HauptMenüTest, FestplatteSpeichernUndLaden)
{
    Konfig.Gemeinde = "St. Martin";
    GruppeTabelle &gruppe = Gruppe;
    gruppe.Anzahl = 1;
    gruppe.Bezeichnung[0] = "Große";
    Wählen("mnuDatenspeichern");
    Konfig.Gemeinde = "anders";
    gruppe.Bezeichnung[0] = "anders";
    Wählen("mnuDatenladen");
    EXPECT_EQ(Konfig.Gemeinde, "St. Martin");
    EXPECT_EQ(gruppe.Bezeichnung[0], "Große");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(HauptMenüTest, FestplatteLadenNenntDieErsteFehlendeDatei)
{
    Wählen("mnuDatenspeichern");
    fs::remove(Festplatte / "Helfer.dat");
    fs::remove(Festplatte / "Konfig.cfg");
    Wählen("mnuDatenladen");
    EXPECT_EQ(GezeigteMeldungen,
              Liste{"Bitte Daten von Diskette einlesen oder kopieren, da Datei - helfer.dat - im "
                    "Verzeichnis - C:\\programm\\Altardienst\\ - fehlt!"});
}

TEST_F(HauptMenüTest, DisketteSpeichernÜberschreibtNurEineVolleDiskette)
{
    AlleAchtSpeichern(Diskette);
    fs::remove(Diskette / "Etiketten.dat");
    const std::string zuvor = DateiLesen(Diskette / "Konfig.cfg");
    Konfig.Gemeinde = "St. Martin";
    Wählen("mnuDatenspeichernD");
    EXPECT_EQ(DateiLesen(Diskette / "Konfig.cfg"), zuvor);
    EXPECT_FALSE(fs::exists(Diskette / "Etiketten.dat"));

    DateiSchreiben(Diskette / "Etiketten.dat", "");
    Wählen("mnuDatenspeichernD");
    EXPECT_NE(DateiLesen(Diskette / "Konfig.cfg").find("St. Martin"), std::string::npos);
    EXPECT_GT(fs::file_size(Diskette / "Etiketten.dat"), 0U);
    EXPECT_TRUE(GezeigteMeldungen.empty());
    EXPECT_TRUE(fs::is_empty(Festplatte));
}

TEST_F(HauptMenüTest, DisketteLadenFragtUndNeinÄndertNichts)
{
    Konfig.Gemeinde = "St. Martin";
    Wählen("mnuDatenladenD");
    ASSERT_EQ(GestellteFragen.size(), 1U);
    EXPECT_EQ(GestellteFragen[0].Titel, "Laden der Daten von Diskette");
    EXPECT_EQ(GestellteFragen[0].Wortlaut,
              "Das Laden der Daten von Diskette kann zu Problemen und Fehlern führen, denn es "
              "könnte sich z.B. um alte Daten handeln! Wollen Sie die Daten wirklich laden??");
    EXPECT_EQ(Konfig.Gemeinde, "St. Martin");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(HauptMenüTest, DisketteLadenBringtEinstellungenUndMusterAberKeineDiener)
{
    Konfig.Gemeinde = "St. Martin";
    Standardmesse.Wochentag[0] = "Sonntag";
    MeßdienerAnlegen("Kim", "Adler");
    AlleAchtSpeichern(Diskette);
    TabellenLeeren();
    Antworten = {true};
    Wählen("mnuDatenladenD");
    EXPECT_EQ(Konfig.Gemeinde, "St. Martin");
    EXPECT_EQ(Standardmesse.Wochentag[0], "Sonntag");
    EXPECT_EQ(Meßdiener.Anzahl, 1);
    EXPECT_EQ(Meßdiener.Nachname[0], "");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(HauptMenüTest, EineLeereDisketteGibtAchtMeldungenInIhrerFolge)
{
    Antworten = {true};
    Wählen("mnuDatenladenD");
    Liste erwartet;
    for (const char *name : {"etiketten.dat", "gruppen.dat", "helfer.dat", "meßdiener.dat",
                             "messen.dat", "standard.dat", "konfig.cfg", "meßdienermesse.dat"})
        erwartet.push_back("Datei " + Text(name) + " nicht auf Diskette vorhanden!");
    EXPECT_EQ(GezeigteMeldungen, erwartet);
}

/// Which command sorts which column of which table: three records, 0 to 2, whose key stands in the
/// order `Folge`, so that each command alone brings its own order about.
class HauptSortierenTest : public HauptMenüTest {
  protected:
    using Folge = std::array<int, 3>;
    static constexpr Folge A = {1, 2, 0}, B = {2, 0, 1}, C = {2, 1, 0}, D = {1, 0, 2},
                           E = {0, 2, 1};

    template <class Spalte> static void Schlüssel(Spalte &spalte, const Folge &folge)
    {
        for (int platz = 0; platz < 3; ++platz) {
            auto &feld = spalte[folge[static_cast<std::size_t>(platz)]];
            if constexpr (std::is_same_v<std::remove_reference_t<decltype(feld)>, Text>)
                feld = std::to_string(platz);
            else
                feld = 40000 + platz;
        }
    }

    static void Füllen()
    {
        TabellenLeeren();
        Meßdiener.Anzahl = Helfer.Anzahl = Gruppe.Anzahl = Messe.Anzahl = MesseDienerFest.Anzahl =
            3;
        Schlüssel(Meßdiener.Nachname, A);
        Schlüssel(Meßdiener.Vorname, B);
        Schlüssel(Meßdiener.Gruppe, C);
        Schlüssel(Meßdiener.Geburtstag, D);
        Schlüssel(Meßdiener.Straße, E);
        Schlüssel(Helfer.Nachname, A);
        Schlüssel(Helfer.Vorname, B);
        Schlüssel(Helfer.Dienst1, C);
        Schlüssel(Helfer.Dienst2, E);
        Schlüssel(Helfer.Geburtstag, D);
        Schlüssel(Helfer.Straße, E);
        Schlüssel(Gruppe.Bezeichnung, A); // the text itself tells the order
        // Records 0 and 1 share a day, 1 is the earlier of them; 2 comes the day before.
        for (int i = 0; i < 3; ++i) {
            Meßdiener.Telefon[i] = Helfer.Telefon[i] = std::to_string(i);
            Standardmesse.Messeart[i] = std::to_string(i);
            Messe.Messeart[i] = MesseDienerFest.Nachname[i][1] = std::to_string(i);
            Messe.Datum[i] = MesseDienerFest.Datum[i] = i == 2 ? 40000 : 40001;
            Messe.Uhrzeit[i] = MesseDienerFest.Uhrzeit[i] = ZeitAus(i == 0 ? 36000 : 18000);
        }
        Standardmesse.Wochentag[0] = "Montag";
        Standardmesse.Wochentag[1] = "Dienstag";
        Standardmesse.Wochentag[2] = "Donnerstag";
        for (int i = 3; i <= 10; ++i)
            Standardmesse.Wochentag[i] = "Sonntag";
        for (int i = 0; i <= 9; ++i)
            Etikett.Name[i] = Text(1, static_cast<char>('a' + (i + 5) % 10));
    }

    /// The records of every table in their present order.
    static std::map<Text, Text> Stand()
    {
        std::map<Text, Text> stand;
        for (int i = 0; i < 3; ++i) {
            stand["Meßdiener"] += Meßdiener.Telefon[i];
            stand["Helfer"] += Helfer.Telefon[i];
            stand["Gruppe"] += Gruppe.Bezeichnung[i];
            stand["Messe"] += Messe.Messeart[i];
            stand["Fest"] += MesseDienerFest.Nachname[i][1];
            stand["Standard"] += Standardmesse.Messeart[i];
        }
        for (int i = 0; i <= 9; ++i)
            stand["Etikett"] += Etikett.Name[i];
        return stand;
    }
};

TEST_F(HauptSortierenTest, JederEintragSortiertSeineTabelleNachSeinemSchlüssel)
{
    struct Fall {
        const char *Eintrag, *Tabelle, *Folge;
    };
    const Fall fälle[] = {
        {"mnuMeßdienersort", "Meßdiener", "120"},
        {"mnuMeßdienersort2", "Meßdiener", "201"},
        {"mnuMeßdienerGruppe", "Meßdiener", "210"},
        {"mnuMeßdienerGebuSort", "Meßdiener", "102"},
        {"mnuMeßdienerStraßSort", "Meßdiener", "021"},
        {"mnuMeßhelferNachsort", "Helfer", "120"},
        {"mnuMeßhelferNachsort2", "Helfer", "201"},
        {"mnuHelfSortDienst", "Helfer", "210"},
        {"mnuHelfsortGebu", "Helfer", "102"},
        {"mnuHelferSortStraße", "Helfer", "021"},
        {"mnuGruppensort", "Gruppe", "012"},
        {"mnuSortmessen", "Messe", "201"}, // masses of one day keep their order
        {"mnuSortmessenUhr", "Messe", "210"},
        {"mnuVorbMessen", "Fest", "210"},
        {"mnuWochentag", "Standard", "120"},
        {"mnuEtiAUF", "Etikett", "abcdefghij"},
        {"mnuEtiAB", "Etikett", "jihgfedcba"},
    };
    for (const Fall &fall : fälle) {
        SCOPED_TRACE(fall.Eintrag);
        Füllen();
        auto erwartet = Stand();
        ASSERT_NE(erwartet[fall.Tabelle], fall.Folge);
        erwartet[fall.Tabelle] = fall.Folge;
        Wählen(fall.Eintrag);
        EXPECT_EQ(Stand(), erwartet);
    }
    EXPECT_TRUE(GezeigteMeldungen.empty());
    EXPECT_TRUE(fs::is_empty(Festplatte)); // memory alone
}

TEST_F(HauptSortierenTest, UmlauteUndKleineBuchstabenStehenHinterDenGroßen)
{
    for (const char *name : {"Ähre", "von Stein", "Zander", "", "Adler"})
        MeßdienerAnlegen("Kim", name);
    Wählen("mnuMeßdienersort");
    Liste namen;
    for (int i = 0; i < Meßdiener.Anzahl; ++i)
        namen.push_back(Meßdiener.Nachname[i]);
    EXPECT_EQ(namen, (Liste{"", "Adler", "Zander", "von Stein", "Ähre"}));
}

TEST_F(HauptSortierenTest, KeinerOderEinerBleibtWieErIst)
{
    for (int anzahl : {0, 1}) {
        TabellenLeeren();
        Meßdiener.Nachname[0] = "Zander";
        Meßdiener.Nachname[1] = "Adler";
        Meßdiener.Anzahl = anzahl;
        Wählen("mnuMeßdienersort");
        EXPECT_EQ(Meßdiener.Nachname[0], "Zander");
        EXPECT_EQ(Meßdiener.Nachname[1], "Adler");
    }
}

} // namespace
} // namespace altardienst
