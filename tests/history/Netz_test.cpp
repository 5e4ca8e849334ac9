// The net at the start and during a save.
#include "history/Netzprobe.h"

namespace altardienst {
namespace {

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

} // namespace
} // namespace altardienst
