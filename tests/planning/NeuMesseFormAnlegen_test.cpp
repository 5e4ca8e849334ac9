// The dialog for a new mass: what OK refuses and writes, cancelling, bad input.
#include "planning/Neumessenstand.h"

#include <algorithm>

namespace altardienst {
namespace {

class NeuMesseFormAnlegenTest : public Neumessenstand {};

TEST_F(NeuMesseFormAnlegenTest, OKSchreibtDenFreienDatensatzUndOrdnetIhnEin)
{
    Öffnen(2);
    MesseFüllen(5); // what was left past the end stays, except the fields of the dialog
    const Satz rest = MesseSatz(5);
    Termin("24.11.2026", "8:2:30", "Dienstag  ");
    Einsetzen("Messewesen", "Requiem");
    for (const auto &[feld, zahl] : {std::pair("Dienster1", "1"),
                                     {"Dienster2", "2"},
                                     {"Dienster3", "3"},
                                     {"Dienster4", "2"},
                                     {"Dienster5", "1"},
                                     {"Dienster6", "4"},
                                     {"Dienerzahlen", "7"},
                                     {"Lecki", "1"},
                                     {"Kommi", "2"},
                                     {"Kanto", "0"},
                                     {"Kolt", "2"}})
        Einsetzen(feld, zahl);
    Klick("OKButton");
    EXPECT_TRUE(IstZurück());
    EXPECT_EQ(Messe.Anzahl, 6);
    Satz neu = rest;
    const Satz geschrieben = {"Dienstag  ", "24.11.2026", "08:02:30", "Requiem", "7", "1",
                              "2",          "3",          "2",        "1",       "4"};
    std::ranges::copy(geschrieben, neu.begin());
    for (const auto &[feld, zahl] : {std::pair(0, "1"), {5, "2"}, {10, "0"}, {15, "2"}})
        neu[static_cast<std::size_t>(75 + feld)] = zahl;
    Messenbild modell(vorher.begin(), vorher.begin() + 3);
    modell.push_back(neu);
    modell.insert(modell.end(), vorher.begin() + 3, vorher.begin() + 5);
    Messenbild jetzt = MessenJetzt();
    jetzt.resize(6); // past the end is the scratch record of the sort
    EXPECT_EQ(jetzt, modell);
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{});
}

TEST_F(NeuMesseFormAnlegenTest, NachOKZeigtDieListeIhreNummerNeu)
{
    Öffnen(2);
    Termin("21.11.2026", "7:00", "Samstag");
    Klick("OKButton");
    EXPECT_TRUE(IstZurück());
    EXPECT_EQ(InDerListe("maxi"), "6");
    EXPECT_EQ(InDerListe("Datensatzus"), "2");
    EXPECT_EQ(InDerListe("Messewesen"), "Art1"); // another mass than before
    EXPECT_EQ(InDerListe("vor3"), "Vor3/1");
    EXPECT_EQ(Messe.Messeart[0], "Messe");
    EXPECT_EQ(Messe.Kennung[0], "");
    EXPECT_EQ(Messe.Dienerzahl[0], 0);
    EXPECT_EQ(Messe.DienerVor[0][1], "");
}

// Filled in once: the change of the date rewrites the weekday, that of the services the count.
TEST_F(NeuMesseFormAnlegenTest, DieListeFülltSichNachOKNurEinmal)
{
    Öffnen(2);
    Termin("21.11.2026", "7:00", "Samstag");
    Klick("OKButton");
    EXPECT_EQ(Länge(InDerListe("tagelang")), 10);
    EXPECT_NE(InDerListe("tagelang"), Messe.Wochentag[2]);
    EXPECT_EQ(InDerListe("Dienerzahlen"),
              ZahlText(Messe.Gabenbereitung[2] + Messe.Leuchter[2] + Messe.Flambeau[2] +
                       Messe.Weihrauch[2] + Messe.Kreuzträger[2] + Messe.Allgemein[2]));
    EXPECT_NE(InDerListe("Dienerzahlen"), ZahlText(Messe.Dienerzahl[2]));
}

TEST_F(NeuMesseFormAnlegenTest, EinVergangenesDatumWirdVorDemSchreibenHeute)
{
    Öffnen();
    Termin("1.1.2020", "7:00", "irgendwann");
    Klick("OKButton");
    EXPECT_TRUE(IstZurück());
    EXPECT_EQ(Messe.Datum[0], Heute);
    EXPECT_EQ(Messe.Wochentag[0], "Samstag   ");
}

TEST_F(NeuMesseFormAnlegenTest, AbbrechenUndSchließenÄndernNichts)
{
    for (const bool mitKnopf : {true, false}) {
        Öffnen();
        Termin("1.2.2027", "7:00", "Montag");
        Einsetzen("Dienster3", "5");
        if (mitKnopf)
            Klick("CancelButton");
        else
            form->close();
        EXPECT_TRUE(IstZurück());
        EXPECT_EQ(MessenJetzt(), vorher);
        EXPECT_EQ(Messe.Anzahl, 5);
        EXPECT_EQ(InDerListe("Messewesen"), "Art2");
        EXPECT_EQ(InDerListe("tagelang"), "Dienstag");
        EXPECT_TRUE(liste->close());
        EXPECT_EQ(MessenJetzt(), vorher);
        delete liste;
    }
}

TEST_F(NeuMesseFormAnlegenTest, Die300MesseGehtNochDie301Nicht)
{
    Öffnen(2, 299);
    Termin("21.11.2026", "7:00", "Samstag");
    Klick("OKButton");
    EXPECT_TRUE(IstZurück());
    EXPECT_EQ(Messe.Anzahl, 300);
    ÜberDieListe();
    Termin("21.11.2026", "7:00", "Samstag   "); // the full table is checked before duplicates
    const Messenbild voll = MessenJetzt();
    Klick("OKButton");
    EXPECT_EQ(GezeigteMeldungen,
              std::vector<Text>{"Maximale Anzahl von Datensätze für Messen erreicht!"});
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(Zeigt("tagelang"), "Samstag   ");
    EXPECT_EQ(MessenJetzt(), voll);
    EXPECT_EQ(Messe.Anzahl, 300);
}

TEST_F(NeuMesseFormAnlegenTest, DoppeltIstNurGleicherTagGleicheZeitUndGleicherWochentagstext)
{
    Öffnen();
    for (const int i : {0, 2, 4}) {
        GezeigteMeldungen.clear();
        Termin(KurzesDatum(Messe.Datum[i]).c_str(), LangeZeit(Messe.Uhrzeit[i]).c_str(),
               Messe.Wochentag[i].c_str());
        Klick("OKButton");
        EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{"Doppelt eingeben! Nicht mit mir!!!!!"});
        EXPECT_TRUE(form->isVisible());
        EXPECT_EQ(MessenJetzt(), vorher);
        EXPECT_EQ(Messe.Anzahl, 5);
    }
    GezeigteMeldungen.clear();
    Termin("24.11.2026", "08:02:00", "Dienstag  "); // padded, as the dialog writes it
    Klick("OKButton");
    EXPECT_TRUE(IstZurück());
    EXPECT_EQ(Messe.Anzahl, 6);
    ÜberDieListe();
    Termin("24.11.2026", "08:02:00", "Dienstag  ");
    Klick("OKButton");
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{"Doppelt eingeben! Nicht mit mir!!!!!"});
    EXPECT_EQ(Messe.Anzahl, 6);
    GezeigteMeldungen.clear();
    Einsetzen("Uhrwerk", "08:03:00");
    Klick("OKButton");
    EXPECT_TRUE(IstZurück());
    EXPECT_EQ(Messe.Anzahl, 7);
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{});
}

