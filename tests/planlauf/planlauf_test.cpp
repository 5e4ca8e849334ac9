// The tool that drives the program without a screen, run as a process on a copy of the sample
// parish.
#include "Prüfstand.h"
#include "controls/Bausteine.h"

#include <QImage>
#include <QProcess>

#include <algorithm>
#include <cstdio>
#include <map>

namespace altardienst {
namespace {

namespace fs = std::filesystem;
using Liste = std::vector<Text>;

struct Ergebnis {
    int Wert;
    Text Ausgabe; // standard output
    Text Fehler;  // what the tool itself writes to standard error
};

/// The program's directory holds the sample parish; its plan begins on Saturday, 28.11.2026.
class PlanlaufTest : public Prüfstand {
  protected:
    PlanlaufTest()
    {
        for (const auto &datei : fs::directory_iterator(BEISPIELDATEN))
            fs::copy_file(datei, Festplatte / datei.path().filename());
    }

    static Ergebnis Starten(const QStringList &zeile)
    {
        QProcess lauf;
        lauf.start(PLANLAUF, zeile);
        if (!lauf.waitForFinished(30000))
            throw std::runtime_error("planlauf did not end");
        Ergebnis ergebnis{lauf.exitCode(), lauf.readAllStandardOutput().toStdString(), ""};
        std::erase(ergebnis.Ausgabe, '\r'); // a line of Windows
        for (const QByteArray &fehler : lauf.readAllStandardError().split('\n'))
            if (fehler.startsWith("planlauf: ") || fehler.startsWith("Unknown option"))
                ergebnis.Fehler += fehler.trimmed().toStdString();
        return ergebnis;
    }

    /// A run on the sample parish on 21.11.2026 with seed 7.
    Ergebnis Lauf(const QStringList &schritte, const QStringList &dazu = {}) const
    {
        return Starten(QStringList{"--daten", Anzeige(TextVon(Festplatte)), "--heute", "21.11.2026",
                                   "--saat", "7", "--schritte", schritte.join(',')} +
                       dazu);
    }

    QString Datei(const char *name) const { return Anzeige(TextVon(Festplatte / PfadAus(name))); }

    static long Zeilenzahl(const fs::path &datei)
    {
        const std::string inhalt = DateiLesen(datei);
        return std::count(inhalt.begin(), inhalt.end(), '\n');
    }

