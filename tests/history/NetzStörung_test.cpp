// What disturbs the net: a save that is cut off, a wrong clock, a second run, a file that cannot be
// read.
#include "history/Netzprobe.h"

namespace altardienst {
namespace {

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
    VerzeichnisSchreiben(Stände(), "Speichern 17", AufDerPlatte());
    Neustart();
    EXPECT_TRUE(Netz().SpeichernAbgebrochen);
    EXPECT_EQ(Dauerhinweis(), "Letztes Speichern unvollständig");
    GemeindeSpeichern(2);
    EXPECT_EQ(Starthinweis(), "");
    Neustart();
    EXPECT_EQ(Starthinweis(), "");
}

// The disk is still full when the program starts again: what is there already needs no room.
TEST_F(NetzTest, AufVollemDatenträgerIstDerStandDavorTrotzdemDerNeuesteUndBleibt)
{
    AbbrechenBei(4);
    DatenträgerFüllen(1, true);
    Neustart();
    EXPECT_TRUE(ImNeuesten() == InhaltDerGemeinde(2));
    EXPECT_EQ(AlleStände().back().Art, Standart::VorAbbruch);
    EXPECT_NE(Starthinweis().find("Der Stand davor ist aufgehoben."), Text::npos);
    EXPECT_EQ(Dauerhinweis(),
              "Nicht alles geladen: Messen.dat. Kein Stand aufgehoben: Datenträger voll");
    // The work goes on and is saved, when there is room again or when there is none.
    EXPECT_EQ(NummerDesFehlers([&] { GemeindeSpeichern(4); }), 61);
    EXPECT_TRUE(HatStand(InhaltDerGemeinde(2)));
    PlatzSchaffen();
    GemeindeSpeichern(5);
    EXPECT_TRUE(HatStand(InhaltDerGemeinde(2)));
    EXPECT_EQ(Dauerhinweis(), "");
    Neustart();
    EXPECT_TRUE(HatStand(InhaltDerGemeinde(2)));
    EXPECT_EQ(Starthinweis(), "");
}

// What lies in the mark is never thrown away, even where no name can be changed.
TEST_F(NetzTest, LäßtSichDieMarkeNichtAufhebenIstNichtsVersprochenUndNichtsVerloren)
{
    AbbrechenBei(4);
    const auto umbenennen = Laufwerke.Umbenennen;
    Laufwerke.Umbenennen = [](const fs::path &, const fs::path &) {
        throw Laufzeitfehler(Laufzeitfehler::ZugriffVerweigert);
    };
    Neustart();
    EXPECT_TRUE(Netz().SpeichernAbgebrochen);
    EXPECT_EQ(Starthinweis().find("aufgehoben"), Text::npos) << Starthinweis();
    GemeindeSpeichern(4);
    Laufwerke.Umbenennen = umbenennen;
    Neustart();
    EXPECT_TRUE(HatStand(InhaltDerGemeinde(2)));
}

TEST_F(NetzTest, EinKommaImAbgebrochenenSpeichernVerdrängtDenStandDavorNicht)
{
    NetzSpannen();
    GemeindeSpeichern(2);
    Gemeinde(3);
    Meßdiener.Straße[0] = "Am Markt 3, Hinterhaus";
    DatenträgerFüllen(5); // the file with the comma is already the new one
    EXPECT_EQ(NummerDesFehlers([] { AufFestplatteSpeichern(); }), 61);
    MarkeVonEinemAnderen();
    PlatzSchaffen();
    VonFestplatteLaden();
    EXPECT_GT(Netz().Befund.Komma, 0);
    const auto zahl = AlleStände().size();
    for (int start = 0; start < 3; ++start) {
        EXPECT_TRUE(ImNeuesten() == InhaltDerGemeinde(2)) << start;
        EXPECT_EQ(AlleStände().size(), zahl) << start;
        Neustart();
    }
}

// The clock.

TEST_F(NetzTest, GehtDieUhrZurückIstDerNeuesteStandDochDerLetzte)
{
    Neustart();
    Sekunden -= 3600; // the end of summer time
    for (int start = 0; start < 3; ++start)
        Neustart();
    EXPECT_EQ(Namen().size(), 1U) << "nothing has changed";
    GemeindeSpeichern(2);
    Neustart();
    EXPECT_TRUE(ImNeuesten() == InhaltDerGemeinde(2));
    EXPECT_EQ(Namen().back(), "2026-11-21 12-00-01 (2)");
    Heute = DatumAus({2000, 1, 1}); // an empty battery
    GemeindeSpeichern(3);
    Neustart();
    Neustart();
    EXPECT_TRUE(ImNeuesten() == InhaltDerGemeinde(3));
    EXPECT_EQ(Namen().size(), 3U);
    Heute = DatumAus({2026, 12, 1});
    GemeindeSpeichern(4);
    Neustart();
    EXPECT_EQ(Namen().size(), 4U);
    EXPECT_TRUE(ImNeuesten() == InhaltDerGemeinde(4));
    AbbrechenBei(4, 5);
    Heute -= 30;
    Neustart();
    EXPECT_TRUE(ImNeuesten() == InhaltDerGemeinde(5));
    const auto zahl = AlleStände().size();
    Neustart();
    EXPECT_EQ(AlleStände().size(), zahl);
}

TEST_F(NetzTest, EineUhrInDerZukunftKostetKeinenStand)
{
    NetzSpannen();
    for (int monat = 0; monat < 30; ++monat)
        fs::copy(AlleStände().front().Ort,
                 Stände() / Standname({Heute - 31 * monat, 5, 1}, Standart::Gewöhnlich));
    const auto zahl = AlleStände().size();
    Heute = DatumAus({2040, 1, 1});
    for (int ausgabe = 2; ausgabe < 6; ++ausgabe) {
        GemeindeSpeichern(ausgabe);
        Neustart();
    }
    EXPECT_EQ(AlleStände().size(), zahl + 4);
}

TEST_F(NetzTest, WasEineFalscheUhrBenannteWirdVonHeute)
{
    for (int ausgabe = 2; ausgabe < 5; ++ausgabe, Heute += ausgabe == 3 ? 5000 : 0) {
        GemeindeSpeichern(ausgabe);
        Neustart();
    }
    Heute -= 5000;
    GemeindeSpeichern(5);
    Neustart();
    const auto stände = AlleStände();
    ASSERT_EQ(stände.size(), 4U);
    for (int i = 0; i < 4; ++i) {
        const Stand &stand = stände[static_cast<std::size_t>(i)];
        EXPECT_EQ(stand.Zeit.Tag, Heute) << i;
        EXPECT_TRUE(InhaltVon(stand.Ort) == InhaltDerGemeinde(i + 2)) << i;
    }
    Heute -= 5000; // now it is this clock that is wrong
    Neustart();
    EXPECT_EQ(AlleStände().front().Zeit.Tag, Heute + 5000);
}

// Two runs at the same time.

TEST_F(NetzTest, EinZweiterLaufLäßtLiegenWasDerErsteGeradeTut)
{
    const Alleinlauf erster(Festplatte);
    ASSERT_TRUE(erster.Gilt());
    for (const char *rest : {"unfertig 17", "Speichern 17", "geloescht 17"}) {
        fs::create_directories(Stände() / rest);
        DateiSchreiben(Stände() / rest / "Konfig.cfg", "halb");
    }
    Neustart();
    EXPECT_EQ(Starthinweis(), "");
    GemeindeSpeichern(2);
    EXPECT_EQ(Namen(),
              (Liste{"2026-11-21 12-00-01", "Speichern 17", "geloescht 17", "unfertig 17"}));
}

TEST_F(NetzTest, IstDerErsteNichtMehrDaSindSeineResteWelche)
{
    {
        const Alleinlauf erster(Festplatte);
        EXPECT_FALSE(Alleinlauf(Festplatte).Gilt());
    }
    fs::create_directories(Stände() / "unfertig 17");
    Neustart();
    EXPECT_EQ(Namen(), Liste{"2026-11-21 12-00-01"});
    EXPECT_FALSE(Alleinlauf(Festplatte).Gilt());
    NetzEinholen();
    EXPECT_TRUE(Alleinlauf(Festplatte).Gilt());
}

// A file that cannot be read.

TEST_F(NetzTest, WasSichNichtLesenLäßtWirdNichtÜberschrieben)
{
    NetzSpannen();
    GemeindeSpeichern(2); // is in no state yet
    const std::string gruppen = DateiLesen(Festplatte / "Gruppen.dat");
    const Unlesbar unlesbar;
    GemeindeSpeichern(3);
    EXPECT_TRUE(DateiLesen(Festplatte / "Gruppen.dat") ==
                *InhaltDerGemeinde(3).Dateien[DateiGruppe].Bytes);
    EXPECT_TRUE(DateiLesen(AlleStände().back().Ort / "Gruppen.dat") == gruppen);
    EXPECT_FALSE(MarkeLiegt());
}

TEST_F(NetzTest, KommtDasSpeichernNichtBisZuIhrLiegtSieWiederAnIhremOrt)
{
    DatenträgerFüllen(2);
    NetzSpannen();
    const std::string gruppen = DateiLesen(Festplatte / "Gruppen.dat");
    const Unlesbar unlesbar;
    EXPECT_EQ(NummerDesFehlers([&] { GemeindeSpeichern(3); }), 61);
    EXPECT_TRUE(fs::exists(Festplatte / "Gruppen.dat"));
    EXPECT_TRUE(DateiLesen(Festplatte / "Gruppen.dat") == gruppen);
}

TEST_F(NetzTest, AuchHereinkopiertesÜberschreibtSieNicht)
{
    DateiSchreiben(Diskette / "neu.dat", "neu");
    NetzSpannen();
    const std::string gruppen = DateiLesen(Festplatte / "Gruppen.dat");
    const Unlesbar unlesbar;
    EXPECT_EQ(
        NummerDesFehlers([&] { Laufwerke.Kopieren(Diskette / "x", Festplatte / "Gruppen.dat"); }),
        53);
    EXPECT_TRUE(DateiLesen(Festplatte / "Gruppen.dat") == gruppen);
    Laufwerke.Kopieren(Diskette / "neu.dat", Festplatte / "Gruppen.dat");
    EXPECT_EQ(DateiLesen(Festplatte / "Gruppen.dat"), "neu");
    EXPECT_TRUE(DateiLesen(Marke() / "Gruppen.dat") == gruppen);
}

} // namespace
} // namespace altardienst
