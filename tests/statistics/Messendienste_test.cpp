// What the masses call for and the helpers offer, against tables worked out by hand.
#include "statistics/Messendienste.h"

#include "Prüfstand.h"

namespace altardienst {
namespace {

class MessendiensteTest : public Prüfstand {
  protected:
    static void Dienste(const std::array<int, 6> &zahlen)
    {
        const int i = MesseMitDienern(DatumAus({2026, 11, 22}), 12);
        std::size_t k = 0;
        for (auto *spalte : {&Messe.Gabenbereitung, &Messe.Leuchter, &Messe.Flambeau,
                             &Messe.Weihrauch, &Messe.Kreuzträger, &Messe.Allgemein})
            (*spalte)[i] = zahlen[k++];
    }

    static void Helferzahlen(const std::array<int, 4> &zahlen)
    {
        const int i = MesseMitDienern(DatumAus({2026, 11, 22}), 12);
        std::size_t k = 0;
        for (auto *spalte :
             {&Messe.LektorZahl, &Messe.KommZahl, &Messe.KantorZahl, &Messe.KollektZahl})
            (*spalte)[i] = zahlen[k++];
    }
};

TEST_F(MessendiensteTest, SummenUndTeiler)
{
    Dienste({2, 2, 4, 1, 0, 3});
    Dienste({1, 2, 0, 2, 0, 0});
    Dienste({2, 2, 3, 0, 0, 2});
    Dienste({0, 0, 0, 0, 0, 9});
    for (int k = 0; k < 5; ++k)
        MeßdienerAnlegen("Anna", "Berg");
    const Messendienste d = MessendiensteAuswerten();
    EXPECT_EQ(d.Gesamt, (std::array{5, 6, 7, 3, 0, 14}));
    // 5/4, 6/4, 7/4, 3/4, 0, 14/4
    EXPECT_EQ(d.JeMesse, (std::array{1.25, 1.5, 1.75, 0.75, 0.0, 3.5}));
    EXPECT_EQ(d.Dienste, 35);           // 5 + 6 + 7 + 3 + 0 + 14
    EXPECT_EQ(d.DiensteJeMesse, 8.75);  // 35 / 4
    EXPECT_EQ(d.DiensteJeMeßdiener, 7); // 35 / 5
}

TEST_F(MessendiensteTest, EsZähltDerBedarfUndNichtDieBesetzung)
{
    Dienste({1, 0, 0, 0, 0, 0});
    MeßdienerAnlegen("Anna", "Berg");
    Messe.DienerVor[0][1] = Messe.DienerVor[0][2] = "Anna";
    Messe.DienerNach[0][1] = Messe.DienerNach[0][2] = "Berg";
    Messe.Dienerzahl[0] = 7; // different from its services
    EXPECT_EQ(MessendiensteAuswerten().Dienste, 1);
}

TEST_F(MessendiensteTest, DieMesseHinterDerLetztenZähltNicht)
{
    Dienste({1, 1, 1, 1, 1, 1});
    Dienste({2, 2, 2, 2, 2, 2});
    --Messe.Anzahl;
    MeßdienerAnlegen("Anna", "Berg");
    EXPECT_EQ(MessendiensteAuswerten().Dienste, 6);
    EXPECT_EQ(MessendiensteAuswerten().DiensteJeMesse, 6);
}

TEST_F(MessendiensteTest, OhneDiensteWirdNichtGeteilt)
{
    Dienste({0, 0, 0, 0, 0, 0});
    EXPECT_EQ(MessendiensteAuswerten().DiensteJeMesse, 0);
    EXPECT_EQ(MessendiensteAuswerten().DiensteJeMeßdiener, 0);
    Messe.Anzahl = 0;
    EXPECT_EQ(MessendiensteAuswerten().DiensteJeMesse, 0);
}

TEST_F(MessendiensteTest, DiensteOhneMeßdienerSindEineDivisionDurchNull)
{
    Dienste({0, 0, 0, 0, 1, 0});
    EXPECT_EQ(NummerDesFehlers([] { MessendiensteAuswerten(); }), 11);
}

TEST_F(MessendiensteTest, HelferzahlenUndAnteile)
{
    Helferzahlen({2, 1, 0, 2});
    Helferzahlen({1, 2, 0, 0});
    for (int k = 0; k < 5; ++k)
        HelferAnlegen("Lea", "Lang", "Lektor");
    const Helferdienste d = HelferdiensteAuswerten();
    EXPECT_EQ(d.Gesamt, (std::array{3, 3, 0, 2}));
    EXPECT_EQ(d.Dienste, 8);                                    // 3 + 3 + 0 + 2
    EXPECT_EQ(d.Anteil, (std::array{0.375, 0.375, 0.0, 0.25})); // of 8, not of 2 masses
    EXPECT_EQ(d.DiensteJeMesse, 4);                             // 8 / 2
    EXPECT_EQ(d.DiensteJeHelfer, 1.6);                          // 8 / 5
}

TEST_F(MessendiensteTest, HelferdiensteOhneBedarfUndOhneHelfer)
{
    Helferzahlen({0, 0, 0, 0});
    const Helferdienste d = HelferdiensteAuswerten();
    EXPECT_EQ(d.Anteil, (std::array{0.0, 0.0, 0.0, 0.0}));
    EXPECT_EQ(d.DiensteJeMesse, 0);
    EXPECT_EQ(d.DiensteJeHelfer, 0);
    Helferzahlen({0, 0, 1, 0});
    EXPECT_EQ(NummerDesFehlers([] { HelferdiensteAuswerten(); }), 11);
}

TEST_F(MessendiensteTest, HelferangebotZähltBeideDienste)
{
    HelferAnlegen("Lea", "Lang", "Lektor", "Kantor");
    HelferAnlegen("Max", "Moos", "Kommunionhelfer", "Lektor");
    HelferAnlegen("Eva", "Eich", "Kollektant", "Kollektant"); // twice
    HelferAnlegen("Udo", "Ulm", "Lektor", "");
    HelferAnlegen("Ida", "Igel", "Küster", "lektor"); // none of the four
    const Helferangebot a = HelferangebotAuswerten();
    EXPECT_EQ(a.Anzahl, (std::array{3, 1, 1, 2}));
    EXPECT_EQ(a.Insgesamt, 7);
    EXPECT_EQ(a.Anteil, (std::array{3 / 7.0, 1 / 7.0, 1 / 7.0, 2 / 7.0}));
    EXPECT_EQ(a.AnteilInsgesamt, 1);
}

TEST_F(MessendiensteTest, HelferangebotNimmtDenSatzHinterDemLetztenMit)
{
    HelferAnlegen("Lea", "Lang", "Lektor");
    HelferAnlegen("Max", "Moos", "Kantor");
    HelferAnlegen("Eva", "Eich", "Kantor");
    Helfer.Anzahl = 1;
    EXPECT_EQ(HelferangebotAuswerten().Anzahl, (std::array{1, 0, 1, 0}));
}

TEST_F(MessendiensteTest, OhneHelferIstAllesNull)
{
    const Helferangebot a = HelferangebotAuswerten();
    EXPECT_EQ(a.Insgesamt, 0);
    EXPECT_EQ(a.AnteilInsgesamt, 0);
    EXPECT_EQ(a.Anteil, (std::array{0.0, 0.0, 0.0, 0.0}));
}

} // namespace
} // namespace altardienst
