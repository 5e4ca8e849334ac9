// How far the three editors of the people browse, and where they open.
#include "people/Personenfenster.h"

namespace altardienst {
namespace {

/// One of the editors: its number box and name box, its last record, its table's count, cursor and
/// names.
struct Editorfall {
    const char *Fenster;
    const char *Nummer;
    const char *Name;
    int Letzter;
    Int16 *Anzahl;
    Int16 *Cursor;
    std::function<Text &(int)> Bezeichnung;
};

std::vector<Editorfall> Fälle()
{
    return {{"Meßdiener", "Datensätze", "Vornamen", 399, &Meßdiener.Anzahl, &Meßdiener.Cursor,
             [](int i) -> Text & { return Meßdiener.Vorname[i]; }},
            {"Gruppe", "Indexi", "GBezeichnung", 100, &Gruppe.Anzahl, &Gruppe.Cursor,
             [](int i) -> Text & { return Gruppe.Bezeichnung[i]; }},
            {"Helfer", "Indexen", "Vorne", 200, &Helfer.Anzahl, &Helfer.Cursor,
             [](int i) -> Text & { return Helfer.Vorname[i]; }}};
}

class DatensatzgrenzenForm : public Personenfenster {
  protected:
    void ÖffnenBei(const Editorfall &fall, int anzahl, int cursor)
    {
        *fall.Anzahl = anzahl;
        *fall.Cursor = cursor;
        Öffnen(fall.Fenster);
    }
};

TEST_F(DatensatzgrenzenForm, DieNummerEndetBeimLetztenDatensatz)
{
    for (const Editorfall &fall : Fälle()) {
        SCOPED_TRACE(fall.Fenster);
        fall.Bezeichnung(fall.Letzter) = "Letzter";
        ÖffnenBei(fall, fall.Letzter, 0); // one more would be the place after the blank slot
        for (const Text &getippt : {ZahlText(fall.Letzter + 1), Text("40000"), Text("3000000000"),
                                    Text("999999999999999")}) {
            Einsetzen(fall.Nummer, "0");
            Einsetzen(fall.Nummer, getippt);
            EXPECT_EQ(Zeigt(fall.Nummer), ZahlText(fall.Letzter)) << getippt;
            EXPECT_EQ(Zeigt(fall.Name), "Letzter");
        }
        EXPECT_EQ(*fall.Anzahl, fall.Letzter);
        EXPECT_EQ(*fall.Cursor, fall.Letzter);
    }
}

TEST_F(DatensatzgrenzenForm, AuchDieGrößteNummerFälltAufDenLeerenPlatz)
{
    for (const Editorfall &fall : Fälle()) {
        SCOPED_TRACE(fall.Fenster);
        ÖffnenBei(fall, 3, 0);
        for (const char *getippt : {"5", "3000000000", "-3000000000", "40000", "-1"}) {
            Einsetzen(fall.Nummer, getippt);
            EXPECT_EQ(Zeigt(fall.Nummer), *getippt == '-' ? "0" : "3") << getippt;
        }
        EXPECT_EQ(*fall.Anzahl, 3);
    }
}

TEST_F(DatensatzgrenzenForm, EinBruchteilHinterDemLeerenPlatzIstSchonZuViel)
{
    for (const Editorfall &fall : Fälle()) {
        SCOPED_TRACE(fall.Fenster);
        ÖffnenBei(fall, 3, 0);
        Einsetzen(fall.Nummer, "4,4");
        EXPECT_EQ(Zeigt(fall.Nummer), "3");
        EXPECT_EQ(*fall.Anzahl, 3);
        Einsetzen(fall.Nummer, "0,4");
        EXPECT_EQ(Zeigt(fall.Nummer), "0,4");
    }
}

TEST_F(DatensatzgrenzenForm, PlusErreichtDenLetztenUndBleibtDort)
{
    for (const Editorfall &fall : Fälle()) {
        SCOPED_TRACE(fall.Fenster);
        for (int i : {fall.Letzter - 1, fall.Letzter}) {
            fall.Bezeichnung(i) = "Nr. " + ZahlText(i);
            if (Text(fall.Fenster) == "Meßdiener")
                Meßdiener.Nachname[i] = "Nachname";
        }
        ÖffnenBei(fall, fall.Letzter, fall.Letzter - 1);
        Auslösen("PLUS");
        EXPECT_EQ(Zeigt(fall.Nummer), ZahlText(fall.Letzter));
        EXPECT_EQ(Zeigt(fall.Name), "Nr. " + ZahlText(fall.Letzter));
        EXPECT_EQ(*fall.Cursor, fall.Letzter);
        Einsetzen(fall.Name, "Neuer");
        Auslösen("PLUS");
        DrehungAuslösen("DPM", +1);
        EXPECT_EQ(Zeigt(fall.Nummer), ZahlText(fall.Letzter));
        EXPECT_EQ(Zeigt(fall.Name), "Neuer");
        EXPECT_EQ(fall.Bezeichnung(fall.Letzter), "Neuer");
        EXPECT_EQ(*fall.Cursor, fall.Letzter);
        EXPECT_EQ(*fall.Anzahl, fall.Letzter);
        EXPECT_TRUE(GezeigteMeldungen.empty());
    }
}

TEST_F(DatensatzgrenzenForm, ÖffnenHinterDemLeerenPlatzErhöhtDieAnzahlUmHöchstensEins)
{
    for (const Editorfall &fall : Fälle()) {
        SCOPED_TRACE(fall.Fenster);
        fall.Bezeichnung(4) = "Vierter";
        ÖffnenBei(fall, 3, 4);
        EXPECT_EQ(*fall.Anzahl, 4);
        EXPECT_EQ(*fall.Cursor, 4);
        EXPECT_EQ(Zeigt(fall.Nummer), "4");
        EXPECT_EQ(Zeigt(fall.Name), "Vierter");
        ÖffnenBei(fall, 3, 5);
        EXPECT_EQ(*fall.Anzahl, 3);
        EXPECT_EQ(*fall.Cursor, 3);
        EXPECT_EQ(Zeigt(fall.Nummer), "3");
        EXPECT_EQ(Zeigt(fall.Name), "") << "the blank slot";
    }
}

TEST_F(DatensatzgrenzenForm, DieAnzahlImFensterFolgtDerAngehobenen)
{
    const std::map<Text, const char *> labels = {
        {"Meßdiener", "MaxIndex"}, {"Gruppe", "Gruppenzahl"}, {"Helfer", "Datensätzig"}};
    for (const Editorfall &fall : Fälle()) {
        ÖffnenBei(fall, 3, 4);
        EXPECT_EQ(Zeigt(labels.at(fall.Fenster)), "4") << fall.Fenster;
    }
}

TEST_F(DatensatzgrenzenForm, ImLeerenPlatzEntstehenMehrAlsDieDialogeErlauben)
{
    for (const auto &[fenster, dialog] :
         std::map<Text, int>{{"Meßdiener", 200}, {"Gruppe", 60}, {"Helfer", 200}}) {
        SCOPED_TRACE(fenster);
        for (const Editorfall &fall : Fälle()) {
            if (fall.Fenster != fenster)
                continue;
            ÖffnenBei(fall, dialog, dialog);
            Einsetzen(fall.Name, "Noch");
            if (fenster == "Meßdiener")
                Einsetzen("Nachnamen", "Einer");
            Auslösen("Ende");
            EXPECT_EQ(*fall.Anzahl, dialog + 1);
            EXPECT_EQ(fall.Bezeichnung(dialog), "Noch");
        }
    }
}

} // namespace
} // namespace altardienst
