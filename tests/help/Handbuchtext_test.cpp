// The headings, anchors and links of the handbook's pages.
#include "help/Handbuchtext.h"

#include <gtest/gtest.h>

namespace altardienst {
namespace {

using Liste = std::vector<Text>;

Liste Worte(const Text &markdown)
{
    Liste worte;
    for (const Titelzeile &eine : Überschriften(markdown))
        worte.push_back(std::to_string(eine.Stufe) + " " + eine.Worte);
    return worte;
}

TEST(Handbuchtext, ÜberschriftenHabenIhreStufe)
{
    EXPECT_EQ(Worte("# Plan\n\nText\n## Das Muster\n### Einzeln\r\n"),
              (Liste{"1 Plan", "2 Das Muster", "3 Einzeln"}));
    EXPECT_EQ(Worte("###### sechs\n####### sieben\n"), Liste{"6 sechs"});
    EXPECT_EQ(Worte("  ## eingerückt"), Liste{"2 eingerückt"});
    EXPECT_EQ(Worte("ohne alles"), Liste{});
    EXPECT_EQ(Worte(""), Liste{});
}

TEST(Handbuchtext, EineRauteOhneLeerstelleIstKeineÜberschrift)
{
    EXPECT_EQ(Worte("#hashtag\n#\n"), Liste{"1 "});
    EXPECT_EQ(Worte("Nummer # 5"), Liste{});
}

TEST(Handbuchtext, RautenAmEndeGehörenNichtDazu)
{
    EXPECT_EQ(Worte("## Muster ##\n## Taste C#"), (Liste{"2 Muster", "2 Taste C#"}));
}

TEST(Handbuchtext, InEinemBlockAusCodeStehenKeineÜberschriften)
{
    EXPECT_EQ(Worte("```\n# nein\n```\n# ja"), Liste{"1 ja"});
    EXPECT_EQ(Worte("~~~\n```\n# nein\n~~~\n# ja"), Liste{"1 ja"});
}

TEST(Handbuchtext, AuszeichnungenWerdenNichtMitgelesen)
{
    EXPECT_EQ(Worte("# **Fett** und *schräg*, `Messen.dat`"),
              Liste{"1 Fett und schräg, Messen.dat"});
    EXPECT_EQ(Worte("# Siehe [Drucken](drucken.md#etiketten) dort"), Liste{"1 Siehe Drucken dort"});
    EXPECT_EQ(Worte(R"(# 3 \* 4)"), Liste{"1 3 * 4"});
}

TEST(Handbuchtext, DerAnkerIstKleinUndOhneSatzzeichen)
{
    EXPECT_EQ(AnkerVon("Die sieben Schritte"), "die-sieben-schritte");
    EXPECT_EQ(AnkerVon("Zusätzliche Konfiguration (F11)"), "zusätzliche-konfiguration-f11");
    EXPECT_EQ(AnkerVon("ÄRGER mit \"OK\"?"), "ärger-mit-ok");
    EXPECT_EQ(AnkerVon("„Was“ – kostet…"), "was--kostet");
    EXPECT_EQ(AnkerVon("Größe_x-y"), "größe_x-y");
}

TEST(Handbuchtext, GleicheÜberschriftenHabenVerschiedeneAnker)
{
    const auto alle = Überschriften("# Druck\n## Druck\n## Druck\n## Sonst");
    ASSERT_EQ(alle.size(), 4U);
    EXPECT_EQ(alle[0].Anker, "druck");
    EXPECT_EQ(alle[1].Anker, "druck-1");
    EXPECT_EQ(alle[2].Anker, "druck-2");
    EXPECT_EQ(alle[3].Anker, "sonst");
}

TEST(Handbuchtext, EinVerweisFührtZuSeiteUndÜberschrift)
{
    EXPECT_EQ(StelleVon("plan.md", "leute.md"), (Handbuchstelle{"plan.md", ""}));
    EXPECT_EQ(StelleVon("plan.md#die-messenliste", "leute.md"),
              (Handbuchstelle{"plan.md", "die-messenliste"}));
    EXPECT_EQ(StelleVon("#gruppen", "leute.md"), (Handbuchstelle{"leute.md", "gruppen"}));
    EXPECT_EQ(StelleVon("plan.md#zus%C3%A4tzlich", ""), (Handbuchstelle{"plan.md", "zusätzlich"}));
    EXPECT_EQ(StelleVon("100%", ""), (Handbuchstelle{"100%", ""}));
    EXPECT_EQ(StelleVon("a%zzb", ""), (Handbuchstelle{"a%zzb", ""}));
}

TEST(Handbuchtext, InsNetzFührtWasDorthinGehört)
{
    EXPECT_TRUE(FührtHinaus("https://example.org/plan.md"));
    EXPECT_TRUE(FührtHinaus("HTTP://example.org"));
    EXPECT_TRUE(FührtHinaus("mailto:pfarrei@example.org"));
    EXPECT_FALSE(FührtHinaus("plan.md"));
    EXPECT_FALSE(FührtHinaus("http.md"));
    EXPECT_FALSE(FührtHinaus("file:///etc/passwd"));
}

TEST(Handbuchtext, VerweiseUndBilderInIhrerFolge)
{
    EXPECT_EQ(Verweise("- [Plan](plan.md): siehe [dort](leute.md#a)\n![Bild](../bilder/b.png)\n"
                       "[keiner] (nein), [offen](nein\n```\n[code](nein)\n```\n"),
              (Liste{"plan.md", "leute.md#a", "../bilder/b.png"}));
}

TEST(Handbuchtext, DieErsteSeiteOrdnetDieAnderen)
{
    EXPECT_EQ(Seitenfolge("[b](b.md) [a](a.md#x) [b](b.md#y) [fehlt](fehlt.md)",
                          {"README.md", "a.md", "b.md", "c.md"}),
              (Liste{"README.md", "b.md", "a.md", "c.md"}));
    EXPECT_EQ(Seitenfolge("", {"a.md"}), Liste{"a.md"});
}

} // namespace
} // namespace altardienst
