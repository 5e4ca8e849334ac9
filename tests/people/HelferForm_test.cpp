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
    EXPECT_EQ(Gezeigt("Indexen"), "1");
    EXPECT_EQ(Gezeigt("Vorne"), "Bea");
    EXPECT_EQ(Gezeigt("Dient"), "Kantor");
    EXPECT_EQ(Gezeigt("Dient2"), "Lektor");
    EXPECT_EQ(Gezeigt("Datensätzig"), "3");
    EXPECT_EQ(Konfig.PlzOrt, "48999 Beispielort");
    EXPECT_EQ(Stumme(form), std::vector<Text>());
    EXPECT_LE(form->minimumSizeHint().width(), KleinsterBildschirm.width());
}

TEST_F(HelferFormTest, NummerZweiHinterDemEndeFälltAufDenLeerenPlatz)
{
    Öffnen();
    Schreiben("Indexen", "5");
    EXPECT_EQ(Gezeigt("Indexen"), "3");
    EXPECT_EQ(Helfer.Anzahl, 3);
    Schreiben("Indexen", "4");
    EXPECT_EQ(Helfer.Anzahl, 4);
    Schreiben("Indexen", "-1");
    EXPECT_EQ(Gezeigt("Indexen"), "0");
}

TEST_F(HelferFormTest, BeimNächstenHelferBeginnenDiePfeiltastenWiederVorn)
{
    Öffnen(1);
    QWidget *dienst = C("Dient2");
    FokusAuf(dienst);
    while (Gezeigt("Dient2") != "Kollektant")
        QTest::keyClick(dienst, Qt::Key_Down);
    QTest::keyClick(dienst, Qt::Key_PageUp);
    EXPECT_EQ(Gezeigt("Vorne"), "Cem");
    EXPECT_EQ(Gezeigt("Dient2"), "");
    QTest::keyClick(dienst, Qt::Key_Down);
    EXPECT_EQ(Gezeigt("Dient2"), "Lektor");
}

TEST_F(HelferFormTest, UmbenennenErreichtDieMessenNurDasSchließfeldNicht)
{
    for (const char *weg : {"PLUS", "MINUS", "Ende"}) {
        Öffnen(1);
        Schreiben("Vorne", weg);
        Drücken(weg);
        EXPECT_EQ(Helfer.Vorname[1], weg);
        EXPECT_EQ(Messe.Kollekt2Vor[0], weg);
        EXPECT_EQ(Messe.Lektor1Vor[0], "");
    }
    Öffnen(1);
    Schreiben("Vorne", "Schluß");
    form->close();
    EXPECT_EQ(Helfer.Vorname[1], "Schluß");
    EXPECT_EQ(Messe.Kollekt2Vor[0], "Ende");
}

TEST_F(HelferFormTest, EinVergebenerNameWirdStillZurückgenommen)
{
    Öffnen(1);
    Schreiben("Vorne", "Anna");
    Schreiben("Hinten", "Adler");
    Drücken("Ende");
    EXPECT_EQ(Helfer.Vorname[1], "Bea");
    EXPECT_EQ(Helfer.Nachname[1], "Berg");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(HelferFormTest, OhneBeideNamenSpeichertNurDasSchließfeld)
{
    Helfer.Straße[2] = "Weg 2";
    const auto leeren = [this] {
        Öffnen(1);
        Schreiben("Vorne", "");
        Schreiben("Hinten", "");
        Schreiben("Weg", "Gasse 1");
    };
    for (const auto &[weg, danach] : std::initializer_list<std::pair<const char *, const char *>>{
             {"PLUS", "2"}, {"MINUS", "0"}, {"auf", "2"}, {"ab", "0"}, {"Ende", "1"}}) {
        SCOPED_TRACE(weg);
        leeren();
        Helfer.Straße[1].clear();
        if (const Text knopf = weg; knopf == "auf" || knopf == "ab")
            Drehen("DPM", knopf == "auf" ? +1 : -1);
        else
            Drücken(weg);
        EXPECT_EQ(Gezeigt("Indexen"), danach) << "left like any other record";
        EXPECT_EQ(Helfer.Vorname[1] + Helfer.Nachname[1], "BeaBerg");
        EXPECT_EQ(Messe.Kollekt2Vor[0] + Messe.Kollekt2Nach[0], "BeaBerg");
        EXPECT_EQ(Helfer.Straße[1], "Gasse 1");
    }
    leeren();
    Drücken("PLUS"); // shows the next helper, whom closing then writes to his own record
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
    Schreiben("Weg", "Gasse 1");
    Drücken("MINUS");
    EXPECT_EQ(Gezeigt("Vorne"), "Cem");
    EXPECT_EQ(Helfer.Straße[3], "Gasse 1");
    Helfer.Vorname[3] = "Dora"; // stored, but never adopted
    Helfer.Nachname[3] = "Dorn";
    Schreiben("Indexen", "3");
    Schreiben("Vorne", "");
    Schreiben("Hinten", "");
    Drücken("Ende");
    EXPECT_EQ(Helfer.Vorname[3] + Helfer.Nachname[3], "");
    EXPECT_EQ(Helfer.Anzahl, 3);
}

TEST_F(HelferFormTest, GespeichertWirdBeimCursorNichtBeiDerNummer)
{
    Öffnen(1);
    Schreiben("Indexen", "x");
    Schreiben("Weg", "Gasse 1");
    form->close(); // without the check, which would need the number
    EXPECT_EQ(Helfer.Straße[1], "Gasse 1");
    Öffnen(1);
    Schreiben("Indexen", "x");
    Schreiben("Weg", "Gasse 2");
    Drücken("Ende");
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{"Laufzeitfehler '13': Typen unverträglich"});
    EXPECT_EQ(Helfer.Straße[1], "Gasse 1");
}

