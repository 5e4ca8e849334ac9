// What the list of records is made of.
#include "application/Datensatzzeilen.h"

#include "controls/Bausteine.h"
#include "core/Suchwörter.h"

#include <QApplication>
#include <QFontMetrics>
#include <QPainter>
#include <QPolygonF>
#include <QStyle>
#include <QStyleOption>
#include <QStylePainter>

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>

namespace altardienst {
namespace {

QPalette::ColorGroup Farbgruppe(QStyle::State zustand)
{
    return zustand & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
}

/// Letter by letter, which is as good as exact and takes a fraction of laying the text out.
int Breite(const QFontMetrics &maß, const QString &text)
{
    return std::accumulate(text.begin(), text.end(), 0, [&](int bisher, QChar zeichen) {
        return bisher + maß.horizontalAdvance(zeichen);
    });
}

/// Draws the text from the left, in the middle of the height; one too long ends in "…".
void TextZeichnen(QPainter &stift, const QRect &platz, const QString &text)
{
    const QFontMetrics maß = stift.fontMetrics();
    const QString ganz = Breite(maß, text) <= platz.width()
                             ? text
                             : maß.elidedText(text, Qt::ElideRight, platz.width());
    const int unterRand = (platz.height() - maß.height()) / 2 + maß.descent();
    stift.drawText(platz.left(), platz.bottom() + 1 - unterRand, ganz);
}

} // namespace

Datensatzzeilen::Datensatzzeilen(QObject *eigner, std::function<int()> anzahl,
                                 std::function<Text(int)> zeile)
    : QAbstractListModel(eigner), anzahl(std::move(anzahl)), text(std::move(zeile))
{
}

QVariant Datensatzzeilen::data(const QModelIndex &zeile, int rolle) const
{
    const int satz = Satz(zeile.row());
    if (rolle == Qt::DisplayRole || rolle == Qt::ToolTipRole)
        return Anzeige(text(satz));
    if (rolle == Qt::FontRole && satz == gezeigter) {
        QFont fett;
        fett.setBold(true);
        return fett;
    }
    return {};
}

QModelIndex Datensatzzeilen::ZeileVon(int satz) const
{
    const auto stelle = std::ranges::lower_bound(sätze, satz);
    if (stelle == sätze.end() || *stelle != satz)
        return {};
    return index(static_cast<int>(stelle - sätze.begin()));
}

void Datensatzzeilen::Erneuern(const std::vector<Text> &wörter, int jetztGezeigter)
{
    gezeigter = jetztGezeigter;
    int wieViele = std::max(anzahl(), 0); // a file may claim anything
    if (gezeigter == wieViele)
        ++wieViele;
    std::vector<int> neue;
    neue.reserve(static_cast<std::size_t>(wieViele));
    for (int satz = 0; satz < wieViele; ++satz)
        if (wörter.empty() || EnthältAlle(text(satz), wörter))
            neue.push_back(satz);
    if (neue == sätze) {
        if (!sätze.empty())
            Q_EMIT dataChanged(index(0), index(static_cast<int>(sätze.size()) - 1));
        return;
    }
    beginResetModel();
    sätze = std::move(neue);
    endResetModel();
}

void Zeilenzeichner::paint(QPainter *stift, const QStyleOptionViewItem &option,
                           const QModelIndex &zeile) const
{
    const QStyle *stil = option.widget ? option.widget->style() : QApplication::style();
    stil->drawPrimitive(QStyle::PE_PanelItemViewItem, &option, stift, option.widget);
    const QVariant eigene = zeile.data(Qt::FontRole);
    stift->setFont(eigene.isValid() ? eigene.value<QFont>().resolve(option.font) : option.font);
    const bool gewählt = option.state & QStyle::State_Selected;
    stift->setPen(option.palette.color(Farbgruppe(option.state),
                                       gewählt ? QPalette::HighlightedText : QPalette::Text));
    const int rand = stil->pixelMetric(QStyle::PM_FocusFrameHMargin, &option, option.widget) + 1;
    TextZeichnen(*stift, option.rect.adjusted(rand, 0, -rand, 0),
                 zeile.data(Qt::DisplayRole).toString());
}

Klappgriff::Klappgriff()
{
    setAutoRaise(true);
    setFocusPolicy(Qt::NoFocus); // a click on it is no reason to leave a box
    setFixedWidth(12);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
}

void Klappgriff::paintEvent(QPaintEvent *)
{
    constexpr qreal Breite = 5;
    constexpr qreal Höhe = 10;
    QStylePainter stift(this);
    QStyleOptionToolButton grund; // which shows that the mouse is over it
    initStyleOption(&grund);
    grund.features &= ~QStyleOptionToolButton::Arrow;
    stift.drawComplexControl(QStyle::CC_ToolButton, grund);
    const QPointF mitte = QRectF(rect()).center();
    const qreal spitze = arrowType() == Qt::LeftArrow ? -Breite / 2 : Breite / 2;
    const QPointF ecken[] = {mitte + QPointF(spitze, 0), mitte + QPointF(-spitze, -Höhe / 2),
                             mitte + QPointF(-spitze, Höhe / 2)};
    stift.setRenderHint(QPainter::Antialiasing);
    stift.setPen(Qt::NoPen);
    stift.setBrush(palette().color(QPalette::WindowText));
    stift.drawPolygon(ecken, 3);
}

} // namespace altardienst
