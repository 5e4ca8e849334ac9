// The editor of the groups through its window.
#include "people/GruppeForm.h"

#include "people/Personenstand.h"

namespace altardienst {
namespace {

class GruppeFormTest : public Personenstand {
  protected:
    GruppeFormTest()
    {
        for (const char *name : {"Rot", "Blau", "Grün"}) {
            Gruppe.Bezeichnung[Gruppe.Anzahl] = name;
            ++Gruppe.Anzahl;
        }
        for (const char *gruppe : {"Rot", "Blau", "", "Blau"})
            Meßdiener.Gruppe[MeßdienerAnlegen("Anna", "Adler")] = gruppe;
    }

    void Öffnen(int cursor = 0)
    {
        delete form;
        Gruppe.Cursor = cursor;
        form = new GruppeForm;
        Zeigen(form);
    }
};

TEST_F(GruppeFormTest, ZeigtNameNummerUndAnzahl)
{
    Öffnen(1);
    EXPECT_EQ(Zeigt("Indexi"), "1");
    EXPECT_EQ(Zeigt("GBezeichnung"), "Blau");
    EXPECT_EQ(Zeigt("Gruppenzahl"), "3");
    EXPECT_EQ(Stumme(form), std::vector<Text>());
    EXPECT_LE(form->sizeHint().width(), KleinsterBildschirm.width());
}

TEST_F(GruppeFormTest, NummerWirdBegrenztUndErhöhtDieAnzahlUmEins)
{
    Öffnen();
    for (const auto &[getippt, danach] : std::vector<std::pair<Text, Text>>{
             {"5", "3"}, {"-1", "0"}, {"400", "3"}, {"x", "x"}, {"4", "4"}}) {
        Einsetzen("Indexi", getippt);
        EXPECT_EQ(Zeigt("Indexi"), danach);
    }
    EXPECT_EQ(Gruppe.Anzahl, 4);
    EXPECT_EQ(Zeigt("Gruppenzahl"), "4");
}

TEST_F(GruppeFormTest, UmbenennenErreichtDieMeßdiener)
{
    for (const char *weg : {"PLUS", "MINUS", "Ende"}) {
        Öffnen(1);
        Einsetzen("GBezeichnung", weg);
        Auslösen(weg);
        EXPECT_EQ(Gruppe.Bezeichnung[1], weg);
        EXPECT_EQ(Meßdiener.Gruppe[1], weg);
        EXPECT_EQ(Meßdiener.Gruppe[3], weg);
        EXPECT_EQ(Meßdiener.Gruppe[0], "Rot");
    }
}

TEST_F(GruppeFormTest, DasSchließfeldLäßtDieMeßdienerBeimAltenNamen)
{
    Öffnen(1);
    Einsetzen("GBezeichnung", "Lila");
    form->close();
    EXPECT_EQ(Gruppe.Bezeichnung[1], "Lila");
    EXPECT_EQ(Meßdiener.Gruppe[1], "Blau");
}

TEST_F(GruppeFormTest, EinVergebenerNameWirdStillZurückgenommen)
{
    Öffnen(1);
    Einsetzen("GBezeichnung", "Rot");
    Auslösen("PLUS");
    EXPECT_EQ(Gruppe.Bezeichnung[1], "Blau");
    EXPECT_EQ(Meßdiener.Gruppe[1], "Blau");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(GruppeFormTest, NameImLeerenPlatzWirdGruppeAllerOhneGruppe)
{
    Öffnen(3);
    Einsetzen("GBezeichnung", "Neu");
    Auslösen("Ende");
    EXPECT_EQ(Gruppe.Anzahl, 4);
    EXPECT_EQ(Meßdiener.Gruppe[2], "Neu");
    Öffnen(4);
    Einsetzen("GBezeichnung", "Noch");
    form->close();
    EXPECT_EQ(Gruppe.Anzahl, 5) << "adopted by the window's close too";
}

TEST_F(GruppeFormTest, OhneNamenGehtEsNichtVorwärts)
{
    Öffnen(3);
    Auslösen("PLUS");
    EXPECT_EQ(Zeigt("Indexi"), "3");
    DrehungAuslösen("DPM", -1);
    EXPECT_EQ(Zeigt("GBezeichnung"), "Grün");
    DrehungAuslösen("DPM", +1);
    EXPECT_EQ(Zeigt("Indexi"), "3");
    Öffnen(0);
    Auslösen("MINUS");
    EXPECT_EQ(Zeigt("Indexi"), "0");
    QTest::keyClick(form, Qt::Key_PageUp);
    EXPECT_EQ(Zeigt("Indexi"), "1");
    QTest::keyClick(form, Qt::Key_PageDown);
    EXPECT_EQ(Zeigt("Indexi"), "0");
}

TEST_F(GruppeFormTest, NummerOhneZahlHältDasSpeichernAuf)
{
    Öffnen();
    Einsetzen("Indexi", "");
    Auslösen("PLUS");
    Auslösen("Ende");
    form->close();
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>(3, "Laufzeitfehler '13': Typen unverträglich"));
    EXPECT_TRUE(form->isVisible());
}

TEST_F(GruppeFormTest, LöschenFragtUndNimmtDieGruppeDenMeßdienern)
{
    Öffnen(1);
    Auslösen("Löschend");
    ASSERT_EQ(GestellteFragen.size(), 1U);
    EXPECT_EQ(GestellteFragen[0].Wortlaut, "Wirklich?");
    EXPECT_EQ(GestellteFragen[0].Titel, "Löschen einer Gruppe");
    EXPECT_EQ(Meßdiener.Gruppe[1], "Blau");
    Antworten = {true, true};
    Auslösen("Löschend");
    EXPECT_EQ(Gruppe.Anzahl, 2);
    EXPECT_EQ(Zeigt("GBezeichnung"), "Grün");
    EXPECT_EQ(Zeigt("Gruppenzahl"), "2");
    EXPECT_EQ(Meßdiener.Gruppe[1], "");
    Meßdiener.Gruppe[0] = "Grün";
    Auslösen("Löschend"); // with two left the group stays
    EXPECT_EQ(Gruppe.Anzahl, 2);
    EXPECT_EQ(Gruppe.Bezeichnung[1], "Grün");
    EXPECT_EQ(Meßdiener.Gruppe[0], "");
}

} // namespace
} // namespace altardienst
