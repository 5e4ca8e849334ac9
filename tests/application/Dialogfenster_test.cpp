// Windows that take the place of the main window.
#include "application/Dialogfenster.h"

#include "Fensterstand.h"
#include "application/Anwendung.h"
#include "values/Laufzeitfehler.h"

#include <QPointer>

namespace altardienst {
namespace {

class DialogfensterTest : public Fensterstand {
  protected:
    class Dialog : public Dialogfenster {
      public:
        std::function<void()> Vorher = [] {};

      private:
        void VorDemSchließen() override { Vorher(); }
    };

    DialogfensterTest()
    {
        HauptfensterSetzen(haupt);
        haupt->showMaximized();
        DialogÖffnen(dialog);
    }
    ~DialogfensterTest() override { HauptfensterSetzen(nullptr); }

    QWidget *haupt = Benannt(new QWidget, "Haupt");
    QPointer<Dialog> dialog = new Dialog;
};

TEST_F(DialogfensterTest, GeschlossenIstDasHauptfensterZurück)
{
    EXPECT_FALSE(haupt->isEnabled());
    EXPECT_TRUE(dialog->close());
    EXPECT_TRUE(haupt->isEnabled());
    EXPECT_TRUE(haupt->isMaximized());
    EXPECT_TRUE(Warten([&] { return !dialog; })) << "not unloaded";
}

TEST_F(DialogfensterTest, VorherIstDasHauptfensterNochFort)
{
    int gelaufen = 0;
    dialog->Vorher = [&] {
        ++gelaufen;
        EXPECT_TRUE(dialog->isVisible());
        EXPECT_FALSE(haupt->isEnabled());
    };
    dialog->close();
    EXPECT_EQ(gelaufen, 1);
    EXPECT_TRUE(haupt->isEnabled());
}

TEST_F(DialogfensterTest, EinFehlerWirdGezeigtUndHältDasFensterOffen)
{
    dialog->Vorher = [] { throw Laufzeitfehler(Laufzeitfehler::TypenUnverträglich); };
    EXPECT_FALSE(dialog->close());
    EXPECT_EQ(GezeigteMeldungen.size(), 1U);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_FALSE(haupt->isEnabled());
    dialog->Vorher = [] {};
    EXPECT_TRUE(dialog->close());
    EXPECT_TRUE(haupt->isEnabled());
}

} // namespace
} // namespace altardienst