    std::string Plan(const QStringList &schritte, const QStringList &dazu = {}) const
    {
        EXPECT_EQ(Lauf(schritte, QStringList{"--text", Datei("plan.txt")} + dazu).Wert, 0);
        return DateiLesen(Festplatte / "plan.txt");
    }
};

TEST_F(PlanlaufTest, OhneSchritteKommenDieAchtDateienUnverändertZurück)
{
    const Ergebnis ergebnis = Lauf({});
    EXPECT_EQ(ergebnis.Wert, 0) << ergebnis.Fehler;
    EXPECT_EQ(ergebnis.Ausgabe, "");
    int dateien = 0;
    for (const auto &datei : fs::directory_iterator(BEISPIELDATEN)) {
        ++dateien;
        EXPECT_TRUE(DateiLesen(datei.path()) == DateiLesen(Festplatte / datei.path().filename()))
            << datei.path();
    }
    EXPECT_EQ(dateien, 8);
}

TEST_F(PlanlaufTest, EinsDreiFünfMeldetSichInDieserFolgeUndSpeichert)
{
    const std::string zuvor = DateiLesen(Festplatte / "Messen.dat");
    const Ergebnis ergebnis = Lauf({"1", "3", "5"});
    EXPECT_EQ(ergebnis.Wert, 0) << ergebnis.Fehler;
    EXPECT_EQ(ergebnis.Ausgabe,
              "Meldung: Fertig mit Messen bestimmen\n"
              "Frage: Sicherer ist ~(4)Meßdiener-Wunschpartner berücksichtigen~ und ohne Probleme. "
              "Wollen Sie Wirklich diese Funktion ausführen?\n"
              "Meldung: Fertig mit Meßdiener Messen zuweisen\n"
              "Meldung: Fertig mit Helfer Messen zuordnen\n");
    EXPECT_FALSE(DateiLesen(Festplatte / "Messen.dat") == zuvor);
    for (const auto &datei : fs::directory_iterator(BEISPIELDATEN))
        EXPECT_EQ(Zeilenzahl(Festplatte / datei.path().filename()), Zeilenzahl(datei.path()))
            << datei.path();
}

TEST_F(PlanlaufTest, EinsVierFünfMeldetSichOhneFrage)
{
    const Ergebnis ergebnis = Lauf({"1", "4", "5"});
    EXPECT_EQ(ergebnis.Wert, 0) << ergebnis.Fehler;
    EXPECT_EQ(ergebnis.Ausgabe, "Meldung: Fertig mit Messen bestimmen\n"
                                "Meldung: Fertig mit Meßdiener Messen zuweisen unter "
                                "Berücksichtigung des Wunschpartners\n"
                                "Meldung: Fertig mit Helfer Messen zuordnen\n");
}

TEST_F(PlanlaufTest, PruefenNenntDieBefundeUndIhreZahl)
{
    const Ergebnis leer = Lauf({"1", "pruefen"});
    EXPECT_EQ(leer.Wert, 0) << leer.Fehler;
    EXPECT_NE(leer.Ausgabe.find("Befund: Verstoß, Sa 28.11.2026 "), Text::npos) << leer.Ausgabe;
    EXPECT_NE(leer.Ausgabe.find(": Diener 1 ist frei.\n"), Text::npos);
    const Ergebnis voll = Lauf({"1", "4", "5", "pruefen"});
    EXPECT_EQ(voll.Wert, 0) << voll.Fehler;
    EXPECT_EQ(voll.Ausgabe.find(" ist frei."), Text::npos) << voll.Ausgabe;
    // The last line counts those before it.
    int befunde = 0;
    for (std::size_t ab = 0; (ab = voll.Ausgabe.find("Befund: ", ab)) != Text::npos; ++ab)
        ++befunde;
    const std::size_t zahlen = voll.Ausgabe.find("Befunde: ");
    ASSERT_NE(zahlen, Text::npos);
    int verstöße = 0;
    int hinweise = 0;
    const Text zeile = voll.Ausgabe.substr(zahlen);
    if (std::sscanf(zeile.c_str(), "Befunde: %d Verst%*[^0-9,\n], %d", &verstöße, &hinweise) < 1)
        std::sscanf(zeile.c_str(), "Befunde: %d Hinweis", &hinweise);
    EXPECT_EQ(verstöße + hinweise, befunde) << zeile;
}

TEST_F(PlanlaufTest, AusgleichenNenntDieZahlenDesGerechtenPlans)
{
    const Ergebnis ergebnis = Lauf({"1", "3", "ausgleichen", "pruefen"});
    EXPECT_EQ(ergebnis.Wert, 0) << ergebnis.Fehler;
    EXPECT_NE(ergebnis.Ausgabe.find("\nVerstöße: 0\nDienste: 2..3\nUngleichheit: "), Text::npos)
        << ergebnis.Ausgabe;
    EXPECT_EQ(ergebnis.Ausgabe.find("Befund: Verstoß"), Text::npos) << ergebnis.Ausgabe;
}

TEST_F(PlanlaufTest, MenüeinträgeÖffnenIhreFensterInDerFolge)
{
    fs::create_directory(Festplatte / "bilder");
    const Ergebnis ergebnis =
        Lauf({}, {"--menue", "mnuHelfer,mnuGruppe", "--bilder", Datei("bilder")});
    EXPECT_EQ(ergebnis.Wert, 0) << ergebnis.Fehler;
    EXPECT_TRUE(fs::exists(Festplatte / "bilder" / "03-Helfer.png"));
    EXPECT_TRUE(fs::exists(Festplatte / "bilder" / "04-Gruppe.png"));
    EXPECT_EQ(Lauf({}, {"--menue", "mnuGibtEsNicht"}).Wert, 1);
}

TEST_F(PlanlaufTest, NeinBesetztKeineMeßdiener)
{
    const Ergebnis ergebnis = Lauf({"1", "3"}, {"--antwort", "nein"});
    EXPECT_EQ(ergebnis.Wert, 0) << ergebnis.Fehler;
    EXPECT_EQ(ergebnis.Ausgabe.find("Fertig mit Meßdiener"), Text::npos);
    EXPECT_NE(ergebnis.Ausgabe.find("Frage: "), Text::npos);
}

TEST_F(PlanlaufTest, DieselbeSaatGibtDenselbenPlanUndEineAndereEinenAnderen)
{
    for (const QStringList &schritte : {QStringList{"1", "3", "5"}, {"1", "4", "5"}}) {
        const std::string plan = Plan(schritte);
        EXPECT_GT(plan.size(), 1000U);
        EXPECT_TRUE(Plan(schritte) == plan);
        EXPECT_FALSE(Plan(schritte, {"--saat", "8"}) == plan);
    }
}

/// A search that finds nothing ends after some seconds, on a fast machine after more draws.
TEST_F(PlanlaufTest, GehtDieUhrNachIhrenAblesungenSoHängtDerPlanNichtAnDerMaschine)
{
    const std::string plan = Plan({"1", "3"}, {"--uhr", "1"}); // each draw takes a second
    EXPECT_EQ(Plan({"1", "3"}, {"--uhr", "1"}), plan);
    EXPECT_NE(Plan({"1", "3"}, {"--uhr", "100000"}), plan);
    EXPECT_NE(Lauf({}, {"--uhr", "0"}).Fehler.find("--uhr takes a number"), Text::npos);
}

TEST_F(PlanlaufTest, HeuteStartUndTageGebenDenZeitraum)
{
    EXPECT_NE(Plan({"1"}).find("\r\nvom 28.11.2026 bis 26.12.2026 \r\n"), std::string::npos);
    EXPECT_NE(Plan({"1"}, {"--heute", "22.11.2026"}).find("\r\nvom 05.12.2026 bis "),
              std::string::npos);
    EXPECT_NE(Plan({"1"}, {"--start", "1.1.27", "--tage", "7"})
                  .find("\r\nvom 01.01.2027 bis 08.01.2027 \r\n"),
              std::string::npos);
}

TEST_F(PlanlaufTest, DerTextErsetztEineAlteDateiUndHeißtWieVerlangt)
{
    for (const char *name : {"plan.txt", "plan.doc", "plan", "Plan größer.TXT"}) {
        DateiSchreiben(Festplatte / PfadAus(name), "alt");
        const Ergebnis ergebnis = Lauf({"1"}, {"--text", Datei(name)});
        EXPECT_EQ(ergebnis.Wert, 0) << ergebnis.Fehler;
        EXPECT_TRUE(DateiLesen(Festplatte / PfadAus(name)).starts_with("Messen der Pfarrei "))
            << name;
        EXPECT_FALSE(fs::exists(Festplatte / PfadAus(Text(name) + ".txt")));
    }
}

TEST_F(PlanlaufTest, DerPlanAlsKalenderUndWebseite)
{
    fs::create_directories(Festplatte / "personen");
    const Ergebnis ergebnis =
        Lauf({"1", "4", "5"}, {"--kalender", Datei("plan.ics"), "--kalender-je-person",
                               Datei("personen"), "--webseite", Datei("plan.html")});
    EXPECT_EQ(ergebnis.Wert, 0) << ergebnis.Fehler;
    EXPECT_NE(ergebnis.Ausgabe.find("Kalender geschrieben: " + TextVon(Festplatte / "plan.ics")),
              Text::npos);
    EXPECT_TRUE(DateiLesen(Festplatte / "plan.ics").starts_with("BEGIN:VCALENDAR\r\n"));
    EXPECT_TRUE(DateiLesen(Festplatte / "plan.html").starts_with("<!DOCTYPE html>\n"));
    EXPECT_GT(std::distance(fs::directory_iterator(Festplatte / "personen"), {}), 10);
    EXPECT_EQ(Lauf({"1"}, {"--webseite", Datei("fehlt/plan.html")}).Wert, 1);
}

TEST_F(PlanlaufTest, BilderZeigenJedesFenster)
{
    fs::create_directories(Festplatte / "bilder");
    const Ergebnis ergebnis =
        Lauf({"1"}, {"--bilder", Datei("bilder"), "--text", Datei("plan.txt")});
    EXPECT_EQ(ergebnis.Wert, 0) << ergebnis.Fehler;
    Liste namen;
    Text genannt = ergebnis.Ausgabe;
    std::ranges::replace(genannt, '\\', '/'); // as paths are compared below
    for (const auto &datei : fs::directory_iterator(Festplatte / "bilder")) {
        const QImage bild(Anzeige(TextVon(datei.path())));
        EXPECT_GT(bild.width(), 300) << datei.path();
        EXPECT_NE(genannt.find("Bild: " + datei.path().generic_string() + "\n"), Text::npos);
        namen.push_back(TextVon(datei.path().stem()));
    }
    std::sort(namen.begin(), namen.end());
    ASSERT_GE(namen.size(), 3U);
    EXPECT_EQ(namen[0], "01-Start");
    EXPECT_EQ(namen[1], "02-Haupt");
    EXPECT_TRUE(namen.back().ends_with("-Dialog")) << namen.back();
}

TEST_F(PlanlaufTest, SiebenOhneDateiWartetAufNiemanden)
{
    EXPECT_EQ(Lauf({"1", "7"}).Wert, 0);
}

TEST_F(PlanlaufTest, SchreibtDenPlanAlsPdf)
{
    const Ergebnis ergebnis = Lauf({"1", "4"}, {"--pdf", Datei("plan.pdf")});
    EXPECT_EQ(ergebnis.Wert, 0) << ergebnis.Fehler;
    EXPECT_TRUE(DateiLesen(Festplatte / "plan.pdf").starts_with("%PDF"));
}

TEST_F(PlanlaufTest, DruckenAlleBerichteInAllenAusführungen)
{
    fs::create_directories(Festplatte / "berichte");
    const Ergebnis ergebnis = Lauf({"1", "4", "5"}, {"--berichte", Datei("berichte")});
    EXPECT_EQ(ergebnis.Wert, 0) << ergebnis.Fehler;
    Liste namen;
    for (const auto &datei : fs::directory_iterator(Festplatte / "berichte")) {
        namen.push_back(TextVon(datei.path().filename()));
        EXPECT_TRUE(DateiLesen(datei.path()).starts_with("%PDF")) << datei.path();
    }
    std::sort(namen.begin(), namen.end());
    EXPECT_EQ(namen, (Liste{"DruckHelfer-2.pdf", "DruckHelfer.pdf", "DruckiMeßdieneri-2.pdf",
                            "DruckiMeßdieneri.pdf", "Erfassungsbogen.pdf", "Erfaßung.pdf",
                            "EtikGross.pdf", "Etiketten.pdf", "Messendruck-2.pdf",
                            "Messendruck.pdf", "Meßdienerdruck-2.pdf", "Meßdienerdruck.pdf",
                            "Standarddruck.pdf", "Wunschpartner.pdf"}));
}

TEST_F(PlanlaufTest, EinLeeresVerzeichnisWirdWieBeimErstenStartGefüllt)
{
    fs::remove_all(Festplatte);
    const Ergebnis ergebnis = Lauf({});
    EXPECT_EQ(ergebnis.Wert, 0) << ergebnis.Fehler;
    EXPECT_EQ(ergebnis.Ausgabe, "Meldung: Bitte Daten von Diskette einlesen oder kopieren, da "
                                "Datei - etiketten.dat - im Verzeichnis - "
                                "C:\\programm\\Altardienst\\ - fehlt!\n");
    for (const auto &datei : fs::directory_iterator(BEISPIELDATEN))
        EXPECT_EQ(Zeilenzahl(Festplatte / datei.path().filename()), Zeilenzahl(datei.path()))
            << datei.path();
}

TEST_F(PlanlaufTest, FalscheAngabenEndenMitEinemGrundUndÄndernNichts)
{
    const std::map<Text, QStringList> fälle = {
        {"--schritte takes numbers from 1 to 7, pruefen and ausgleichen", {"--schritte", "1,8"}},
        {"unexpected argument 4,", {"4,", "5"}},
        {"--saat takes a number", {"--saat", "x"}},
        {"--antwort takes ja or nein", {"--antwort", "vielleicht"}},
        {"--heute takes a date", {"--heute", "32.1.2026"}},
        {"--start takes a date", {"--start", "bald"}},
        {"--tage takes a number", {"--tage", "viele"}},
    };
    for (const auto &[grund, angabe] : fälle) {
        const Ergebnis ergebnis = Lauf({"1"}, angabe);
        EXPECT_EQ(ergebnis.Wert, 1) << grund;
        EXPECT_EQ(ergebnis.Fehler, "planlauf: " + grund);
        EXPECT_EQ(ergebnis.Ausgabe, "");
    }
    for (const char *schritt : {"0", "-1", "x"})
        EXPECT_EQ(Lauf({schritt}).Wert, 1) << schritt;
    EXPECT_EQ(Lauf({"1"}, {"--gibtesnicht"}).Wert, 1);
    EXPECT_EQ(Starten({"--schritte", "1"}).Fehler, "planlauf: --daten is missing");
    EXPECT_TRUE(DateiLesen(Festplatte / "Messen.dat") ==
                DateiLesen(fs::path(BEISPIELDATEN) / "Messen.dat"));
}

TEST_F(PlanlaufTest, WasNichtGeschriebenWerdenKannIstEinFehler)
{
    EXPECT_EQ(Lauf({"1"}, {"--text", Datei("fehlt/plan.txt")}).Wert, 1);
    EXPECT_EQ(Lauf({"1"}, {"--bilder", Datei("fehlt")}).Wert, 1);
    fs::create_directories(Festplatte / "plan.txt");
    const Ergebnis ergebnis = Lauf({"1"}, {"--text", Datei("plan.txt")});
    EXPECT_EQ(ergebnis.Wert, 1);
    EXPECT_NE(ergebnis.Ausgabe.find("Meldung: Datei konnte nicht geschrieben werden!!\n"),
              Text::npos);
}

TEST_F(PlanlaufTest, GesperrteSchritteSindEinFehler)
{
    // A step that has a dialog opens it, and the run closes it again.
    for (const char *schritt : {"2", "6"}) {
        const Ergebnis ergebnis = Lauf({schritt});
        if (ergebnis.Wert != 0) {
            EXPECT_EQ(ergebnis.Fehler, "planlauf: button " + Text(schritt) + " is disabled");
        }
    }
}

} // namespace
} // namespace altardienst
