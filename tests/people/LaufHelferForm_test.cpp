// A long random walk through the editor of the helpers against a model of its rules.
#include "people/HelferForm.h"
#include "people/HelferModell.h"

#include <QAbstractButton>
#include <QApplication>
#include <QPointer>

namespace altardienst {
namespace {

constexpr int Schritte = 20000;
constexpr const auto &Arten = HelferModell::Arten;
constexpr const auto &Boxen = HelferModell::Boxen;
class LaufHelferForm : public Fensterstand {
  protected:
    LaufHelferForm()
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
        Öffnen();
        modell.Beginnen();
    }

    void Öffnen()
    {
        gefunden.clear();
        form = new HelferForm;
        form->show();
    }

    QWidget *C(const Text &name)
    {
        QWidget *&control = gefunden[name];
        if (!control)
            control = Finden(form.data(), name.c_str());
        return control;
    }

    void Schreiben(const Text &box, const Text &text)
    {
        Wanderer::Schreiben(C(box), text);
        modell.Setzen(box, text);
        zuletzt = box + "=" + text;
    }
    void Handlung();
    void Tippen();
    void Datumsschritt();
    void Neu();
    void Schließen();
    void Vergleichen();

    const std::array<const char *, 5> vornamen = {"Anna", "Bea", "Cem", "Dora", ""};
    const std::array<const char *, 4> nachnamen = {"Adler", "Berg", "Co,hn", ""};
    Wanderer wanderer{20261123};
    QPointer<HelferForm> form;
    std::map<Text, QWidget *> gefunden;
    HelferModell modell;
    Text zuletzt;
};

void LaufHelferForm::Tippen()
{
    const auto k = static_cast<std::size_t>(wanderer.Wurf(HelferModell::Felder));
    if (Arten[k] == 'D')
        Schreiben(Boxen[k],
                  wanderer.Eines({"01.01.2026", "15.3.2024", "31.12.2023", "30.12.1899",
                                  "29.02.2024", "24.12.2027", "31.12.1936", "1.1.1935", "x", ""}));
    else if (Arten[k] == 'L')
        Schreiben(Boxen[k], wanderer.Eines({"12345", "-7", "100000", "3000000000", "x"}));
    else if (k == 0)
        Schreiben(Boxen[k], vornamen[static_cast<std::size_t>(wanderer.Wurf(5))]);
    else if (k == 1)
        Schreiben(Boxen[k], nachnamen[static_cast<std::size_t>(wanderer.Wurf(4))]);
    else
        Schreiben(Boxen[k], wanderer.Eines({"Kantor", "Weg 1", "a \"b\", c", "ß", ""}));
}

void LaufHelferForm::Datumsschritt()
{
    const int einheit = wanderer.Wurf(3);
    const int richtung = wanderer.Wurf(2) * 2 - 1;
    const int feld = wanderer.Wurf(7);
    const std::array<const char *, 6> knöpfe = {"MTag", "Ptag", "MMon", "PMon", "MJahr", "PJahr"};
    const Text box = feld == 6 ? "Tagen" : Boxen[static_cast<std::size_t>(10 + feld)];
    if (feld == 6 && wanderer.Wurf(2) == 0)
        static_cast<QAbstractButton *>(
            C(knöpfe[static_cast<std::size_t>(2 * einheit + (richtung > 0))]))
            ->click();
    else
        Wanderer::Drehen(C(feld == 6 ? "Änderung" + std::to_string(einheit + 1)
                                     : "ä" + std::to_string(3 * feld + einheit + 1)),
                         richtung);
    modell.Schritt(box, einheit, richtung);
    zuletzt = box + (richtung > 0 ? " auf" : " ab");
}

void LaufHelferForm::Neu()
{
    Finden<QAbstractButton>(form, "NeuHelfer")->click();
    QWidget *neu = Fenster("NeuerHelfer");
    const Text vor = vornamen[static_cast<std::size_t>(wanderer.Wurf(5))];
    const Text nach = nachnamen[static_cast<std::size_t>(wanderer.Wurf(4))];
    Finden<QLineEdit>(neu, "Vorne")->setText(Anzeige(vor));
    Finden<QLineEdit>(neu, "Hinten")->setText(Anzeige(nach));
    zuletzt = "neu " + vor + " " + nach;
    if (wanderer.Wurf(4) > 0) {
        Finden<QAbstractButton>(neu, "OKButton")->click();
        modell.Neu(vor, nach);
    }
    if (neu->isVisible())
        neu->close();
    Wanderer::Aufräumen();
}

void LaufHelferForm::Schließen()
{
    const bool ende = wanderer.Wurf(2) == 0;
    zuletzt = ende ? "Ende" : "schließen";
    if (ende)
        Finden<QAbstractButton>(form, "Ende")->click();
    else
        form->close();
    const bool zu = modell.Schließen(ende);
    ASSERT_EQ(form->isHidden(), zu);
    if (!zu)
        return;
    delete form;
    Öffnen();
    modell.Öffnen();
}

void LaufHelferForm::Handlung()
{
    const int wurf = wanderer.Wurf(100);
    if (wurf < 42 || wurf >= 95)
        Tippen();
    else if (wurf < 52)
        Datumsschritt();
    else if (wurf < 75) {
        const int richtung = wanderer.Wurf(2) * 2 - 1;
        const bool drehen = wanderer.Wurf(2) == 0;
        if (drehen)
            Wanderer::Drehen(C("DPM"), richtung);
        else
            Finden<QAbstractButton>(form, richtung > 0 ? "PLUS" : "MINUS")->click();
        modell.Blättern(richtung, drehen);
        zuletzt = richtung > 0 ? "vor" : "zurück";
    } else if (wurf < 79) {
        Wanderer::Verlassen(C("PLZetus"));
        modell.PostleitzahlVerlassen("PLZetus");
        zuletzt = "PLZetus verlassen";
    } else if (wurf < 87)
        Schreiben("Indexen", wurf == 79 ? wanderer.Eines({"", "-1", "x", "201", "3000000000"})
                                        : ZahlText(wanderer.Wurf(modell.Anzahl + 3)));
    else if (wurf < 91 || modell.Anzahl > HelferModell::Sätze - 8) {
        const bool ja = wanderer.Wurf(3) > 0;
        Antworten = {ja};
        Finden<QAbstractButton>(form, "Datensatzlösch")->click();
        modell.Löschen(ja);
        zuletzt = "löschen";
    } else if (wurf < 93)
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
    for (const auto &[box, text] : modell.Texte)
        ASSERT_EQ(Wanderer::Lesen(C(box)), text) << box;
    ASSERT_EQ(GezeigteMeldungen, modell.Meldungen);
    if (C("PLZetus")->hasFocus()) { // after a save that it stopped
        C("Vorne")->setFocus();
        modell.PostleitzahlVerlassen("PLZetus");
    }
}

TEST_F(LaufHelferForm, TabellenUndFensterBleibenBeimModell)
{
    Text davor;
    for (int schritt = 0; schritt < Schritte; ++schritt) {
        davor = zuletzt;
        Handlung();
        Vergleichen();
        if (HasFailure())
            FAIL() << davor << ", then " << zuletzt << " at step " << schritt;
        GezeigteMeldungen.clear();
        modell.Meldungen.clear();
    }
}

} // namespace
} // namespace altardienst
