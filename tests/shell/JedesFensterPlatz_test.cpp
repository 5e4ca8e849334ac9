// What holds for every window on small and strongly enlarged screens: all of it is seen.
#include "JedesFenster.h"

#include "Ruhe.h"
#include "controls/Feldmarke.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QToolButton>

#include <set>

namespace altardienst {
namespace {

constexpr QSize VierK(944, 500); // 1920 x 1080 at 200 %, less frame and title bar

class JedesFensterPlatz : public JedesFenster {
  protected:
    /// Each window at both sizes; where there is room for a list of records, with it and without.
    void InJederGröße(const std::function<void(const Text &name, QWidget *fenster)> &prüfen)
    {
        for (const QSize platz : {KleinsterBildschirm, VierK}) {
            SCOPED_TRACE(platz.width());
            InJedemVollenFenster([&](const Text &name, QWidget *fenster) {
                fenster->showNormal();
                fenster->resize(platz);
                Ruhe(0);
                const auto paßt = [&] {
                    return fenster->width() <= platz.width() && fenster->height() <= platz.height();
                };
                for (int runde = 0; runde < 20 && !paßt(); ++runde) {
                    fenster->resize(platz); // a window manager may answer late
                    Ruhe(5);
                }
                EXPECT_TRUE(paßt()) << fenster->width() << " x " << fenster->height();
                prüfen(name, fenster);
                const auto *liste = fenster->findChild<QWidget *>("Liste");
                auto *griff = fenster->findChild<QToolButton *>("Listengriff");
                if (griff && liste && liste->isVisible()) {
                    SCOPED_TRACE("without the list");
                    griff->click();
                    QCoreApplication::processEvents();
                    prüfen(name, fenster);
                    griff->click();
                }
            });
        }
    }

    static bool LiegtInRollbarem(const QWidget *control)
    {
        for (const QWidget *w = control; w; w = w->parentWidget())
            if (qobject_cast<const QScrollArea *>(w))
                return true;
        return false;
    }

