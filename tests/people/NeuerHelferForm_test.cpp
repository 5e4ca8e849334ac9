// The dialog that adds a helper, opened from the editor.
#include "people/NeuerHelferForm.h"

#include "people/HelferForm.h"
#include "people/Personenstand.h"

namespace altardienst {
namespace {

class NeuerHelferFormTest : public Personenstand {
  protected:
    NeuerHelferFormTest()
    {
        for (const auto &[vor, nach] :
             {std::pair("Anna", "Adler"), {"Bea", "Berg"}, {"Cem", "Cohn"}})
            HelferAnlegen(vor, nach, "Lektor");
        Helfer.Cursor = 1;
        editor = new HelferForm;
        Zeigen(editor);
    }

    /// From now on `form` is the dialog.
    void Öffnen()
    {
        Klick(Finden(editor, "NeuHelfer"));
        form = Fenster("NeuerHelfer");
        ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    }
    void OK() { Klick("OKButton"); }
    Text ImEditor(const char *name) { return Zeigt(Finden(editor, name)); }

    QPointer<HelferForm> editor;
};

TEST_F(NeuerHelferFormTest, SchlägtOrtUndHeuteVor)
{
    Konfig.PlzOrt = "12345 Neustadt";
    Öffnen();
    EXPECT_FALSE(editor->isVisible());
    EXPECT_EQ(Zeigt("PLZetus"), "12345");
    EXPECT_EQ(Zeigt("Wohort"), "Neustadt");
    EXPECT_EQ(Zeigt("Tagen"), "21.11.2026");
    for (const char *leer : {"Vorne", "Hinten", "Weg", "Anruf", "Mailen", "Dient", "Dient2"})
        EXPECT_EQ(Zeigt(leer), "") << leer;
}

TEST_F(NeuerHelferFormTest, ErgänztEinenZuKurzenOrt)
{
    Konfig.PlzOrt = "1234567"; // since the editor was opened
    Öffnen();
    EXPECT_EQ(Konfig.PlzOrt, "48999 Beispielort");
    EXPECT_EQ(Zeigt("PLZetus"), "48999");
    EXPECT_EQ(Zeigt("Wohort"), "Beispielort");
}

TEST_F(NeuerHelferFormTest, SpinButtonsDrehenTagMonatUndJahr)
{
    Öffnen();
    Einsetzen("Tagen", "31.01.2000");
    DrehungAuslösen("Änderung2", +1);
    EXPECT_EQ(Zeigt("Tagen"), "29.02.2000");
    EXPECT_TRUE(Finden("Tagen")->hasFocus());
    DrehungAuslösen("Änderung3", +1);
    EXPECT_EQ(Zeigt("Tagen"), "28.02.2001");
    DrehungAuslösen("Änderung1", +1);
    EXPECT_EQ(Zeigt("Tagen"), "01.03.2001");
    for (const char *spin : {"Änderung1", "Änderung2", "Änderung3"})
        DrehungAuslösen(spin, -1);
    EXPECT_EQ(Zeigt("Tagen"), "28.01.2000");
}

TEST_F(NeuerHelferFormTest, GeburtstagVorMehrAls90KalenderjahrenWirdHeute)
{
    Öffnen();
    Einsetzen("Tagen", "01.01.1936");
    EXPECT_EQ(Zeigt("Tagen"), "01.01.1936");
    Einsetzen("Tagen", "31.12.1935");
    EXPECT_EQ(Zeigt("Tagen"), "21.11.2026");
    Einsetzen("Tagen", "1.2.80"); // rewritten on every change, unlike the dates of a new server
    EXPECT_EQ(Zeigt("Tagen"), "01.02.1980");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(NeuerHelferFormTest, PostleitzahlWirdBeimVerlassenBegrenzt)
{
    Öffnen();
    for (const auto &[getippt, danach] : std::vector<std::pair<Text, Text>>{{"-1", "0"},
                                                                            {"0", "0"},
                                                                            {"99999", "99999"},
                                                                            {"100000", "48999"},
                                                                            {"3000000000", "48999"},
                                                                            {"abc", "abc"}}) {
        FokusAuf("PLZetus");
        Einsetzen("PLZetus", getippt);
        EXPECT_EQ(Zeigt("PLZetus"), getippt) << "not while typing";
        FokusAuf("Wohort");
        EXPECT_EQ(Zeigt("PLZetus"), danach);
    }
}

TEST_F(NeuerHelferFormTest, HängtDenNeuenAnUndZeigtDenAltenDatensatz)
{
    Helfer.Von1[3] = Heute; // what the slot holds
    Öffnen();
    for (const auto &[box, text] : std::map<const char *, const char *>{{"Vorne", "Dora"},
                                                                        {"Hinten", "Dorn"},
                                                                        {"Weg", "Ufer 7"},
                                                                        {"Anruf", "0251"},
                                                                        {"Mailen", "d@d.de"},
                                                                        {"Tagen", "1.2.80"},
                                                                        {"Dient", "Küster"},
                                                                        {"Dient2", "Kantor"}})
        Einsetzen(box, text);
    OK();
    EXPECT_EQ(Helfer.Anzahl, 4);
    EXPECT_EQ(Datensatz(Helfer, 3),
              (std::vector<Text>{"Dora", "Dorn", "Ufer 7", "48999", "Beispielort", "0251", "d@d.de",
                                 "01.02.1980", "Küster", "Kantor", "21.11.2026", "30.12.1899",
                                 "30.12.1899", "30.12.1899", "30.12.1899", "30.12.1899"}));
    EXPECT_TRUE(editor->isVisible());
    EXPECT_EQ(ImEditor("Vorne"), "Bea");
    EXPECT_EQ(ImEditor("Datensätzig"), "4");
}

TEST_F(NeuerHelferFormTest, Nimmt200UndNichtMehr)
{
    Helfer.Anzahl = 199;
    Öffnen();
    Einsetzen("Vorne", "Der 200.");
    OK();
    EXPECT_EQ(Helfer.Anzahl, 200);
    EXPECT_EQ(Helfer.Vorname[199], "Der 200.");
    EXPECT_TRUE(GezeigteMeldungen.empty());
    Öffnen();
    Einsetzen("Vorne", "Der 201.");
    OK();
    EXPECT_EQ(GezeigteMeldungen,
              std::vector<Text>{"Maximale Anzahl von Datensätzen für Helfer erreicht!"});
    EXPECT_EQ(Helfer.Anzahl, 200);
    EXPECT_EQ(Helfer.Vorname[200], "");
    EXPECT_TRUE(form->isVisible());
}

TEST_F(NeuerHelferFormTest, DieGrenzeGiltVorDemDoppelten)
{
    Helfer.Anzahl = 200;
    Öffnen();
    Einsetzen("Vorne", "Anna");
    Einsetzen("Hinten", "Adler");
    OK();
    EXPECT_EQ(GezeigteMeldungen,
              std::vector<Text>{"Maximale Anzahl von Datensätzen für Helfer erreicht!"});
}

TEST_F(NeuerHelferFormTest, LehntDoppelteAb)
{
    Helfer.Vorname[3] = "Leer"; // the blank slot does not count
    Öffnen();
    for (const auto &[vor, nach] : {std::pair("Anna", "Adler"), {"Cem", "Cohn"}}) {
        GezeigteMeldungen.clear();
        Einsetzen("Vorne", vor);
        Einsetzen("Hinten", nach);
        OK();
        EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{"Doppelt eingeben! Nicht mit mir!!!!!"});
        EXPECT_TRUE(form->isVisible());
    }
    Einsetzen("Vorne", "Leer");
    Einsetzen("Hinten", "");
    OK();
    EXPECT_EQ(Helfer.Anzahl, 4);
}

TEST_F(NeuerHelferFormTest, WasSichNichtUmwandelnLäßtHältDenDialogOffen)
{
    for (const char *box : {"PLZetus", "Tagen"}) {
        Öffnen();
        Einsetzen(box, "x");
        OK();
        EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{"Laufzeitfehler '13': Typen unverträglich"});
        EXPECT_TRUE(form->isVisible());
        EXPECT_TRUE(Finden(box)->hasFocus()) << box;
        EXPECT_EQ(Helfer.Anzahl, 3);
        GezeigteMeldungen.clear();
        Klick("CancelButton");
    }
}

TEST_F(NeuerHelferFormTest, AbbrechenUndSchließenVerwerfen)
{
    for (const bool abbrechen : {true, false}) {
        Öffnen();
        Einsetzen("Vorne", "Dora");
        if (abbrechen)
            Klick("CancelButton");
        else
            form->close();
        EXPECT_TRUE(editor->isVisible());
        EXPECT_EQ(Helfer.Anzahl, 3);
        EXPECT_EQ(Helfer.Vorname[3], "");
    }
}

} // namespace
} // namespace altardienst
