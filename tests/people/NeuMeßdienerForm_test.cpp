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
        Auslösen("NeuDiener");
        neu = Fenster("NeuMeßdiener");
    }

    void NeuEinsetzen(const char *box, const char *text) { Einsetzen(Finden(neu, box), text); }
    Text NeuZeigt(const char *box) { return Zeigt(Finden(neu, box)); }
    void OK() { Klick(Finden(neu, "OKButton")); }

    QPointer<QWidget> neu;
};

TEST_F(NeuMeßdienerFormTest, SchlägtOrtHeuteUndGrößeVor)
{
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(neu->windowTitle(), "Neuer Meßdiener");
    EXPECT_EQ(NeuZeigt("Postleit"), "48999");
    EXPECT_EQ(NeuZeigt("Gemeinde"), "Beispielort");
    EXPECT_EQ(NeuZeigt("Gebutag"), "21.11.2026");
    EXPECT_EQ(NeuZeigt("Eintritttdatum"), "21.11.2026");
    EXPECT_EQ(NeuZeigt("Groß"), "150");
    EXPECT_EQ(Finden<QComboBox>(neu, "Dieenst")->count(), 2);
    EXPECT_EQ(Finden<QComboBox>(neu, "Geschl")->count(), 2);
    EXPECT_EQ(Stumme(neu), std::vector<Text>());
    EXPECT_LE(neu->minimumSizeHint().height(), KleinsterBildschirm.height());
}

TEST_F(NeuMeßdienerFormTest, ErgänztEinenZuKurzenOrt)
{
    neu->close();
    Konfig.PlzOrt = "1234567"; // since the editor was opened
    Auslösen("NeuDiener");
    neu = Fenster("NeuMeßdiener");
    EXPECT_EQ(Konfig.PlzOrt, "48999 Beispielort");
    EXPECT_EQ(NeuZeigt("Postleit"), "48999");
    EXPECT_EQ(NeuZeigt("Gemeinde"), "Beispielort");
}

TEST_F(NeuMeßdienerFormTest, HängtDenNeuenAnUndZeigtDenAltenDatensatz)
{
    Meßdiener.Häufigkeit[2] = 2; // what the slot holds
    NeuEinsetzen("Vornamen", "Cem");
    NeuEinsetzen("Nachnamen", "Cohn");
    NeuEinsetzen("Gebutag", "1.2.2015");
    NeuEinsetzen("Geschl", "männlich");
    NeuEinsetzen("Dieenst", "Rot");
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
    EXPECT_EQ(Zeigt("Vornamen"), "Anna");
    EXPECT_EQ(Zeigt("MaxIndex"), "3");
    EXPECT_EQ(Finden<QComboBox>("Partner")->itemText(2), "Cohn,Cem");
}

TEST_F(NeuMeßdienerFormTest, LehntDoppelteUndZuVieleAb)
{
    NeuEinsetzen("Vornamen", "Bea");
    NeuEinsetzen("Nachnamen", "Berg");
    OK();
    EXPECT_EQ(GezeigteMeldungen.back(), "Doppelt eingeben! Nicht mit mir!!!!!");
    Meßdiener.Anzahl = 200;
    OK();
    EXPECT_EQ(GezeigteMeldungen.back(), "Maximale Anzahl Datensätze für Meßdiener erreicht!");
    EXPECT_TRUE(neu->isVisible());
    Meßdiener.Anzahl = 199;
    NeuEinsetzen("Nachnamen", "Neu");
    OK();
    EXPECT_EQ(Meßdiener.Anzahl, 200);
}

TEST_F(NeuMeßdienerFormTest, KlickUndEingabetasteSchreibenDasDatumUm)
{
    NeuEinsetzen("Gebutag", "1.2.15");
    EXPECT_EQ(NeuZeigt("Gebutag"), "1.2.15") << "not while typing";
    Klick(Finden(neu, "Gebutag"));
    EXPECT_EQ(NeuZeigt("Gebutag"), "01.02.2015");
    NeuEinsetzen("Eintritttdatum", "3.4.16");
    QTest::keyClick(Finden(neu, "Eintritttdatum"), Qt::Key_Return);
    EXPECT_EQ(NeuZeigt("Eintritttdatum"), "03.04.2016");
    NeuEinsetzen("Gebutag", "x");
    Klick(Finden(neu, "Gebutag"));
    EXPECT_EQ(NeuZeigt("Gebutag"), "x");
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
        NeuEinsetzen(box, text);
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
        DrehungAuslösen(Finden(neu, spin), +1);
    EXPECT_EQ(NeuZeigt("Gebutag"), "22.12.2027");
    for (const char *spin : {"Änderung4", "Änderung5", "Änderung6"})
        DrehungAuslösen(Finden(neu, spin), -1);
    EXPECT_EQ(NeuZeigt("Eintritttdatum"), "20.10.2025");
    DrehungAuslösen(Finden(neu, "Änderung7"), -1);
    EXPECT_EQ(NeuZeigt("Groß"), "149");
    NeuEinsetzen("Groß", "3");
    EXPECT_EQ(NeuZeigt("Groß"), "5");
    NeuEinsetzen("Postleit", "100000");
    FokusWeg(Finden(neu, "Postleit"));
    EXPECT_EQ(NeuZeigt("Postleit"), "48999");
}

TEST_F(NeuMeßdienerFormTest, AbbrechenUndSchließenVerwerfen)
{
    NeuEinsetzen("Vornamen", "Cem");
    Klick(Finden(neu, "CancelButton"));
    EXPECT_TRUE(form->isVisible());
    Auslösen("NeuDiener");
    Fenster("NeuMeßdiener")->close();
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(Meßdiener.Anzahl, 2);
    EXPECT_EQ(Meßdiener.Vorname[2], "");
}

} // namespace
} // namespace altardienst
