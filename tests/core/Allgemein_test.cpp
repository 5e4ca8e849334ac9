// Loading and saving all tables on the hard disk.
#include "core/Allgemein.h"

#include "Prüfstand.h"
#include "core/Felderlisten.h"

#include <algorithm>

namespace altardienst {
namespace {

namespace fs = std::filesystem;

const char *const Namen[] = {"Konfig.cfg",  "Standard.dat", "Meßdiener.dat", "Messen.dat",
                             "Gruppen.dat", "Helfer.dat",   "Etiketten.dat", "MeßdienerMesse.dat"};

/// The order in which the error path checks for the files.
const char *const Suchfolge[] = {"etiketten.dat", "gruppen.dat",       "helfer.dat",
                                 "meßdiener.dat", "messen.dat",        "standard.dat",
                                 "konfig.cfg",    "meßdienermesse.dat"};

Text Fehlt(const Text &datei)
{
    return "Bitte Daten von Diskette einlesen oder kopieren, da Datei - " + datei +
           " - im Verzeichnis - C:\\programm\\Altardienst\\ - fehlt!";
}

using Liste = std::vector<Text>;

class Allgemein : public Prüfstand {
  protected:
    /// A few values that show which files a load has read.
    static void Kennzeichnen(const Text &wert)
    {
        Konfig.Gemeinde = wert;
        Standardmesse.Messeart[20] = wert;
        Meßdiener.Vorname[400] = wert;
        Messe.Kollekt2Nach[602] = wert;
        Gruppe.Bezeichnung[102] = wert;
        Helfer.Nachname[200] = wert;
        Etikett.Name[20] = wert;
        MesseDienerFest.Dienst[400][20] = wert;
    }

    static std::vector<Text> Kennzeichen()
    {
        return {Konfig.Gemeinde,         Standardmesse.Messeart[20],     Meßdiener.Vorname[400],
                Messe.Kollekt2Nach[602], Gruppe.Bezeichnung[102],        Helfer.Nachname[200],
                Etikett.Name[20],        MesseDienerFest.Dienst[400][20]};
    }

    /// Eight complete files whose tables are marked with "neu"; in memory the mark is "alt".
    void DateienBereitstellen()
    {
        Kennzeichnen("neu");
        AufFestplatteSpeichern();
        Kennzeichnen("alt");
    }

    /// Records the calls to the file system, as "Art Name".
    void Mitschreiben()
    {
        auto merken = [this](const char *art, const fs::path &pfad) {
            Aufrufe.push_back(Text(art) + " " + TextVon(pfad.filename()));
        };
        auto lesen = Laufwerke.Lesen;
        Laufwerke.Lesen = [=](const fs::path &pfad) {
            merken("Lesen", pfad);
            return lesen(pfad);
        };
        auto schreiben = Laufwerke.Schreiben;
        Laufwerke.Schreiben = [=](const fs::path &pfad, std::string_view inhalt) {
            merken("Schreiben", pfad);
            schreiben(pfad, inhalt);
        };
        auto attribute = Laufwerke.AttributeLöschen;
        Laufwerke.AttributeLöschen = [=](const fs::path &pfad) {
            merken("Attribute", pfad);
            attribute(pfad);
        };
    }

