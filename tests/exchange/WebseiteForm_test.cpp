// "Webseite": what is written where, and what is told.
#include "exchange/WebseiteForm.h"

#include "Formstand.h"
#include "application/Mitteilung.h"
#include "overview/Platz.h"

namespace altardienst {
namespace {

using Liste = std::vector<Text>;

class WebseiteFormTest : public Formstand<WebseiteForm> {
  protected:
    WebseiteFormTest()
    {
        MeßdienerAnlegen("Anna", "Adler");
        Konfig.Gemeinde = "St. Änne";
        MesseMitDienern(DatumAus({2026, 11, 28}), 1);
        Besetzen(Messe, Dienerplatznr(0, 1), "Anna", "Adler");
        Messe.LektorZahl[0] = 1;
        Besetzen(Messe, Helferplatznr(0, 0), "Lea", "Lang");
        GewählteDatei = Festplatte / "plan.html";
    }

    void Öffnen()
    {
        form = new WebseiteForm;
        Zeigen(form);
    }

    bool StehtDarin(const Text &wort) const
    {
        return DateiLesen(*GewählteDatei).find(wort) != std::string::npos;
    }
};

TEST_F(WebseiteFormTest, SchlägtTitelUndNamenVor)
{
    Öffnen();
    EXPECT_EQ(Zeigt("Titel"), "Messen der Pfarrei St. Änne");
    EXPECT_EQ(Zeigt("Namen"), "Vorname und erster Buchstabe (Anna A.)");
    EXPECT_TRUE(Angekreuzt("MitHelfern"));
    EXPECT_TRUE(Angekreuzt("DanachÖffnen"));
    EXPECT_EQ(Zeigt("Inhalt"), "Eine Messe; gedruckt ein Blatt A4.");
    EXPECT_TRUE(form->Titel->hasFocus());
}

TEST_F(WebseiteFormTest, SchreibtUndÖffnetDieSeite)
{
    Öffnen();
    Tippen("Titel", "Dienste im Advent");
    Klick("Speichern");
    ASSERT_EQ(Dateiwünsche.size(), 1U);
    EXPECT_EQ(Dateiwünsche[0].Name, "Altardienst 2026-11-28.html");
    EXPECT_EQ(Dateiwünsche[0].Endungen, (Liste{"html", "htm"}));
    EXPECT_EQ(Laufwerke.Auflisten(Festplatte).Dateien, Liste{"plan.html"});
    EXPECT_TRUE(StehtDarin("<h1>Dienste im Advent</h1>"));
    EXPECT_TRUE(StehtDarin("Anna\u00a0A."));
    EXPECT_FALSE(StehtDarin("Adler"));
    EXPECT_EQ(GeöffneteDateien, std::vector{*GewählteDatei});
    EXPECT_EQ(Zeigt("Hinweis"), "Webseite geschrieben: " + TextVon(*GewählteDatei) + ".");
    EXPECT_EQ(Mitteilungen().Letzte, "12:00 Webseite geschrieben: " + TextVon(*GewählteDatei));
}

TEST_F(WebseiteFormTest, OhneHelferUndOhneÖffnen)
{
    Öffnen();
    Ankreuzen("MitHelfern");
    Ankreuzen("DanachÖffnen");
    Klick("Speichern");
    EXPECT_FALSE(StehtDarin("Lea"));
    EXPECT_TRUE(GeöffneteDateien.empty());
    delete form;
    Öffnen();
    EXPECT_FALSE(Angekreuzt("MitHelfern")) << "is remembered";
    EXPECT_FALSE(Angekreuzt("DanachÖffnen"));
}

TEST_F(WebseiteFormTest, OhneBrowserIstDieSeiteDochGeschrieben)
{
    ZumÖffnenGibtEsEtwas = false;
    Öffnen();
    Klick("Speichern");
    EXPECT_TRUE(StehtDarin("<h1>"));
    EXPECT_EQ(Zeigt("Hinweis"), "Webseite geschrieben, aber kein Programm zeigt sie: " +
                                    TextVon(*GewählteDatei) + ".");
}

TEST_F(WebseiteFormTest, WasNichtGehtStehtImFenster)
{
    Laufwerke.VerzeichnisAnlegen(*GewählteDatei);
    Öffnen();
    Klick("Speichern");
    EXPECT_TRUE(Zeigt("Hinweis").starts_with("Nicht geschrieben: " + TextVon(*GewählteDatei)))
        << Zeigt("Hinweis");
    EXPECT_TRUE(GeöffneteDateien.empty());
    EXPECT_EQ(Mitteilungen().Letzte, "");
    GewählteDatei.reset();
    Klick("Speichern");
    EXPECT_EQ(Dateiwünsche.size(), 2U);
}

TEST_F(WebseiteFormTest, WasNichtAufEinBlattPaßtWirdVorherGesagt)
{
    for (int i = 0; i < 601; ++i) {
        MesseMitDienern(DatumAus({2026, 11, 28}) + i / 4, 1);
        Besetzen(Messe, Dienerplatznr(Messe.Anzahl - 1, 1), "Anna", "Adler");
    }
    Öffnen();
    EXPECT_TRUE(Zeigt("Inhalt").starts_with("602 Messen; gedruckt etwa ")) << Zeigt("Inhalt");
    EXPECT_TRUE(Zeigt("Inhalt").ends_with(" Blätter A4, da die Schrift auf einem zu klein würde."));
}

TEST_F(WebseiteFormTest, OhneMessenGibtEsNichtsZuSchreiben)
{
    Messe.Anzahl = 0;
    Öffnen();
    EXPECT_EQ(Zeigt("Inhalt"), "Der Plan hat keine Messen.");
    EXPECT_FALSE(form->Speichern->isEnabled());
}

} // namespace
} // namespace altardienst
