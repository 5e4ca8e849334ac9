// Loading and saving all tables on the diskette.
#include "core/Allgemein.h"

#include "Prüfstand.h"
#include "core/Felderlisten.h"

namespace altardienst {
namespace {

namespace fs = std::filesystem;

const char *const Namen[] = {"Konfig.cfg",  "Standard.dat", "Meßdiener.dat", "Messen.dat",
                             "Gruppen.dat", "Helfer.dat",   "Etiketten.dat", "MeßdienerMesse.dat"};

const std::vector<Text> AlleFehlen = {
    "Datei etiketten.dat nicht auf Diskette vorhanden!",
    "Datei gruppen.dat nicht auf Diskette vorhanden!",
    "Datei helfer.dat nicht auf Diskette vorhanden!",
    "Datei meßdiener.dat nicht auf Diskette vorhanden!",
    "Datei messen.dat nicht auf Diskette vorhanden!",
    "Datei standard.dat nicht auf Diskette vorhanden!",
    "Datei konfig.cfg nicht auf Diskette vorhanden!",
    "Datei meßdienermesse.dat nicht auf Diskette vorhanden!",
};

class DisketteTest : public Prüfstand {
  protected:
    /// A diskette with eight complete files; afterwards the tables are as when the program starts.
    void DisketteBereitstellen()
    {
        Konfig.Gemeinde = "St. Martin";
        Konfig.Skal1 = 5;
        Standardmesse.Wochentag[3] = "Montag";
        Standardmesse.Anzahl = 4;
        Meßdiener.Cursor = 1;
        MeßdienerAnlegen("Anna", "Weiß");
        MeßdienerAnlegen("Bernd", "Zorn");
        MesseMitDienern(Heute, 2);
        HelferAnlegen("Clara", "Vogt", "Lektor");
        Gruppe.Bezeichnung[0] = "Eins";
        Gruppe.Anzahl = 1;
        Etikett.Name[0] = "Zweckform";
        MesseDienerFest.Anzahl = 1;
        for (int datei = 0; datei < 8; ++datei)
            DateiSchreiben(Diskette / PfadAus(Namen[datei]), InhaltVon(datei));
        TabellenLeeren();
    }

