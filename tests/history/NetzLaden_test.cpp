// The net under a load that stops, and under a save that fails.
#include "history/Netzprobe.h"

namespace altardienst {
namespace {

// A load of a file that has broken meanwhile, and the save that writes what it left.
TEST_F(NetzTest, NachEinemHalbenLadenBehältDasSpeichernDieGutenDateien)
{
    NetzSpannen();
    GemeindeSpeichern(2);
    DateiSchreiben(Festplatte / "Helfer.dat", "kaputt");
    const Standinhalt halb = AufDerPlatte();
    VonFestplatteLaden();
    AufFestplatteSpeichern();
    EXPECT_TRUE(HatStand(halb));
}

TEST_F(NetzTest, DasLadenNenntMitDemNetzDieselbeDatei)
{
    NetzSpannen();
    DateiSchreiben(Festplatte / "Helfer.dat", "kaputt");
    EXPECT_EQ(Festplattenbericht(LadenMitBericht(VonFestplatteLaden)),
              "nicht alles geladen: bei Helfer.dat abgebrochen");
    GemeindeSpeichern(2);
    EXPECT_EQ(LadenMitBericht(VonFestplatteLaden).Gelesen.size(), 8U);
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

// A short file is not the end of the load: the later ones are read.
TEST_F(NetzTest, WasZuFrühEndetFehltAlleinUndDasSagtDerHinweis)
{
    const Text messen = Wort("Messen.dat");
    DateiSchreiben(Festplatte / "Messen.dat", messen.substr(0, messen.find('\n', 5) + 1));
    Neustart();
    EXPECT_TRUE(Starthinweis().starts_with("Messen.dat endet zu früh, nach Zeile "))
        << Starthinweis();
    EXPECT_TRUE(Starthinweis().ends_with(
        ". Was in ihr fehlt, fehlt auch im Programm, und das Beenden speichert es so."));
    EXPECT_EQ(Helfer.Nachname[0], "Linde");
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

} // namespace
} // namespace altardienst
