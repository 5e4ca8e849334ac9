// One person in the plan.
#include "overview/Personenblick.h"

#include "overview/Prüfungsstand.h"

namespace altardienst {
namespace {

class PersonenblickTest : public Prüfungsstand {
  protected:
    static Personenblick Anna() { return PersonImPlan(GemeinsameTabellen(), "Anna", "Berg"); }
};

TEST_F(PersonenblickTest, AlleDiensteNachDerZeitUndIhrAbstand)
{
    const int anna = MeßdienerAnlegen("Anna", "Berg");
    HelferAnlegen("Anna", "Berg", "Lektor");
    const int spät = Hochamt(Tag(8, 12), 2);
    const int früh = Hochamt(Tag(28), 2);
    const int mittag = Hochamt(Tag(30), 3);
    MitDienst(früh, Messe.Leuchter, 2);
    MitDienst(spät, Messe.Leuchter, 1);
    Messe.LektorZahl[mittag] = 1;
    Einsetzen(spät, 1, anna);
    Einsetzen(früh, 2, anna);
    Einsetzen(mittag, 3, anna);
    Einsetzen(mittag, 4, anna); // not wanted
    HelferEinsetzen(mittag, 0, 0);
    HelferEinsetzen(mittag, 1, 0); // not wanted
    const Personenblick blick = Anna();
    EXPECT_EQ(blick.Name, "Anna Berg");
    ASSERT_EQ(blick.Dienste.size(), 4U);
    EXPECT_EQ(blick.Dienste[0].Wo, Dienerplatznr(früh, 2));
    EXPECT_EQ(blick.Dienste[0].Dienst, "Leuchter");
    EXPECT_EQ(blick.Dienste[0].Tag, Tag(28));
    EXPECT_FALSE(blick.Dienste[0].Pause);
    EXPECT_EQ(blick.Dienste[1].Wo, Dienerplatznr(mittag, 3));
    EXPECT_EQ(blick.Dienste[1].Pause, 2);
    EXPECT_EQ(blick.Dienste[2].Wo, Helferplatznr(mittag, 0));
    EXPECT_EQ(blick.Dienste[2].Pause, 0);
    EXPECT_EQ(blick.Dienste[3].Pause, 8);
    EXPECT_EQ(blick.Zusammenfassung, "Anna Berg: 4 Dienste (2 Leuchter, 1 Allgemein, 1 Lektor), "
                                     "28.11. bis 08.12., Abstände 0 bis 8 Tage");
}

TEST_F(PersonenblickTest, EinDienstZweiDiensteKeiner)
{
    EXPECT_EQ(Anna().Zusammenfassung, "Anna Berg: kein Dienst in diesem Plan");
    Besetzen(Messe, Dienerplatznr(Hochamt(Tag(28), 1), 1), "Anna", "Berg"); // in no table
    EXPECT_EQ(Anna().Zusammenfassung, "Anna Berg: 1 Dienst (1 Allgemein), 28.11.");
    Besetzen(Messe, Dienerplatznr(Hochamt(Tag(29), 1), 1), "Anna", "Berg");
    EXPECT_EQ(Anna().Zusammenfassung,
              "Anna Berg: 2 Dienste (2 Allgemein), 28.11. bis 29.11., Abstand 1 Tag");
}

} // namespace
} // namespace altardienst
