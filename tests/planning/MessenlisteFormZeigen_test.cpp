// The mass list: what shows when a mass comes onto the screen.
#include "planning/Messenlistenstand.h"

namespace altardienst {
namespace {

class MessenlisteFormZeigenTest : public Messenlistenstand {
  protected:
    /// As many rows as the box of the servers says, each whole.
    void ZeilenPrüfen(const char *wann) const
    {
        const int diener = std::stoi(Zeigt("Dienerzahlen"));
        for (int k = 1; k <= 20; ++k) {
            const Text n = ZahlText(k);
            const Text label = "MDR[" + ZahlText(k - 1) + "]";
            EXPECT_EQ(Finden(form, label.c_str())->isVisible(), k <= diener) << wann << k;
            EXPECT_EQ(Feld(("vor" + n).c_str())->isVisible(), k <= diener) << wann << k;
            EXPECT_EQ(Feld(("nach" + n).c_str())->isVisible(), k <= diener) << wann << k;
        }
    }
};

TEST_F(MessenlisteFormZeigenTest, EsStehenSovieleZeilenDaWieDieMesseDienerHat)
{
    Öffnen(4);
    EXPECT_EQ(Zeigt("Dienerzahlen"), ZahlText(Messe.Dienerzahl[4]));
    ZeilenPrüfen("geöffnet ");
    for (int i = 0; i < 6; ++i) {
        Drücken("Plus");
        ZeilenPrüfen("Plus ");
    }
    for (int i = 0; i < 9; ++i) {
        Drücken("Minus");
        ZeilenPrüfen("Minus ");
    }
    for (const char *nummer : {"7", "2", "12"}) {
        Eingeben("Datensatzus", nummer);
        ZeilenPrüfen(nummer);
    }
}

// The number of masses is shown before the step past the end adds one.
TEST_F(MessenlisteFormZeigenTest, DieAnzahlZähltDieNeueMesseNochNicht)
{
    Öffnen(29);
    Drücken("Plus");
    Drücken("Plus");
    EXPECT_EQ(Messe.Anzahl, 31);
    EXPECT_EQ(Zeigt("Datensatzus"), "31");
    EXPECT_EQ(Zeigt("maxi"), "30");
}

TEST_F(MessenlisteFormZeigenTest, EinCursorEinsHinterDemFreienDatensatzLegtEineMesseAn)
{
    Öffnen(31, 30);
    EXPECT_EQ(Messe.Anzahl, 31);
    EXPECT_EQ(Zeigt("Datensatzus"), "31");
}

TEST_F(MessenlisteFormZeigenTest, Über600Wird600)
{
    Öffnen(5, 600);
    Eingeben("Datensatzus", "601");
    EXPECT_EQ(Zeigt("Datensatzus"), "600");
    EXPECT_EQ(Messe.Anzahl, 600);
}

TEST_F(MessenlisteFormZeigenTest, OhneNummerSchreibtEndeNichts)
{
    Öffnen(4);
    AllesÄndern();
    Eingeben("Datensatzus", "");
    Drücken("Ende");
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(MessenJetzt(), vorher);
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{});
}

} // namespace
} // namespace altardienst
