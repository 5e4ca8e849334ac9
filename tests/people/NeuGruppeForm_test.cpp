// The dialog that adds a group, opened from the editor.
#include "people/NeuGruppeForm.h"

#include "people/GruppeForm.h"
#include "people/Personen.h"
#include "people/Personenstand.h"

namespace altardienst {
namespace {

class NeuGruppeFormTest : public Personenstand {
  protected:
    NeuGruppeFormTest()
    {
        for (const char *name : {"Rot", "Blau", "Grün"})
            GruppeAnlegen(name);
        Gruppe.Cursor = 1;
        editor = new GruppeForm;
        Zeigen(editor);
    }

    /// From now on `form` is the dialog.
    void Öffnen()
    {
        Klick(Finden(editor, "NEWGroup"));
        form = Fenster("NeuGruppe");
        ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    }
    void OK() { Klick("OKButton"); }

    QPointer<GruppeForm> editor;
};

TEST_F(NeuGruppeFormTest, HängtDieNeueAnUndZeigtDieAlte)
{
    Öffnen();
    EXPECT_FALSE(editor->isVisible());
    EXPECT_EQ(Zeigt("GBezeichnung"), "Neue Gruppe");
    OK();
    EXPECT_EQ(Gruppe.Bezeichnung[3], "Neue Gruppe");
    EXPECT_EQ(Gruppe.Anzahl, 4);
    EXPECT_TRUE(editor->isVisible());
    EXPECT_EQ(Zeigt(Finden(editor, "GBezeichnung")), "Blau");
    EXPECT_EQ(Zeigt(Finden(editor, "Gruppenzahl")), "4");
}

TEST_F(NeuGruppeFormTest, EingabetasteLegtAn)
{
    Öffnen();
    EXPECT_TRUE(Finden("GBezeichnung")->hasFocus());
    QTest::keyClicks(Finden("GBezeichnung"), "Lila"); // the preset name is selected
    QTest::keyClick(Finden("GBezeichnung"), Qt::Key_Return);
    EXPECT_EQ(Gruppe.Anzahl, 4);
    EXPECT_EQ(Gruppe.Bezeichnung[3], "Lila");
    EXPECT_TRUE(editor->isVisible());
}

TEST_F(NeuGruppeFormTest, LehntDoppelteAb)
{
    Gruppe.Bezeichnung[3] = "Leer"; // the blank slot does not count
    Öffnen();
    for (const char *name : {"Rot", "Grün"}) {
        GezeigteMeldungen.clear();
        Einsetzen("GBezeichnung", name);
        OK();
        EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{"Doppelt eingeben! Nicht mit mir!!!!!"});
        EXPECT_TRUE(form->isVisible());
        EXPECT_EQ(Gruppe.Anzahl, 3);
    }
    Einsetzen("GBezeichnung", "Leer");
    OK();
    EXPECT_EQ(Gruppe.Anzahl, 5) << "the name in the blank slot stays a group of its own";
}

TEST_F(NeuGruppeFormTest, Nimmt60UndNichtMehr)
{
    Gruppe.Anzahl = 59;
    Öffnen();
    Einsetzen("GBezeichnung", "Die 60.");
    OK();
    EXPECT_EQ(Gruppe.Anzahl, 60);
    EXPECT_EQ(Gruppe.Bezeichnung[59], "Die 60.");
    EXPECT_TRUE(GezeigteMeldungen.empty());
    Öffnen();
    Einsetzen("GBezeichnung", "Die 61.");
    OK();
    EXPECT_EQ(GezeigteMeldungen,
              std::vector<Text>{"Maximale Anzahl Datensätze für Gruppen erreicht!!"});
    EXPECT_EQ(Gruppe.Anzahl, 60);
    EXPECT_EQ(Gruppe.Bezeichnung[60], "");
    EXPECT_TRUE(form->isVisible());
}

TEST_F(NeuGruppeFormTest, DieGrenzeGiltVorDemDoppelten)
{
    Gruppe.Anzahl = 60;
    Öffnen();
    Einsetzen("GBezeichnung", "Rot");
    OK();
    EXPECT_EQ(GezeigteMeldungen,
              std::vector<Text>{"Maximale Anzahl Datensätze für Gruppen erreicht!!"});
}

TEST_F(NeuGruppeFormTest, AbbrechenUndSchließenVerwerfen)
{
    for (const bool abbrechen : {true, false}) {
        Öffnen();
        if (abbrechen)
            Klick("CancelButton");
        else
            form->close();
        EXPECT_TRUE(editor->isVisible());
        EXPECT_EQ(Gruppe.Anzahl, 3);
        EXPECT_EQ(Gruppe.Bezeichnung[3], "");
    }
}

} // namespace
} // namespace altardienst
