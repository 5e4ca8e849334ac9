// The net under what takes the place of the files: copying in, loading from elsewhere, bringing
// back.
#include "history/Netzprobe.h"

namespace altardienst {
namespace {

// Copying in.

TEST_F(NetzTest, VorDemErstenHereinkopiertenLiegenDieDateienDaneben)
{
    for (const auto &datei : fs::directory_iterator(Festplatte))
        fs::copy(datei, Diskette / datei.path().filename());
    NetzSpannen();
    GemeindeSpeichern(2); // is not a state yet
    EXPECT_FALSE(MarkeLiegt());
    for (const Datei &datei : Dateien) {
        Laufwerke.Kopieren(Diskette / PfadAus(datei.Name), Festplatte / PfadAus(datei.Name));
        EXPECT_TRUE(InhaltVon(Marke()) == InhaltDerGemeinde(2));
    }
    VonFestplatteLaden();
    EXPECT_FALSE(MarkeLiegt());
    EXPECT_TRUE(ImNeuesten() == InhaltDerGemeinde(2));
    EXPECT_TRUE(AufDerPlatte() == InhaltDerGemeinde(1));
    EXPECT_EQ(Dauerhinweis(), "");
    Laufwerke.Kopieren(Diskette / "Konfig.cfg", Diskette / "andere.cfg");
    EXPECT_FALSE(MarkeLiegt()) << "elsewhere";
}

TEST_F(NetzTest, EinAbgebrochenesHolenSagtDerNächsteStart)
{
    DateiSchreiben(Diskette / "Helfer.dat", "andere");
    NetzSpannen();
    GemeindeSpeichern(2);
    Laufwerke.Kopieren(Diskette / "Helfer.dat", Festplatte / "Helfer.dat");
    MarkeVonEinemAnderen();
    Neustart();
    EXPECT_TRUE(ImNeuesten() == InhaltDerGemeinde(2));
    EXPECT_NE(Starthinweis().find("Speichern oder Holen ist nicht zu Ende gekommen"), Text::npos);
}

TEST_F(NetzTest, NachEinemGescheitertenHolenBehältDasSpeichernDieDateienDavor)
{
    DateiSchreiben(Diskette / "Helfer.dat", "andere");
    NetzSpannen();
    GemeindeSpeichern(2);
    Laufwerke.Kopieren(Diskette / "Helfer.dat", Festplatte / "Helfer.dat");
    GemeindeSpeichern(3);
    EXPECT_TRUE(AufDerPlatte() == InhaltDerGemeinde(3));
    EXPECT_TRUE(HatStand(InhaltDerGemeinde(2)));
    EXPECT_FALSE(MarkeLiegt());
}

// Before a change.

TEST_F(NetzTest, VorDemWechselSindDateienUndTabellenAufgehoben)
{
    VorWechselSichern();
    EXPECT_TRUE(Namen().empty()) << "without the net";
    Neustart();
    VorWechselSichern();
    EXPECT_EQ(Namen().size(), 1U) << "nothing new";
    DateiSchreiben(Festplatte / "Messen.dat", "anders");
    Meßdiener.Vorname[0] = "getippt";
    const Standinhalt tabellen = InhaltDerTabellen();
    const Standinhalt dateien = AufDerPlatte();
    VorWechselSichern();
    const auto stände = AlleStände();
    ASSERT_EQ(stände.size(), 3U);
    EXPECT_TRUE(InhaltVon(stände[1].Ort) == dateien);
    EXPECT_TRUE(ImNeuesten() == tabellen);
}

// Bringing back.

TEST_F(NetzTest, ZurückgeholtIstJedesByteUndDasZurückholenLäßtSichZurückholen)
{
    Neustart();
    GemeindeSpeichern(2);
    Neustart();
    Meßdiener.Vorname[0] = "nur im Speicher";
    const Standinhalt speicher = InhaltDerTabellen();
    StandZurückholen(AlleStände().front());
    EXPECT_TRUE(AufDerPlatte() == InhaltDerGemeinde(1));
    EXPECT_EQ(Konfig.Gemeinde, "St. Ägid 1");
    EXPECT_FALSE(MarkeLiegt());
    EXPECT_TRUE(ImNeuesten() == speicher);
    StandZurückholen(AlleStände().back());
    EXPECT_EQ(Meßdiener.Vorname[0], "nur im Speicher");
    EXPECT_TRUE(AufDerPlatte() == speicher);
}

TEST_F(NetzTest, DieDateienBehaltenDieNamenDieSieHaben)
{
    NUR_WO_ES_GIBT(Schreibungen);
    Neustart();
    GemeindeSpeichern(2);
    fs::rename(Festplatte / "Helfer.dat", Festplatte / "HELFER.DAT");
    fs::remove(Festplatte / "Gruppen.dat");
    StandZurückholen(AlleStände().front());
    EXPECT_TRUE(AufDerPlatte() == InhaltDerGemeinde(1));
    EXPECT_TRUE(fs::exists(Festplatte / "HELFER.DAT"));
    EXPECT_FALSE(fs::exists(Festplatte / "Helfer.dat"));
    EXPECT_TRUE(fs::exists(Festplatte / "Gruppen.dat"));
}

TEST_F(NetzTest, EinStandDemEineDateiFehltÄndertNichts)
{
    NUR_WO_ES_GIBT(Verweise);
    Neustart();
    GemeindeSpeichern(2);
    const Stand stand = AlleStände().front();
    const Standinhalt zuvor = AufDerPlatte();
    const Liste namen = Namen();
    fs::remove(stand.Ort / "Helfer.dat");
    EXPECT_EQ(NummerDesFehlers([&] { StandZurückholen(stand); }), 53);
    fs::create_symlink("/dev/zero", stand.Ort / "Helfer.dat");
    EXPECT_EQ(NummerDesFehlers([&] { StandZurückholen(stand); }), 75);
    EXPECT_TRUE(AufDerPlatte() == zuvor);
    EXPECT_EQ(Konfig.Gemeinde, "St. Ägid 2");
    EXPECT_EQ(Namen(), namen);
}

TEST_F(NetzTest, BrichtDasZurückholenAbIstDerStandDavorNochDa)
{
    Neustart();
    GemeindeSpeichern(2);
    const auto kopieren = Laufwerke.Kopieren;
    Laufwerke.Kopieren = [&, zahl = 0](const fs::path &von, const fs::path &nach) mutable {
        if (++zahl > 3)
            throw Laufzeitfehler(Laufzeitfehler::DatenträgerVoll);
        kopieren(von, nach);
    };
    EXPECT_EQ(NummerDesFehlers([&] { StandZurückholen(AlleStände().front()); }), 61);
    EXPECT_EQ(Konfig.Gemeinde, "St. Ägid 2") << "not loaded";
    Laufwerke.Kopieren = kopieren;
    Neustart();
    EXPECT_TRUE(Netz().SpeichernAbgebrochen);
    EXPECT_TRUE(ImNeuesten() == InhaltDerGemeinde(2));
}

TEST_F(NetzTest, LäßtSichDasJetzigeNichtAufhebenWirdNichtsZurückgeholt)
{
    Neustart();
    GemeindeSpeichern(2);
    const Stand stand = AlleStände().front();
    const auto umbenennen = Laufwerke.Umbenennen;
    Laufwerke.Umbenennen = [](const fs::path &, const fs::path &) {
        throw Laufzeitfehler(Laufzeitfehler::ZugriffVerweigert);
    };
    EXPECT_EQ(NummerDesFehlers([&] { StandZurückholen(stand); }), 75);
    Laufwerke.Umbenennen = umbenennen;
    EXPECT_TRUE(AufDerPlatte() == InhaltDerGemeinde(2));
}

TEST_F(NetzTest, EingeholtIstAllesWieZuvor)
{
    int geladen = 0;
    TabellenGeladen = [&] { ++geladen; };
    NetzSpannen();
    VonFestplatteLaden();
    EXPECT_EQ(geladen, 1) << "what hung there before runs as before";
    NetzEinholen();
    VonFestplatteLaden();
    EXPECT_EQ(geladen, 2);
    TabellenGeladen = [] {};
    Meßdiener.Straße[0] = "a, b";
    AufFestplatteSpeichern();
    VonFestplatteLaden();
    EXPECT_EQ(Dauerhinweis(), "");
}

} // namespace
} // namespace altardienst
