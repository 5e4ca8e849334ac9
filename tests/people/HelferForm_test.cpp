// The editor of the helpers through its window.
#include "people/HelferForm.h"

#include "people/Personenstand.h"

namespace altardienst {
namespace {

class HelferFormTest : public Personenstand {
  protected:
    HelferFormTest()
    {
        HelferAnlegen("Anna", "Adler", "Lektor");
        HelferAnlegen("Bea", "Berg", "Kantor", "Lektor");
        HelferAnlegen("Cem", "Cohn", "Kollektant");
        MesseMitDienern(Heute, 1);
        Messe.Kollekt2Vor[0] = "Bea";
        Messe.Kollekt2Nach[0] = "Berg";
    }

    void Öffnen(int cursor = 0)
    {
        delete form;
        Helfer.Cursor = cursor;
        form = new HelferForm;
        Zeigen(form);
    }
};

TEST_F(HelferFormTest, ZeigtDenDatensatzDesCursors)
{
    Öffnen(1);
    EXPECT_EQ(Zeigt("Indexen"), "1");
    EXPECT_EQ(Zeigt("Vorne"), "Bea");
    EXPECT_EQ(Zeigt("Dient"), "Kantor");
    EXPECT_EQ(Zeigt("Dient2"), "Lektor");
    EXPECT_EQ(Zeigt("Datensätzig"), "3");
    EXPECT_EQ(Konfig.PlzOrt, "48999 Beispielort");
    EXPECT_EQ(Stumme(form), std::vector<Text>());
    EXPECT_LE(form->minimumSizeHint().width(), KleinsterBildschirm.width());
}

TEST_F(HelferFormTest, NummerZweiHinterDemEndeFälltAufDenLeerenPlatz)
{
    Öffnen();
    Einsetzen("Indexen", "5");
    EXPECT_EQ(Zeigt("Indexen"), "3");
    EXPECT_EQ(Helfer.Anzahl, 3);
    Einsetzen("Indexen", "4");
    EXPECT_EQ(Helfer.Anzahl, 4);
    Einsetzen("Indexen", "-1");
    EXPECT_EQ(Zeigt("Indexen"), "0");
}

TEST_F(HelferFormTest, BeimNächstenHelferBeginnenDiePfeiltastenWiederVorn)
{
    Öffnen(1);
    QWidget *dienst = Finden("Dient2");
    FokusAuf(dienst);
    while (Zeigt("Dient2") != "Kollektant")
        QTest::keyClick(dienst, Qt::Key_Down);
    QTest::keyClick(dienst, Qt::Key_PageUp);
    EXPECT_EQ(Zeigt("Vorne"), "Cem");
    EXPECT_EQ(Zeigt("Dient2"), "");
    QTest::keyClick(dienst, Qt::Key_Down);
    EXPECT_EQ(Zeigt("Dient2"), "Lektor");
}

TEST_F(HelferFormTest, UmbenennenErreichtDieMessenNurDasSchließfeldNicht)
{
    for (const char *weg : {"PLUS", "MINUS", "Ende"}) {
        Öffnen(1);
        Einsetzen("Vorne", weg);
        Auslösen(weg);
        EXPECT_EQ(Helfer.Vorname[1], weg);
        EXPECT_EQ(Messe.Kollekt2Vor[0], weg);
        EXPECT_EQ(Messe.Lektor1Vor[0], "");
    }
    Öffnen(1);
    Einsetzen("Vorne", "Schluß");
    form->close();
    EXPECT_EQ(Helfer.Vorname[1], "Schluß");
    EXPECT_EQ(Messe.Kollekt2Vor[0], "Ende");
}

TEST_F(HelferFormTest, EinVergebenerNameWirdStillZurückgenommen)
{
    Öffnen(1);
    Einsetzen("Vorne", "Anna");
    Einsetzen("Hinten", "Adler");
    Auslösen("Ende");
    EXPECT_EQ(Helfer.Vorname[1], "Bea");
    EXPECT_EQ(Helfer.Nachname[1], "Berg");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(HelferFormTest, OhneBeideNamenSpeichertNurDasSchließfeld)
{
    Helfer.Straße[2] = "Weg 2";
    const auto leeren = [this] {
        Öffnen(1);
        Einsetzen("Vorne", "");
        Einsetzen("Hinten", "");
        Einsetzen("Weg", "Gasse 1");
    };
    for (const auto &[weg, danach] : std::initializer_list<std::pair<const char *, const char *>>{
             {"PLUS", "2"}, {"MINUS", "0"}, {"auf", "2"}, {"ab", "0"}, {"Ende", "1"}}) {
        SCOPED_TRACE(weg);
        leeren();
        Helfer.Straße[1].clear();
        if (const Text knopf = weg; knopf == "auf" || knopf == "ab")
            DrehungAuslösen("DPM", knopf == "auf" ? +1 : -1);
        else
            Auslösen(weg);
        EXPECT_EQ(Zeigt("Indexen"), danach) << "left like any other record";
        EXPECT_EQ(Helfer.Vorname[1] + Helfer.Nachname[1], "BeaBerg");
        EXPECT_EQ(Messe.Kollekt2Vor[0] + Messe.Kollekt2Nach[0], "BeaBerg");
        EXPECT_EQ(Helfer.Straße[1], "Gasse 1");
    }
    leeren();
    Auslösen("PLUS"); // shows the next helper, whom closing then writes to his own record
    form->close();
    EXPECT_EQ(Helfer.Straße[1] + "," + Helfer.Straße[2], "Gasse 1,Weg 2");
    leeren();
    form->close();
    EXPECT_EQ(Helfer.Vorname[1] + Helfer.Nachname[1], "");
    EXPECT_EQ(Messe.Kollekt2Vor[0] + Messe.Kollekt2Nach[0], "BeaBerg");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(HelferFormTest, DerLeerePlatzSelbstDarfOhneNamenBleiben)
{
    Öffnen(3);
    Einsetzen("Weg", "Gasse 1");
    Auslösen("MINUS");
    EXPECT_EQ(Zeigt("Vorne"), "Cem");
    EXPECT_EQ(Helfer.Straße[3], "Gasse 1");
    Helfer.Vorname[3] = "Dora"; // stored, but never adopted
    Helfer.Nachname[3] = "Dorn";
    Einsetzen("Indexen", "3");
    Einsetzen("Vorne", "");
    Einsetzen("Hinten", "");
    Auslösen("Ende");
    EXPECT_EQ(Helfer.Vorname[3] + Helfer.Nachname[3], "");
    EXPECT_EQ(Helfer.Anzahl, 3);
}

TEST_F(HelferFormTest, GespeichertWirdBeimCursorNichtBeiDerNummer)
{
    Öffnen(1);
    Einsetzen("Indexen", "x");
    Einsetzen("Weg", "Gasse 1");
    form->close(); // without the check, which would need the number
    EXPECT_EQ(Helfer.Straße[1], "Gasse 1");
    Öffnen(1);
    Einsetzen("Indexen", "x");
    Einsetzen("Weg", "Gasse 2");
    Auslösen("Ende");
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{"Laufzeitfehler '13': Typen unverträglich"});
    EXPECT_EQ(Helfer.Straße[1], "Gasse 1");
}

TEST_F(HelferFormTest, OhneVornamenGehtEsNichtVorwärts)
{
    Öffnen(3);
    Einsetzen("Hinten", "Dorn");
    Auslösen("PLUS");
    EXPECT_EQ(Zeigt("Indexen"), "3");
    EXPECT_EQ(Helfer.Cursor, 3);
    EXPECT_EQ(Helfer.Nachname[3], "Dorn");
    EXPECT_EQ(Zeigt("Hinten"), "") << "the next record shows";
}

TEST_F(HelferFormTest, SchließenÜbernimmtDenLeerenPlatzMitEinemNamen)
{
    Öffnen(3);
    form->close();
    EXPECT_EQ(Helfer.Anzahl, 3);
    Öffnen(3);
    Einsetzen("Hinten", "Dorn");
    form->close();
    EXPECT_EQ(Helfer.Anzahl, 4);
    Öffnen(4);
    Einsetzen("Vorne", "Dora");
    Auslösen("Ende");
    EXPECT_EQ(Helfer.Anzahl, 5);
}

TEST_F(HelferFormTest, BlätternMitTastenUndSpinButton)
{
    Öffnen();
    QTest::keyClick(form, Qt::Key_PageUp);
    EXPECT_EQ(Zeigt("Vorne"), "Bea");
    for (const auto &[richtung, name] : {std::pair(-1, "Anna"), {+1, "Bea"}, {-1, "Anna"}}) {
        FokusAuf("Weg");
        DrehungAuslösen("DPM", richtung);
        EXPECT_EQ(Zeigt("Vorne"), name);
        EXPECT_TRUE(Finden("Indexen")->hasFocus()) << richtung;
    }
    Auslösen("MINUS");
    EXPECT_EQ(Zeigt("Indexen"), "0");
    Einsetzen("Indexen", "");
    Auslösen("PLUS");
    EXPECT_EQ(Zeigt("Indexen"), "1");
    Einsetzen("Indexen", "");
    DrehungAuslösen("DPM", +1);
    EXPECT_EQ(GezeigteMeldungen.size(), 1U);
}

TEST_F(HelferFormTest, LöschenFragtUndLäßtZweiStehen)
{
    Öffnen(1);
    Auslösen("Datensatzlösch");
    ASSERT_EQ(GestellteFragen.size(), 1U);
    EXPECT_EQ(GestellteFragen[0].Wortlaut, "Wirklich?");
    EXPECT_EQ(GestellteFragen[0].Titel, "Löschen eines Helfers");
    Antworten = {true, true};
    Auslösen("Datensatzlösch");
    EXPECT_EQ(Helfer.Anzahl, 2);
    EXPECT_EQ(Zeigt("Vorne"), "Cem");
    EXPECT_EQ(Zeigt("Datensätzig"), "2");
    EXPECT_EQ(Messe.Kollekt2Vor[0], "Bea") << "the mass goes on naming her";
    Auslösen("Datensatzlösch");
    EXPECT_EQ(GestellteFragen.size(), 3U);
    EXPECT_EQ(Helfer.Anzahl, 2);
}

TEST_F(HelferFormTest, GeburtstagVorMehrAls90KalenderjahrenWirdHeute)
{
    Öffnen();
    Einsetzen("Tagen", "1.1.1936");
    EXPECT_EQ(Zeigt("Tagen"), "01.01.1936");
    DrehungAuslösen("Änderung1", -1); // 31.12.1935
    EXPECT_EQ(Zeigt("Tagen"), "21.11.2026");
    Einsetzen("Tagen", "31.1.2000");
    Auslösen("PMon");
    EXPECT_EQ(Zeigt("Tagen"), "29.02.2000");
    Auslösen("PJahr");
    EXPECT_EQ(Zeigt("Tagen"), "28.02.2001");
    Auslösen("Ptag");
    Auslösen("MMon");
    Auslösen("MJahr");
    Auslösen("MTag");
    EXPECT_EQ(Zeigt("Tagen"), "31.01.2000");
}

TEST_F(HelferFormTest, ZeitenFolgenDenRegelnDerMeßdiener)
{
    Öffnen();
    Einsetzen("Start3", "31.12.2023");
    EXPECT_EQ(Zeigt("Start3"), "21.11.2026");
    Einsetzen("Start2", "01.12.2026");
    EXPECT_EQ(Zeigt("Schluß2"), "01.12.2026");
    DrehungAuslösen("ä10", +1);
    EXPECT_EQ(Zeigt("Schluß2"), "02.12.2026");
    Einsetzen("Schluß2", "");
    EXPECT_EQ(Zeigt("Schluß2"), "01.12.2026") << "today, which is before the start";
    Einsetzen("Start", "");
    EXPECT_EQ(Zeigt("Start"), "");
}

TEST_F(HelferFormTest, WasSichNichtUmwandelnLäßtHältDasSpeichernAuf)
{
    for (const char *box : {"PLZetus", "Tagen", "Start"}) {
        Öffnen();
        GezeigteMeldungen.clear();
        Einsetzen(box, "x");
        Auslösen("PLUS");
        form->close();
        EXPECT_EQ(GezeigteMeldungen,
                  std::vector<Text>(2, "Laufzeitfehler '13': Typen unverträglich"))
            << box;
        EXPECT_TRUE(form->isVisible());
    }
}

} // namespace
} // namespace altardienst
