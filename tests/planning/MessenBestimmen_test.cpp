// From the week pattern to the masses of the plan period.
#include "planning/MessenBestimmen.h"

#include "Prüfstand.h"

namespace altardienst {
namespace {

class MessenBestimmenTest : public Prüfstand {
  protected:
    MessenBestimmenTest() { Konfig.StartDatum = DatumAus({2026, 11, 22}); } // a Sunday

    static void Standard(int zeile, const Text &wochentag, const Text &messeart = "Messe",
                         int dienerzahl = 4)
    {
        Standardmesse.Wochentag[zeile] = wochentag;
        Standardmesse.Uhrzeit[zeile] = ZeitAus(36000);
        Standardmesse.Messeart[zeile] = messeart;
        Standardmesse.Dienerzahl[zeile] = dienerzahl;
    }

    static std::vector<Datum> Tage()
    {
        std::vector<Datum> tage;
        for (int i = 0; i < Messe.Anzahl; ++i)
            tage.push_back(Messe.Datum[i]);
        return tage;
    }

    /// The days of the month of all masses after a run that starts on the given day.
    static std::vector<int> Monatstage(Kalendertag ab, int tage)
    {
        Konfig.StartDatum = DatumAus(ab);
        Konfig.Tage = tage;
        MessenBestimmen();
        std::vector<int> monatstage;
        for (Datum tag : Tage())
            monatstage.push_back(KalendertagVon(tag).Tag);
        return monatstage;
    }
};

using Liste = std::vector<int>;

TEST_F(MessenBestimmenTest, ZeitraumHatEinenTagMehrAlsTage)
{
    Standard(0, "Sonntag");
    Konfig.Tage = 7;
    MessenBestimmen();
    EXPECT_EQ(Tage(), (std::vector<Datum>{DatumAus({2026, 11, 22}), DatumAus({2026, 11, 29})}));
    EXPECT_EQ(Konfig.StartDatum, DatumAus({2026, 11, 22}));

    Konfig.Tage = 6;
    MessenBestimmen();
    EXPECT_EQ(Messe.Anzahl, 1);

    Konfig.Tage = 0;
    MessenBestimmen();
    EXPECT_EQ(Messe.Anzahl, 1);
}

TEST_F(MessenBestimmenTest, AlleSiebenWochentageUndMonatswechsel)
{
    const char *namen[] = {"Sonntag",    "Montag",  "Dienstag", "Mittwoch",
                           "Donnerstag", "Freitag", "Samstag"};
    for (int z = 0; z < 7; ++z)
        Standard(z, namen[z]);
    Konfig.StartDatum = DatumAus({2026, 12, 27}); // a Sunday
    Konfig.Tage = 6;
    MessenBestimmen();
    ASSERT_EQ(Messe.Anzahl, 7);
    for (int i = 0; i < 7; ++i) {
        EXPECT_EQ(Messe.Wochentag[i], namen[i]);
        EXPECT_EQ(Messe.Datum[i], DatumAus({2026, 12, 27}) + i);
    }
}

TEST_F(MessenBestimmenTest, ReihenfolgeNachTagUndDannNachZeileNichtNachUhrzeit)
{
    Standard(20, "Sonntag", "Letzte Zeile");
    Standard(21, "Sonntag", "Hinter der Datei");
    Standard(3, "Sonntag", "Abendmesse");
    Standardmesse.Uhrzeit[3] = ZeitAus(18 * 3600);
    Standard(7, "Sonntag", "Frühmesse");
    Standardmesse.Uhrzeit[7] = ZeitAus(8 * 3600);
    Standard(0, "Montag", "Montagsmesse");
    Konfig.Tage = 1;
    MessenBestimmen();
    ASSERT_EQ(Messe.Anzahl, 4);
    EXPECT_EQ(Messe.Messeart[0], "Abendmesse");
    EXPECT_EQ(Messe.Messeart[1], "Frühmesse");
    EXPECT_EQ(Messe.Messeart[2], "Letzte Zeile");
    EXPECT_EQ(Messe.Messeart[3], "Montagsmesse");
}

TEST_F(MessenBestimmenTest, WochentagWirdGenauVerglichen)
{
    Standard(0, "Sonntag   ");
    Standard(1, "sonntag");
    Standard(2, "");
    MessenBestimmen();
    EXPECT_EQ(Messe.Anzahl, 0);
}

TEST_F(MessenBestimmenTest, ZeileOhneDienerErgibtKeineMesse)
{
    Standard(0, "Sonntag", "Messe", 0);
    Standardmesse.Lektor[0] = 2;
    Standard(1, "Sonntag", "Messe", -1);
    Standard(2, "Sonntag", "Messe", 1);
    MessenBestimmen();
    ASSERT_EQ(Messe.Anzahl, 1);
    EXPECT_EQ(Messe.Dienerzahl[0], 1);
}

TEST_F(MessenBestimmenTest, TaufeNurInDenErlaubtenWochenDesMonats)
{
    Standard(0, "Sonntag", "Taufe");
    Konfig.Flags8 = "jnjnnjjj";
    EXPECT_EQ(Monatstage({2026, 2, 1}, 60), (Liste{1, 15, 1, 15}));
    Konfig.Flags8 = "njnjnnnn";
    EXPECT_EQ(Monatstage({2026, 2, 1}, 60), (Liste{8, 22, 8, 22}));
}

TEST_F(MessenBestimmenTest, GrenzenDerTaufwochenTagFürTag)
{
    const char *namen[] = {"Sonntag",    "Montag",  "Dienstag", "Mittwoch",
                           "Donnerstag", "Freitag", "Samstag"};
    for (int z = 0; z < 7; ++z)
        Standard(z, namen[z], "Taufe");
    const std::pair<const char *, std::pair<int, int>> wochen[] = {{"jnnnnnnn", {1, 7}},
                                                                   {"njnnnnnn", {8, 14}},
                                                                   {"nnjnnnnn", {15, 21}},
                                                                   {"nnnjnnnn", {22, 28}}};
    for (const auto &[flags, grenzen] : wochen) {
        Konfig.Flags8 = flags;
        Liste erwartet;
        for (int tag = grenzen.first; tag <= grenzen.second; ++tag)
            erwartet.push_back(tag);
        EXPECT_EQ(Monatstage({2026, 10, 1}, 30), erwartet) << flags;
        // The same for the first days of a period.
        for (int tag = 1; tag <= 31; ++tag) {
            bool erlaubt = tag >= grenzen.first && tag <= grenzen.second;
            EXPECT_EQ(Monatstage({2026, 10, tag}, 0).size(), erlaubt ? 1U : 0U) << flags << tag;
        }
    }
    Konfig.Flags8 = "nnnnnjjj"; // positions 6 to 8 mean nothing
    EXPECT_EQ(Monatstage({2026, 10, 1}, 30), Liste{});
}

TEST_F(MessenBestimmenTest, TaufeAb29NurAmErstenTag)
{
    Standard(0, "Sonntag", "Taufe");
    Konfig.Flags8 = "nnnnjnnn";
    EXPECT_EQ(Monatstage({2026, 8, 23}, 14), Liste{}); // Sunday the 30th in the middle
    EXPECT_EQ(Monatstage({2026, 8, 30}, 14), Liste{30});
    EXPECT_EQ(Monatstage({2026, 11, 29}, 0), Liste{29});
    EXPECT_EQ(Monatstage({2026, 5, 31}, 0), Liste{31});
    Konfig.Flags8 = "jjjjnjjj";
    EXPECT_EQ(Monatstage({2026, 8, 30}, 7), Liste{6});
}

TEST_F(MessenBestimmenTest, TaufeAnDenErstenVierBuchstabenErkanntGroßgeschrieben)
{
    Konfig.Flags8 = "nnnnnnnn";
    Standard(0, "Sonntag", "Taufe");
    Standard(1, "Sonntag", "Tauf");
    Standard(2, "Sonntag", "Taufamt");
    Standard(3, "Sonntag", "taufe");
    Standard(4, "Sonntag", "Tau");
    Standard(5, "Sonntag", "TAUFE");
    Standard(6, "Sonntag", "Hl. Messe mit Taufe");
    MessenBestimmen();
    ASSERT_EQ(Messe.Anzahl, 4);
    EXPECT_EQ(Messe.Messeart[0], "taufe");
    EXPECT_EQ(Messe.Messeart[1], "Tau");
    EXPECT_EQ(Messe.Messeart[2], "TAUFE");
}

TEST_F(MessenBestimmenTest, NeueMesseÜbernimmtAlleFelder)
{
    Standard(5, "Sonntag", "Hochamt", 9);
    Standardmesse.Gabenbereitung[5] = 1;
    Standardmesse.Leuchter[5] = 2;
    Standardmesse.Flambeau[5] = 3;
    Standardmesse.Weihrauch[5] = 4;
    Standardmesse.Kreuzträger[5] = 5;
    Standardmesse.Allgemein[5] = 6;
    Standardmesse.Lektor[5] = 7;
    Standardmesse.Kommunion[5] = 8;
    Standardmesse.Kantor[5] = 10;
    Standardmesse.Kollektant[5] = 11;
    MessenBestimmen();
    ASSERT_EQ(Messe.Anzahl, 1);
    EXPECT_EQ(Messe.Wochentag[0], "Sonntag");
    EXPECT_EQ(Messe.Datum[0], DatumAus({2026, 11, 22}));
    EXPECT_EQ(Messe.Uhrzeit[0], ZeitAus(36000));
    EXPECT_EQ(Messe.Messeart[0], "Hochamt");
    EXPECT_EQ(Messe.Dienerzahl[0], 9);
    EXPECT_EQ(Messe.Gabenbereitung[0], 1);
    EXPECT_EQ(Messe.Leuchter[0], 2);
    EXPECT_EQ(Messe.Flambeau[0], 3);
    EXPECT_EQ(Messe.Weihrauch[0], 4);
    EXPECT_EQ(Messe.Kreuzträger[0], 5);
    EXPECT_EQ(Messe.Allgemein[0], 6);
    EXPECT_EQ(Messe.LektorZahl[0], 7);
    EXPECT_EQ(Messe.KommZahl[0], 8);
    EXPECT_EQ(Messe.KantorZahl[0], 10);
    EXPECT_EQ(Messe.KollektZahl[0], 11);
    EXPECT_EQ(Messe.Kennung[0], "s");
    for (int k = 0; k <= 20; ++k) // the services are only set by the assignment
        EXPECT_EQ(Messe.DienerDienst[0][k], "Allgemein");
}

TEST_F(MessenBestimmenTest, KeineBrauchbareZeileErgibtLeerenPlan)
{
    MesseMitDienern(DatumAus({2026, 11, 1}), 3);
    MessenNeuBestimmen();
    EXPECT_EQ(Messe.Anzahl, 0);
    EXPECT_EQ(Messe.Cursor, 0); // set after the run, which leaves it at 1
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{"Fertig mit Messen bestimmen"});
}

TEST_F(MessenBestimmenTest, MehrMessenAlsPlätzeSindEinIndexfehlerUndStartDatumBleibtVerschoben)
{
    for (int z = 0; z <= 20; ++z)
        Standard(z, z < 11 ? "Sonntag" : "Montag");
    Standard(0, "Montag"); // 10 on a Sunday, 11 on a Monday
    Konfig.Tage = 180;
    const Datum start = Konfig.StartDatum;
    MessenBestimmen(); // 26 weeks of 21 masses each and one more day with 10
    EXPECT_EQ(Messe.Anzahl, 546);

    Konfig.Tage = 203; // 29 weeks: 609
    try {
        MessenBestimmen();
        FAIL();
    } catch (const Laufzeitfehler &fehler) {
        EXPECT_EQ(fehler.Nummer(), 9);
    }
    EXPECT_EQ(Messe.Messeart[602], "Messe"); // the last place was used
    EXPECT_EQ(Konfig.StartDatum, start + 197);
    EXPECT_EQ(Messe.Anzahl, 546);
}

// The fixed entries go first, the message and the cursor come afterwards.
TEST_F(MessenBestimmenTest, WennDiePlätzeNichtReichenSindNurDieFestenEinträgeSchonGeleert)
{
    for (int z = 0; z <= 20; ++z)
        Standard(z, z < 10 ? "Sonntag" : "Montag");
    Konfig.Tage = 203;
    MesseDienerFest.Anzahl = 2;
    Messe.Cursor = 3;
    EXPECT_EQ(NummerDesFehlers(MessenNeuBestimmen), 9);
    EXPECT_EQ(MesseDienerFest.Anzahl, 0);
    EXPECT_EQ(Messe.Cursor, 3);
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{});
}

