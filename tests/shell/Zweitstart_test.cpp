// What comes to the front when the program is started a second time.
#include "shell/Zweitstart.h"

#include "Fensterstand.h"
#include "shell/Programm.h"

#include <QDialog>

#include <filesystem>

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

/// Numbers of processes are used again, after a restart of the machine soon.
TEST_F(ZweitstartfensterTest, EinRestMitDerEigenenNummerHältNiemandenAuf)
{
    const QByteArray zuvor = qgetenv("XDG_RUNTIME_DIR");
    qputenv("XDG_RUNTIME_DIR", QByteArray::fromStdString(TextVon(Festplatte)));
    std::filesystem::path platz;
    std::string inhalt;
    {
        const AlleinigerLauf lauf(Diskette);
        ASSERT_TRUE(lauf.IstErster());
        platz = std::filesystem::directory_iterator(Festplatte)->path();
        inhalt = DateiLesen(platz);
    }
    DateiSchreiben(platz, inhalt);
    EXPECT_TRUE(AlleinigerLauf(Diskette).IstErster());
    qputenv("XDG_RUNTIME_DIR", zuvor);
}

TEST_F(ZweitstartfensterTest, OhneFensterGeschiehtNichts)
{
    NachVornHolen();
    QCoreApplication::processEvents();
}

} // namespace
} // namespace altardienst
