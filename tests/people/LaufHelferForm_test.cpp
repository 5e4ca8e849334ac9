// A long random walk through the editor of the helpers against a model of its rules.
#include "people/HelferForm.h"
#include "people/HelferModell.h"
#include "people/Lauf.h"

namespace altardienst {
namespace {

constexpr const auto &Arten = HelferModell::Arten;
constexpr const auto &Boxen = HelferModell::Boxen;

class LaufHelferForm : public Lauf<HelferForm, HelferModell> {
  protected:
    LaufHelferForm() : Lauf(20261123)
    {
        for (const char *name : {"Anna", "Bea", "Cem", "Dora"})
            HelferAnlegen(name, "Adler", "Lektor");
        for (int m = 0; m < 4; ++m) {
            MesseMitDienern(Heute + m, 2);
            Messe.Lektor1Vor[m] = Messe.Komm2Vor[m] = Messe.Kollekt2Vor[m] = vornamen[m];
            Messe.Lektor1Nach[m] = Messe.Komm2Nach[m] = Messe.Kollekt2Nach[m] = "Adler";
            Messe.Kantor1Vor[m] = "Anna";
            Messe.Kantor1Nach[m] = nachnamen[m];
        }
        Beginnen();
    }

    void Handlung() override;
    void Ausfüllen();
    void Datumsschritt();
    void Neu();
    void Vergleichen() override;

    const std::array<const char *, 5> vornamen = {"Anna", "Bea", "Cem", "Dora", ""};
    const std::array<const char *, 4> nachnamen = {"Adler", "Berg", "Co,hn", ""};
};

void LaufHelferForm::Ausfüllen()
{
    const auto k = static_cast<std::size_t>(wanderer.Wurf(HelferModell::Felder));
    if (Arten[k] == 'D')
        BeidenEinsetzen(Boxen[k], wanderer.Eines({"01.01.2026", "15.3.2024", "31.12.2023",
                                                  "30.12.1899", "29.02.2024", "24.12.2027",
                                                  "31.12.1936", "1.1.1935", "x", ""}));
    else if (Arten[k] == 'L')
        BeidenEinsetzen(Boxen[k], wanderer.Eines({"12345", "-7", "100000", "3000000000", "x"}));
    else if (k == 0)
        BeidenEinsetzen(Boxen[k], vornamen[static_cast<std::size_t>(wanderer.Wurf(5))]);
    else if (k == 1)
        BeidenEinsetzen(Boxen[k], nachnamen[static_cast<std::size_t>(wanderer.Wurf(4))]);
    else
        BeidenEinsetzen(Boxen[k], wanderer.Eines({"Kantor", "Weg 1", "a \"b\", c", "ß", ""}));
}

void LaufHelferForm::Datumsschritt()
{
    const int einheit = wanderer.Wurf(3);
    const int richtung = Richtung();
    const int feld = wanderer.Wurf(7);
    const std::array<const char *, 6> knöpfe = {"MTag", "Ptag", "MMon", "PMon", "MJahr", "PJahr"};
    const Text box = feld == 6 ? "Tagen" : Boxen[static_cast<std::size_t>(10 + feld)];
    if (feld == 6 && wanderer.Wurf(2) == 0)
        Auslösen(knöpfe[static_cast<std::size_t>(2 * einheit + (richtung > 0))]);
    else
        DrehungAuslösen(feld == 6 ? "Änderung" + std::to_string(einheit + 1)
                                  : "ä" + std::to_string(3 * feld + einheit + 1),
                        richtung);
    modell.Schritt(box, einheit, richtung);
    zuletzt += box + (richtung > 0 ? " auf" : " ab");
}

void LaufHelferForm::Neu()
{
    const Text vor = vornamen[static_cast<std::size_t>(wanderer.Wurf(5))];
    const Text nach = nachnamen[static_cast<std::size_t>(wanderer.Wurf(4))];
    Anlegen("NeuHelfer", "NeuerHelfer", {{"Vorne", vor}, {"Hinten", nach}},
            [&] { modell.Neu(vor, nach); });
}

void LaufHelferForm::Handlung()
{
    const int wurf = wanderer.Wurf(100);
    if (wurf < 42 || wurf >= 95)
        Ausfüllen();
    else if (wurf < 52)
        Datumsschritt();
    else if (wurf < 75) {
        const int richtung = Richtung();
        modell.Blättern(richtung, Geblättert(richtung));
    } else if (wurf < 79) {
        FokusWeg("PLZetus");
        modell.PostleitzahlVerlassen("PLZetus");
        zuletzt += "PLZetus verlassen";
    } else if (wurf < 87)
        BeidenEinsetzen("Indexen", wurf == 79 ? wanderer.Eines({"", "-1", "x", "201", "3000000000"})
                                              : ZahlText(wanderer.Wurf(modell.Anzahl + 3)));
    else if (wurf < 91 || modell.Anzahl > HelferModell::Sätze - 8)
        Löschen("Datensatzlösch");
    else if (wurf < 93)
        Neu();
    else
        Schließen();
}

void LaufHelferForm::Vergleichen()
{
    ASSERT_EQ(Helfer.Anzahl, modell.Anzahl);
    ASSERT_EQ(Helfer.Cursor, modell.Cursor);
    const int bis = wanderer.Wurf(50) == 0 ? HelferModell::Sätze
                                           : std::min(HelferModell::Sätze, modell.Anzahl + 2);
    for (int i = 0; i < bis; ++i)
        ASSERT_EQ(Datensatz(Helfer, i), modell.S(i)) << "record " << i;
    ASSERT_EQ(HelferModell::AllePlätze(), modell.Plätze);
    SchirmVergleichen();
    if (Finden("PLZetus")->hasFocus()) { // after a save that it stopped
        Finden("Vorne")->setFocus();
        modell.PostleitzahlVerlassen("PLZetus");
    }
}

TEST_F(LaufHelferForm, TabellenUndFensterBleibenBeimModell)
{
    Laufen();
}

} // namespace
} // namespace altardienst
