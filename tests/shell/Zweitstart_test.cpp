// What comes to the front when the program is started a second time.
#include "shell/Zweitstart.h"

#include "Fensterstand.h"
#include "shell/Programm.h"

#include <QDialog>

namespace altardienst {
namespace {

using ZweitstartfensterTest = Fensterstand;

TEST_F(ZweitstartfensterTest, DasVerkleinerteFensterKommtHervor)
{
    QWidget fenster;
    fenster.showMinimized();
    NachVornHolen();
    QCoreApplication::processEvents();
    EXPECT_FALSE(fenster.isMinimized());
    EXPECT_TRUE(fenster.isActiveWindow());
}

TEST_F(ZweitstartfensterTest, EinSichtbaresGehtVor)
{
    QWidget verkleinert;
    verkleinert.showMinimized();
    QWidget gesperrt;
    gesperrt.setEnabled(false);
    gesperrt.show();
    QWidget offen;
    offen.show();
    offen.clearFocus();
    NachVornHolen();
    QCoreApplication::processEvents();
    EXPECT_TRUE(verkleinert.isMinimized());
    EXPECT_TRUE(offen.isActiveWindow());
}

TEST_F(ZweitstartfensterTest, EineFrageGehtAllemVor)
{
    QWidget fenster;
    fenster.show();
    QDialog frage;
    frage.setModal(true);
    frage.show();
    fenster.activateWindow();
    NachVornHolen();
    QCoreApplication::processEvents();
    EXPECT_TRUE(frage.isActiveWindow());
}

TEST_F(ZweitstartfensterTest, OhneFensterGeschiehtNichts)
{
    NachVornHolen();
    QCoreApplication::processEvents();
}

} // namespace
} // namespace altardienst
