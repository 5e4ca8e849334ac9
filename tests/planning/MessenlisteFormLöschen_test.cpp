// The mass list: deleting, leaving, and the ways that lead into it.
#include "planning/MessenlisteImProgramm.h"

#include <algorithm>

namespace altardienst {
namespace {

class MessenlisteFormLöschenTest : public Messenlistenstand {};
class MessenlisteFormEndeTest : public Messenlistenstand {};

TEST_F(MessenlisteFormLöschenTest, LöschenFragtUndTutBeiNeinNichts)
{
    Öffnen(5);
    AllesÄndern();
    const Satz schirm = Schirm();
    Klick("Löscher");
    ASSERT_EQ(GestellteFragen.size(), 1U);
    EXPECT_EQ(GestellteFragen[0].Wortlaut, "Wirklich?");
    EXPECT_EQ(GestellteFragen[0].Titel, "Löschen einer Messe");
    EXPECT_EQ(MessenJetzt(), vorher);
    EXPECT_EQ(Schirm(), schirm);
}

TEST_F(MessenlisteFormLöschenTest, LöschenSchließtDieLückeInJederSpalte)
{
    for (const int i : {0, 1, 11, 28, 29, 30}) { // 30: past the end, deletes the last one
        Öffnen(i);
        const auto gelöscht = static_cast<std::size_t>(std::min(i, 29));
        Messenbild modell = vorher;
        for (std::size_t n = gelöscht; n <= 30; ++n) {
            modell[n] = vorher[n + 1];
            for (std::size_t k = ErsterDienst; k < ErsterDienst + 63; k += 3)
                modell[n][k] = vorher[n][k];
        }
        modell[30][0] = "";
        Antworten = {true};
        Klick("Löscher");
        EXPECT_EQ(MessenJetzt(), modell) << i;
        EXPECT_EQ(Messe.Anzahl, 29);
        EXPECT_EQ(Zeigt("maxi"), "29");
        EXPECT_EQ(Zeigt("Datensatzus"), ZahlText(static_cast<int>(gelöscht)));
        EXPECT_EQ(Zeigt("Messewesen"), modell[gelöscht][3]);
        EXPECT_EQ(Zeigt("vor1"), modell[gelöscht][14]);
        delete form;
    }
}

// Filled in once: the change of the date rewrites the weekday, that of the services the count.
TEST_F(MessenlisteFormLöschenTest, NachDemLöschenFülltSichDerSchirmEinmalUndDieSlotsSindDieDerMesse)
{
    Öffnen(5);
    Antworten = {true};
    Messe.Gabenbereitung[6] = 0;
    Messe.Leuchter[6] = 0;
    Messe.Flambeau[6] = 0;
    Messe.Weihrauch[6] = 2;
    Messe.Kreuzträger[6] = 0;
    Messe.Allgemein[6] = 3;
    Messe.Dienerzahl[6] = 5;
    Klick("Löscher");
    EXPECT_EQ(Länge(Zeigt("tagelang")), 10);
    EXPECT_EQ(Zeigt("Dienerzahlen"), "5");
    EXPECT_EQ(Slot(1), "Weihrauch :");
    EXPECT_EQ(Slot(2), "Weihrauch :");
    EXPECT_EQ(Slot(3), "Meßdiener 3 :");
    form->close();
    EXPECT_EQ(Länge(Messe.Wochentag[5]), 10);
}

// Masses that differ in just one service, which the number of servers follows.
TEST_F(MessenlisteFormLöschenTest, NachDemLöschenStehenDieSlotsDerNächstenMesse)
{
    MessenFüllen(5);
    NurLeuchter(1, 2);
    NurLeuchter(2, 0);
    ListeZeigen(1);
    EXPECT_EQ(Slot(1), "Leuchter :");
    Antworten = {true};
    Klick("Löscher");
    EXPECT_EQ(Zeigt("Dienster2"), "0");
    EXPECT_EQ(Slot(1), "Meßdiener 1 :");
}

TEST_F(MessenlisteFormLöschenTest, LöschenNimmtKeinenFestenEintragMit)
{
    Öffnen(5);
    Fest(0, 5);
    const Datum tag = Messe.Datum[5];
    Klick("pt");
    Klick("phh");
    Antworten = {true};
    Klick("Löscher");
    EXPECT_EQ(MesseDienerFest.Datum[0], tag);
    EXPECT_EQ(LangeZeit(MesseDienerFest.Uhrzeit[0]), "08:05:00");
}

TEST_F(MessenlisteFormLöschenTest, LöschenVergißtWasAufDemSchirmStand)
{
    Öffnen(5);
    AllesÄndern();
    Antworten = {true};
    Klick("Löscher");
    EXPECT_EQ(Zeigt("Messewesen"), "Art6");
    EXPECT_EQ(Messe.Messeart[4], "Art4");
    EXPECT_EQ(Messe.Messeart[5], "Art6");
}

TEST_F(MessenlisteFormLöschenTest, LöschenLeertDenWochentagDesFreienDatensatzes)
{
    Öffnen(5);
    MesseFüllen(31); // left over past the end
    Antworten = {true};
    Klick("Löscher");
    EXPECT_EQ(Messe.Messeart[30], "Art31");
    EXPECT_EQ(Messe.Wochentag[30], "");
}

TEST_F(MessenlisteFormLöschenTest, ZweiMessenLassenSichNichtLöschen)
{
    for (const int anzahl : {0, 1, 2}) {
        Öffnen(0, anzahl);
        Antworten = {true};
        Klick("Löscher");
        EXPECT_EQ(GestellteFragen.size(), 1U);
        EXPECT_EQ(MessenJetzt(), vorher) << anzahl;
        EXPECT_EQ(Messe.Anzahl, anzahl);
        GestellteFragen.clear();
        delete form;
    }
    Öffnen(1, 3);
    Antworten = {true};
    Klick("Löscher");
    EXPECT_EQ(Messe.Anzahl, 2);
    EXPECT_EQ(Messe.Messeart[1], "Art2");
}

TEST_F(MessenlisteFormLöschenTest, LöschenOhneNummerTutNichts)
{
    Öffnen(5);
    Einsetzen("Datensatzus", "abc");
    Antworten = {true};
    Klick("Löscher");
    EXPECT_EQ(MessenJetzt(), vorher);
    EXPECT_EQ(Messe.Anzahl, 30);
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{});
}

TEST_F(MessenlisteFormEndeTest, EndeUndSchließenSchreibenDenSchirm)
{
    for (const bool mitEnde : {true, false}) {
        Öffnen(6);
        AllesÄndern();
        const Satz schirm = Schirm();
        if (mitEnde)
            Klick("Ende");
        else
            form->close();
        EXPECT_FALSE(form && form->isVisible());
        Messenbild modell = vorher;
        modell[6] = Mit(modell[6], schirm);
        EXPECT_EQ(MessenJetzt(), modell);
        delete form;
    }
}

TEST_F(MessenlisteImProgramm, Knopf6UndDerMenüeintragÖffnenSieÜberDemWartendenHauptfenster)
{
    MessenFüllen(5);
    for (const bool mitKnopf : {true, false}) {
        if (mitKnopf)
            Klick(haupt->AnzMesse);
        else
            MenüWählen("mnuMessen");
        form = Fenster("Messenliste");
        EXPECT_FALSE(haupt->isEnabled());
        EXPECT_TRUE(haupt->isMinimized());
        EXPECT_EQ(Zeigt("maxi"), "5");
        ListeZurück();
    }
}

TEST_F(MessenlisteImProgramm, Knopf1ZeigtDieNeuenMessenVonDerErstenAn)
{
    Konfig.StartDatum = DatumAus({2026, 11, 22});
    Konfig.Tage = 7;
    Standardmesse.Wochentag[0] = "Sonntag";
    Standardmesse.Uhrzeit[0] = ZeitAus(36000);
    Standardmesse.Messeart[0] = "Hochamt";
    Standardmesse.Dienerzahl[0] = 4;
    Messe.Cursor = 3;
    Klick(haupt->Messenorgani);
    form = Fenster("Messenliste");
    EXPECT_EQ(Messe.Cursor, 0);
    EXPECT_EQ(Zeigt("Datensatzus"), "0");
    EXPECT_EQ(Zeigt("Messewesen"), "Hochamt");
    EXPECT_EQ(Zeigt("tagelang"), "Sonntag");
    ListeZurück();
    EXPECT_EQ(Messe.Wochentag[0], "Sonntag");
}

// The main window stays in use next to the list, so (1) and (6) may be pressed again.
TEST_F(MessenlisteImProgramm, EsGibtEineListeUndSieZeigtDieMessenNeu)
{
    MessenFüllen(5);
    Klick(haupt->Messenorgani);
    form = Fenster("Messenliste");
    Einsetzen("Messewesen", "veraltet");
    MessenFüllen(5);
    Messe.Cursor = 2;
    Klick(haupt->AnzMesse);
    EXPECT_EQ(Fenster("Messenliste"), form);
    EXPECT_EQ(Zeigt("Datensatzus"), "2");
    EXPECT_EQ(Zeigt("Messewesen"), "Art2");
    int listen = 0;
    for (QWidget *fenster : QApplication::topLevelWidgets())
        listen += fenster->objectName() == "Messenliste" ? 1 : 0;
    EXPECT_EQ(listen, 1);
    ListeZurück();
    EXPECT_EQ(Messe.Messeart[0], "Art0");
}

} // namespace
} // namespace altardienst
