// The plan as a web page.
#include "exchange/Webseite.h"

#include "exchange/Planauszug.h"
#include "exchange/Planstücke.h"

namespace altardienst {
namespace {

class WebseiteTest : public Planstücke {
  protected:
    static std::string Seite(const Webseitenwunsch &wunsch = {.Titel = "Unser Plan"})
    {
        return PlanAlsWebseite(GemeinsameTabellen(), wunsch).Bytes;
    }

    /// What stands between two marks for the first time, the marks left out.
    static std::string Zwischen(const std::string &seite, const std::string &von,
                                const std::string &bis)
    {
        const auto anfang = seite.find(von);
        if (anfang == std::string::npos)
            return "nothing";
        const auto ab = anfang + von.size();
        return seite.substr(ab, seite.find(bis, ab) - ab);
    }

    static std::string Tabelle(const std::string &seite)
    {
        return Zwischen(seite, "<table>\n", "</table>");
    }
};

TEST_F(WebseiteTest, EineZeileJeMesseEineSpalteJeDienst)
{
    EXPECT_EQ(Tabelle(Seite()),
              "<thead><tr><th scope=\"col\">Termin</th><th scope=\"col\">Messe</th>"
              "<th scope=\"col\">Leuchter</th><th scope=\"col\">Allgemein</th>"
              "<th scope=\"col\">Lektor</th></tr></thead>\n<tbody>\n"
              "<tr><th scope=\"row\"><time datetime=\"2026-11-28T18:30\">Sa\u00a028.11. "
              "18:30</time></th><td>Vorabendmesse</td><td></td><td>Cem\u00a0C.</td><td></td></tr>\n"
              "<tr><th scope=\"row\"><time datetime=\"2026-11-29T10:00\">So\u00a029.11. "
              "10:00</time></th><td>Hochamt</td><td>Anna\u00a0A.</td><td>Änne\u00a0Ü.</td>"
              "<td>Lea\u00a0L.</td></tr>\n"
              "<tr class=\"w\"><th scope=\"row\">?</th><td>Irgendwann</td><td></td>"
              "<td>Anna\u00a0A.</td><td></td></tr>\n</tbody>\n");
}

/// Heads are as narrow as the names below them.
TEST_F(WebseiteTest, LangeKöpfeDürfenBrechen)
{
    Messe.Gabenbereitung[0] = Messe.Kreuzträger[0] = 1;
    Messe.Dienerzahl[0] = 4;
    Messe.KommZahl[0] = Messe.KollektZahl[0] = 1;
    for (int slot = 1; slot <= 4; ++slot)
        Stellen(0, slot, 0);
    for (int nr = 0; nr < static_cast<int>(Helferplätze.size()); ++nr)
        Besetzen(Messe, Helferplatznr(0, nr), "Lea", "Lang");
    const std::string kopf = Zwischen(Seite(), "<thead>", "</thead>");
    for (const char *teil : {">Gaben&shy;bereitung<", ">Kreuz&shy;träger<",
                             ">Kommunion&shy;helfer<", ">Leuchter<", ">Lektor<"})
        EXPECT_TRUE(Enthält(kopf, teil)) << teil << " in " << kopf;
}

TEST_F(WebseiteTest, WasKeinZeichenIstBleibtWeg)
{
    Messe.Messeart[0] = "A\x01 B\x7f\tC";
    EXPECT_TRUE(Enthält(Seite(), "<td>A BC</td>"));
}

TEST_F(WebseiteTest, IstEineGanzeDeutscheSeiteInEinerDatei)
{
    const std::string seite = Seite();
    EXPECT_TRUE(seite.starts_with("<!DOCTYPE html>\n<html lang=\"de\">"));
    EXPECT_TRUE(seite.ends_with("</html>\n"));
    EXPECT_TRUE(Enthält(seite, "<meta charset=\"utf-8\">"));
    for (const char *fremdes : {"http://", "https://", "src=", "@import", "url(", "<link"})
        EXPECT_FALSE(Enthält(seite, fremdes)) << fremdes;
    EXPECT_TRUE(Enthält(seite, "default-src 'none'"));
    EXPECT_TRUE(Enthält(seite, "\"noindex,nofollow\"")) << "names of minors";
    EXPECT_EQ(Zwischen(seite, "<h1>", "</h1>"), "Unser Plan");
    EXPECT_EQ(Zwischen(seite, "<title>", "</title>"), "Unser Plan");
    EXPECT_EQ(Zwischen(seite, "<p>", "</p>"), "28.11.2026 bis 29.11.2026 · Stand 21.11.2026");
}

TEST_F(WebseiteTest, MehrereNamenStehenNebeneinander)
{
    Messe.Leuchter[0] = 2;
    EXPECT_TRUE(Enthält(Seite(), "<td>Anna\u00a0A., Änne\u00a0Ü.</td>"));
}

TEST_F(WebseiteTest, OhneHelferStehtKeinerDarin)
{
    const std::string seite = Seite({.Titel = "", .Namen = Namenform::Ganz, .MitHelfern = false});
    EXPECT_FALSE(Enthält(seite, "Lektor"));
    EXPECT_FALSE(Enthält(seite, "Lea"));
    EXPECT_TRUE(Enthält(seite, "Anna\u00a0Adler"));
}

TEST_F(WebseiteTest, NurSoVielVomNamenWieGewählt)
{
    const std::string seite = Seite({.Titel = "", .Namen = Namenform::Anfangsbuchstaben});
    for (const char *name : {"Anna", "Adler", "Übel", "Lang"})
        EXPECT_FALSE(Enthält(Tabelle(seite), name)) << name;
    EXPECT_TRUE(Enthält(seite, "<td>A.\u00a0A.</td>"));
}

TEST_F(WebseiteTest, NichtsAusDenTabellenIstSprache)
{
    Meßdiener.Vorname[0] = "<b>\"A&B\"";
    Stellen(0, 1, 0);
    Messe.Messeart[0] = "Chor</td><script>\x07";
    const std::string seite =
        Seite({.Titel = "Wir & </title>", .Namen = Namenform::Ganz, .MitHelfern = true});
    EXPECT_TRUE(Enthält(seite, "<td>&lt;b&gt;&quot;A&amp;B&quot;\u00a0Adler</td>"));
    EXPECT_TRUE(Enthält(seite, "<td>Chor&lt;/td&gt;&lt;script&gt;</td>"));
    EXPECT_EQ(Zwischen(seite, "<title>", "</title>"), "Wir &amp; &lt;/title&gt;");
    EXPECT_EQ(Zähle(seite, "<script>"), 1);
}

TEST_F(WebseiteTest, EineNeueWocheBeginntWieDieDesPlans)
{
    for (const int tag : {30, 30})
        Messe.Messeart[MesseMitDienern(DatumAus({2026, 11, tag}), 1)] = "Werktag";
    EXPECT_EQ(Zähle(Tabelle(Seite()), "<tr class=\"w\">"), 1) << "from Saturday on";
    Konfig.StartWochentag = 2;
    const std::string tabelle = Tabelle(Seite());
    EXPECT_EQ(Zähle(tabelle, "<tr class=\"w\">"), 2) << "Monday, and what has no date";
    EXPECT_TRUE(Enthält(tabelle, "<tr class=\"w\"><th scope=\"row\"><time "
                                 "datetime=\"2026-11-30T10:00\">"));
}

TEST_F(WebseiteTest, EinWochendienstHatKeineUhrzeit)
{
    Messe.Messeart[1] = "Wochendienst";
    EXPECT_TRUE(Enthält(Seite(), ">ab\u00a0Sa\u00a028.11.</time>"));
}

TEST_F(WebseiteTest, AufDemTelefonStehtDerDienstVorDenNamen)
{
    const std::string seite = Seite();
    EXPECT_TRUE(Enthält(seite, "td:nth-child(3)::before{content:\"Leuchter: \"}"));
    EXPECT_TRUE(Enthält(seite, "td:nth-child(5)::before{content:\"Lektor: \"}"));
    EXPECT_FALSE(Enthält(seite, "td:nth-child(6)::before"));
    EXPECT_TRUE(Enthält(seite, "name=\"viewport\" content=\"width=device-width"));
}

TEST_F(WebseiteTest, FürDenDruckStehtDasMaßDarin)
{
    const std::string seite = Seite();
    EXPECT_TRUE(Enthält(seite, "@page{size:A4 portrait;margin:9mm}"));
    EXPECT_TRUE(Enthält(seite, "body{font-size:11.00pt}"));
    EXPECT_EQ(PlanAlsWebseite(GemeinsameTabellen(), {.Titel = ""}).Druckseiten, 1);
}

TEST_F(WebseiteTest, OhneMessenEineSeiteOhneZeilen)
{
    Messe.Anzahl = 0;
    const Webseite seite = PlanAlsWebseite(GemeinsameTabellen(), {.Titel = "Leer"});
    EXPECT_EQ(seite.Messen, 0);
    EXPECT_EQ(Zwischen(seite.Bytes, "<p>", "</p>"), "Stand 21.11.2026");
    EXPECT_TRUE(Enthält(seite.Bytes, "<tbody>\n</tbody>"));
}

TEST_F(WebseiteTest, DerTitelNenntDieGemeinde)
{
    EXPECT_EQ(Messentitel(Konfig), "Messen der Pfarrei St. Änne");
    Konfig.Gemeinde = "";
    EXPECT_EQ(Messentitel(Konfig), "Messen");
}

} // namespace
} // namespace altardienst
