// The draw, the placement in a slot, the block by date, and the tests of a drawn server.
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
    // A half downwards to the even neighbour.
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
    MesseNr = 0; // the argument tells the mass
    SperreLösen(1);
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

TEST_F(ZiehungTest, NamenUndFreisein)
{
    DienerAnlegen(4);
    Meßdiener.Vorname[1] = "";
    Meßdiener.Nachname[2] = "";
    const bool erwartet[] = {true, false, false, true, false};
    for (int j = 0; j <= 4; ++j) {
        Kandidat = j;
        EXPECT_EQ(HatNamen(), erwartet[j]);
    }
    Kandidat = 3;
    EXPECT_TRUE(IstFrei());
    Meßdiener.Belegt[3] = 1;
    EXPECT_FALSE(IstFrei());
}

TEST_F(ZiehungTest, JederDienstHatSeineStelleDerQualifikation)
{
    DienerAnlegen(1);
    Kandidat = 0;
    const char *dienste[] = {"Gabenbereitung", "Leuchter", "Flambeau", "Weihrauch", "Kreuzträger"};
    for (int stelle = 1; stelle <= 6; ++stelle) {
        Meßdiener.Qualifikation[0] = "nnnnnn";
        Meßdiener.Qualifikation[0][static_cast<std::size_t>(stelle - 1)] = 'j';
        for (int d = 0; d < 5; ++d)
            EXPECT_EQ(IstQualifiziert(dienste[d]), d + 1 == stelle) << dienste[d] << stelle;
    }
    Meßdiener.Qualifikation[0] = "JJJJJJ"; // only the small letter is a yes
    for (const char *dienst : dienste)
        EXPECT_FALSE(IstQualifiziert(dienst));
    for (const char *dienst : {"Allgemein", "", "leuchter", "Anführer"})
        EXPECT_TRUE(IstQualifiziert(dienst));
}

TEST_F(ZiehungTest, JederDerFünfZeiträumeSchließtBeideEndtageEin)
{
    using Spalte = MeßdienerTabelle::Spalte<Datum>;
    const std::pair<Spalte *, Spalte *> zeiträume[] = {{&Meßdiener.Von1, &Meßdiener.Bis1},
                                                       {&Meßdiener.Von2, &Meßdiener.Bis2},
                                                       {&Meßdiener.Von3, &Meßdiener.Bis3},
                                                       {&Meßdiener.Von4, &Meßdiener.Bis4},
                                                       {&Meßdiener.Von5, &Meßdiener.Bis5}};
    DienerAnlegen(1);
    Kandidat = 0;
    MesseNr = MesseMitDienern(Sonntag, 1);
    EXPECT_TRUE(IstAnwesend());
    for (const auto &[von, bis] : zeiträume) {
        auto anwesend = [&](Datum ab, Datum ende) {
            (*von)[0] = ab;
            (*bis)[0] = ende;
            return IstAnwesend();
        };
        EXPECT_FALSE(anwesend(Sonntag, Sonntag));
        EXPECT_FALSE(anwesend(Samstag, Sonntag));
        EXPECT_FALSE(anwesend(Sonntag, Montag));
        EXPECT_FALSE(anwesend(Samstag, Montag));
        EXPECT_TRUE(anwesend(Samstag, Samstag));
        EXPECT_TRUE(anwesend(Montag, Montag));
        EXPECT_TRUE(anwesend(Montag, Samstag)); // turned round
        EXPECT_FALSE(anwesend(0, Sonntag));     // only an end: every date up to it
        EXPECT_TRUE(anwesend(0, Samstag));
        EXPECT_TRUE(anwesend(Samstag, 0)); // only a beginning
        EXPECT_TRUE(anwesend(0, 0));
    }
}

TEST_F(ZiehungTest, WochenwunschNachWochentagGiltNurFürStandardmessen)
{
    const char *tage[] = {"Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag"};
    DienerAnlegen(1);
    Kandidat = 0;
    MesseNr = MesseMitDienern(Sonntag, 1);
    for (int stelle = 1; stelle <= 8; ++stelle) {
        Meßdiener.Wochendienst[0] = "nnnnnnnn";
        Meßdiener.Wochendienst[0][static_cast<std::size_t>(stelle - 1)] = 'j';
        for (int t = 0; t < 5; ++t) {
            Messe.Wochentag[0] = tage[t];
            Messe.Kennung[0] = "s";
            EXPECT_EQ(WochenwunschErlaubt(), t + 2 != stelle) << tage[t] << stelle;
            for (const char *kennung : {"", "S"}) {
                Messe.Kennung[0] = kennung;
                EXPECT_TRUE(WochenwunschErlaubt());
            }
        }
    }
    Meßdiener.Wochendienst[0] = "jjjjjjjj";
    Messe.Kennung[0] = "s";
    for (const char *frei : {"Samstag", "Sonntag", "Montag    ", ""}) {
        Messe.Wochentag[0] = frei;
        EXPECT_TRUE(WochenwunschErlaubt()) << frei;
    }
}

TEST_F(ZiehungTest, WunschGegenWochendienstGiltAuchFürMessenVonHand)
{
    DienerAnlegen(1);
    Kandidat = 0;
    MesseNr = MesseMitDienern(Sonntag, 1);
    for (const char *kennung : {"s", ""}) {
        Messe.Kennung[0] = kennung;
        Messe.Messeart[0] = "Wochendienst";
        Meßdiener.Wochendienst[0] = "jnnnnnnn";
        EXPECT_FALSE(WochenwunschErlaubt());
        Meßdiener.Wochendienst[0] = "njjjjjjj";
        EXPECT_TRUE(WochenwunschErlaubt());
        Messe.Messeart[0] = "Wochendienste";
        Meßdiener.Wochendienst[0] = "jnnnnnnn";
        EXPECT_TRUE(WochenwunschErlaubt());
    }
}

} // namespace
} // namespace altardienst
