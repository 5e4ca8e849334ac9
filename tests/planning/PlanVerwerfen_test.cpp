// What determining the masses does to the previous plan: clearing, shortening, cursor, and the
// fixed entries.
#include "planning/MessenBestimmen.h"

#include "Prüfstand.h"

namespace altardienst {
namespace {

class PlanVerwerfenTest : public Prüfstand {
  protected:
    PlanVerwerfenTest() { Konfig.StartDatum = DatumAus({2026, 11, 22}); } // a Sunday

    /// A pattern that makes this many masses on the one day of the period.
    static void MusterFür(int messen)
    {
        Konfig.Tage = 0;
        for (int z = 0; z <= 20; ++z) {
            Standardmesse.Wochentag[z] = z < messen ? "Sonntag" : "";
            Standardmesse.Dienerzahl[z] = 2;
        }
    }

    static std::vector<MesseTabelle::Spalte<Text> *> Helfernamen()
    {
        return {&Messe.Lektor1Vor,  &Messe.Lektor1Nach,  &Messe.Lektor2Vor,  &Messe.Lektor2Nach,
                &Messe.Komm1Vor,    &Messe.Komm1Nach,    &Messe.Komm2Vor,    &Messe.Komm2Nach,
                &Messe.Kantor1Vor,  &Messe.Kantor1Nach,  &Messe.Kantor2Vor,  &Messe.Kantor2Nach,
                &Messe.Kollekt1Vor, &Messe.Kollekt1Nach, &Messe.Kollekt2Vor, &Messe.Kollekt2Nach};
    }

    static std::vector<MesseTabelle::Spalte<Int16> *> Zahlen()
    {
        return {&Messe.Dienerzahl, &Messe.Gabenbereitung, &Messe.Leuchter,   &Messe.Flambeau,
                &Messe.Weihrauch,  &Messe.Kreuzträger,    &Messe.Allgemein,  &Messe.LektorZahl,
                &Messe.KommZahl,   &Messe.KantorZahl,     &Messe.KollektZahl};
    }

