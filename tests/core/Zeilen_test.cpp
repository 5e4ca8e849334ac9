// The line format of the files: how a value looks on its line, and the two ways to take a line.
#include "core/Zeilen.h"

#include "Prüfstand.h"

namespace altardienst {
namespace {

template <class T> std::string Geschrieben(const T &wert)
{
    std::string inhalt;
    Feldschreiber schreiben(inhalt);
    schreiben(wert);
    return inhalt;
}

TEST(Zeilen, TextStehtUnverändertAufDerZeile)
{
    EXPECT_EQ(Geschrieben(Text("Sonntag")), "Sonntag\r\n");
    EXPECT_EQ(Geschrieben(Text("")), "\r\n");
    EXPECT_EQ(Geschrieben(Text(" a, \"b\" ")), " a, \"b\" \r\n") << "neither quoted nor escaped";
    EXPECT_EQ(Geschrieben(Text("Größe")), "Gr\xF6\xDF"
                                          "e\r\n");
}

TEST(Zeilen, ZahlStehtZwischenBlanks)
{
    EXPECT_EQ(Geschrieben(Int16(5)), " 5 \r\n");
    EXPECT_EQ(Geschrieben(Int16(0)), " 0 \r\n");
    EXPECT_EQ(Geschrieben(Int16(-1)), "-1 \r\n");
    EXPECT_EQ(Geschrieben(Int32(59302)), " 59302 \r\n");
    EXPECT_EQ(Geschrieben(Int32(-59302)), "-59302 \r\n");
    EXPECT_EQ(Geschrieben(Single(2.5)), " 2,5 \r\n");
    EXPECT_EQ(Geschrieben(Single(0.5)), " 0,5 \r\n");
    EXPECT_EQ(Geschrieben(Single(-2.5)), "-2,5 \r\n");
    EXPECT_EQ(Geschrieben(Single(-0.0)), " 0 \r\n");
    EXPECT_EQ(Geschrieben(Single(56.6857F)), " 56,6857 \r\n");
}

TEST(Zeilen, DatumStehtOhneBlanks)
{
    EXPECT_EQ(Geschrieben(DatumAus({2026, 3, 1})), "01.03.2026\r\n");
    EXPECT_EQ(Geschrieben(ZeitAus(18 * 3600 + 30 * 60)), "18:30:00\r\n");
    EXPECT_EQ(Geschrieben(Datum(0)), "00:00:00\r\n");
    EXPECT_EQ(Geschrieben(DatumAus({2026, 3, 1}) + 0.5), "01.03.2026 12:00:00\r\n");
}

TEST(Zeilen, GanzeZeileBleibtWieSieIst)
{
    Zeilenleser zeilen("a, \"b\" \r\n\r\n  \r\nohne Ende");
    EXPECT_EQ(zeilen.Zeile(), "a, \"b\" ");
    EXPECT_EQ(zeilen.Zeile(), "");
    EXPECT_EQ(zeilen.Zeile(), "  ");
    EXPECT_FALSE(zeilen.AmEnde());
    EXPECT_EQ(zeilen.Zeile(), "ohne Ende");
    EXPECT_TRUE(zeilen.AmEnde());
    EXPECT_EQ(NummerDesFehlers([&] { zeilen.Zeile(); }), 62);
    EXPECT_EQ(NummerDesFehlers([&] { zeilen.Abgegrenzt(); }), 62);
}

TEST(Zeilen, DieLeereDateiIstAmEnde)
{
    Zeilenleser zeilen("");
    EXPECT_TRUE(zeilen.AmEnde());
    EXPECT_EQ(NummerDesFehlers([&] { zeilen.Zeile(); }), 62);
}

/// All values in a content, taken one by one by delimiters.
std::vector<std::string> Abgegrenzt(std::string_view inhalt)
{
    Zeilenleser zeilen(inhalt);
    std::vector<std::string> werte;
    while (!zeilen.AmEnde())
        werte.emplace_back(zeilen.Abgegrenzt());
    return werte;
}

using Werte = std::vector<std::string>;

TEST(Zeilen, AbgegrenztEndetAmKommaUndAmZeilenende)
{
    EXPECT_EQ(Abgegrenzt("Hauptstr. 5, Hof\r\nOrt\r\n"), (Werte{"Hauptstr. 5", "Hof", "Ort"}));
    EXPECT_EQ(Abgegrenzt("a,b,c"), (Werte{"a", "b", "c"}));
    EXPECT_EQ(Abgegrenzt("a,\r\nb\r\n"), (Werte{"a", "", "b"}));
    EXPECT_EQ(Abgegrenzt(",a\r\n"), (Werte{"", "a"}));
}

TEST(Zeilen, AbgegrenztÜbergehtBlanksDavorUndLäßtDieDahinter)
{
    EXPECT_EQ(Abgegrenzt("   Anna  \r\n  , x \r\n"), (Werte{"Anna  ", "", "x "}));
    EXPECT_EQ(Abgegrenzt("a  ,b\r\n"), (Werte{"a  ", "b"}));
}

TEST(Zeilen, AbgegrenzteLeereZeileIstLeererText)
{
    EXPECT_EQ(Abgegrenzt("\r\n\r\na\r\n"), (Werte{"", "", "a"}));
    EXPECT_EQ(Abgegrenzt("   \r\na\r\n"), (Werte{"", "a"}));
    EXPECT_EQ(Abgegrenzt("   "), (Werte{""}));
}

TEST(Zeilen, AbgegrenztInAnführungszeichenReichtBisZumNächsten)
{
    EXPECT_EQ(Abgegrenzt("\"Hof, links\"\r\nb\r\n"), (Werte{"Hof, links", "b"}));
    EXPECT_EQ(Abgegrenzt("  \" x \"\r\nb\r\n"), (Werte{" x ", "b"}));
    EXPECT_EQ(Abgegrenzt("\"\"\r\nb\r\n"), (Werte{"", "b"}));
    EXPECT_EQ(Abgegrenzt("\"über\r\nZeilen\"\r\nb\r\n"), (Werte{"über\r\nZeilen", "b"}));
    EXPECT_EQ(Abgegrenzt("\"offen\r\nb\r\n"), (Werte{"offen\r\nb\r\n"}));
    EXPECT_EQ(Abgegrenzt("a\"b,c\"\r\n"), (Werte{"a\"b", "c\""})) << "only at the start";
    EXPECT_EQ(Abgegrenzt("\""), (Werte{""}));
}

TEST(Zeilen, HinterDemAnführungszeichenGehtEsBeimNächstenKommaWeiter)
{
    EXPECT_EQ(Abgegrenzt("\"a\" Rest,b\r\nc\r\n"), (Werte{"a", "b", "c"}));
    EXPECT_EQ(Abgegrenzt("\"a\" Rest\r\nc\r\n"), (Werte{"a", "c"}));
    EXPECT_EQ(Abgegrenzt("\"a\" Rest"), (Werte{"a"}));
}

template <class T> T Gelesen(std::string_view inhalt, Feldleser::Art art = &Zeilenleser::Zeile)
{
    Zeilenleser zeilen(inhalt);
    Feldleser lesen(zeilen, art);
    T wert{};
    lesen(wert);
    return wert;
}

TEST(Zeilen, FelderWerdenUmgewandelt)
{
    EXPECT_EQ(Gelesen<Text>(" a, \"b\" \r\n"), " a, \"b\" ");
    EXPECT_EQ(Gelesen<Text>("Gr\xF6\xDF"
                            "e\r\n"),
              "Größe");
    EXPECT_EQ(Gelesen<Int16>(" 5 \r\n"), 5);
    EXPECT_EQ(Gelesen<Int16>("-1 \r\n", &Zeilenleser::Abgegrenzt), -1);
    EXPECT_EQ(Gelesen<Int32>(" 59302 \r\n"), 59302);
    EXPECT_EQ(Gelesen<Single>(" 2,5 \r\n"), 2.5F);
    EXPECT_EQ(Gelesen<Datum>(" 21.11.2026 \r\n"), DatumAus({2026, 11, 21}));
}

TEST(Zeilen, LeereZeileIstKeineZahlUndKeinDatum)
{
    EXPECT_EQ(NummerDesFehlers([] { Gelesen<Int16>("\r\n"); }), 13);
    EXPECT_EQ(NummerDesFehlers([] { Gelesen<Int32>("\r\n"); }), 13);
    EXPECT_EQ(NummerDesFehlers([] { Gelesen<Single>("\r\n"); }), 13);
    EXPECT_EQ(NummerDesFehlers([] { Gelesen<Datum>("\r\n"); }), 13);
    EXPECT_EQ(NummerDesFehlers([] { Gelesen<Int16>(""); }), 62);
}

TEST(Zeilen, WasNichtUmwandelbarIstLäßtDasFeldWieEsWar)
{
    Zeilenleser zeilen("abc\r\n");
    Int16 wert = 7;
    Feldleser lesen(zeilen);
    EXPECT_EQ(NummerDesFehlers([&] { lesen(wert); }), 13);
    EXPECT_EQ(wert, 7);
}

TEST(Zeilen, LeereFlagsBekommenIhreVorgabe)
{
    Zeilenleser zeilen("\r\nnn\r\n\r\n");
    Text flags = "jn";
    Feldleser lesen(zeilen);
    lesen(Flagfeld{flags, "jjj"});
    EXPECT_EQ(flags, "jjj");
    lesen(Flagfeld{flags, "jjj"});
    EXPECT_EQ(flags, "nn") << "taken as it is, whatever its length";
    Text text = "stand da";
    lesen(text);
    EXPECT_EQ(text, "");
}

} // namespace
} // namespace altardienst
