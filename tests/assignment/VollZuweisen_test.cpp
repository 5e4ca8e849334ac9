// The full way of assigning servers: the tests of a slot, the rotation, and the worked example. Its
// clock limits are tested in a file of their own.
#include "assignment/MEßdienerzuweiseung.h"

#include "assignment/Wurf.h"

namespace altardienst {
namespace {

class VollZuweisenTest : public Zuweisungsstand {
  protected:
    VollZuweisenTest() { Konfig.DiffGröße = 10; }

    /// Twenty servers who go well together, and a mass of `slots` servers on Monday.
    void TestmesseMit(int slots)
    {
        TabellenLeeren();
        Konfig.DiffGröße = 10;
        DienerAnlegen(20);
        MesseMitDienern(Montag, slots);
    }

    /// Whether the odd one out, made by `anders`, is accepted as the last of a mass of `slot`.
    bool Angenommen(int slot, const std::function<void(int)> &anders)
    {
        TestmesseMit(slot);
        int j = MeßdienerAnlegen("Anders", "Anders");
        anders(j);
        std::vector<Wurf> würfe;
        for (int n = 1; n < slot; ++n)
            würfe.emplace_back(n - 1);
        würfe.emplace_back(j);
        würfe.emplace_back(slot - 1);
        Würfeln(würfe);
        MeßdienerVollZuweisen();
        EXPECT_EQ(Gezogen, Messe.DienerNach[0][slot] == "Anders" ? slot : slot + 1);
        return Messe.DienerNach[0][slot] == "Anders";
    }
};

TEST_F(VollZuweisenTest, GrößeZähltAbSlot2)
{
    for (int slot = 1; slot <= 20; ++slot) {
        EXPECT_EQ(Angenommen(slot, [](int j) { Meßdiener.Größe[j] = 171; }), slot == 1) << slot;
        EXPECT_EQ(Angenommen(slot, [](int j) { Meßdiener.Größe[j] = 149; }), slot == 1) << slot;
        EXPECT_TRUE(Angenommen(slot, [](int j) { Meßdiener.Größe[j] = 170; })) << slot;
        EXPECT_TRUE(Angenommen(slot, [](int j) { Meßdiener.Größe[j] = 150; })) << slot;
    }
}

TEST_F(VollZuweisenTest, GeschlechtZähltAnGeradenSlots)
{
    for (int slot = 1; slot <= 20; ++slot)
        EXPECT_EQ(Angenommen(slot, [](int j) { Meßdiener.Geschlecht[j] = "weiblich"; }),
                  slot % 2 == 1)
            << slot;
}

TEST_F(VollZuweisenTest, QualifikationZähltBisSlot16UndLiestDenDienstEinePositionTiefer)
{
    for (int slot = 1; slot <= 20; ++slot) {
        auto unqualifiziert = [&](int dienstplatz) {
            return [dienstplatz](int j) {
                Meßdiener.Qualifikation[j] = "jjjnjj";
                if (dienstplatz <= 20)
                    Messe.DienerDienst[0][dienstplatz] = "Weihrauch";
            };
        };
        EXPECT_EQ(Angenommen(slot, unqualifiziert(slot - 1)), slot > 16) << slot;
        EXPECT_TRUE(Angenommen(slot, unqualifiziert(slot))) << slot;
    }
}

TEST_F(VollZuweisenTest, NamenFreiseinAbwesenheitUndWochenwunschZählenAnJedemSlot)
{
    for (int slot = 1; slot <= 20; ++slot) {
        EXPECT_FALSE(Angenommen(slot, [](int j) { Meßdiener.Vorname[j] = ""; })) << slot;
        EXPECT_FALSE(Angenommen(slot, [this](int j) {
            Meßdiener.Von3[j] = Samstag;
            Meßdiener.Bis3[j] = Montag;
        })) << slot;
        EXPECT_FALSE(Angenommen(slot, [](int j) { Meßdiener.Wochendienst[j] = "njnnnnnn"; }))
            << slot;
        EXPECT_TRUE(Angenommen(slot, [](int) {})) << slot;
        if (slot > 1) {
            TestmesseMit(slot);
            std::vector<Wurf> würfe;
            for (int n = 1; n < slot; ++n)
                würfe.emplace_back(n - 1);
            würfe.emplace_back(0); // taken
            würfe.emplace_back(slot - 1);
            Würfeln(würfe);
            MeßdienerVollZuweisen();
            EXPECT_EQ(Gezogen, slot + 1);
        }
    }
}

TEST_F(VollZuweisenTest, HöchstensZwanzigSlots)
{
    TestmesseMit(25);
    std::vector<Wurf> würfe;
    for (int j = 0; j < 20; ++j)
        würfe.emplace_back(j);
    Würfeln(würfe);
    MeßdienerVollZuweisen();
    EXPECT_EQ(Slot(0, 20), "V19 N19");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(VollZuweisenTest, HäufigkeitGruppeAnführerUndWunschpartnerSpielenKeineRolle)
{
    EXPECT_TRUE(Angenommen(1, [](int j) {
        Meßdiener.Häufigkeit[j] = -5;
        Meßdiener.DienstZähler[j] = 100;
        Meßdiener.Gruppe[j] = "Tarzisius";
        Meßdiener.Qualifikation[j] = "jjjjjn";
        Meßdiener.WunschVorname[j] = "V3";
        Meßdiener.WunschNachname[j] = "N3";
    }));
    // Nor do fixed entries and services set by hand.
    Konfig.ManuellKreuzträger = 1;
    Konfig.ManuellWeihrauch = 1;
    EXPECT_TRUE(Angenommen(2, [this](int) {
        Messe.DienerDienst[0][0] = "Kreuzträger";
        Messe.DienerDienst[0][1] = "Weihrauch";
        MesseDienerFest.Datum[0] = Montag;
        MesseDienerFest.Vorname[0][1] = "Anders";
        MesseDienerFest.Nachname[0][1] = "Anders";
    }));
}

TEST_F(VollZuweisenTest, OhneGrößendifferenzNurGenauDieMittelgröße)
{
    Konfig.DiffGröße = 0;
    for (int größe : {160, 162, 160, 161, 160})
        MeßdienerAnlegen("V", "N" + std::to_string(Meßdiener.Anzahl), größe);
    MesseMitDienern(Sonntag, 3);
    Würfeln({0, 1, 3, 2, 1, 3, 4});
    MeßdienerVollZuweisen();
    EXPECT_EQ(Namen(0), "N0 N2 N4");
}

TEST_F(VollZuweisenTest, DasBeispielMitDreißigMeßdienern)
{
    DienerAnlegen(30);
    Konfig.GrenzeAuslöse = 60;
    auto person = [](int j, int größe, const char *geschlecht) {
        Meßdiener.Größe[j] = größe;
        Meßdiener.Geschlecht[j] = geschlecht;
    };
    Meßdiener.Qualifikation[12] = "njjjjj";
    person(7, 150, "weiblich");
    person(8, 165, "weiblich");
    person(9, 158, "männlich");
    person(10, 158, "weiblich");
    person(11, 146, "männlich");
    person(13, 162, "männlich"); // outside 141 to 161
    person(14, 155, "weiblich");
    person(15, 161, "männlich");
    MesseMitDienern(Samstag, 4);
    Messe.DienerDienst[0][0] = Messe.DienerDienst[0][1] = "Gabenbereitung";
    Messe.DienerDienst[0][2] = Messe.DienerDienst[0][3] = "Leuchter";
    // A week later fourteen more: 18 of 30 are taken, 60 per cent.
    MesseMitDienern(Samstag + 7, 14);
    MesseMitDienern(Samstag + 7, 1);
    std::vector<Wurf> würfe = {12, 7, 8, 9, 10, 11, 13, 14, 15};
    würfe.emplace_back(7); // still taken from the first mass
    for (int j = 16; j < 30; ++j)
        würfe.emplace_back(j);
    würfe.emplace_back(16); // placed on this date
    würfe.emplace_back(7);  // free again
    Würfeln(würfe);
    MeßdienerVollZuweisen();
    EXPECT_EQ(Namen(0), "N7 N10 N11 N15");
    EXPECT_EQ(Namen(1), "N16 N17 N18 N19 N20 N21 N22 N23 N24 N25 N26 N27 N28 N29");
    EXPECT_EQ(Namen(2), "N7");
    EXPECT_EQ(Gezogen, static_cast<int>(würfe.size()));
}

TEST_F(VollZuweisenTest, UnterDerGrenzeBleibenAlleGesperrt)
{
    DienerAnlegen(10);
    Konfig.GrenzeAuslöse = 60;
    MesseMitDienern(Samstag, 5);
    MesseMitDienern(Samstag + 7, 1);
    MesseMitDienern(Samstag + 14, 1);
    Würfeln({0, 1, 2, 3, 4, 0, 5, 5, 0});
    MeßdienerVollZuweisen();
    EXPECT_EQ(Namen(1), "N5"); // 50 per cent freed nobody
    EXPECT_EQ(Namen(2), "N0"); // 60 per cent did, except on the mass's own date
}

TEST_F(VollZuweisenTest, GrenzeNullGibtNachJederMesseFreiAuchNachEinerOhneSlots)
{
    DienerAnlegen(10);
    Konfig.GrenzeAuslöse = 0;
    MesseMitDienern(Samstag, 1);
    MesseMitDienern(Samstag + 7, 0);
    MesseMitDienern(Samstag + 7, 1);
    Würfeln({0, 0});
    MeßdienerVollZuweisen();
    EXPECT_EQ(Namen(2), "N0");

    Konfig.GrenzeAuslöse = 99;
    Würfeln({0, 0, 1});
    MeßdienerVollZuweisen();
    EXPECT_EQ(Namen(2), "N1");
}

TEST_F(VollZuweisenTest, ZweiMessenEinesTagesUndDerFolgetagSindGesperrt)
{
    DienerAnlegen(10);
    Konfig.GrenzeAuslöse = 0;
    MesseMitDienern(Samstag, 1);
    MesseMitDienern(Samstag, 1);
    MesseMitDienern(Sonntag, 1);
    MesseMitDienern(Montag, 1);
    MesseMitDienern(Montag, 1);
    // On Monday, after closing Sunday's mass, Saturday's servers are still blocked.
    Würfeln({0, 0, 1, 0, 1, 2, 0, 1, 2, 3, 0});
    MeßdienerVollZuweisen();
    EXPECT_EQ(Namen(1), "N1");
    EXPECT_EQ(Namen(2), "N2");
    EXPECT_EQ(Namen(3), "N3");
    EXPECT_EQ(Namen(4), "N0"); // closing Monday's first mass freed Saturday's
}

TEST_F(VollZuweisenTest, AmAnfangSindAlleFrei)
{
    DienerAnlegen(2);
    MesseMitDienern(Sonntag, 2);
    for (int j = 0; j <= 3; ++j) {
        Meßdiener.Belegt[j] = 1;
        Meßdiener.LetzterDienst[j] = Sonntag;
    }
    Neustarts = 5;
    Konfig.GrenzeAuslöse = 99;
    Messe.Datum[1] = Sonntag; // so the blank mass frees nobody
    Würfeln({0, 1});
    MeßdienerVollZuweisen();
    EXPECT_EQ(Namen(0), "N0 N1");
    EXPECT_EQ(Gestreut, 1);
    EXPECT_EQ(Meßdiener.Belegt[0], 1);
    EXPECT_EQ(Meßdiener.Belegt[2], 0); // the blank row was cleared
    EXPECT_EQ(Meßdiener.Belegt[3], 1);
}

TEST_F(VollZuweisenTest, VorgabeDerWochenwünscheSchließtWochendienstUndWerktageAus)
{
    auto passt = [this](const Text &messeart, const Text &kennung, Datum tag) {
        TabellenLeeren();
        DienerAnlegen(2);
        Meßdiener.Wochendienst[0] = MeßdienerTabelle::WochendienstVorgabe;
        MesseMitDienern(tag, 1);
        Messe.Messeart[0] = messeart;
        Messe.Kennung[0] = kennung;
        Würfeln({0, 1});
        MeßdienerVollZuweisen();
        return Namen(0) == "N0";
    };
    for (int tag = 0; tag < 7; ++tag) {
        EXPECT_EQ(passt("Messe", "s", Sonntag + tag), tag == 0 || tag == 6) << tag;
        EXPECT_TRUE(passt("Messe", "", Sonntag + tag)) << tag;
        EXPECT_FALSE(passt("Wochendienst", "", Sonntag + tag)) << tag;
    }
}

TEST_F(VollZuweisenTest, DieLeereMesseHinterDerLetztenWirdAbgeschlossen)
{
    DienerAnlegen(2);
    Konfig.GrenzeAuslöse = 0;
    MesseMitDienern(Sonntag, 1);
    Würfeln({0});
    MeßdienerVollZuweisen();
    EXPECT_EQ(Meßdiener.Belegt[0], 0); // another date frees everybody
    EXPECT_EQ(Meßdiener.LetzterDienst[0], Sonntag);
}

} // namespace
} // namespace altardienst
