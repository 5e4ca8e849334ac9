// What is true of every plan of servers, in thousands of random parishes.
#include "Regeln.h"

#include "assignment/Dienste.h"
#include "assignment/MEßdienerzuweiseung.h"
#include "assignment/Ziehung.h"
#include "assignment/Zuweisungsrahmen.h"
#include "assignment/ZweiMeßdienerzuweisen.h"
#include "core/Sortierbefehle.h"
#include "fixed/FesteMeßdienerÜbertragen.h"

namespace altardienst {
namespace {

constexpr unsigned Gemeinden = 2000;
constexpr int Geduld = 30000; // readings of a clock that stands still

class MeßdienerPläneTest : public Gemeindestand {
  protected:
    static int Slots(int i) { return std::min<int>(Messe.Dienerzahl[i], 20); }

    /// Expects that nothing but the slots of the masses was written.
    static void SonstNichtsGeschrieben()
    {
        for (int i = 0; i <= MeisteMessen + 2; ++i)
            for (int slot = 0; slot <= 20; ++slot) {
                const bool benutzt = i < Messe.Anzahl && slot >= 1 && slot <= Slots(i);
                ASSERT_TRUE(benutzt || StehtUnberührt(i, slot)) << i << " " << slot;
            }
    }

    static void AlleSlotsBesetztUndNiemandDoppelt()
    {
        for (int i = 0; i < Messe.Anzahl; ++i) {
            for (int slot = 1; slot <= Slots(i); ++slot)
                ASSERT_GE(WerSteht(i, slot), 0) << i << " " << slot;
            ASSERT_EQ(VerstoßDoppelt(i), "") << i;
        }
    }

    static void KnappPrüfen()
    {
        AlleSlotsBesetztUndNiemandDoppelt();
        SonstNichtsGeschrieben();
    }

    static void FreiPrüfen()
    {
        KnappPrüfen();
        ASSERT_EQ(VerstoßGegenSperre(), "");
    }

    /// What is true even if a search was restarted or given up.
    static void AbbruchPrüfen(bool partnerweg)
    {
        for (int i = 0; i < Messe.Anzahl; ++i)
            ASSERT_EQ(VerstoßDoppelt(i), "") << i;
        ASSERT_EQ(VerstoßGegenSperre(), "");
        if (partnerweg)
            return; // a partner is tested for nothing but being taken
        SonstNichtsGeschrieben();
        for (int i = 0; i < Messe.Anzahl; ++i)
            for (int slot = 1; slot <= Slots(i); ++slot)
                if (int j = WerSteht(i, slot); j >= 0) {
                    ASSERT_EQ(VerstoßFürSich(i, slot, j, slot <= 16), "") << i << " " << slot;
                }
    }

    static void VollPrüfen()
    {
        Verlauf verlauf;
        for (int i = 0; i < Messe.Anzahl; ++i) {
            int mittel = 0;
            for (int slot = 1; slot <= Slots(i); ++slot) {
                SCOPED_TRACE("mass " + std::to_string(i) + ", slot " + std::to_string(slot));
                const int j = WerSteht(i, slot);
                ASSERT_GE(j, 0);
                ASSERT_FALSE(verlauf.Vergeben.contains(j));
                ASSERT_EQ(VerstoßFürSich(i, slot, j, slot <= 16), "");
                const int abstand = std::abs(Meßdiener.Größe[j] - mittel);
                ASSERT_TRUE(slot == 1 || abstand <= Konfig.DiffGröße) << abstand;
                ASSERT_TRUE(slot % 2 == 1 ||
                            Meßdiener.Geschlecht[j] == Meßdiener.Geschlecht[WerSteht(i, slot - 1)]);
                mittel = NeueMittelgröße(slot, mittel, Meßdiener.Größe[j]);
                verlauf.Setzen(j, Messe.Datum[i]);
            }
            verlauf.Abschließen(Messe.Datum[i]);
        }
        ASSERT_EQ(VerstoßGegenSperre(), "");
        SonstNichtsGeschrieben();
    }

    static void FesteSperren(Verlauf &verlauf, Datum tag)
    {
        for (int r = 0; r < FesteZeilen; ++r)
            for (int slot = 1; slot <= 20; ++slot)
                for (int j = 0; j < Meßdiener.Anzahl; ++j)
                    if ((MesseDienerFest.Datum[r] == tag || MesseDienerFest.Datum[r] == tag - 1) &&
                        !MesseDienerFest.Vorname[r][slot].empty() &&
                        !MesseDienerFest.Nachname[r][slot].empty() &&
                        MesseDienerFest.Vorname[r][slot] == Meßdiener.Vorname[j] &&
                        MesseDienerFest.Nachname[r][slot] == Meßdiener.Nachname[j])
                        verlauf.Setzen(j, tag);
    }

