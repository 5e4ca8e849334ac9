// Who gets a mail, and the link that opens it.
#include "exchange/Rundbrief.h"

#include "exchange/Adressaten.h"
#include "exchange/Aushangstand.h"

#include <cstdio>

namespace altardienst {
namespace {

using Liste = std::vector<Text>;

class RundbriefTest : public Prüfstand {
  protected:
    static void Anlegen(const Text &vorname, const Text &nachname, const Text &adresse,
                        const Text &gruppe = "")
    {
        const int j = MeßdienerAnlegen(vorname, nachname);
        Meßdiener.EMail[j] = adresse;
        Meßdiener.Gruppe[j] = gruppe;
    }

    static Adressaten Suchen(const Adressatenwahl &wahl)
    {
        return AdressatenSuchen(GemeinsameTabellen(), wahl);
    }
};

TEST_F(RundbriefTest, AlleJedeAdresseEinmal)
{
    Anlegen("Anna", "Adler", "familie@adler.de");
    Anlegen("Ben", "Adler", "Familie@Adler.de; ben@adler.de");
    Helfer.EMail[HelferAnlegen("Maria", "Linde", "Lektor")] = " maria@linde.de,ben@adler.de ";
    EXPECT_EQ(Suchen({}).Adressen, (Liste{"familie@adler.de", "ben@adler.de", "maria@linde.de"}));
    EXPECT_EQ(Suchen({.Diener = false}).Adressen, (Liste{"maria@linde.de", "ben@adler.de"}));
    EXPECT_EQ(Suchen({.Helfer = false}).Adressen, (Liste{"familie@adler.de", "ben@adler.de"}));
    EXPECT_TRUE(Suchen({}).Ohne.empty());
}

TEST_F(RundbriefTest, WerKeineOderKeineLesbareHatWirdGenannt)
{
    Anlegen("Anna", "Adler", " ");
    Anlegen("Ben", "Busch", "ben(at)busch.de");
    Anlegen("Cem", "Cetin", "cem@cetin.de, hat noch keine");
    Anlegen("", "", "niemand@x.de");
    const Adressaten gefunden = Suchen({});
    EXPECT_EQ(gefunden.Adressen, Liste{"cem@cetin.de"});
    EXPECT_EQ(gefunden.Ohne, Liste{"Adler, Anna"});
    EXPECT_EQ(gefunden.Unlesbar, (Liste{"Busch, Ben: ben(at)busch.de", "Cetin, Cem: hat",
                                        "Cetin, Cem: noch", "Cetin, Cem: keine"}));
}

/// Whatever stands in a subject or an address, the link has nothing in it that a program could read
/// otherwise.
TEST_F(RundbriefTest, NurHarmloseZeichenStehenImVerweisWieSieSind)
{
    const Text harmlose = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-._~";
    for (int byte = 1; byte < 256; ++byte) {
        const Text zeichen(1, static_cast<char>(byte));
        char nummer[8];
        std::snprintf(nummer, sizeof nummer, "%%%02X", static_cast<unsigned>(byte));
        const Text erwartet = harmlose.find(zeichen) != Text::npos ? zeichen
                              : byte == '\n'                       ? "%0D%0A"
                                                                   : nummer;
        EXPECT_EQ(MailVerweis({{}, zeichen, ""}), "mailto:?subject=" + erwartet) << byte;
        EXPECT_EQ(MailVerweis({{zeichen}, "", ""}),
                  "mailto:?bcc=" + (byte == '@' ? zeichen : erwartet))
            << byte;
    }
}

TEST_F(RundbriefTest, EineGruppe)
{
    Anlegen("Anna", "Adler", "a@x.de", "Große");
    Anlegen("Ben", "Busch", "b@x.de", "Kleine");
    Helfer.EMail[HelferAnlegen("Maria", "Linde", "Lektor")] = "m@x.de";
    EXPECT_EQ(Suchen({.Kreis = Adressatenkreis::Gruppe, .Gruppe = "Große"}).Adressen,
              Liste{"a@x.de"});
    EXPECT_TRUE(Suchen({.Kreis = Adressatenkreis::Gruppe, .Gruppe = ""}).Adressen.empty());
}

TEST_F(RundbriefTest, WerInDerMesseDient)
{
    Gruppe.Anzahl = 1;
    Gruppe.Bezeichnung[0] = "Große";
    Anlegen("Anna", "Adler", "a@x.de");
    Anlegen("Ben", "Busch", "b@x.de", "Große");
    Anlegen("Cem", "Cetin", "c@x.de");
    Helfer.EMail[HelferAnlegen("Maria", "Linde", "Lektor")] = "m@x.de";
    VolleMesse(0);
    const int i = VolleMesse(4);
    Messe.LektorZahl[i] = 1;
    Besetzen(Messe, Dienerplatznr(i, 1), "Anna", "Adler");
    Besetzen(Messe, Dienerplatznr(i, 2), "Gruppe", "Große");
    Besetzen(Messe, Dienerplatznr(i, 3), "Fritz", "Fremd");
    Leeren(Messe, Dienerplatznr(i, 4));
    Besetzen(Messe, Dienerplatznr(i, 5), "Cem", "Cetin"); // beyond the count
    Besetzen(Messe, Helferplatznr(i, 0), "Maria", "Linde");
    Adressatenwahl wahl{.Kreis = Adressatenkreis::Messe, .Messe = i};
    EXPECT_EQ(Suchen(wahl).Adressen, (Liste{"a@x.de", "b@x.de", "m@x.de"}));
    EXPECT_EQ(Suchen(wahl).Ohne, Liste{"Fremd, Fritz"});
    wahl.Diener = false;
    EXPECT_EQ(Suchen(wahl).Adressen, Liste{"m@x.de"});
}

/// Nobody gets a mail for having half the name of another.
TEST_F(RundbriefTest, InDerMesseZähltDerGanzeName)
{
    Anlegen("Anna", "Adler", "a@x.de");
    Anlegen("Berta", "Adler", "b@x.de");
    Anlegen("Anna", "Cetin", "c@x.de");
    const int i = VolleMesse(1);
    Besetzen(Messe, Dienerplatznr(i, 1), "Anna", "Adler");
    EXPECT_EQ(Suchen({.Kreis = Adressatenkreis::Messe, .Messe = i}).Adressen, Liste{"a@x.de"});
}

/// A file may claim any number, and records that were deleted leave their addresses behind.
TEST_F(RundbriefTest, WasNachDerAnzahlStehtBekommtNichts)
{
    Anlegen("Anna", "Adler", "a@x.de", "Große");
    Meßdiener.Vorname[1] = "Rest";
    Meßdiener.EMail[1] = "rest@x.de";
    Meßdiener.Gruppe[1] = "Große";
    Helfer.Vorname[0] = "Rest";
    Helfer.EMail[0] = "helferrest@x.de";
    Gruppe.Anzahl = 1;
    Gruppe.Bezeichnung[0] = "Große";
    const int i = VolleMesse(2);
    Besetzen(Messe, Dienerplatznr(i, 1), "Gruppe", "Große");
    Besetzen(Messe, Dienerplatznr(i, 2), "Rest", "");
    const Adressatenwahl alle;
    const Adressatenwahl gruppe{.Kreis = Adressatenkreis::Gruppe, .Gruppe = "Große"};
    const Adressatenwahl messe{.Kreis = Adressatenkreis::Messe, .Messe = i};
    for (const Adressatenwahl &wahl : {alle, gruppe, messe})
        EXPECT_EQ(Suchen(wahl).Adressen, Liste{"a@x.de"});
    Meßdiener.Anzahl = Helfer.Anzahl = 30000;
    EXPECT_EQ(Suchen(alle).Adressen, (Liste{"a@x.de", "rest@x.de", "helferrest@x.de"}));
    EXPECT_EQ(Suchen(gruppe).Adressen, (Liste{"a@x.de", "rest@x.de"}));
    EXPECT_EQ(Suchen(messe).Adressen, (Liste{"a@x.de", "rest@x.de"}));
    Meßdiener.Anzahl = Helfer.Anzahl = -5;
    EXPECT_TRUE(Suchen(alle).Adressen.empty());
}

TEST_F(RundbriefTest, WasEineAdresseIst)
{
    for (const char *adresse : {"a@b.de", "anna.adler+plan@st-ägid.example.org", "a_b-c@d.e.f"})
        EXPECT_TRUE(IstAdresse(adresse)) << adresse;
    for (const char *keine :
         {"", "a", "a@", "@b.de", "a@b", "a@b@c.de", "a@.de", "a@b.", "a..b@c.de", ".a@c.de",
          "a b@c.de", "a@b.de>", "mailto:a@b.de", "a@b,de"})
        EXPECT_FALSE(IstAdresse(keine)) << keine;
}

TEST_F(RundbriefTest, DerVerweis)
{
    EXPECT_EQ(MailVerweis({{"a@x.de", "b+c@y.de"}, "Plan für Mai & Juni?", "Grüße,\n100 % \"da\""}),
              "mailto:?bcc=a@x.de,b%2Bc@y.de&subject=Plan%20f%C3%BCr%20Mai%20%26%20Juni%3F"
              "&body=Gr%C3%BC%C3%9Fe%2C%0D%0A100%20%25%20%22da%22");
    EXPECT_EQ(MailVerweis({{"a@bücher.de"}, "", ""}), "mailto:?bcc=a@b%C3%BCcher.de");
    EXPECT_EQ(MailVerweis({{}, "x", ""}), "mailto:?subject=x");
    EXPECT_EQ(MailVerweis({{}, "", ""}), "mailto:");
}

TEST_F(RundbriefTest, WasNichtInDenVerweisPasst)
{
    const Text lang(LängsterVerweis, 'x');
    Rundbrief brief{{"a@x.de"}, "Plan", "kurz"};
    EXPECT_TRUE(WegDes(brief).MitAdressen && WegDes(brief).MitInhalt);
    EXPECT_EQ(WegDes(brief).Verweis, MailVerweis(brief));

    brief.Inhalt = lang;
    EXPECT_TRUE(WegDes(brief).MitAdressen);
    EXPECT_FALSE(WegDes(brief).MitInhalt);
    EXPECT_EQ(WegDes(brief).Verweis, "mailto:?bcc=a@x.de&subject=Plan");

    brief.Adressen = {lang + "@x.de"};
    EXPECT_FALSE(WegDes(brief).MitAdressen || WegDes(brief).MitInhalt);
    EXPECT_EQ(WegDes(brief).Verweis, "mailto:?subject=Plan");

    brief.Inhalt = "kurz";
    EXPECT_FALSE(WegDes(brief).MitAdressen);
    EXPECT_TRUE(WegDes(brief).MitInhalt);

    brief.Betreff = lang;
    EXPECT_EQ(WegDes(brief).Verweis, "mailto:");
    EXPECT_FALSE(WegDes(brief).MitAdressen || WegDes(brief).MitInhalt);
}

TEST_F(RundbriefTest, DieGrenzeGiltGenau)
{
    const std::size_t rest = LängsterVerweis - Text("mailto:?body=").size();
    EXPECT_TRUE(WegDes({{}, "", Text(rest, 'x')}).MitInhalt);
    EXPECT_FALSE(WegDes({{}, "", Text(rest + 1, 'x')}).MitInhalt);
}

TEST_F(RundbriefTest, DerPlanAlsBrieftext)
{
    const int i = VolleMesse(3);
    Messe.Leuchter[i] = 2;
    Messe.Allgemein[i] = 1;
    Messe.KantorZahl[i] = 1;
    Besetzen(Messe, Helferplatznr(i, 4), "Paul", "Quast");
    VolleMesse(1, "Wochendienst");
    VolleMesse(0, "Andacht");
    Messe.Datum[i] += 1;
    EXPECT_EQ(PlanAlsBrieftext(GemeinsameTabellen(), Namenform::Ganz),
              "Mo 23.11.2026, 10:00 Uhr, Hochamt\n"
              "  Leuchter: Vor1 Nach1, Vor2 Nach2\n"
              "  Allgemein: Vor3 Nach3\n"
              "  Kantor: Paul Quast\n"
              "\n"
              "ab Mo 23.11.2026, Wochendienst\n"
              "  Allgemein: Vor1 Nach1\n"
              "\n"
              "Di 24.11.2026, 10:00 Uhr, Andacht\n");
    EXPECT_EQ(PlanAlsBrieftext(GemeinsameTabellen(), Namenform::NurVorname, i),
              "Mo 23.11.2026, 10:00 Uhr, Hochamt\n"
              "  Leuchter: Vor1, Vor2\n"
              "  Allgemein: Vor3\n"
              "  Kantor: Paul\n");
}

TEST_F(RundbriefTest, AlsZeileZumEinfügen)
{
    EXPECT_EQ(AlsAdresszeile({"a@x.de", "b@x.de"}), "a@x.de; b@x.de");
}

} // namespace
} // namespace altardienst
