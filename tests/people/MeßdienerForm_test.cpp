// The editor of the servers through its window: records, renaming, deleting, adding by the blank
// slot.
#include "people/MeßdienerForm.h"

#include "people/Personenstand.h"

#include <QCheckBox>
#include <QRadioButton>

namespace altardienst {
namespace {

class MeßdienerFormTest : public Personenstand {
  protected:
    MeßdienerFormTest()
    {
        MeßdienerAnlegen("Anna", "Adler");
        MeßdienerAnlegen("Bea", "Berg");
        MeßdienerAnlegen("Cem", "Cohn");
    }

    void Öffnen(int cursor = 0)
    {
        Meßdiener.Cursor = cursor;
        form = new MeßdienerForm;
        Zeigen(form);
    }
};

TEST_F(MeßdienerFormTest, ÖffnetAufDemCursorUndBegrenztIhn)
{
    Öffnen(1);
    EXPECT_EQ(Zeigt("Datensätze"), "1");
    EXPECT_EQ(Zeigt("Vornamen"), "Bea");
    EXPECT_EQ(Zeigt("MaxIndex"), "3");
    EXPECT_EQ(Konfig.PlzOrt, "48999 Beispielort");
    delete form;
    Öffnen(9); // beyond the place after the blank slot
    EXPECT_EQ(Zeigt("Datensätze"), "3");
    EXPECT_EQ(Meßdiener.Cursor, 3);
    EXPECT_EQ(Meßdiener.Anzahl, 3);
}

TEST_F(MeßdienerFormTest, NummerHinterDemLeerenPlatzErhöhtDieAnzahl)
{
    Öffnen();
    Einsetzen("Datensätze", "5");
    EXPECT_EQ(Zeigt("Datensätze"), "3");
    EXPECT_EQ(Meßdiener.Anzahl, 3);
    Einsetzen("Datensätze", "4");
    EXPECT_EQ(Zeigt("Datensätze"), "4");
    EXPECT_EQ(Meßdiener.Anzahl, 4);
    EXPECT_EQ(Zeigt("MaxIndex"), "4");
    Einsetzen("Datensätze", "-2");
    EXPECT_EQ(Zeigt("Datensätze"), "0");
    Einsetzen("Datensätze", "99999");
    EXPECT_EQ(Zeigt("Datensätze"), "4");
}

TEST_F(MeßdienerFormTest, EinVergebenerNameWirdStillZurückgenommen)
{
    Öffnen(1);
    Einsetzen("Vornamen", "Anna");
    Einsetzen("Nachnamen", "Adler");
    Auslösen("PLUS");
    EXPECT_EQ(Meßdiener.Vorname[1], "Bea");
    EXPECT_EQ(Meßdiener.Nachname[1], "Berg");
    EXPECT_TRUE(GezeigteMeldungen.empty());
    EXPECT_EQ(Zeigt("Datensätze"), "2");
}

TEST_F(MeßdienerFormTest, OhneBeideNamenSpeichertNurDasSchließfeld)
{
    MesseMitDienern(Heute, 2);
    Messe.DienerVor[0][2] = MesseDienerFest.Vorname[0][3] = Meßdiener.WunschVorname[0] = "Bea";
    Messe.DienerNach[0][2] = MesseDienerFest.Nachname[0][3] = Meßdiener.WunschNachname[0] = "Berg";
    const auto leeren = [this] {
        Öffnen(1);
        Einsetzen("Vornamen", "");
        Einsetzen("Nachnamen", "");
        Einsetzen("Straßen", "Gasse 1");
    };
    const auto benannt = [] {
        return Meßdiener.Vorname[1] + Meßdiener.Nachname[1] + Messe.DienerVor[0][2] +
               Messe.DienerNach[0][2] + MesseDienerFest.Vorname[0][3] +
               MesseDienerFest.Nachname[0][3] + Meßdiener.WunschVorname[0] +
               Meßdiener.WunschNachname[0];
    };
    for (const auto &[weg, danach] : std::initializer_list<std::pair<const char *, const char *>>{
             {"PLUS", "2"}, {"MINUS", "0"}, {"auf", "2"}, {"ab", "0"}, {"Ende", "1"}}) {
        SCOPED_TRACE(weg);
        leeren();
        Meßdiener.Straße[1].clear();
        if (const Text knopf = weg; knopf == "auf" || knopf == "ab")
            DrehungAuslösen("DPM", knopf == "auf" ? +1 : -1);
        else
            Auslösen(weg);
        EXPECT_EQ(Zeigt("Datensätze"), danach) << "left like any other record";
        EXPECT_EQ(benannt(), "BeaBergBeaBergBeaBergBeaBerg");
        EXPECT_EQ(Meßdiener.Straße[1], "Gasse 1");
        EXPECT_TRUE(GezeigteMeldungen.empty());
        delete form;
    }
    leeren();
    form->close();
    EXPECT_EQ(benannt(), "BeaBergBeaBergBeaBerg") << "the record alone";
    EXPECT_EQ(Meßdiener.Anzahl, 3);
}

TEST_F(MeßdienerFormTest, DerLeerePlatzSelbstDarfOhneNamenBleiben)
{
    Öffnen(3);
    Einsetzen("Straßen", "Gasse 1");
    Auslösen("PLUS");
    EXPECT_EQ(Zeigt("Datensätze"), "3");
    EXPECT_EQ(Meßdiener.Straße[3], "Gasse 1");
    Auslösen("MINUS");
    EXPECT_EQ(Zeigt("Vornamen"), "Cem");
    EXPECT_EQ(Meßdiener.Anzahl, 3);
    Meßdiener.Vorname[3] = "Dora"; // stored, but never added
    Meßdiener.Nachname[3] = "Dorn";
    Einsetzen("Datensätze", "3");
    Einsetzen("Vornamen", "");
    Einsetzen("Nachnamen", "");
    Auslösen("Ende");
    EXPECT_EQ(Meßdiener.Vorname[3] + Meßdiener.Nachname[3], "");
    EXPECT_EQ(Meßdiener.Anzahl, 3);
}

TEST_F(MeßdienerFormTest, UmbenennenErreichtAlleNurDasSchließfeldNicht)
{
    MesseMitDienern(Heute, 2);
    Messe.DienerVor[0][2] = MesseDienerFest.Vorname[0][3] = Meßdiener.WunschVorname[0] = "Bea";
    Messe.DienerNach[0][2] = MesseDienerFest.Nachname[0][3] = Meßdiener.WunschNachname[0] = "Berg";
    for (const char *weg : {"PLUS", "MINUS", "Ende"}) {
        SCOPED_TRACE(weg);
        Öffnen(1);
        const Text neu = Text("Bea ") + weg;
        Einsetzen("Vornamen", neu);
        Auslösen(weg);
        EXPECT_EQ(Meßdiener.Vorname[1], neu);
        EXPECT_EQ(Messe.DienerVor[0][2], neu);
        EXPECT_EQ(MesseDienerFest.Vorname[0][3], neu);
        EXPECT_EQ(Meßdiener.WunschVorname[0], neu);
        delete form;
    }
    const Text davor = Messe.DienerVor[0][2];
    Öffnen(1);
    Einsetzen("Vornamen", "Schluß");
    form->close();
    EXPECT_EQ(Meßdiener.Vorname[1], "Schluß");
    EXPECT_EQ(Messe.DienerVor[0][2], davor);
    EXPECT_EQ(Meßdiener.WunschVorname[0], davor);
}

TEST_F(MeßdienerFormTest, NameImLeerenPlatzFülltKeineLeerenSlots)
{
    MesseMitDienern(Heute, 3);
    Öffnen(3);
    Einsetzen("Vornamen", "Dora");
    Einsetzen("Nachnamen", "Dorn");
    Auslösen("PLUS");
    EXPECT_EQ(Messe.DienerVor[0][1], "");
    EXPECT_EQ(Meßdiener.WunschVorname[0], "");
    EXPECT_EQ(Meßdiener.Anzahl, 4) << "leaving the blank slot adopts it";
}

TEST_F(MeßdienerFormTest, OhneBeideNamenGehtEsNichtVorwärtsAberZurück)
{
    Öffnen(1);
    Einsetzen("Vornamen", "");
    Auslösen("PLUS");
    EXPECT_EQ(Zeigt("Datensätze"), "1");
    EXPECT_EQ(Meßdiener.Vorname[1], "");
    Auslösen("MINUS");
    EXPECT_EQ(Zeigt("Datensätze"), "0");
    Auslösen("MINUS");
    EXPECT_EQ(Zeigt("Datensätze"), "0");
}

TEST_F(MeßdienerFormTest, BildtastenDrückenPlusUndMinus)
{
    Öffnen();
    QTest::keyClick(form, Qt::Key_PageUp);
    EXPECT_EQ(Zeigt("Datensätze"), "1");
    QTest::keyClick(form, Qt::Key_PageDown);
    EXPECT_EQ(Zeigt("Datensätze"), "0");
    Einsetzen("Datensätze", "");
    QTest::keyClick(form, Qt::Key_PageUp); // begins at 0
    EXPECT_EQ(Zeigt("Datensätze"), "1");
    EXPECT_TRUE(GezeigteMeldungen.empty());
    Einsetzen("Datensätze", "");
    DrehungAuslösen("DPM", +1);
    EXPECT_EQ(GezeigteMeldungen.size(), 1U) << "the spin button does not fill an empty box";
}

TEST_F(MeßdienerFormTest, DerCursorLäuftBeimBlätternVorausBisZumSchließen)
{
    Öffnen();
    Auslösen("PLUS");
    EXPECT_EQ(Meßdiener.Cursor, 2);
    Auslösen("Ende");
    EXPECT_EQ(Meßdiener.Cursor, 1);
}

TEST_F(MeßdienerFormTest, SchließenÜbernimmtDenLeerenPlatzNurMitBeidenNamen)
{
    Öffnen(3);
    Einsetzen("Nachnamen", "Dorn");
    Auslösen("Ende");
    EXPECT_EQ(Meßdiener.Anzahl, 3);
    EXPECT_EQ(Meßdiener.Cursor, 2);
    delete form;
    Öffnen(3);
    Einsetzen("Vornamen", "Dora");
    Einsetzen("Nachnamen", "Dorn");
    form->close();
    EXPECT_EQ(Meßdiener.Anzahl, 4);
    EXPECT_EQ(Meßdiener.Cursor, 3);
}

TEST_F(MeßdienerFormTest, LöschenFragtUndLäßtZweiStehen)
{
    Öffnen(1);
    Auslösen("Lösch");
    ASSERT_EQ(GestellteFragen.size(), 1U);
    EXPECT_EQ(GestellteFragen[0].Wortlaut, "Wirklich?");
    EXPECT_EQ(GestellteFragen[0].Titel, "Löschen eines Meßdieners");
    EXPECT_EQ(Meßdiener.Anzahl, 3);
    Antworten = {true, true};
    Auslösen("Lösch");
    EXPECT_EQ(Meßdiener.Anzahl, 2);
    EXPECT_EQ(Zeigt("Vornamen"), "Cem");
    EXPECT_EQ(Zeigt("MaxIndex"), "2");
    Auslösen("Lösch");
    EXPECT_EQ(GestellteFragen.size(), 3U);
    EXPECT_EQ(Meßdiener.Anzahl, 2);
}

TEST_F(MeßdienerFormTest, LöschenAufDemLeerenPlatzNimmtDenLetzten)
{
    Öffnen(3);
    Antworten = {true};
    Auslösen("Lösch");
    EXPECT_EQ(Meßdiener.Anzahl, 2);
    EXPECT_EQ(Meßdiener.Vorname[1], "Bea");
    EXPECT_EQ(Meßdiener.Vorname[2], "");
    EXPECT_EQ(Zeigt("Datensätze"), "2");
    EXPECT_EQ(Zeigt("Vornamen"), "");
}

TEST_F(MeßdienerFormTest, WasKeineZahlOderKeinDatumIstHältDasSpeichernAuf)
{
    for (const char *box : {"Postleit", "Gebutag", "Groß", "Eintritttdatum", "Start"}) {
        SCOPED_TRACE(box);
        Öffnen();
        Einsetzen(box, "x");
        GezeigteMeldungen.clear();
        Auslösen("PLUS");
        Auslösen("Ende");
        EXPECT_EQ(GezeigteMeldungen,
                  std::vector<Text>(2, "Laufzeitfehler '13': Typen unverträglich"));
        EXPECT_TRUE(form->isVisible());
        EXPECT_TRUE(Finden(box)->hasFocus()) << "where the mistake is";
        delete form;
    }
}

TEST_F(MeßdienerFormTest, EineNummerOhneZahlScheitertVorDemSpeichern)
{
    Öffnen();
    Einsetzen("Vornamen", "Neu");
    Einsetzen("Datensätze", "x");
    Auslösen("Ende");
    EXPECT_TRUE(Finden("Datensätze")->hasFocus());
    FokusAuf("Vornamen");
    form->close();
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>(2, "Laufzeitfehler '13': Typen unverträglich"));
    EXPECT_EQ(Meßdiener.Vorname[0], "Anna");
    EXPECT_TRUE(form->isVisible());
    EXPECT_TRUE(Finden("Datensätze")->hasFocus());
}

TEST_F(MeßdienerFormTest, KästchenSchreibenIhreStelle)
{
    Öffnen();
    Auslösen("Check3a");
    EXPECT_EQ(Zeigt("Dienstmittig"), "jjjjjn");
    Auslösen("Check6");
    EXPECT_EQ(Zeigt("Abgewählt"), "jnnnnnnn");
    Einsetzen("Abgewählt", "nxjnnjnj");
    EXPECT_FALSE(Finden<QCheckBox>("Check6")->isChecked());
    EXPECT_FALSE(Finden<QCheckBox>("Check7")->isChecked());
    EXPECT_TRUE(Finden<QCheckBox>("Check8")->isChecked());
    EXPECT_TRUE(Finden<QCheckBox>("Check11")->isChecked());
    Auslösen("Check7");
    Auslösen("PLUS");
    EXPECT_EQ(Meßdiener.Wochendienst[0], "njjnnjnj") << "positions 7 and 8 pass through";
    EXPECT_EQ(Meßdiener.Qualifikation[0], "jjjjjn");
}

TEST_F(MeßdienerFormTest, HäufigkeitAußerhalbDerOptionenBleibtStehen)
{
    Meßdiener.Häufigkeit[0] = 5;
    Öffnen();
    EXPECT_TRUE(Finden<QRadioButton>("Oft")->isChecked());
    Auslösen("PLUS");
    EXPECT_EQ(Meßdiener.Häufigkeit[0], 5);
    EXPECT_TRUE(Finden<QRadioButton>("Norm")->isChecked());
    Auslösen("Oft");
    EXPECT_EQ(Zeigt("Haufigk"), "2");
    Auslösen("Norm");
    EXPECT_EQ(Zeigt("Haufigk"), "0");
    Einsetzen("Haufigk", "25");
    EXPECT_EQ(Zeigt("Haufigk"), "20");
}

TEST_F(MeßdienerFormTest, DieHäufigkeitLäßtSichTippen)
{
    Öffnen();
    auto *feld = Finden<QLineEdit>("Haufigk");
    EXPECT_TRUE(feld->isVisible());
    FokusAuf(feld);
    feld->selectAll();
    QTest::keyClicks(feld, "7");
    EXPECT_TRUE(Finden<QRadioButton>("Oft")->isChecked());
    Auslösen("PLUS");
    EXPECT_EQ(Meßdiener.Häufigkeit[0], 7);
    Einsetzen("Haufigk", "x");
    Auslösen("PLUS");
    EXPECT_EQ(GezeigteMeldungen, (std::vector<Text>{"Laufzeitfehler '13': Typen unverträglich"}));
    EXPECT_TRUE(feld->hasFocus());
    EXPECT_EQ(Zeigt("Datensätze"), "1");
}

TEST_F(MeßdienerFormTest, AuchEineHäufigkeitVonEinsIstOftUndBleibt)
{
    Meßdiener.Häufigkeit[0] = 1;
    Öffnen();
    EXPECT_TRUE(Finden<QRadioButton>("Oft")->isChecked());
    EXPECT_EQ(Zeigt("Haufigk"), "1");
    Auslösen("PLUS");
    EXPECT_EQ(Meßdiener.Häufigkeit[0], 1);
}

TEST_F(MeßdienerFormTest, DieBestätigungDrucktWasAufDemSchirmSteht)
{
    Konfig.Schriftgröße = 10;
    Gruppe.Bezeichnung[0] = "Rot";
    Gruppe.Anzahl = 1;
    Öffnen();
    Einsetzen("Gebutag", "03.04.2015"); // not the day printed
    for (const auto &[box, text] : std::initializer_list<std::pair<const char *, const char *>>{
             {"Vornamen", "Änne"},
             {"Nachnamen", "Öhler"},
             {"Straßen", "Ufer 7"},
             {"Postleit", "12345"},
             {"Gemeinde", "Neustadt"},
             {"Eintritttdatum", "05.06.2026"},
             {"Dieenst", "Rot"}})
        Einsetzen(box, text);
    const auto gespeichert = Datensatz(Meßdiener, 0);
    Auslösen("Aufnahmebestätigung");
    std::vector<Text> gedruckt;
    for (const Text &zeile : Papier.Zeilen)
        if (zeile.starts_with("Print \"") && zeile.size() > 8)
            gedruckt.push_back(zeile.substr(7, zeile.size() - 8));
    ASSERT_GE(gedruckt.size(), 6U); // the town of the parish is above it
    EXPECT_EQ(std::vector<Text>(gedruckt.begin() + 1, gedruckt.begin() + 6),
              (std::vector<Text>{"Änne Öhler", "Ufer 7", "12345 Neustadt",
                                 "Aufgenommen am: 05.06.2026", "In Gruppe: Rot"}));
    EXPECT_EQ(Datensatz(Meßdiener, 0), gespeichert);
}

} // namespace
} // namespace altardienst
