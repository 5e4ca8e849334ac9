// The mass list: what shows when a mass appears on the screen.
#include "planning/Messenlistenstand.h"

namespace altardienst {
namespace {

class MessenlisteFormZeigenTest : public Messenlistenstand {
  protected:
    /// Expects as many rows as the box of the servers says, each complete.
    void ZeilenPrüfen(const char *wann) const
    {
        const int diener = std::stoi(Zeigt("Dienerzahlen"));
        for (int k = 1; k <= 20; ++k) {
            const Text n = ZahlText(k);
            const Text label = "MDR[" + ZahlText(k - 1) + "]";
            EXPECT_EQ(Finden(label)->isVisible(), k <= diener) << wann << k;
            EXPECT_EQ(Finden("vor" + n)->isVisible(), k <= diener) << wann << k;
            EXPECT_EQ(Finden("nach" + n)->isVisible(), k <= diener) << wann << k;
        }
    }
};

TEST_F(MessenlisteFormZeigenTest, EsStehenSovieleZeilenDaWieDieMesseDienerHat)
{
    Öffnen(4);
    EXPECT_EQ(Zeigt("Dienerzahlen"), ZahlText(Messe.Dienerzahl[4]));
    ZeilenPrüfen("geöffnet ");
    for (int i = 0; i < 6; ++i) {
        Klick("Plus");
        ZeilenPrüfen("Plus ");
    }
    for (int i = 0; i < 9; ++i) {
        Klick("Minus");
        ZeilenPrüfen("Minus ");
    }
    for (const char *nummer : {"7", "2", "12"}) {
        Einsetzen("Datensatzus", nummer);
        ZeilenPrüfen(nummer);
    }
}

// The number of masses is shown before the step past the end adds one.
TEST_F(MessenlisteFormZeigenTest, DieAnzahlZähltDieNeueMesseNochNicht)
{
    Öffnen(29);
    Klick("Plus");
    Klick("Plus");
    EXPECT_EQ(Messe.Anzahl, 31);
    EXPECT_EQ(Zeigt("Datensatzus"), "31");
    EXPECT_EQ(Zeigt("maxi"), "30");
}

TEST_F(MessenlisteFormZeigenTest, EinCursorEinsHinterDemFreienDatensatzLegtEineMesseAn)
{
    Öffnen(31, 30);
    EXPECT_EQ(Messe.Anzahl, 31);
    EXPECT_EQ(Zeigt("Datensatzus"), "31");
    EXPECT_EQ(Zeigt("maxi"), "31"); // shown after the number, which has added one
}

// Masses that differ in just one service, which the number of servers follows: the labels are those
// of the mass, not of the services shown before.
TEST_F(MessenlisteFormZeigenTest, DieSlotsNennenDieDiensteDerMesse)
{
    MessenFüllen(5);
    for (int i = 0; i < 5; ++i)
        NurLeuchter(i, i % 2 == 0 ? 2 : 0);
    for (const int cursor : {0, 1}) {
        ListeZeigen(cursor);
        EXPECT_EQ(Slot(1), cursor == 0 ? "Leuchter :" : "Meßdiener 1 :");
        delete form;
    }
    ListeZeigen(0);
    Klick("Plus");
    EXPECT_EQ(Slot(1), "Meßdiener 1 :");
    Klick("Plus");
    EXPECT_EQ(Slot(2), "Leuchter :");
    Einsetzen("Datensatzus", "3");
    EXPECT_EQ(Slot(1), "Meßdiener 1 :");
    EXPECT_EQ(Slot(2), "Meßdiener 2 :");
}

// The sum stays the same.
TEST_F(MessenlisteFormZeigenTest, DieSlotsFolgenEinemDienstAuchWennDieDienerzahlBleibt)
{
    MessenFüllen(5);
    NurLeuchter(0, 0);
    ListeZeigen(0);
    Einsetzen("Dienster6", "4");
    Einsetzen("Dienerzahlen", "5"); // by hand
    Einsetzen("Dienster2", "1");
    EXPECT_EQ(Zeigt("Dienerzahlen"), "5");
    EXPECT_EQ(Slot(1), "Leuchter :");
    EXPECT_EQ(Slot(2), "Meßdiener 2 :");
    Einsetzen("Dienster6", "20");
    Einsetzen("Dienster3", "8");
    EXPECT_EQ(Zeigt("Dienerzahlen"), "20");
    EXPECT_EQ(Slot(2), "Flambeau :");
    EXPECT_EQ(Slot(9), "Flambeau :");
    EXPECT_EQ(Slot(10), "Meßdiener 10 :");
}

TEST_F(MessenlisteFormZeigenTest, Über600Wird600)
{
    Öffnen(5, 600);
    Einsetzen("Datensatzus", "601");
    EXPECT_EQ(Zeigt("Datensatzus"), "600");
    EXPECT_EQ(Messe.Anzahl, 600);
}

TEST_F(MessenlisteFormZeigenTest, OhneNummerSchreibtEndeNichts)
{
    Öffnen(4);
    AllesÄndern();
    Einsetzen("Datensatzus", "");
    Klick("Ende");
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(MessenJetzt(), vorher);
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{});
}

} // namespace
} // namespace altardienst
