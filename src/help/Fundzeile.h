// A row of the hits of a search: the heading above it, and the sentence with the words in bold.
#pragma once

#include "help/Handbuchsuche.h"

#include <QListWidget>
#include <QStyledItemDelegate>

namespace altardienst {

class Fundzeile : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// The item for a hit. Its text, which screen readers speak, is both lines.
    static QListWidgetItem *Für(const Suchtreffer &fundstelle, const QString &überschrift);

    void paint(QPainter *stift, const QStyleOptionViewItem &option,
               const QModelIndex &zeile) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &zeile) const override;
};

} // namespace altardienst