TEST_F(NeuMesseFormAnlegenTest, GleicheZeitUndGleicherWochentagAnEinemAnderenTagIstNichtDoppelt)
{
    Öffnen();
    Termin("01.12.2026", "08:02:00", "Dienstag"); // a week after mass 2
    Klick("OKButton");
    EXPECT_TRUE(IstZurück());
    EXPECT_EQ(Messe.Anzahl, 6);
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{});
}

TEST_F(NeuMesseFormAnlegenTest, AmSelbenTagOrdnetDieUhrzeit)
{
    Öffnen();
    Termin("24.11.2026", "07:00", "Dienstag"); // an hour before mass 2
    Klick("OKButton");
    EXPECT_TRUE(IstZurück());
    EXPECT_EQ(Messe.Messeart[2], "Messe");
    EXPECT_EQ(Messe.Messeart[3], "Art2");
}

TEST_F(NeuMesseFormAnlegenTest, DerWegInDenDialogNimmtKeinenFestenEintragMit)
{
    MessenFüllen(5);
    ListeZeigen(2);
    Fest(0, 2);
    Klick("pt");
    Klick("phh");
    ÜberDieListe();
    EXPECT_EQ(MesseDienerFest.Datum[0], Messe.Datum[2]);
    EXPECT_EQ(MesseDienerFest.Uhrzeit[0], Messe.Uhrzeit[2]);
    EXPECT_EQ(KurzesDatum(Messe.Datum[2]), "24.11.2026");
}

TEST_F(NeuMesseFormAnlegenTest, DieSlotsDerListeNennenDieDiensteIhrerMesse)
{
    MessenFüllen(3);
    NurLeuchter(0, 0);
    NurLeuchter(1, 2);
    NurLeuchter(2, 0);
    for (const int i : {1, 2}) {
        Messe.Allgemein[i] = 2;
        Messe.Dienerzahl[i] = Messe.Leuchter[i] + 2;
    }
    ListeZeigen(2);
    Einsetzen("Dienster2", "2");
    Einsetzen("Dienerzahlen", "2");
    EXPECT_EQ(Finden<QLabel>("MDR[0]")->text(), "Leuchter :");
    ÜberDieListe();
    Klick("CancelButton");
    EXPECT_TRUE(IstZurück());
    EXPECT_EQ(InDerListe("Dienster2"), "0");
    EXPECT_EQ(InDerListe("MDR[0]"), "Meßdiener 1 :");
    ÜberDieListe();
    Termin("21.11.2026", "7:00", "Samstag"); // takes mass 1 to the number of the list
    Klick("OKButton");
    EXPECT_TRUE(IstZurück());
    EXPECT_EQ(InDerListe("Messewesen"), "Art1");
    EXPECT_EQ(InDerListe("MDR[1]"), "Leuchter :");
}

