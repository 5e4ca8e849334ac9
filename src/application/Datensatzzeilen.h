// What the list of records is made of: its rows, how they are drawn, and the handle at its edge.
#pragma once

#include "values/Text.h"

#include <QAbstractListModel>
#include <QStyledItemDelegate>
#include <QToolButton>

#include <functional>
#include <vector>

namespace altardienst {

/// The rows that pass the filter. Their texts stay in the tables and are read when they are drawn
/// or filtered.
class Datensatzzeilen : public QAbstractListModel {
  public:
    Datensatzzeilen(QObject *eigner, std::function<int()> anzahl,
                    std::function<Text(int satz)> zeile);

    int rowCount(const QModelIndex &) const override { return static_cast<int>(sätze.size()); }
    QVariant data(const QModelIndex &zeile, int rolle) const override;

    int Satz(int zeile) const { return sätze[static_cast<std::size_t>(zeile)]; }

    /// The row of a record; invalid if the filter hides it.
    QModelIndex ZeileVon(int satz) const;

    /// The record that is shown is listed even past the last one: the slot for a new one.
    void Erneuern(const std::vector<Text> &wörter, int jetztGezeigter);

  private:
    std::function<int()> anzahl;
    std::function<Text(int)> text;
    std::vector<int> sätze; // ascending
    int gezeigter = -1;
};

/// One line of text, shortened where there is no room. The delegate of the platform measures each
/// text several times; a window with a list opens noticeably faster without that.
class Zeilenzeichner : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter *stift, const QStyleOptionViewItem &option,
               const QModelIndex &zeile) const override;
};

/// The handle that folds and opens the list, as tall as that, with a small arrow in its middle. The
/// style's own arrow would be as tall as the handle, its icons are read from a file each time.
class Klappgriff : public QToolButton {
  public:
    Klappgriff();

  protected:
    void paintEvent(QPaintEvent *ereignis) override;
};

} // namespace altardienst
