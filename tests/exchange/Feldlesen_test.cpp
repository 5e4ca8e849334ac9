// Fields in the forms that people write.
#include "exchange/Feldlesen.h"

#include "Prüfstand.h"
#include "core/Umwandlung.h"

namespace altardienst {
namespace {

using FeldlesenTest = Prüfstand;

TEST_F(FeldlesenTest, EinTagInDenÜblichenSchreibungen)
{
    for (const char *feld :
         {"06.01.2012", "6.1.2012", "6.1.12", "2012-01-06", "2012-01-06 00:00:00",
          "2012-01-06T10:30", "6. Januar 2012", "6. Jan. 2012", "06. Jan 12", "6 Januar 2012",
          "Fr, 6.1.2012", "Freitag, 6. Januar 2012", "06.01.2012 00:00", "Fr 6.1.2012"})
        EXPECT_EQ(DatumAusFeld(feld).Wert, "06.01.2012") << feld;
    // With strokes the month may come first.
    EXPECT_EQ(DatumAusFeld("28/02/2010").Wert, "28.02.2010");
    EXPECT_EQ(DatumAusFeld("2/28/10").Wert, "28.02.2010");
    EXPECT_EQ(DatumAusFeld("03/03/12").Wert, "03.03.2012");
    EXPECT_EQ(DatumAusFeld("12/13/2010").Wert, "13.12.2010");
    EXPECT_EQ(DatumAusFeld("13/12/2010").Wert, "13.12.2010");
    EXPECT_EQ(DatumAusFeld("01/06/12").Zweifel,
              "„01/06/12“ ist nicht eindeutig: Kommt erst der Tag oder erst der Monat?");
    for (const char *feld : {"01/06/12 00:00", "Fr 01/06/12", "1/6/2012 12:00:00 AM", "01/06/12 "})
        EXPECT_EQ(DatumAusFeld(feld).Zweifel,
                  "„" + Text(feld) +
                      "“ ist nicht eindeutig: Kommt erst der Tag oder erst der Monat?");
    for (const char *feld : {"2/28/10 00:00", "28/02/2010 10:30 Uhr", "2010-02-28T10:30:00.000Z",
                             "28. Februar 2010 10:30", "2010-02-28 10:30:00+01:00"})
        EXPECT_EQ(DatumAusFeld(feld).Wert, "28.02.2010") << feld;
    EXPECT_EQ(DatumAusFeld("3. März 2012").Wert, "03.03.2012");
    EXPECT_EQ(DatumAusFeld("3. Mai 99").Wert, "03.05.1999");
    for (const char *leer : {"", "00:00:00"}) { // as the files write what is not set
        EXPECT_EQ(DatumAusFeld(leer).Wert, "");
        EXPECT_EQ(DatumAusFeld(leer).Zweifel, "");
    }
}

TEST_F(FeldlesenTest, JederMonatUndJedeUhrzeit)
{
    int monat = 0;
    for (const char *name : {"Januar", "Feb.", "März", "Apr", "Mai", "Juni", "Jul", "August",
                             "Sept.", "Okt.", "November", "Dez"}) {
        const Datum tag = DatumAus({2012, ++monat, 3});
        EXPECT_EQ(DatumAusFeld("3. " + Text(name) + " 2012").Wert, KurzesDatum(tag)) << name;
    }
    EXPECT_EQ(DatumAusFeld("3. Maerz 2012").Wert, "03.03.2012");
    EXPECT_EQ(DatumAusFeld("3 Mar 2012").Wert, "03.03.2012");
    for (const char *danach : {" 9:09", " 19:59:59", " 10:30:00.987654321", " 10:30:00,9",
                               " 10:30Z", "  10:30 pm", " 10:30-0200", " 10:30 +01:00", "   "})
        EXPECT_EQ(DatumAusFeld("2012-01-06" + Text(danach)).Wert, "06.01.2012") << danach;
    for (const char *danach :
         {" :09", " 9:", " 9", " 100:00", " 9:123", " 10:30:0", " 10:30:00.", " 10:30+1",
          " 10:30+01:0", " 10:30+01:00x", " 10:30 nachts", "9:09", " 10:30:00.1234567890"})
        EXPECT_EQ(DatumAusFeld("2012-01-06" + Text(danach)).Wert, "") << danach;
}

TEST_F(FeldlesenTest, WasKeinTagIstBleibtStehen)
{
    for (const char *feld :
         {"10:30", "31.2.2012", "irgendwann", "6.1.", "2012", "40914", "2012-13-01", "2012-01-06x",
          "6. Brumaire 2012", "Kim 6.1.2012", "2012-01-06 Unsinn", "6. Januar 20125",
          "6. Januar 2012 oder später", "28/02/20105", "01/06/12 oder"}) {
        EXPECT_EQ(DatumAusFeld(feld).Wert, "") << feld;
        EXPECT_EQ(DatumAusFeld(feld).Zweifel, "„" + Text(feld) + "“ ist kein Datum.");
    }
    EXPECT_EQ(GeburtstagAusFeld("21.11.2026").Wert, "21.11.2026");
    EXPECT_EQ(GeburtstagAusFeld("21.11.2026").Zweifel, "");
    // What the editor takes as well comes with its doubt.
    EXPECT_EQ(GeburtstagAusFeld("22.11.2026").Zweifel, "„22.11.2026“ liegt in der Zukunft.");
    EXPECT_EQ(GeburtstagAusFeld("22.11.2026").Wert, "22.11.2026");
}

TEST_F(FeldlesenTest, EineGrößeInZentimeternOderMetern)
{
    for (const char *feld : {"165", "165 cm", "165cm", "1,65", "1.65 m", "1,65m", "164,8"})
        EXPECT_EQ(GrößeAusFeld(feld).Wert, "165") << feld;
    EXPECT_EQ(GrößeAusFeld("0").Wert, "0");
    EXPECT_EQ(GrößeAusFeld("").Wert, "0");
    EXPECT_EQ(GrößeAusFeld("5").Wert, "5");
    EXPECT_EQ(GrößeAusFeld("250").Wert, "250");
    EXPECT_EQ(GrößeAusFeld("251").Zweifel, "„251“ ist keine Größe: 5 bis 250 cm.");
    EXPECT_EQ(GrößeAusFeld("4").Zweifel, "„4“ ist keine Größe: 5 bis 250 cm.");
    for (const char *feld : {"groß", "165 Fuß", "99999999999", "-5"})
        EXPECT_NE(GrößeAusFeld(feld).Zweifel, "") << feld;
}

TEST_F(FeldlesenTest, EinePostleitzahlHatFünfStellen)
{
    EXPECT_EQ(PlzAusFeld("48999").Wert, "48999");
    EXPECT_EQ(PlzAusFeld("D-48999").Wert, "48999");
    EXPECT_EQ(PlzAusFeld("1067").Wert, "01067"); // a spreadsheet has taken it for a number
    EXPECT_EQ(PlzAusFeld("").Wert, "");
    for (const char *feld : {"489999", "48999 Ort", "-1", "4,5"})
        EXPECT_EQ(PlzAusFeld(feld).Zweifel, "„" + Text(feld) + "“ ist keine Postleitzahl.");
}

TEST_F(FeldlesenTest, AntwortenInWorten)
{
    for (const char *feld : {"ja", "Ja", "J", "x", "X", "1", "WAHR", "✓"})
        EXPECT_EQ(JaNeinAusFeld(feld).Wert, "ja") << feld;
    for (const char *feld : {"nein", "N", "0", "", "-", "Falsch"})
        EXPECT_EQ(JaNeinAusFeld(feld).Wert, "nein") << feld;
    EXPECT_EQ(JaNeinAusFeld("vielleicht").Zweifel, "„vielleicht“ ist weder „ja“ noch „nein“.");
    for (const char *feld : {"m", "M", "männlich", "Junge"})
        EXPECT_EQ(GeschlechtAusFeld(feld).Wert, "männlich") << feld;
    for (const char *feld : {"w", "weiblich", "Mädchen", "f"})
        EXPECT_EQ(GeschlechtAusFeld(feld).Wert, "weiblich") << feld;
    EXPECT_EQ(GeschlechtAusFeld("divers").Zweifel,
              "„divers“ ist weder „männlich“ noch „weiblich“.");
    EXPECT_EQ(GeschlechtAusFeld("divers").Wert, "divers");
    EXPECT_EQ(GeschlechtAusFeld("m, w").Wert, "");
    EXPECT_EQ(GeschlechtAusFeld("m, w").Zweifel,
              "„m, w“ hat ein Komma, das die Datei der Meßdiener zerreißt.");
    EXPECT_EQ(GeschlechtAusFeld("?").Wert, "?");
    EXPECT_NE(GeschlechtAusFeld("?").Zweifel, "");
    EXPECT_EQ(GeschlechtAusFeld("").Zweifel, "");
    EXPECT_EQ(HelferdienstAusFeld("").Zweifel, "");
    EXPECT_EQ(HäufigkeitAusFeld("normal").Wert, "0");
    EXPECT_EQ(HäufigkeitAusFeld("oft").Wert, "2");
    EXPECT_EQ(HäufigkeitAusFeld("20").Wert, "20");
    EXPECT_NE(HäufigkeitAusFeld("21").Zweifel, "");
    EXPECT_NE(HäufigkeitAusFeld("-1").Zweifel, "");
    for (const char *feld : {"Kantor", "kantorin", "Kantor/in"})
        EXPECT_EQ(HelferdienstAusFeld(feld).Wert, "Kantor") << feld;
    EXPECT_EQ(HelferdienstAusFeld("Kommunion").Wert, "Kommunionhelfer");
    EXPECT_EQ(HelferdienstAusFeld("Küster, Pförtner").Wert, "Küster, Pförtner");
    EXPECT_EQ(HelferdienstAusFeld("Küster").Zweifel,
              "„Küster“ ist kein Dienst der Helfer: Lektor, Kommunionhelfer, Kantor, Kollektant.");
}

TEST_F(FeldlesenTest, TexteDieDieDateienNichtHalten)
{
    EXPECT_EQ(DienertextAusFeld("Weg 5, Haus B").Zweifel,
              "„Weg 5, Haus B“ hat ein Komma, das die Datei der Meßdiener zerreißt.");
    EXPECT_EQ(HelfertextAusFeld("Weg 5, Haus B").Wert, "Weg 5, Haus B");
    EXPECT_EQ(DienertextAusFeld("\"Kim\"").Zweifel,
              "„\"Kim\"“ hat ein Anführungszeichen am Anfang, das die Datei zerreißt.");
    EXPECT_EQ(HelfertextAusFeld("a\nb").Zweifel,
              "„a b“ hat einen Zeilenumbruch, der die Datei zerreißt.");
    EXPECT_EQ(HelfertextAusFeld("Čapek").Zweifel,
              "„Čapek“ hat ein Zeichen, das die Dateien nicht halten: Es würde zu „?“.");
    EXPECT_EQ(HelfertextAusFeld("M\xEF\xBF\xBDller").Zweifel,
              "„M\xEF\xBF\xBDller“ hat ein beschädigtes Zeichen.");
    EXPECT_EQ(HelfertextAusFeld("Ünal–Weiß €").Wert, "Ünal–Weiß €");
    Text lang;
    for (int i = 0; i < 250; ++i)
        lang += "ä";
    EXPECT_EQ(HelfertextAusFeld(lang).Zweifel, "");
    EXPECT_NE(HelfertextAusFeld(lang + "x").Zweifel.find("länger als 250 Zeichen"), Text::npos);
}

} // namespace
} // namespace altardienst
