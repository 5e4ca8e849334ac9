// The start dialog: it loads the data and proposes a period.
#include "shell/Startstand.h"

#include "fixed/FesteEinträge.h"

namespace altardienst {
namespace {

namespace fs = std::filesystem;

class StartFormVorschlagTest : public Startstand {};

/// Where line `nr` (from 1) of a file begins.
std::size_t Zeilenanfang(const std::string &inhalt, int nr)
{
    std::size_t anfang = 0;
    for (; nr > 1; --nr)
        anfang = inhalt.find('\n', anfang) + 1;
    return anfang;
}

TEST_F(StartFormVorschlagTest, LädtDieDatenUndSchlägtVor)
{
    Konfig.Tage = 40;
    Konfig.StartWochentag = 1;
    Konfig.VorlaufWochen = 3;
    Gruppe.Anzahl = 1;
    Gruppe.Bezeichnung[0] = "Die Großen";
    AufFestplatteSpeichern();
    TabellenLeeren();
    Öffnen();
    EXPECT_EQ(Gruppe.Bezeichnung[0], "Die Großen");
    EXPECT_EQ(Zeigt("Tagilein"), "40");
    EXPECT_EQ(Zeigt("Datumsen"), "06.12.2026"); // 21 days and one day back to Sunday
    EXPECT_EQ(Zeigt("Tagchen"), "Sonntag");
    EXPECT_EQ(Zeigt("Endet"), "15.01.2027");
    EXPECT_EQ(Zeigt("Dayig"), "Freitag");
    EXPECT_EQ(Konfig.StartDatum, Tag(6, 12));
    EXPECT_EQ(Konfig.Tage, 40);
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(StartFormVorschlagTest, AmSamstagIstDerNächsteSamstagVorgeschlagen)
{
    Öffnen();
    EXPECT_EQ(Zeigt("Datumsen"), "28.11.2026");
    EXPECT_EQ(Konfig.StartDatum, Heute + 7);
}

TEST_F(StartFormVorschlagTest, AmSonntagIstDerSamstagDerNächstenWocheVorgeschlagen)
{
    Heute = Tag(22, 11);
    Öffnen();
    EXPECT_EQ(Zeigt("Datumsen"), "05.12.2026");
    EXPECT_EQ(Zeigt("Tagchen"), "Samstag");
    EXPECT_EQ(Konfig.StartDatum, Heute + 13);
}

TEST_F(StartFormVorschlagTest, WochentagUndVorlaufAußerhalbWerdenSamstagUndEineWoche)
{
    for (auto [wochentag, vorlauf] : {std::pair(0, 0), std::pair(8, 21)}) {
        Konfig.StartWochentag = wochentag;
        Konfig.VorlaufWochen = vorlauf;
        AufFestplatteSpeichern();
        StartForm neu([] {});
        EXPECT_EQ(Zeigt(neu.Datumsen), "28.11.2026");
        EXPECT_EQ(Konfig.StartWochentag, 7);
        EXPECT_EQ(Konfig.VorlaufWochen, 1);
    }
}

TEST_F(StartFormVorschlagTest, GrenzeAuslöseAußerhalbVon0Bis99Wird60)
{
    for (auto [gelesen, danach] : {std::pair(-1, 60), {0, 0}, {99, 99}, {100, 60}}) {
        Konfig.GrenzeAuslöse = gelesen;
        AufFestplatteSpeichern();
        StartForm neu([] {});
        EXPECT_EQ(Konfig.GrenzeAuslöse, danach) << gelesen;
    }
}

TEST_F(StartFormVorschlagTest, DasLadenSchließtDieFesteZuordnung)
{
    FesteZuordnungOffen = true;
    Öffnen();
    EXPECT_FALSE(FesteZuordnungOffen);
}

TEST_F(StartFormVorschlagTest, EinGescheitertesLadenLässtAchtVorgabenStehen)
{
    fs::remove(Festplatte / "Konfig.cfg");
    Konfig.XSkala = Konfig.YSkala = 0;
    for (auto *skala :
         {&Konfig.Skal1, &Konfig.Skal2, &Konfig.Skal3, &Konfig.Skal4, &Konfig.Skal5, &Konfig.Skal6})
        *skala = 0;
    Öffnen();
    const KonfigDatensatz vorgabe;
    EXPECT_EQ(Konfig.XSkala, vorgabe.XSkala);
    EXPECT_EQ(Konfig.YSkala, vorgabe.YSkala);
    EXPECT_EQ(Konfig.Skal1, vorgabe.Skal1);
    EXPECT_EQ(Konfig.Skal2, vorgabe.Skal2);
    EXPECT_EQ(Konfig.Skal3, vorgabe.Skal3);
    EXPECT_EQ(Konfig.Skal4, vorgabe.Skal4);
    EXPECT_EQ(Konfig.Skal5, vorgabe.Skal5);
    EXPECT_EQ(Konfig.Skal6, vorgabe.Skal6);
}

TEST_F(StartFormVorschlagTest, VorDemLadenStehenDieVorgabenDanachWirdNichtBegrenzt)
{
    std::string inhalt = DateiLesen(Festplatte / "Konfig.cfg");
    inhalt.resize(Zeilenanfang(inhalt, 21));
    DateiSchreiben(Festplatte / "Konfig.cfg", inhalt + " 1 \r\nx\r\n");
    Öffnen();
    EXPECT_EQ(Konfig.XSkala, 1) << "read before the load failed";
    EXPECT_EQ(Konfig.YSkala, KonfigDatensatz::SkalaVorgabe);
    EXPECT_EQ(Konfig.Skal1, 302);
}

TEST_F(StartFormVorschlagTest, ErsterStartGibtEineMeldungUndSchlägtTrotzdemVor)
{
    fs::remove_all(Festplatte);
    Öffnen();
    EXPECT_EQ(GezeigteMeldungen,
              std::vector<Text>{"Bitte Daten von Diskette einlesen oder kopieren, da Datei - "
                                "etiketten.dat - im Verzeichnis - C:\\programm\\Altardienst\\ - "
                                "fehlt!"});
    EXPECT_TRUE(fs::is_directory(Festplatte));
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(Zeigt("Datumsen"), "28.11.2026");
    EXPECT_EQ(Zeigt("Tagilein"), "7"); // nothing was read: 0 days are too few
    EXPECT_EQ(Konfig.Tage, 7);
}

} // namespace
} // namespace altardienst
