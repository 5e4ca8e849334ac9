// What is found by what somebody types: persons wherever their name stands, masses by date and
// kind.
#include "Prüfstand.h"
#include "core/Plätze.h"
#include "search/Suche.h"

#include <map>

namespace altardienst {
namespace {

using Zeilen = std::vector<Text>;
using Funde = std::map<Text, Zeilen>;

/// The lines found, by the title of their group.
Funde Gefunden(std::string_view getippt)
{
    Funde funde;
    for (const Treffergruppe &gruppe : Suchen(getippt))
        for (const Fund &treffer : gruppe.Zeilen)
            funde[gruppe.Titel].push_back(treffer.Zeile);
    return funde;
}

class Suche : public Prüfstand {
  protected:
    Suche()
    {
        Meßdiener.Gruppe[MeßdienerAnlegen("Johanna", "Berg")] = "Rot";
        MeßdienerAnlegen("Anna", "Adler");
        HelferAnlegen("Anna", "Adler", "Lektor");
        Anlegen({2026, 12, 8}, 18, 30, "Vorabendmesse");
        Anlegen({2026, 12, 28}, 10, 0, "Hochamt");
        Anlegen({2027, 12, 8}, 10, 0, "Hochamt");
        Anlegen({2026, 11, 30}, 18, 0, "Andacht");
    }

    static void Anlegen(Kalendertag tag, int stunde, int minute, const char *art)
    {
        const int i = MesseMitDienern(DatumAus(tag), 4, ZeitAus(stunde * 3600 + minute * 60));
        Messe.Messeart[i] = art;
    }

    static void Einteilen(int messe, int slot)
    {
        Messe.DienerVor[messe][slot] = "Anna";
        Messe.DienerNach[messe][slot] = "Adler";
    }

