// Every window on a dark screen: what is written in it can be read.
#include "JedesFenster.h"

#include <QAbstractButton>
#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QScopeGuard>
#include <QStyle>

#include <algorithm>
#include <cstdlib>
#include <map>

namespace altardienst {
namespace {

/// What desktops with a dark theme hand to their programs, some of them with the grey of a light
/// one; the style sees to that.
QPalette Dunkel()
{
    QPalette farben(QColor(0x32, 0x32, 0x32));
    farben.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128));
    const QColor schrift(0xf0, 0xf0, 0xf0);
    const QColor blaß(0x80, 0x80, 0x80);
    for (const auto rolle : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        farben.setColor(rolle, schrift);
        farben.setColor(QPalette::Disabled, rolle, blaß);
    }
    farben.setColor(QPalette::Base, QColor(0x24, 0x24, 0x24));
    farben.setColor(QPalette::Highlight, QColor(0x2a, 0x6e, 0xb8));
    farben.setColor(QPalette::HighlightedText, Qt::white);
    QApplication::style()->polish(farben);
    return farben;
}

/// How far the writing stands out from the ground, of 255. The ground is the commonest grey.
int Abstand(const QImage &bild)
{
    std::map<int, int> grade;
    for (int y = 0; y < bild.height(); ++y)
        for (int x = 0; x < bild.width(); ++x)
            ++grade[qGray(bild.pixel(x, y))];
    if (grade.empty())
        return 0;
    const int grund =
        std::ranges::max_element(grade, {}, [](const auto &grad) { return grad.second; })->first;
    return std::max(std::abs(grade.begin()->first - grund),
                    std::abs(grade.rbegin()->first - grund));
}

Text Beschriftet(const QWidget *control)
{
    if (const auto *label = qobject_cast<const QLabel *>(control))
        return label->text().toStdString();
    if (const auto *knopf = qobject_cast<const QAbstractButton *>(control))
        return knopf->text().toStdString();
    if (const auto *feld = qobject_cast<const QLineEdit *>(control))
        return (feld->text().isEmpty() ? feld->placeholderText() : feld->text()).toStdString();
    return {};
}

bool IstLeeresFeld(const QWidget *control)
{
    const auto *feld = qobject_cast<const QLineEdit *>(control);
    return feld && feld->text().isEmpty();
}

class JedesFensterDunkelTest : public JedesFenster {};

TEST_F(JedesFensterDunkelTest, JedesWortIstZuLesen)
{
    const QPalette hell = QApplication::palette();
    QApplication::setPalette(Dunkel());
    const auto zurück = qScopeGuard([&] { QApplication::setPalette(hell); });
    int gelesen = 0;
    InJedemFenster([&](const Text &, QWidget *fenster) {
        for (QWidget *control : fenster->findChildren<QWidget *>()) {
            const Text wort = Beschriftet(control);
            const bool hatRahmen = !qobject_cast<const QLabel *>(control);
            const QRect innen =
                hatRahmen ? control->rect().adjusted(4, 3, -4, -3) : control->rect();
            if (!control->isVisibleTo(fenster) || wort.find_first_not_of(' ') == Text::npos ||
                innen.isEmpty())
                continue;
            const bool soBlaß = !control->isEnabled() ||
                                control->foregroundRole() == QPalette::PlaceholderText ||
                                IstLeeresFeld(control);
            const int nötig = soBlaß ? 45 : 90;
            EXPECT_GE(Abstand(control->grab(innen).toImage()), nötig)
                << control->objectName().toStdString() << " " << wort;
            ++gelesen;
        }
    });
    EXPECT_GT(gelesen, 800);
}

} // namespace
} // namespace altardienst
