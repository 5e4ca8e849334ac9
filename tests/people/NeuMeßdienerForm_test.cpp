// The dialog that adds a server, opened from the editor.
#include "people/NeuMeßdienerForm.h"

#include "people/MeßdienerForm.h"
#include "people/Personenstand.h"

namespace altardienst {
namespace {

class NeuMeßdienerFormTest : public Personenstand {
  protected:
    NeuMeßdienerFormTest()
    {
        Gruppe.Bezeichnung[0] = "Rot";
        Gruppe.Anzahl = 1;
        MeßdienerAnlegen("Anna", "Adler");
        MeßdienerAnlegen("Bea", "Berg");
        form = new MeßdienerForm;
        Zeigen(form);
        Drücken("NeuDiener");
        neu = Fenster("NeuMeßdiener");
    }

    void N(const char *box, const char *text) { Wanderer::Schreiben(Finden(neu, box), text); }
    Text NText(const char *box) { return Wanderer::Lesen(Finden(neu, box)); }
    void OK() { Klick(Finden(neu, "OKButton")); }

    QPointer<QWidget> neu;
};

TEST_F(NeuMeßdienerFormTest, SchlägtOrtHeuteUndGrößeVor)
{
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(neu->windowTitle(), "Neuer Meßdiener");
    EXPECT_EQ(NText("Postleit"), "48999");
    EXPECT_EQ(NText("Gemeinde"), "Beispielort");
    EXPECT_EQ(NText("Gebutag"), "21.11.2026");
    EXPECT_EQ(NText("Eintritttdatum"), "21.11.2026");
    EXPECT_EQ(NText("Groß"), "150");
    EXPECT_EQ(Finden<QComboBox>(neu, "Dieenst")->count(), 2);
    EXPECT_EQ(Finden<QComboBox>(neu, "Geschl")->count(), 2);
    EXPECT_EQ(Stumme(neu), std::vector<Text>());
    EXPECT_LE(neu->minimumSizeHint().height(), KleinsterBildschirm.height());
}

TEST_F(NeuMeßdienerFormTest, ErgänztEinenZuKurzenOrt)
{
    neu->close();
    Konfig.PlzOrt = "1234567"; // since the editor was opened
    Drücken("NeuDiener");
    neu = Fenster("NeuMeßdiener");
    EXPECT_EQ(Konfig.PlzOrt, "48999 Beispielort");
    EXPECT_EQ(NText("Postleit"), "48999");
    EXPECT_EQ(NText("Gemeinde"), "Beispielort");
}

TEST_F(NeuMeßdienerFormTest, HängtDenNeuenAnUndZeigtDenAltenDatensatz)
{
    Meßdiener.Häufigkeit[2] = 2; // what the slot holds
    N("Vornamen", "Cem");
    N("Nachnamen", "Cohn");
    N("Gebutag", "1.2.2015");
    N("Geschl", "männlich");
    N("Dieenst", "Rot");
    OK();
    EXPECT_EQ(Meßdiener.Anzahl, 3);
    EXPECT_EQ(
        Datensatz(Meßdiener, 2),
        (std::vector<Text>{"Cem",        "Cohn",       "",           "48999",      "Beispielort",
                           "",           "",           "01.02.2015", "männlich",   "150",
                           "21.11.2026", "Rot",        "jjjjjj",     "jjjjjjjj",   "30.12.1899",
                           "30.12.1899", "30.12.1899", "30.12.1899", "30.12.1899", "30.12.1899",
                           "30.12.1899", "30.12.1899", "30.12.1899", "30.12.1899", "",
                           "",           "2"}));
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(Gezeigt("Vornamen"), "Anna");
    EXPECT_EQ(Gezeigt("MaxIndex"), "3");
    EXPECT_EQ(Finden<QComboBox>(form, "Partner")->itemText(2), "Cohn,Cem");
}

TEST_F(NeuMeßdienerFormTest, LehntDoppelteUndZuVieleAb)
{
    N("Vornamen", "Bea");
    N("Nachnamen", "Berg");
    OK();
    EXPECT_EQ(GezeigteMeldungen.back(), "Doppelt eingeben! Nicht mit mir!!!!!");
    Meßdiener.Anzahl = 200;
    OK();
    EXPECT_EQ(GezeigteMeldungen.back(), "Maximale Anzahl Datensätze für Meßdiener erreicht!");
    EXPECT_TRUE(neu->isVisible());
    Meßdiener.Anzahl = 199;
    N("Nachnamen", "Neu");
    OK();
    EXPECT_EQ(Meßdiener.Anzahl, 200);
}

TEST_F(NeuMeßdienerFormTest, KlickUndEingabetasteSchreibenDasDatumUm)
{
    N("Gebutag", "1.2.15");
    EXPECT_EQ(NText("Gebutag"), "1.2.15") << "not while typing";
    Klick(Finden(neu, "Gebutag"));
    EXPECT_EQ(NText("Gebutag"), "01.02.2015");
    N("Eintritttdatum", "3.4.16");
    QTest::keyClick(Finden(neu, "Eintritttdatum"), Qt::Key_Return);
    EXPECT_EQ(NText("Eintritttdatum"), "03.04.2016");
    N("Gebutag", "x");
    Klick(Finden(neu, "Gebutag"));
    EXPECT_EQ(NText("Gebutag"), "x");
    EXPECT_TRUE(GezeigteMeldungen.empty());
    OK();
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{"Laufzeitfehler '13': Typen unverträglich"});
    EXPECT_EQ(Meßdiener.Anzahl, 2);
}

TEST_F(NeuMeßdienerFormTest, WasVorDemSchlechtenDatumStehtIstSchonGeschrieben)
{
    Meßdiener.Geschlecht[2] = "weiblich"; // what the slot holds
    Meßdiener.Größe[2] = 7;
    for (const auto &[box, text] : {std::pair("Vornamen", "Cem"),
                                    {"Nachnamen", "Cohn"},
                                    {"Geschl", "männlich"},
                                    {"Dieenst", "Rot"},
                                    {"Gebutag", "x"}})
        N(box, text);
    OK();
    EXPECT_EQ(Meßdiener.Anzahl, 2);
    EXPECT_EQ(Meßdiener.Vorname[2] + " " + Meßdiener.Nachname[2], "Cem Cohn");
    EXPECT_EQ(Meßdiener.PLZ[2], 48999);
    EXPECT_EQ(Meßdiener.Ort[2], "Beispielort");
    EXPECT_EQ(Meßdiener.Geschlecht[2], "weiblich");
    EXPECT_EQ(Meßdiener.Größe[2], 7);
    EXPECT_EQ(Meßdiener.Gruppe[2], "");
}

TEST_F(NeuMeßdienerFormTest, SpinButtonsUndGrenzen)
{
    for (const char *spin : {"Änderung1", "Änderung2", "Änderung3"})
        Wanderer::Drehen(Finden(neu, spin), +1);
    EXPECT_EQ(NText("Gebutag"), "22.12.2027");
    for (const char *spin : {"Änderung4", "Änderung5", "Änderung6"})
        Wanderer::Drehen(Finden(neu, spin), -1);
    EXPECT_EQ(NText("Eintritttdatum"), "20.10.2025");
    Wanderer::Drehen(Finden(neu, "Änderung7"), -1);
    EXPECT_EQ(NText("Groß"), "149");
    N("Groß", "3");
    EXPECT_EQ(NText("Groß"), "5");
    N("Postleit", "100000");
    Wanderer::Verlassen(Finden(neu, "Postleit"));
    EXPECT_EQ(NText("Postleit"), "48999");
}

TEST_F(NeuMeßdienerFormTest, AbbrechenUndSchließenVerwerfen)
{
    N("Vornamen", "Cem");
    Klick(Finden(neu, "CancelButton"));
    EXPECT_TRUE(form->isVisible());
    Drücken("NeuDiener");
    Fenster("NeuMeßdiener")->close();
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(Meßdiener.Anzahl, 2);
    EXPECT_EQ(Meßdiener.Vorname[2], "");
}

} // namespace
} // namespace altardienst
