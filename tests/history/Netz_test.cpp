// The net below loading and saving: what is kept at the start, during a save, when it fails, and
// before something else takes its place.
#include "history/Netz.h"

#include "core/SchleifenZähler.h"
#include "history/Netzstand.h"

namespace altardienst {
namespace {

namespace fs = std::filesystem;
using Liste = std::vector<Text>;

class NetzTest : public Netzstand {
  protected:
    NetzTest() { GemeindeSpeichern(1); }

    Text Wort(const char *name) const { return DateiLesen(Festplatte / PfadAus(name)); }

    /// From the nth write into one of the eight files on, the disk is full.
    void DatenträgerFüllen(int ab)
    {
        const auto schreiben = Laufwerke.Schreiben;
        Laufwerke.Schreiben = [this, schreiben, ab, zahl = 0](const fs::path &pfad,
                                                              std::string_view bytes) mutable {
            if (pfad.parent_path() == Festplatte && ++zahl >= ab) {
                schreiben(pfad, bytes.substr(0, bytes.size() / 3));
                throw Laufzeitfehler(Laufzeitfehler::DatenträgerVoll);
            }
            schreiben(pfad, bytes);
        };
    }
};

// The start.

TEST_F(NetzTest, DerStartHebtDieDateienAufWennSieSichUnterscheiden)
{
    NetzSpannen();
    ASSERT_EQ(Namen(), Liste{"2026-11-21 12-00-00"});
    EXPECT_TRUE(ImNeuesten() == AufDerPlatte());
    Sekunden += 60;
    Neustart();
    EXPECT_EQ(Namen().size(), 1U);
    GemeindeSpeichern(2);
    Neustart();
    EXPECT_EQ(Namen().size(), 2U);
    EXPECT_TRUE(ImNeuesten() == InhaltDerGemeinde(2));
    EXPECT_EQ(Starthinweis(), "");
    EXPECT_EQ(Dauerhinweis(), "");
}

TEST_F(NetzTest, OhneDateienEntstehtNichtsUndEsIstNichtsZuSagen)
{
    fs::remove_all(Festplatte);
    fs::create_directory(Festplatte);
    Neustart();
    EXPECT_TRUE(fs::is_empty(Festplatte));
    EXPECT_EQ(Starthinweis(), "");
    EXPECT_EQ(Dauerhinweis(), "");
}

TEST_F(NetzTest, SindDieDateienWegUndEinStandDaSagtDerStartEs)
{
    Neustart();
    for (const Datei &datei : Dateien)
        fs::remove(Festplatte / PfadAus(datei.Name));
    Neustart();
    EXPECT_TRUE(Starthinweis().starts_with("Konfig.cfg fehlt."));
    EXPECT_EQ(Dauerhinweis(), "Nicht alles geladen: Konfig.cfg");
    StandZurückholen(AlleStände().front());
    EXPECT_TRUE(AufDerPlatte() == InhaltDerGemeinde(1));
    EXPECT_EQ(Starthinweis(), "");
}

// The save.

TEST_F(NetzTest, EinSpeichernLäßtNurDieDateienZurück)
{
    NetzSpannen();
    GemeindeSpeichern(2);
    EXPECT_EQ(Namen(), Liste{"2026-11-21 12-00-00"});
    EXPECT_TRUE(AufDerPlatte() == InhaltDerGemeinde(2));
    EXPECT_EQ(Dauerhinweis(), "");
}

TEST_F(NetzTest, WährendDesSpeichernsLiegenDieAltenDateienDaneben)
{
    NetzSpannen();
    for (int ausgabe = 2; ausgabe <= 4; ++ausgabe) { // the later saves of a run too
        const auto schreiben = Laufwerke.Schreiben;
        int geschrieben = 0;
        Laufwerke.Schreiben = [&](const fs::path &pfad, std::string_view bytes) {
            if (pfad.parent_path() == Festplatte && geschrieben++ > 0) {
                EXPECT_TRUE(InhaltVon(Stände() / "Speichern") == InhaltDerGemeinde(ausgabe - 1));
            }
            schreiben(pfad, bytes);
        };
        GemeindeSpeichern(ausgabe);
        Laufwerke.Schreiben = schreiben;
        EXPECT_EQ(geschrieben, 8);
        EXPECT_FALSE(fs::exists(Stände() / "Speichern"));
    }
}

TEST_F(NetzTest, DieMarkeLiegtBevorDieErsteDateiGeschriebenWird)
{
    Liste folge;
    const auto schreiben = Laufwerke.Schreiben;
    const auto umbenennen = Laufwerke.Umbenennen;
    const auto durchschreiben = Laufwerke.Durchschreiben;
    bool abHier = false;
    Laufwerke.Schreiben = [&](const fs::path &pfad, std::string_view bytes) {
        if (pfad.parent_path() == Festplatte)
            folge.push_back("schreiben " + TextVon(pfad.filename()));
        abHier = abHier || pfad.parent_path() == Festplatte;
        schreiben(pfad, bytes);
    };
    Laufwerke.Umbenennen = [&](const fs::path &von, const fs::path &nach) {
        folge.push_back(TextVon(von.filename()) + " -> " + TextVon(nach.filename()));
        umbenennen(von, nach);
    };
    Laufwerke.Durchschreiben = [&](const fs::path &pfad) {
        if (abHier)
            folge.push_back("durch " + TextVon(pfad.filename()));
        durchschreiben(pfad);
    };
    NetzSpannen();
    folge.clear();
    abHier = false;
    GemeindeSpeichern(2);
    Liste erwartet = {"unfertig -> Speichern"};
    for (const Datei &datei : Dateien)
        erwartet.push_back("schreiben " + Text(datei.Name));
    for (const Datei &datei : Dateien) // once, after the last one
        erwartet.push_back("durch " + Text(datei.Name));
    erwartet.insert(erwartet.end(), {"durch Festplatte", "Speichern -> geloescht"});
    EXPECT_EQ(folge, erwartet);
}

TEST_F(NetzTest, AndereDateienUndAndereVerzeichnisseGehenDasNetzNichtsAn)
{
    NetzSpannen();
    Laufwerke.Schreiben(Festplatte / "Plan.txt", "Plan");
    Laufwerke.Schreiben(Diskette / "Konfig.cfg", "Konfig");
    EXPECT_EQ(NummerDesFehlers([&] { Laufwerke.AttributeLöschen(Diskette / "Helfer.dat"); }), 53);
    EXPECT_EQ(NummerDesFehlers([&] { Laufwerke.Schreiben(Festplatte / "x" / "y", ""); }), 76);
    EXPECT_EQ(Namen(), Liste{"2026-11-21 12-00-00"});
}

TEST_F(NetzTest, KannDieMarkeNichtEntstehenWirdTrotzdemGespeichert)
{
    DateiSchreiben(Stände(), "im Weg");
    NetzSpannen();
    EXPECT_TRUE(Dauerhinweis().starts_with("Kein früherer Stand aufgehoben: "));
    EXPECT_EQ(Starthinweis(), "");
    GemeindeSpeichern(2);
    EXPECT_TRUE(AufDerPlatte() == InhaltDerGemeinde(2));
    EXPECT_EQ(DateiLesen(Stände()), "im Weg");
    EXPECT_TRUE(GezeigteMeldungen.empty());
    fs::remove(Stände());
    Neustart();
    EXPECT_EQ(Dauerhinweis(), "");
    EXPECT_EQ(Namen().size(), 1U);
}

TEST_F(NetzTest, OhneProgrammverzeichnisBleibtDerFehlerDerselbe)
{
    NetzSpannen();
    fs::remove_all(Festplatte);
    EXPECT_EQ(NummerDesFehlers([&] { GemeindeSpeichern(2); }), 76);
    EXPECT_FALSE(fs::exists(Festplatte));
    const auto stände = AlleStände();
    ASSERT_EQ(stände.size(), 1U) << "the tables, in the user's own place";
    EXPECT_TRUE(InhaltVon(stände[0].Ort) == InhaltDerGemeinde(2));
    fs::create_directory(Festplatte);
}

TEST_F(NetzTest, HältDasMediumDieDateienNichtBleibtDieMarke)
{
    NetzSpannen();
    const auto durchschreiben = Laufwerke.Durchschreiben;
    Laufwerke.Durchschreiben = [&](const fs::path &pfad) {
        if (pfad == Festplatte / "Messen.dat")
            throw Laufzeitfehler(Laufzeitfehler::ZugriffVerweigert);
        durchschreiben(pfad);
    };
    EXPECT_NO_THROW(GemeindeSpeichern(2)) << "as if nothing had been flushed";
    EXPECT_TRUE(fs::exists(Stände() / "Speichern"));
}

// A save that was cut off.

TEST_F(NetzTest, NachEinemAbgebrochenenSpeichernIstDerStandDavorDerNeueste)
{
    NetzSpannen();
    GemeindeSpeichern(2); // the state of the start is an older one
    ++Sekunden;
    Gemeinde(3);
    DatenträgerFüllen(4);
    EXPECT_EQ(NummerDesFehlers([] { AufFestplatteSpeichern(); }), 61);
    const Standinhalt zerrissen = AufDerPlatte();
    EXPECT_FALSE(zerrissen == InhaltDerGemeinde(2));
    Laufwerke.Schreiben = Systemlaufwerke().Schreiben;
    NetzEinholen();
    Laufwerke.Schreiben = Systemlaufwerke().Schreiben;
    ++Sekunden;
    NetzSpannen();
    VonFestplatteLaden();
    EXPECT_TRUE(ImNeuesten() == InhaltDerGemeinde(2));
    auto stände = AlleStände();
    EXPECT_TRUE(InhaltVon(stände[stände.size() - 2].Ort) == zerrissen);
    EXPECT_TRUE(Netz().SpeichernAbgebrochen);
    EXPECT_NE(Starthinweis().find("aus zwei Speicherungen"), Text::npos);
    EXPECT_TRUE(AufDerPlatte() == zerrissen) << "nothing is repaired by itself";

    // A start without a save in between says the same and keeps nothing twice.
    const auto zahl = stände.size();
    Neustart();
    EXPECT_TRUE(Netz().SpeichernAbgebrochen);
    EXPECT_EQ(AlleStände().size(), zahl);

    StandZurückholen(AlleStände().back());
    EXPECT_TRUE(AufDerPlatte() == InhaltDerGemeinde(2));
    EXPECT_EQ(Konfig.Gemeinde, "St. Ägid 2");
    EXPECT_EQ(Starthinweis(), "");
    Neustart();
    EXPECT_EQ(Starthinweis(), "");
}

TEST_F(NetzTest, EinVollständigesSpeichernNimmtDenHinweisWeg)
{
    NetzSpannen();
    VerzeichnisSchreiben(Stände(), "Speichern", AufDerPlatte());
    Neustart();
    EXPECT_TRUE(Netz().SpeichernAbgebrochen);
    EXPECT_EQ(Dauerhinweis(), "Letztes Speichern unvollständig");
    GemeindeSpeichern(2);
    EXPECT_EQ(Starthinweis(), "");
    Neustart();
    EXPECT_EQ(Starthinweis(), "");
}

// A save that fails.

TEST_F(NetzTest, ScheitertEinSpeichernSindDieTabellenAlsNotfallAufgehoben)
{
    for (int ab = 1; ab <= 8; ++ab) {
        SCOPED_TRACE(ab);
        Laufwerke.Schreiben = Systemlaufwerke().Schreiben;
        NetzEinholen();
        Laufwerke.Schreiben = Systemlaufwerke().Schreiben;
        fs::remove_all(Stände());
        GemeindeSpeichern(1);
        DatenträgerFüllen(ab);
        NetzSpannen();
        Gemeinde(2);
        SchleifenZähler = 5;
        EXPECT_EQ(NummerDesFehlers([] { AufFestplatteSpeichern(); }), 61);
        const auto stände = AlleStände();
        ASSERT_EQ(stände.size(), 2U);
        EXPECT_EQ(stände[1].Art, Standart::Notfall);
        EXPECT_TRUE(ImNeuesten() == InhaltDerGemeinde(2));
        for (int i = 0; i < 8; ++i) { // the eight files as without the net
            const Text bytes = Wort(Dateien[static_cast<std::size_t>(i)].Name);
            const Text neu = *InhaltDerGemeinde(2).Dateien[static_cast<std::size_t>(i)].Bytes;
            const Text alt = *InhaltDerGemeinde(1).Dateien[static_cast<std::size_t>(i)].Bytes;
            EXPECT_TRUE(bytes == (i + 1 < ab    ? neu
                                  : i + 1 == ab ? neu.substr(0, neu.size() / 3)
                                                : alt));
        }
    }
}

TEST_F(NetzTest, EinNotfallWirdAngebotenBisErErledigtIst)
{
    NetzSpannen();
    NotfallSichern(InhaltDerGemeinde(2));
    Neustart();
    ASSERT_TRUE(Netz().Notfall);
    EXPECT_TRUE(Starthinweis().find("Was es am 21.11.2026, 12:00 Uhr, im Speicher hatte") !=
                Text::npos)
        << Starthinweis();
    Neustart();
    ASSERT_TRUE(Netz().Notfall) << "nobody has decided yet";
    StandZurückholen(*Netz().Notfall);
    EXPECT_EQ(Konfig.Gemeinde, "St. Ägid 2");
    EXPECT_FALSE(Netz().Notfall);
    Neustart();
    EXPECT_FALSE(Netz().Notfall);

    ++Sekunden;
    NotfallSichern(InhaltDerGemeinde(3));
    Neustart();
    ASSERT_TRUE(Netz().Notfall);
    AufFestplatteSpeichern(); // the user has gone on without it
    Neustart();
    EXPECT_FALSE(Netz().Notfall);
    EXPECT_EQ(Konfig.Gemeinde, "St. Ägid 2");
}

TEST_F(NetzTest, EinNotfallDerAufDerPlatteStehtIstKeinWortWert)
{
    NetzSpannen();
    NotfallSichern(InhaltDerGemeinde(1));
    Neustart();
    EXPECT_FALSE(Netz().Notfall);
    EXPECT_EQ(Starthinweis(), "");
}

// A load.

TEST_F(NetzTest, EinLadenDasAufhörtIstGesagtBisZumNächstenVollständigen)
{
    int geändert = 0;
    NetzlageGeändert = [&] { ++geändert; };
    Neustart();
    EXPECT_GT(geändert, 0);
    Meßdiener.Straße[0] = "Am Markt 3, Hinterhaus";
    AufFestplatteSpeichern();
    Neustart();
    EXPECT_EQ(
        Starthinweis(),
        "Meßdiener.dat ist nur bis Zeile 5 gelesen; dort steht „Am Markt 3, Hinterhaus“. Das "
        "Komma zerreißt die Datei. Was danach kommt, fehlt im Programm, und das Beenden "
        "speichert es so.\nEin Stand mit Semikolon an Stelle des Kommas, in dem nichts fehlt, "
        "ist aufgehoben.");
    EXPECT_EQ(Dauerhinweis(), "Nicht alles geladen: Meßdiener.dat");
    EXPECT_EQ(Meßdiener.Nachname[1], "") << "the load does what it does";
    EXPECT_TRUE(GezeigteMeldungen.empty());
    AufFestplatteSpeichern();
    EXPECT_EQ(Dauerhinweis(), "Nicht alles geladen: Meßdiener.dat");
    GemeindeSpeichern(1);
    VonFestplatteLaden();
    EXPECT_EQ(Dauerhinweis(), "");
    NetzlageGeändert = [] {};
}

TEST_F(NetzTest, DasZerrisseneIstAuchOhneKommaAufgehobenUndNurEinmal)
{
    Neustart();
    Meßdiener.Straße[0] = "Am Markt 3, Hinterhaus";
    Meßdiener.Straße[1] = "Weg 1, 2";
    AufFestplatteSpeichern();
    const Standinhalt zerrissen = AufDerPlatte();
    Neustart();
    EXPECT_EQ(Namen().size(), 3U);
    Neustart();
    Neustart();
    const auto stände = AlleStände();
    ASSERT_EQ(stände.size(), 3U) << "before, torn, whole";
    EXPECT_TRUE(InhaltVon(stände[1].Ort) == zerrissen);
    StandZurückholen(stände[2]);
    EXPECT_EQ(Meßdiener.Straße[0], "Am Markt 3; Hinterhaus");
    EXPECT_EQ(Meßdiener.Straße[1], "Weg 1; 2");
    EXPECT_EQ(Meßdiener.Nachname[1], "Busch");
    EXPECT_EQ(Helfer.Nachname[0], "Linde");
    EXPECT_EQ(Starthinweis(), "");
}

// With a comma and something else wrong there is no whole.
TEST_F(NetzTest, WasAuchOhneKommaNichtLädtIstNichtGeheilt)
{
    Meßdiener.Straße[0] = "Am Markt 3, Hinterhaus";
    AufFestplatteSpeichern();
    DateiSchreiben(Festplatte / "Helfer.dat", "kaputt");
    Neustart();
    EXPECT_EQ(Namen().size(), 1U);
    EXPECT_FALSE(Netz().OhneKomma);
}

TEST_F(NetzTest, DerBlickDanachLäßtTabellenUndZählerWieDasLaden)
{
    DateiSchreiben(Festplatte / "Helfer.dat", " 0 \r\n 7 \r\nMaria\r\n");
    TabellenLeeren();
    VonFestplatteLaden();
    const Int16 zähler = SchleifenZähler;
    const Standinhalt ohne = InhaltDerTabellen();
    Neustart();
    EXPECT_EQ(SchleifenZähler, zähler);
    EXPECT_TRUE(InhaltDerTabellen() == ohne);
    EXPECT_EQ(Netz().Befund.Datei, "Helfer.dat");
}

TEST_F(NetzTest, EinLadenVonDisketteÄndertDenBefundNicht)
{
    DateiSchreiben(Festplatte / "Helfer.dat", "kaputt");
    Neustart();
    EXPECT_EQ(Netz().Befund.Datei, "Helfer.dat");
    Antworten = {true};
    VonDisketteLaden();
    EXPECT_EQ(Netz().Befund.Datei, "Helfer.dat");
    EXPECT_EQ(GezeigteMeldungen.size(), 8U);
}

// Before a change.

TEST_F(NetzTest, VorDemWechselSindDateienUndTabellenAufgehoben)
{
    VorWechselSichern(Vorher::DateienUndTabellen);
    EXPECT_TRUE(Namen().empty()) << "without the net";
    Neustart();
    VorWechselSichern(Vorher::DateienUndTabellen);
    EXPECT_EQ(Namen().size(), 1U) << "nothing new";
    DateiSchreiben(Festplatte / "Messen.dat", "anders");
    Meßdiener.Vorname[0] = "getippt";
    const Standinhalt tabellen = InhaltDerTabellen();
    VorWechselSichern(Vorher::Dateien);
    EXPECT_TRUE(ImNeuesten() == AufDerPlatte());
    VorWechselSichern(Vorher::DateienUndTabellen);
    EXPECT_EQ(Namen().size(), 3U);
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
    EXPECT_FALSE(fs::exists(Stände() / "Speichern"));
    EXPECT_TRUE(ImNeuesten() == speicher);
    StandZurückholen(AlleStände().back());
    EXPECT_EQ(Meßdiener.Vorname[0], "nur im Speicher");
    EXPECT_TRUE(AufDerPlatte() == speicher);
}

TEST_F(NetzTest, DieDateienBehaltenDieNamenDieSieHaben)
{
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
