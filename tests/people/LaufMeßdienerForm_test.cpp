// A long random walk through the editor of the servers against a model of its rules.
#include "people/Lauf.h"
#include "people/MeßdienerForm.h"
#include "people/MeßdienerModell.h"

#include <QCheckBox>
#include <QRadioButton>

namespace altardienst {
namespace {

class LaufMeßdienerForm : public Lauf<MeßdienerForm, MeßdienerModell> {
  protected:
    LaufMeßdienerForm() : Lauf(20261121)
    {
        Gruppe.Bezeichnung[0] = "Rot";
        Gruppe.Bezeichnung[1] = "Blau";
        Gruppe.Anzahl = 2;
        for (const char *name : {"Anna", "Bea", "Cem", "Dora"})
            MeßdienerAnlegen(name, "Adler", 160, "weiblich");
        for (int m = 0; m < 3; ++m)
            MesseMitDienern(Heute + m, 20);
        MesseDienerFest.Anzahl = 1;
        for (int s = 1; s <= 20; ++s) {
            Messe.DienerVor[1][s] = vornamen[static_cast<std::size_t>(s) % 5];
            Messe.DienerNach[1][s] = nachnamen[static_cast<std::size_t>(s) % 4];
            MesseDienerFest.Vorname[0][s] = "Anna";
            MesseDienerFest.Nachname[0][s] = nachnamen[static_cast<std::size_t>(s) % 4];
        }
        Beginnen();
    }

    void Handlung() override;
    void Ausfüllen();
    void Datumsschritt();
    void Verlassen();
    void Auswählen();
    void Flag();
    void Neu();
    void Vergleichen() override;

