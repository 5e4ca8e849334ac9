// Tables as text: what programs write, and what is written for them.
#include "core/Tabellentext.h"

#include "Prüfstand.h"

#include <ctime>
#include <random>

namespace altardienst {
namespace {

using TabellentextTest = Prüfstand;
using Zeilen = std::vector<std::vector<Text>>;

Zeilen Gelesen(std::string_view bytes)
{
    const Tabellenblatt blatt = TabelleLesen(bytes);
    EXPECT_EQ(blatt.Mangel, "");
    return blatt.Zeilen;
}

Text Mangel(std::string_view bytes)
{
    const Tabellenblatt blatt = TabelleLesen(bytes);
    EXPECT_TRUE(blatt.Zeilen.empty());
    return blatt.Mangel;
}

const Zeilen Leute = {{"Name", "Ort"}, {"Groß", "Änderstadt"}};

TEST_F(TabellentextTest, LiestDieVierKodierungen)
{
    EXPECT_EQ(Gelesen("Name;Ort\nGroß;Änderstadt\n"), Leute);
    EXPECT_EQ(Gelesen("\xEF\xBB\xBFName;Ort\nGroß;Änderstadt\n"), Leute);
    EXPECT_EQ(Gelesen("Name;Ort\nGro\xDF;\xC4nderstadt\n"), Leute);
    EXPECT_EQ(Gelesen("\x80;\x96"), (Zeilen{{"€", "–"}}));
    std::string klein = "\xFF\xFE";
    std::string groß = "\xFE\xFF";
    for (const char16_t zeichen : u"Name;Ort\nGroß;Änderstadt\n😀;x") {
        if (zeichen == 0)
            break;
        klein += {static_cast<char>(zeichen & 0xFF), static_cast<char>(zeichen >> 8)};
        groß += {static_cast<char>(zeichen >> 8), static_cast<char>(zeichen & 0xFF)};
    }
    Zeilen mitBild = Leute;
    mitBild.push_back({"😀", "x"});
    EXPECT_EQ(Gelesen(klein), mitBild);
    EXPECT_EQ(Gelesen(groß), mitBild);
    EXPECT_EQ(Gelesen(klein + "x"), mitBild); // half a character
}

TEST_F(TabellentextTest, HalbePaareUndÜberlangeSchreibungenSindKeinUtf8)
{
    EXPECT_EQ(Gelesen("\xC0\xAF;x"), (Zeilen{{"À¯", "x"}}));
    EXPECT_EQ(Gelesen("\xED\xA0\x80;x")[0][0].substr(0, 2), "í");
    EXPECT_EQ(Gelesen("\xE2\x82"), (Zeilen{{"â‚"}})); // ends in the middle
    EXPECT_EQ(Gelesen(std::string("\xFF\xFE\x00\xD8x\0", 6)), (Zeilen{{"\xEF\xBF\xBDx"}}));
}

/// One byte that is wrong does not make another text of all the others.
TEST_F(TabellentextTest, EinFalschesByteIstKeineAndereKodierung)
{
    const Text loch(KeinZeichen);
    EXPECT_EQ(Gelesen("Groß;Änder\xFCstadt"), (Zeilen{{"Groß", "Änder" + loch + "stadt"}}));
    EXPECT_EQ(Gelesen("ß;\xFC"), (Zeilen{{"ß", loch}}));
    EXPECT_EQ(Gelesen("ß;\xFC\xFC"), (Zeilen{{"ÃŸ", "üü"}})); // hardly UTF-8
    EXPECT_EQ(Gelesen("a;\xFC"), (Zeilen{{"a", "ü"}}));
    EXPECT_EQ(Gelesen("\xEF\xBB\xBF"
                      "a;\xFC"),
              (Zeilen{{"a", loch}})); // the mark says so
}

TEST_F(TabellentextTest, ZähltDieZeilenWieEineTabellenkalkulation)
{
    const auto nummern = [](const char *bytes) { return TabelleLesen(bytes).Nummern; };
    using Nummern = std::vector<int>;
    EXPECT_EQ(nummern("a;b\nc;d\n"), (Nummern{1, 2}));
    EXPECT_EQ(nummern("\n\r\n\ra;b\r\n\r\n\nc;d"), (Nummern{4, 7}));
    EXPECT_EQ(nummern("a\r\rb"), (Nummern{1, 3}));
    EXPECT_EQ(nummern("\"a\n\nb\";c\nd;e"), (Nummern{1, 2}));
    EXPECT_EQ(nummern(";\n;\nx;"), (Nummern{1, 2, 3}));
    EXPECT_EQ(nummern("sep=;\r\na;b\r\nc;d"), (Nummern{1, 2}));
    EXPECT_EQ(nummern("sep=;\n\na;b"), (Nummern{2}));
    EXPECT_EQ(nummern("sep=;"), (Nummern{}));
}

TEST_F(TabellentextTest, FindetDasTrennzeichen)
{
    EXPECT_EQ(Gelesen("a;b\n1;2"), (Zeilen{{"a", "b"}, {"1", "2"}}));
    EXPECT_EQ(Gelesen("a,b\n1,2"), (Zeilen{{"a", "b"}, {"1", "2"}}));
    EXPECT_EQ(Gelesen("a\tb\n1\t2"), (Zeilen{{"a", "b"}, {"1", "2"}}));
    EXPECT_EQ(Gelesen("nur eine"), (Zeilen{{"nur eine"}}));
    // Commas within fields are fewer than semicolons between them, and a title has neither.
    EXPECT_EQ(Gelesen("Unsere Leute\na;b;c\n1,5;2,5;3,5\n4;5;6").at(2),
              (std::vector<Text>{"1,5", "2,5", "3,5"}));
    // A quote within a field is none.
    EXPECT_EQ(Gelesen("5\" Rohr;a\n6\" Rohr;b, c, d").at(1),
              (std::vector<Text>{"6\" Rohr", "b, c, d"}));
    EXPECT_EQ(Gelesen("\"a;b\",c\n\"d;e\",f"), (Zeilen{{"a;b", "c"}, {"d;e", "f"}}));
    EXPECT_EQ(Gelesen("sep=,\r\na;b,c\r\n"), (Zeilen{{"a;b", "c"}}));
    EXPECT_EQ(Gelesen("sep=x;y"), (Zeilen{{"sep=x", "y"}}));
}

TEST_F(TabellentextTest, LiestAnführungszeichenUndZeilenenden)
{
    EXPECT_EQ(Gelesen("a;\"b\"\"c\";\"d;e\"\r\nf;\"g\r\nh\";i\r\n"),
              (Zeilen{{"a", "b\"c", "d;e"}, {"f", "g\r\nh", "i"}}));
    EXPECT_EQ(Gelesen("a;b\rc;d\n\n\r\ne;f"), (Zeilen{{"a", "b"}, {"c", "d"}, {"e", "f"}}));
    EXPECT_EQ(Gelesen("\"a\"b;5\" Rohr"), (Zeilen{{"ab", "5\" Rohr"}}));
    EXPECT_EQ(Gelesen(";;\n\"\";x;"), (Zeilen{{"", "", ""}, {"", "x", ""}}));
}

TEST_F(TabellentextTest, EinAnführungszeichenOhneEndeNimmtNichtsMit)
{
    EXPECT_EQ(Gelesen("\"a;b\nc;d\n"), (Zeilen{{"\"a", "b"}, {"c", "d"}}));
    EXPECT_EQ(Gelesen("a;\"\"\"\nc;d"), (Zeilen{{"a", "\"\"\""}, {"c", "d"}}));
    EXPECT_EQ(Gelesen(std::string(9, '"')), (Zeilen{{std::string(9, '"')}}));
    EXPECT_EQ(Gelesen(std::string(10, '"')), (Zeilen{{std::string(4, '"')}}));
}

TEST_F(TabellentextTest, EineReiheVonAnführungszeichenDauertNichtLange)
{
    std::string zeilen;
    while (zeilen.size() < 4'000'000)
        zeilen += "\"\"\";\"\n";
    const std::clock_t anfang = std::clock();
    const Tabellenblatt blatt = TabelleLesen("\"" + zeilen);
    EXPECT_LT((std::clock() - anfang) / CLOCKS_PER_SEC, 10) << "seconds of work, not of waiting";
    EXPECT_EQ(blatt.Mangel, "Die Tabelle hat mehr als 256 Spalten.");
}

TEST_F(TabellentextTest, SagtWarumEineDateiKeineTabelleIst)
{
    EXPECT_EQ(Mangel(""), "Die Datei ist leer.");
    EXPECT_EQ(Mangel("\xEF\xBB\xBF"), "In der Datei steht keine Zeile.");
    EXPECT_EQ(Mangel("\r\n\r\n"), "In der Datei steht keine Zeile.");
    EXPECT_EQ(Mangel(std::string("a;b\0c", 5)), "Die Datei ist kein Text und keine Tabelle.");
    EXPECT_EQ(Mangel("PK\x03\x04 und so weiter"),
              "Die Datei ist eine Arbeitsmappe oder ein Archiv. Eingelesen wird Text: in der "
              "Tabellenkalkulation „Speichern unter“ und dort „CSV“ wählen.");
    EXPECT_EQ(Mangel(std::string((std::size_t{16} << 20) + 1, 'a')),
              "Die Datei ist größer als 16 MB: Das ist keine Liste von Leuten.");
}

TEST_F(TabellentextTest, ZuVieleSpaltenUndZeilenSindKeineListe)
{
    EXPECT_EQ(Gelesen("a" + std::string(255, ';')).front().size(), 256U);
    EXPECT_EQ(Mangel("a" + std::string(256, ';')), "Die Tabelle hat mehr als 256 Spalten.");
    EXPECT_EQ(Mangel("a;b\n" + std::string(10'000, ';')), "Die Tabelle hat mehr als 256 Spalten.");
    EXPECT_EQ(Mangel(std::string(16'000'000, ';')), "Die Tabelle hat mehr als 256 Spalten.");
    std::string zeilen;
    for (int i = 0; i < 5000; ++i)
        zeilen += "a;b\n";
    EXPECT_EQ(Gelesen(zeilen).size(), 5000U);
    EXPECT_EQ(Mangel(zeilen + "a;b"), "Die Tabelle hat mehr als 5000 Zeilen.");
}

Text AlsTextfeld(std::string_view text)
{
    std::string feld;
    TextfeldAnhängen(feld, text);
    return feld;
}

TEST_F(TabellentextTest, WasEineTabellenkalkulationUmdeutetWirdAlsFormelFürDenTextGeschrieben)
{
    for (const char *text : {"017012345", "012/1999", "0251/12", "12 345",
                             "+49 170 1", "3-4",      "12/5",    "1.2.",
                             "(0251) 1",  "1E5",      "=A1",     "-5",
                             "@Anna",     "5. Mai",   "März 7",  "12. Dezember 2026",
                             "Wahr",      "FALSCH",   "'s",      "10:30",
                             "5 %",       " Anna",    "Anna ",   "12345678901"}) {
        std::string formel;
        FeldAnhängen(formel, "=\"" + Text(text) + "\"");
        EXPECT_EQ(AlsTextfeld(text), formel);
    }
    for (const char *text :
         {"Anna", "Große Straße 5", "Hauptstr. 12a", "anna@mail.de", "Mai", "Maiwald", "",
          "St. Anna", "Ünal", "Waldweg 3-5", "48999", "0251 123456", "0251/123456", "0251-1234"})
        EXPECT_EQ(AlsTextfeld(text), text);
    EXPECT_EQ(AlsTextfeld("5,5"), "\"=\"\"5,5\"\"\"");
    EXPECT_EQ(AlsTextfeld("=\""), "\"=\"\"=\"\"\"\"\"\"\""); // ="=""" in quotes
}

TEST_F(TabellentextTest, WasEinFeldMeint)
{
    EXPECT_EQ(TextDesFelds("  Anna \t"), "Anna");
    EXPECT_EQ(TextDesFelds("\xC2\xA0 Anna\xC2\xA0"), "Anna");
    EXPECT_EQ(TextDesFelds("=\"0170\""), "0170");
    EXPECT_EQ(TextDesFelds("=\" 5\"\" Rohr \""), " 5\" Rohr "); // exactly what is in it
    EXPECT_EQ(TextDesFelds("=\""), "=\"");
    EXPECT_EQ(TextDesFelds(""), "");
}

/// Whatever a text is, it comes in again as it went out.
TEST_F(TabellentextTest, BeliebigeTexteKommenGleichZurück)
{
    const std::vector<Text> stücke = {
        "a", "Z",  "ä",  "ß", "0",        "7", ";", ",", "\t", "\"",   "'",   "=",           "+",
        "-", "\r", "\n", " ", "\xC2\xA0", ".", "/", ":", "€",  "sep=", "Mai", "\xEF\xBB\xBF"};
    std::mt19937 zufall(7);
    const auto bis = [&zufall](std::size_t höchste) { return zufall() % (höchste + 1); };
    for (int lauf = 0; lauf < 3000; ++lauf) {
        Zeilen zeilen(1 + bis(4));
        const std::size_t spalten = 1 + bis(3);
        std::string bytes(Utf8Marke);
        for (auto &zeile : zeilen) {
            for (std::size_t k = 0; k < spalten; ++k) {
                Text text;
                for (std::size_t länge = bis(6) + (spalten == 1 ? 1 : 0); länge > 0; --länge)
                    text += stücke[bis(stücke.size() - 1)];
                if (k > 0)
                    bytes += Feldtrenner;
                TextfeldAnhängen(bytes, text);
                zeile.push_back(text);
            }
            bytes += Zeilenende;
        }
        Zeilen zurück = Gelesen(bytes);
        for (auto &zeile : zurück)
            for (Text &feld : zeile)
                feld = TextDesFelds(feld);
        ASSERT_EQ(zurück, zeilen) << bytes;
    }
}

} // namespace
} // namespace altardienst
