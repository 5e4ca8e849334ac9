// Tables to read in never roll sideways while their headings have room.
#include "controls/Lesetafel.h"

#include "Fensterstand.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QTableWidget>

#include <numeric>

namespace altardienst {
namespace {

using Breiten = std::vector<int>;

TEST(EingepaßteBreiten, WoPlatzIstBekommtJedeWasSieWill)
{
    EXPECT_EQ(EingepaßteBreiten({100, 50, 200}, {20, 20, 20}, 350), (Breiten{100, 50, 200}));
    EXPECT_EQ(EingepaßteBreiten({}, {}, 100), Breiten{});
}

TEST(EingepaßteBreiten, SonstGebenDieBreitestenNach)
{
    EXPECT_EQ(EingepaßteBreiten({100, 50, 200}, {20, 20, 20}, 349), (Breiten{100, 50, 199}));
    EXPECT_EQ(EingepaßteBreiten({100, 50, 200}, {20, 20, 20}, 210), (Breiten{80, 50, 80}));
    EXPECT_EQ(EingepaßteBreiten({100, 50, 200}, {20, 20, 20}, 61), (Breiten{20, 20, 20}));
}

TEST(EingepaßteBreiten, AberKeineWirdSchmalerAlsIhrTitel)
{
    EXPECT_EQ(EingepaßteBreiten({100, 50, 200}, {90, 20, 20}, 190), (Breiten{90, 50, 50}));
    EXPECT_EQ(EingepaßteBreiten({100, 50, 200}, {90, 50, 60}, 199), (Breiten{100, 50, 200}))
        << "even the headings have no room";
}

class LesetafelTest : public Fensterstand {
  protected:
    LesetafelTest()
    {
        LesetafelEinrichten(&tafel);
        tafel.setHorizontalHeaderLabels({"Name", "Was", "Inhalt"});
        Füllen("Anna Adler", "neu");
        tafel.resize(400, 200);
        Zeigen(&tafel);
    }

    void Füllen(const QString &name, const QString &was)
    {
        tafel.setItem(0, 0, new QTableWidgetItem(name));
        tafel.setItem(0, 1, new QTableWidgetItem(was));
        tafel.setItem(0, 2,
                      new QTableWidgetItem("ein langer Satz, der mehr Platz will als alle "
                                           "anderen zusammen und ihn nicht bekommt"));
        SpaltenEinpassen(&tafel);
        QCoreApplication::processEvents();
    }

    bool Rollt() const { return tafel.horizontalScrollBar()->maximum() > 0; }

    QTableWidget tafel{1, 3};
};

TEST_F(LesetafelTest, NichtsRolltSeitwärtsWieBreitSieAuchIst)
{
    for (const int breite : {400, 250, 700, 200, 1200}) {
        tafel.resize(breite, 200);
        QCoreApplication::processEvents();
        EXPECT_FALSE(Rollt()) << breite;
        EXPECT_EQ(tafel.horizontalHeader()->length(), tafel.viewport()->width()) << breite;
    }
    const QAbstractItemView &ansicht = tafel;
    EXPECT_EQ(tafel.columnWidth(0), ansicht.sizeHintForColumn(0)) << "there is room now";
}

TEST_F(LesetafelTest, AndereZeilenBekommenIhrenPlatz)
{
    const int vorher = tafel.columnWidth(0);
    Füllen("Maximiliane Schulze-Oberdorfer", "geändert");
    EXPECT_GT(tafel.columnWidth(0), vorher);
    EXPECT_FALSE(Rollt());
}

TEST_F(LesetafelTest, InEinerLeerenStehenDieTitelNichtGedrängt)
{
    tafel.setRowCount(0);
    SpaltenEinpassen(&tafel);
    EXPECT_GT(tafel.columnWidth(1), tafel.horizontalHeader()->sectionSizeHint(1) + 20);
    EXPECT_FALSE(Rollt());
}

TEST_F(LesetafelTest, WasDerBenutzerZiehtBleibt)
{
    tafel.setColumnWidth(0, 140);
    tafel.resize(500, 200);
    QCoreApplication::processEvents();
    EXPECT_EQ(tafel.columnWidth(0), 140);
}

TEST_F(LesetafelTest, BreitenLassenSichAuchVorgeben)
{
    SpaltenEinpassen(&tafel, {70, 80, 90});
    EXPECT_EQ(tafel.columnWidth(0), 70);
    EXPECT_EQ(tafel.columnWidth(1), 80);
    tafel.resize(190, 200);
    QCoreApplication::processEvents();
    EXPECT_FALSE(Rollt());
}

} // namespace
} // namespace altardienst