    static Text Name(const QWidget *control) { return control->objectName().toStdString(); }
};

/// The plan has a column for each place, and the distribution one for each service.
TEST_F(JedesFensterPlatz, NichtsRolltSeitwärtsAlsDiesenBreitenTafeln)
{
    static const std::set<Text> breite = {"Plan", "PlanVorn", "Tafel"};
    int flächen = 0;
    InJederGröße([&](const Text &, const QWidget *fenster) {
        for (const auto *fläche : fenster->findChildren<QAbstractScrollArea *>()) {
            if (!fläche->isVisibleTo(fenster) || breite.contains(Name(fläche)))
                continue;
            EXPECT_EQ(fläche->horizontalScrollBar()->maximum(), 0) << Name(fläche);
            ++flächen;
        }
    });
    EXPECT_GT(flächen, 60);
}

/// The whole window has to be seen, apart from what rolls: buttons that change one box stand beside
/// that, and roll with it.
TEST_F(JedesFensterPlatz, JederKnopfIstZuSehen)
{
    InJederGröße([](const Text &, const QWidget *fenster) {
        for (const QPushButton *knopf : fenster->findChildren<QPushButton *>()) {
            const bool nebenFeld = knopf->text().size() == 1 && LiegtInRollbarem(knopf);
            if (!knopf->isVisibleTo(fenster) || nebenFeld)
                continue;
            EXPECT_EQ(knopf->visibleRegion().boundingRect(), knopf->rect()) << Name(knopf);
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

TEST_F(JedesFensterPlatz, KeineBeschriftungIstAbgeschnitten)
{
    InJederGröße([](const Text &, const QWidget *fenster) {
        for (const QWidget *control : fenster->findChildren<QWidget *>())
            EXPECT_TRUE(!control->isVisibleTo(fenster) || !IstBeschriftet(control) ||
                        IstGanz(control))
                << Name(control) << " " << control->width() << " x " << control->height();
    });
}

/// Boxes of a fixed width are made for what they hold; the others are as wide as there is room.
bool PaßtInhalt(const QLineEdit *feld)
{
    if (feld->minimumWidth() != feld->maximumWidth() || feld->text().isEmpty())
        return true;
    auto *knopf = feld->findChild<QToolButton *>(QString(), Qt::FindDirectChildrenOnly);
    const int rechts = knopf && knopf->isVisible() ? knopf->x() : feld->width() - 2;
    constexpr int Ränder = 6; // left and right of a text
    return feld->fontMetrics().horizontalAdvance(feld->text()) <=
           rechts - feld->textMargins().right() - Ränder;
}

bool PaßtInhalt(const QComboBox *wahl)
{
    QStyleOptionComboBox option;
    option.initFrom(wahl);
    option.editable = wahl->isEditable();
    const QRect feld = wahl->style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                     QStyle::SC_ComboBoxEditField, wahl);
    return wahl->fontMetrics().horizontalAdvance(wahl->currentText()) <= feld.width();
}

/// Something of the kind that the box holds, but which nobody can read; empty for a text.
Text Unlesbares(const Text &inhalt)
{
    if (inhalt.find('.') != Text::npos)
        return "31.13.2026";
    if (inhalt.find(':') != Text::npos)
        return "25:00:00";
    const bool istZahl = !inhalt.empty() && inhalt.find_first_not_of("0123456789") == Text::npos;
    return istZahl ? inhalt + "x" : "";
}

TEST_F(JedesFensterPlatz, AuchNebenEinerMarkeIstDasGetippteGanzZuLesen)
{
    int marken = 0;
    InJedemFenster([&](const Text &, const QWidget *fenster) {
        for (auto *feld : fenster->findChildren<QLineEdit *>()) {
            const Text falsch = Unlesbares(Zeigt(feld));
            if (!feld->isVisible() || feld->minimumWidth() != feld->maximumWidth() ||
                falsch.empty())
                continue;
            Einsetzen(feld, falsch);
            EXPECT_TRUE(IstMarkiert(feld)) << Name(feld);
            EXPECT_TRUE(PaßtInhalt(feld)) << Name(feld) << " " << Zeigt(feld);
            ++marken;
        }
    });
    EXPECT_GT(marken, 60);
}

TEST_F(JedesFensterPlatz, AuchFelderRahmenUndSpaltenköpfeSindGanzZuLesen)
{
    InJederGröße([](const Text &, const QWidget *fenster) {
        for (const auto *feld : fenster->findChildren<QLineEdit *>())
            EXPECT_TRUE(!feld->isVisible() || PaßtInhalt(feld))
                << Name(feld) << " " << Zeigt(feld) << " " << feld->width();
        for (const auto *wahl : fenster->findChildren<QComboBox *>())
            EXPECT_TRUE(!wahl->isVisible() || PaßtInhalt(wahl))
                << Name(wahl) << " " << Zeigt(wahl) << " " << wahl->width();
        for (const auto *rahmen : fenster->findChildren<QGroupBox *>())
            EXPECT_TRUE(!rahmen->isVisible() ||
                        rahmen->fontMetrics().horizontalAdvance(rahmen->title()) + 12 <=
                            rahmen->width())
                << Name(rahmen) << " " << rahmen->title().toStdString();
        for (const auto *kopf : fenster->findChildren<QHeaderView *>()) {
            if (!kopf->isVisible() || kopf->orientation() != Qt::Horizontal)
                continue;
            for (int k = 0; k < kopf->count(); ++k)
                EXPECT_TRUE(kopf->isSectionHidden(k) ||
                            kopf->sectionSize(k) >= kopf->sectionSizeHint(k))
                    << kopf->model()->headerData(k, Qt::Horizontal).toString().toStdString();
        }
    });
}

} // namespace
} // namespace altardienst
