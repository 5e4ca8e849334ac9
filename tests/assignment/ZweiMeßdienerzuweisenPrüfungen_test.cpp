// The partner way: the tests of a drawn server and their order, the services set by hand, and the
// clock limits.
#include "assignment/ZweiMeßdienerzuweisen.h"

#include "assignment/Wurf.h"
#include "assignment/Zuweisungsrahmen.h"

namespace altardienst {
namespace {

const Text Aufgabe = "Es sind die Qualifikationen der Meßdiener bzw. die Größendifferenz "
                     "anzupassen !!!!!";

class WunschpartnerPrüfungenTest : public Zuweisungsstand {
  protected:
    static constexpr int Niemand = 12; // the blank row

    WunschpartnerPrüfungenTest() { Anfang(); }

    void Anfang()
    {
        TabellenLeeren();
        DienerAnlegen(Niemand);
        DienstProDiener = 3;
        Konfig.GrenzeAuslöse = 99;
    }

    /// A mass with these services from slot 1 on.
    static int MesseMit(int slots, const std::vector<const char *> &dienste, Datum tag)
    {
        int i = MesseMitDienern(tag, slots);
        for (int k = 0; k <= 20; ++k)
            Messe.DienerDienst[i][k] = k < static_cast<int>(dienste.size())
                                           ? dienste[static_cast<std::size_t>(k)]
                                           : "Allgemein";
        return i;
    }

    static void Wunsch(int j, const Text &vor, const Text &nach)
    {
        Meßdiener.WunschVorname[j] = vor;
        Meßdiener.WunschNachname[j] = nach;
    }

    void Lauf(std::vector<Wurf> würfe)
    {
        Würfeln(std::move(würfe));
        WunschpartnerZuweisen();
    }

