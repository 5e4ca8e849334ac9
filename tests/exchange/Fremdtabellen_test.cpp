// Files that another program has written: each brings the same three people.
#include "exchange/Einlesen.h"

#include "Prüfstand.h"
#include "core/Tabellentext.h"
#include "core/Umwandlung.h"

namespace altardienst {
namespace {

class FremdtabellenTest : public Prüfstand {
  protected:
    FremdtabellenTest()
    {
        Gruppe.Anzahl = 1;
        Gruppe.Bezeichnung[0] = "Lilien";
    }

    static Einleseauftrag Auftrag(const std::string &bytes)
    {
        const Tabellenblatt blatt = TabelleLesen(bytes);
        EXPECT_EQ(blatt.Mangel, "");
        EXPECT_EQ(Kopfzeile(blatt.Zeilen, Personenart::Diener), 0);
        Einleseauftrag auftrag{.Spalten = ZuordnungNach(blatt.Zeilen.at(0), Personenart::Diener),
                               .GruppenAnlegen = true};
        auftrag.Zeilen.assign(blatt.Zeilen.begin() + 1, blatt.Zeilen.end());
        return auftrag;
    }

    static std::string Datei(const char *name)
    {
        return DateiLesen(std::filesystem::path(FREMDTABELLEN) / name);
    }

    /// One line per server, with what the file says of him.
    static std::vector<Text> Leute()
    {
        std::vector<Text> leute;
        for (int i = 0; i < Meßdiener.Anzahl; ++i)
            leute.push_back(Meßdiener.Vorname[i] + "|" + Meßdiener.Nachname[i] + "|" +
                            Meßdiener.Straße[i] + "|" +
                            ZahlText(static_cast<int>(Meßdiener.PLZ[i])) + "|" + Meßdiener.Ort[i] +
                            "|" + Meßdiener.Telefon[i] + "|" + Meßdiener.EMail[i] + "|" +
                            DatumText(Meßdiener.Geburtstag[i]) + "|" + Meßdiener.Geschlecht[i] +
                            "|" + ZahlText(Meßdiener.Größe[i]) + "|" + Meßdiener.Gruppe[i]);
        return leute;
    }

    const std::vector<Text> Erwartet = {
        "Änne|Groß|Große Straße 5|48999|Beispielort|017012345|aenne@example.org|06.01.2012|"
        "weiblich|152|Lilien",
        "Jörg|Weiß-Adler|Am Markt 3|1067|Übersee|+49 251 99||28.02.2010|männlich|171|Lilien",
        "Ümit|Öztürk|Hof \"Linde\"|48999|Beispielort|0251/7||24.12.2013|männlich|140|Rosen"};
};

TEST_F(FremdtabellenTest, JedeArtZuSpeichernBringtDieselben)
{
    for (const char *name : {"utf8-komma.csv", "utf8-strichpunkt.csv", "ansi-tab.csv", "utf16.csv",
                             "alles-in-zitat.csv"}) {
        Meßdiener.Anzahl = 0;
        Gruppe.Anzahl = 1;
        const Einleseauftrag auftrag = Auftrag(Datei(name));
        EXPECT_EQ(auftrag.Spalten.back(), KeineSpalte) << name; // "Bemerkung"
        const auto vorschau = EinlesenPrüfen(auftrag);
        for (const Vorschauzeile &zeile : vorschau)
            EXPECT_EQ(zeile.Was, Vorschauzeile::Stand::Neu) << name;
        Einlesen(auftrag, vorschau);
        EXPECT_EQ(Leute(), Erwartet) << name;
        EXPECT_EQ(Gruppe.Bezeichnung[1], "Rosen");
    }
}

TEST_F(FremdtabellenTest, WoDerMonatVornStehtBleibtEinZweifel)
{
    const auto vorschau = EinlesenPrüfen(Auftrag(Datei("amerikanisch.csv")));
    ASSERT_EQ(vorschau.size(), 3U);
    EXPECT_EQ(vorschau[0].Zweifel,
              (std::vector<Text>{"Geburtstag: „01/06/12“ ist nicht eindeutig: Kommt erst der Tag "
                                 "oder erst der Monat?"}));
    EXPECT_TRUE(vorschau[1].Zweifel.empty()); // there is no 28th month
    EXPECT_NE(ÄnderungenText(Personenart::Diener, vorschau[1]).find("Geburtstag: 28.02.2010"),
              Text::npos);
}

/// A list with all columns and texts that a spreadsheet would like to take for something else, as
/// the program wrote it, and as a spreadsheet has saved it after opening it.
TEST_F(FremdtabellenTest, WasDurchEineTabellenkalkulationGingIstDasselbe)
{
    const Einleseauftrag hinaus = Auftrag(Datei("hinaus.csv"));
    Einlesen(hinaus, EinlesenPrüfen(hinaus));
    EXPECT_EQ(Meßdiener.Anzahl, 12);
    EXPECT_EQ(Meßdiener.Telefon[0], "022112345");
    EXPECT_EQ(Meßdiener.Ort[4], "=1+1");
    for (const char *name : {"hinaus.csv", "zurueck-utf8.csv", "zurueck-ansi-komma.csv"})
        for (const Vorschauzeile &zeile : EinlesenPrüfen(Auftrag(Datei(name))))
            EXPECT_EQ(zeile.Was, Vorschauzeile::Stand::Gleich)
                << name << ", " << zeile.Zeile << ": "
                << ÄnderungenText(Personenart::Diener, zeile);
}

/// The odd ways: a title above, old line ends, a separator that is named, quotes around everything
/// that needs none.
TEST_F(FremdtabellenTest, AuchSeltsamesWirdGelesen)
{
    const Text kopf = "Vorname;Name;geb.";
    for (const Text &datei : std::vector<Text>{
             kopf + "\rKim;Busch;1.2.2013\r", "sep=;\r\n" + kopf + "\r\nKim;Busch;1.2.2013\r\n",
             "\"Vorname\";\"Name\";\"geb.\"\n\"Kim\";\"Busch\";\"=\"\"1.2.2013\"\"\"\n",
             kopf + "\n\n\nKim ;\xC2\xA0"
                    "Busch;1. Februar 2013"}) {
        Meßdiener.Anzahl = 0;
        const Einleseauftrag auftrag = Auftrag(datei);
        Einlesen(auftrag, EinlesenPrüfen(auftrag));
        ASSERT_EQ(Meßdiener.Anzahl, 1) << datei;
        EXPECT_EQ(Meßdiener.Vorname[0] + "|" + Meßdiener.Nachname[0] + "|" +
                      DatumText(Meßdiener.Geburtstag[0]),
                  "Kim|Busch|01.02.2013");
    }
}

} // namespace
} // namespace altardienst
