// How both views of the grid look, and the grid as text.
#include "overview/Tafelteile.h"

#include <QHeaderView>

namespace altardienst {

void TafelEinrichten(QTableView *ansicht)
{
    ansicht->setShowGrid(false);
    ansicht->setWordWrap(false);
    ansicht->setEditTriggers(QAbstractItemView::NoEditTriggers);
    ansicht->setTabKeyNavigation(false);
    ansicht->setSelectionMode(QAbstractItemView::ExtendedSelection);
    ansicht->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    ansicht->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    ansicht->verticalHeader()->hide();
    ansicht->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    ansicht->verticalHeader()->setMinimumSectionSize(1);
    QHeaderView *kopf = ansicht->horizontalHeader();
    kopf->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    kopf->setHighlightSections(false);
    kopf->setMinimumSectionSize(1);
}

QString AlsTabelle(const QModelIndexList &gewählte, const QTableView &tafel,
                   const Planmodell &modell)
{
    QRect rahmen(QPoint(gewählte.front().column(), gewählte.front().row()), QSize(1, 1));
    for (const QModelIndex &zelle : gewählte)
        rahmen |= QRect(QPoint(zelle.column(), zelle.row()), QSize(1, 1));
    QStringList zeilen;
    for (int zeile = rahmen.top(); zeile <= rahmen.bottom(); ++zeile) {
        QStringList felder;
        for (int spalte = rahmen.left(); spalte <= rahmen.right(); ++spalte) {
            const QModelIndex zelle = modell.index(zeile, spalte);
            if (!tafel.isColumnHidden(spalte))
                felder.append(tafel.selectionModel()->isSelected(zelle) ? modell.Ganz(zelle)
                                                                        : QString());
        }
        zeilen.append(felder.join('\t'));
    }
    return zeilen.join('\n');
}

} // namespace altardienst
