// What the headings of a file mean.
#include "exchange/Spalten.h"

#include "Prüfstand.h"

namespace altardienst {
namespace {

using SpaltenTest = Prüfstand;

std::vector<Text> Bedeutungen(const std::vector<Text> &überschriften,
                              Personenart art = Personenart::Diener)
{
    std::vector<Text> bedeutungen;
    for (const int spalte : ZuordnungNach(überschriften, art))
        bedeutungen.push_back(spalte == KeineSpalte  ? "-"
                              : spalte == GanzerName ? "ganz"
                              : spalte == PlzUndOrt  ? "PLZ+Ort"
                                                     : SpalteMit(art, spalte).Name);
    return bedeutungen;
}

using Liste = std::vector<Text>;

TEST_F(SpaltenTest, ÜberschriftenWerdenNachIhremSinnErkannt)
{
    EXPECT_EQ(Bedeutungen({"Name", "Vorname", "Strasse", "Postleitzahl", "Wohnort", "Tel.",
                           "E-Mail-Adresse", "Geb.", "m/w", "Größe (cm)", "dabei seit", "Team"}),
              (Liste{"Nachname", "Vorname", "Straße", "PLZ", "Ort", "Telefon", "E-Mail",
                     "Geburtstag", "Geschlecht", "Größe", "Eintrittsdatum", "Gruppe"}));
    EXPECT_EQ(
        Bedeutungen({"Familienname", "Rufname", "Straße und Haus-Nr.", "geboren am", "Handy",
                     "EMAIL", "GESCHLECHT"}),
        (Liste{"Nachname", "Vorname", "Straße", "Geburtstag", "Telefon", "E-Mail", "Geschlecht"}));
    EXPECT_EQ(Bedeutungen({"Schuhgröße?", "Lieblingsfarbe", ""}), (Liste{"-", "-", "-"}));
    EXPECT_EQ(Bedeutungen({"Dienst", "Zweiter Dienst"}, Personenart::Helfer),
              (Liste{"Dienst 1", "Dienst 2"}));
}

TEST_F(SpaltenTest, JedeBedeutungHöchstensEinmalDieSichersteZuerst)
{
    EXPECT_EQ(Bedeutungen({"Telefon der Eltern", "Handy", "Telefon"}),
              (Liste{"-", "-", "Telefon"}));
    EXPECT_EQ(Bedeutungen({"Telefon der Eltern", "Handy"}), (Liste{"-", "Telefon"}));
    EXPECT_EQ(Bedeutungen({"Telefon der Eltern"}), (Liste{"Telefon"}));
    EXPECT_EQ(Bedeutungen({"Vorname", "Vorname"}), (Liste{"Vorname", "-"}));
    EXPECT_EQ(Bedeutungen({"Wunschpartner Nachname", "Wunschpartner Vorname", "Vorname", "Name"}),
              (Liste{"Wunschpartner Nachname", "Wunschpartner Vorname", "Vorname", "Nachname"}));
}

TEST_F(SpaltenTest, EinNameAlleinIstDerGanze)
{
    EXPECT_EQ(Bedeutungen({"Name", "Ort"}), (Liste{"ganz", "Ort"}));
    EXPECT_EQ(Bedeutungen({"Name, Vorname", "Name", "Ort"}), (Liste{"ganz", "-", "Ort"}));
    Text vorname;
    Text nachname;
    NamenTeilen("Adler, Anna Lena", vorname, nachname);
    EXPECT_EQ(vorname + "|" + nachname, "Anna Lena|Adler");
    NamenTeilen("Anna Lena Adler", vorname, nachname);
    EXPECT_EQ(vorname + "|" + nachname, "Anna Lena|Adler");
    NamenTeilen("Adler", vorname, nachname);
    EXPECT_EQ(vorname + "|" + nachname, "|Adler");
}

TEST_F(SpaltenTest, JedeSchreibungDesGanzenNamens)
{
    for (const char *kopf :
         {"Vor- und Nachname", "Name, Vorname", "Vorname Name", "Nachname, Vorname",
          "Vorname + Nachname", "voller Name", "Vollername", "VOR- UND ZUNAME", "vollen Namen"})
        EXPECT_EQ(Bedeutungen({kopf, "Vorname", "Nachname"}),
                  (kopf == Text("vollen Namen") ? Liste{"-", "Vorname", "Nachname"}
                                                : Liste{"ganz", "-", "-"}))
            << kopf;
    EXPECT_EQ(Doppelspalten[0].Name, Text("Vor- und Nachname"));
    EXPECT_EQ(Doppelspalten[1].Name, Text("PLZ und Ort"));
}

TEST_F(SpaltenTest, DieVergleichsform)
{
    EXPECT_EQ(Vergleichsform("ÄÖÜ äöü ß"), "aeoeueaeoeuess");
    EXPECT_EQ(Vergleichsform("Straße/Haus-Nr. 12"), "strassehausnr12");
    EXPECT_EQ(Vergleichsform("é€–"), "");
    EXPECT_EQ(Vergleichsform("azAZ09"), "azaz09");
}

TEST_F(SpaltenTest, WörterEinerÜberschriftTrenntVielerlei)
{
    for (const char *zeichen :
         {" ", "-", "_", "/", ".", ",", ":", ";", "(", ")", "\n", "\t", " - "})
        EXPECT_EQ(Bedeutungen({"Telefon" + Text(zeichen) + "Eltern"}), Liste{"Telefon"}) << zeichen;
}

TEST_F(SpaltenTest, PlzUndOrtKönnenEineSpalteSein)
{
    for (const char *kopf : {"PLZ Ort", "PLZ/Ort", "PLZ, Wohnort", "Postleitzahl und Ort"})
        EXPECT_EQ(Bedeutungen({"Name", "Vorname", kopf, "Ort"}),
                  (Liste{"Nachname", "Vorname", "PLZ+Ort", "-"}))
            << kopf;
    EXPECT_EQ(Bedeutungen({"PLZ", "Ort"}), (Liste{"PLZ", "Ort"}));
    const auto geteilt = [](const Text &ganz) {
        Text plz;
        Text ort;
        PlzUndOrtTeilen(ganz, plz, ort);
        return plz + "|" + ort;
    };
    EXPECT_EQ(geteilt("48999 Beispielort am See"), "48999|Beispielort am See");
    EXPECT_EQ(geteilt("D-48999, Beispielort"), "D-48999|Beispielort");
    EXPECT_EQ(geteilt("48999/Beispielort"), "48999|Beispielort");
    EXPECT_EQ(geteilt("48999"), "48999|");
    EXPECT_EQ(geteilt("Bad Ort"), "|Bad Ort");
    EXPECT_EQ(geteilt(""), "|");
    EXPECT_EQ(SpalteNamens(Personenart::Helfer, "PLZ"), SpaltePlz);
    EXPECT_EQ(SpalteNamens(Personenart::Diener, "Ort"), SpalteOrt);
}

TEST_F(SpaltenTest, WasSichAusschließt)
{
    EXPECT_TRUE(SchließenSichAus(GanzerName, SpalteVorname));
    EXPECT_TRUE(SchließenSichAus(SpalteNachname, GanzerName));
    EXPECT_TRUE(SchließenSichAus(SpaltePlz, PlzUndOrt));
    EXPECT_TRUE(SchließenSichAus(PlzUndOrt, SpalteOrt));
    EXPECT_TRUE(SchließenSichAus(PlzUndOrt, PlzUndOrt));
    EXPECT_TRUE(SchließenSichAus(SpalteOrt, SpalteOrt));
    EXPECT_FALSE(SchließenSichAus(PlzUndOrt, GanzerName));
    EXPECT_FALSE(SchließenSichAus(PlzUndOrt, SpalteVorname));
    EXPECT_FALSE(SchließenSichAus(SpaltePlz, SpalteOrt));
    EXPECT_FALSE(SchließenSichAus(KeineSpalte, KeineSpalte));
}

/// Whoever writes a list with all columns gets each of them back.
TEST_F(SpaltenTest, DieEigenenNamenBedeutenSichSelbst)
{
    for (const Personenart art : {Personenart::Diener, Personenart::Helfer}) {
        Liste namen;
        for (const Listenspalte &spalte : SpaltenFür(art)) {
            namen.push_back(spalte.Name);
            for (const Text &auch : spalte.Auch)
                EXPECT_EQ(auch, Vergleichsform(auch)) << "no heading would ever be equal to it";
        }
        EXPECT_EQ(Bedeutungen(namen, art), namen);
        EXPECT_EQ(SpalteNamens(art, "Nachname"), SpalteNachname);
    }
}

/// Every field that the files hold has its column.
TEST_F(SpaltenTest, KeinFeldDerTabellenFehlt)
{
    EXPECT_EQ(SpaltenFür(Personenart::Diener).size(), 12U + 6 + 6 + 10 + 3);
    EXPECT_EQ(SpaltenFür(Personenart::Helfer).size(), 8U + 2 + 6);
}

TEST_F(SpaltenTest, DieÜberschriftenStehenNichtImmerGanzOben)
{
    EXPECT_EQ(Kopfzeile({{"Vorname", "Nachname"}, {"Anna", "Adler"}}, Personenart::Diener), 0);
    EXPECT_EQ(Kopfzeile({{"Unsere Messdiener", ""}, {"Stand", "1.11."}, {"Vorname", "Name"}},
                        Personenart::Diener),
              2);
    EXPECT_EQ(Kopfzeile({{"Anna", "Adler", "48999"}}, Personenart::Diener), -1);
    EXPECT_EQ(Kopfzeile({}, Personenart::Diener), -1);
    // The first one of those that say most, and not far down.
    EXPECT_EQ(Kopfzeile({{"Vorname", "Name", "Ort"}, {"Name", "Telefon"}}, Personenart::Diener), 0);
    EXPECT_EQ(Kopfzeile({{"Name", "Telefon"}, {"Name", "Ort"}}, Personenart::Diener), 0);
    std::vector<Liste> zeilen(9, Liste{"Anna", "Adler"});
    zeilen.push_back({"Vorname", "Nachname"});
    EXPECT_EQ(Kopfzeile(zeilen, Personenart::Diener), 9);
    zeilen.insert(zeilen.begin(), Liste{"", ""});
    EXPECT_EQ(Kopfzeile(zeilen, Personenart::Diener), -1);
    EXPECT_EQ(Kopfzeile({{"Name"}, {"Anna Adler"}}, Personenart::Diener), 0);
}

} // namespace
} // namespace altardienst
