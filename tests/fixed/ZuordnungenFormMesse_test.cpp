// What both dialogs of the fixed entries have in common: the mass, its date and its time.
#include "fixed/Zuordnungsstand.h"

#include "core/SchleifenZähler.h"

namespace altardienst {
namespace {

class ZuordnungenFormMesseTest : public BeideZuordnungen {
  protected:
    Liste Dienste() const
    {
        Liste texte;
        for (int i = 1; i <= Zeilen(); ++i)
            texte.push_back(Dienst(i));
        return texte;
    }
};

INSTANTIATE_TEST_SUITE_P(Dialoge, ZuordnungenFormMesseTest, BeideDialoge(), Dialogname);

TEST_P(ZuordnungenFormMesseTest, EineMesseZeigtSoVieleZeilenWieSieDienerHatMitIhrenDiensten)
{
    const Liste hochamt = {"Gabenbereitung", "Leuchter", "Leuchter", "Allgemein"};
    Liste zwanzig(20, "Allgemein");
    zwanzig[0] = zwanzig[1] = "Weihrauch";
    Öffnen();
    for (const auto &[text, dienste] :
         {std::pair("22.11.2026,18:00:00", Liste{"Flambeau", "Allgemein"}),
          {"22.11.2026,10:00:00,Hochamt", hochamt},
          {"23.11.2026,08:00:00", zwanzig},
          {"24.11.2026,08:00:00,Taufe, klein", Liste(3, "Allgemein")},
          {"23.11.2026,08:00:00,", zwanzig},
          {"22.11.2026,10:00:00", hochamt}}) {
        MesseWählen(text);
        EXPECT_EQ(Dienste(), dienste) << text;
        EXPECT_EQ(AmUm(), Text(text).substr(0, 19));
        EXPECT_EQ(Messentext(), text);
    }
    EXPECT_EQ(GezeigteMeldungen, Liste{});
    if (IstListe()) {
        EXPECT_EQ(MesseDienerFest.Index[0], 4); // kept in the table
        EXPECT_EQ(MesseDienerFest.Dienst[0][3], "Leuchter");
    } else {
        EXPECT_EQ(MesseDienerFest.Index[0], 0); // kept by the dialog
        EXPECT_EQ(MesseDienerFest.Dienst[0][3], "");
    }
}

TEST_P(ZuordnungenFormMesseTest, VonZweiMessenZurSelbenZeitGiltDieSpätere)
{
    Anlegen(Sonntag, 10, 7, "Kindermesse");
    Messe.Weihrauch[4] = 1;
    Öffnen();
    MesseWählen("22.11.2026,10:00:00,Hochamt");
    EXPECT_EQ(Zeilen(), 7);
    EXPECT_EQ(Dienst(1), "Weihrauch");
}

TEST_P(ZuordnungenFormMesseTest, NamenHinterDerZahlDerNeuenMesseFallenWeg)
{
    Öffnen();
    for (int i = 1; i <= 4; ++i)
        Wählen(i, Meßdiener.Nachname[i] + ",Kim");
    MesseWählen("22.11.2026,18:00:00");
    MesseWählen("22.11.2026,10:00:00");
    EXPECT_EQ(Name(1), "Kim|Bauer");
    EXPECT_EQ(Name(2), "Kim|Conrad");
    for (const int i : {3, 4}) {
        EXPECT_EQ(Name(i), "|");
        EXPECT_EQ(Gewählt(i), "");
    }
}

TEST_P(ZuordnungenFormMesseTest, NurEineBekannteMesseTeiltDieNamenAuf)
{
    Öffnen();
    Einsetzen(1, "Abel,Kim"); // without leaving it
    MesseWählen("gibt es nicht");
    EXPECT_EQ(GezeigteMeldungen, Liste{Unbekannt});
    EXPECT_EQ(Name(1), "|");
    MesseWählen("22.11.2026,18:00:00");
    EXPECT_EQ(Name(1), "Kim|Abel");
}

TEST_P(ZuordnungenFormMesseTest, DieDiensteWerdenNurBeimÖffnenVerteilt)
{
    Öffnen();
    Messe.DienerDienst[0][0] = "bleibt";
    Wählen(1, "Abel,Kim");
    EXPECT_EQ(Messe.DienerDienst[0][0], "bleibt") << "slot";
    MesseWählen("22.11.2026,10:00:00,Hochamt");
    EXPECT_EQ(Messe.DienerDienst[0][0], "bleibt") << "mass";
    FokusAuf("DatumD");
    Verlassen();
    EXPECT_EQ(Messe.DienerDienst[0][0], "bleibt") << "date";
    Klick(IstListe() ? "Plus" : "Anfügen");
    EXPECT_EQ(Messe.DienerDienst[0][0], "bleibt") << "move";
    EXPECT_EQ(Gespeichert(0, 1), "Kim|Abel");
    form->close();
    EXPECT_EQ(Messe.DienerDienst[0][0], "bleibt") << "close";
}

TEST_P(ZuordnungenFormMesseTest, EineUnbekannteMesseGehtZurück)
{
    Öffnen();
    const Text lang(100000, 'x');
    for (const char *text : {"", "Hochamt", "22.11.2026", "22.11.2026,10:00:00,",
                             "22.11.26,10:00:00", "22.11.2026,10:00:00,hochamt",
                             "22.11.2026,10:00:00 ", "25.11.2026,10:00:00", "🎉", lang.c_str()}) {
        GezeigteMeldungen.clear();
        MesseWählen(text);
        EXPECT_EQ(GezeigteMeldungen, Liste{Unbekannt}) << Text(text).substr(0, 50);
        EXPECT_EQ(Messentext(), "22.11.2026,10:00:00");
        EXPECT_EQ(AmUm(), "22.11.2026,10:00:00");
        EXPECT_EQ(Zeilen(), 4);
    }
}

TEST_P(ZuordnungenFormMesseTest, DieMeldungKommtVorDemZurücksetzen)
{
    EchteMeldungen();
    Öffnen();
    FokusAuf("Messen");
    MesseEinsetzen("gibt es nicht");
    Beantworten([&](QMessageBox *box) {
        EXPECT_EQ(box->text().toStdString(), Unbekannt);
        EXPECT_EQ(box->standardButtons(), QMessageBox::Ok);
        EXPECT_EQ(Messentext(), "gibt es nicht");
        box->accept();
    });
    QTest::keyClick(Finden<QComboBox>("Messen"),
                    Qt::Key_Tab); // to the date, which the message takes away
    EXPECT_EQ(Messentext(), "22.11.2026,10:00:00");
    EXPECT_EQ(AmUm(), "22.11.2026,10:00:00");
}

TEST_P(ZuordnungenFormMesseTest, DieLeereMesseHinterDerLetztenWirdHeuteUndJetzt)
{
    Öffnen();
    for (const char *text : {"00:00:00,00:00:00", "00:00:00,00:00:00,"}) { // 17 and 18 letters
        MesseWählen(text);
        EXPECT_EQ(Messentext(), "21.11.2026,12:00:00");
        EXPECT_EQ(AmUm(), "21.11.2026,12:00:00");
        EXPECT_EQ(Zeilen(), 4); // there is no mass now
        MesseWählen("22.11.2026,10:00:00");
    }
    EXPECT_EQ(GezeigteMeldungen, Liste{});
}

TEST_P(ZuordnungenFormMesseTest, GesuchtWirdNurBisZumSchleifenZähler)
{
    Öffnen();
    EXPECT_EQ(SchleifenZähler, 5); // from the services, which are distributed on opening
    SchleifenZähler = 2;
    MesseWählen("23.11.2026,08:00:00,");
    EXPECT_EQ(GezeigteMeldungen, Liste{});
    MesseWählen("24.11.2026,08:00:00,Taufe, klein");
    EXPECT_EQ(GezeigteMeldungen, Liste{Unbekannt});
    EXPECT_EQ(Messentext(), "23.11.2026,08:00:00");
    SchleifenZähler = 603; // beyond the table the search ends silently
    MesseWählen("gibt es nicht");
    EXPECT_EQ(GezeigteMeldungen, Liste{Unbekannt});
    EXPECT_EQ(Messentext(), "gibt es nicht");
}

TEST_P(ZuordnungenFormMesseTest, DatumUndUhrzeitKommenBeimVerlassenWiederAusDerMesse)
{
    Öffnen();
    for (const char *feld : {"DatumD", "Zeitd"}) {
        for (const char *text : {"", "abc", "31.02.2027", "1.2.27", "25:61"}) {
            Einsetzen(1, "Abel,Kim");
            Einsetzen("MDV1", "");
            FokusAuf(feld);
            Einsetzen(feld, text);
            Verlassen();
            EXPECT_EQ(AmUm(), "22.11.2026,10:00:00") << text;
            EXPECT_EQ(Name(1), "Kim|Abel"); // the names are split too
        }
    }
    MesseEinsetzen("22.11.2026,18:00:00");
    FokusAuf("Zeitd");
    Verlassen();
    EXPECT_EQ(Dienst(1), "Flambeau");
    EXPECT_EQ(GezeigteMeldungen, Liste{});
}

TEST_P(ZuordnungenFormMesseTest, EingabetasteBringtDatumUndUhrzeitInDieMesse)
{
    Öffnen();
    for (const char *feld : {"DatumD", "Zeitd"}) {
        FokusAuf(feld);
        Einsetzen("DatumD", "1.2.27");
        Einsetzen("Zeitd", "9:30");
        QTest::keyClick(Finden<QLineEdit>(feld), Qt::Key_Return);
        EXPECT_EQ(AmUm(), "01.02.2027,09:30:00") << feld;
        EXPECT_EQ(Messentext(), "01.02.2027,09:30:00");
        Verlassen();
        EXPECT_EQ(AmUm(), "01.02.2027,09:30:00");
    }
}

TEST_P(ZuordnungenFormMesseTest, EinKlickSchreibtDasFeldUmUndGleichtAn)
{
    Öffnen();
    for (const char *feld : {"DatumD", "Zeitd"}) {
        FokusAuf(feld);
        Einsetzen("DatumD", "1.2.27");
        Einsetzen("Zeitd", "9:30");
        Klick(feld);
        EXPECT_EQ(AmUm(), "01.02.2027,09:30:00") << feld;
        EXPECT_EQ(Messentext(), "01.02.2027,09:30:00");
    }
    FokusAuf("Zeitd");
    Einsetzen("DatumD", "abc");
    Einsetzen("Zeitd", "9:30");
    Klick("Zeitd");
    EXPECT_EQ(AmUm(), "abc,09:30:00"); // its own field first
    EXPECT_EQ(Messentext(), "01.02.2027,09:30:00");
}

TEST_P(ZuordnungenFormMesseTest, KeinDatumWirdHeute)
{
    Öffnen();
    FokusAuf("DatumD");
    Einsetzen("DatumD", "00:00:00");
    Einsetzen("Zeitd", "00:00:00");
    QTest::keyClick(Finden<QLineEdit>("DatumD"), Qt::Key_Return);
    EXPECT_EQ(Messentext(), "21.11.2026,00:00:00");
    Einsetzen("DatumD", "0:00:00"); // only exactly this text
    QTest::keyClick(Finden<QLineEdit>("DatumD"), Qt::Key_Return);
    EXPECT_EQ(Zeigt("DatumD"), "30.12.1899");
}

TEST_P(ZuordnungenFormMesseTest, EinKlickAufKeinDatumZeigtDenErstenTag)
{
    Öffnen();
    Einsetzen("DatumD", "00:00:00");
    Klick("DatumD"); // rewrites it as a date before it can become today
    EXPECT_EQ(AmUm(), "30.12.1899,10:00:00");
    EXPECT_EQ(Messentext(), "30.12.1899,10:00:00");
}

TEST_P(ZuordnungenFormMesseTest, DasDatumWirdVorDerUhrzeitUmgeschrieben)
{
    Öffnen();
    FokusAuf("DatumD");
    for (const auto &[datum, zeit, danach] :
         {std::tuple("1.2.27", "abc", "01.02.2027,abc"), {"abc", "9:30", "abc,9:30"}}) {
        Einsetzen("DatumD", datum);
        Einsetzen("Zeitd", zeit);
        QTest::keyClick(Finden<QLineEdit>("DatumD"), Qt::Key_Return);
        EXPECT_EQ(AmUm(), danach);
        EXPECT_EQ(Messentext(), "22.11.2026,10:00:00");
    }
}

TEST_P(ZuordnungenFormMesseTest, WasKeinTerminIstBleibtOhneWortStehen)
{
    Öffnen();
    for (const char *text : {"", "abc", "31.02.2027", "25:61", "40000", "🎉"}) {
        for (const char *feld : {"DatumD", "Zeitd"}) {
            FokusAuf(feld);
            Einsetzen(feld, text);
            const Text getippt = Zeigt(feld);
            QTest::keyClick(Finden<QLineEdit>(feld), Qt::Key_Return);
            Klick(feld);
            EXPECT_EQ(Zeigt(feld), getippt);
            EXPECT_EQ(Messentext(), "22.11.2026,10:00:00");
            Verlassen();
        }
    }
    EXPECT_EQ(GezeigteMeldungen, Liste{});
}

} // namespace
} // namespace altardienst
