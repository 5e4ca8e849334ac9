// The draw, the placement in a slot and the block by date.
#include "assignment/Ziehung.h"

#include "assignment/Wurf.h"

namespace altardienst {
namespace {

class ZiehungTest : public Zuweisungsstand {};

int Gezogener(int anzahl, Single r)
{
    Zufall = ZufallAusListe({r});
    return Ziehen(anzahl);
}

TEST_F(ZiehungTest, ZiehtMitRundungAufDieGeradeZahl)
{
    EXPECT_EQ(Gezogener(10, 0.25F), 2); // 2.5
    EXPECT_EQ(Gezogener(10, 0.75F), 8); // 7.5
    EXPECT_EQ(Gezogener(10, 0.96F), 10);
    EXPECT_EQ(Gezogener(10, 0.0F), 0);
    EXPECT_EQ(Gezogener(10, 0.049F), 0);
    EXPECT_EQ(Gezogener(10, 0.051F), 1);
    EXPECT_EQ(Gezogener(2, 0.25F), 0); // 0.5
    EXPECT_EQ(Gezogener(2, 0.75F), 2); // 1.5
    EXPECT_EQ(Gezogener(400, 0x1.fffffep-1F), 400);
    EXPECT_EQ(Gezogener(0, 0.9F), 0);
}

TEST_F(ZiehungTest, RechnetInEinfacherGenauigkeit)
{
    const Single unten = 0.1F; // a little above a tenth
    ASSERT_GT(5.0 * static_cast<double>(unten), 0.5);
    ASSERT_EQ(5.0F * unten, 0.5F);
    EXPECT_EQ(Gezogener(5, unten), 0);
}

TEST_F(ZiehungTest, KandidatKommtAusDerTabelleDerMeßdiener)
{
    DienerAnlegen(10);
    HelferDienste(3, "Lektor");
    Zufall = ZufallAusListe({0.75F, 0.96F});
    KandidatZiehen();
    EXPECT_EQ(Kandidat, 8);
    KandidatZiehen();
    EXPECT_EQ(Kandidat, 10);
}

TEST_F(ZiehungTest, EintragenSchreibtNamenUndMerktDenDiener)
{
    DienerAnlegen(3);
    Meßdiener.Geschlecht[2] = "weiblich";
    MesseMitDienern(Samstag, 4);
    MesseNr = MesseMitDienern(Sonntag, 4);
    Kandidat = 2;
    MeßdienerEintragen(5);
    EXPECT_EQ(Slot(1, 5), "V2 N2");
    EXPECT_EQ(Slot(1, 4), " ");
    EXPECT_EQ(Slot(1, 6), " ");
    EXPECT_EQ(Slot(0, 5), " ");
    EXPECT_EQ(Meßdiener.Belegt[2], 1);
    EXPECT_EQ(Meßdiener.Belegt[1], 0);
    EXPECT_EQ(Meßdiener.LetzterDienst[2], Sonntag);
    EXPECT_EQ(LetztesGeschlecht, "weiblich");
    EXPECT_EQ(Meßdiener.DienstZähler[2], 0);
}

TEST_F(ZiehungTest, DieErstenDreiBestimmenDieMittelgröße)
{
    MesseMitDienern(Samstag, 20);
    for (int größe : {170, 161, 150, 200})
        MeßdienerAnlegen("V", "N", größe);
    auto nach = [](int diener, int slot) {
        Kandidat = diener;
        MeßdienerEintragen(slot);
        return int(MittelGröße);
    };
    MittelGröße = 99;
    EXPECT_EQ(nach(0, 1), 170);
    EXPECT_EQ(nach(1, 2), 166); // 165.5
    EXPECT_EQ(nach(2, 3), 161); // (150 + 332) / 3
    for (int slot = 4; slot <= 20; ++slot)
        EXPECT_EQ(nach(3, slot), 161);
    // A half is rounded down if that is the even neighbour.
    MittelGröße = 169;
    EXPECT_EQ(nach(0, 2), 170); // 169.5
    MittelGröße = 160;
    EXPECT_EQ(nach(1, 2), 160); // 160.5
    MittelGröße = 151;
    EXPECT_EQ(nach(2, 3), 151); // 150.67
}

TEST_F(ZiehungTest, SperreHältNurAmTagDerMesseUndAmTagDanach)
{
    DienerAnlegen(5);
    Meßdiener.LetzterDienst[0] = Samstag - 1;
    Meßdiener.LetzterDienst[1] = Samstag;
    Meßdiener.LetzterDienst[2] = Sonntag;
    Meßdiener.LetzterDienst[3] = Montag;
    MesseMitDienern(Samstag, 1);
    MesseMitDienern(Sonntag, 1);
    for (int j = 0; j <= 6; ++j)
        Meßdiener.Belegt[j] = 1;
    MesseNr = 0; // the argument says which mass
    SperreLösen(Meßdiener, 1);
    EXPECT_EQ(Meßdiener.Belegt[0], 0);
    EXPECT_EQ(Meßdiener.Belegt[1], 1);
    EXPECT_EQ(Meßdiener.Belegt[2], 1);
    EXPECT_EQ(Meßdiener.Belegt[3], 0); // a later date frees too
    EXPECT_EQ(Meßdiener.Belegt[4], 0);
    EXPECT_EQ(Meßdiener.Belegt[5], 0); // the blank row is included
    EXPECT_EQ(Meßdiener.Belegt[6], 1);
}

TEST_F(ZiehungTest, AbschlussLöstDieSperreErstAbDerGrenze)
{
    DienerAnlegen(200);
    MesseNr = MesseMitDienern(Samstag, 1);
    auto nachAbschluss = [](int belegte, int grenze) {
        for (int j = 0; j <= 200; ++j)
            Meßdiener.Belegt[j] = j < belegte;
        Konfig.GrenzeAuslöse = grenze;
        MesseAbschließen();
        return Meßdiener.Belegt[0] == 1 ? int(BelegtProzent) : -int(BelegtProzent);
    };
    EXPECT_EQ(nachAbschluss(120, 60), -60);
    EXPECT_EQ(nachAbschluss(118, 60), 59);
    EXPECT_EQ(nachAbschluss(119, 60), -60); // 59.5
    EXPECT_EQ(nachAbschluss(121, 61), 60);  // 60.5
    EXPECT_EQ(nachAbschluss(115, 58), 57);  // 57.5, but a little below in double precision
    EXPECT_EQ(nachAbschluss(109, 55), -55); // 54.5, but a little above
    EXPECT_EQ(nachAbschluss(1, 0), 0);      // 0.5, and freed
    EXPECT_EQ(Meßdiener.Belegt[0], 0);
}

TEST_F(ZiehungTest, AbschlussZähltDieLeereZeileMit)
{
    DienerAnlegen(4);
    MesseNr = MesseMitDienern(Samstag, 1);
    Meßdiener.Belegt[3] = 1;
    Meßdiener.Belegt[4] = 1;
    Meßdiener.Belegt[5] = 1;
    MesseAbschließen();
    EXPECT_EQ(BelegtProzent, 50);
}

TEST_F(ZiehungTest, AbschlussHältFestWerAmTagOderAmVortagDient)
{
    DienerAnlegen(4);
    MesseNr = MesseMitDienern(Sonntag, 1);
    for (int j = 0; j < 4; ++j)
        Meßdiener.Belegt[j] = 1;
    Meßdiener.LetzterDienst[0] = Sonntag;
    Meßdiener.LetzterDienst[1] = Samstag;
    Meßdiener.LetzterDienst[2] = Samstag - 1;
    MesseAbschließen();
    EXPECT_EQ(BelegtProzent, 100);
    EXPECT_EQ(Meßdiener.Belegt[0], 1);
    EXPECT_EQ(Meßdiener.Belegt[1], 1);
    EXPECT_EQ(Meßdiener.Belegt[2], 0);
    EXPECT_EQ(Meßdiener.Belegt[3], 0);
}

TEST_F(ZiehungTest, SuchdauerWirdÜberMitternachtNegativ)
{
    SucheStart = 86390;
    Sekunden = 86399;
    EXPECT_EQ(Suchdauer(), 9);
    Sekunden = 5;
    EXPECT_EQ(Suchdauer(), 5 - 86390);
}

} // namespace
} // namespace altardienst