    const std::vector<const char *> vornamen = {"Anna", "Bea", "Cem", "Dora", ""};
    const std::vector<const char *> nachnamen = {"Adler", "Berg", "Co,hn", ""};
};

void LaufMeßdienerForm::Ausfüllen()
{
    const auto k = static_cast<std::size_t>(wanderer.Wurf(Felder));
    Text text;
    switch (Arten[k]) {
    case 'D':
        text = wanderer.Eines({"01.01.2026", "15.3.2024", "31.12.2023", "30.12.1899", "29.02.2024",
                               "24.12.2027", "31.1.2025", "x", ""});
        break;
    case 'L':
        text = wanderer.Eines({"12345", "-7", "100000", "3000000000", "x"});
        break;
    case 'N':
        text = wanderer.Eines({"0", "2", "5", "150", "300", "-1", "21", "3000000000", "y"});
        break;
    default:
        text = k == 0 || k == 24   ? wanderer.Eines(vornamen)
               : k == 1 || k == 25 ? wanderer.Eines(nachnamen)
               : k == 11           ? wanderer.Eines({"Rot", "Blau", "Grün", ""})
               : k == 12           ? wanderer.Eines({"jjjjjj", "nnnnnn", "jnjnjn", "jj"})
               : k == 13           ? wanderer.Eines({"jjjjjjjj", "nnnnnnnj", "jnjnjnjn"})
                                   : wanderer.Eines({"Weg 1", "a \"b\", c", "ß", ""});
    }
    BeidenEinsetzen(Boxen[k], text);
}

void LaufMeßdienerForm::Datumsschritt()
{
    const int einheit = wanderer.Wurf(3);
    const int richtung = Richtung();
    const int feld = wanderer.Wurf(13);
    if (feld < 2) {
        const Text box = feld == 0 ? "Gebutag" : "Eintritttdatum";
        const std::array<const char *, 12> knöpfe = {"mTag",    "pTag",    "mMonat", "PMonat",
                                                     "mJahr",   "pJahr",   "mmTag",  "pptag",
                                                     "mmMonat", "ppMonat", "mmJahr", "ppJahr"};
        if (wanderer.Wurf(2) == 0)
            Auslösen(knöpfe[static_cast<std::size_t>(feld * 6 + einheit * 2 + (richtung > 0))]);
        else
            DrehungAuslösen("Änderung" + std::to_string(feld * 3 + einheit + 1), richtung);
        modell.Schritt(box, einheit, richtung);
        zuletzt += box;
    } else if (feld < 12) {
        const int n = feld - 2;
        const Text box = Boxen[static_cast<std::size_t>(14 + n)];
        DrehungAuslösen("ä" + std::to_string(3 * n + einheit + 1), richtung);
        modell.Schritt(box, einheit, richtung);
        zuletzt += box;
    } else {
        DrehungAuslösen("Änderung7", richtung);
        Versuch(
            [&] { modell.Setzen("Groß", ZahlText(Int16Lesen(modell.Texte["Groß"]) + richtung)); });
    }
    zuletzt += richtung > 0 ? " auf" : " ab";
}

void LaufMeßdienerForm::Verlassen()
{
    switch (wanderer.Wurf(3)) {
    case 0:
        FokusWeg("Postleit");
        return modell.PostleitzahlVerlassen("Postleit");
    case 1:
        FokusWeg("Dieenst");
        return modell.GruppeVerlassen();
    default:
        if (wanderer.Wurf(2) == 0) {
            const Text text = Text(wanderer.Eines(nachnamen)) + "," + wanderer.Eines(vornamen);
            Einsetzen("Partner", text);
            modell.Texte["Partner"] = text;
        }
        FokusWeg("Partner");
        modell.PartnerPrüfen(false);
        zuletzt += "Partner verlassen";
    }
}

void LaufMeßdienerForm::Auswählen()
{
    auto *partner = Finden<QComboBox>("Partner");
    if (partner->count() == 0)
        return;
    const int index = wanderer.Wurf(partner->count());
    partner->setCurrentIndex(index);
    partner->setEditText(partner->itemText(index));
    modell.Texte["Partner"] = partner->itemText(index).toStdString();
    zuletzt += "Partner " + modell.Texte["Partner"];
    Q_EMIT partner->activated(index);
    modell.PartnerPrüfen(true);
}

void LaufMeßdienerForm::Flag()
{
    const std::array<const char *, 12> boxen = {"Check1", "Check2",  "Check3",  "Check4",
                                                "Check5", "Check3a", "Check6",  "Check7",
                                                "Check8", "Check9",  "Check10", "Check11"};
    const int k = wanderer.Wurf(14);
    if (k >= 12) {
        Auslösen(k == 12 ? "Norm" : "Oft");
        return modell.Setzen("Haufigk", k == 12 ? "0" : "2");
    }
    auto *box = Finden<QCheckBox>(boxen[static_cast<std::size_t>(k)]);
    Auslösen(box);
    Text &flags = modell.Texte[k < 6 ? "Dienstmittig" : "Abgewählt"];
    const auto stelle = static_cast<std::size_t>(k % 6);
    if (flags.size() <= stelle)
        flags.resize(stelle + 1, 'n');
    flags[stelle] = flags[stelle] == 'j' ? 'n' : 'j';
    zuletzt += boxen[static_cast<std::size_t>(k)];
}

void LaufMeßdienerForm::Neu()
{
    const Text vor = wanderer.Eines(vornamen);
    const Text nach = wanderer.Eines(nachnamen);
    Anlegen("NeuDiener", "NeuMeßdiener", {{"Vornamen", vor}, {"Nachnamen", nach}}, [&] {
        if (modell.IstDoppelt(vor, nach))
            modell.Meldungen.push_back("Doppelt eingeben! Nicht mit mir!!!!!");
        else
            modell.Neu(vor, nach);
    });
}

void LaufMeßdienerForm::Handlung()
{
    const int wurf = wanderer.Wurf(100);
    if (wurf < 40 || wurf >= 97)
        Ausfüllen();
    else if (wurf < 50)
        Datumsschritt();
    else if (wurf < 70) {
        const int richtung = Richtung();
        modell.Blättern(richtung, Geblättert(richtung));
    } else if (wurf < 76)
        Verlassen();
    else if (wurf < 80)
        Auswählen();
    else if (wurf < 86)
        Flag();
    else if (wurf < 91) {
        const Text nummer = wurf == 86 ? wanderer.Eines({"", "-1", "x", "3000000000"})
                                       : ZahlText(wanderer.Wurf(modell.Anzahl + 3));
        BeidenEinsetzen("Datensätze", nummer);
    } else if (wurf < 95 || modell.Anzahl > Sätze - 8)
        Löschen("Lösch");
    else if (wurf < 96)
        Neu();
    else
        Schließen();
}

void LaufMeßdienerForm::Vergleichen()
{
    ASSERT_EQ(Meßdiener.Anzahl, modell.Anzahl);
    ASSERT_EQ(Meßdiener.Cursor, modell.Cursor);
    const int bis = wanderer.Wurf(50) == 0 ? Sätze : std::min(Sätze, modell.Anzahl + 2);
    for (int i = 0; i < bis; ++i)
        ASSERT_EQ(Datensatz(Meßdiener, i), modell.S(i)) << "record " << i;
    ASSERT_TRUE(MeßdienerModell::Plätze() == modell.Messen);
    ASSERT_EQ(static_cast<QRadioButton *>(Finden("Oft"))->isChecked(), modell.Oft);
    ASSERT_EQ(static_cast<QCheckBox *>(Finden("Check3a"))->isChecked(),
              IstJa(modell.Texte["Dienstmittig"], 6));
    ASSERT_EQ(static_cast<QCheckBox *>(Finden("Check6"))->isChecked(),
              IstJa(modell.Texte["Abgewählt"], 1));
    SchirmVergleichen();
    if (Finden("Postleit")->hasFocus()) { // after a save that it stopped
        Finden("Vornamen")->setFocus();
        modell.PostleitzahlVerlassen("Postleit");
    }
}

TEST_F(LaufMeßdienerForm, TabellenUndFensterBleibenBeimModell)
{
    Laufen();
}

} // namespace
} // namespace altardienst
