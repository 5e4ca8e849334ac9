// The wait cursor while files are read or written.
#include "application/Wartezeiger.h"

#include "Fensterstand.h"
#include "core/Allgemein.h"
#include "platform/Dateizugriff.h"

#include <QApplication>

namespace altardienst {
namespace {

/// The eight files are there; each look at the stopwatch advances it.
class DateiwartezeigerTest : public Fensterstand {
  protected:
    DateiwartezeigerTest()
    {
        AufFestplatteSpeichern();
        QCoreApplication::processEvents(); // the event is over
        Uhr.Stoppuhr = [this] { return zeit; };
        const auto lesen = Laufwerke.Lesen;
        Laufwerke.Lesen = [this, lesen](const std::filesystem::path &datei) {
            std::string inhalt = lesen(datei);
            zeit += jeDatei;
            wartet.push_back(Wartet());
            return inhalt;
        };
    }
    ~DateiwartezeigerTest() override { QCoreApplication::processEvents(); }

    static bool Wartet()
    {
        return QApplication::overrideCursor() &&
               QApplication::overrideCursor()->shape() == Qt::WaitCursor;
    }

    std::int64_t zeit = 1000; // ms
    std::int64_t jeDatei = 0;
    std::vector<bool> wartet; // after each file
};

TEST_F(DateiwartezeigerTest, WasSchnellGehtHatKeinen)
{
    jeDatei = 71; // eight files: 568 ms, but the last one comes after 497
    VonFestplatteLaden();
    EXPECT_EQ(wartet, std::vector<bool>(8, false));
    EXPECT_FALSE(Wartet());
}

TEST_F(DateiwartezeigerTest, NachEinerHalbenSekundeKommtErUndGehtMitDemEreignis)
{
    jeDatei = 125;
    VonFestplatteLaden();
    EXPECT_EQ(wartet, (std::vector<bool>{false, false, false, false, true, true, true, true}));
    EXPECT_TRUE(Wartet()) << "until the event is over";
    QCoreApplication::processEvents();
    EXPECT_FALSE(Wartet());
}

TEST_F(DateiwartezeigerTest, JedesEreignisFängtVonVornAn)
{
    jeDatei = 60;
    for (int i = 0; i < 3; ++i) {
        VonFestplatteLaden();
        EXPECT_FALSE(Wartet());
        QCoreApplication::processEvents();
    }
}

TEST_F(DateiwartezeigerTest, VorDemWartenAufDasMediumKommtErSofort)
{
    const auto datei = Festplatte / "Helfer.dat";
    std::function<void()> schritte[] = {[&] { Laufwerke.Kopieren(datei, Diskette / "Helfer.dat"); },
                                        [&] { dateizugriff::Durchschreiben(datei); }};
    for (const auto &schritt : schritte) {
        schritt();
        EXPECT_TRUE(Wartet()) << "who knows how long it takes";
        QCoreApplication::processEvents();
        EXPECT_FALSE(Wartet());
    }
}

TEST_F(DateiwartezeigerTest, AuchEineEinzigeDateiDieLangeDauertHatIhn)
{
    Uhr.Stoppuhr = [this] { return zeit += 600; };
    dateizugriff::Schreiben(Festplatte / "Plan.txt", "eine Zeile");
    EXPECT_TRUE(Wartet()) << "until the event is over";
}

TEST_F(DateiwartezeigerTest, EineMeldungNimmtIhnWegUndEsBleibtKeinerStehen)
{
    EchteMeldungen();
    std::filesystem::remove(Festplatte / "Helfer.dat");
    jeDatei = 600;
    bool gesehen = false;
    Beantworten([&](QMessageBox *box) {
        gesehen = true;
        EXPECT_FALSE(Wartet());
        box->accept();
    });
    VonFestplatteLaden();
    EXPECT_TRUE(gesehen);
    EXPECT_TRUE(wartet.back());
    QCoreApplication::processEvents();
    EXPECT_FALSE(QApplication::overrideCursor());
}

TEST_F(DateiwartezeigerTest, InEinemSchrittMitWartezeigerBleibtDessenEigenerBisZumSchluß)
{
    jeDatei = 600;
    UnterWartezeiger([&] {
        VonFestplatteLaden();
        EXPECT_TRUE(Wartet());
        QCoreApplication::processEvents();
        EXPECT_TRUE(Wartet()) << "the step goes on";
    });
    EXPECT_FALSE(QApplication::overrideCursor());
}

} // namespace
} // namespace altardienst
