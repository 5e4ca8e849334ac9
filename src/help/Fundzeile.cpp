// A row of the hits of a search: the heading above it, and the sentence with the words in bold.
#include "help/Fundzeile.h"

#include <QAbstractItemView>
#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QPainter>
#include <QTextDocument>

namespace altardienst {
namespace {

constexpr int Gestaltet = Qt::UserRole; // the role of the text with its signs for bold
constexpr int Rand = 6;                 // pixels

QString Teil(const Text &satz, std::size_t ab, std::size_t bytes)
{
    return QString::fromUtf8(satz.data() + ab, static_cast<qsizetype>(bytes)).toHtmlEscaped();
}

QString MitFettenWorten(const Suchtreffer &fundstelle)
{
    QString html;
    std::size_t bis = 0;
    for (const Treffer &treffer : fundstelle.In) {
        html += Teil(fundstelle.Satz, bis, treffer.Ab - bis);
        html += "<b>" + Teil(fundstelle.Satz, treffer.Ab, treffer.Bytes) + "</b>";
        bis = treffer.Ab + treffer.Bytes;
    }
    return html + Teil(fundstelle.Satz, bis, fundstelle.Satz.size() - bis);
}

void Setzen(QTextDocument &dokument, const QStyleOptionViewItem &option, const QModelIndex &zeile)
{
    dokument.setDefaultFont(option.font);
    dokument.setDocumentMargin(Rand);
    dokument.setHtml(zeile.data(Gestaltet).toString());
    const auto *liste = qobject_cast<const QAbstractItemView *>(option.widget);
    dokument.setTextWidth(liste ? liste->viewport()->width() : option.rect.width());
}

} // namespace

QListWidgetItem *Fundzeile::Für(const Suchtreffer &fundstelle, const QString &überschrift)
{
    auto *eine = new QListWidgetItem(überschrift + "\n" + QString::fromStdString(fundstelle.Satz));
    eine->setData(Gestaltet,
                  "<i>" + überschrift.toHtmlEscaped() + "</i><br>" + MitFettenWorten(fundstelle));
    return eine;
}

void Fundzeile::paint(QPainter *stift, const QStyleOptionViewItem &option,
                      const QModelIndex &zeile) const
{
    QStyleOptionViewItem grund(option);
    initStyleOption(&grund, zeile);
    grund.text.clear();
    option.widget->style()->drawControl(QStyle::CE_ItemViewItem, &grund, stift, option.widget);

    QTextDocument dokument;
    Setzen(dokument, option, zeile);
    QAbstractTextDocumentLayout::PaintContext farben;
    const bool gewählt = option.state & QStyle::State_Selected;
    const auto gruppe = option.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
    farben.palette.setColor(
        QPalette::Text,
        option.palette.color(gruppe, gewählt ? QPalette::HighlightedText : QPalette::Text));
    stift->save();
    stift->translate(option.rect.topLeft());
    dokument.documentLayout()->draw(stift, farben);
    stift->restore();
}

QSize Fundzeile::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &zeile) const
{
    QTextDocument dokument;
    Setzen(dokument, option, zeile);
    return dokument.size().toSize();
}

} // namespace altardienst
