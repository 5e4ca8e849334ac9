// The loop counter of the shared routines: the value each leaves in it.
#include "core/SchleifenZähler.h"

#include "Prüfstand.h"
#include "assignment/Dienste.h"
#include "core/Allgemein.h"
#include "core/Felderlisten.h"
#include "core/Sortierbefehle.h"
#include "fixed/FesteEinträge.h"
#include "fixed/FesteMeßdienerÜbertragen.h"

namespace altardienst {
namespace {

class SchleifenZählerTest : public Prüfstand {
  protected:
    SchleifenZählerTest()
    {
        for (int i = 0; i < 5; ++i)
            MesseMitDienern(DatumAus({2026, 11, 22}) + i, 4);
        Meßdiener.Anzahl = 9;
        Helfer.Anzahl = 7;
        Gruppe.Anzahl = 3;
        MesseDienerFest.Anzahl = 4;
    }

    void DisketteBereitstellen() const
    {
        AufFestplatteSpeichern();
        for (const auto &datei : std::filesystem::directory_iterator(Festplatte))
            std::filesystem::copy_file(datei.path(), Diskette / datei.path().filename());
    }

    static int Nach(void (*routine)())
    {
        SchleifenZähler = -1;
        routine();
        return SchleifenZähler;
    }
};

TEST_F(SchleifenZählerTest, BeginntBeiNull)
{
    SchleifenZähler = 77;
    TabellenLeeren();
    EXPECT_EQ(SchleifenZähler, 0);
}

TEST_F(SchleifenZählerTest, DiensteUndÜbertragStehenEinsHinterDerLeerenMesse)
{
    EXPECT_EQ(Nach(DiensteVerteilen), 6);
    EXPECT_EQ(Nach(FesteMeßdienerÜbertragen), 6);
    Messe.Anzahl = 0;
    EXPECT_EQ(Nach(DiensteVerteilen), 1);
    EXPECT_EQ(Nach(FesteMeßdienerÜbertragen), 1);
}

TEST_F(SchleifenZählerTest, SortierenZähltSeineDurchgänge)
{
    EXPECT_EQ(Nach(MessenSortieren), 4);
    EXPECT_EQ(Nach(MessenNachDatumSortieren), 4);
    EXPECT_EQ(Nach(MeßdienerNachNachnameSortieren), 8);
    EXPECT_EQ(Nach(HelferNachVornameSortieren), 6);
    EXPECT_EQ(Nach(GruppenSortieren), 2);
    EXPECT_EQ(Nach(VorbesetzteMessenSortieren), 3);
    EXPECT_EQ(Nach(StandardmessenNachWochentagSortieren), 10);
    EXPECT_EQ(Nach(EtikettenAufsteigendSortieren), 9);
    Gruppe.Anzahl = 0;
    EXPECT_EQ(Nach(GruppenSortieren), 0);
}

TEST_F(SchleifenZählerTest, SpeichernUndLadenStehenHinterDemLetztenDatensatzDerLetztenDatei)
{
    EXPECT_EQ(Nach(AufFestplatteSpeichern), 401);
    EXPECT_EQ(Nach(VonFestplatteLaden), 401);
}

TEST_F(SchleifenZählerTest, DieDisketteWirdGeschriebenWieDieFestplatteUndGelesenBisZumErstenDiener)
{
    DisketteBereitstellen();
    EXPECT_EQ(Nach(AufDisketteSpeichern), 401);
    Antworten = {true};
    EXPECT_EQ(Nach(VonDisketteLaden), 0);
    EXPECT_EQ(Nach(VonDisketteLaden), -1) << "without an answer nothing is read";
}

TEST_F(SchleifenZählerTest, EinSchlechterKopfDerMeßdienerLässtIhnHinterDenStandardmessen)
{
    DisketteBereitstellen();
    DateiSchreiben(Diskette / PfadAus("Meßdiener.dat"), " 7 \r\nx\r\n");
    Antworten = {true};
    EXPECT_EQ(Nach(VonDisketteLaden), 21);
}

TEST_F(SchleifenZählerTest, EineVolleDisketteLässtIhnHinterDerTabelleDieNichtMehrPasst)
{
    DisketteBereitstellen();
    Laufwerke.Schreiben = [](const std::filesystem::path &pfad, std::string_view) {
        if (pfad.filename() == "Messen.dat")
            throw Laufzeitfehler(Laufzeitfehler::DatenträgerVoll);
    };
    EXPECT_EQ(NummerDesFehlers(AufDisketteSpeichern), 61);
    EXPECT_EQ(SchleifenZähler, 603);
}

TEST_F(SchleifenZählerTest, EineKurzeDateiHältIhnAnNurDieMessenLaufenWeiter)
{
    const std::string kopf = " 0 \r\n 0 \r\n";
    for (const int datei : {DateiMeßdiener, DateiMesse, DateiGruppe, DateiMesseDienerFest}) {
        EXPECT_EQ(Einlesen(datei, kopf), 0);
        EXPECT_EQ(SchleifenZähler, datei == DateiMesse ? 603 : 0) << datei;
    }
    EXPECT_EQ(Einlesen(DateiGruppe, kopf + "Eins\r\nZwei\r\n"), 0);
    EXPECT_EQ(SchleifenZähler, 2);
    EXPECT_EQ(Einlesen(DateiMesse, kopf + "Sonntag\r\n"), 62);
    EXPECT_EQ(SchleifenZähler, 0) << "the end inside a record is a failure";
}

TEST_F(SchleifenZählerTest, EinFehlerLässtIhnStehenWoErWar)
{
    Messe.Anzahl = 1000;
    EXPECT_EQ(NummerDesFehlers(DiensteVerteilen), Laufzeitfehler::IndexAußerhalb);
    EXPECT_EQ(SchleifenZähler, 603);
}

TEST_F(SchleifenZählerTest, DieSucheNachEinerMesseGehtBisZuIhmUndÄndertIhnNicht)
{
    const auto text = [](int i) { return Messentext(i); };
    for (const int stand : {0, 2, 4, 5}) {
        SchleifenZähler = stand;
        for (int i = 0; i < 5; ++i)
            EXPECT_EQ(IstMesse(text(i)), i <= stand) << i << " up to " << stand;
        EXPECT_EQ(SchleifenZähler, stand);
    }
}

TEST_F(SchleifenZählerTest, DieSucheEndetMitDerTabelle)
{
    SchleifenZähler = 603;
    EXPECT_TRUE(IstMesse(Messentext(0)));
    EXPECT_EQ(NummerDesFehlers([] { IstMesse("unbekannt"); }), Laufzeitfehler::IndexAußerhalb);
    SchleifenZähler = 602;
    EXPECT_FALSE(IstMesse("unbekannt"));
}

} // namespace
} // namespace altardienst