    const Text M0 = "Di 08.12.2026 18:30 Vorabendmesse";
    const Text M1 = "Mo 28.12.2026 10:00 Hochamt";
    const Text M2 = "Mi 08.12.2027 10:00 Hochamt";
};

TEST_F(Suche, FindetPersonenAnTeilenIhrerNamen)
{
    const Funde anna = {{"Meßdiener", {"Adler, Anna"}}, {"Helfer", {"Adler, Anna · Lektor"}}};
    for (const char *getippt : {"adler", "ADL", "anna adler", "Adler, Anna", "Adler,Anna", "dler"})
        EXPECT_EQ(Gefunden(getippt), anna) << getippt;
    EXPECT_EQ(Gefunden("berg"), (Funde{{"Meßdiener", {"Berg, Johanna · Rot"}}}));
    EXPECT_EQ(Gefunden("anna zoller"), Funde{});
}

TEST_F(Suche, WessenNameSoBeginntStehtZuerst)
{
    EXPECT_EQ(Gefunden("ann")["Meßdiener"], (Zeilen{"Adler, Anna", "Berg, Johanna · Rot"}));
    EXPECT_EQ(Gefunden("nna")["Meßdiener"], (Zeilen{"Berg, Johanna · Rot", "Adler, Anna"}))
        << "otherwise in the order of the records";
}

TEST_F(Suche, WenigerAlsZweiZeichenFindenNichts)
{
    for (const char *getippt : {"", " ", "a", " a ", "ä", ","})
        EXPECT_EQ(Gefunden(getippt), Funde{}) << getippt;
    EXPECT_FALSE(Gefunden("ad").empty());
}

TEST_F(Suche, FindetDenDienstEinerPersonMitMesseUndPlatz)
{
    Messe.Leuchter[1] = 2;
    Einteilen(1, 2);
    Einteilen(1, 3);
    EXPECT_EQ(Gefunden("adler")["Dienste in Messen"],
              (Zeilen{M1 + " · Leuchter · Adler, Anna", M1 + " · Meßdiener 3 · Adler, Anna"}));
    const auto gruppen = Suchen("adler");
    const Fund &erster = gruppen[2].Zeilen[0];
    EXPECT_EQ(erster.Wo, Fundort::Meßdienerplatz);
    EXPECT_EQ(erster.Satz, 1);
    EXPECT_EQ(erster.Platz, 2);
}

TEST_F(Suche, EinPlatzDenDieMesseNichtMehrWillZähltNicht)
{
    Einteilen(1, 4);
    Einteilen(1, 5);
    EXPECT_EQ(Gefunden("adler")["Dienste in Messen"].size(), 1U) << "of four places";
    Messe.Dienerzahl[1] = 30; // no more than there are slots
    EXPECT_EQ(Gefunden("adler")["Dienste in Messen"].size(), 2U);
}

TEST_F(Suche, FindetHelferInDenPlätzenDieNötigSind)
{
    Messe.Lektor2Vor[2] = "Zita";
    Messe.Lektor2Nach[2] = "Zoller";
    Messe.LektorZahl[2] = 1;
    EXPECT_EQ(Gefunden("zoller"), Funde{});
    Messe.LektorZahl[2] = 2;
    EXPECT_EQ(Gefunden("zoller"),
              (Funde{{"Dienste in Messen", {M2 + " · Lektor 2 · Zoller, Zita"}}}));
    const auto gruppen = Suchen("zoller");
    EXPECT_EQ(gruppen[0].Zeilen[0].Wo, Fundort::Helferplatz);
    EXPECT_EQ(&Helferplätze[static_cast<std::size_t>(gruppen[0].Zeilen[0].Platz)].Art, &Lektor);
    EXPECT_EQ(gruppen[0].Zeilen[0].Platz, 1);
}

TEST_F(Suche, FindetFesteZuordnungenUndWünsche)
{
    MesseDienerFest.Datum[1] = DatumAus({2026, 12, 8});
    MesseDienerFest.Uhrzeit[1] = ZeitAus(18 * 3600 + 30 * 60);
    MesseDienerFest.Vorname[1][3] = Meßdiener.WunschVorname[0] = "Zita";
    MesseDienerFest.Nachname[1][3] = Meßdiener.WunschNachname[0] = "Zoller";
    MesseDienerFest.Anzahl = 1; // the entry lies past the last one
    const Zeilen wunsch = {"Berg, Johanna wünscht sich Zoller, Zita"};
    EXPECT_EQ(Gefunden("zoller"), (Funde{{"Wunschpartner", wunsch}}));
    MesseDienerFest.Anzahl = 2;
    EXPECT_EQ(Gefunden("zoller"),
              (Funde{{"Wunschpartner", wunsch},
                     {"Feste Zuordnungen", {"Di 08.12.2026 18:30 · Zoller, Zita"}}}));
    const auto gruppen = Suchen("zoller");
    EXPECT_EQ(gruppen[0].Zeilen[0].Wo, Fundort::FesterEintrag);
    EXPECT_EQ(gruppen[0].Zeilen[0].Satz, 1);
    EXPECT_EQ(gruppen[0].Zeilen[0].Platz, 3);
    EXPECT_EQ(gruppen[1].Zeilen[0].Wo, Fundort::Wunschpartner);
    EXPECT_EQ(gruppen[1].Zeilen[0].Satz, 0);
}

TEST_F(Suche, VonEinerFestenZuordnungZählenDiePlätzeIhrerMesse)
{
    MesseDienerFest.Anzahl = 2;
    for (const int k : {0, 1})
        MesseDienerFest.Datum[k] = DatumAus({2026, 12, 8});
    MesseDienerFest.Uhrzeit[0] = ZeitAus(18 * 3600 + 30 * 60);
    MesseDienerFest.Uhrzeit[1] = ZeitAus(7 * 3600); // there is no such mass
    for (const int k : {0, 1})
        for (const int n : {4, 5}) {
            MesseDienerFest.Vorname[k][n] = "Zita";
            MesseDienerFest.Nachname[k][n] = "Zoller";
        }
    const auto gruppen = Suchen("zoller");
    ASSERT_EQ(gruppen.size(), 1U);
    ASSERT_EQ(gruppen[0].Zeilen.size(), 1U) << "of four places, and of none";
    EXPECT_EQ(gruppen[0].Zeilen[0].Satz, 0);
    EXPECT_EQ(gruppen[0].Zeilen[0].Platz, 4);
    Messe.Dienerzahl[0] = 30; // no more than there are slots
    EXPECT_EQ(Suchen("zoller")[0].Zeilen.size(), 2U);
}

TEST_F(Suche, MehrDatensätzeAlsEsGebenKannVerderbenDieSucheNicht)
{
    Meßdiener.Anzahl = Helfer.Anzahl = Messe.Anzahl = MesseDienerFest.Anzahl = 700;
    EXPECT_EQ(Gefunden("adler"),
              (Funde{{"Meßdiener", {"Adler, Anna"}}, {"Helfer", {"Adler, Anna · Lektor"}}}));
    EXPECT_EQ(Gefunden("hochamt"), (Funde{{"Messen", {M1, M2}}}));
    Meßdiener.Anzahl = Helfer.Anzahl = Messe.Anzahl = MesseDienerFest.Anzahl = -1;
    EXPECT_EQ(Gefunden("adler"), Funde{});
}

TEST_F(Suche, EinDatumFindetSeineMessenWieEsAuchGeschriebenWird)
{
    for (const char *getippt : {"8.12.2026", "08.12.2026", "8.12.26", "8/12/2026", "8-12-26",
                                "2026-12-08", "2026/12/8", "8. Dezember 2026", "8. dez 2026"})
        EXPECT_EQ(Gefunden(getippt), (Funde{{"Messen", {M0}}})) << getippt;
    for (const char *getippt :
         {"8.12.", "8.12", "08.12.", "8.12.2", "8.12.20", "8.12.202", "8. Dezember", "8."})
        EXPECT_EQ(Gefunden(getippt), (Funde{{"Messen", {M0, M2}}})) << getippt;
    for (const char *getippt : {"9.12.", "8.11.", "8.13.", "0.12.", "32.12.", "8.12.2026.",
                                "8.12/26", "8.12.20261", "8.0."})
        EXPECT_EQ(Gefunden(getippt), Funde{}) << getippt;
}

TEST_F(Suche, EineMesseIstAnWochentagStundeUndArtZuFinden)
{
    EXPECT_EQ(Gefunden("hochamt"), (Funde{{"Messen", {M1, M2}}}));
    EXPECT_EQ(Gefunden("mittwoch"), (Funde{{"Messen", {M2}}}));
    for (const char *getippt : {"18:30", "18.30", "18:30 Uhr", "abendm"})
        EXPECT_EQ(Gefunden(getippt), (Funde{{"Messen", {M0}}})) << getippt;
    EXPECT_EQ(Gefunden("hochamt 8.12."), (Funde{{"Messen", {M2}}}));
    EXPECT_EQ(Gefunden("dezember 2026"), (Funde{{"Messen", {M0, M1}}}));
}

TEST_F(Suche, EinUnmöglichesDatumStörtNicht)
{
    Messe.Datum[1] = 9e9;
    EXPECT_EQ(Gefunden("hochamt"), (Funde{{"Messen", {M2}}}));
}

TEST_F(Suche, VonVielenWerdenDieWeiterenGezählt)
{
    for (int i = 0; i < 60; ++i)
        HelferAnlegen("Zita", "Zoller " + std::to_string(i), "Lektor");
    const auto gruppen = Suchen("zoller");
    ASSERT_EQ(gruppen.size(), 1U);
    EXPECT_EQ(gruppen[0].Zeilen.size(), MeisteTreffer);
    EXPECT_EQ(gruppen[0].Weitere, 10);
    EXPECT_EQ(Suchen("zoller", {"Messen"})[0].Weitere, 10);
    EXPECT_EQ(Suchen("zoller", {"Helfer"})[0].Weitere, 0);
    EXPECT_EQ(Suchen("zoller", {"Helfer"})[0].Zeilen.size(), 60U);
    EXPECT_EQ(gruppen[0].Zeilen[0].Zeile, "Zoller 0, Zita · Lektor");
}

TEST_F(Suche, NurDatensätzeDieEsGibtZählen)
{
    Meßdiener.Anzahl = 1;
    Helfer.Anzahl = 0;
    Messe.Anzahl = 1;
    EXPECT_EQ(Gefunden("adler"), Funde{});
    EXPECT_EQ(Gefunden("hochamt"), Funde{});
}

} // namespace
} // namespace altardienst
