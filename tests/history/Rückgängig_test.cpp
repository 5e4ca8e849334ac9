// Undo and redo of whole steps.
#include "history/Rückgängig.h"

#include "core/Messenname.h"
#include "core/SchleifenZähler.h"
#include "history/Schrittstand.h"
#include "history/Tabellenpaket.h"
#include "people/Personen.h"

#include <cmath>
#include <string>
#include <vector>

namespace altardienst {
namespace {

class RückgängigTest : public Schrittstand {};

TEST_F(RückgängigTest, EinSchrittLäßtSichZurücknehmenUndWiederholen)
{
    const Tabellenbild vorher = Bild();
    MessenBesetzen();
    Warten();
    const Tabellenbild nachher = Bild();
    ASSERT_FALSE(vorher == nachher);
    EXPECT_EQ(LetzterSchritt(), "(3) Messen mit Meßdiener besetzen");
    EXPECT_EQ(NächsterSchritt(), "");

    EXPECT_EQ(SchrittZurücknehmen(), "(3) Messen mit Meßdiener besetzen");
    EXPECT_TRUE(Bild() == vorher);
    EXPECT_EQ(LetzterSchritt(), "");
    EXPECT_EQ(NächsterSchritt(), "(3) Messen mit Meßdiener besetzen");
    EXPECT_EQ(SchrittZurücknehmen(), "");
    EXPECT_TRUE(Bild() == vorher);

    EXPECT_EQ(SchrittWiederholen(), "(3) Messen mit Meßdiener besetzen");
    EXPECT_TRUE(Bild() == nachher);
    EXPECT_EQ(SchrittWiederholen(), "");
    EXPECT_TRUE(Bild() == nachher);
}

TEST_F(RückgängigTest, AuchWasNieGespeichertWirdKommtZurück)
{
    Meßdiener.Belegt[3] = 1;
    Meßdiener.DienstZähler[402] = 7;
    Helfer.Belegt[300] = 1;
    SchleifenZähler = 5;
    Warten();
    Schritt("alles", [] {
        Meßdiener.Belegt[3] = 0;
        Meßdiener.LetzterDienst[3] = 46000;
        Meßdiener.DienstZähler[402] = 0;
        Helfer.Belegt[300] = 0;
        Helfer.LetzterDienst[300] = 46000;
        Konfig.StartDatum += 7;
        MesseDienerFest.Index[602] = 4;
        Messe.DienerDienst[602][20] = "Leuchter";
        MesseDienerFest.Vorname[602][0] = "Kim";
        SchleifenZähler = 6;
    });
    EXPECT_EQ(SchrittZurücknehmen(), "alles");
    EXPECT_EQ(Meßdiener.Belegt[3], 1);
    EXPECT_EQ(Meßdiener.LetzterDienst[3], 0);
    EXPECT_EQ(Meßdiener.DienstZähler[402], 7);
    EXPECT_EQ(Helfer.Belegt[300], 1);
    EXPECT_EQ(Helfer.LetzterDienst[300], 0);
    EXPECT_EQ(Konfig.StartDatum, DatumAus({2026, 11, 22}));
    EXPECT_EQ(MesseDienerFest.Index[602], 0);
    EXPECT_EQ(Messe.DienerDienst[602][20], "");
    EXPECT_EQ(MesseDienerFest.Vorname[602][0], "");
    EXPECT_EQ(SchleifenZähler, 5);
}

/// A field that is added to a table and forgotten here would not come back.
TEST_F(RückgängigTest, JedesFeldDerTabellenIstDabei)
{
    const std::size_t tabellen = sizeof Konfig + sizeof Standardmesse + sizeof Meßdiener +
                                 sizeof Messe + sizeof Gruppe + sizeof Helfer + sizeof Etikett +
                                 sizeof MesseDienerFest;
    const std::size_t lücken = tabellen - GepackteBreite(DieTabellen());
    EXPECT_LT(lücken, 8U * 2 * sizeof(double)); // two gaps of alignment in each
}

TEST_F(RückgängigTest, LangeTexteUndUngewöhnlicheZahlenBleibenGanz)
{
    const Text lang(70000, 'x');
    const Text genau(255, 'y');
    const Text kurz(254, 'z');
    Konfig.Gemeinde = lang;
    Messe.Messeart[0] = genau;
    Messe.DienerVor[0][20] = kurz;
    Etikett.Breite[22] = -0.0F;
    Messe.Datum[1] = 1e300;
    Warten();
    Schritt("leeren", [] {
        Konfig.Gemeinde.clear();
        Messe.Messeart[0].clear();
        Messe.DienerVor[0][20].clear();
        Etikett.Breite[22] = 0.0F;
        Messe.Datum[1] = 0;
    });
    SchrittZurücknehmen();
    EXPECT_EQ(Konfig.Gemeinde, lang);
    EXPECT_EQ(Messe.Messeart[0], genau);
    EXPECT_EQ(Messe.DienerVor[0][20], kurz);
    EXPECT_TRUE(std::signbit(Etikett.Breite[22]));
    EXPECT_EQ(Messe.Datum[1], 1e300);
}

TEST_F(RückgängigTest, WasNichtsÄndertIstKeinSchritt)
{
    MeßdienerSortieren();
    Warten();
    SchrittZurücknehmen();
    SchrittWiederholen();
    MeßdienerSortieren(); // they are sorted
    Schritt("nichts", [] { SchleifenZähler += 1; });
    Warten();
    SchrittZurücknehmen();
    EXPECT_EQ(LetzterSchritt(), "");
    EXPECT_EQ(NächsterSchritt(), "Meßdiener nach Nachname sortieren");
}

TEST_F(RückgängigTest, EinSchrittImSchrittGehörtZuIhm)
{
    const Tabellenbild vorher = Bild();
    Schritt("außen", [] {
        Konfig.Gemeinde = "eins";
        Schritt("innen", [] { Konfig.Gemeinde = "zwei"; });
        TabellenBeobachten(); // such as a message that waits for the user
        EXPECT_EQ(SchrittZurücknehmen(), "");
        Konfig.Gemeinde = "drei";
    });
    Warten();
    EXPECT_EQ(LetzterSchritt(), "außen");
    SchrittZurücknehmen();
    EXPECT_TRUE(Bild() == vorher);
    EXPECT_EQ(LetzterSchritt(), "");
}

TEST_F(RückgängigTest, EinGescheiterterSchrittLäßtSichZurücknehmen)
{
    const Tabellenbild vorher = Bild();
    EXPECT_EQ(NummerDesFehlers([] {
                  Schritt("scheitert", [] {
                      Messe.Anzahl = 1;
                      throw Laufzeitfehler(Laufzeitfehler::IndexAußerhalb);
                  });
              }),
              9);
    Warten();
    EXPECT_EQ(SchrittZurücknehmen(), "scheitert");
    EXPECT_TRUE(Bild() == vorher);
    MeßdienerSortieren(); // the steps go on
    Warten();
    EXPECT_EQ(LetzterSchritt(), "Meßdiener nach Nachname sortieren");
}

TEST_F(RückgängigTest, WasVonHandGeändertWurdeIstEinSchrittFürSich)
{
    MessenBesetzen();
    Warten();
    const Tabellenbild besetzt = Bild();
    Meßdiener.Telefon[2] = "4711";
    MeßdienerSortieren(); // looks for it first
    Warten();
    EXPECT_EQ(SchrittZurücknehmen(), "Meßdiener nach Nachname sortieren");
    EXPECT_EQ(Meßdiener.Telefon[2], "4711");
    EXPECT_EQ(SchrittZurücknehmen(),
              "Meßdiener " + Meßdiener.Nachname[2] + ", " + Meßdiener.Vorname[2] + " ändern");
    EXPECT_TRUE(Bild() == besetzt);
    EXPECT_EQ(LetzterSchritt(), "(3) Messen mit Meßdiener besetzen");
}

TEST_F(RückgängigTest, ZurücknehmenSiehtSelbstNachWasVonHandGeändertWurde)
{
    MessenBesetzen();
    Warten();
    const Tabellenbild besetzt = Bild();
    Konfig.PlzOrt = "48999 Anderswo";
    EXPECT_EQ(SchrittZurücknehmen(), "Einstellungen ändern");
    EXPECT_TRUE(Bild() == besetzt);
    EXPECT_EQ(SchrittWiederholen(), "Einstellungen ändern");
    EXPECT_EQ(Konfig.PlzOrt, "48999 Anderswo");
}

TEST_F(RückgängigTest, ÄnderungenDesselbenDatensatzesSindEinSchritt)
{
    const Tabellenbild vorher = Bild();
    for (const char *telefon : {"1", "12", "123"}) {
        Meßdiener.Telefon[2] = telefon;
        Warten();
    }
    Meßdiener.Telefon[3] = "9";
    Warten();
    const Text dritter = LetzterSchritt();
    SchrittZurücknehmen();
    EXPECT_NE(LetzterSchritt(), dritter);
    EXPECT_EQ(Meßdiener.Telefon[2], "123");
    SchrittZurücknehmen();
    EXPECT_TRUE(Bild() == vorher);

    Meßdiener.Telefon[2] = "1";
    Warten();
    ÄnderungAbschließen(); // the window was closed
    Meßdiener.Telefon[2] = "2";
    Warten();
    SchrittZurücknehmen();
    EXPECT_EQ(Meßdiener.Telefon[2], "1");
}

TEST_F(RückgängigTest, EinNeuerSchrittVergißtDieZurückgenommenen)
{
    MessenBesetzen();
    Warten();
    SchrittZurücknehmen();
    Gruppe.Bezeichnung[0] = "Größere";
    Warten();
    EXPECT_EQ(NächsterSchritt(), "");
    EXPECT_EQ(SchrittWiederholen(), "");
    EXPECT_EQ(SchrittZurücknehmen(), "Gruppe Große umbenennen");
}

/// Leafing through records and saving leave what was taken back to be repeated.
TEST_F(RückgängigTest, BlätternUndSpeichernSindKeineÄnderung)
{
    MessenBesetzen();
    Warten();
    const Tabellenbild besetzt = Bild();
    SchrittZurücknehmen();
    Meßdiener.Cursor = 7;
    Standardmesse.Anzahl = 2;
    Etikett.Anzahl = 4;
    AufFestplatteSpeichern();
    Warten();
    EXPECT_EQ(LetzterSchritt(), "");
    EXPECT_EQ(SchrittWiederholen(), "(3) Messen mit Meßdiener besetzen");
    EXPECT_TRUE(Bild() == besetzt);
}

/// The list of masses may fill the weekday up with blanks when it shows a mass.
TEST_F(RückgängigTest, LeerzeichenNachDemWochentagSindKeineÄnderung)
{
    MessenBesetzen();
    Warten();
    const Text tag = Messe.Wochentag[0];
    Messe.Wochentag[0] += "   ";
    Messe.Wochentag[1] += "  ";
    Warten();
    EXPECT_EQ(LetzterSchritt(), "(3) Messen mit Meßdiener besetzen");
    Messe.Wochentag[0] = "Heiligabend";
    Warten();
    EXPECT_EQ(SchrittZurücknehmen(), "Messe " + Messenzeile(0) + " ändern");
    EXPECT_EQ(Messe.Wochentag[0], tag + "   ");
    EXPECT_EQ(LetzterSchritt(), "(3) Messen mit Meßdiener besetzen");
}

/// The services are worked out whenever a dialog that shows them opens.
TEST_F(RückgängigTest, WasVorJedemGebrauchNeuBerechnetWirdIstVonHandKeineÄnderung)
{
    MessenBesetzen();
    Warten();
    SchrittZurücknehmen();
    Messe.DienerDienst[0][0] = "Leuchter";
    MesseDienerFest.Index[0] = 3;
    Warten();
    EXPECT_EQ(LetzterSchritt(), "");
    EXPECT_EQ(NächsterSchritt(), "(3) Messen mit Meßdiener besetzen");
    Schritt("Dienste richtig setzen", [] { Messe.DienerDienst[0][0] = "Allgemein"; });
    EXPECT_EQ(SchrittZurücknehmen(), "Dienste richtig setzen");
    EXPECT_EQ(Messe.DienerDienst[0][0], "Leuchter");
}

TEST_F(RückgängigTest, WerInzwischenWeiterblättertBleibtWoErIst)
{
    Messe.Cursor = 1;
    Meßdiener.Cursor = 2;
    Warten();
    MessenBesetzen();
    Warten();
    Messe.Cursor = 4;
    Warten();
    SchrittZurücknehmen();
    EXPECT_EQ(Messe.Cursor, 4);
    EXPECT_EQ(Meßdiener.Cursor, 2);
}

TEST_F(RückgängigTest, WoherEinSchrittDenBenutzerGeholtHatDahinKommtErZurück)
{
    Messe.Cursor = 3;
    Warten();
    Schritt("weniger", [] {
        Messe.Anzahl = 2;
        Messe.Cursor = 0;
    });
    Warten();
    Messe.Cursor = 1;
    SchrittZurücknehmen();
    EXPECT_EQ(Messe.Cursor, 3);
    Messe.Cursor = 5;
    SchrittWiederholen();
    EXPECT_EQ(Messe.Cursor, 0);
}

TEST_F(RückgängigTest, NiemandStehtAufEinemDatensatzDenEsNichtMehrGibt)
{
    Messe.Cursor = 2;
    Warten();
    Schritt("mehr", [] { Messe.Anzahl = 40; });
    Warten();
    Messe.Cursor = 38;
    SchrittZurücknehmen();
    EXPECT_EQ(Messe.Cursor, 2);
}

TEST_F(RückgängigTest, ZurücknehmenRührtDieDateienNichtAn)
{
    const std::string messen = DateiLesen(Festplatte / "Messen.dat");
    int zugriffe = 0;
    Laufwerke.Schreiben = [&](const std::filesystem::path &, std::string_view) { ++zugriffe; };
    Laufwerke.Lesen = [&](const std::filesystem::path &) -> std::string {
        ++zugriffe;
        return {};
    };
    MessenBesetzen();
    Warten();
    SchrittZurücknehmen();
    SchrittWiederholen();
    EXPECT_EQ(zugriffe, 0);
    EXPECT_EQ(DateiLesen(Festplatte / "Messen.dat"), messen);
}

TEST_F(RückgängigTest, LadenIstEinSchritt)
{
    Meßdiener.Nachname[0] = "Zuletzt";
    Konfig.StartDatum += 3;
    Warten();
    const Tabellenbild vorher = Bild();
    Schritt("Daten von der Festplatte laden", VonFestplatteLaden);
    Warten();
    ASSERT_FALSE(Bild() == vorher);
    EXPECT_EQ(SchrittZurücknehmen(), "Daten von der Festplatte laden");
    EXPECT_TRUE(Bild() == vorher);
}

TEST_F(RückgängigTest, OhneBeginnWirdNurGehandelt)
{
    SchritteBeenden();
    MeßdienerSortieren();
    TabellenBeobachten();
    EXPECT_EQ(Meßdiener.Nachname[0], "Nach0");
    EXPECT_EQ(LetzterSchritt(), "");
    EXPECT_EQ(SchrittZurücknehmen(), "");
    EXPECT_EQ(SchrittWiederholen(), "");
}

TEST_F(RückgängigTest, HundertSchritteBleibenImGedächtnis)
{
    for (int k = 0; k < 130; ++k) {
        Schritt("Nr " + std::to_string(k), [k] { Konfig.Gemeinde = std::to_string(k); });
        Warten();
    }
    for (int k = 129; k >= 30; --k)
        ASSERT_EQ(SchrittZurücknehmen(), "Nr " + std::to_string(k));
    EXPECT_EQ(LetzterSchritt(), "");
    EXPECT_EQ(Konfig.Gemeinde, "29");
}

TEST_F(RückgängigTest, WennDerPlatzNichtReichtBleibenZwanzig)
{
    for (int k = 0; k < 40; ++k) {
        Schritt("Nr " + std::to_string(k), [k] {
            Konfig.Gemeinde = std::string(std::size_t{3} * 1024 * 1024, 'x') + std::to_string(k);
        });
        Warten();
    }
    for (int k = 39; k >= 20; --k)
        ASSERT_EQ(SchrittZurücknehmen(), "Nr " + std::to_string(k));
    EXPECT_EQ(LetzterSchritt(), "");
}

TEST_F(RückgängigTest, WerWeißDaßSichNichtsGerührtHatSchautNichtNach)
{
    int fragen = 0;
    TabellenUnberührt = [&] {
        ++fragen;
        return true;
    };
    MeßdienerSortieren();
    EXPECT_EQ(fragen, 1);
    EXPECT_TRUE(SchrittAusstehend());
    MessenBesetzen(); // the first one is not known yet, whoever knows what
    Warten();
    TabellenUnberührt = [] { return false; };
    EXPECT_FALSE(SchrittAusstehend());
    EXPECT_EQ(SchrittZurücknehmen(), "(3) Messen mit Meßdiener besetzen");
    EXPECT_EQ(SchrittZurücknehmen(), "Meßdiener nach Nachname sortieren");
}

TEST_F(RückgängigTest, SagtWennEinAndererSchrittAnDerReiheIst)
{
    std::vector<Text> namen;
    SchritteGeändert = [&] { namen.push_back(LetzterSchritt() + "|" + NächsterSchritt()); };
    MeßdienerSortieren();
    Warten();
    EXPECT_EQ(namen.back(), "Meßdiener nach Nachname sortieren|");
    SchrittZurücknehmen();
    EXPECT_EQ(namen.back(), "|Meßdiener nach Nachname sortieren");
    SchrittWiederholen();
    EXPECT_EQ(namen.back(), "Meßdiener nach Nachname sortieren|");
    SchritteBeenden();
    EXPECT_EQ(namen.back(), "|");
    SchritteGeändert = [] {};
}

} // namespace
} // namespace altardienst
