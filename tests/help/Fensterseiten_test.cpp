// Which place of the handbook a window leads to.
#include "help/Fensterseiten.h"

#include <gtest/gtest.h>

namespace altardienst {
namespace {

TEST(Fensterseiten, JedesFensterHatSeineStelle)
{
    EXPECT_EQ(SeiteZumFenster({"Gruppe"}), (Handbuchstelle{"leute.md", "gruppen"}));
    EXPECT_EQ(SeiteZumFenster({"Haupt"}), (Handbuchstelle{"bedienung.md", "das-hauptfenster"}));
}

TEST(Fensterseiten, EineMeldungHatDieIhresFensters)
{
    EXPECT_EQ(SeiteZumFenster({"Meldung", "Gruppe"}), SeiteZumFenster({"Gruppe"}));
    EXPECT_EQ(SeiteZumFenster({"", "Meldung", "Gruppe"}), SeiteZumFenster({"Gruppe"}));
    EXPECT_EQ(SeiteZumFenster({"Meldung", "Haupt"}),
              (Handbuchstelle{"plan.md", "wenn-eine-meldung-kommt"}))
        << "a mass that could not be filled, above all";
}

TEST(Fensterseiten, DasEigeneGehtVorDemDarunter)
{
    EXPECT_EQ(SeiteZumFenster({"CommonDialog1", "Gruppe"}), SeiteZumFenster({"CommonDialog1"}));
    EXPECT_NE(SeiteZumFenster({"CommonDialog1"}), SeiteZumFenster({"Gruppe"}));
}

TEST(Fensterseiten, OhneEigeneStelleDieErsteSeite)
{
    EXPECT_EQ(SeiteZumFenster({}), (Handbuchstelle{"README.md", ""}));
    EXPECT_EQ(SeiteZumFenster({"Meldung", "Unbekannt"}), (Handbuchstelle{"README.md", ""}));
}

} // namespace
} // namespace altardienst
