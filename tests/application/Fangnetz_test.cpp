// What no handler has caught: it ends neither the program nor the window, and is reported in
// German.
#include "application/Fangnetz.h"

#include "Fensterstand.h"

#include <QCloseEvent>
#include <QPaintEvent>
#include <QTimer>

#include <new>

namespace altardienst {
namespace {

using Liste = std::vector<Text>;

/// A window whose events fail on demand.
class Störfenster : public QWidget {
  public:
    std::function<void()> BeiMaus = [] {};
    std::function<void()> BeimMalen = [] {};
    std::function<void()> BeimSchließen = [] {};
    int Gemalt = 0;
    bool Malt = false;

  protected:
    void mousePressEvent(QMouseEvent *) override { BeiMaus(); }
    void paintEvent(QPaintEvent *) override
    {
        ++Gemalt;
        Malt = true;
        const auto danach = qScopeGuard([this] { Malt = false; });
        BeimMalen();
    }
    void closeEvent(QCloseEvent *ereignis) override
    {
        ereignis->accept();
        BeimSchließen();
    }
};

class FangnetzTest : public Fensterstand {
  protected:
    FangnetzTest() { Zeigen(&fenster); }

    /// The messages so far and those still pending; clears them.
    Liste Gemeldet()
    {
        QTest::qWait(100);
        return std::exchange(GezeigteMeldungen, {});
    }

    const Text Folge = " Was Sie zuletzt begonnen haben, ist nicht zu Ende geführt. Die "
                       "Daten im Programm bleiben erhalten.";
    Störfenster fenster;
};

TEST_F(FangnetzTest, EinLaufzeitfehlerWirdGemeldetWieInEinemOffenenHandler)
{
    MeßdienerAnlegen("Anna", "Adler");
    fenster.BeiMaus = [] { throw Laufzeitfehler(Laufzeitfehler::IndexAußerhalb); };
    Klick(&fenster);
    EXPECT_EQ(Gemeldet(), Liste{"Laufzeitfehler '9': Index außerhalb des gültigen Bereichs"});
    Klick(&fenster); // the user tries again
    EXPECT_EQ(Gemeldet(), Liste{"Laufzeitfehler '9': Index außerhalb des gültigen Bereichs"});
    EXPECT_TRUE(fenster.isVisible());
    EXPECT_EQ(Meßdiener.Vorname[0], "Anna");
}

TEST_F(FangnetzTest, WasNiemandErwartetWirdAufDeutschGemeldet)
{
    fenster.BeiMaus = [] { throw std::bad_alloc(); };
    Klick(&fenster);
    EXPECT_EQ(Gemeldet(), Liste{"Der Arbeitsspeicher reicht nicht aus." + Folge});
    fenster.BeiMaus = [] { throw std::logic_error("map::at"); };
    Klick(&fenster);
    EXPECT_EQ(Gemeldet(), Liste{"Unerwarteter Fehler (map::at)." + Folge});
    fenster.BeiMaus = [] { throw 7; };
    Klick(&fenster);
    EXPECT_EQ(Gemeldet(), Liste{"Unerwarteter Fehler." + Folge});
}

TEST_F(FangnetzTest, BeimMalenWirdNichtGemeldetSondernDanachUndNurEinmal)
{
    bool imMalen = false;
    Meldungen.Zeigen = [&](const Text &text) {
        imMalen = imMalen || fenster.Malt;
        GezeigteMeldungen.push_back(text);
    };
    fenster.BeimMalen = [] { throw std::logic_error("beim Malen"); };
    const int zuvor = fenster.Gemalt;
    for (int mal = 0; mal < 5; ++mal) {
        fenster.repaint();
        QCoreApplication::processEvents();
    }
    EXPECT_GE(fenster.Gemalt, zuvor + 5);
    EXPECT_EQ(Gemeldet(), Liste{"Unerwarteter Fehler (beim Malen)." + Folge});
    EXPECT_FALSE(imMalen);
}

TEST_F(FangnetzTest, EinTaktDerImmerScheitertMeldetEsEinmal)
{
    QTimer takt;
    int takte = 0;
    QObject::connect(&takt, &QTimer::timeout, &takt, [&] {
        ++takte;
        throw std::logic_error("im Takt");
    });
    takt.start(1);
    EXPECT_TRUE(Warten([&] { return takte > 50; }));
    EXPECT_EQ(Gemeldet(), Liste{"Unerwarteter Fehler (im Takt)." + Folge});
}

TEST_F(FangnetzTest, EinFensterDessenSchließenScheitertBleibtOffen)
{
    fenster.BeimSchließen = [] { throw std::bad_alloc(); };
    EXPECT_FALSE(fenster.close());
    EXPECT_TRUE(fenster.isVisible());
    EXPECT_EQ(Gemeldet().size(), 1U);
    fenster.BeimSchließen = [] {};
    EXPECT_TRUE(fenster.close());
    EXPECT_FALSE(fenster.isVisible());
}

// Reported in real message boxes.
TEST_F(FangnetzTest, EsStehtNieMehrAlsEineMeldungOffen)
{
    EchteMeldungen();
    int offen = 0;
    int höchstens = 0;
    const auto zeigen = Meldungen.Zeigen;
    Meldungen.Zeigen = [&](const Text &text) {
        GezeigteMeldungen.push_back(text);
        höchstens = std::max(höchstens, ++offen);
        Beantworten([&](QMessageBox *box) {
            // While it is open the user cannot reach the window, but a timer can.
            if (GezeigteMeldungen.size() == 1)
                for (const char *was : {"eins", "zwei", "zwei"})
                    QTimer::singleShot(0, &fenster, [was] { throw std::logic_error(was); });
            QTest::qWait(300);
            box->accept();
        });
        zeigen(text);
        --offen;
    };
    Meldungen.Zeigen("eine andere");
    EXPECT_TRUE(Warten([&] { return GezeigteMeldungen.size() == 3; }));
    EXPECT_EQ(Gemeldet(), (Liste{"eine andere", "Unerwarteter Fehler (eins)." + Folge,
                                 "Unerwarteter Fehler (zwei)." + Folge}));
    EXPECT_EQ(höchstens, 1);
    EXPECT_TRUE(Warten([&] { return offen == 0; }));
}

} // namespace
} // namespace altardienst
