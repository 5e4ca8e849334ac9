// The window "Plan ausgleichen".
#include "fairness/AusgleichForm.h"

#include "Formstand.h"
#include "fairness/Archiv.h"
#include "history/Rückgängig.h"
#include "overview/Planprüfung.h"

#include <map>

namespace altardienst {
namespace {

class AusgleichFormTest : public Formstand<AusgleichForm> {
  protected:
    AusgleichFormTest()
    {
        for (int j = 0; j < 12; ++j)
            MeßdienerAnlegen("V" + std::to_string(j), "N");
        HelferAnlegen("Maria", "Linde", "Lektor");
        HelferAnlegen("Paul", "Quast", "Lektor");
        for (int woche = 0; woche < 6; ++woche) {
            const int messe = MesseMitDienern(Heute + 1 + 7 * woche, 4);
            Messe.LektorZahl[messe] = 1;
        }
        // Always the same four.
        for (int i = 0; i < 6; ++i)
            for (int slot = 1; slot <= 4; ++slot)
                Besetzen(Messe, Dienerplatznr(i, slot), "V" + std::to_string(slot), "N");
    }

    void Öffnen()
    {
        form = new AusgleichForm;
        Zeigen(form);
    }

    void Suchen()
    {
        Klick("Ausgleichen");
        ASSERT_TRUE(Warten([this] { return form->Ausgleichen->isEnabled(); }));
    }

    Text Zahl(int zeile, int spalte) const
    {
        return form->Zahlen->item(zeile, spalte)->text().toStdString();
    }

