// A long random walk through the editor of the groups against a model of its rules.
#include "people/GruppeForm.h"
#include "people/Modellschirm.h"
#include "people/Personen.h"

#include <QAbstractButton>
#include <QApplication>
#include <QPointer>

namespace altardienst {
namespace {

constexpr int Schritte = 20000;

struct Modell : Modellschirm {
    std::vector<Text> Namen;
    std::vector<Text> Diener; // the groups of the servers, the blank slot's too
    int Anzahl = 0;
    int Cursor = 0;

    void Beginnen()
    {
        Namen.resize(103);
        for (int i = 0; i < 103; ++i)
            N(i) = Gruppe.Bezeichnung[i];
        Anzahl = Gruppe.Anzahl;
        for (int i = 0; i <= Meßdiener.Anzahl; ++i)
            Diener.push_back(Meßdiener.Gruppe[i]);
        Regeln["Indexi"] = [this] { NummerGeändert(); };
        Öffnen();
    }

    Text &N(int i) { return Namen.at(static_cast<std::size_t>(i)); }
    int Nummer() { return Int16Lesen(Texte["Indexi"]); }
    void Zählen() { Texte["Gruppenzahl"] = ZahlText(Anzahl); }

    void Öffnen()
    {
        Texte.clear();
        Setzen("Indexi", ZahlText(Cursor));
        Zählen();
    }

    void NummerGeändert()
    {
        NummerBegrenzen("Indexi", 100, Anzahl);
        Versuch([&] {
            Anzahl = std::max(Anzahl, Nummer());
            Cursor = Nummer();
            Texte["GBezeichnung"] = N(Nummer());
        });
        Zählen();
    }

    void Wächter()
    {
        const int i = Nummer();
        for (int n = 0; n <= Anzahl; ++n)
            if (n != i && N(n) == Texte["GBezeichnung"])
                Texte["GBezeichnung"] = N(i);
        for (Text &gruppe : Diener)
            if (gruppe == N(i))
                gruppe = Texte["GBezeichnung"];
    }

    void Blättern(int richtung)
    {
        Offen([&] {
            Wächter();
            const int i = Nummer();
            N(i) = Texte["GBezeichnung"];
            if (richtung > 0) {
                if (i < 100)
                    Texte["GBezeichnung"] = N(i + 1);
                if (!N(i).empty())
                    Setzen("Indexi", ZahlText(i + 1));
            } else {
                if (i > 0)
                    Texte["GBezeichnung"] = N(i - 1);
                Setzen("Indexi", ZahlText(i - 1));
            }
        });
    }

    bool Schließen(bool mitWächter)
    {
        bool zu = false;
        Offen([&] {
            if (mitWächter)
                Wächter();
            N(Nummer()) = Texte["GBezeichnung"];
            if (Nummer() == Anzahl && !Texte["GBezeichnung"].empty())
                ++Anzahl;
            zu = true;
        });
        return zu;
    }

    void Löschen(bool ja)
    {
        if (!ja)
            return;
        Offen([&] {
            const int i = Nummer();
            const Text weg = N(i);
            for (Text &gruppe : Diener)
                if (gruppe == weg)
                    gruppe.clear();
            if (Anzahl > 2) {
                Namen.erase(Namen.begin() + i);
                Namen.insert(Namen.begin() + Anzahl + 1,
                             N(Anzahl)); // the last one stays behind too
                --Anzahl;
                Texte["GBezeichnung"] = N(Cursor);
            }
            Zählen();
            if (Nummer() > Anzahl)
                Setzen("Indexi", ZahlText(Anzahl));
        });
    }