    static std::vector<Wurf> NachFünfNeustarts(std::vector<Wurf> vorher, std::vector<Wurf> nachher)
    {
        for (const Wurf &wurf : Oft(5, {Niemand, 3}))
            vorher.push_back(wurf);
        vorher.insert(vorher.end(), nachher.begin(), nachher.end());
        return vorher;
    }
};

TEST_F(WunschpartnerPrüfungenTest, WerDurchfälltWirdNichtGezogen)
{
    const std::pair<const char *, std::function<void()>> gründe[] = {
        {"Vorname", [] { Meßdiener.Vorname[0] = ""; }},
        {"Nachname", [] { Meßdiener.Nachname[0] = ""; }},
        {"Abwesend", [this] { Meßdiener.Von5[0] = Meßdiener.Bis5[0] = Montag; }},
        {"Montag", [] { Meßdiener.Wochendienst[0] = "njnnnnnn"; }},
        {"Wochendienst",
         [] {
             Meßdiener.Wochendienst[0] = "jnnnnnnn";
             Messe.Messeart[0] = "Wochendienst";
             Messe.Kennung[0] = "";
         }},
        {"Obergrenze", [] { Meßdiener.Häufigkeit[0] = -3; }},
        {"Qualifikation", [] { Meßdiener.Qualifikation[0] = "jjnjjj"; }},
        {"Kreuz",
         [] {
             Meßdiener.Qualifikation[0] = "jjjjnj";
             Messe.DienerDienst[0][0] = "Kreuzträger";
         }},
    };
    for (const auto &[grund, herstellen] : gründe) {
        Anfang();
        MesseMit(1, {"Flambeau"}, Montag);
        herstellen();
        Lauf({0, 1});
        EXPECT_EQ(Namen(0), "N1") << grund;
    }
    Anfang();
    MesseMit(2, {}, Montag);
    Lauf({0, 0, 1}); // taken
    EXPECT_EQ(Namen(0), "N0 N1");
}

TEST_F(WunschpartnerPrüfungenTest, QualifikationAnJedemSlotDienstEinePositionTiefer)
{
    for (int slot = 1; slot <= 9; ++slot) {
        for (int platz : {slot - 1, slot}) {
            Anfang();
            MesseMit(slot, {}, Montag);
            Messe.DienerDienst[0][platz] = "Leuchter";
            Meßdiener.Qualifikation[11] = "jnjjjj";
            std::vector<Wurf> würfe;
            for (int n = 1; n < slot; ++n)
                würfe.emplace_back(n - 1);
            würfe.emplace_back(11);
            würfe.emplace_back(10);
            Lauf(würfe);
            EXPECT_EQ(Messe.DienerNach[0][slot], platz == slot ? "N11" : "N10") << slot;
        }
    }
    // Slots 17 to 20 are tested too, whatever service they hold.
    Anfang();
    for (int j = Niemand; j < 20; ++j)
        MeßdienerAnlegen("V" + std::to_string(j), "N" + std::to_string(j));
    MesseMit(17, {}, Montag);
    Messe.DienerDienst[0][16] = "Leuchter";
    Meßdiener.Qualifikation[16] = "jnjjjj";
    std::vector<Wurf> würfe;
    for (int j = 0; j < 18; ++j)
        würfe.emplace_back(j);
    Lauf(würfe);
    EXPECT_EQ(Messe.DienerNach[0][17], "N17");
}

TEST_F(WunschpartnerPrüfungenTest, GrenzeDerPaareIstEchtKleiner)
{
    MesseMit(1, {}, Montag);
    Meßdiener.Häufigkeit[0] = -3; // 0 < 0 fails
    Meßdiener.Häufigkeit[1] = -2; // 0 < 1 holds
    Lauf({0, 1});
    EXPECT_EQ(Namen(0), "N1");
    Meßdiener.Häufigkeit[2] = 32765;
    EXPECT_EQ(NummerDesFehlers([this] { Lauf({2}); }), 6);
}

TEST_F(WunschpartnerPrüfungenTest, WeihrauchVonHandLässtSeineSlotsLeer)
{
    Konfig.ManuellWeihrauch = 1;
    MesseMit(8, {"Leuchter", "Leuchter", "Flambeau", "Flambeau", "Weihrauch", "Weihrauch"}, Montag);
    Messe.DienerVor[0][6] = Messe.DienerNach[0][6] = "Alt";
    Lauf({0, 1, 2, 3, 4, 4, 4, 5});
    EXPECT_EQ(Namen(0), "N0 N1 N2 N3 - Alt N4 N5");
    EXPECT_EQ(Gezogen, 8);
}

TEST_F(WunschpartnerPrüfungenTest, NurDerWertEinsHeißtVonHand)
{
    for (int wert : {0, 2, -1}) {
        Anfang();
        Konfig.ManuellWeihrauch = wert;
        Konfig.ManuellKreuzträger = wert;
        MesseMit(2, {"Weihrauch", "Kreuzträger"}, Montag);
        Lauf({0, 1});
        EXPECT_EQ(Namen(0), "N0 N1");
    }
    Konfig.ManuellWeihrauch = 0;
    Konfig.ManuellKreuzträger = 1; // each flag has its own service
    MesseMit(1, {"Weihrauch"}, Montag + 7);
    Messe.Dienerzahl[0] = 0;
    Lauf({3});
    EXPECT_EQ(Namen(1), "N3");
    Konfig.ManuellWeihrauch = 1;
    Konfig.ManuellKreuzträger = 0;
    Messe.DienerDienst[1][0] = "Kreuzträger";
    Lauf({4});
    EXPECT_EQ(Namen(1), "N4");
}

TEST_F(WunschpartnerPrüfungenTest, ZumÜberspringenMussJemandQualifiziertSein)
{
    for (const char *dienst : {"Weihrauch", "Kreuzträger"}) {
        Anfang();
        Konfig.ManuellWeihrauch = 1;
        Konfig.ManuellKreuzträger = 1;
        MesseMit(3, {dienst}, Montag);
        Meßdiener.Qualifikation[0] = "jjjnnj";
        Meßdiener.Häufigkeit[1] = -3; // the cap is checked first
        Meßdiener.Vorname[2] = "";
        // Drawing 3 skips slot 1 even though he is absent, unwilling and of no given sex: those
        // tests come later.
        Meßdiener.Von1[3] = Meßdiener.Bis1[3] = Montag;
        Meßdiener.Wochendienst[3] = "jjjjjjjj";
        Meßdiener.Geschlecht[3] = "";
        LetztesGeschlecht = "männlich"; // with which the sex is compared at slot 2
        Lauf({0, 1, 2, 3, 3, 0, 4});
        EXPECT_EQ(Namen(0), "- N0 N4") << dienst;
    }
}

TEST_F(WunschpartnerPrüfungenTest, WeihrauchAmLetztenSlotBesetztEinenDahinter)
{
    Konfig.ManuellWeihrauch = 1;
    MesseMit(3, {"Leuchter", "Leuchter", "Weihrauch"}, Montag);
    // Drawing server 2 skips the slot before his wish is checked against the last place; beyond the
    // count the wish of 3 is neither refused nor fulfilled.
    Wunsch(2, "V7", "N7");
    Wunsch(3, "V7", "N7");
    Lauf({0, 1, 2, 3});
    EXPECT_EQ(Namen(0), "N0 N1 - N3");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(WunschpartnerPrüfungenTest, KreuzträgerVonHandSchließtDieMesseVorDemLetztenSlot)
{
    Konfig.ManuellKreuzträger = 1;
    MesseMit(5, {"Leuchter", "Leuchter", "Kreuzträger", "Kreuzträger"}, Montag);
    MesseMit(1, {}, Montag + 7);
    Lauf({0, 1, 2, 2, 3});
    EXPECT_EQ(Namen(0), "N0 N1"); // slot 5, "Allgemein", stays empty
    EXPECT_EQ(Namen(1), "N3");
    EXPECT_EQ(Gezogen, 5);
}

TEST_F(WunschpartnerPrüfungenTest, KreuzträgerVonHandMitPlatzDahinterGehtWeiter)
{
    Konfig.ManuellKreuzträger = 1;
    MesseMit(4, {"Leuchter", "Kreuzträger"}, Montag);
    Lauf({0, 1, 1, 2});
    EXPECT_EQ(Namen(0), "N0 - N1 N2");

    Anfang(); // at the last slot it continues beyond the count
    Konfig.ManuellKreuzträger = 1;
    MesseMit(2, {"Leuchter", "Kreuzträger"}, Montag);
    Wunsch(1, "V7", "N7"); // not yet checked against the last place
    Lauf({0, 1, 2});
    EXPECT_EQ(Namen(0), "N0 - N2");
}

TEST_F(WunschpartnerPrüfungenTest, GeschlosseneMesseGibtFreiWieJedeAndere)
{
    Konfig.ManuellKreuzträger = 1;
    Konfig.GrenzeAuslöse = 0;
    MesseMit(1, {}, Montag - 14);
    MesseMit(2, {"Kreuzträger"}, Montag - 7);
    MesseMit(1, {}, Montag - 7);
    Lauf({0, 1, 0});
    EXPECT_EQ(Namen(2), "N0"); // freed when the skipped mass was closed
}

TEST_F(WunschpartnerPrüfungenTest, ÜbersprungenerSlotLässtDieUhrWeiterlaufen)
{
    Konfig.ManuellWeihrauch = 1;
    MesseMit(3, {"Leuchter", "Weihrauch"}, Montag);
    Lauf({0, {1, 2}, {Niemand, 1}, 2, 3, 4});
    EXPECT_EQ(Neustarts, 0);        // of the blank mass
    EXPECT_EQ(Namen(0), "N2 - N4"); // 3 seconds together: started again

    Anfang();
    Konfig.ManuellKreuzträger = 1;
    MesseMit(4, {"Leuchter", "Kreuzträger"}, Montag);
    Lauf({0, {1, 2}, {Niemand, 1}, 2, 3, 4, 5});
    EXPECT_EQ(Namen(0), "N2 - N4 N5");
}

TEST_F(WunschpartnerPrüfungenTest, JederSlotHatSeineEigeneSuchzeit)
{
    MesseMit(2, {}, Montag);
    Lauf({{Niemand, 2}, 0, {Niemand, 2}, 1});
    EXPECT_EQ(Namen(0), "N0 N1");
    EXPECT_EQ(Gezogen, 4);
}

TEST_F(WunschpartnerPrüfungenTest, ZweiSekundenNichtDreiSekundenNeustart)
{
    MesseMit(2, {}, Montag);
    Lauf({0, {Niemand, 2}, 1});
    EXPECT_EQ(Namen(0), "N0 N1");
    Lauf({0, {1, 3}, 0, 2, {Niemand, 2}, 3});
    EXPECT_EQ(Namen(0), "N2 N3"); // 0 stays taken, the late draw is lost
}

TEST_F(WunschpartnerPrüfungenTest, HöchstensFünfNeustartsJeMesse)
{
    MesseMit(2, {}, Montag);
    MesseMit(2, {}, Montag + 7);
    Lauf(NachFünfNeustarts({0}, NachFünfNeustarts({1, {Niemand, 3}, {Niemand, 90}, 2, 3}, {4, 5})));
    EXPECT_EQ(Namen(0), "N1 N2");
    EXPECT_EQ(Namen(1), "N4 N5");
    Lauf({0, {Niemand, 3}, {Niemand, 3}, {Niemand, 3}, {Niemand, 3}, 1, {Niemand, 3}, 2, 3, 4, 5});
    EXPECT_EQ(Namen(0), "N2 N3");
}

TEST_F(WunschpartnerPrüfungenTest, HundertSekundenGehenNochHunderteinsBeendenDenLauf)
{
    MesseMit(2, {}, Montag);
    MesseMit(1, {}, Montag + 7);
    Lauf(NachFünfNeustarts({}, {0, {Niemand, 100}, 1, 2}));
    EXPECT_EQ(Namen(0), "N0 N1");
    EXPECT_TRUE(GezeigteMeldungen.empty());

    BelegtProzent = -1;
    Lauf(NachFünfNeustarts({}, {3, {4, 101}}));
    EXPECT_EQ(Namen(0), "N3 N1");
    EXPECT_EQ(Namen(1), "N2");
    EXPECT_EQ(BelegtProzent, -1); // not closed
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{Aufgabe});
}

TEST_F(WunschpartnerPrüfungenTest, AufgabegrenzeHatIhreEigeneAblesung)
{
    // The first reading after the draw is within the limit, the second beyond it.
    MesseMit(1, {}, Montag);
    Würfeln(NachFünfNeustarts({}, {0}));
    auto ziehen = Zufall.Nächste;
    Zufall.Nächste = [this, ziehen] {
        const Single r = ziehen();
        if (Gezogen == 6)
            SekundenProAblesung = 101; // starting with the reading that checks for a restart
        return r;
    };
    WunschpartnerZuweisen();
    EXPECT_EQ(GezeigteMeldungen, std::vector<Text>{Aufgabe});
    EXPECT_EQ(Namen(0), "");
}

TEST_F(WunschpartnerPrüfungenTest, SolangeNeustartsBleibenWirdNichtAufgegeben)
{
    MesseMit(2, {}, Montag);
    Lauf({0, {Niemand, 500}, 1, 2});
    EXPECT_EQ(Namen(0), "N1 N2");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(WunschpartnerPrüfungenTest, ÜberMitternachtGreiftKeineGrenze)
{
    Uhr.Sekunden = [this] { return Sekunden % SekundenProTag; };
    Sekunden = SekundenProTag - 1;
    MesseMit(2, {}, Montag);
    Lauf({0, {Niemand, 5000}, 1});
    EXPECT_EQ(Namen(0), "N0 N1");
}

TEST_F(WunschpartnerPrüfungenTest, OhneDienerOderMitNegativerZahlNurAbschluss)
{
    Konfig.GrenzeAuslöse = 0;
    MesseMit(1, {}, Montag - 7);
    MesseMit(0, {}, Montag);
    MesseMit(-2, {}, Montag);
    MesseMit(1, {}, Montag);
    Lauf({0, 0});
    EXPECT_EQ(Namen(3), "N0");
}

TEST_F(WunschpartnerPrüfungenTest, DieLeereMesseHinterDerLetztenWirdMitBesetzt)
{
    MesseMit(1, {}, Montag);
    for (int i : {1, 2}) { // what a longer plan left behind
        Messe.Dienerzahl[i] = 1;
        Messe.Datum[i] = Montag + 7 * i;
    }
    Lauf({0, 1});
    EXPECT_EQ(Namen(1), "N1");
    EXPECT_EQ(Namen(2), "");
}

} // namespace
} // namespace altardienst
