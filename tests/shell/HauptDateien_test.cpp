// The entries of the menu that save and load the eight files.
#include "shell/Hauptstand.h"

#include "core/Allgemein.h"

namespace altardienst {
namespace {

namespace fs = std::filesystem;
using Liste = std::vector<Text>;

class HauptDateienTest : public Hauptstand {
  protected:
    HauptDateienTest() { Öffnen(); }

    void AlleAchtSpeichern(const fs::path &verzeichnis)
    {
        const fs::path zuvor = Festplatte;
        Festplatte = verzeichnis;
        AufFestplatteSpeichern();
        Festplatte = zuvor;
    }
};

TEST_F(HauptDateienTest, FestplatteSpeichernUndLaden)
{
    Konfig.Gemeinde = "St. Martin";
    GruppeTabelle &gruppe = Gruppe;
    gruppe.Anzahl = 1;
    gruppe.Bezeichnung[0] = "Große";
    MenüWählen("mnuDatenspeichern");
    Konfig.Gemeinde = "anders";
    gruppe.Bezeichnung[0] = "anders";
    MenüWählen("mnuDatenladen");
    EXPECT_EQ(Konfig.Gemeinde, "St. Martin");
    EXPECT_EQ(gruppe.Bezeichnung[0], "Große");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(HauptDateienTest, FestplatteLadenNenntDieErsteFehlendeDatei)
{
    MenüWählen("mnuDatenspeichern");
    fs::remove(Festplatte / "Helfer.dat");
    fs::remove(Festplatte / "Konfig.cfg");
    MenüWählen("mnuDatenladen");
    EXPECT_EQ(GezeigteMeldungen,
              Liste{"Bitte Daten von Diskette einlesen oder kopieren, da Datei - helfer.dat - im "
                    "Verzeichnis - C:\\programm\\Altardienst\\ - fehlt!"});
}

TEST_F(HauptDateienTest, LadenBegrenztWederGrenzeAuslöseNochDenBeginn)
{
    const Datum start = Heute + 3;
    for (const char *eintrag : {"mnuDatenladen", "mnuDatenladenD"}) {
        Konfig.GrenzeAuslöse = 100;
        Konfig.StartWochentag = 8;
        Konfig.VorlaufWochen = 21;
        AlleAchtSpeichern(Festplatte);
        AlleAchtSpeichern(Diskette);
        TabellenLeeren();
        Konfig.StartDatum = start;
        Antworten = {true};
        MenüWählen(eintrag);
        EXPECT_EQ(Konfig.GrenzeAuslöse, 100) << eintrag;
        EXPECT_EQ(Konfig.StartWochentag, 8) << eintrag;
        EXPECT_EQ(Konfig.VorlaufWochen, 21) << eintrag;
        EXPECT_EQ(Konfig.StartDatum, start) << eintrag;
    }
}

TEST_F(HauptDateienTest, DisketteSpeichernÜberschreibtNurEineVolleDiskette)
{
    AlleAchtSpeichern(Diskette);
    fs::remove(Diskette / "Etiketten.dat");
    const std::string zuvor = DateiLesen(Diskette / "Konfig.cfg");
    Konfig.Gemeinde = "St. Martin";
    MenüWählen("mnuDatenspeichernD");
    EXPECT_EQ(DateiLesen(Diskette / "Konfig.cfg"), zuvor);
    EXPECT_FALSE(fs::exists(Diskette / "Etiketten.dat"));

    DateiSchreiben(Diskette / "Etiketten.dat", "");
    MenüWählen("mnuDatenspeichernD");
    EXPECT_NE(DateiLesen(Diskette / "Konfig.cfg").find("St. Martin"), std::string::npos);
    EXPECT_GT(fs::file_size(Diskette / "Etiketten.dat"), 0U);
    EXPECT_TRUE(GezeigteMeldungen.empty());
    EXPECT_TRUE(fs::is_empty(Festplatte));
}

TEST_F(HauptDateienTest, DisketteLadenFragtUndNeinÄndertNichts)
{
    Konfig.Gemeinde = "St. Martin";
    MenüWählen("mnuDatenladenD");
    ASSERT_EQ(GestellteFragen.size(), 1U);
    EXPECT_EQ(GestellteFragen[0].Titel, "Laden der Daten von Diskette");
    EXPECT_EQ(GestellteFragen[0].Wortlaut,
              "Das Laden der Daten von Diskette kann zu Problemen und Fehlern führen, denn es "
              "könnte sich z.B. um alte Daten handeln! Wollen Sie die Daten wirklich laden??");
    EXPECT_EQ(Konfig.Gemeinde, "St. Martin");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(HauptDateienTest, DisketteLadenBringtEinstellungenUndMusterAberKeineDiener)
{
    Konfig.Gemeinde = "St. Martin";
    Standardmesse.Wochentag[0] = "Sonntag";
    MeßdienerAnlegen("Kim", "Adler");
    AlleAchtSpeichern(Diskette);
    TabellenLeeren();
    Antworten = {true};
    MenüWählen("mnuDatenladenD");
    EXPECT_EQ(Konfig.Gemeinde, "St. Martin");
    EXPECT_EQ(Standardmesse.Wochentag[0], "Sonntag");
    EXPECT_EQ(Meßdiener.Anzahl, 1);
    EXPECT_EQ(Meßdiener.Nachname[0], "");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(HauptDateienTest, EineLeereDisketteGibtAchtMeldungenInIhrerFolge)
{
    Antworten = {true};
    MenüWählen("mnuDatenladenD");
    Liste erwartet;
    for (const char *name : {"etiketten.dat", "gruppen.dat", "helfer.dat", "meßdiener.dat",
                             "messen.dat", "standard.dat", "konfig.cfg", "meßdienermesse.dat"})
        erwartet.push_back("Datei " + Text(name) + " nicht auf Diskette vorhanden!");
    EXPECT_EQ(GezeigteMeldungen, erwartet);
}

} // namespace
} // namespace altardienst