    std::vector<Text> Aufrufe;
};

std::vector<Text> Gefolgt(std::initializer_list<const char *> arten)
{
    std::vector<Text> aufrufe;
    for (const char *art : arten)
        for (const char *name : Namen)
            aufrufe.push_back(Text(art) + " " + name);
    return aufrufe;
}

TEST_F(Allgemein, SpeichernSchreibtAchtDateien)
{
    AufFestplatteSpeichern();
    std::vector<Text> gefunden;
    for (const auto &eintrag : fs::directory_iterator(Festplatte))
        gefunden.push_back(TextVon(eintrag.path().filename()));
    std::vector<Text> erwartet(std::begin(Namen), std::end(Namen));
    std::ranges::sort(gefunden);
    std::ranges::sort(erwartet);
    EXPECT_EQ(gefunden, erwartet) << "no temporary file and no copy either";
    for (int datei = 0; datei < 8; ++datei)
        EXPECT_EQ(DateiLesen(Festplatte / PfadAus(Namen[datei])), InhaltVon(datei));
}

TEST_F(Allgemein, SpeichernLöschtErstAlleAttributeUndSchreibtDann)
{
    AufFestplatteSpeichern();
    Mitschreiben();
    AufFestplatteSpeichern();
    EXPECT_EQ(Aufrufe, Gefolgt({"Attribute", "Schreiben"}));
}

TEST_F(Allgemein, BeimErstenSpeichernGibtEsKeineAttribute)
{
    Mitschreiben();
    AufFestplatteSpeichern();
    EXPECT_EQ(Aufrufe, Gefolgt({"Schreiben"}));
}

TEST_F(Allgemein, SpeichernKürztEineLängereDatei)
{
    DateiSchreiben(Festplatte / "Gruppen.dat", std::string(100000, 'x'));
    AufFestplatteSpeichern();
    EXPECT_EQ(DateiLesen(Festplatte / "Gruppen.dat"), InhaltVon(DateiGruppe));
}

TEST_F(Allgemein, SchreibgeschützteDateiWirdÜberschrieben)
{
    AufFestplatteSpeichern();
    fs::permissions(Festplatte / "Konfig.cfg", fs::perms::owner_read);
    Konfig.Gemeinde = "St. Martin";
    AufFestplatteSpeichern();
    EXPECT_NE(fs::status(Festplatte / "Konfig.cfg").permissions() & fs::perms::owner_write,
              fs::perms::none);
    EXPECT_EQ(DateiLesen(Festplatte / "Konfig.cfg"), InhaltVon(DateiKonfig));
}

TEST_F(Allgemein, DateiMitAndererGroßschreibungBehältNamenUndAttribute)
{
    NUR_WO_ES_GIBT(Schreibungen);
    DateiSchreiben(Festplatte / "KONFIG.CFG", "alt");
    Mitschreiben();
    AufFestplatteSpeichern();
    EXPECT_EQ(Aufrufe.front(), "Schreiben KONFIG.CFG");
    EXPECT_FALSE(fs::exists(Festplatte / "Konfig.cfg"));
    EXPECT_EQ(DateiLesen(Festplatte / "KONFIG.CFG"), InhaltVon(DateiKonfig));
}

TEST_F(Allgemein, LadenFindetDateienInJederSchreibung)
{
    DateienBereitstellen();
    fs::rename(Festplatte / PfadAus("Meßdiener.dat"), Festplatte / PfadAus("MEßDIENER.DAT"));
    fs::rename(Festplatte / "Konfig.cfg", Festplatte / "konfig.CFG");
    VonFestplatteLaden();
    EXPECT_EQ(Kennzeichen(), std::vector<Text>(8, "neu"));
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(Allgemein, LadenBringtAlleAchtDateienInIhrerFolge)
{
    DateienBereitstellen();
    Mitschreiben();
    VonFestplatteLaden();
    EXPECT_EQ(Kennzeichen(), std::vector<Text>(8, "neu"));
    EXPECT_EQ(Aufrufe, Gefolgt({"Lesen"}));
    EXPECT_TRUE(GezeigteMeldungen.empty());
    EXPECT_TRUE(GestellteFragen.empty());
}

TEST_F(Allgemein, LadenBegrenztDieSkalenVorDenStandardmessen)
{
    Konfig.Skal1 = 5;
    Konfig.XSkala = 1;
    DateienBereitstellen();
    fs::remove(Festplatte / "Standard.dat");
    VonFestplatteLaden();
    EXPECT_EQ(Konfig.Skal1, 302) << "although the load ends at the next file";
    EXPECT_EQ(Konfig.XSkala, 56.6857F);
    EXPECT_EQ(Kennzeichen()[1], "alt");
}

TEST_F(Allgemein, OhneGanzeKonfigWerdenDieSkalenNichtBegrenzt)
{
    DateienBereitstellen();
    Konfig.XSkala = 1;
    DateiSchreiben(Festplatte / "Konfig.cfg", "Gemeinde\r\n");
    VonFestplatteLaden();
    EXPECT_EQ(Konfig.Gemeinde, "Gemeinde");
    EXPECT_EQ(Konfig.XSkala, 1);
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(Allgemein, ErsterStartMeldetNurDieErsteFehlendeDatei)
{
    fs::remove(Festplatte);
    VonFestplatteLaden();
    EXPECT_TRUE(fs::is_directory(Festplatte));
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{Fehlt("etiketten.dat")});
    EXPECT_EQ(Konfig.GrenzeAuslöse, 60);
}

TEST_F(Allgemein, DasVerzeichnisEntstehtMitDenenDarüber)
{
    Festplatte = Festplatte / "programm" / "Altardienst";
    VonFestplatteLaden();
    EXPECT_TRUE(fs::is_directory(Festplatte));
    EXPECT_EQ(GezeigteMeldungen.size(), 1U);
}

TEST_F(Allgemein, KannDasVerzeichnisNichtEntstehenIstEsEinFehler)
{
    DateiSchreiben(Diskette / "datei", "x");
    Festplatte = Diskette / "datei" / "Altardienst";
    EXPECT_NE(NummerDesFehlers([] { VonFestplatteLaden(); }), 0);
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(Allgemein, JedeFehlendeDateiHatIhreMeldung)
{
    for (const char *name : Suchfolge) {
        AufFestplatteSpeichern();
        GezeigteMeldungen.clear();
        ASSERT_TRUE(fs::remove(Festplatte / PfadAus(*Laufwerke.Suchen(Festplatte, name))));
        VonFestplatteLaden();
        EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{Fehlt(name)});
    }
}

TEST_F(Allgemein, UnterMehrerenFehlendenZähltDieSuchfolge)
{
    for (int erste = 0; erste < 8; ++erste) {
        AufFestplatteSpeichern();
        GezeigteMeldungen.clear();
        for (int i = erste; i < 8; ++i)
            fs::remove(Festplatte / PfadAus(*Laufwerke.Suchen(Festplatte, Suchfolge[i])));
        VonFestplatteLaden();
        EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{Fehlt(Suchfolge[erste])});
    }
}

TEST_F(Allgemein, FehlendeDateiBeendetDasLadenAnIhrerStelle)
{
    for (int datei = 0; datei < 8; ++datei) {
        DateienBereitstellen();
        fs::remove(Festplatte / PfadAus(Namen[datei]));
        VonFestplatteLaden();
        for (int i = 0; i < 8; ++i)
            EXPECT_EQ(Kennzeichen()[static_cast<std::size_t>(i)], i < datei ? "neu" : "alt")
                << Namen[datei] << " missing, " << Namen[i];
    }
}

TEST_F(Allgemein, FehltEineDateiKommtDerKopierdialogVorDerMeldung)
{
    Liste ablauf;
    DateienKopierenZeigen = [&] { ablauf.emplace_back("Dialog"); };
    Meldungen.Zeigen = [&](const Text &text) { ablauf.push_back(text); };
    AufFestplatteSpeichern();
    VonFestplatteLaden();
    EXPECT_EQ(ablauf, Liste{});
    fs::remove(Festplatte / "Helfer.dat");
    fs::remove(Festplatte / "Konfig.cfg");
    VonFestplatteLaden();
    EXPECT_EQ(ablauf, (Liste{"Dialog", Fehlt("helfer.dat")})) << "one for both";
    ablauf.clear();
    DateiSchreiben(Festplatte / "Helfer.dat", "");
    DateiSchreiben(Festplatte / "Konfig.cfg", "x");
    VonFestplatteLaden();
    EXPECT_EQ(ablauf, Liste{}) << "a bad value alone";
}

/// What follows a load in the windows comes ahead of its dialog and its messages.
TEST_F(Allgemein, WasGeladenIstWirdGesagt)
{
    Liste ablauf;
    const auto zuvor =
        std::exchange(TabellenGeladen, [&] { ablauf.push_back("geladen " + Kennzeichen()[4]); });
    DateienKopierenZeigen = [&] { ablauf.emplace_back("Dialog"); };
    Meldungen.Zeigen = [&](const Text &text) { ablauf.push_back(text); };
    DateienBereitstellen();
    VonFestplatteLaden();
    EXPECT_EQ(ablauf, Liste{"geladen neu"});

    ablauf.clear();
    DateienBereitstellen();
    fs::remove(Festplatte / "Gruppen.dat");
    VonFestplatteLaden();
    EXPECT_EQ(ablauf, (Liste{"geladen alt", "Dialog", Fehlt("gruppen.dat")}));

    ablauf.clear();
    Antworten = {false, true};
    VonDisketteLaden();
    EXPECT_EQ(ablauf, Liste{}) << "answered with No";
    VonDisketteLaden();
    ASSERT_EQ(ablauf.size(), 9U) << "none of the eight files is there";
    EXPECT_EQ(ablauf.front(), "geladen alt");
    TabellenGeladen = zuvor;
}

TEST_F(Allgemein, EinGescheitertesLadenLöschtNachKopieEinGelungenesNicht)
{
    AufFestplatteSpeichern();
    NachKopie = 12;
    VonFestplatteLaden();
    EXPECT_EQ(NachKopie, 12);
    DateiSchreiben(Festplatte / "Konfig.cfg", "x");
    VonFestplatteLaden();
    EXPECT_EQ(NachKopie, 0);
}

TEST_F(Allgemein, WirdNachKopieWährendDerMeldungGesetztGehtDasLadenDahinterWeiter)
{
    DateienBereitstellen();
    fs::remove(Festplatte / "Gruppen.dat");
    Meldungen.Zeigen = [&](const Text &text) {
        GezeigteMeldungen.push_back(text);
        NachKopie = 12;
    };
    VonFestplatteLaden();
    EXPECT_EQ(GezeigteMeldungen, Liste{Fehlt("gruppen.dat")});
    EXPECT_EQ(Kennzeichen(), (Liste{"neu", "neu", "neu", "neu", "alt", "neu", "neu", "neu"}));
}

TEST_F(Allgemein, FalscherWertBeendetDasLadenOhneEinWort)
{
    for (int datei = 0; datei < 8; ++datei) {
        DateienBereitstellen();
        DateiSchreiben(Festplatte / PfadAus(Namen[datei]),
                       datei == 0 ? "a\r\nb\r\nc\r\nd\r\n" : "x");
        VonFestplatteLaden();
        EXPECT_TRUE(GezeigteMeldungen.empty());
        for (int i = datei == 0 ? 1 : 0; i < 8; ++i)
            EXPECT_EQ(Kennzeichen()[static_cast<std::size_t>(i)], i < datei ? "neu" : "alt")
                << Namen[datei] << " bad, " << Namen[i];
    }
}

TEST_F(Allgemein, FalscherWertUndEineFehlendeDateiGebenDieMeldung)
{
    DateienBereitstellen();
    DateiSchreiben(Festplatte / "Standard.dat", "x");
    fs::remove(Festplatte / PfadAus("MeßdienerMesse.dat"));
    VonFestplatteLaden();
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{Fehlt("meßdienermesse.dat")});
}

TEST_F(Allgemein, GescheitertesSpeichernLäßtDasGeschriebeneStehen)
{
    AufFestplatteSpeichern();
    Kennzeichnen("neu");
    auto schreiben = Laufwerke.Schreiben;
    Laufwerke.Schreiben = [=](const fs::path &pfad, std::string_view inhalt) {
        if (TextVon(pfad.filename()) == "Messen.dat")
            throw Laufzeitfehler(Laufzeitfehler::DatenträgerVoll);
        schreiben(pfad, inhalt);
    };
    EXPECT_EQ(NummerDesFehlers([] { AufFestplatteSpeichern(); }), 61);
    EXPECT_TRUE(GezeigteMeldungen.empty());
    Laufwerke.Schreiben = schreiben;
    Kennzeichnen("alt");
    VonFestplatteLaden();
    EXPECT_EQ(Kennzeichen(), (std::vector<Text>{"neu", "neu", "neu", "", "", "", "", ""}));
}

TEST_F(Allgemein, DatensätzeBleibenByteFürByteGleich)
{
    for (const char *quelle : {BEISPIELDATEN, LEEREDATEN}) {
        fs::remove_all(Festplatte);
        fs::copy(PfadAus(quelle), Festplatte);
        VonFestplatteLaden();
        EXPECT_TRUE(GezeigteMeldungen.empty());
        AufFestplatteSpeichern();
        for (const char *name : Namen)
            EXPECT_EQ(DateiLesen(Festplatte / PfadAus(name)),
                      DateiLesen(PfadAus(quelle) / PfadAus(name)))
                << quelle << " " << name;
    }
}

} // namespace
} // namespace altardienst