    /// Checks the server drawn for a slot and the partner next to him; returns the last slot
    /// written.
    static int PaarPrüfen(Verlauf &verlauf, int i, int slot, Text &geschlecht)
    {
        SCOPED_TRACE("mass " + std::to_string(i) + ", slot " + std::to_string(slot));
        const int j = WerSteht(i, slot);
        const Datum tag = Messe.Datum[i];
        EXPECT_GE(j, 0);
        if (j < 0)
            return 99;
        EXPECT_FALSE(verlauf.Vergeben.contains(j));
        EXPECT_LT(verlauf.Paare[j], Meßdiener.Häufigkeit[j] + DienstProDiener);
        EXPECT_EQ(VerstoßFürSich(i, slot, j, true), "");
        EXPECT_TRUE(slot % 2 == 1 || Meßdiener.Geschlecht[j] == geschlecht);
        const Text &vor = Meßdiener.WunschVorname[j];
        const Text &nach = Meßdiener.WunschNachname[j];
        const bool wunsch = !vor.empty() && !nach.empty();
        EXPECT_FALSE(wunsch && slot == Messe.Dienerzahl[i]);
        verlauf.Setzen(j, tag);
        geschlecht = Meßdiener.Geschlecht[j];
        if (!wunsch || slot >= Slots(i))
            return slot;
        const int p = std::stoi(vor.substr(1));
        const bool bekannt =
            p < Meßdiener.Anzahl && Meßdiener.Vorname[p] == vor && Meßdiener.Nachname[p] == nach;
        if (bekannt && verlauf.Vergeben.contains(p))
            return slot;
        EXPECT_EQ(Messe.DienerVor[i][slot + 1], vor);
        EXPECT_EQ(Messe.DienerNach[i][slot + 1], nach);
        ++verlauf.Paare[j];
        if (bekannt) {
            ++verlauf.Paare[p];
            verlauf.Setzen(p, tag);
        }
        return slot + 1;
    }

    void PartnerPrüfen(Text geschlecht)
    {
        Verlauf verlauf;
        for (int i = 0; i < Messe.Anzahl && !HasFailure(); ++i) {
            FesteSperren(verlauf, Messe.Datum[i]);
            std::set<int> geschrieben;
            int slot = 1;
            bool offen = Messe.Dienerzahl[i] >= 1;
            while (offen) {
                const Text &dienst = Messe.DienerDienst[i][slot - 1];
                if (dienst == "Weihrauch" && Konfig.ManuellWeihrauch == 1) {
                    ++slot; // left open, and after the last slot one more is filled
                } else if (dienst == "Kreuzträger" && Konfig.ManuellKreuzträger == 1) {
                    offen = ++slot != Messe.Dienerzahl[i];
                } else {
                    geschrieben.insert(slot);
                    slot = PaarPrüfen(verlauf, i, slot, geschlecht);
                    geschrieben.insert(slot);
                    offen = ++slot <= Messe.Dienerzahl[i];
                }
            }
            verlauf.Abschließen(Messe.Datum[i]);
            for (int s = 0; s <= 20; ++s)
                ASSERT_EQ(StehtUnberührt(i, s), !geschrieben.contains(s)) << i << " " << s;
            ASSERT_EQ(VerstoßDoppelt(i), "") << i;
        }
    }

