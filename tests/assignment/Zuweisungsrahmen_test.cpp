// What surrounds the ways of assignment: figures, choice of the way, messages and their order.
#include "assignment/Zuweisungsrahmen.h"

#include "assignment/Wurf.h"
#include "fixed/FesteMeßdienerÜbertragen.h"

namespace altardienst {
namespace {

const Text ZuWenige = "Zuwenig Meßdiener !!!!";
const Text Fertig = "Fertig mit Meßdiener Messen zuweisen";
const Text FertigPartner =
    "Fertig mit Meßdiener Messen zuweisen unter Berücksichtigung des Wunschpartners";
const Text FertigHelfer = "Fertig mit Helfer Messen zuordnen";
const Text Kreuz = "Meßdiener Kreuzträger sind noch nachzutragen!!";
const Text Weihrauch = "Meßdiener Weihrauch sind noch nachzutragen!!";

class ZuweisungsrahmenTest : public Zuweisungsstand {
  protected:
    /// Two masses of 4 and 5 on one date: the largest mass has 5, the busiest day 9.
    void VierUndFünf()
    {
        MesseMitDienern(Sonntag, 4, ZeitAus(8 * 3600));
        MesseMitDienern(Sonntag, 5, ZeitAus(10 * 3600));
    }

    static void Festlegen(Datum tag, Datum uhrzeit, int slot, const Text &vor, const Text &nach)
    {
        MesseDienerFest.Datum[0] = tag;
        MesseDienerFest.Uhrzeit[0] = uhrzeit;
        MesseDienerFest.Vorname[0][slot] = vor;
        MesseDienerFest.Nachname[0][slot] = nach;
    }

