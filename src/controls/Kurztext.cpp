// A line of text that never widens its window.
#include "controls/Kurztext.h"

#include "controls/Bausteine.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <algorithm>

namespace altardienst {
namespace {

constexpr int WenigsteZeichen = 8;

} // namespace

Kurztext::Kurztext(const char *name, Qt::TextElideMode kürzung) : kürzung(kürzung)
{
    Benannt(this, name);
    setTextFormat(Qt::PlainText);
}

QSize Kurztext::minimumSizeHint() const
{
    const QSize ganz = QLabel::minimumSizeHint();
    const int wenigstens = fontMetrics().averageCharWidth() * WenigsteZeichen;
    return {std::min(ganz.width(), wenigstens), ganz.height()};
}

QString Kurztext::Sichtbar() const
{
    return fontMetrics().elidedText(text(), kürzung, contentsRect().width());
}

bool Kurztext::event(QEvent *ereignis)
{
    if (ereignis->type() != QEvent::ToolTip || Sichtbar() == text())
        return QLabel::event(ereignis);
    const QString dazu = toolTip().isEmpty() ? QString() : "\n" + toolTip();
    QToolTip::showText(static_cast<QHelpEvent *>(ereignis)->globalPos(), text() + dazu, this);
    return true;
}

void Kurztext::paintEvent(QPaintEvent *ereignis)
{
    const QString sichtbar = Sichtbar();
    if (sichtbar == text())
        return QLabel::paintEvent(ereignis);
    QPainter stift(this);
    drawFrame(&stift);
    style()->drawItemText(&stift, contentsRect(), static_cast<int>(alignment()), palette(),
                          isEnabled(), sichtbar, foregroundRole());
}

} // namespace altardienst
