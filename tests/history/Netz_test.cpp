// The net below loading and saving: what is kept at the start, during a save, when it fails, and
// before something else takes its place.
#include "history/Netz.h"

#include "core/Ladebericht.h"
#include "core/SchleifenZähler.h"
#include "history/Aufräumen.h"
#include "history/Marke.h"
#include "history/Netzstand.h"
#include "platform/Einzellauf.h"

#ifndef _WIN32
#include <unistd.h>
#endif

namespace altardienst {
namespace {

namespace fs = std::filesystem;
using Liste = std::vector<Text>;

class NetzTest : public Netzstand {
  protected:
    NetzTest() { GemeindeSpeichern(1); }

    Text Wort(const char *name) const { return DateiLesen(Festplatte / PfadAus(name)); }

    /// From the nth write into one of the eight files on, or into any, the disk is full.
    void DatenträgerFüllen(int ab, bool überall = false)
    {
        const auto schreiben = Laufwerke.Schreiben;
        Laufwerke.Schreiben = [this, schreiben, ab, überall,
                               zahl = 0](const fs::path &pfad, std::string_view bytes) mutable {
            if ((überall || pfad.parent_path() == Festplatte) && ++zahl >= ab) {
                schreiben(pfad, bytes.substr(0, bytes.size() / 3));
                throw Laufzeitfehler(Laufzeitfehler::DatenträgerVoll);
            }
            schreiben(pfad, bytes);
        };
    }

    /// It has room again, for this run and for the next.
    void PlatzSchaffen()
    {
        NetzEinholen();
        Laufwerke.Schreiben = Systemlaufwerke().Schreiben;
        ++Sekunden;
        NetzSpannen();
    }

    /// The mark of this run becomes that of one that was killed.
    void MarkeVonEinemAnderen() const { fs::rename(Marke(), Stände() / "Speichern 17"); }

    /// A run that was killed at the nth file of a save; before it the disk held this issue.
    void AbbrechenBei(int n, int davor = 2)
    {
        NetzSpannen();
        GemeindeSpeichern(davor);
        Gemeinde(davor + 1);
        DatenträgerFüllen(n); // in front of the net, which sees no failure
        EXPECT_EQ(NummerDesFehlers([] { AufFestplatteSpeichern(); }), 61);
        MarkeVonEinemAnderen();
        NetzEinholen();
        Laufwerke.Schreiben = Systemlaufwerke().Schreiben;
    }

    static bool HatStand(const Standinhalt &inhalt)
    {
        const auto stände = AlleStände();
        return std::ranges::any_of(
            stände, [&](const Stand &stand) { return InhaltVon(stand.Ort) == inhalt; });
    }

    /// While it stands, the groups' file cannot be read, wherever it is.
    class Unlesbar {
      public:
        Unlesbar() : lesen(Laufwerke.Lesen)
        {
            Laufwerke.Lesen = [this](const fs::path &pfad) {
                if (pfad.filename() == "Gruppen.dat")
                    throw Laufzeitfehler(Laufzeitfehler::ZugriffVerweigert);
                return lesen(pfad);
            };
        }
        ~Unlesbar() { Laufwerke.Lesen = lesen; }
        Unlesbar(const Unlesbar &) = delete;
        Unlesbar &operator=(const Unlesbar &) = delete;

