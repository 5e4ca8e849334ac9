// The slips: who has one, in which order, and how they lie on the sheet.
#include "exchange/Dienstzettel.h"

#include "exchange/Aushangstand.h"
#include "exchange/Zetteldruck.h"

#include <algorithm>

namespace altardienst {
namespace {

class DienstzettelTest : public Druckstand {
  protected:
    static std::vector<Text> Namen(const Zettelwahl &wahl)
    {
        std::vector<Text> namen;
        for (const Dienstzettel &zettel : DienstzettelVon(GemeinsameTabellen(), wahl))
            namen.push_back(zettel.Name);
        return namen;
    }

    /// A server with a service in each of so many masses.
    static int Dienend(const Text &vorname, const Text &nachname, int dienste)
    {
        for (int n = 0; n < dienste; ++n)
            Besetzen(Messe, Dienerplatznr(VolleMesse(1), 1), vorname, nachname);
        return MeßdienerAnlegen(vorname, nachname);
    }
};

using Liste = std::vector<Text>;

TEST_F(DienstzettelTest, DieDiensteEinesMenschenInDerFolgeDerZeit)
{
    const int spät = VolleMesse(2);
    const int früh = VolleMesse(1, "Wochendienst");
    Messe.Datum[spät] += 7;
    Messe.Leuchter[spät] = 1;
    Besetzen(Messe, Dienerplatznr(früh, 1), "Vor1", "Nach1");
    Messe.LektorZahl[spät] = 1;
    Besetzen(Messe, Helferplatznr(spät, 0), "Vor1", "Nach1");
    const auto zettel = DienstzettelVon(GemeinsameTabellen(), {});
    ASSERT_EQ(zettel.size(), 2U);
    ASSERT_EQ(zettel[0].Dienste.size(), 3U) << "server and helper is one person";
    EXPECT_EQ(zettel[0].Dienste[0].Termin.Tag, "ab Mo 23.11.");
    EXPECT_EQ(zettel[0].Dienste[1].Termin.Datum, "So 29.11.2026");
    EXPECT_EQ(zettel[0].Dienste[1].Dienst, "Leuchter");
    EXPECT_EQ(zettel[0].Dienste[2].Dienst, "Lektor");
}

TEST_F(DienstzettelTest, NurWerDientOderAlle)
{
    Dienend("Kim", "Adler", 1);
    MeßdienerAnlegen("Ben", "Busch");
    MeßdienerAnlegen("", "");
    HelferAnlegen("Maria", "Linde", "Lektor");
    EXPECT_EQ(Namen({}), Liste{"Kim Adler"});
    EXPECT_EQ(Namen({.AuchOhneDienst = true}), (Liste{"Kim Adler", "Ben Busch", "Maria Linde"}));
    EXPECT_EQ(Namen({.Helfer = false, .AuchOhneDienst = true}), (Liste{"Kim Adler", "Ben Busch"}));
    EXPECT_EQ(Namen({.Diener = false, .AuchOhneDienst = true}), Liste{"Maria Linde"});
}

TEST_F(DienstzettelTest, PlätzeÜberDerZahlZählenNicht)
{
    Dienend("Kim", "Adler", 1);
    Messe.Dienerzahl[0] = 0;
    EXPECT_EQ(Namen({}), Liste{});
}

TEST_F(DienstzettelTest, GeordnetWieImTelefonbuch)
{
    for (const char *name : {"Zobel", "Öhler", "Oben", "Adler", "ÄRGER", "Strauß", "Straub"})
        Dienend("Kim", name, 1);
    Dienend("Änne", "Adler", 1);
    EXPECT_EQ(Namen({}), (Liste{"Änne Adler", "Kim Adler", "Kim ÄRGER", "Kim Oben", "Kim Öhler",
                                "Kim Straub", "Kim Strauß", "Kim Zobel"}));
}

TEST_F(DienstzettelTest, BuchstabenMitZeichenStehenBeiIhremGrundbuchstaben)
{
    for (const auto &[buchstabe, grund] : std::vector<std::pair<Text, Text>>{{"ä", "a"},
                                                                             {"ö", "o"},
                                                                             {"ü", "u"},
                                                                             {"ß", "ss"},
                                                                             {"é", "e"},
                                                                             {"è", "e"},
                                                                             {"ê", "e"},
                                                                             {"á", "a"},
                                                                             {"à", "a"},
                                                                             {"ç", "c"},
                                                                             {"ó", "o"},
                                                                             {"ñ", "n"}}) {
        Meßdiener.Anzahl = 0;
        Messe.Anzahl = 0;
        Dienend("Kim", "X" + buchstabe + "b" + buchstabe, 1);
        Dienend("Kim", "X" + grund + "b" + grund + "x", 1);
        Dienend("Kim", "X" + grund + "a", 1);
        EXPECT_EQ(Namen({}), (Liste{"Kim X" + grund + "a", "Kim X" + buchstabe + "b" + buchstabe,
                                    "Kim X" + grund + "b" + grund + "x"}));
    }
}

/// A file may claim any number, and records that were deleted leave their names behind.
TEST_F(DienstzettelTest, WasNachDerAnzahlStehtHatKeinenZettel)
{
    const Zettelwahl alle{.AuchOhneDienst = true, .Ordnung = Zettelordnung::NachGruppe};
    Gruppe.Anzahl = 1;
    Gruppe.Bezeichnung[0] = "Große";
    Meßdiener.Gruppe[MeßdienerAnlegen("Kim", "Adler")] = "Große";
    Meßdiener.Vorname[1] = "Rest";
    Meßdiener.Gruppe[1] = "Große";
    Helfer.Vorname[0] = "Helferrest";
    Besetzen(Messe, Dienerplatznr(VolleMesse(1), 1), "Gruppe", "Große");
    EXPECT_EQ(Namen(alle), Liste{"Kim Adler"});
    Meßdiener.Anzahl = 30000;
    Helfer.Anzahl = 30000;
    Gruppe.Anzahl = 30000;
    EXPECT_EQ(Namen(alle), (Liste{"Rest", "Kim Adler", "Helferrest"}));
}

TEST_F(DienstzettelTest, EinNameGenügt)
{
    MeßdienerAnlegen("Kim", "");
    MeßdienerAnlegen("", "Adler");
    EXPECT_EQ(Namen({.AuchOhneDienst = true}), (Liste{"Kim", "Adler"}));
}

TEST_F(DienstzettelTest, OhneGruppeIstNichtInDerGruppeOhneNamen)
{
    Gruppe.Anzahl = 2;
    Gruppe.Bezeichnung[1] = "Große";
    Dienend("Kim", "Adler", 1);
    Meßdiener.Gruppe[Dienend("Ben", "Busch", 1)] = "Große";
    EXPECT_EQ(Namen({.Ordnung = Zettelordnung::NachGruppe}), (Liste{"Ben Busch", "Kim Adler"}));
}

TEST_F(DienstzettelTest, GeordnetNachGruppen)
{
    Gruppe.Anzahl = 2;
    Gruppe.Bezeichnung[0] = "Zwerge";
    Gruppe.Bezeichnung[1] = "Große";
    Dienend("Kim", "Adler", 1);
    Meßdiener.Gruppe[Dienend("Ben", "Busch", 1)] = "Große";
    Meßdiener.Gruppe[Dienend("Cem", "Zander", 1)] = "Zwerge";
    HelferAnlegen("Maria", "Abt", "Lektor");
    const Zettelwahl wahl{.AuchOhneDienst = true, .Ordnung = Zettelordnung::NachGruppe};
    EXPECT_EQ(Namen(wahl), (Liste{"Cem Zander", "Ben Busch", "Kim Adler", "Maria Abt"}));
    const auto zettel = DienstzettelVon(GemeinsameTabellen(), wahl);
    EXPECT_EQ(zettel[0].Gruppe, "Zwerge");
    EXPECT_EQ(zettel[2].Gruppe, "");
    EXPECT_EQ(zettel[3].Gruppe, "Helfer");
}

TEST_F(DienstzettelTest, DerPlatzEinerGruppeStehtBeiAllenDieZuIhrGehören)
{
    Gruppe.Anzahl = 2;
    Gruppe.Bezeichnung[0] = "Große";
    Gruppe.Bezeichnung[1] = "Leere";
    Meßdiener.Gruppe[Dienend("Kim", "Adler", 1)] = "Große";
    Meßdiener.Gruppe[MeßdienerAnlegen("Ben", "Busch")] = "Große";
    const int i = VolleMesse(2);
    Besetzen(Messe, Dienerplatznr(i, 1), "Gruppe", "Große");
    Besetzen(Messe, Dienerplatznr(i, 2), "Gruppe", "Leere");
    EXPECT_EQ(Namen({}), (Liste{"Kim Adler", "Ben Busch", "Gruppe Leere"}));
    EXPECT_EQ(DienstzettelVon(GemeinsameTabellen(), {})[0].Dienste.size(), 2U);
}

TEST_F(DienstzettelTest, MehrerePlätzeEinerGruppeInEinerMesseSindEinDienst)
{
    Gruppe.Anzahl = 1;
    Gruppe.Bezeichnung[0] = "Große";
    Meßdiener.Gruppe[MeßdienerAnlegen("Kim", "Adler")] = "Große";
    Meßdiener.Gruppe[MeßdienerAnlegen("Kim", "Adler")] = "Große";
    const int i = VolleMesse(3);
    Messe.Leuchter[i] = 1;
    for (const int slot : {1, 2, 3})
        Besetzen(Messe, Dienerplatznr(i, slot), "Gruppe", "Große");
    const auto zettel = DienstzettelVon(GemeinsameTabellen(), {});
    ASSERT_EQ(zettel.size(), 1U);
    ASSERT_EQ(zettel[0].Dienste.size(), 2U);
    EXPECT_EQ(zettel[0].Dienste[0].Dienst, "Leuchter");
    EXPECT_EQ(zettel[0].Dienste[1].Dienst, "Allgemein");
}

TEST_F(DienstzettelTest, EineMesseOhneDatumStehtZuletztUndMitFragezeichen)
{
    Dienend("Kim", "Adler", 2);
    Messe.Datum[0] = 0;
    Messe.Uhrzeit[0] = 0;
    EXPECT_EQ(
        ZettelAlsText(DienstzettelVon(GemeinsameTabellen(), {}), Zettelzeile(GemeinsameTabellen())),
        "Kim Adler\n"
        "Altardienst, 23.11.2026\n"
        "Mo 23.11.2026, 10:00 Uhr, Hochamt: Allgemein\n"
        "?, Hochamt: Allgemein\n");
}

TEST_F(DienstzettelTest, AlsText)
{
    Meßdiener.Gruppe[Dienend("Kim", "Adler", 2)] = "Große";
    Messe.Messeart[1] = "Wochendienst";
    MeßdienerAnlegen("Ben", "Busch");
    EXPECT_EQ(ZettelAlsText(DienstzettelVon(GemeinsameTabellen(), {.AuchOhneDienst = true}),
                            Zettelzeile(GemeinsameTabellen())),
              "Kim Adler (Große)\n"
              "Altardienst, 22.11.2026 bis 23.11.2026\n"
              "So 22.11.2026, 10:00 Uhr, Hochamt: Allgemein\n"
              "ab Mo 23.11.2026, Wochendienst: Allgemein\n"
              "\n"
              "Ben Busch\n"
              "Altardienst, 22.11.2026 bis 23.11.2026\n"
              "kein Dienst in diesem Plan\n");
}

/// Where something was printed: page and column from 0, and how far down.
struct Stelle {
    int Seite = 0;
    int Spalte = 0;
    double Y = 0;
    Text Inhalt;
};

class ZetteldruckTest : public DienstzettelTest {
  protected:
    std::vector<Stelle> Drucken(const Zettelwahl &wahl = {})
    {
        ZettelDrucken(DienstzettelVon(GemeinsameTabellen(), wahl), "Altardienst");
        std::vector<Stelle> stellen;
        Stelle hier;
        for (const Text &zeile : Papier.Zeilen) {
            if (zeile == "NewPage")
                ++hier.Seite;
            if (zeile.starts_with("CurrentX "))
                hier.Spalte = std::stod(zeile.substr(9)) > 5953 ? 1 : 0;
            if (zeile.starts_with("CurrentY "))
                hier.Y = std::stod(zeile.substr(9));
            if (zeile.starts_with("Print \"")) {
                hier.Inhalt = zeile.substr(7, zeile.size() - 8);
                stellen.push_back(hier);
            }
        }
        return stellen;
    }
};

/// To the last stroke: a name in bold, small type below it, days and times below each other, and
/// where to cut.
TEST_F(ZetteldruckTest, DasGanzeBlatt)
{
    Meßdiener.Gruppe[Dienend("Kim", "Adler", 2)] = "Große";
    Messe.Messeart[1] = "Wochendienst";
    MeßdienerAnlegen("Ben", "Busch");
    ZettelDrucken(DienstzettelVon(GemeinsameTabellen(), {.AuchOhneDienst = true}), "Altardienst");
    EXPECT_EQ(
        Blatt(Papier),
        (Liste{"737 737, 12 Bold: \"Kim Adler\"", "737 1025, 8: \"Altardienst, Große\"",
               "737 1267, 10: \"So 22.11.\"", "2137 1267, 10: \"10:00\"",
               "2837 1267, 10: \"Hochamt: Allgemein\"", "737 1507, 10: \"ab Mo 23.11.\"",
               "2837 1507, 10: \"Wochendienst: Allgemein\"", "Line 567 1917 5953 1917 gestrichelt",
               "737 2087, 12 Bold: \"Ben Busch\"", "737 2375, 8: \"Altardienst\"",
               "737 2617, 10: \"kein Dienst in diesem Plan\"",
               "Line 567 3027 5953 3027 gestrichelt", "Line 5953 567 5953 16271 gestrichelt"}));
}

TEST_F(ZetteldruckTest, ErstDieZweiteSpalteDannDasNächsteBlatt)
{
    for (int i = 0; i < 40; ++i)
        Dienend("Kim", "Nr" + std::to_string(i), 1);
    std::vector<std::pair<int, int>> folge;
    for (const Stelle &stelle : Drucken())
        if (folge.empty() || folge.back() != std::pair(stelle.Seite, stelle.Spalte))
            if (stelle.Inhalt.starts_with("Kim")) // a name stands at the left of its slip
                folge.emplace_back(stelle.Seite, stelle.Spalte);
    EXPECT_EQ(folge, (std::vector<std::pair<int, int>>{{0, 0}, {0, 1}, {1, 0}}));
}

TEST_F(ZetteldruckTest, NameKopfzeileUndDienste)
{
    Meßdiener.Gruppe[Dienend("Kim", "Adler", 1)] = "Große";
    const auto stellen = Drucken();
    Liste texte;
    for (const Stelle &stelle : stellen)
        texte.push_back(stelle.Inhalt);
    EXPECT_EQ(texte, (Liste{"Kim Adler", "Altardienst, Große", "So 22.11.", "10:00",
                            "Hochamt: Allgemein"}));
    EXPECT_EQ(Papier.Anfrage.Name, "Dienstzettel");
    EXPECT_EQ(Papier.WieOft("Orientation 2"), 0);
    EXPECT_EQ(Papier.Zeilen.back(), "EndDoc");
}

TEST_F(ZetteldruckTest, KeinZettelGehtÜberZweiSpalten)
{
    for (int j = 0; j < 40; ++j)
        Dienend("Kim", "Nr" + std::to_string(100 + j), 1 + j % 7);
    int seite = 0;
    int spalte = 0;
    bool drittes = false;
    for (const Stelle &stelle : Drucken()) {
        EXPECT_LT(stelle.Y, 16838 - 567);
        if (!stelle.Inhalt.starts_with("Kim ")) {
            EXPECT_EQ(stelle.Seite, seite) << stelle.Inhalt;
            EXPECT_EQ(stelle.Spalte, spalte) << stelle.Inhalt;
        }
        seite = stelle.Seite;
        spalte = stelle.Spalte;
        drittes = drittes || seite > 0;
        EXPECT_EQ(stelle.Inhalt.find("Fortsetzung"), Text::npos);
    }
    EXPECT_TRUE(drittes) << "more than one sheet";
    const auto senkrechte = std::ranges::count_if(Papier.Zeilen, [](const Text &zeile) {
        return zeile.starts_with("Line 5953 567 5953 ") && zeile.ends_with(" gestrichelt");
    });
    EXPECT_EQ(senkrechte, Papier.WieOft("NewPage") + 1) << "each sheet is cut down the middle";
}

TEST_F(ZetteldruckTest, EinZettelLängerAlsEineSpalteGehtUnterSeinemNamenWeiter)
{
    Dienend("Kim", "Adler", 100);
    Dienend("Ben", "Busch", 1);
    const auto stellen = Drucken();
    int fortsetzungen = 0;
    int dienste = 0;
    for (const Stelle &stelle : stellen) {
        EXPECT_LT(stelle.Y, 16838 - 567);
        fortsetzungen += stelle.Inhalt == "Kim Adler (Fortsetzung)" ? 1 : 0;
        dienste += stelle.Inhalt == "Hochamt: Allgemein" ? 1 : 0;
    }
    EXPECT_EQ(fortsetzungen, 1);
    EXPECT_EQ(dienste, 101);
}

TEST_F(ZetteldruckTest, EinLangerTextBrichtUmUndBleibtGanz)
{
    Dienend("Kim", "Adler", 1);
    Messe.Messeart[0] = "Hochamt mit Taufe und anschließender Prozession durch die ganze Gemeinde";
    Text ganz;
    for (const Stelle &stelle : Drucken()) {
        EXPECT_LE(Länge(stelle.Inhalt), 50);
        ganz += stelle.Inhalt + " ";
    }
    EXPECT_NE(ganz.find("Hochamt mit Taufe und anschließender Prozession durch die ganze Gemeinde: "
                        "Allgemein"),
              Text::npos)
        << ganz;
}

TEST_F(ZetteldruckTest, OhneZettelKeinBlatt)
{
    EXPECT_TRUE(Drucken().empty());
    EXPECT_EQ(Papier.Zeilen.back(), "EndDoc");
}

} // namespace
} // namespace altardienst