    std::vector<std::string> Dateninhalte() const
    {
        std::vector<std::string> inhalte;
        for (int datei = 0; datei < 8; ++datei)
            inhalte.push_back(DateiLesen(Diskette / PfadAus(Namen[datei])));
        return inhalte;
    }
};

TEST_F(DisketteTest, LadenFragtZuerst)
{
    DisketteBereitstellen();
    VonDisketteLaden();
    ASSERT_EQ(GestellteFragen.size(), 1U);
    EXPECT_EQ(GestellteFragen[0].Wortlaut,
              "Das Laden der Daten von Diskette kann zu Problemen und Fehlern führen, denn es "
              "könnte sich z.B. um alte Daten handeln! Wollen Sie die Daten wirklich laden??");
    EXPECT_EQ(GestellteFragen[0].Titel, "Laden der Daten von Diskette");
}

TEST_F(DisketteTest, NeinÄndertNichts)
{
    DisketteBereitstellen();
    Konfig.Gemeinde = "alt";
    Antworten = {false};
    VonDisketteLaden();
    EXPECT_EQ(Konfig.Gemeinde, "alt");
    EXPECT_EQ(Standardmesse.Anzahl, 0);
    EXPECT_EQ(Meßdiener.Anzahl, 0);
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(DisketteTest, LadenBringtKonfigStandardmessenUndDenKopfDerMeßdiener)
{
    DisketteBereitstellen();
    Meßdiener.Vorname[0] = "alt";
    Antworten = {true};
    VonDisketteLaden();
    EXPECT_EQ(Konfig.Gemeinde, "St. Martin");
    EXPECT_EQ(Konfig.Skal1, 302) << "bounded as on the hard disk";
    EXPECT_EQ(Standardmesse.Wochentag[3], "Montag");
    EXPECT_EQ(Standardmesse.Anzahl, 4);
    EXPECT_EQ(Meßdiener.Cursor, 1);
    EXPECT_EQ(Meßdiener.Anzahl, 2);
    EXPECT_EQ(Meßdiener.Vorname[0], "alt") << "no server comes";
    EXPECT_EQ(Meßdiener.Vorname[1], "");
    EXPECT_EQ(Messe.Anzahl, 0);
    EXPECT_EQ(Gruppe.Anzahl, 0);
    EXPECT_EQ(Gruppe.Bezeichnung[0], "");
    EXPECT_EQ(Helfer.Anzahl, 0);
    EXPECT_EQ(Etikett.Name[0], "");
    EXPECT_EQ(MesseDienerFest.Anzahl, 0);
    EXPECT_TRUE(GezeigteMeldungen.empty()) << "all files are there";
}

TEST_F(DisketteTest, LeeresLaufwerkMeldetJedeDatei)
{
    Antworten = {true, true};
    VonDisketteLaden();
    EXPECT_EQ(GezeigteMeldungen, AlleFehlen);
    GezeigteMeldungen.clear();
    Diskette = Diskette / "nicht" / "da";
    VonDisketteLaden();
    EXPECT_EQ(GezeigteMeldungen, AlleFehlen);
    EXPECT_FALSE(fs::exists(Diskette)) << "no directory is made here";
}

TEST_F(DisketteTest, JedeFehlendeDateiWirdGemeldetUndSonstNichts)
{
    DisketteBereitstellen();
    fs::remove(Diskette / "Gruppen.dat");
    fs::remove(Diskette / PfadAus("MeßdienerMesse.dat"));
    Antworten = {true};
    VonDisketteLaden();
    EXPECT_EQ(GezeigteMeldungen, (std::vector<Text>{AlleFehlen[1], AlleFehlen[7]}));
    EXPECT_EQ(Konfig.Gemeinde, "St. Martin");
    EXPECT_EQ(Meßdiener.Anzahl, 2);
}

TEST_F(DisketteTest, FehlendeKonfigBeendetDasLaden)
{
    DisketteBereitstellen();
    fs::remove(Diskette / "Konfig.cfg");
    Antworten = {true};
    VonDisketteLaden();
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{AlleFehlen[6]});
    EXPECT_EQ(Standardmesse.Anzahl, 0);
    EXPECT_EQ(Meßdiener.Anzahl, 0);
}

TEST_F(DisketteTest, FalscherWertBeendetDasLadenOhneEinWort)
{
    DisketteBereitstellen();
    DateiSchreiben(Diskette / "Standard.dat", " 7 \r\nMontag\r\nabc\r\n");
    Antworten = {true};
    VonDisketteLaden();
    EXPECT_EQ(Konfig.Gemeinde, "St. Martin");
    EXPECT_EQ(Konfig.Skal1, 302) << "bounded directly after the settings";
    EXPECT_EQ(Standardmesse.Anzahl, 7);
    EXPECT_EQ(Standardmesse.Wochentag[0], "Montag");
    EXPECT_EQ(Meßdiener.Anzahl, 0);
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(DisketteTest, EineHalbeKonfigWirdNichtBegrenzt)
{
    DisketteBereitstellen();
    DateiSchreiben(Diskette / "Konfig.cfg", "St. Anna\r\n");
    Konfig.XSkala = 1;
    Antworten = {true};
    VonDisketteLaden();
    EXPECT_EQ(Konfig.Gemeinde, "St. Anna");
    EXPECT_EQ(Konfig.XSkala, 1);
    EXPECT_EQ(Standardmesse.Anzahl, 0);
}

TEST_F(DisketteTest, DerKopfDerMeßdienerKommtAuchHalb)
{
    DisketteBereitstellen();
    DateiSchreiben(Diskette / PfadAus("Meßdiener.dat"), " 5 \r\nx\r\n");
    Antworten = {true};
    VonDisketteLaden();
    EXPECT_EQ(Meßdiener.Cursor, 5);
    EXPECT_EQ(Meßdiener.Anzahl, 0);
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(DisketteTest, LadenFindetDateienInJederSchreibung)
{
    DisketteBereitstellen();
    fs::rename(Diskette / PfadAus("Meßdiener.dat"), Diskette / PfadAus("MEßDIENER.DAT"));
    Antworten = {true};
    VonDisketteLaden();
    EXPECT_EQ(Meßdiener.Anzahl, 2);
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(DisketteTest, SpeichernSchreibtWieAufDerFestplatte)
{
    DisketteBereitstellen();
    Konfig.Gemeinde = "neu";
    MesseDienerFest.Dienst[400][20] = "neu";
    AufDisketteSpeichern();
    auto inhalte = Dateninhalte();
    for (int datei = 0; datei < 8; ++datei)
        EXPECT_EQ(inhalte[static_cast<std::size_t>(datei)], InhaltVon(datei));
    EXPECT_TRUE(GezeigteMeldungen.empty());
    EXPECT_TRUE(GestellteFragen.empty());
}

TEST_F(DisketteTest, SpeichernAufUnvollständigeDisketteSchreibtNichts)
{
    for (const char *fehlend : Namen) {
        DisketteBereitstellen();
        Konfig.Gemeinde = "neu";
        fs::remove(Diskette / PfadAus(fehlend));
        auto zuvor = Dateninhalte();
        EXPECT_EQ(NummerDesFehlers([] { AufDisketteSpeichern(); }), 53) << fehlend;
        EXPECT_EQ(Dateninhalte(), zuvor) << fehlend;
        EXPECT_FALSE(fs::exists(Diskette / PfadAus(fehlend)));
        EXPECT_TRUE(GezeigteMeldungen.empty());
    }
}

TEST_F(DisketteTest, SpeichernAufFrischeDisketteSchreibtNichts)
{
    EXPECT_EQ(NummerDesFehlers([] { AufDisketteSpeichern(); }), 53);
    EXPECT_TRUE(fs::is_empty(Diskette));
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(DisketteTest, SpeichernLöschtAlleAttributeOhneNachzusehen)
{
    NUR_WO_ES_GIBT(Schreibungen);
    DisketteBereitstellen();
    fs::rename(Diskette / "Gruppen.dat", Diskette / "GRUPPEN.DAT");
    for (const auto &eintrag : fs::directory_iterator(Diskette))
        fs::permissions(eintrag.path(), fs::perms::owner_read);
    std::vector<Text> aufrufe;
    auto attribute = Laufwerke.AttributeLöschen;
    Laufwerke.AttributeLöschen = [&](const fs::path &pfad) {
        aufrufe.push_back(TextVon(pfad.filename()));
        attribute(pfad);
    };
    auto schreiben = Laufwerke.Schreiben;
    Laufwerke.Schreiben = [&](const fs::path &pfad, std::string_view inhalt) {
        EXPECT_EQ(aufrufe.size(), 8U) << "first all attributes";
        schreiben(pfad, inhalt);
    };
    AufDisketteSpeichern();
    std::vector<Text> erwartet(std::begin(Namen), std::end(Namen));
    erwartet[4] = "GRUPPEN.DAT";
    EXPECT_EQ(aufrufe, erwartet);
    for (const auto &eintrag : fs::directory_iterator(Diskette))
        EXPECT_NE(eintrag.status().permissions() & fs::perms::owner_write, fs::perms::none)
            << "cleared whatever the spelling of the name";
}

TEST_F(DisketteTest, VolleDisketteIstEinFehlerOhneMeldung)
{
    DisketteBereitstellen();
    Laufwerke.Schreiben = [](const fs::path &, std::string_view) {
        throw Laufzeitfehler(Laufzeitfehler::DatenträgerVoll);
    };
    EXPECT_EQ(NummerDesFehlers([] { AufDisketteSpeichern(); }), 61);
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

} // namespace
} // namespace altardienst
