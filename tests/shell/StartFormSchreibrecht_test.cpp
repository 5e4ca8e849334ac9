// Where the program may not write, its first windows say so and the user can still look around.
#include "shell/Startstand.h"

#include "application/Mitteilung.h"
#include "platform/Schreibrecht.h"
#include "shell/Programm.h"

#include <utility>

namespace altardienst {
namespace {

class StartSchreibrechtTest : public Startstand {
  protected:
    StartSchreibrechtTest()
        : zuvor(std::exchange(Schreibrecht, {[](const auto &) { return false; }}))
    {
    }
    ~StartSchreibrechtTest() override { Schreibrecht = zuvor; }

    static constexpr const char *Satz = "darf das Programm nicht schreiben";

  private:
    SchreibrechtDienst zuvor;
};

TEST_F(StartSchreibrechtTest, DasStartfensterSagtEsUndStartetDoch)
{
    AufFestplatteSpeichern();
    ProgrammStarten();
    QWidget *start = Fenster("Start");
    const auto *hinweis = Finden<QLabel>(start, "Hinweis");
    EXPECT_NE(Zeigt(hinweis).find(Satz), Text::npos);
    EXPECT_TRUE(hinweis->textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
    EXPECT_FALSE(Finden(start, "FrühereStände")->isVisible()) << "no state helps here";
    EXPECT_LE(start->minimumSizeHint().height(), KleinsterBildschirm.height());
    Klick(Finden(start, "Starten"));
    EXPECT_EQ(Zeigt(Finden<QLabel>(Fenster("Haupt"), "StatusSchreibrecht")),
              "Hier lässt sich nichts speichern");
    EXPECT_TRUE(GezeigteMeldungen.empty());
}

TEST_F(StartSchreibrechtTest, BeimErstenStartStehtEsÜberDerKopie)
{
    std::filesystem::remove(Festplatte / "Etiketten.dat");
    std::filesystem::remove(Festplatte / "Konfig.cfg");
    ProgrammStarten();
    QWidget *kopie = Fenster("DateienKopieren");
    EXPECT_NE(Zeigt(Finden(kopie, "Anleitung")).find(Satz), Text::npos);
    EXPECT_LE(kopie->minimumSizeHint().height(), KleinsterBildschirm.height());
}

} // namespace
} // namespace altardienst
