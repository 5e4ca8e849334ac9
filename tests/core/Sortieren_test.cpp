// The sort on keys against the adjacent exchange done record by record.
#include "core/Sortieren.h"

#include "Prüfstand.h"

#include <random>

namespace altardienst {
namespace {

/// A small table: a key with few values, so that many are equal, and a number that tells records
/// apart; one column does not move.
struct Probetabelle {
    static constexpr int HöchsterIndex = 12;
    Spalte<Text, HöchsterIndex> Name;
    Spalte<Int16, HöchsterIndex> Nummer;
    Spalte<Int16, HöchsterIndex> Lauf;

    auto Felder() { return std::tie(Name, Nummer); }
};

Probetabelle Zufallstabelle(std::mt19937 &zufall)
{
    const char *namen[] = {"", "A", "B", "a", "Ä", "ß"};
    Probetabelle tabelle;
    for (int i = 0; i <= Probetabelle::HöchsterIndex; ++i) {
        tabelle.Name[i] = namen[zufall() % std::size(namen)];
        tabelle.Nummer[i] = i;
        tabelle.Lauf[i] = 100 + i;
    }
    return tabelle;
}

/// The sort spelled out: each swap goes through the scratch record.
void SatzweiseSortieren(Probetabelle &tabelle, const Sortierbereich &bereich)
{
    auto übernehmen = [&](int ziel, int quelle) {
        tabelle.Name[ziel] = Text(tabelle.Name[quelle]);
        tabelle.Nummer[ziel] = Int16(tabelle.Nummer[quelle]);
    };
    for (int i = 0; i < bereich.Durchgänge; ++i)
        for (int j = 0; j < bereich.Vergleiche - (bereich.Schrumpfend ? i : 0); ++j) {
            if (!(tabelle.Name[j] > tabelle.Name[j + 1]))
                continue;
            übernehmen(bereich.Hilfssatz, j);
            übernehmen(j, j + 1);
            übernehmen(j + 1, bereich.Hilfssatz);
            if (bereich.Nachfüllung >= 0)
                übernehmen(bereich.Hilfssatz, bereich.Nachfüllung);
        }
}

void ErwarteGleich(Probetabelle &ist, Probetabelle &soll)
{
    for (int i = 0; i <= Probetabelle::HöchsterIndex; ++i) {
        ASSERT_EQ(ist.Name[i], soll.Name[i]) << i;
        ASSERT_EQ(ist.Nummer[i], soll.Nummer[i]) << i;
        ASSERT_EQ(ist.Lauf[i], 100 + i);
    }
}

TEST(Sortieren, WieSatzFürSatzGetauscht)
{
    std::mt19937 zufall(5);
    auto bis = [&](int höchster) { return static_cast<int>(zufall() % (höchster + 1U)); };
    for (int runde = 0; runde < 20000; ++runde) {
        Probetabelle ist = Zufallstabelle(zufall);
        Probetabelle soll = ist;
        // Any scratch record, even in the middle of the records, and any refill.
        Sortierbereich bereich = Sortierbereich::Bis(bis(13) - 2, bis(12), bis(13) - 1);
        if (bis(3) == 0)
            bereich = {bis(9), bis(12), false, bis(12), bis(13) - 1};
        TabelleSortieren(ist, bereich, [&](int i) { return Text(ist.Name[i]); });
        SatzweiseSortieren(soll, bereich);
        ASSERT_NO_FATAL_FAILURE(ErwarteGleich(ist, soll))
            << "round " << runde << ", scratch " << bereich.Hilfssatz << ", refill "
            << bereich.Nachfüllung;
    }
}

TEST(Sortieren, UmstellenGibtJedemPlatzSeineQuelle)
{
    std::mt19937 zufall(6);
    for (int runde = 0; runde < 20000; ++runde) {
        Probetabelle ist = Zufallstabelle(zufall);
        Probetabelle zuvor = ist;
        std::vector<int> quellen(Probetabelle::HöchsterIndex + 1);
        for (int &quelle : quellen)
            quelle = static_cast<int>(zufall() % quellen.size());
        if (runde % 3 == 0) { // nothing but rings
            for (std::size_t i = 0; i < quellen.size(); ++i)
                quellen[i] = static_cast<int>(i);
            std::ranges::shuffle(quellen, zufall);
        }
        Umstellen(ist.Felder(), quellen);
        for (int i = 0; i <= Probetabelle::HöchsterIndex; ++i) {
            int quelle = quellen[static_cast<std::size_t>(i)];
            ASSERT_EQ(ist.Nummer[i], zuvor.Nummer[quelle]);
            ASSERT_EQ(ist.Name[i], zuvor.Name[quelle]);
            ASSERT_EQ(ist.Lauf[i], zuvor.Lauf[i]);
        }
    }
}

TEST(Sortieren, DerBereichUmfaßtDieSätzeBisNPlus1)
{
    Probetabelle tabelle;
    for (int i = 0; i <= Probetabelle::HöchsterIndex; ++i)
        tabelle.Nummer[i] = 12 - i;
    TabelleSortieren(tabelle, Sortierbereich::Bis(2, 12), [&](int i) { return tabelle.Nummer[i]; });
    int erwartet[] = {9, 10, 11, 12, 8, 7};
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(tabelle.Nummer[i], erwartet[i]);
}

TEST(Sortieren, ÜberDieTabelleHinausIstFehler9)
{
    Probetabelle tabelle;
    auto sortieren = [&](int n) {
        return NummerDesFehlers([&] {
            TabelleSortieren(tabelle, Sortierbereich::Bis(n, 12),
                             [&](int i) { return tabelle.Nummer[i]; });
        });
    };
    EXPECT_EQ(sortieren(11), 0);
    EXPECT_EQ(sortieren(12), 9);
}

TEST(Sortieren, VorDemFehlerGehtDerErsteDurchgangBisZumEnde)
{
    std::mt19937 zufall(14);
    for (int runde = 0; runde < 2000; ++runde) {
        Probetabelle ist = Zufallstabelle(zufall);
        Probetabelle soll = ist;
        Sortierbereich bereich = Sortierbereich::Bis(12 + runde % 5, runde % 13, -1);
        EXPECT_EQ(NummerDesFehlers([&] {
                      TabelleSortieren(ist, bereich, [&](int i) { return Text(ist.Name[i]); });
                  }),
                  9);
        EXPECT_EQ(NummerDesFehlers([&] { SatzweiseSortieren(soll, bereich); }), 9);
        ASSERT_NO_FATAL_FAILURE(ErwarteGleich(ist, soll)) << "round " << runde;
    }
}

} // namespace
} // namespace altardienst
