// The partner way: wish partners, the cap on pairs, the block of fixed servers.
#include "assignment/ZweiMeßdienerzuweisen.h"

#include "assignment/Wurf.h"
#include "assignment/Zuweisungsrahmen.h"

namespace altardienst {
namespace {

class WunschpartnerTest : public Zuweisungsstand {
  protected:
    WunschpartnerTest() { Anfang(); }

    void Anfang(int diener = 10)
    {
        TabellenLeeren();
        DienerAnlegen(diener);
        DienstProDiener = 3;
        Konfig.GrenzeAuslöse = 99;
    }

    static void Wunsch(int j, const Text &vor, const Text &nach)
    {
        Meßdiener.WunschVorname[j] = vor;
        Meßdiener.WunschNachname[j] = nach;
    }
    static void Wunsch(int j, int partner)
    {
        Wunsch(j, Meßdiener.Vorname[partner], Meßdiener.Nachname[partner]);
    }

    void Lauf(std::vector<Wurf> würfe)
    {
        Würfeln(std::move(würfe));
        WunschpartnerZuweisen();
    }

    static void Fest(int zeile, Datum tag, int slot, const Text &vor, const Text &nach)
    {
        MesseDienerFest.Datum[zeile] = tag;
        MesseDienerFest.Vorname[zeile][slot] = vor;
        MesseDienerFest.Nachname[zeile][slot] = nach;
    }
};

TEST_F(WunschpartnerTest, PartnerStehtImNächstenSlotUndDieSucheGehtDahinterWeiter)
{
    MesseMitDienern(Sonntag, 4);
    Wunsch(0, 1);
    Lauf({0, 2, 3});
    EXPECT_EQ(Namen(0), "N0 N1 N2 N3");
    EXPECT_EQ(Slot(0, 2), "V1 N1");
    EXPECT_EQ(Gestreut, 1);
    for (int j = 0; j < 10; ++j) {
        EXPECT_EQ(Meßdiener.Belegt[j], j < 4) << j;
        EXPECT_EQ(Meßdiener.DienstZähler[j], j < 2) << j;
        EXPECT_EQ(Meßdiener.LetzterDienst[j], j < 4 ? Sonntag : 0) << j;
    }
}

TEST_F(WunschpartnerTest, MitPartnerNieAufDenLetztenPlatz)
{
    MesseMitDienern(Sonntag, 4);
    Wunsch(5, 6);
    Lauf({0, 1, 2, 5, 3});
    EXPECT_EQ(Namen(0), "N0 N1 N2 N3");

    Anfang();
    MesseMitDienern(Sonntag, 3);
    Wunsch(5, 6);
    Lauf({0, 5, 3}); // the second to last slot has room for both
    EXPECT_EQ(Namen(0), "N0 N5 N6");
    EXPECT_EQ(Gezogen, 2);
}

TEST_F(WunschpartnerTest, HalberWunschIstKeiner)
{
    MesseMitDienern(Sonntag, 3);
    Wunsch(0, "V5", "");
    Wunsch(1, "", "N5");
    Wunsch(2, "V5", "");
    Lauf({0, 1, 2});
    EXPECT_EQ(Namen(0), "N0 N1 N2");
    EXPECT_EQ(Meßdiener.DienstZähler[0], 0);
    Anfang();
    MesseMitDienern(Sonntag, 1);
    Wunsch(1, "", "N5");
    Lauf({1});
    EXPECT_EQ(Namen(0), "N1");
}

TEST_F(WunschpartnerTest, VergebenerPartnerDannAllein)
{
    MesseMitDienern(Sonntag, 4);
    Wunsch(2, 0);
    Lauf({0, 1, 2, 3});
    EXPECT_EQ(Namen(0), "N0 N1 N2 N3");
    EXPECT_EQ(Meßdiener.DienstZähler[2], 0);
    EXPECT_EQ(Meßdiener.DienstZähler[0], 0);
}

TEST_F(WunschpartnerTest, EinVergebenerVonZweiGleichenNamenGenügt)
{
    MesseMitDienern(Sonntag, 4);
    MeßdienerAnlegen("V5", "N5"); // record 10
    Wunsch(1, 5);
    Lauf({10, 1, 2, 3});
    EXPECT_EQ(Namen(0), "N5 N1 N2 N3");

    Anfang();
    MesseMitDienern(Sonntag, 2);
    MeßdienerAnlegen("V5", "N5");
    Wunsch(1, 5);
    Lauf({1}); // both free: both count as placed
    EXPECT_EQ(Namen(0), "N1 N5");
    for (int p : {5, 10}) {
        EXPECT_EQ(Meßdiener.Belegt[p], 1);
        EXPECT_EQ(Meßdiener.DienstZähler[p], 1);
        EXPECT_EQ(Meßdiener.LetzterDienst[p], Sonntag);
    }
}

TEST_F(WunschpartnerTest, UnbekannterPartnerWirdTrotzdemGeschrieben)
{
    MesseMitDienern(Sonntag, 3);
    Wunsch(0, "Niemand", "Bekannt");
    Lauf({0, 1});
    EXPECT_EQ(Slot(0, 2), "Niemand Bekannt");
    EXPECT_EQ(Slot(0, 3), "V1 N1");
    EXPECT_EQ(Meßdiener.DienstZähler[0], 1);
    Anfang(); // whole names are compared: a first name alone or another case matches nobody
    MesseMitDienern(Sonntag, 4);
    Wunsch(1, "V0", "n0");
    Lauf({0, 1, 2});
    EXPECT_EQ(Slot(0, 3), "V0 n0");
}

TEST_F(WunschpartnerTest, SichSelbstWünschenIstAllein)
{
    MesseMitDienern(Sonntag, 2);
    Wunsch(0, 0);
    Lauf({0, 1});
    EXPECT_EQ(Namen(0), "N0 N1");
}

TEST_F(WunschpartnerTest, PartnerWirdNurAufFreiseinGeprüft)
{
    MesseMitDienern(Montag, 4);
    for (int k = 0; k < 4; ++k)
        Messe.DienerDienst[0][k] = k == 1 ? "Weihrauch" : "Allgemein";
    Konfig.ManuellWeihrauch = 1;
    Wunsch(0, 1);
    Wunsch(1, 5); // his own wish is not read
    Meßdiener.Geschlecht[1] = "weiblich";
    Meßdiener.Qualifikation[1] = "nnnnnn";
    Meßdiener.Wochendienst[1] = "jjjjjjjj";
    Meßdiener.Bis1[1] = 99999;
    Meßdiener.Häufigkeit[1] = -10;
    Meßdiener.Größe[1] = 100;
    Lauf({0, 2, 3});
    EXPECT_EQ(Namen(0), "N0 N1 N2 N3");
}

TEST_F(WunschpartnerTest, GeschlechtDesGezogenenGiltFürDenGeradenSlotHinterDemPaar)
{
    MesseMitDienern(Sonntag, 4);
    Meßdiener.Geschlecht[2] = "weiblich"; // 1 wants her as partner
    Meßdiener.Geschlecht[3] = "weiblich";
    Wunsch(1, 2);
    Lauf({0, 1, 3, 4});
    EXPECT_EQ(Namen(0), "N0 N1 N2 N4"); // the pair at slots 2 and 3
}

TEST_F(WunschpartnerTest, GeschlechtNurAnGeradenSlots)
{
    MesseMitDienern(Sonntag, 5);
    for (int j : {1, 3, 5})
        Meßdiener.Geschlecht[j] = "weiblich";
    Lauf({0, 1, 2, 1, 4, 3, 2, 4, 5, 6});
    EXPECT_EQ(Namen(0), "N0 N2 N1 N3 N4");
    EXPECT_EQ(Gezogen, 8);
}

TEST_F(WunschpartnerTest, PartnerPasstNochAufSlot20)
{
    Anfang(25);
    MesseMitDienern(Sonntag, 20);
    Wunsch(18, 20);
    std::vector<Wurf> würfe;
    for (int j = 0; j < 19; ++j)
        würfe.emplace_back(j);
    Lauf(würfe);
    EXPECT_EQ(Slot(0, 19), "V18 N18");
    EXPECT_EQ(Slot(0, 20), "V20 N20");
}

TEST_F(WunschpartnerTest, MehrAlsZwanzigDienerSindEinIndexfehler)
{
    Anfang(25);
    MesseMitDienern(Sonntag, 21);
    Wunsch(19, 22); // at slot 20 there is no place for a partner
    std::vector<Wurf> würfe;
    for (int j = 0; j < 21; ++j)
        würfe.emplace_back(j);
    EXPECT_EQ(NummerDesFehlers([&] { Lauf(würfe); }), 9);
    EXPECT_EQ(Slot(0, 20), "V19 N19");
    EXPECT_EQ(Meßdiener.DienstZähler[19], 0);
    EXPECT_EQ(Gezogen, 21);
}

TEST_F(WunschpartnerTest, ObergrenzeZähltNurPaareUndDieHäufigkeitHebtSie)
{
    // For a mass of two each week, 0 is drawn first, with 1 as partner, and 2 only if 0 is refused.
    auto paareMit = [this](int häufigkeit, int erlaubt) {
        Anfang(4);
        DienstProDiener = 2;
        Konfig.GrenzeAuslöse = 0;
        Meßdiener.Häufigkeit[0] = häufigkeit;
        Meßdiener.Häufigkeit[2] = 20;
        Wunsch(0, 1);
        Wunsch(2, 3);
        std::vector<Wurf> würfe;
        for (int woche = 0; woche < 6; ++woche) {
            MesseMitDienern(Sonntag + 7 * woche, 2);
            MesseMitDienern(Sonntag + 7 * woche + 3, 0); // frees everybody
            würfe.emplace_back(0);
            if (woche >= erlaubt)
                würfe.emplace_back(2);
        }
        Lauf(würfe);
        EXPECT_EQ(Gezogen, static_cast<int>(würfe.size()));
        return int(Meßdiener.DienstZähler[0]);
    };
    EXPECT_EQ(paareMit(0, 2), 2);
    EXPECT_EQ(paareMit(1, 3), 3);
    EXPECT_EQ(paareMit(2, 4), 4);
    EXPECT_EQ(paareMit(-2, 0), 0);
}

TEST_F(WunschpartnerTest, AuchDerPartnerWirdGezähltUndKannDannNichtMehrGezogenWerden)
{
    DienstProDiener = 1;
    Konfig.GrenzeAuslöse = 0;
    MesseMitDienern(Sonntag, 2);
    MesseMitDienern(Sonntag + 3, 0);
    MesseMitDienern(Sonntag + 7, 1);
    Wunsch(0, 1);
    Lauf({0, 1, 0, 2});
    EXPECT_EQ(Namen(2), "N2");
}

TEST_F(WunschpartnerTest, WerAlleinDientWirdNichtGezählt)
{
    DienstProDiener = 1;
    Konfig.GrenzeAuslöse = 0;
    for (int woche = 0; woche < 3; ++woche) {
        MesseMitDienern(Sonntag + 7 * woche, 1);
        MesseMitDienern(Sonntag + 7 * woche + 3, 0);
    }
    Lauf({0, 0, 0});
    EXPECT_EQ(Namen(4), "N0");
    EXPECT_EQ(Meßdiener.DienstZähler[0], 0);
}

TEST_F(WunschpartnerTest, LaufBeginntOhneBelegteUndOhneGezähltePaare)
{
    for (int j = 0; j <= 11; ++j) {
        Meßdiener.Belegt[j] = 1;
        Meßdiener.DienstZähler[j] = 100;
    }
    MesseMitDienern(Sonntag, 1);
    Lauf({0});
    EXPECT_EQ(Namen(0), "N0");
    EXPECT_EQ(Meßdiener.Belegt[10], 0);
    EXPECT_EQ(Meßdiener.DienstZähler[10], 0);
    EXPECT_EQ(Meßdiener.Belegt[11], 1);
    EXPECT_EQ(Meßdiener.DienstZähler[11], 100);
}

TEST_F(WunschpartnerTest, FesteSindAmTagUndAmFolgetagGesperrt)
{
    Konfig.GrenzeAuslöse = 0;
    for (int tag = -1; tag <= 4; ++tag)
        MesseMitDienern(Sonntag + tag, 1);
    Fest(0, Sonntag, 20, "V0", "N0"); // whatever the time of day
    Lauf({0, 0, 1, 0, 2, 0, 3, 0, 1, 0});
    EXPECT_EQ(Namen(0), "N0");
    EXPECT_EQ(Namen(1), "N1");
    EXPECT_EQ(Namen(2), "N2");
    // Monday's block was dated Monday: it ends when Wednesday's mass is closed.
    EXPECT_EQ(Namen(3), "N3");
    EXPECT_EQ(Namen(4), "N1");
    EXPECT_EQ(Namen(5), "N0");
}

TEST_F(WunschpartnerTest, FesteZeile100SperrtZeile101Nicht)
{
    MesseMitDienern(Sonntag, 2);
    Fest(100, Sonntag, 1, "V0", "N0");
    Fest(101, Sonntag, 1, "V1", "N1");
    Fest(5, Sonntag, 0, "V2", "N2");            // slot 0 counts for nobody
    Fest(6, Sonntag, 1, "Gruppe", "Tarzisius"); // a group blocks nobody
    Fest(7, Sonntag, 1, "V2", "");              // nor does half a name
    Fest(8, Sonntag + 1, 1, "V2", "N2");        // nor an entry for a later day
    Lauf({0, 1, 2});
    EXPECT_EQ(Namen(0), "N1 N2");
    EXPECT_EQ(Meßdiener.Belegt[0], 1);
    EXPECT_EQ(Meßdiener.LetzterDienst[0], Sonntag);
}

TEST_F(WunschpartnerTest, FesterNameSperrtAuchDieLeereZeileHinterDemLetzten)
{
    MesseMitDienern(Sonntag, 1);
    for (int p : {10, 11}) { // the blank row, and one further
        Meßdiener.Vorname[p] = "V";
        Meßdiener.Nachname[p] = "Leer";
    }
    Fest(0, Sonntag, 1, "V", "Leer");
    Lauf({10, 0});
    EXPECT_EQ(Namen(0), "N0");
    EXPECT_EQ(Meßdiener.Belegt[10], 1);
    EXPECT_EQ(Meßdiener.Belegt[11], 0);
}

TEST_F(WunschpartnerTest, GeschwisterSindZweiLeute)
{
    MeßdienerAnlegen("Anna", "N5"); // record 10
    MeßdienerAnlegen("Bernd", "N5");
    MesseMitDienern(Sonntag, 3);
    Wunsch(0, 10);
    Lauf({11, 0}); // Bernd is taken, Anna is not
    EXPECT_EQ(Slot(0, 3), "Anna N5");
    Fest(0, Sonntag, 1, "Anna", "N5");
    Lauf({10, 11, 1, 2}); // Anna is fixed, Bernd can be drawn
    EXPECT_EQ(Slot(0, 1), "Bernd N5");
}

TEST_F(WunschpartnerTest, GesperrterPartnerGiltAlsVergebenUndZähltBeimAbschluss)
{
    Anfang(4);
    MesseMitDienern(Sonntag, 2);
    Konfig.GrenzeAuslöse = 76;
    Wunsch(0, 1);
    Fest(0, Sonntag, 1, "V1", "N1");
    Lauf({0, 2});
    EXPECT_EQ(Namen(0), "N0 N2");
    EXPECT_EQ(BelegtProzent, 75);
}

TEST_F(WunschpartnerTest, MittelgrößeWirdMitgeführtAberNichtGelesen)
{
    Konfig.DiffGröße = 0;
    const int größen[] = {170, 161, 150, 200};
    for (int j = 0; j < 4; ++j)
        Meßdiener.Größe[j] = größen[j];
    MesseMitDienern(Sonntag, 1);
    Lauf({0});
    EXPECT_EQ(MittelGröße, 170);
    Messe.Dienerzahl[0] = 2;
    Lauf({0, 1});
    EXPECT_EQ(MittelGröße, 166);
    Messe.Dienerzahl[0] = 4;
    Lauf({0, 1, 2, 3});
    EXPECT_EQ(Namen(0), "N0 N1 N2 N3");
    EXPECT_EQ(MittelGröße, 161);
}

} // namespace
} // namespace altardienst
