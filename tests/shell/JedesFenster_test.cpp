// What holds for every window: it can be used with the keyboard alone, by those who do not see it,
// and on the smallest screen.
#include "JedesFenster.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>

namespace altardienst {
namespace {

class JedesFensterTest : public JedesFenster {
  protected:
    /// What can be used in a window as it stands, without what such a control is made of.
    static QWidgetList Bedienbare(const QWidget *fenster)
    {
        QWidgetList bedienbare;
        for (QWidget *control : fenster->findChildren<QWidget *>())
            if (control->isVisibleTo(fenster) && control->isEnabled() &&
                control->focusPolicy() & Qt::TabFocus && control->focusProxy() == nullptr)
                bedienbare.append(control);
        return bedienbare;
    }

    /// The controls that Tab reaches, once round. On a page of the handbook it goes from link to
    /// link.
    static QWidgetList Tabrunde(QWidget *fenster)
    {
        QWidgetList runde;
        for (int i = 0; i < 400; ++i) {
            QTest::keyClick(fenster->windowHandle(), Qt::Key_Tab);
            QWidget *jetzt = QApplication::focusWidget();
            if (!jetzt || (runde.contains(jetzt) && jetzt != runde.last()))
                break;
            if (!runde.contains(jetzt))
                runde.append(jetzt);
        }
        return runde;
    }

    /// Of a group of options Tab reaches the chosen one, and arrow keys reach the others.
    static bool IstInErreichterGruppe(const QWidget *control, const QWidgetList &runde)
    {
        return qobject_cast<const QRadioButton *>(control) &&
               std::ranges::any_of(runde, [&](const QWidget *anderes) {
                   return qobject_cast<const QRadioButton *>(anderes) &&
                          anderes->parent() == control->parent();
               });
    }

    static Text Name(const QWidget *control) { return control->objectName().toStdString(); }

    /// As large as the smallest screen allows.
    static void Verkleinern(QWidget *fenster)
    {
        fenster->showNormal();
        fenster->resize(KleinsterBildschirm);
        QCoreApplication::processEvents();
    }

    /// The small buttons "-" and "+", which belong to a box.
    static bool IstSchritt(const QPushButton *knopf) { return knopf->text().size() == 1; }

    static bool LiegtInRollbarem(const QWidget *control)
    {
        for (const QWidget *w = control; w; w = w->parentWidget())
            if (qobject_cast<const QScrollArea *>(w))
                return true;
        return false;
    }
};

TEST_F(JedesFensterTest, JedesBedienelementIstMitDerTabtasteErreichbar)
{
    InJedemFenster([](const Text &, QWidget *fenster) {
        const QWidgetList runde = Tabrunde(fenster);
        for (const QWidget *control : Bedienbare(fenster))
            EXPECT_TRUE(runde.contains(control) || IstInErreichterGruppe(control, runde))
                << Name(control);
    });
}

TEST_F(JedesFensterTest, JedesBedienelementHatEinenGesprochenenNamen)
{
    InJedemFenster([](const Text &, QWidget *fenster) {
        std::vector<Text> stumme = Stumme(fenster);
        std::erase(stumme, "qt_spinbox_lineedit"); // the box within a box, which has the name
        EXPECT_EQ(stumme, std::vector<Text>{});
    });
}

TEST_F(JedesFensterTest, DerFokusIstZuSehen)
{
    InJedemFenster([](const Text &, QWidget *fenster) {
        const QWidgetList runde = Tabrunde(fenster);
        for (qsizetype i = 0; i + 1 < runde.size(); ++i) {
            FokusAuf(runde[i]);
            const QImage mit = runde[i]->grab().toImage();
            FokusAuf(runde[i + 1]);
            EXPECT_NE(runde[i]->grab().toImage(), mit) << Name(runde[i]);
        }
    });
}

TEST_F(JedesFensterTest, AufDemKleinstenBildschirmRolltNichtsSeitwärtsUndJederKnopfIstZuSehen)
{
    InJedemFenster([](const Text &, QWidget *fenster) {
        Verkleinern(fenster);
        EXPECT_LE(fenster->width(), KleinsterBildschirm.width());
        EXPECT_LE(fenster->height(), KleinsterBildschirm.height());
        for (const QScrollArea *fläche : fenster->findChildren<QScrollArea *>())
            EXPECT_TRUE(!fläche->isVisibleTo(fenster) ||
                        fläche->horizontalScrollBar()->maximum() == 0)
                << Name(fläche);
        for (const QPushButton *knopf : fenster->findChildren<QPushButton *>()) {
            const QRect ort(knopf->mapTo(fenster, QPoint()), knopf->size());
            EXPECT_TRUE(!knopf->isVisibleTo(fenster) ||
                        (IstSchritt(knopf) && LiegtInRollbarem(knopf)) ||
                        (fenster->rect().contains(ort) &&
                         knopf->visibleRegion().boundingRect() == knopf->rect()))
                << Name(knopf);
        }
    });
}

/// Labels, and buttons with words; signs such as "+" or an arrow are drawn as small as they need.
bool IstBeschriftet(const QWidget *control)
{
    const auto *knopf = qobject_cast<const QAbstractButton *>(control);
    return qobject_cast<const QLabel *>(control) || (knopf && knopf->text().size() > 1);
}

/// Whether a text stands in its control uncut.
bool IstGanz(const QWidget *control)
{
    if (const auto *label = qobject_cast<const QLabel *>(control))
        return !label->pixmap(Qt::ReturnByValue).isNull() ||
               (label->wordWrap() ? label->height() >= label->heightForWidth(label->width())
                                  : label->width() >= label->minimumSizeHint().width() &&
                                        label->height() >= label->minimumSizeHint().height());
    return control->width() >= control->minimumSizeHint().width() &&
           control->height() >= control->minimumSizeHint().height();
}

TEST_F(JedesFensterTest, KeineBeschriftungIstAbgeschnitten)
{
    InJedemFenster([](const Text &, QWidget *fenster) {
        Verkleinern(fenster);
        for (const QWidget *control : fenster->findChildren<QWidget *>())
            EXPECT_TRUE(!control->isVisibleTo(fenster) || !IstBeschriftet(control) ||
                        IstGanz(control))
                << Name(control) << " " << control->width() << " x " << control->height();
    });
}

TEST_F(JedesFensterTest, WerAbbrechenKannVerläßtDasFensterAuchMitEscape)
{
    InJedemFenster([](const Text &, QWidget *fenster) {
        const auto knöpfe = fenster->findChildren<QPushButton *>();
        const bool kannAbbrechen = std::ranges::any_of(knöpfe, [&](const QPushButton *knopf) {
            return knopf->text().remove('&') == "Abbrechen" && knopf->isVisibleTo(fenster);
        });
        const QPointer<QWidget> noch = fenster;
        QTest::keyClick(fenster->windowHandle(), Qt::Key_Escape);
        EXPECT_TRUE(!kannAbbrechen || !noch || !noch->isVisible());
    });
}

} // namespace
} // namespace altardienst
