// Which paragraphs a search finds, and what it shows of them.
#include "help/Handbuchsuche.h"

#include "values/Text.h"

#include <gtest/gtest.h>

namespace altardienst {
namespace {

using Liste = std::vector<Text>;

Liste Gefunden(const Text &text, const Liste &worte)
{
    Liste teile;
    for (const Treffer &treffer : TrefferIn(text, worte))
        teile.push_back(text.substr(treffer.Ab, treffer.Bytes));
    return teile;
}

Liste Satzweise(const Text &absatz)
{
    Liste teile;
    for (const Treffer &satz : Sätze(absatz))
        teile.push_back(absatz.substr(satz.Ab, satz.Bytes));
    return teile;
}

TEST(Handbuchsuche, DieEingabeZerfälltAnLeerstellen)
{
    EXPECT_EQ(Suchworte("  Plan  drucken "), (Liste{"Plan", "drucken"}));
    EXPECT_EQ(Suchworte("a\tb"), (Liste{"a", "b"}));
    EXPECT_EQ(Suchworte("   "), Liste{});
}

TEST(Handbuchsuche, GroßUndKleinSindGleich)
{
    EXPECT_EQ(Gefunden("Messen und MESSE", {"messe"}), (Liste{"Messe", "MESSE"}));
    EXPECT_EQ(Gefunden("Änderung", {"ÄNDER"}), Liste{"Änder"});
    EXPECT_EQ(Gefunden("Änderung", {"Aender"}), Liste{});
}

TEST(Handbuchsuche, ScharfesSUndDoppeltesSindGleich)
{
    EXPECT_EQ(Gefunden("Der Meßdiener", {"Messdiener"}), Liste{"Meßdiener"});
    EXPECT_EQ(Gefunden("Der Messdiener", {"Meßdiener"}), Liste{"Messdiener"});
    EXPECT_EQ(Gefunden("Meßdiener", {"mes"}), Liste{"Meß"}) << "no half letter";
    EXPECT_EQ(Gefunden("Meßdiener", {"sdien"}), Liste{"ßdien"});
}

TEST(Handbuchsuche, AnführungszeichenUndStricheSindGleich)
{
    EXPECT_EQ(Gefunden("Das „OK“ fehlt", {"\"ok\""}), Liste{"„OK“"});
    EXPECT_EQ(Gefunden("1–7 und wei\u00adter", {"1-7", "weiter"}), (Liste{"1–7", "wei\u00adter"}));
    EXPECT_EQ(Gefunden("und so weiter…", {"..."}), Liste{"…"});
}

TEST(Handbuchsuche, WasSichBerührtIstEinTreffer)
{
    EXPECT_EQ(Gefunden("Meßdienergruppe", {"diener", "Meßdiener", "gruppe"}),
              Liste{"Meßdienergruppe"});
    EXPECT_EQ(Gefunden("Plan und Plan", {"plan", "lan"}), (Liste{"Plan", "Plan"}));
    EXPECT_EQ(Gefunden("aaa", {"aa"}), Liste{"aa"});
    EXPECT_EQ(Gefunden("Plan", {""}), Liste{});
}

TEST(Handbuchsuche, SätzeEndenAmSatzzeichen)
{
    EXPECT_EQ(Satzweise("Eins ist da. Zwei auch! Drei? \"Vier.\" Fünf"),
              (Liste{"Eins ist da.", "Zwei auch!", "Drei?", "\"Vier.\"", "Fünf"}));
    EXPECT_EQ(Satzweise(" Allein. "), Liste{"Allein."});
    EXPECT_EQ(Satzweise("ohne Punkt"), Liste{"ohne Punkt"});
    EXPECT_EQ(Satzweise(""), Liste{});
    EXPECT_EQ(Satzweise("   "), Liste{});
}

TEST(Handbuchsuche, KeinSatzEndetAnAbkürzungUndZahl)
{
    EXPECT_EQ(Satzweise("Am 30. November ist z. B. Taufe in St. Anna. Danach nicht."),
              (Liste{"Am 30. November ist z. B. Taufe in St. Anna.", "Danach nicht."}));
    EXPECT_EQ(Satzweise("Nicht Dienstbereit vom ... bis: Tage. Ende"),
              (Liste{"Nicht Dienstbereit vom ... bis: Tage.", "Ende"}));
    EXPECT_EQ(Satzweise("Die Datei Messen.dat bleibt."), Liste{"Die Datei Messen.dat bleibt."});
    EXPECT_EQ(Satzweise("Was? fragt er. Das."), (Liste{"Was? fragt er.", "Das."}));
}

/// Two pages of two sections.
std::vector<Absatz> Beispiel()
{
    return {{0, 0, 10, "Plan"},
            {0, 0, 11, "Der Plan wird verlost. Danach wird er gedruckt."},
            {0, 1, 12, "Drucken"},
            {0, 1, 13, "Ein Etikett kostet nichts."},
            {0, 1, 14, "Jeder Drucker geht."},
            {1, 0, 10, "Etiketten"},
            {1, 0, 11, "Der Plan steht woanders."}};
}

std::vector<std::size_t> Nummern(const Liste &worte)
{
    std::vector<std::size_t> nummern;
    for (const Suchtreffer &eine : Suchen(Beispiel(), worte))
        nummern.push_back(eine.Absatz);
    return nummern;
}

using Zahlen = std::vector<std::size_t>;

TEST(Handbuchsuche, GefundenWerdenAbsätzeMitAllenWorten)
{
    EXPECT_EQ(Nummern({"plan"}), (Zahlen{0, 1, 6}));
    EXPECT_EQ(Nummern({"plan", "wird"}), (Zahlen{1}));
    EXPECT_EQ(Nummern({"gibtesnicht"}), Zahlen{});
    EXPECT_EQ(Nummern({}), Zahlen{});
    EXPECT_EQ(Nummern({"\u00ad"}), Zahlen{}) << "nothing is left of it";
}

TEST(Handbuchsuche, SonstDieAbschnitteMitAllenWorten)
{
    EXPECT_EQ(Nummern({"etikett", "drucker"}), (Zahlen{3})) << "the first of its paragraphs";
    EXPECT_EQ(Nummern({"etikett", "kostet", "drucker"}), (Zahlen{3}));
    EXPECT_EQ(Nummern({"jeder", "geht", "etikett"}), (Zahlen{4})) << "that with the most words";
    EXPECT_EQ(Nummern({"verlost", "etikett"}), Zahlen{}) << "not across sections";
    EXPECT_EQ(Nummern({"verlost", "woanders"}), Zahlen{}) << "nor across pages";
}

TEST(Handbuchsuche, GezeigtWirdDerSatzMitDenWorten)
{
    const auto eine = Suchen(Beispiel(), {"danach"}).at(0);
    EXPECT_EQ(eine.Satz, "Danach wird er gedruckt.");
    EXPECT_EQ(eine.In, (std::vector<Treffer>{{0, 6}}));
    EXPECT_EQ(eine.Erster, (Treffer{Text("Der Plan wird verlost. ").size(), 6}));

    const auto beste = Suchen({{0, 0, 0, "Er fehlt. Er darf fehlen."}}, {"er", "darf"}).at(0);
    EXPECT_EQ(beste.Satz, "Er darf fehlen.") << "the one with most of the words";
}

TEST(Handbuchsuche, EinLangerSatzWirdGekürzt)
{
    Text satz = "Anfang";
    for (int i = 0; i < 100; ++i)
        satz += i == 40 ? " Ziel" : " Füße";
    const auto eine = Suchen({{0, 0, 0, satz}}, {"ziel"}).at(0);
    EXPECT_LE(Länge(eine.Satz), 164);
    EXPECT_TRUE(eine.Satz.starts_with("… Füße ")) << eine.Satz;
    EXPECT_TRUE(eine.Satz.ends_with(" Füße …")) << eine.Satz;
    ASSERT_EQ(eine.In.size(), 1U);
    EXPECT_EQ(eine.Satz.substr(eine.In[0].Ab, eine.In[0].Bytes), "Ziel");
    EXPECT_EQ(satz.substr(eine.Erster.Ab, eine.Erster.Bytes), "Ziel");

    const auto vorn = Suchen({{0, 0, 0, satz}}, {"anfang"}).at(0);
    EXPECT_TRUE(vorn.Satz.starts_with("Anfang Füße")) << vorn.Satz;
    EXPECT_TRUE(vorn.Satz.ends_with(" …"));

    Text hinten = satz + " Schluß";
    const auto letzte = Suchen({{0, 0, 0, hinten}}, {"schluss"}).at(0);
    EXPECT_TRUE(letzte.Satz.ends_with(" Füße Schluß")) << letzte.Satz;
    EXPECT_EQ(letzte.Satz.substr(letzte.In.at(0).Ab), "Schluß");
}

} // namespace
} // namespace altardienst