TEST_F(NeuMesseFormAnlegenTest, WasSichNichtUmwandelnLässtBekommtDenFokus)
{
    std::vector<const char *> boxen(Zahlen.begin(), Zahlen.end());
    boxen.insert(boxen.end(), {"datendaten", "Uhrwerk"});
    Öffnen();
    Termin("01.02.2027", "10:00", "Montag");
    for (const char *box : boxen) {
        const Text zuvor = Zeigt(box);
        Einsetzen(box, "abc");
        Klick("OKButton");
        EXPECT_EQ(GezeigteMeldungen.size(), 1U) << box;
        EXPECT_TRUE(Finden(box)->hasFocus()) << box;
        GezeigteMeldungen.clear();
        Einsetzen(box, zuvor);
    }
    Einsetzen("datendaten", "abc");
    Taste("Uhrwerk", Qt::Key_Return); // silently
    EXPECT_TRUE(Finden("datendaten")->hasFocus());
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{});
}

TEST_F(NeuMesseFormAnlegenTest, OhneDieListeSchließtErSichStill)
{
    Öffnen();
    delete liste;
    Klick("CancelButton");
    EXPECT_TRUE(Warten([&] { return !form; }));
}

TEST_F(NeuMesseFormAnlegenTest, DoppeltGiltVorDemNeurechnenUndNichtHinterDemEnde)
{
    Öffnen();
    MesseFüllen(5); // past the end
    Messe.Datum[1] = DatumAus({2020, 1, 6});
    Messe.Wochentag[1] = "Montag";
    Termin("06.01.2020", "08:01:00", "Montag");
    Klick("OKButton");
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{"Doppelt eingeben! Nicht mit mir!!!!!"});
    GezeigteMeldungen.clear();
    Termin("27.11.2026", "08:05:00", "Freitag");
    Klick("OKButton");
    EXPECT_EQ(Messe.Anzahl, 6);
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{});
}

TEST_F(NeuMesseFormAnlegenTest, WasSichNichtUmwandelnLässtWirdGemeldetUndLegtKeineMesseAn)
{
    std::vector<const char *> boxen(Zahlen.begin(), Zahlen.end());
    boxen.insert(boxen.end(), {"datendaten", "Uhrwerk"});
    Öffnen();
    for (const char *box : boxen) {
        for (const char *text : {"abc", "", "31.02.2027", "25:61"}) {
            Termin("1.2.2027", "10:00", "Montag");
            for (const char *zahl : Zahlen)
                Einsetzen(zahl, "1");
            GezeigteMeldungen.clear();
            Einsetzen(box, text);
            EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{});
            Klick("OKButton");
            EXPECT_EQ(GezeigteMeldungen,
                      std::vector<Text>{"Laufzeitfehler '13': Typen unverträglich"})
                << box << " " << text;
            EXPECT_EQ(Messe.Anzahl, 5);
            EXPECT_TRUE(form->isVisible());
            EXPECT_EQ(Zeigt(box), text);
        }
    }
    Messenbild jetzt = MessenJetzt();
    jetzt.resize(5);
    EXPECT_EQ(jetzt, Messenbild(vorher.begin(), vorher.begin() + 5));
}

TEST_F(NeuMesseFormAnlegenTest, EinSchlechterTerminBleibtStehenUndGehtNichtWeiter)
{
    Öffnen();
    Einsetzen("tagelang", "irgendwann");
    for (const char *text : {"31.02.2027", "abc", "", "40000", "-1"}) {
        Einsetzen("datendaten", text);
        Einsetzen("Uhrwerk", text);
        for (const char *spin : {"Änderung1", "Änderung2", "Änderung4", "Änderung5", "Änderung6"})
            Drehen(spin, "auf");
        Klick("Taga");
        Taste("datendaten", Qt::Key_Return);
        EXPECT_EQ(Zeigt("datendaten"), text);
        EXPECT_EQ(Zeigt("Uhrwerk"), text);
        EXPECT_EQ(Zeigt("tagelang"), "irgendwann");
    }
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{});
}

TEST_F(NeuMesseFormAnlegenTest, ZeilenumbrücheUndEmojiStehenAuchAufDemSchirmNicht)
{
    Öffnen();
    Termin("1.2.2027", "10:00", "Montag");
    Einsetzen("Messewesen", "Hoch\namt 🎉 €");
    EXPECT_EQ(Zeigt("Messewesen"), "Hoch amt ? €");
    Klick("OKButton");
    EXPECT_EQ(Messe.Messeart[5], "Hoch amt ? €");
}

} // namespace
} // namespace altardienst
