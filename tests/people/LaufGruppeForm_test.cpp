// A long random walk through the editor of the groups against a model of its rules.
#include "people/GruppeForm.h"
#include "people/Lauf.h"
#include "people/Personen.h"

namespace altardienst {
namespace {

struct Modell : Modellschirm {
    std::vector<Text> Namen;
    std::vector<Text> Diener; // the groups of the servers, including the blank slot's
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
                             N(Anzahl)); // the last one also stays in its place
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

class LaufGruppeForm : public Lauf<GruppeForm, Modell> {
  protected:
    LaufGruppeForm() : Lauf(20261122)
    {
        for (const char *name : {"Rot", "Blau", "Grün", "Gelb"})
            GruppeAnlegen(name);
        for (int i = 0; i < 8; ++i)
            Meßdiener.Gruppe[MeßdienerAnlegen("Vor" + std::to_string(i), "Nach")] =
                Gruppe.Bezeichnung[i % 5];
        Beginnen();
    }

    void Handlung() override;
    void Vergleichen() override;

    const std::vector<const char *> namen = {"Rot",   "Blau", "Grün", "Gelb", "Weiß",
                                             "a,\"b", "Lila", "Grau", "Rosa", ""};
};

void LaufGruppeForm::Handlung()
{
    const int wurf = wanderer.Wurf(100);
    if (wurf < 30)
        BeidenEinsetzen("GBezeichnung", wanderer.Eines(namen));
    else if (wurf < 65) {
        const int richtung = Richtung();
        Geblättert(richtung);
        modell.Blättern(richtung);
    } else if (wurf < 75)
        BeidenEinsetzen("Indexi", wurf == 74 ? wanderer.Eines({"", "-1", "x", "101", "3000000000"})
                                             : ZahlText(wanderer.Wurf(modell.Anzahl + 3)));
    else if (wurf < 83 || modell.Anzahl > 95)
        Löschen("Löschend");
    else if (wurf < 91) {
        const Text name = wanderer.Eines(namen);
        Anlegen("NEWGroup", "NeuGruppe", {{"GBezeichnung", name}}, [&] { modell.Neu(name); });
    } else
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
    SchirmVergleichen();
}

TEST_F(LaufGruppeForm, TabellenUndFensterBleibenBeimModell)
{
    Laufen();
}

} // namespace
} // namespace altardienst
