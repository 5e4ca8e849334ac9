// What is told of a load, which itself tells nothing.
#include "core/Ladebericht.h"

#include "core/Allgemein.h"

#include "Prüfstand.h"

namespace altardienst {
namespace {

namespace fs = std::filesystem;
using Liste = std::vector<Text>;

/// The hard disk and the diskette hold all eight files.
class LadeberichtTest : public Prüfstand {
  protected:
    LadeberichtTest()
    {
        AufFestplatteSpeichern();
        for (const auto &datei : fs::directory_iterator(Festplatte))
            fs::copy_file(datei, Diskette / datei.path().filename());
    }

    static Text VonFestplatte() { return Festplattenbericht(LadenMitBericht(VonFestplatteLaden)); }
    static Text VonDiskette() { return Diskettenbericht(LadenMitBericht(VonDisketteLaden)); }
};

TEST_F(LadeberichtTest, EinVollesLadenLiestAlleAcht)
{
    const Ladebericht bericht = LadenMitBericht(VonFestplatteLaden);
    EXPECT_EQ(bericht.Gelesen,
              (Liste{"Konfig.cfg", "Standard.dat", "Meßdiener.dat", "Messen.dat", "Gruppen.dat",
                     "Helfer.dat", "Etiketten.dat", "MeßdienerMesse.dat"}));
    EXPECT_FALSE(bericht.Abgebrochen);
    EXPECT_EQ(VonFestplatte(), "geladen");
}

TEST_F(LadeberichtTest, EineBeschädigteDateiWirdGenannt)
{
    for (const char *name : {"Konfig.cfg", "Helfer.dat", "MeßdienerMesse.dat"}) {
        const fs::path datei = Festplatte / PfadAus(name);
        const std::string gut = DateiLesen(datei);
        DateiSchreiben(datei, "x\r\ny\r\nz\r\nkeine Zahl\r\n");
        EXPECT_EQ(VonFestplatte(), "nicht alles geladen: bei " + Text(name) + " abgebrochen");
        DateiSchreiben(datei, gut);
    }
    EXPECT_EQ(VonFestplatte(), "geladen");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(LadeberichtTest, EineFehlendeDateiWirdGenannt)
{
    fs::remove(Festplatte / "Messen.dat");
    EXPECT_EQ(VonFestplatte(), "nicht alles geladen: bei Messen.dat abgebrochen");
    EXPECT_EQ(GezeigteMeldungen.size(), 1U) << "the message that the load itself gives";
}

TEST_F(LadeberichtTest, VonDisketteKommenZweiTabellen)
{
    Antworten = {true};
    EXPECT_EQ(VonDiskette(), "Einstellungen und Standardmessen von Diskette geladen");
}

TEST_F(LadeberichtTest, NeinUndEineLeereDisketteSagenNichts)
{
    EXPECT_EQ(VonDiskette(), "");
    for (const auto &datei : fs::directory_iterator(Diskette))
        fs::remove(datei);
    Antworten = {true};
    EXPECT_EQ(VonDiskette(), "");
    EXPECT_EQ(GezeigteMeldungen.size(), 8U);
}

TEST_F(LadeberichtTest, AuchVonDisketteWirdDieDateiGenannt)
{
    DateiSchreiben(Diskette / "Standard.dat", "keine Zahl\r\n");
    Antworten = {true, true};
    EXPECT_EQ(VonDiskette(), "von Diskette nicht alles geladen: bei Standard.dat abgebrochen");
    fs::remove(Diskette / PfadAus("Meßdiener.dat"));
    DateiSchreiben(Diskette / "Standard.dat", " 0 \r\n");
    EXPECT_EQ(VonDiskette(), "von Diskette nicht alles geladen: bei Meßdiener.dat abgebrochen");
}

TEST_F(LadeberichtTest, DanachIstDasDateisystemWiederDasVorige)
{
    int gelesen = 0;
    Laufwerke.Lesen = [&, lesen = Laufwerke.Lesen](const fs::path &datei) {
        ++gelesen;
        return lesen(datei);
    };
    VonFestplatte();
    EXPECT_EQ(gelesen, 8);
    EXPECT_EQ(NummerDesFehlers([] {
                  LadenMitBericht([] { throw Laufzeitfehler(Laufzeitfehler::PfadNichtGefunden); });
              }),
              76);
    VonFestplatteLaden();
    EXPECT_EQ(gelesen, 16) << "even after a failure";
    Laufwerke.VerzeichnisAnlegen(Festplatte / "neu");
    EXPECT_TRUE(fs::is_directory(Festplatte / "neu"));
}

/// A load within a load, as by the dialog that a failing one opens.
TEST_F(LadeberichtTest, JedesLadenHatSeinenEigenenBericht)
{
    Ladebericht inneres;
    fs::remove(Festplatte / "Gruppen.dat");
    DateienKopierenZeigen = [&] {
        AufFestplatteSpeichern();
        inneres = LadenMitBericht(VonFestplatteLaden);
    };
    const Ladebericht äußeres = LadenMitBericht(VonFestplatteLaden);
    EXPECT_TRUE(äußeres.Abgebrochen);
    EXPECT_FALSE(inneres.Abgebrochen);
    EXPECT_EQ(inneres.Gelesen.size(), 8U);
}

} // namespace
} // namespace altardienst