      private:
        std::function<std::string(const fs::path &)> lesen;
    };
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
                EXPECT_TRUE(InhaltVon(Marke()) == InhaltDerGemeinde(ausgabe - 1));
            }
            schreiben(pfad, bytes);
        };
        GemeindeSpeichern(ausgabe);
        Laufwerke.Schreiben = schreiben;
        EXPECT_EQ(geschrieben, 8);
        EXPECT_FALSE(MarkeLiegt());
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
    const Text unfertig = Restname(Rest::InArbeit);
    const Text marke = Restname(Rest::Marke);
    Liste erwartet = {unfertig + " -> " + marke};
    for (const Datei &datei : Dateien)
        erwartet.push_back("schreiben " + Text(datei.Name));
    for (const Datei &datei : Dateien) // once, after the last one
        erwartet.push_back("durch " + Text(datei.Name));
    erwartet.insert(erwartet.end(), {"durch Festplatte", marke + " -> ", "durch Stände"});
    ASSERT_EQ(folge.size(), erwartet.size());
    for (std::size_t i = 0; i < folge.size(); ++i)
        EXPECT_TRUE(folge[i].starts_with(erwartet[i])) << folge[i];
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
    EXPECT_TRUE(Dauerhinweis().starts_with("Kein Stand aufgehoben: "));
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
    NotfallSichern(InhaltDerGemeinde(3));
    EXPECT_NO_THROW(GemeindeSpeichern(2)) << "as if nothing had been flushed";
    EXPECT_TRUE(MarkeLiegt());
    EXPECT_EQ(AlleStände().back().Art, Standart::Notfall) << "nothing is decided by it";
    EXPECT_EQ(Dauerhinweis(), "Nicht fest auf dem Datenträger: Zugriff verweigert");
    Laufwerke.Durchschreiben = durchschreiben;
    GemeindeSpeichern(4);
    EXPECT_FALSE(MarkeLiegt());
    EXPECT_TRUE(HatStand(InhaltDerGemeinde(1))) << "the last files that the medium surely held";
    EXPECT_EQ(AlleStände().front().Art, Standart::Gewöhnlich);
    EXPECT_EQ(Dauerhinweis(), "");
}

TEST_F(NetzTest, KonnteEineMarkeNichtEntstehenIstEsNachDerNächstenVergessen)
{
    NetzSpannen();
    const auto umbenennen = Laufwerke.Umbenennen;
    Laufwerke.Umbenennen = [](const fs::path &, const fs::path &) {
        throw Laufzeitfehler(Laufzeitfehler::ZugriffVerweigert);
    };
    GemeindeSpeichern(2);
    EXPECT_EQ(Dauerhinweis(), "Kein Stand aufgehoben: Zugriff verweigert");
    Laufwerke.Umbenennen = umbenennen;
    GemeindeSpeichern(3);
    EXPECT_EQ(Dauerhinweis(), "");
}

TEST_F(NetzTest, AufVollemDatenträgerSagtDerStartDaßErNichtsAufhebt)
{
    DatenträgerFüllen(1, true);
    NetzSpannen();
    VonFestplatteLaden();
    EXPECT_EQ(Dauerhinweis(), "Kein Stand aufgehoben: Datenträger voll");
    EXPECT_EQ(Starthinweis(), "");
    EXPECT_EQ(Meßdiener.Anzahl, 2) << "it loads as ever";
    EXPECT_TRUE(Namen().empty());
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

#ifndef _WIN32
// The superuser may write everywhere, so the test becomes somebody else for a while.
TEST_F(NetzTest, EinNurLesbaresVerzeichnisWirdGeladenUndDerStartSagtEs)
{
    fs::permissions(Festplatte.parent_path(), fs::perms(0755));
    fs::permissions(Festplatte, fs::perms(0555));
    const bool alle = geteuid() == 0;
    if (alle) {
        ASSERT_EQ(seteuid(65534), 0);
    }
    NetzSpannen();
    VonFestplatteLaden();
    EXPECT_EQ(Dauerhinweis(), "Kein Stand aufgehoben: Zugriff verweigert");
    EXPECT_EQ(Starthinweis(), "");
    EXPECT_EQ(Meßdiener.Anzahl, 2);
    EXPECT_TRUE(Namen().empty());
    EXPECT_TRUE(GezeigteMeldungen.empty());
    if (alle) {
        ASSERT_EQ(seteuid(0), 0);
    }
    fs::permissions(Festplatte, fs::perms(0755));
}
#endif

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