    void Neu(const Text &name)
    {
        if (Anzahl > 59)
            return Meldungen.push_back("Maximale Anzahl Datensätze für Gruppen erreicht!!");
        for (int i = 0; i < Anzahl; ++i)
            if (N(i) == name)
                return Meldungen.push_back("Doppelt eingeben! Nicht mit mir!!!!!");
        if (!N(Anzahl).empty())
            ++Anzahl;
        N(Anzahl) = name;
        ++Anzahl;
        Versuch([&] { Texte["GBezeichnung"] = N(Nummer()); });
        Zählen();
    }
};

class LaufGruppeForm : public Fensterstand {
  protected:
    LaufGruppeForm()
    {
        for (const char *name : {"Rot", "Blau", "Grün", "Gelb"})
            GruppeAnlegen(name);
        for (int i = 0; i < 8; ++i)
            Meßdiener.Gruppe[MeßdienerAnlegen("Vor" + std::to_string(i), "Nach")] =
                Gruppe.Bezeichnung[i % 5];
        Öffnen();
        modell.Beginnen();
    }

    void Öffnen()
    {
        form = new GruppeForm;
        form->show();
    }
    QWidget *C(const Text &name) { return Finden(form.data(), name.c_str()); }
    void Schreiben(const char *box, const Text &text)
    {
        Wanderer::Schreiben(C(box), text);
        modell.Setzen(box, text);
        zuletzt = Text(box) + "=" + text;
    }
    void Handlung();
    void Neu();
    void Schließen();
    void Vergleichen();

    const std::vector<const char *> namen = {"Rot",   "Blau", "Grün", "Gelb", "Weiß",
                                             "a,\"b", "Lila", "Grau", "Rosa", ""};
    Wanderer wanderer{20261122};
    QPointer<GruppeForm> form;
    Modell modell;
    Text zuletzt;
};

void LaufGruppeForm::Neu()
{
    Finden<QAbstractButton>(form, "NEWGroup")->click();
    QWidget *neu = Fenster("NeuGruppe");
    const Text name = wanderer.Eines(namen);
    Finden<QLineEdit>(neu, "GBezeichnung")->setText(Anzeige(name));
    zuletzt = "neu " + name;
    if (wanderer.Wurf(4) > 0) {
        Finden<QAbstractButton>(neu, "OKButton")->click();
        modell.Neu(name);
    }
    if (neu->isVisible())
        neu->close();
    Wanderer::Aufräumen();
}

void LaufGruppeForm::Schließen()
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

void LaufGruppeForm::Handlung()
{
    const int wurf = wanderer.Wurf(100);
    if (wurf < 30)
        Schreiben("GBezeichnung", wanderer.Eines(namen));
    else if (wurf < 65) {
        const int richtung = wanderer.Wurf(2) * 2 - 1;
        if (wanderer.Wurf(2) == 0)
            Wanderer::Drehen(C("DPM"), richtung);
        else
            Finden<QAbstractButton>(form, richtung > 0 ? "PLUS" : "MINUS")->click();
        modell.Blättern(richtung);
        zuletzt = richtung > 0 ? "vor" : "zurück";
    } else if (wurf < 75)
        Schreiben("Indexi", wurf == 74 ? wanderer.Eines({"", "-1", "x", "101", "3000000000"})
                                       : ZahlText(wanderer.Wurf(modell.Anzahl + 3)));
    else if (wurf < 83 || modell.Anzahl > 95) {
        const bool ja = wanderer.Wurf(3) > 0;
        Antworten = {ja};
        Finden<QAbstractButton>(form, "Löschend")->click();
        modell.Löschen(ja);
        zuletzt = "löschen";
    } else if (wurf < 91)
        Neu();
    else
        Schließen();
}

void LaufGruppeForm::Vergleichen()
{
    ASSERT_EQ(Gruppe.Anzahl, modell.Anzahl);
    ASSERT_EQ(Gruppe.Cursor, modell.Cursor);
    for (int i = 0; i < 103; ++i)
        ASSERT_EQ(Gruppe.Bezeichnung[i], modell.N(i)) << i;
    for (int i = 0; i <= Meßdiener.Anzahl; ++i)
        ASSERT_EQ(Meßdiener.Gruppe[i], modell.Diener[static_cast<std::size_t>(i)]) << i;
    for (const auto &[box, text] : modell.Texte)
        ASSERT_EQ(Wanderer::Lesen(C(box)), text) << box;
    ASSERT_EQ(GezeigteMeldungen, modell.Meldungen);
}

TEST_F(LaufGruppeForm, TabellenUndFensterBleibenBeimModell)
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
