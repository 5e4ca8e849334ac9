// Two parts side by side, or one below the other.
#include "controls/Umbruch.h"

#include "Fensterstand.h"

#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace altardienst {
namespace {

class UmbruchTest : public Fensterstand {
  protected:
    UmbruchTest()
    {
        for (QWidget *teil : {links, rechts})
            teil->setMinimumSize(200, 100);
        auto *spalte = new QVBoxLayout(&fenster);
        spalte->setContentsMargins(0, 0, 0, 0);
        auto *l = new QVBoxLayout;
        l->addWidget(links);
        auto *r = new QVBoxLayout;
        r->addWidget(rechts);
        spalte->addWidget(Rollbar(new Umbruch(l, r, 20)));
        Zeigen(&fenster);
    }

    void Breit(int breite, int hoch = 120)
    {
        fenster.resize(breite, hoch);
        QCoreApplication::processEvents();
    }
    QScrollArea *Fläche() const { return fenster.findChild<QScrollArea *>(); }

    QWidget fenster;
    QWidget *links = new QWidget;
    QWidget *rechts = new QWidget;
};

TEST_F(UmbruchTest, StehtNebeneinanderWennDieBreiteReicht)
{
    Breit(420);
    EXPECT_EQ(rechts->x(), 220);
    EXPECT_EQ(rechts->y(), links->y());
    EXPECT_EQ(Fläche()->verticalScrollBar()->maximum(), 0);
    Breit(600); // the left part takes what is left
    EXPECT_EQ(links->width(), 380);
    EXPECT_EQ(rechts->width(), 200);
}

TEST_F(UmbruchTest, StehtSonstUntereinanderUndRolltNurNachUnten)
{
    Breit(419);
    EXPECT_EQ(rechts->x(), links->x());
    EXPECT_EQ(rechts->y(), links->y() + 120);
    EXPECT_GT(Fläche()->verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(Fläche()->horizontalScrollBar()->maximum(), 0);
    Breit(419, 300);
    EXPECT_EQ(Fläche()->verticalScrollBar()->maximum(), 0);
    Breit(420);
    EXPECT_EQ(rechts->y(), links->y());
}

} // namespace
} // namespace altardienst