    static void FestePrüfen()
    {
        FesteMeßdienerÜbertragen();
        for (int i = 0; i < Messe.Anzahl; ++i)
            for (int slot = 1; slot <= 20; ++slot) {
                Text vor;
                Text nach;
                for (int r = 0; r < FesteZeilen; ++r) // the last one wins
                    if (MesseDienerFest.Datum[r] == Messe.Datum[i] &&
                        MesseDienerFest.Uhrzeit[r] == Messe.Uhrzeit[i] &&
                        !MesseDienerFest.Vorname[r][slot].empty() &&
                        !MesseDienerFest.Nachname[r][slot].empty()) {
                        vor = MesseDienerFest.Vorname[r][slot];
                        nach = MesseDienerFest.Nachname[r][slot];
                    }
                if (!vor.empty()) {
                    ASSERT_EQ(Messe.DienerVor[i][slot] + Messe.DienerNach[i][slot], vor + nach);
                }
            }
    }
};

TEST_F(MeßdienerPläneTest, KnappNiemandZweimalInEinerMesse)
{
    for (unsigned saat = 1; saat <= Gemeinden && !HasFailure(); ++saat) {
        SCOPED_TRACE("seed " + std::to_string(saat));
        GemeindeErwürfeln(saat);
        MessenSortieren();
        int größte = 0;
        for (int i = 0; i < Messe.Anzahl; ++i)
            größte = std::max(größte, Slots(i));
        // At least one server more than the largest mass needs.
        Meßdiener.Anzahl = Würfel(saat).Zahl(größte + 1, 2 * GrößterTagDerGemeinde() + 1);
        for (auto *name : {&Meßdiener.Vorname, &Meßdiener.Nachname})
            (*name)[Meßdiener.Anzahl] = "";
        MeßdienerKnappZuweisen();
        KnappPrüfen();
        FestePrüfen();
    }
}

TEST_F(MeßdienerPläneTest, FreiNiemandAmSelbenOderAmFolgetag)
{
    for (unsigned saat = 1; saat <= Gemeinden && !HasFailure(); ++saat) {
        SCOPED_TRACE("seed " + std::to_string(saat));
        GemeindeErwürfeln(saat);
        MessenSortieren();
        MeßdienerFreiZuweisen();
        FreiPrüfen();
    }
}

TEST_F(MeßdienerPläneTest, VollHältAlleRegeln)
{
    int fertige = 0;
    for (unsigned saat = 1; saat <= Gemeinden && !HasFailure(); ++saat) {
        SCOPED_TRACE("seed " + std::to_string(saat));
        GemeindeErwürfeln(saat);
        MessenSortieren();
        LaufDiensteVerteilen();
        UhrStehtFür(Geduld);
        GezeigteMeldungen.clear();
        MeßdienerVollZuweisen();
        ASSERT_TRUE(GezeigteMeldungen.empty() || UhrBewegt);
        fertige += !UhrBewegt;
        UhrBewegt ? AbbruchPrüfen(false) : VollPrüfen();
        FestePrüfen();
    }
    RecordProperty("fertige", fertige);
    EXPECT_GE(fertige, 1000);
}

TEST_F(MeßdienerPläneTest, VollHältDieRegelnAuchÜberNeustarts)
{
    int fertige = 0;
    for (unsigned saat = 1; saat <= Gemeinden && !HasFailure(); ++saat) {
        SCOPED_TRACE("seed " + std::to_string(saat));
        GemeindeErwürfeln(saat);
        MessenSortieren();
        LaufDiensteVerteilen();
        UhrTickt(20);
        GezeigteMeldungen.clear();
        MeßdienerVollZuweisen();
        AbbruchPrüfen(false);
        if (GezeigteMeldungen.empty()) {
            ++fertige;
            AlleSlotsBesetztUndNiemandDoppelt();
        }
    }
    RecordProperty("fertige", fertige);
    EXPECT_GE(fertige, 800);
}

TEST_F(MeßdienerPläneTest, PartnerStehenBeisammenUndAlleRegelnGelten)
{
    int fertige = 0;
    for (unsigned saat = 1; saat <= Gemeinden && !HasFailure(); ++saat) {
        SCOPED_TRACE("seed " + std::to_string(saat));
        GemeindeErwürfeln(saat);
        MessenSortieren();
        DienstProDienerRechnen();
        DiensteVerteilen();
        UhrStehtFür(Geduld);
        GezeigteMeldungen.clear();
        const Text geschlecht = LetztesGeschlecht;
        WunschpartnerZuweisen();
        ASSERT_TRUE(GezeigteMeldungen.empty() || UhrBewegt);
        fertige += !UhrBewegt;
        UhrBewegt ? AbbruchPrüfen(true) : PartnerPrüfen(geschlecht);
        FestePrüfen();
    }
    RecordProperty("fertige", fertige);
    EXPECT_GE(fertige, 1000);
}

TEST_F(MeßdienerPläneTest, SchaltflächeHältDieRegelnDesWegesNachDerAnzahl)
{
    int wege[4] = {};
    for (unsigned saat = 1; saat <= Gemeinden && !HasFailure(); ++saat) {
        SCOPED_TRACE("seed " + std::to_string(saat));
        GemeindeErwürfeln(saat);
        MesseDienerFest.Datum[0] = MesseDienerFest.Datum[1] = 0; // nothing is overwritten
        MesseDienerFest.Datum[2] = MesseDienerFest.Datum[3] = 0;
        const int tag = GrößterTagDerGemeinde();
        const int anzahl = Würfel(saat).Zahl(1, Meßdiener.Anzahl);
        Meßdiener.Anzahl = anzahl;
        Meßdiener.Vorname[anzahl] = Meßdiener.Nachname[anzahl] = "";
        for (int j = 0; j < anzahl; ++j) {
            Meßdiener.Vorname[j] = "V" + std::to_string(j);
            Meßdiener.Nachname[j] = "N" + std::to_string(j);
        }
        int größte = 0;
        for (int i = 0; i < Messe.Anzahl; ++i)
            größte = std::max<int>(größte, Messe.Dienerzahl[i]);
        UhrStehtFür(Geduld);
        GezeigteMeldungen.clear();
        Antworten = {true};
        MessenMitMeßdienerBesetzen(FesteMeßdienerÜbertragen);
        ASSERT_EQ(GezeigteMeldungen.back(), "Fertig mit Meßdiener Messen zuweisen");
        if (anzahl <= größte) {
            ++wege[0];
            ASSERT_EQ(GezeigteMeldungen.front(), "Zuwenig Meßdiener !!!!");
            for (int i = 0; i < Messe.Anzahl; ++i)
                for (int slot = 0; slot <= 20; ++slot)
                    ASSERT_TRUE(StehtUnberührt(i, slot));
        } else if (anzahl <= 2 * tag) {
            ++wege[1];
            KnappPrüfen();
        } else if (anzahl <= 2 * tag + 10) {
            ++wege[2];
            FreiPrüfen();
        } else {
            ++wege[3];
            UhrBewegt ? AbbruchPrüfen(false) : VollPrüfen();
        }
    }
    for (int weg : wege)
        EXPECT_GE(weg, 100);
}

} // namespace
} // namespace altardienst