TEST_F(HelferFormTest, OhneVornamenGehtEsNichtVorwärts)
{
    Öffnen(3);
    Schreiben("Hinten", "Dorn");
    Drücken("PLUS");
    EXPECT_EQ(Gezeigt("Indexen"), "3");
    EXPECT_EQ(Helfer.Cursor, 3);
    EXPECT_EQ(Helfer.Nachname[3], "Dorn");
    EXPECT_EQ(Gezeigt("Hinten"), "") << "the next record shows";
}

TEST_F(HelferFormTest, SchließenÜbernimmtDenLeerenPlatzMitEinemNamen)
{
    Öffnen(3);
    form->close();
    EXPECT_EQ(Helfer.Anzahl, 3);
    Öffnen(3);
    Schreiben("Hinten", "Dorn");
    form->close();
    EXPECT_EQ(Helfer.Anzahl, 4);
    Öffnen(4);
    Schreiben("Vorne", "Dora");
    Drücken("Ende");
    EXPECT_EQ(Helfer.Anzahl, 5);
}

TEST_F(HelferFormTest, BlätternMitTastenUndSpinButton)
{
    Öffnen();
    QTest::keyClick(form, Qt::Key_PageUp);
    EXPECT_EQ(Gezeigt("Vorne"), "Bea");
    for (const auto &[richtung, name] : {std::pair(-1, "Anna"), {+1, "Bea"}, {-1, "Anna"}}) {
        FokusAuf(C("Weg"));
        Drehen("DPM", richtung);
        EXPECT_EQ(Gezeigt("Vorne"), name);
        EXPECT_TRUE(C("Indexen")->hasFocus()) << richtung;
    }
    Drücken("MINUS");
    EXPECT_EQ(Gezeigt("Indexen"), "0");
    Schreiben("Indexen", "");
    Drücken("PLUS");
    EXPECT_EQ(Gezeigt("Indexen"), "1");
    Schreiben("Indexen", "");
    Drehen("DPM", +1);
    EXPECT_EQ(GezeigteMeldungen.size(), 1U);
}

TEST_F(HelferFormTest, LöschenFragtUndLäßtZweiStehen)
{
    Öffnen(1);
    Drücken("Datensatzlösch");
    ASSERT_EQ(GestellteFragen.size(), 1U);
    EXPECT_EQ(GestellteFragen[0].Wortlaut, "Wirklich?");
    EXPECT_EQ(GestellteFragen[0].Titel, "Löschen eines Helfers");
    Antworten = {true, true};
    Drücken("Datensatzlösch");
    EXPECT_EQ(Helfer.Anzahl, 2);
    EXPECT_EQ(Gezeigt("Vorne"), "Cem");
    EXPECT_EQ(Gezeigt("Datensätzig"), "2");
    EXPECT_EQ(Messe.Kollekt2Vor[0], "Bea") << "the mass goes on naming her";
    Drücken("Datensatzlösch");
    EXPECT_EQ(GestellteFragen.size(), 3U);
    EXPECT_EQ(Helfer.Anzahl, 2);
}

TEST_F(HelferFormTest, GeburtstagVorMehrAls90KalenderjahrenWirdHeute)
{
    Öffnen();
    Schreiben("Tagen", "1.1.1936");
    EXPECT_EQ(Gezeigt("Tagen"), "01.01.1936");
    Drehen("Änderung1", -1); // 31.12.1935
    EXPECT_EQ(Gezeigt("Tagen"), "21.11.2026");
    Schreiben("Tagen", "31.1.2000");
    Drücken("PMon");
    EXPECT_EQ(Gezeigt("Tagen"), "29.02.2000");
    Drücken("PJahr");
    EXPECT_EQ(Gezeigt("Tagen"), "28.02.2001");
    Drücken("Ptag");
    Drücken("MMon");
    Drücken("MJahr");
    Drücken("MTag");
    EXPECT_EQ(Gezeigt("Tagen"), "31.01.2000");
}

TEST_F(HelferFormTest, ZeitenFolgenDenRegelnDerMeßdiener)
{
    Öffnen();
    Schreiben("Start3", "31.12.2023");
    EXPECT_EQ(Gezeigt("Start3"), "21.11.2026");
    Schreiben("Start2", "01.12.2026");
    EXPECT_EQ(Gezeigt("Schluß2"), "01.12.2026");
    Drehen("ä10", +1);
    EXPECT_EQ(Gezeigt("Schluß2"), "02.12.2026");
    Schreiben("Schluß2", "");
    EXPECT_EQ(Gezeigt("Schluß2"), "01.12.2026") << "today, which is before the start";
    Schreiben("Start", "");
    EXPECT_EQ(Gezeigt("Start"), "");
}

TEST_F(HelferFormTest, WasSichNichtUmwandelnLäßtHältDasSpeichernAuf)
{
    for (const char *box : {"PLZetus", "Tagen", "Start"}) {
        Öffnen();
        GezeigteMeldungen.clear();
        Schreiben(box, "x");
        Drücken("PLUS");
        form->close();
        EXPECT_EQ(GezeigteMeldungen,
                  std::vector<Text>(2, "Laufzeitfehler '13': Typen unverträglich"))
            << box;
        EXPECT_TRUE(form->isVisible());
    }
}

} // namespace
} // namespace altardienst