    static std::vector<Text> Namen()
    {
        std::vector<Text> namen;
        for (int i = 0; i < Messe.Anzahl; ++i) {
            for (int slot = 1; slot <= 20; ++slot)
                namen.push_back(Messe.DienerVor[i][slot] + Messe.DienerDienst[i][slot]);
            namen.push_back(Messe.Lektor1Vor[i]);
        }
        return namen;
    }
};

TEST_F(AusgleichFormTest, AmAnfangIstNurAusgleichenMöglich)
{
    Öffnen();
    EXPECT_TRUE(form->Ausgleichen->isEnabled());
    EXPECT_FALSE(form->Anhalten->isEnabled());
    EXPECT_FALSE(form->Übernehmen->isEnabled());
    EXPECT_EQ(Zeigt("AbTag"), "21.11.2026");
    Klick("Diener");
    EXPECT_TRUE(form->Ausgleichen->isEnabled());
    Klick("Helferinnen");
    EXPECT_FALSE(form->Ausgleichen->isEnabled());
}

TEST_F(AusgleichFormTest, DieVorschauZeigtVorherUndNachher)
{
    Öffnen();
    Suchen();
    EXPECT_EQ(Zahl(1, 0), "0"); // fewest before
    EXPECT_EQ(Zahl(2, 0), "6"); // most before
    EXPECT_EQ(Zahl(1, 1), "2");
    EXPECT_EQ(Zahl(2, 1), "2");
    EXPECT_EQ(Zahl(3, 1), "0,00");
    EXPECT_EQ(Zahl(1, 3), "3");
    EXPECT_EQ(Zahl(2, 3), "3");
    EXPECT_EQ(form->Anteile->rowCount(), 14);
    EXPECT_EQ(form->Anteile->item(0, 0)->text(), "Linde, Maria");
    EXPECT_GE(form->Änderungen->rowCount(), 16 + 6);
    EXPECT_EQ(form->Offenes->toPlainText(), "Keine Regel ist verletzt, und kein Platz ist frei.");
    EXPECT_NE(Zeigt("Lage").find("Alle Regeln sind eingehalten."), Text::npos) << Zeigt("Lage");
    EXPECT_TRUE(form->Übernehmen->hasFocus());
}

TEST_F(AusgleichFormTest, ÜbernehmenIstEinSchritt)
{
    SchritteBeginnen();
    const auto zuvor = Namen();
    Öffnen();
    Suchen();
    Klick("Übernehmen");
    EXPECT_NE(Namen(), zuvor);
    TabellenBeobachten();
    EXPECT_EQ(LetzterSchritt(), "Plan ausgleichen");
    SchrittZurücknehmen();
    EXPECT_EQ(Namen(), zuvor);
    EXPECT_EQ(LetzterSchritt(), "");
    SchritteBeenden();
}

TEST_F(AusgleichFormTest, ÜbernehmenSchreibtUndSchließt)
{
    Öffnen();
    Suchen();
    Klick("Übernehmen");
    EXPECT_FALSE(IstOffen("Ausgleich"));
    const Planprüfung prüfung;
    EXPECT_EQ(prüfung.Verstöße(), 0);
    std::map<Text, int> dienste;
    for (int i = 0; i < 6; ++i)
        for (int slot = 1; slot <= 4; ++slot)
            ++dienste[Messe.DienerVor[i][slot]];
    EXPECT_EQ(dienste.size(), 12U);
    for (const auto &[name, zahl] : dienste)
        EXPECT_EQ(zahl, 2) << name;
}

TEST_F(AusgleichFormTest, VerwerfenÄndertNichts)
{
    const std::vector<Text> vorher = Namen();
    Öffnen();
    Suchen();
    Klick("Verwerfen");
    EXPECT_FALSE(IstOffen("Ausgleich"));
    EXPECT_EQ(Namen(), vorher);
}

TEST_F(AusgleichFormTest, WerMittenInDerSucheGehtÄndertNichts)
{
    const std::vector<Text> vorher = Namen();
    Öffnen();
    Klick("Ausgleichen");
    EXPECT_FALSE(form->AbTag->isEnabled());
    form->close();
    EXPECT_FALSE(IstOffen("Ausgleich"));
    EXPECT_EQ(Namen(), vorher);
}

TEST_F(AusgleichFormTest, AnhaltenBehältDenBestenPlanBisDahin)
{
    Öffnen();
    Klick("Ausgleichen");
    altardienst::Auslösen(form->Anhalten);
    ASSERT_TRUE(Warten([this] { return form->Ausgleichen->isEnabled(); }));
    EXPECT_FALSE(form->Anhalten->isEnabled());
    EXPECT_FALSE(form->Zahlen->isColumnHidden(0));
}

TEST_F(AusgleichFormTest, MessenVorDemTagBleiben)
{
    Öffnen();
    Einsetzen("AbTag", "05.12.2026"); // before the third mass
    Suchen();
    for (int zeile = 0; zeile < form->Änderungen->rowCount(); ++zeile)
        EXPECT_FALSE(form->Änderungen->item(zeile, 0)->text().contains("22.11.2026"));
    Klick("Übernehmen");
    EXPECT_EQ(Messe.DienerVor[0][1], "V1");
    EXPECT_EQ(Messe.DienerVor[1][1], "V1");
}

TEST_F(AusgleichFormTest, EinTagDerKeinerIstHältDieSucheAuf)
{
    Öffnen();
    Einsetzen("AbTag", "bald");
    Klick("Ausgleichen");
    EXPECT_EQ(GezeigteMeldungen.size(), 1U);
    EXPECT_TRUE(form->Ausgleichen->isEnabled());
    EXPECT_FALSE(form->Übernehmen->isEnabled());
}

TEST_F(AusgleichFormTest, DasArchivZähltMit)
{
    PlanArchivieren(); // V1 to V4 have served six times each
    for (int i = 0; i < 6; ++i)
        Messe.Datum[i] += 49;
    Heute += 49;
    Öffnen();
    form->Zeitraum->setCurrentIndex(1);
    Suchen();
    for (int zeile = 0; zeile < form->Anteile->rowCount(); ++zeile)
        if (form->Anteile->item(zeile, 0)->text() == "N, V1") {
            EXPECT_EQ(form->Anteile->item(zeile, 4)->text(), "0");
        }
}

TEST_F(AusgleichFormTest, WasOffenBleibtStehtMitGrundUndAbhilfeDa)
{
    Messe.Leuchter[0] = 1;
    for (int j = 0; j < 12; ++j)
        Meßdiener.Qualifikation[j] = "jnjjjj";
    Öffnen();
    Suchen();
    EXPECT_EQ(form->Offenes->toPlainText().toStdString(),
              "So 22.11.2026 10:00 Messe: V1 N ist für den Dienst Leuchter nicht eingetragen.\n"
              "    Niemand paßt: 12 nicht für Leuchter.\n"
              "    Es hülfe: einmal mehr Leuchter am 22.11.\n\n");
    EXPECT_NE(Zeigt("Lage").find("siehe „Was offen bleibt“"), Text::npos);
}

} // namespace
} // namespace altardienst