    /// Fills a mass so that every field identifies its record.
    static void Beschreiben(int i)
    {
        const Text nr = std::to_string(i);
        Messe.Wochentag[i] = "Tag" + nr;
        Messe.Datum[i] = 40000 + i;
        Messe.Uhrzeit[i] = ZeitAus(i);
        Messe.Messeart[i] = "Art" + nr;
        Messe.Kennung[i] = "k" + nr;
        for (auto *zahl : Zahlen())
            (*zahl)[i] = i;
        for (int s = 0; s <= 20; ++s) {
            Messe.DienerVor[i][s] = "V" + nr + "." + std::to_string(s);
            Messe.DienerNach[i][s] = "N" + nr + "." + std::to_string(s);
            Messe.DienerDienst[i][s] = "D" + nr;
        }
        for (auto *name : Helfernamen())
            (*name)[i] = "H" + nr;
    }
};

TEST_F(PlanVerwerfenTest, LeertDieMessen0Bis200BisAufDatumUhrzeitUndSlot0)
{
    for (int i : {0, 100, 200})
        Beschreiben(i);
    MessenBestimmen();
    for (int i : {0, 100, 200}) {
        SCOPED_TRACE(i);
        EXPECT_EQ(Messe.Wochentag[i], "");
        EXPECT_EQ(Messe.Messeart[i], "");
        EXPECT_EQ(Messe.Kennung[i], "");
        for (auto *zahl : Zahlen())
            EXPECT_EQ((*zahl)[i], 0);
        for (int s = 1; s <= 20; ++s) {
            EXPECT_EQ(Messe.DienerVor[i][s], "");
            EXPECT_EQ(Messe.DienerNach[i][s], "");
        }
        for (int s = 0; s <= 20; ++s)
            EXPECT_EQ(Messe.DienerDienst[i][s], "Allgemein");
        for (auto *name : Helfernamen())
            EXPECT_EQ((*name)[i], "");
        EXPECT_EQ(Messe.Datum[i], 40000 + i);
        EXPECT_EQ(Messe.Uhrzeit[i], ZeitAus(i));
        EXPECT_EQ(Messe.DienerVor[i][0], "V" + std::to_string(i) + ".0");
        EXPECT_EQ(Messe.DienerNach[i][0], "N" + std::to_string(i) + ".0");
    }
}

TEST_F(PlanVerwerfenTest, MessenAb201BehaltenAlles)
{
    Beschreiben(201);
    MessenBestimmen();
    EXPECT_EQ(Messe.Wochentag[201], "Tag201");
    EXPECT_EQ(Messe.Dienerzahl[201], 201);
    EXPECT_EQ(Messe.DienerVor[201][20], "V201.20");
    EXPECT_EQ(Messe.DienerDienst[201][0], "D201");
    EXPECT_EQ(Messe.Lektor1Vor[201], "H201");
}

TEST_F(PlanVerwerfenTest, AnzahlIstDieDesNeuenPlans)
{
    for (int alt : {30, 20, 10, 0}) {
        Messe.Anzahl = alt;
        MusterFür(20);
        MessenBestimmen();
        EXPECT_EQ(Messe.Anzahl, 20) << alt;
    }
}

TEST_F(PlanVerwerfenTest, KürzenSchiebtDieAltenMessenHinausAberNurIhreBewegtenFelder)
{
    for (int i = 0; i <= 8; ++i)
        Beschreiben(i);
    Messe.Anzahl = 6;
    MusterFür(2);
    MessenBestimmen();
    ASSERT_EQ(Messe.Anzahl, 2);
    EXPECT_EQ(Messe.Wochentag[0], "Sonntag");
    EXPECT_EQ(Messe.Wochentag[1], "Sonntag");
    EXPECT_EQ(Messe.Datum[1], Konfig.StartDatum);
    // Records 2 to 7 move down one place four times, as the dates show, which were not cleared.
    // Record 8 lies beyond and moves down again with each pass.
    EXPECT_EQ(Messe.Datum[2], 40006);
    EXPECT_EQ(Messe.Datum[3], 40007);
    for (int i = 4; i <= 8; ++i) {
        EXPECT_EQ(Messe.Datum[i], 40008) << i;
        EXPECT_EQ(Messe.Uhrzeit[i], ZeitAus(8)) << i;
    }
    // Slot 0 does not move either.
    EXPECT_EQ(Messe.DienerVor[3][0], "V3.0");
}

TEST_F(PlanVerwerfenTest, KürzenVomAltenBereichÜber200)
{
    // Above record 200 nothing was cleared, so all moved and unmoved fields can be told apart.
    Messe.Anzahl = 204;
    for (int i = 201; i <= 210; ++i)
        Beschreiben(i);
    MusterFür(1);
    Konfig.Tage = 202;
    for (int z = 1; z <= 6; ++z) {
        const char *namen[] = {"Montag",     "Dienstag", "Mittwoch",
                               "Donnerstag", "Freitag",  "Samstag"};
        Standardmesse.Wochentag[z] = namen[z - 1];
    }
    MessenBestimmen(); // 203 masses, one place down from record 203 on
    ASSERT_EQ(Messe.Anzahl, 203);
    for (int i = 203; i <= 205; ++i) {
        SCOPED_TRACE(i);
        const Text nr = std::to_string(i + 1);
        EXPECT_EQ(Messe.Wochentag[i], "Tag" + nr);
        EXPECT_EQ(Messe.Datum[i], 40000 + i + 1);
        EXPECT_EQ(Messe.Uhrzeit[i], ZeitAus(i + 1));
        EXPECT_EQ(Messe.Messeart[i], "Art" + nr);
        for (auto *zahl : {&Messe.Dienerzahl, &Messe.Gabenbereitung, &Messe.Leuchter,
                           &Messe.Flambeau, &Messe.Weihrauch, &Messe.Kreuzträger})
            EXPECT_EQ((*zahl)[i], i + 1);
        for (int s = 1; s <= 16; ++s) {
            EXPECT_EQ(Messe.DienerVor[i][s], "V" + nr + "." + std::to_string(s));
            EXPECT_EQ(Messe.DienerNach[i][s], "N" + nr + "." + std::to_string(s));
        }
        const Text alt = std::to_string(i);
        for (int s : {0, 17, 18, 19, 20}) {
            EXPECT_EQ(Messe.DienerVor[i][s], "V" + alt + "." + std::to_string(s));
            EXPECT_EQ(Messe.DienerNach[i][s], "N" + alt + "." + std::to_string(s));
        }
        EXPECT_EQ(Messe.Allgemein[i], i);
        EXPECT_EQ(Messe.Kennung[i], "k" + alt);
        EXPECT_EQ(Messe.DienerDienst[i][1], "D" + alt);
        for (auto *zahl :
             {&Messe.LektorZahl, &Messe.KommZahl, &Messe.KantorZahl, &Messe.KollektZahl})
            EXPECT_EQ((*zahl)[i], i);
        for (auto *name : Helfernamen())
            EXPECT_EQ((*name)[i], "H" + alt);
    }
    EXPECT_EQ(Messe.Datum[206], 40206);
    // A new mass above 200 keeps the people of the old one.
    EXPECT_EQ(Messe.Wochentag[201].empty(), false);
    EXPECT_EQ(Messe.DienerVor[201][1], "V201.1");
    EXPECT_EQ(Messe.Kennung[201], "s");
    for (int s = 0; s <= 20; ++s)
        EXPECT_EQ(Messe.DienerDienst[201][s], "D201");
    for (auto *name : Helfernamen())
        EXPECT_EQ((*name)[201], "H201");
}

TEST_F(PlanVerwerfenTest, KürzenAmEndeDerTabelleIstEinIndexfehler)
{
    MusterFür(1);
    Messe.Anzahl = 600;
    EXPECT_NO_THROW(MessenBestimmen());
    Messe.Anzahl = 601;
    EXPECT_THROW(MessenBestimmen(), Laufzeitfehler);
}

TEST_F(PlanVerwerfenTest, CursorBleibtNurBis5UndUnterDerAnzahl)
{
    auto nachLauf = [](int messen, int cursor) {
        MusterFür(messen);
        Messe.Cursor = cursor;
        MessenBestimmen();
        return int(Messe.Cursor);
    };
    EXPECT_EQ(nachLauf(10, 0), 0);
    EXPECT_EQ(nachLauf(10, 5), 5);
    EXPECT_EQ(nachLauf(10, 6), 1);
    EXPECT_EQ(nachLauf(4, 3), 3);
    EXPECT_EQ(nachLauf(4, 4), 1);
    EXPECT_EQ(nachLauf(4, 5), 1);
    EXPECT_EQ(nachLauf(0, 0), 1);
}

TEST_F(PlanVerwerfenTest, SchaltflächeStelltDenCursorAufDieErsteMesse)
{
    MusterFür(10);
    Messe.Cursor = 3;
    MessenNeuBestimmen();
    EXPECT_EQ(Messe.Cursor, 0);
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{"Fertig mit Messen bestimmen"});
}

TEST_F(PlanVerwerfenTest, FesteEinträgeWerdenGeleert)
{
    auto beschreiben = [](int r) {
        MesseDienerFest.Datum[r] = 46000 + r;
        MesseDienerFest.Uhrzeit[r] = ZeitAus(r + 1);
        MesseDienerFest.Index[r] = r + 1;
        for (int s : {0, 1, 20}) {
            MesseDienerFest.Vorname[r][s] = "V" + std::to_string(r);
            MesseDienerFest.Nachname[r][s] = "N" + std::to_string(r);
            MesseDienerFest.Dienst[r][s] = "D" + std::to_string(r);
        }
    };
    for (int r = 0; r < 3; ++r)
        beschreiben(r);
    MesseDienerFest.Anzahl = 3;
    MesseDienerFest.Cursor = 2;
    MessenNeuBestimmen();
    EXPECT_EQ(MesseDienerFest.Anzahl, 0);
    EXPECT_EQ(MesseDienerFest.Cursor, 0);
    for (int r = 0; r <= 4; ++r) {
        EXPECT_EQ(MesseDienerFest.Datum[r], 0);
        EXPECT_EQ(MesseDienerFest.Uhrzeit[r], 0);
        EXPECT_EQ(MesseDienerFest.Index[r], 0);
        for (int s : {0, 1, 20}) {
            EXPECT_EQ(MesseDienerFest.Vorname[r][s], "");
            EXPECT_EQ(MesseDienerFest.Nachname[r][s], "");
            EXPECT_EQ(MesseDienerFest.Dienst[r][s], "");
        }
    }
    // Each of the Anzahl + 1 passes moves records 0 to Anzahl: what lies beyond moves down.
    for (int r = 0; r < 6; ++r)
        beschreiben(r);
    MesseDienerFest.Anzahl = 2;
    FesteEinträgeLeeren();
    EXPECT_EQ(MesseDienerFest.Datum[0], 46003);
    EXPECT_EQ(MesseDienerFest.Vorname[0][0], "V3");
    EXPECT_EQ(MesseDienerFest.Index[0], 4);
    EXPECT_EQ(MesseDienerFest.Datum[2], 46003);
    EXPECT_EQ(MesseDienerFest.Datum[3], 46003);
    EXPECT_EQ(MesseDienerFest.Datum[4], 46004);
}

} // namespace
} // namespace altardienst