TEST_F(MessenBestimmenTest, VorschlagIstDerStartWochentagNachDenVorlaufwochen)
{
    Heute = DatumAus({2026, 11, 21}); // Saturday
    EXPECT_EQ(StartDatumVorschlagen(), DatumAus({2026, 11, 28}));
    Heute = DatumAus({2026, 11, 20}); // Friday: the Saturday after the next one
    EXPECT_EQ(StartDatumVorschlagen(), DatumAus({2026, 11, 28}));
    Heute = DatumAus({2026, 11, 22}); // Sunday
    EXPECT_EQ(StartDatumVorschlagen(), DatumAus({2026, 12, 5}));
    Konfig.StartWochentag = 1;
    Konfig.VorlaufWochen = 20;
    EXPECT_EQ(StartDatumVorschlagen(), DatumAus({2026, 11, 22}) + 140);
}

TEST_F(MessenBestimmenTest, VorschlagBringtEinstellungenInIhreGrenzen)
{
    for (int falsch : {0, 8, -3}) {
        Konfig.StartWochentag = falsch;
        StartDatumVorschlagen();
        EXPECT_EQ(Konfig.StartWochentag, 7);
    }
    for (int falsch : {0, 21, -1}) {
        Konfig.VorlaufWochen = falsch;
        StartDatumVorschlagen();
        EXPECT_EQ(Konfig.VorlaufWochen, 1);
    }
    for (int richtig : {1, 7}) {
        Konfig.StartWochentag = richtig;
        StartDatumVorschlagen();
        EXPECT_EQ(Konfig.StartWochentag, richtig);
    }
    for (int richtig : {1, 20}) {
        Konfig.VorlaufWochen = richtig;
        StartDatumVorschlagen();
        EXPECT_EQ(Konfig.VorlaufWochen, richtig);
    }
}

} // namespace
} // namespace altardienst