    void Besetzen()
    {
        Antworten = {true};
        MessenMitMeßdienerBesetzen(FesteMeßdienerÜbertragen);
    }
};

TEST_F(ZuweisungsrahmenTest, DienstProDienerIstDerGanzeAnteilPlusEins)
{
    DienerAnlegen(20);
    MesseMitDienern(Sonntag, 45);
    DienstProDienerRechnen();
    EXPECT_EQ(DienstProDiener, 3);
    Messe.Dienerzahl[0] = 39;
    DienstProDienerRechnen();
    EXPECT_EQ(DienstProDiener, 2);
    Messe.Dienerzahl[1] = 1; // the blank record counts, the one after it does not
    Messe.Dienerzahl[2] = 20;
    DienstProDienerRechnen();
    EXPECT_EQ(DienstProDiener, 3);
}

TEST_F(ZuweisungsrahmenTest, OhneMeßdienerDivisionDurchNullVorJederMeldung)
{
    VierUndFünf();
    Antworten = {true};
    EXPECT_EQ(NummerDesFehlers([] { MessenMitMeßdienerBesetzen(FesteMeßdienerÜbertragen); }), 11);
    EXPECT_EQ(NummerDesFehlers([] { WunschpartnerBerücksichtigen(FesteMeßdienerÜbertragen); }), 11);
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(ZuweisungsrahmenTest, OhneMeßdienerSindDieMessenSchonSortiertDieDiensteNochNichtVerteilt)
{
    for (auto besetzen : {MessenMitMeßdienerBesetzen, WunschpartnerBerücksichtigen}) {
        TabellenLeeren();
        MesseMitDienern(Montag, 2);
        MesseMitDienern(Sonntag, 2);
        for (int i : {0, 1}) {
            Messe.Leuchter[i] = 1;
            Messe.DienerDienst[i][0] = "Alt";
        }
        Antworten = {true};
        EXPECT_EQ(NummerDesFehlers([&] { besetzen(FesteMeßdienerÜbertragen); }), 11);
        EXPECT_EQ(Messe.Datum[0], Sonntag);
        EXPECT_EQ(Messe.Datum[1], Montag);
        EXPECT_EQ(Messe.DienerDienst[0][0], "Alt");
    }
}

TEST_F(ZuweisungsrahmenTest, SummenÜber16BitSindEinÜberlauf)
{
    DienerAnlegen(1);
    MesseMitDienern(Sonntag, 20000);
    MesseMitDienern(Montag, 12766);
    DienstProDienerRechnen(); // 32766 places
    EXPECT_EQ(DienstProDiener, 32767);
    Messe.Dienerzahl[1] = 12767;
    EXPECT_EQ(NummerDesFehlers([] { DienstProDienerRechnen(); }), 6); // the added 1
    Messe.Dienerzahl[1] = 12768;
    EXPECT_EQ(NummerDesFehlers([] { DienstProDienerRechnen(); }), 6);
    EXPECT_EQ(NummerDesFehlers([] { GrößenRechnen(); }), 0); // not on one day
    Messe.Datum[1] = Sonntag;
    EXPECT_EQ(NummerDesFehlers([] { GrößenRechnen(); }), 6);
}

TEST_F(ZuweisungsrahmenTest, GrößteMesseUndGrößterTag)
{
    VierUndFünf();
    GrößenRechnen();
    EXPECT_EQ(GrößteMesse, 5);
    EXPECT_EQ(GrößterTag, 9);

    MesseMitDienern(Montag, 8);
    GrößenRechnen();
    EXPECT_EQ(GrößteMesse, 8);
    EXPECT_EQ(GrößterTag, 9);
    Messe.Dienerzahl[2] = 10; // the last day, closed by the blank record
    GrößenRechnen();
    EXPECT_EQ(GrößteMesse, 10);
    EXPECT_EQ(GrößterTag, 10);
    MesseMitDienern(Sonntag, 7); // not next to the others on its date
    GrößenRechnen();
    EXPECT_EQ(GrößterTag, 10);
    Messe.Dienerzahl[4] = 30; // the blank record counts as a mass, but its sum is never closed
    GrößenRechnen();
    EXPECT_EQ(GrößteMesse, 30);
    EXPECT_EQ(GrößterTag, 10);
    Messe.Datum[4] = Sonntag;
    GrößenRechnen();
    EXPECT_EQ(GrößterTag, 37);
}

TEST_F(ZuweisungsrahmenTest, GrößenBeginnenBeiNull)
{
    GrößteMesse = 50;
    GrößterTag = 50;
    GrößenRechnen();
    EXPECT_EQ(GrößteMesse, 0);
    EXPECT_EQ(GrößterTag, 0);
    MesseMitDienern(Sonntag, -3);
    GrößenRechnen();
    EXPECT_EQ(GrößteMesse, 0);
    EXPECT_EQ(GrößterTag, 0);
}

TEST_F(ZuweisungsrahmenTest, FrageMitJaUndNeinUndNeinÄndertNichts)
{
    DienerAnlegen(18);
    MesseMitDienern(Montag, 4);
    MesseMitDienern(Sonntag, 4);
    Festlegen(Montag, ZeitAus(36000), 1, "Fest", "Fest");
    Würfeln({});
    Antworten = {false};
    MessenMitMeßdienerBesetzen(FesteMeßdienerÜbertragen);
    ASSERT_EQ(GestellteFragen.size(), 1U);
    EXPECT_EQ(GestellteFragen[0].Titel, "Wirklich?");
    EXPECT_EQ(GestellteFragen[0].Wortlaut,
              "Sicherer ist ~(4)Meßdiener-Wunschpartner berücksichtigen~ und ohne Probleme. "
              "Wollen Sie Wirklich diese Funktion ausführen?");
    EXPECT_TRUE(GezeigteMeldungen.empty());
    EXPECT_EQ(Messe.Datum[0], Montag);
    EXPECT_EQ(Slot(0, 1), " ");
    EXPECT_EQ(Messe.DienerDienst[0][0], "");
}

TEST_F(ZuweisungsrahmenTest, ZuWenigeFürDieGrößteMesseDannNurFeste)
{
    DienerAnlegen(5);
    VierUndFünf();
    Messe.Leuchter[1] = 1;
    Festlegen(Sonntag, ZeitAus(10 * 3600), 2, "Fest", "Fest");
    Würfeln({});
    Besetzen();
    EXPECT_EQ(GezeigteMeldungen, (std::vector<Text>{ZuWenige, Fertig}));
    EXPECT_EQ(Namen(0), "");
    EXPECT_EQ(Namen(1), "- Fest");
    EXPECT_EQ(Messe.DienerDienst[1][0], "Leuchter"); // the services came before
}

TEST_F(ZuweisungsrahmenTest, EinerMehrAlsDieGrößteMesseGenügt)
{
    DienerAnlegen(6);
    VierUndFünf();
    Würfeln({0, 1, 2, 3, 0, 1, 2, 3, 4});
    Besetzen();
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{Fertig});
    EXPECT_EQ(Namen(1), "N0 N1 N2 N3 N4");
}

TEST_F(ZuweisungsrahmenTest, ZuwenigGehtVorAuchWennDieTageReichten)
{
    DienerAnlegen(3);
    MesseMitDienern(Sonntag, 0);
    Messe.Dienerzahl[1] = 3; // only the blank record, so the busiest day has none
    Würfeln({});
    Besetzen();
    EXPECT_EQ(GezeigteMeldungen, (std::vector<Text>{ZuWenige, Fertig}));
}

// Twice a day with that many exceeds an Int16, but nobody computes it.
TEST_F(ZuweisungsrahmenTest, ZuwenigGehtVorAuchWennZweiTageÜberliefen)
{
    for (const int diener : {16383, 16384, 20000}) {
        TabellenLeeren();
        GezeigteMeldungen.clear();
        DienerAnlegen(5);
        MesseMitDienern(Sonntag, diener);
        Festlegen(Sonntag, ZeitAus(36000), 2, "Fest", "Fest");
        Würfeln({});
        Besetzen();
        EXPECT_EQ(GezeigteMeldungen, (std::vector<Text>{ZuWenige, Fertig})) << diener;
        EXPECT_EQ(Slot(0, 2), "Fest Fest") << diener; // the fixed ones are carried over
    }
}

// The mass is small enough, but the day with many masses is not.
TEST_F(ZuweisungsrahmenTest, DerZweifacheTagLäuftÜberWoErGebrauchtWird)
{
    DienerAnlegen(400);
    for (int i = 0; i < 50; ++i)
        MesseMitDienern(Sonntag, 399, ZeitAus(3600 + 60 * i));
    Würfeln({});
    Antworten = {true};
    EXPECT_EQ(NummerDesFehlers([] { MessenMitMeßdienerBesetzen(FesteMeßdienerÜbertragen); }), 6);
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(ZuweisungsrahmenTest, BisZweiVolleTageLäuftDerKnappeWeg)
{
    DienerAnlegen(18);
    VierUndFünf();
    Würfeln({0, 1, 2, 3, 0, 1, 2, 3, 4}); // the same servers on one date
    Besetzen();
    EXPECT_EQ(Namen(0), "N0 N1 N2 N3");
    EXPECT_EQ(Namen(1), "N0 N1 N2 N3 N4");
    EXPECT_EQ(Gezogen, 9);
}

TEST_F(ZuweisungsrahmenTest, AbEinemMehrLäuftDerFreieWegBisZehnMehr)
{
    for (int anzahl : {19, 28}) {
        TabellenLeeren();
        DienerAnlegen(anzahl);
        for (int j = 0; j < anzahl; ++j)
            Meßdiener.Wochendienst[j] = "jjjjjjjj"; // read only by the full way
        VierUndFünf();
        Messe.Messeart[0] = "Wochendienst";
        Würfeln({0, 1, 2, 3, 0, 4, 5, 6, 7, 8});
        Besetzen();
        EXPECT_EQ(Namen(0), "N0 N1 N2 N3");
        EXPECT_EQ(Namen(1), "N4 N5 N6 N7 N8"); // 0 was refused on the same date
        EXPECT_EQ(Gezogen, 10);
    }
}

TEST_F(ZuweisungsrahmenTest, MehrAlsZehnDarüberLäuftDerVolleWeg)
{
    DienerAnlegen(29);
    Meßdiener.Wochendienst[0] = "jnnnnnnn";
    VierUndFünf();
    Messe.Messeart[0] = "Wochendienst";
    Würfeln({0, 1, 2, 3, 4, 5, 6, 7, 8, 9});
    Besetzen();
    EXPECT_EQ(Namen(0), "N1 N2 N3 N4");
    EXPECT_EQ(Namen(1), "N5 N6 N7 N8 N9");
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{Fertig});
}

TEST_F(ZuweisungsrahmenTest, EinfacherWegSortiertVerteiltDiensteUndTrägtFesteÜberDieGezogenen)
{
    DienerAnlegen(4);
    MesseMitDienern(Montag, 1);
    MesseMitDienern(Sonntag, 2, ZeitAus(36000));
    MesseMitDienern(Sonntag, 1, ZeitAus(8 * 3600));
    Messe.Weihrauch[1] = 1;
    Festlegen(Sonntag, ZeitAus(36000), 2, "V1", "N1");
    Würfeln({0, 1, 2, 3});
    Besetzen();
    EXPECT_EQ(Messe.Uhrzeit[0], ZeitAus(8 * 3600));
    EXPECT_EQ(Messe.Datum[2], Montag);
    EXPECT_EQ(Namen(0), "N0");
    EXPECT_EQ(Namen(1), "N1 N1"); // the fixed server is there twice, with no further correction
    EXPECT_EQ(Namen(2), "N3");
    EXPECT_EQ(Messe.DienerDienst[1][1], "Weihrauch"); // the expansion of the run
    EXPECT_EQ(Gestreut, 1);
}

TEST_F(ZuweisungsrahmenTest, NachAbbruchDesVollenWegesFolgenFesteUndFertigmeldung)
{
    DienerAnlegen(29);
    VierUndFünf();
    Festlegen(Sonntag, ZeitAus(8 * 3600), 4, "Fest", "Fest");
    Würfeln({0, 1, {29, 3}, {29, 3}, {29, 3}, {29, 3}, {29, 3}, 29, {29, 81}});
    Besetzen();
    EXPECT_EQ(GezeigteMeldungen,
              (std::vector<Text>{"Es sind die Qualifikationen der Meßdiener bzw. die "
                                 "Größendifferenz anzupassen!!!!!",
                                 Fertig}));
    EXPECT_EQ(Namen(0), "N0 N1 - Fest");
}

TEST_F(ZuweisungsrahmenTest, PartnerwegOhneFrageSortiertVerteiltDiensteUndTrägtFeste)
{
    DienerAnlegen(5);
    MesseMitDienern(Montag + 7, 1);
    MesseMitDienern(Sonntag, 3);
    Messe.Weihrauch[1] = 1;
    Meßdiener.Qualifikation[1] = "jjjnjj"; // compared with the services just set
    Festlegen(Sonntag, ZeitAus(36000), 2, "V0", "N0");
    Würfeln({0, 1, 2, 3, 1, 0, 4}); // 0 is blocked on Sunday
    WunschpartnerBerücksichtigen(FesteMeßdienerÜbertragen);
    EXPECT_TRUE(GestellteFragen.empty());
    EXPECT_EQ(Messe.Datum[0], Sonntag);
    EXPECT_EQ(Namen(0), "N2 N0 N1");
    EXPECT_EQ(Messe.DienerDienst[0][0], "Weihrauch");
    EXPECT_EQ(Messe.DienerDienst[0][1], "Allgemein");
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{FertigPartner});
    EXPECT_EQ(Namen(1), "N4"); // 0 was still taken from Sunday
}

TEST_F(ZuweisungsrahmenTest, NachAbbruchDesPartnerwegesFolgenFesteErinnerungenUndFertigmeldung)
{
    constexpr int Niemand = 3; // the blank row
    DienerAnlegen(Niemand);
    MesseMitDienern(Sonntag, 2);
    Festlegen(Sonntag, ZeitAus(36000), 2, "Fest", "Fest");
    Konfig.ManuellKreuzträger = Konfig.ManuellWeihrauch = 1;
    Würfeln(
        {{Niemand, 3}, {Niemand, 3}, {Niemand, 3}, {Niemand, 3}, {Niemand, 3}, 0, {Niemand, 101}});
    WunschpartnerBerücksichtigen(FesteMeßdienerÜbertragen);
    EXPECT_EQ(GezeigteMeldungen,
              (std::vector<Text>{"Es sind die Qualifikationen der Meßdiener bzw. die "
                                 "Größendifferenz anzupassen !!!!!",
                                 Kreuz, Weihrauch, FertigPartner}));
    EXPECT_EQ(Namen(0), "N0 Fest"); // what was filled stays
}

TEST_F(ZuweisungsrahmenTest, ErinnerungenErstKreuzträgerDannWeihrauchWasAuchGebrauchtWird)
{
    DienerAnlegen(1);
    auto meldungen = [&](int manuellKreuz, int manuellWeihrauch) {
        GezeigteMeldungen.clear();
        Konfig.ManuellKreuzträger = manuellKreuz;
        Konfig.ManuellWeihrauch = manuellWeihrauch;
        WunschpartnerBerücksichtigen(FesteMeßdienerÜbertragen);
        return GezeigteMeldungen;
    };
    EXPECT_EQ(meldungen(0, 0), (std::vector<Text>{FertigPartner}));
    EXPECT_EQ(meldungen(1, 0), (std::vector<Text>{Kreuz, FertigPartner}));
    EXPECT_EQ(meldungen(0, 1), (std::vector<Text>{Weihrauch, FertigPartner}));
    EXPECT_EQ(meldungen(1, 1), (std::vector<Text>{Kreuz, Weihrauch, FertigPartner}));
    EXPECT_EQ(meldungen(2, -1), (std::vector<Text>{FertigPartner})); // only 1 is yes
}

TEST_F(ZuweisungsrahmenTest, HelferwegOhneFrageUndOhneSortieren)
{
    HelferDienste(2, "Lektor");
    int montag = MesseMitDienern(Montag, 1);
    MesseMitDienern(Sonntag, 1);
    Messe.LektorZahl[montag] = 1;
    Festlegen(Montag, ZeitAus(36000), 1, "Fest", "Fest");
    HelferWürfeln({1});
    MessenMitMessehelferBesetzen();
    EXPECT_EQ(Messe.Datum[0], Montag);
    EXPECT_EQ(Messe.Lektor1Nach[0], "N1");
    EXPECT_EQ(Namen(0), ""); // fixed servers are not carried over here
    EXPECT_TRUE(GestellteFragen.empty());
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{FertigHelfer});
}

TEST_F(ZuweisungsrahmenTest, NachAbbruchDesHelferwegesFolgtDieFertigmeldung)
{
    HelferDienste(4, "Lektor");
    Messe.LektorZahl[MesseMitDienern(Sonntag, 0)] = 2;
    HelferWürfeln({0, {4, 6}});
    MessenMitMessehelferBesetzen();
    EXPECT_EQ(Messe.Lektor1Nach[0], "N0");
    EXPECT_EQ(Messe.Lektor2Nach[0], "");
    EXPECT_EQ(
        GezeigteMeldungen,
        (std::vector<Text>{"Achtung, es sind die Dienste der einzelnen Helfer zu überprüfen !!!!!!",
                           FertigHelfer}));
}

} // namespace
} // namespace altardienst
